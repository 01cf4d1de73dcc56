#pragma once

#include "panels/panelrefresh.h"

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class CBaseObject;
class QCheckBox;

namespace board {

class Commands;
class FillControls;
class FoldingSection;
class NewLook;
class PenControls;
class PageSizeControls;
class PlaceControls;
class Workspace;

/// Shows and changes the selected objects' look and place; without a selection, the page's paper, background, size
/// and grid.
class StylePanel : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive this.
    StylePanel(const Workspace *workspace, const Commands *commands, NewLook *newLook, QWidget *parent = nullptr);

    void setPage(pagehost::Page *page);
    /// The panel has come to the front of those that share its place.
    void comeToFront() { m_refresh.finish(); }

private:
    void addPagePart(const Commands &commands);
    void addAlignment(const Commands &commands);
    void useForNewOnes(bool use);
    void showNewLook();
    void connectControls();
    void refresh();
    void showObjects(const QVector<CBaseObject *> &objects);
    void takeOpacity(int opacity);
    QVector<CBaseObject *> selection() const;

    const Workspace *m_workspace;
    QPointer<pagehost::Page> m_page;
    PenControls *m_pen;
    FillControls *m_fill;
    FillControls *m_background;
    PageSizeControls *m_pageSize;
    PlaceControls *m_place;
    NewLook *m_newLook;
    QCheckBox *m_forNewOnes;
    FoldingSection *m_lookSection;
    FoldingSection *m_alignSection; ///< of several objects
    FoldingSection *m_placeSection;
    QWidget *m_pagePart; ///< without a selection
    PanelRefresh m_refresh;
};

} // namespace board
