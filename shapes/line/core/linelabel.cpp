// The label in the middle of a line.

#include "line/core/line.h"

#include <shapekit/lettercontrol.h>

#include <svgobj/csvgobj.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtGui/QFont>
#include <QtGui/QFontMetricsF>

#include <algorithm>
#include <cmath>

namespace line {

namespace {

using shapekit::PathText;

/// Text is measured at this size and then scaled.
constexpr int layoutPixels = 100;
constexpr int mostCharacters = 2000;
constexpr int mostLines = 50;
/// Between the letters and the line, document units.
constexpr double labelGap = 4;
/// Where a label without letters is written, in font sizes.
constexpr QSizeF emptyLabel(5, 1.5);
/// Pieces of a curve in which its crossing with the label is looked for.
constexpr int curvePieces = 256;

QFontMetricsF metrics()
{
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(layoutPixels);
    return QFontMetricsF(font);
}

QStringList linesOf(const QString &label)
{
    return QStringList(label.left(mostCharacters).split(QLatin1Char('\n')).mid(0, mostLines));
}

/// To twice a whole number, so that the box of the label has exact sides around any place of a line.
double even(double length)
{
    return 2 * std::ceil(length / 2);
}

/// The parts of a straight piece before and behind the box.
void addPiece(PathText &path, QPointF from, QPointF to, const QRectF &gap)
{
    double first = 0;
    double last = 1;
    const auto clip = [&](double start, double way, double low, double high) {
        if (way == 0 && (start < low || start > high))
            last = -1;
        if (way == 0)
            return;
        first = std::max(first, std::min((low - start) / way, (high - start) / way));
        last = std::min(last, std::max((low - start) / way, (high - start) / way));
    };
    clip(from.x(), to.x() - from.x(), gap.left(), gap.right());
    clip(from.y(), to.y() - from.y(), gap.top(), gap.bottom());
    if (gap.isEmpty() || first >= last) {
        path.lineTo(to);
        return;
    }
    if (first > 0)
        path.lineTo(from + (to - from) * first);
    path.moveTo(from + (to - from) * last);
    if (last < 1)
        path.lineTo(to);
}

/// A curve without what lies in the box around its middle.
void addCurve(PathText &path, QPointF start, QPointF control, QPointF end, const QRectF &gap)
{
    const auto at = [&](double part) {
        const double rest = 1 - part;
        return start * (rest * rest) + control * (2 * rest * part) + end * (part * part);
    };
    int first = curvePieces / 2;
    int last = first;
    while (first > 0 && gap.contains(at(double(first) / curvePieces)))
        --first;
    while (last < curvePieces && gap.contains(at(double(last) / curvePieces)))
        ++last;
    if (gap.isEmpty() || first == last) {
        path.curveTo(control, end);
        return;
    }
    const double before = double(first) / curvePieces;
    const double behind = double(last) / curvePieces;
    if (first > 0)
        path.curveTo(start + (control - start) * before, at(before));
    path.moveTo(at(behind));
    if (last < curvePieces)
        path.curveTo(control + (end - control) * behind, end);
}

} // namespace

void Line::measureLabel()
{
    const QString label = m_label;
    m_labelExtent = {};
    if (label.trimmed().isEmpty())
        return;
    const QFontMetricsF font = metrics();
    const double scale = m_labelSize / layoutPixels;
    const QStringList lines = linesOf(label);
    double width = 0;
    for (const QString &line : lines)
        width = std::max(width, font.horizontalAdvance(line) * scale);
    m_labelExtent = {even(width + 2 * labelGap), even(lines.size() * font.height() * scale)};
}

QRectF Line::labelBox() const
{
    const QSizeF size = hasLabel() ? m_labelExtent : emptyLabel * double(m_labelSize);
    return {m_course.middle() - QPointF(size.width(), size.height()) / 2, size};
}

QVector<shapekit::LabelPlace> Line::labelPlaces()
{
    shapekit::LabelPlace place;
    place.propertyId = m_label.id();
    place.text = m_label;
    place.box = labelBox();
    place.fontSize = m_labelSize;
    place.color = getPenColor();
    place.alignment = Qt::AlignCenter;
    return {place};
}

bool Line::hideLabel(int propertyId)
{
    m_isLabelHidden = propertyId == m_label.id();
    ShapeOfType::updateSVG(false);
    invalidate();
    return true;
}

bool Line::GetSettingArray(QJsonArray &settings)
{
    m_label.setPanels(true, false);
    m_labelSize.setPanels(true, false);
    ShapeOfType::GetSettingArray(settings);
    settings.append(shapekit::letterControl(m_label.control(*owner), shapekit::LetterPart::Text));
    settings.append(shapekit::letterControl(m_labelSize.control(*owner), shapekit::LetterPart::Size));
    return true;
}

/// From one end to the other, with a gap for the label.
void Line::addWay(PathText &path, QPointF start, QPointF end)
{
    const QRectF gap = hasLabel() ? labelBox() : QRectF();
    path.moveTo(start);
    if (!m_course.isAngled && !m_course.isStraight()) {
        addCurve(path, start, m_course.controlPoint(), end, gap);
        return;
    }
    QVector<QPointF> way = m_course.isAngled ? m_course.corners() : QVector<QPointF>{start, end};
    if (way.size() < 2)
        way = {start, end};
    way.first() = start;
    way.last() = end;
    for (int i = 1; i < way.size(); ++i)
        addPiece(path, way.at(i - 1), way.at(i), gap);
}

void Line::drawLabel()
{
    const QRectF box = hasLabel() ? labelBox() : QRectF();
    const QFontMetricsF font = metrics();
    const double scale = m_labelSize / layoutPixels;
    PathText letters;
    const QStringList lines = hasLabel() && !m_isLabelHidden ? linesOf(m_label) : QStringList();
    double baseline = box.center().y() + (font.ascent() - lines.size() * font.height() / 2) * scale;
    for (const QString &line : lines) {
        letters.line({box.center().x(), baseline}, line, m_labelSize, 0.5);
        baseline += font.height() * scale;
    }
    setPath("label", letters);
    set("area", "x", box.x());
    set("area", "y", box.y());
    set("area", "width", box.width());
    set("area", "height", box.height());
}

} // namespace line
