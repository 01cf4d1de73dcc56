#pragma once

#include <QtCore/QObject>

namespace board {

/// Text fields keep the keys of undo and redo to themselves, even when there is nothing in them to take back: then
/// the keys go to the board's history, as everywhere else in the window.
class FieldUndo : public QObject
{
public:
    explicit FieldUndo(QObject *parent);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};

} // namespace board
