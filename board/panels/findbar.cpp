#include "panels/findbar.h"

#include "core/commands.h"
#include "core/workspace.h"
#include "look/sizes.h"
#include "look/theme.h"
#include "panels/fields/remarkfield.h"

#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

namespace board {

namespace {

/// Logical pixels.
constexpr int leastFieldWidth = 160;
constexpr int greatestFieldWidth = 420;
constexpr QSize buttonIconSize(20, 20);

RemarkField *makeField(const QString &name)
{
    auto *field = new RemarkField;
    field->setPlaceholderText(name);
    field->setAccessibleName(name);
    field->setMinimumWidth(leastFieldWidth);
    field->setMaximumWidth(greatestFieldWidth);
    return field;
}

QToolButton *buttonOf(QAction *action)
{
    auto *button = new QToolButton;
    button->setDefaultAction(action);
    button->setIconSize(buttonIconSize);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    followSizes(button, [button] { button->setMinimumSize(sizes().field, sizes().field); });
    return button;
}

QHBoxLayout *rowIn(QWidget *widget)
{
    auto *row = new QHBoxLayout(widget);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(mediumGap);
    return row;
}

} // namespace

FindBar::FindBar(const Workspace *workspace, const Commands *commands, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_sought(makeField(workspace->text("IDS_FIND_SOUGHT")))
    , m_replacement(makeField(workspace->text("IDS_FIND_REPLACEMENT")))
    , m_case(new QCheckBox(workspace->text("IDS_FIND_CASE")))
    , m_words(new QCheckBox(workspace->text("IDS_FIND_WORDS")))
{
    setObjectName(QStringLiteral("findBar"));
    setAccessibleName(workspace->text("IDS_FIND_BAR"));
    layOut(*commands);
    connect(m_sought, &QLineEdit::textChanged, this, &FindBar::searchChanged);
    connect(m_replacement, &QLineEdit::returnPressed, this, &FindBar::replaceWanted);
    connect(m_replacement, &QLineEdit::textEdited, this, [this] { m_replacement->setRemark({}); });
    for (const QCheckBox *box : {m_case, m_words})
        connect(box, &QCheckBox::toggled, this, &FindBar::searchChanged);
    hide();
}

void FindBar::layOut(const Commands &commands)
{
    auto *close = new QPushButton(m_workspace->text("IDS_BOARD_CLOSE"));
    connect(close, &QPushButton::clicked, this, &FindBar::closeWanted);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(largeGap, smallGap, largeGap, smallGap);
    grid->setHorizontalSpacing(mediumGap);
    grid->setVerticalSpacing(smallGap);
    grid->addWidget(m_sought, 0, 0);
    grid->addWidget(makeButtons(commands), 0, 1);
    grid->addWidget(close, 0, 3);
    grid->addWidget(m_replacement, 1, 0);
    grid->addWidget(m_replacing = makeReplacing(), 1, 1);
    // The fields take what they can have, the end of the bar the rest.
    grid->setColumnStretch(0, greatestFieldWidth);
    grid->setColumnStretch(2, 1);
    // From the text to find straight to the one that replaces it.
    setTabOrder(m_sought, m_replacement);
}

QWidget *FindBar::makeButtons(const Commands &commands)
{
    auto *buttons = new QWidget;
    auto *row = rowIn(buttons);
    row->addWidget(buttonOf(commands.action(Command::FindPrevious)));
    row->addWidget(buttonOf(commands.action(Command::FindNext)));
    row->addWidget(m_case);
    row->addWidget(m_words);
    return buttons;
}

QWidget *FindBar::makeReplacing()
{
    auto *buttons = new QWidget;
    auto *row = rowIn(buttons);
    auto *one = new QPushButton(m_workspace->text("IDS_FIND_REPLACE"));
    auto *all = new QPushButton(m_workspace->text("IDS_FIND_REPLACE_ALL"));
    connect(one, &QPushButton::clicked, this, &FindBar::replaceWanted);
    connect(all, &QPushButton::clicked, this, &FindBar::replaceAllWanted);
    row->addWidget(one);
    row->addWidget(all);
    row->addStretch();
    return buttons;
}

void FindBar::open(bool withReplacing)
{
    m_replacement->setVisible(withReplacing);
    m_replacing->setVisible(withReplacing);
    m_replacement->setRemark({});
    show();
    m_sought->selectAll();
    m_sought->setFocus(Qt::ShortcutFocusReason);
}

SearchOptions FindBar::options() const
{
    return {m_case->isChecked(), m_words->isChecked()};
}

void FindBar::keyPressEvent(QKeyEvent *event)
{
    const bool isReturn = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape)
        Q_EMIT closeWanted();
    else if (isReturn && m_sought->hasFocus())
        event->modifiers() & Qt::ShiftModifier ? Q_EMIT previousWanted() : Q_EMIT nextWanted();
    else
        QWidget::keyPressEvent(event);
}

/// A line below the bar.
void FindBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    painter.fillRect(QRect(0, height() - 1, width(), 1), themeColors().border);
}

} // namespace board
