#pragma once

#include "panels/panelrefresh.h"

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtWidgets/QWidget>

class CBaseObject;
class QBoxLayout;

namespace board {

class FillControls;
class PenControls;
class PlaceControls;
class Workspace;

/// Shows and changes the selected objects' look and place; without a selection, the page's background.
class StylePanel : public QWidget
{
    Q_OBJECT

public:
    explicit StylePanel(const Workspace *workspace, QWidget *parent = nullptr);

    void setPage(pagehost::Page *page);
    /// The panel has come to the front of those that share its place.
    void comeToFront() { m_refresh.finish(); }

private:
    QWidget *addSection(QBoxLayout *column, const char *titleKey, QWidget *content);
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
    PlaceControls *m_place;
    QWidget *m_penSection;
    QWidget *m_fillSection;
    QWidget *m_placeSection;
    QWidget *m_backgroundSection;
    PanelRefresh m_refresh;
};

} // namespace board
