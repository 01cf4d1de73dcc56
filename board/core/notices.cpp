#include "core/notices.h"

#include "core/workspace.h"
#include "look/accessiblerole.h"
#include "look/icons.h"
#include "look/theme.h"

#include <QtWidgets/QDialog>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QFrame>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPlainTextEdit>
#include <QtWidgets/QPushButton>

namespace board {

namespace {

constexpr int shownDetails = 3;
constexpr int signSide = 20;
constexpr QSize messagesSize(560, 320);

QLabel *addLine(QVBoxLayout *column, const QString &text)
{
    auto *label = new QLabel(text);
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setTextInteractionFlags(Qt::TextSelectableByMouse);
    column->addWidget(label);
    return label;
}

} // namespace

Notices::Notices(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_column(new QVBoxLayout(this))
{
    m_column->setContentsMargins(0, 0, 0, 0);
    m_column->setSpacing(1);
    setAccessibleRole(this, QAccessible::Pane);
    setAccessibleName(workspace->text("IDS_BOARD_MESSAGES"));
    hide();
}

QWidget *Notices::add(const Notice &notice)
{
    remove(notice.id);
    QWidget *bar = makeBar(notice);
    m_column->addWidget(bar);
    show();
    announce(bar, bar->accessibleName());
    return bar;
}

void Notices::remove(const QString &id)
{
    if (id.isEmpty())
        return;
    const QList<QFrame *> bars = findChildren<QFrame *>(id, Qt::FindDirectChildrenOnly);
    for (QFrame *bar : bars)
        close(bar);
}

void Notices::close(QWidget *bar)
{
    bar->hide();
    bar->setObjectName({});
    m_column->removeWidget(bar);
    bar->deleteLater();
    setVisible(m_column->count() > 0);
}

QWidget *Notices::makeBar(const Notice &notice)
{
    auto *bar = new QFrame(this);
    bar->setObjectName(notice.id);
    setAccessibleRole(bar, QAccessible::AlertMessage);
    bar->setAccessibleName(
        QStringList{notice.text, notice.details.join(QStringLiteral(". "))}.join(QLatin1Char(' ')).trimmed());
    bar->setAutoFillBackground(true);
    bar->setBackgroundRole(QPalette::AlternateBase);
    auto *row = new QHBoxLayout(bar);
    row->setContentsMargins(largeGap, mediumGap, largeGap, mediumGap);
    row->setSpacing(mediumGap);
    auto *sign = new QLabel(bar);
    sign->setPixmap(notice.picture.isNull() ? icon(Icon::Info).pixmap(signSide, signSide) : notice.picture);
    row->addWidget(sign, 0, Qt::AlignTop);
    row->addWidget(makeTexts(notice, bar), 1);
    const auto addButton = [&](const QString &text, const std::function<void()> &work) {
        auto *button = new QPushButton(text, bar);
        connect(button, &QPushButton::clicked, this, work);
        row->addWidget(button, 0, Qt::AlignTop);
    };
    if (notice.details.size() > shownDetails)
        addButton(m_workspace->text("IDS_BOARD_ALL_MESSAGES"), [this, notice] { showAll(notice); });
    for (const Notice::Answer &answer : notice.answers) {
        addButton(answer.text, [this, bar, answer] {
            close(bar);
            answer.work();
        });
    }
    addButton(m_workspace->text("IDS_BOARD_CLOSE"), [this, bar] { close(bar); });
    return bar;
}

QWidget *Notices::makeTexts(const Notice &notice, QWidget *bar) const
{
    auto *texts = new QWidget(bar);
    auto *column = new QVBoxLayout(texts);
    column->setContentsMargins(0, 2, 0, 0);
    column->setSpacing(smallGap);
    if (!notice.text.isEmpty())
        addLine(column, notice.text);
    QStringList lines = notice.details.mid(0, shownDetails);
    if (notice.details.size() > shownDetails)
        lines.append(m_workspace->text("IDS_BOARD_MORE_PROBLEMS").arg(notice.details.size() - shownDetails));
    if (!lines.isEmpty())
        addLine(column, lines.join(QLatin1Char('\n')))->setToolTip(notice.details.join(QLatin1Char('\n')));
    return texts;
}

void Notices::showAll(const Notice &notice)
{
    auto *dialog = new QDialog(window());
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(m_workspace->text("IDS_BOARD_MESSAGES"));
    auto *column = new QVBoxLayout(dialog);
    addLine(column, notice.text);
    auto *list = new QPlainTextEdit(notice.details.join(QLatin1Char('\n')), dialog);
    list->setReadOnly(true);
    list->setAccessibleName(dialog->windowTitle());
    column->addWidget(list);
    auto *buttons = new QDialogButtonBox(dialog);
    buttons->addButton(m_workspace->text("IDS_BOARD_CLOSE"), QDialogButtonBox::RejectRole);
    connect(buttons, &QDialogButtonBox::rejected, dialog, &QDialog::reject);
    column->addWidget(buttons);
    dialog->resize(messagesSize);
    dialog->open();
}

} // namespace board
