#include "core/commands.h"

#include "core/shortcuts.h"
#include "core/workspace.h"

#include <QtCore/QSettings>
#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QAction>
#include <QtWidgets/QActionGroup>
#include <QtWidgets/QApplication>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QTextEdit>

namespace board {

namespace {

const QString lettersKey = QStringLiteral("keys/letters");

QString settingOf(Command command)
{
    return QStringLiteral("keys/of/") + QLatin1String(factsOf(command).id);
}

/// A setting by hand may contain anything: keys that are none are left out.
QList<QKeySequence> rememberedKeys(Command command)
{
    const QSettings settings;
    if (!settings.contains(settingOf(command)))
        return defaultKeys(command);
    QList<QKeySequence> keys;
    const QStringList texts = settings.value(settingOf(command)).toStringList();
    for (const QString &text : texts) {
        const QKeySequence key(text, QKeySequence::PortableText);
        if (!key.isEmpty() && (key[0] & ~Qt::KeyboardModifierMask) != Qt::Key_unknown)
            keys.append(key);
    }
    return keys;
}

bool changesTheBoard(CommandGroup group)
{
    return group == CommandGroup::Edit || group == CommandGroup::Arrange || group == CommandGroup::Page ||
           group == CommandGroup::Tools;
}

Qt::ShortcutContext contextOf(KeyScope scope)
{
    switch (scope) {
    case KeyScope::Page:
    case KeyScope::LessonPage:
        return Qt::WidgetShortcut;
    case KeyScope::LessonBar:
        return Qt::WidgetWithChildrenShortcut;
    default:
        return Qt::WindowShortcut;
    }
}

/// Whether both can act at a time.
bool meet(const CommandFacts &one, const CommandFacts &other)
{
    if (one.scope == other.scope)
        return true;
    if (one.scope == KeyScope::LessonPage && changesTheBoard(other.group))
        return false;
    if (other.scope == KeyScope::LessonPage && changesTheBoard(one.group))
        return false;
    return one.scope == KeyScope::Window || other.scope == KeyScope::Window;
}

/// Lists are searched by typing.
bool takesLetters(const QObject *widget)
{
    return qobject_cast<const QLineEdit *>(widget) || qobject_cast<const QAbstractSpinBox *>(widget) ||
           qobject_cast<const QTextEdit *>(widget) || qobject_cast<const QPlainTextEdit *>(widget) ||
           qobject_cast<const QComboBox *>(widget) || qobject_cast<const QAbstractItemView *>(widget);
}

} // namespace

Commands::Commands(const Workspace *workspace, QWidget *window)
    : QObject(window)
    , m_workspace(workspace)
    , m_window(window)
    , m_editing(new QActionGroup(this))
    , m_lettersAct(QSettings().value(lettersKey, true).toBool())
{
    m_editing->setExclusive(false);
    for (int i = 0; i < commandCount; ++i)
        make(static_cast<Command>(i));
    giveAll();
    QApplication::instance()->installEventFilter(this);
}

void Commands::make(Command command)
{
    const CommandFacts &facts = factsOf(command);
    auto *action = new QAction(m_workspace->text(facts.textKey), this);
    action->setObjectName(QLatin1String(facts.id));
    action->setCheckable(facts.isCheckable);
    action->setShortcutContext(contextOf(facts.scope));
    action->setVisible(false);
    if (facts.icon)
        action->setIcon(icon(*facts.icon));
    if (facts.scope == KeyScope::Window)
        m_window->addAction(action);
    if (changesTheBoard(facts.group))
        m_editing->addAction(action);
    m_actions[int(command)] = action;
    m_keys[int(command)] = rememberedKeys(command);
}

QAction *Commands::perform(Command command, const QObject *receiver, const std::function<void()> &work)
{
    connect(action(command), &QAction::triggered, receiver, work);
    return perform(command);
}

QAction *Commands::perform(Command command)
{
    action(command)->setVisible(true);
    return action(command);
}

bool Commands::isPerformed(Command command) const
{
    return action(command)->isVisible();
}

QVector<Command> Commands::performed() const
{
    QVector<Command> found;
    for (int i = 0; i < commandCount; ++i)
        if (isPerformed(static_cast<Command>(i)))
            found.append(static_cast<Command>(i));
    return found;
}

QString Commands::name(Command command) const
{
    return m_workspace->text(factsOf(command).textKey).remove(QLatin1Char('&'));
}

void Commands::setEditingBlocked(bool blocked)
{
    m_editing->setEnabled(!blocked);
}

bool Commands::isEditingBlocked() const
{
    return !m_editing->isEnabled();
}

void Commands::setKeys(Command command, const QList<QKeySequence> &keys)
{
    for (const QKeySequence &key : keys) {
        while (const std::optional<Command> other = otherWithKey(command, key)) {
            QList<QKeySequence> left = this->keys(*other);
            left.removeAll(key);
            store(*other, left);
        }
    }
    store(command, keys);
    Q_EMIT keysChanged();
}

void Commands::resetKeys(Command command)
{
    setKeys(command, defaultKeys(command));
}

void Commands::resetAllKeys()
{
    for (int i = 0; i < commandCount; ++i)
        store(static_cast<Command>(i), defaultKeys(static_cast<Command>(i)));
    Q_EMIT keysChanged();
}

/// Only a departure from the default is remembered, so that later defaults reach the user.
void Commands::store(Command command, const QList<QKeySequence> &keys)
{
    m_keys[int(command)] = keys;
    give(command);
    QSettings settings;
    if (keys == defaultKeys(command))
        return settings.remove(settingOf(command));
    QStringList texts;
    for (const QKeySequence &key : keys)
        texts.append(key.toString(QKeySequence::PortableText));
    settings.setValue(settingOf(command), texts);
}

std::optional<Command> Commands::otherWithKey(Command command, const QKeySequence &key) const
{
    for (int i = 0; i < commandCount; ++i) {
        const auto other = static_cast<Command>(i);
        if (other != command && meet(factsOf(other), factsOf(command)) && keys(other).contains(key))
            return other;
    }
    return {};
}

void Commands::setLettersAct(bool act)
{
    m_lettersAct = act;
    QSettings().setValue(lettersKey, act);
    giveAll();
    Q_EMIT keysChanged();
}

void Commands::give(Command command)
{
    QList<QKeySequence> given;
    const QList<QKeySequence> all = keys(command);
    for (const QKeySequence &key : all)
        if (m_lettersAct || !isLetterKey(key))
            given.append(key);
    action(command)->setShortcuts(given);
    describe(action(command));
}

void Commands::giveAll()
{
    for (int i = 0; i < commandCount; ++i)
        give(static_cast<Command>(i));
}

bool Commands::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride || !takesLetters(watched))
        return false;
    const auto *pressed = static_cast<QKeyEvent *>(event);
    if (!isLetterKey(QKeySequence(pressed->key() | int(pressed->modifiers()))))
        return false;
    event->accept();
    return true;
}

} // namespace board
