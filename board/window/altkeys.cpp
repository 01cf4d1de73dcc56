#include "window/altkeys.h"

#include "core/mnemonics.h"

#include <QtCore/QEvent>
#include <QtWidgets/QAbstractButton>
#include <QtWidgets/QApplication>
#include <QtWidgets/QColorDialog>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMenu>

namespace board {

namespace {

/// They have marks of their own, and change them.
bool isOfQt(const QDialog *dialog)
{
    return qobject_cast<const QFileDialog *>(dialog) || qobject_cast<const QColorDialog *>(dialog) ||
           dialog->inherits("QAbstractPrintDialog");
}

/// Labels stand for their buddies.
bool takesMark(const QWidget *widget)
{
    const auto *label = qobject_cast<const QLabel *>(widget);
    return (label && label->buddy()) || qobject_cast<const QAbstractButton *>(widget);
}

} // namespace

AltKeys::AltKeys(QObject *parent)
    : QObject(parent)
{
    qApp->installEventFilter(this);
}

bool AltKeys::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Show && event->type() != QEvent::Hide)
        return false;
    const bool isShown = event->type() == QEvent::Show;
    if (auto *menu = qobject_cast<QMenu *>(watched))
        isShown ? mark(menu) : unmark(menu);
    else if (auto *dialog = qobject_cast<QDialog *>(watched); dialog && isShown && !isOfQt(dialog))
        mark(dialog);
    return false;
}

void AltKeys::mark(QMenu *menu)
{
    unmark(menu);
    QVector<QAction *> entries;
    QStringList texts;
    const QList<QAction *> actions = menu->actions();
    for (QAction *action : actions) {
        if (!action->isVisible() || action->isSeparator() || action->text().isEmpty())
            continue;
        entries.append(action);
        texts.append(action->text());
    }
    const QStringList marked = withMnemonics(texts);
    QVector<MarkedEntry> &changed = m_marked[menu];
    for (int index = 0; index < entries.size(); ++index) {
        changed.append({entries.at(index), texts.at(index), marked.at(index)});
        entries.at(index)->setText(marked.at(index));
    }
}

/// An entry that has got another name meanwhile keeps it.
void AltKeys::unmark(QMenu *menu)
{
    const QVector<MarkedEntry> changed = m_marked.take(menu);
    for (const MarkedEntry &entry : changed)
        if (entry.action && entry.action->text() == entry.marked)
            entry.action->setText(entry.before);
}

void AltKeys::mark(QDialog *dialog) const
{
    QVector<QWidget *> controls;
    QStringList texts;
    const QList<QWidget *> widgets = dialog->findChildren<QWidget *>();
    for (QWidget *widget : widgets) {
        const QString text = widget->property("text").toString();
        if (widget->isHidden() || !takesMark(widget) || text.isEmpty())
            continue;
        controls.append(widget);
        texts.append(text);
    }
    const QStringList marked = withMnemonics(texts);
    for (int index = 0; index < controls.size(); ++index)
        controls.at(index)->setProperty("text", marked.at(index));
}

} // namespace board
