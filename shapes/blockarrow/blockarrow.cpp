#include <blockarrow/blockarrow.h>

#include <kit/pathtext.h>
#include <kit/templatetext.h>

#include <svgbase/qzesvgnode.h>

#include <algorithm>

namespace {

// Document units.
constexpr double shortestHead = 8;
/// Between the notch and the head; less would put one control point upon the other.
constexpr double shortestShaft = 20;
constexpr double thinnestHalf = 6;
/// From the corner of shaft and head down to its control point, which is thus always inside.
constexpr double headHandleDrop = 6;
/// From the notch to its control point.
constexpr double notchHandleShift = 8;
constexpr QSizeF smallestSize(32, 24);

} // namespace

QString BlockArrow::getSVG()
{
    return shapekit::templateText(QStringLiteral(":/gliololok/blockarrow/template.svg"));
}

QSizeF BlockArrow::getMinimizeSize()
{
    return smallestSize;
}

QPointF BlockArrow::controlPointCentre(int index)
{
    if (index == Head)
        return {headStart(), middle() - shaftHalf() + headHandleDrop};
    return {notchDepth() + notchHandleShift, middle()};
}

void BlockArrow::takeControlPoint(int index, QPointF centre)
{
    if (index == Head) {
        m_head = (size().width() - centre.x()) / shorterSide();
        m_shaft = (middle() + headHandleDrop - centre.y()) / size().height();
        return;
    }
    m_notch = (centre.x() - notchHandleShift) / shorterSide();
}

QRectF BlockArrow::controlPointRange(int index)
{
    if (index == Head)
        return QRectF(QPointF(notchDepth() + shortestShaft, headHandleDrop),
                      QPointF(size().width() - shortestHead, middle() - thinnestHalf + headHandleDrop));
    return QRectF(QPointF(notchHandleShift, middle()),
                  QPointF(headStart() - shortestShaft + notchHandleShift, middle()));
}

void BlockArrow::writeFigure()
{
    const double left = inset();
    const double top = inset();
    const double right = size().width() - inset();
    const double bottom = size().height() - inset();
    const double half = std::min(shaftHalf(), middle() - inset());
    shapekit::PathText path;
    path.moveTo({left, middle() - half})
        .lineTo({headStart(), middle() - half})
        .lineTo({headStart(), top})
        .lineTo({right, middle()})
        .lineTo({headStart(), bottom})
        .lineTo({headStart(), middle() + half})
        .lineTo({left, middle() + half})
        .lineTo({std::max(left, notchDepth()), middle()})
        .close();
    figure()->setAttribute(QStringLiteral("d"), path.text());
}

double BlockArrow::notchDepth() const
{
    const double room = size().width() - shortestShaft - shortestHead;
    return std::clamp(m_notch * shorterSide(), 0.0, std::max(0.0, room));
}

double BlockArrow::headLength() const
{
    const double room = size().width() - notchDepth() - shortestShaft;
    return std::clamp(m_head * shorterSide(), shortestHead, std::max(shortestHead, room));
}

double BlockArrow::headStart() const
{
    return size().width() - headLength();
}

double BlockArrow::shaftHalf() const
{
    return std::clamp(m_shaft * size().height(), thinnestHalf, std::max(thinnestHalf, middle()));
}

double BlockArrow::middle() const
{
    return size().height() / 2;
}
