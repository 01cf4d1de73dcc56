#include "exporting/sheetprinter.h"

#include "output/sheets.h"

#include <QtCore/QFile>
#include <QtPrintSupport/QPrinter>

#include <algorithm>

namespace board {

namespace {

constexpr double gapInInches = 0.15;

/// Printers that make copies themselves are sent each sheet once.
QVector<int> orderOf(int sheets, const QPrinter &printer)
{
    QVector<int> once;
    for (int i = 0; i < sheets; ++i)
        once.append(i);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(once.begin(), once.end());
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    QVector<int> order;
    if (printer.collateCopies())
        for (int copy = 0; copy < copies; ++copy)
            order += once;
    else
        for (const int sheet : qAsConst(once))
            order += QVector<int>(copies, sheet);
    return order;
}

} // namespace

SheetPrinter::SheetPrinter(const QVector<Printable> &content, int perSheet,
                           const std::shared_ptr<QPrinter> &printer)
    : m_content(content)
    , m_perSheet(perSheet)
    , m_printer(printer)
    , m_order(orderOf((content.size() + perSheet - 1) / perSheet, *printer))
{
}

// The painter ends before its printer.
SheetPrinter::~SheetPrinter()
{
    finish(false);
}

void SheetPrinter::print(int index)
{
    const bool isReady = m_painter.isActive() ? m_printer->newPage() : m_painter.begin(m_printer.get());
    if (isReady)
        paintSheet(m_order[index]);
}

void SheetPrinter::paintSheet(int sheet)
{
    const QRectF paper(QPointF(), m_printer->pageLayout().paintRectPixels(m_printer->resolution()).size());
    const QVector<Printable> shown = m_content.mid(sheet * m_perSheet, m_perSheet);
    const QVector<QRectF> places =
        sheetPlaces(paper, m_perSheet, shown.first().size, gapInInches * m_printer->resolution());
    for (int i = 0; i < qMin(shown.size(), places.size()); ++i) {
        const QSizeF size = shown[i].size.scaled(places[i].size(), Qt::KeepAspectRatio);
        const QPointF corner = places[i].center() - QPointF(size.width(), size.height()) / 2;
        shown[i].paint(&m_painter, QRectF(corner, size));
    }
}

bool SheetPrinter::finish(bool abort)
{
    if (!m_painter.isActive())
        return false;
    if (abort)
        m_printer->abort();
    m_painter.end();
    // Printing into a file can't be aborted.
    if (abort && !m_printer->outputFileName().isEmpty())
        QFile::remove(m_printer->outputFileName());
    return !abort && m_printer->printerState() != QPrinter::Error;
}

} // namespace board
