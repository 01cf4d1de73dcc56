#pragma once

#include "panels/settings/settingjson.h"

#include <QtWidgets/QWidget>

#include <functional>

class CBaseObject;
class QHBoxLayout;
class QToolButton;

namespace board {

class Commands;
class LabelEditor;
class MenuField;
class PageView;
class Workspace;

/// A bar beside the text that is being written, for its letters: font, size, weight and the like, list, alignment,
/// link, colour, as far as the object has settings of them, and a menu of the rest. It leaves the focus in the
/// text.
class TypingBar : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive this; the bar lies on `view`.
    TypingBar(const Workspace *workspace, const Commands *commands, PageView *view);

Q_SIGNALS:
    /// The user wants to see all settings of the text.
    void settingsRequested();

protected:
    /// Follows the text, and takes keys for what the bar has.
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    LabelEditor *editor() const;
    QVector<SettingControl> controls() const;
    void begin();
    void end();
    void leaveFocus();
    void build();
    void showValues();
    void place();
    void addFont(int index);
    void addSize(int index);
    void addSwitch(int index);
    void addColor(int index);
    void addChoice(int index);
    void addTextCommands();
    void addMore();
    QToolButton *addButton(const QString &name);
    MenuField *addField(const QString &name, int width);
    void nameControl(QToolButton *control, const QString &name);
    void apply(int index, const QVariant &value);
    bool useKey(int key);

    const Workspace *m_workspace;
    const Commands *m_commands;
    PageView *m_view;
    /// Kept here since the view can't be asked while it is being deleted, when its editor still sends events.
    LabelEditor *m_editor = nullptr;
    QHBoxLayout *m_row;
    QWidget *m_content = nullptr;
    QVector<SettingControl> m_controls;       ///< of the letters, with the values shown
    QVector<std::function<void()>> m_updates; ///< of the controls that are in the bar
};

} // namespace board
