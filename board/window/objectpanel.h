#pragma once

#include "core/onceperturn.h"

#include <pagehost/page.h>

#include <QtCore/QPointer>
#include <QtWidgets/QScrollArea>

class QToolButton;

namespace board {

class Commands;
class FoldingSection;
class NewLook;
class ObjectHead;
class PropertyPanel;
class SettingsPanel;
class StylePanel;
class Workspace;

/// All about the selected objects: name, their own settings, their letters, look, position, and all properties,
/// which are folded at first. Without a selection, about the page.
class ObjectPanel : public QScrollArea
{
    Q_OBJECT

public:
    /// All must outlive this.
    ObjectPanel(const Workspace *workspace, const Commands *commands, NewLook *newLook, QWidget *parent = nullptr);

    void setPage(pagehost::Page *page);
    /// Opens the section of the letters, and scrolls to it.
    void showText();
    void showAllProperties();
    /// Takes back what is shown only while the user chooses.
    void settle();
    ObjectHead *head() const { return m_head; }
    SettingsPanel *settings() const { return m_settings; }
    SettingsPanel *text() const { return m_text; }
    PropertyPanel *properties() const { return m_properties; }

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void showEvent(QShowEvent *event) override;

private:
    QWidget *makeTop(const Commands &commands);
    void refresh();
    void makeRoom(bool isScrollBarShown);

    const Workspace *m_workspace;
    QPointer<pagehost::Page> m_page;
    ObjectHead *m_head;
    QToolButton *m_more; ///< the menu of the objects
    SettingsPanel *m_settings;
    SettingsPanel *m_text;
    FoldingSection *m_textSection;
    StylePanel *m_style;
    PropertyPanel *m_properties;
    FoldingSection *m_allProperties;
    OncePerTurn m_refresh;
};

} // namespace board
