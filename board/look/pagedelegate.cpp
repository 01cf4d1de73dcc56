#include "look/pagedelegate.h"

#include "look/theme.h"

#include <QtGui/QPainter>

namespace board {

namespace {

constexpr int margin = 4;
constexpr int numberHeight = 18;
constexpr double frameRadius = 3;
constexpr double currentFrameWidth = 2;

/// The thumbnail in the middle of its room.
QRectF placeOf(const QImage &picture, const QRectF &room)
{
    const QSizeF size = QSizeF(picture.size()).scaled(room.size(), Qt::KeepAspectRatio);
    QRectF place(QPointF(0, 0), size);
    place.moveCenter(room.center());
    return place;
}

} // namespace

QSize PageDelegate::itemSize(const QSize &thumbnail)
{
    return thumbnail + QSize(2 * margin, 2 * margin + numberHeight);
}

QSize PageDelegate::sizeHint(const QStyleOptionViewItem &option, const QModelIndex &) const
{
    return itemSize(option.decorationSize);
}

void PageDelegate::paint(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index) const
{
    const QRectF room(QPointF(option.rect.topLeft()) + QPointF(margin, margin), QSizeF(option.decorationSize));
    const QImage picture = index.data(Qt::DecorationRole).value<QImage>();
    const QRectF place = picture.isNull() ? room : placeOf(picture, room);
    const bool current = option.state & QStyle::State_Selected;
    const ThemeColors colors = themeColors(option.widget);
    painter->save();
    painter->setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter->fillRect(place, Qt::white);
    painter->drawImage(place, picture);
    const QColor edge = current ? colors.accent : colors.control;
    const double width = current ? currentFrameWidth : 1;
    painter->setPen(QPen(edge, width));
    painter->setBrush(Qt::NoBrush);
    painter->drawRoundedRect(place.adjusted(-width / 2, -width / 2, width / 2, width / 2), frameRadius,
                             frameRadius);
    painter->setPen(current ? colors.accent : colors.faint);
    const QRectF line(option.rect.left(), room.bottom() + 3, option.rect.width(), numberHeight);
    painter->drawText(line, Qt::AlignCenter, index.data(Qt::DisplayRole).toString());
    painter->restore();
}

} // namespace board
