#include "output/sheets.h"

namespace board {

namespace {

struct Grid
{
    int columns = 1;
    int rows = 1;
};

QSizeF cellSize(const QSizeF &sheet, const Grid &grid, double gap)
{
    return {(sheet.width() - gap * (grid.columns - 1)) / grid.columns,
            (sheet.height() - gap * (grid.rows - 1)) / grid.rows};
}

QSizeF fitted(const QSizeF &page, const QSizeF &cell)
{
    return cell.isEmpty() || page.isEmpty() ? QSizeF() : page.scaled(cell, Qt::KeepAspectRatio);
}

Grid bestGrid(const QSizeF &sheet, int count, const QSizeF &page, double gap)
{
    Grid best{count, 1};
    double largest = -1;
    for (int columns = 1; columns <= count; ++columns) {
        const Grid grid{columns, count / columns};
        const double width = count % columns == 0 ? fitted(page, cellSize(sheet, grid, gap)).width() : -1;
        if (width > largest) {
            best = grid;
            largest = width;
        }
    }
    return best;
}

} // namespace

QVector<int> sheetCounts()
{
    return {1, 2, 4, 6, 9, 16};
}

QVector<QRectF> sheetPlaces(const QRectF &sheet, int count, const QSizeF &page, double gap)
{
    const Grid grid = bestGrid(sheet.size(), count, page, gap);
    const QSizeF cell = cellSize(sheet.size(), grid, gap);
    const QSizeF size = fitted(page, cell);
    if (size.isEmpty())
        return {};
    QVector<QRectF> places;
    for (int i = 0; i < count; ++i) {
        const QPointF corner(i % grid.columns * (cell.width() + gap), i / grid.columns * (cell.height() + gap));
        const QSizeF room = (cell - size) / 2;
        places.append({sheet.topLeft() + corner + QPointF(room.width(), room.height()), size});
    }
    return places;
}

} // namespace board
