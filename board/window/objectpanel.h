#pragma once

#include "core/onceperturn.h"

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtWidgets/QScrollArea>

class QLabel;
class QToolButton;

namespace board {

class PropertyPanel;
class SettingsPanel;
class StylePanel;
class Workspace;

/// All about the selected objects: name, their own settings, look, position, and all properties, which are folded
/// at first. Without a selection, about the page.
class ObjectPanel : public QScrollArea
{
    Q_OBJECT

public:
    explicit ObjectPanel(const Workspace *workspace, QWidget *parent = nullptr);

    void setPage(pagehost::Page *page);
    void showAllProperties();
    /// Takes back what is shown only while the user chooses.
    void settle();
    SettingsPanel *settings() const { return m_settings; }
    PropertyPanel *properties() const { return m_properties; }

private:
    void refresh();
    void foldProperties();

    const Workspace *m_workspace;
    QPointer<pagehost::Page> m_page;
    QLabel *m_title;
    SettingsPanel *m_settings;
    StylePanel *m_style;
    QToolButton *m_fold;
    PropertyPanel *m_properties;
    OncePerTurn m_refresh;
};

} // namespace board
