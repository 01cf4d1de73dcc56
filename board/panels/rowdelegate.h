#pragma once

#include "look/sizes.h"

#include <QtWidgets/QStyledItemDelegate>

namespace board {

/// Rows of words that can be hit, by mouse or by finger.
class RowDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override
    {
        return {QStyledItemDelegate::sizeHint(option, index).width(), sizes().listRow};
    }
};

} // namespace board
