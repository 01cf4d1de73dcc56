#pragma once

#include <QtCore/QRectF>
#include <QtCore/QVector>
#include <QtGui/QPainter>

#include <functional>
#include <memory>

class QPrinter;

namespace board {

/// Something that is printed into one place of a sheet.
struct Printable
{
    QSizeF size; ///< scene units; its aspect ratio is kept
    std::function<void(QPainter *painter, const QRectF &target)> paint;
};

/// Prints sheet by sheet, with the copies and the order that the printer was set to.
class SheetPrinter
{
public:
    SheetPrinter(const QVector<Printable> &content, int perSheet, const std::shared_ptr<QPrinter> &printer);
    ~SheetPrinter();

    int sheetCount() const { return m_order.size(); }
    void print(int index);
    /// Nothing more is printed; aborted, files are removed. False when the printer failed or is aborted.
    bool finish(bool abort);

private:
    void paintSheet(int sheet);

    QVector<Printable> m_content;
    int m_perSheet;
    std::shared_ptr<QPrinter> m_printer;
    QVector<int> m_order; ///< sheets as they leave the printer, copies included
    QPainter m_painter;
};

} // namespace board
