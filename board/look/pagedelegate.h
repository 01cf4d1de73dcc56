#pragma once

#include <QtCore/QSize>
#include <QtWidgets/QStyledItemDelegate>

namespace board {

/// Paints a page's thumbnail (the item's decoration, a QImage) in the room of the view's icon size, with its number
/// below; the current one is framed.
class PageDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Room for the thumbnail with number and margins, logical pixels.
    static QSize itemSize(const QSize &thumbnail);

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace board
