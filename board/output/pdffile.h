#pragma once

#include <QtCore/QBuffer>
#include <QtCore/QRectF>
#include <QtGui/QPainter>

#include <functional>
#include <memory>

class QPdfWriter;

namespace board {

/// A PDF document of pages of any sizes, 96 scene units an inch.
class PdfFile
{
public:
    /// Paints into the rectangle, the page in painter units.
    using Painting = std::function<void(QPainter *painter, const QRectF &page)>;

    explicit PdfFile(const QString &title);
    ~PdfFile();

    /// Appends a page of `size` (scene units).
    void add(const QSizeF &size, const Painting &paint);
    /// The finished document, which takes no further page; empty without pages.
    QByteArray finish();

private:
    QBuffer m_buffer;
    std::unique_ptr<QPdfWriter> m_writer;
    QPainter m_painter;
};

} // namespace board
