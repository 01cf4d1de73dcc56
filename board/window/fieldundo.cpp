#include "window/fieldundo.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QApplication>
#include <QtWidgets/QLineEdit>

namespace board {

namespace {

/// The field that `watched` is or has in it; null for none.
const QLineEdit *fieldOf(const QObject *watched)
{
    if (const auto *box = qobject_cast<const QAbstractSpinBox *>(watched))
        return box->findChild<QLineEdit *>();
    return qobject_cast<const QLineEdit *>(watched);
}

bool hasUseFor(const QLineEdit &field, const QKeyEvent &event)
{
    if (event.matches(QKeySequence::Undo))
        return field.isUndoAvailable();
    return !event.matches(QKeySequence::Redo) || field.isRedoAvailable();
}

} // namespace

FieldUndo::FieldUndo(QObject *parent)
    : QObject(parent)
{
    QApplication::instance()->installEventFilter(this);
}

bool FieldUndo::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::ShortcutOverride)
        return false;
    const QLineEdit *field = fieldOf(watched);
    if (!field || hasUseFor(*field, *static_cast<QKeyEvent *>(event)))
        return false;
    event->ignore();
    return true;
}

} // namespace board
