#include "commands/keysdialog.h"

#include "core/commands.h"
#include "core/workspace.h"

#include <QtWidgets/QAction>
#include <QtWidgets/QBoxLayout>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QHeaderView>
#include <QtWidgets/QKeySequenceEdit>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QTreeWidget>

#include <map>

namespace board {

namespace {

constexpr QSize dialogSize(640, 600);
constexpr int rowHeight = 24;
constexpr int commandRole = Qt::UserRole;
constexpr int nameColumn = 0;
constexpr int keysColumn = 1;

QString textOf(const QList<QKeySequence> &keys)
{
    QStringList texts;
    for (const QKeySequence &key : keys)
        texts.append(key.toString(QKeySequence::NativeText));
    return texts.join(QStringLiteral(", "));
}

Command commandOf(const QTreeWidgetItem *row)
{
    return static_cast<Command>(row->data(nameColumn, commandRole).toInt());
}

/// Takes one key at a time, at once: Qt's own waits whether further keys follow.
class KeyField : public QKeySequenceEdit
{
public:
    using QKeySequenceEdit::QKeySequenceEdit;

protected:
    void keyPressEvent(QKeyEvent *event) override
    {
        QKeySequenceEdit::keyPressEvent(event);
        // Ends the recording.
        setKeySequence(keySequence());
        Q_EMIT keySequenceChanged(keySequence());
    }
};

} // namespace

KeysDialog::KeysDialog(const Workspace *workspace, Commands *commands, QWidget *window)
    : QDialog(window)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_search(new QLineEdit(this))
    , m_list(new QTreeWidget(this))
    , m_newKey(new KeyField(this))
    , m_conflict(new QLabel(this))
    , m_letters(new QCheckBox(workspace->text("IDS_BOARD_LETTER_KEYS_ACT"), this))
{
    setWindowTitle(commands->name(Command::ShowKeys).remove(QChar(0x2026)));
    m_search->setPlaceholderText(workspace->text("IDS_BOARD_SEARCH_KEYS"));
    m_search->setAccessibleName(m_search->placeholderText());
    m_search->setClearButtonEnabled(true);
    m_newKey->setAccessibleName(workspace->text("IDS_BOARD_NEW_KEY"));
    m_conflict->setWordWrap(true);
    makeList();
    layOut();
    connectParts();
    showKeys();
    resize(dialogSize);
}

void KeysDialog::makeList()
{
    m_list->setColumnCount(2);
    m_list->setHeaderHidden(true);
    m_list->setUniformRowHeights(true);
    m_list->header()->setSectionResizeMode(nameColumn, QHeaderView::Stretch);
    m_list->header()->setSectionResizeMode(keysColumn, QHeaderView::ResizeToContents);
    m_list->header()->setStretchLastSection(false);
    std::map<CommandGroup, QTreeWidgetItem *> groups;
    const QVector<Command> performed = m_commands->performed();
    for (const Command command : performed) {
        const CommandGroup group = factsOf(command).group;
        QTreeWidgetItem *&title = groups[group];
        if (!title)
            title = new QTreeWidgetItem(m_list, {m_workspace->text(groupTextKey(group)).remove(QLatin1Char('&'))});
        auto *row = new QTreeWidgetItem(title, {m_commands->name(command)});
        row->setSizeHint(nameColumn, QSize(0, rowHeight));
        row->setIcon(nameColumn, m_commands->action(command)->icon());
        row->setData(nameColumn, commandRole, int(command));
        m_rows.append(row);
    }
    m_list->expandAll();
}

void KeysDialog::layOut()
{
    auto *column = new QVBoxLayout(this);
    column->addWidget(m_search);
    column->addWidget(m_list, 1);
    auto *changing = new QHBoxLayout;
    auto *label = new QLabel(m_workspace->text("IDS_BOARD_NEW_KEY"), this);
    label->setBuddy(m_newKey);
    changing->addWidget(label);
    changing->addWidget(m_newKey, 1);
    changing->addWidget(addButton("IDS_BOARD_USE_KEY", &KeysDialog::useKey));
    changing->addWidget(addButton("IDS_BOARD_ADD_KEY", &KeysDialog::addKey));
    column->addLayout(changing);
    column->addWidget(m_conflict);
    auto *resetting = new QHBoxLayout;
    resetting->addWidget(addButton("IDS_BOARD_NO_KEYS", &KeysDialog::removeKeys));
    resetting->addWidget(addButton("IDS_BOARD_RESET_KEYS", &KeysDialog::reset));
    resetting->addStretch();
    auto *all = new QPushButton(m_workspace->text("IDS_BOARD_RESET_ALL_KEYS"), this);
    all->setAutoDefault(false);
    connect(all, &QPushButton::clicked, this, &KeysDialog::resetAll);
    resetting->addWidget(all);
    column->addLayout(resetting);
    column->addWidget(m_letters);
}

/// Of those that do something with the chosen command.
QPushButton *KeysDialog::addButton(const char *textKey, void (KeysDialog::*work)())
{
    auto *button = new QPushButton(m_workspace->text(textKey), this);
    // The return key belongs to the list and to the new key.
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, work);
    m_buttons.append(button);
    return button;
}

void KeysDialog::connectParts()
{
    connect(m_search, &QLineEdit::textChanged, this, &KeysDialog::filter);
    connect(m_list, &QTreeWidget::currentItemChanged, this, &KeysDialog::showConflict);
    connect(m_newKey, &QKeySequenceEdit::keySequenceChanged, this, &KeysDialog::showConflict);
    connect(m_letters, &QCheckBox::clicked, m_commands, &Commands::setLettersAct);
    connect(m_commands, &Commands::keysChanged, this, &KeysDialog::showKeys);
}

void KeysDialog::filter()
{
    const QString text = m_search->text().trimmed();
    for (QTreeWidgetItem *row : qAsConst(m_rows)) {
        const bool isFound = row->text(nameColumn).contains(text, Qt::CaseInsensitive) ||
                             row->text(keysColumn).contains(text, Qt::CaseInsensitive);
        row->setHidden(!isFound);
    }
    for (int i = 0; i < m_list->topLevelItemCount(); ++i) {
        QTreeWidgetItem *title = m_list->topLevelItem(i);
        bool isEmpty = true;
        for (int child = 0; child < title->childCount(); ++child)
            isEmpty = isEmpty && title->child(child)->isHidden();
        title->setHidden(isEmpty);
    }
}

void KeysDialog::choose(Command command)
{
    for (QTreeWidgetItem *row : qAsConst(m_rows))
        if (commandOf(row) == command)
            m_list->setCurrentItem(row);
}

void KeysDialog::showKeys()
{
    for (QTreeWidgetItem *row : qAsConst(m_rows))
        row->setText(keysColumn, textOf(m_commands->keys(commandOf(row))));
    m_letters->setChecked(m_commands->lettersAct());
    showConflict();
}

std::optional<Command> KeysDialog::chosen() const
{
    const QTreeWidgetItem *row = m_list->currentItem();
    if (!row || !row->parent())
        return {};
    return commandOf(row);
}

QKeySequence KeysDialog::key() const
{
    return m_newKey->keySequence();
}

void KeysDialog::showConflict()
{
    const std::optional<Command> command = chosen();
    for (QPushButton *button : qAsConst(m_buttons))
        button->setEnabled(command.has_value());
    m_conflict->clear();
    if (!command || key().isEmpty())
        return;
    const std::optional<Command> other = m_commands->otherWithKey(*command, key());
    if (other)
        m_conflict->setText(m_workspace->text("IDS_BOARD_KEY_TAKEN")
                                .arg(key().toString(QKeySequence::NativeText), m_commands->name(*other)));
}

void KeysDialog::useKey()
{
    if (key().isEmpty())
        return;
    m_commands->setKeys(*chosen(), {key()});
    m_newKey->clear();
}

void KeysDialog::addKey()
{
    QList<QKeySequence> keys = m_commands->keys(*chosen());
    if (key().isEmpty() || keys.contains(key()))
        return;
    keys.append(key());
    m_commands->setKeys(*chosen(), keys);
    m_newKey->clear();
}

void KeysDialog::removeKeys()
{
    m_commands->setKeys(*chosen(), {});
}

void KeysDialog::reset()
{
    m_commands->resetKeys(*chosen());
}

void KeysDialog::resetAll()
{
    m_commands->resetAllKeys();
    m_commands->setLettersAct(true);
}

} // namespace board
