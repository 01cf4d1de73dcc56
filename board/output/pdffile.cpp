#include "output/pdffile.h"

#include <QtCore/QtMath>
#include <QtGui/QPageLayout>
#include <QtGui/QPageSize>
#include <QtGui/QPdfWriter>

namespace board {

namespace {

constexpr double unitsPerInch = 96;
constexpr double pointsPerUnit = 72 / unitsPerInch;
/// Pixels per inch of what has to become a picture, such as layers with an opacity of their own. Outlines don't
/// depend on it.
constexpr int resolution = 300;

/// Pages are whole points wide and high: what is larger by a part of a point becomes the next size, not distorted.
QPageLayout layoutOf(const QSizeF &size)
{
    const QSize points(qCeil(size.width() * pointsPerUnit), qCeil(size.height() * pointsPerUnit));
    const QPageSize page(points, QString(), QPageSize::ExactMatch);
    return {page, QPageLayout::Portrait, QMarginsF(), QPageLayout::Point};
}

} // namespace

PdfFile::PdfFile(const QString &title)
    : m_writer(std::make_unique<QPdfWriter>(&m_buffer))
{
    m_buffer.open(QIODevice::WriteOnly);
    m_writer->setTitle(title);
    m_writer->setCreator(QStringLiteral("gliololok-board"));
    m_writer->setResolution(resolution);
}

PdfFile::~PdfFile() = default;

void PdfFile::add(const QSizeF &size, const Painting &paint)
{
    m_writer->setPageLayout(layoutOf(size));
    if (m_painter.isActive())
        m_writer->newPage();
    else
        m_painter.begin(m_writer.get());
    paint(&m_painter, QRectF(QPointF(), size * (resolution / unitsPerInch)));
}

QByteArray PdfFile::finish()
{
    m_painter.end();
    return m_buffer.data();
}

} // namespace board
