#pragma once

#include <QtCore/QSize>
#include <QtWidgets/QStyledItemDelegate>

namespace board {

/// Paints a page's thumbnail (the item's decoration, a QImage) with its number below; the current one is framed.
class PageDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    using QStyledItemDelegate::QStyledItemDelegate;

    /// Room for the thumbnail, logical pixels.
    static QSize thumbnailSize();
    /// With number and margins.
    static QSize itemSize();

    void paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;
};

} // namespace board
