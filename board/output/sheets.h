#pragma once

#include <QtCore/QRectF>
#include <QtCore/QVector>

namespace board {

/// Numbers of pages that fit on one sheet evenly.
QVector<int> sheetCounts();
/// Places of `count` pages of `page` size (any unit) on a sheet of paper, in reading order, in the unit of `sheet`.
/// The cells are as many columns and rows as let a page become largest, `gap` apart; each page is as large as its
/// aspect ratio allows and centred in its cell. Empty when nothing fits between the gaps.
QVector<QRectF> sheetPlaces(const QRectF &sheet, int count, const QSizeF &page, double gap);

} // namespace board
