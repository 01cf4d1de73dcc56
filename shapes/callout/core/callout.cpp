#include "callout/core/callout.h"

#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgobj.h>

#include <framework/idocument.h>
#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDataStream>

#include <algorithm>
#include <cmath>

namespace callout {

namespace {

using shapekit::PathText;
using shapekit::Text;

const Text frameText("Frame of the balloon", "Rahmen der Sprechblase");

/// Below the balloon, for the tail of a new one.
constexpr double tailHeight = 30;
constexpr double cornerRadius = 10;
/// The root of the tail, from the left of the balloon; at the other sides it lies in the middle.
constexpr double rootStart = 28;
constexpr double rootEnd = 48;
/// Around the tip, so that the control point is inside of the box.
constexpr double tipReach = 4;
/// From the balloon's frame, document units.
constexpr double farthest = 5000;
constexpr QSizeF smallestBalloon(72, 60);
/// The data of state().
constexpr int stateAction = 1192;
constexpr double labelSize = 20;
/// A long text gets smaller, down to this.
constexpr double smallestLabel = 8;
const QColor labelColor(0x1f, 0x26, 0x30);

shapekit::LabelLook newLabel()
{
    shapekit::LabelLook look;
    look.size = labelSize;
    look.smallest = smallestLabel;
    return look;
}

enum class Side { None, Top, Right, Bottom, Left };

/// The side that faces the tip; none for a tip inside.
Side sideOfTail(const QRectF &box, QPointF tip)
{
    const QPointF way = tip - box.center();
    const double gapX = std::abs(way.x()) - box.width() / 2;
    const double gapY = std::abs(way.y()) - box.height() / 2;
    if (gapX <= 0 && gapY <= 0)
        return Side::None;
    if (gapX > gapY)
        return way.x() < 0 ? Side::Left : Side::Right;
    return way.y() < 0 ? Side::Top : Side::Bottom;
}

/// The end of the root that comes first on the way round, clockwise, or else the other one.
QPointF rootOf(Side side, const QRectF &box, bool isFirst)
{
    const bool isAfter = (side == Side::Top || side == Side::Right) != isFirst;
    if (side == Side::Top)
        return box.topLeft() + QPointF(isAfter ? rootEnd : rootStart, 0);
    const double half = std::min(rootEnd - rootStart, box.height() - 2 * cornerRadius) / 2;
    const double y = box.center().y() + (isAfter ? half : -half);
    return {side == Side::Right ? box.right() : box.left(), y};
}

/// In whole numbers, so that the box comes back exactly when the tip does.
QMarginsF roomOutside(const QSizeF &frame, QPointF tip)
{
    const auto room = [](double distance) { return std::ceil(std::max(0.0, distance + tipReach)); };
    return {room(-tip.x()), room(-tip.y()), room(tip.x() - frame.width()), room(tip.y() - frame.height())};
}

/// The balloon with a tail at the top, the right or the left, or without one.
PathText balloon(const QRectF &box, Side side, QPointF tip)
{
    PathText path;
    const auto tailAt = [&](Side present) {
        if (present == side)
            path.lineTo(rootOf(side, box, true)).lineTo(tip).lineTo(rootOf(side, box, false));
    };
    const QPointF across(cornerRadius, 0);
    const QPointF down(0, cornerRadius);
    path.moveTo(box.topLeft() + across);
    tailAt(Side::Top);
    path.lineTo(box.topRight() - across).arcTo(cornerRadius, box.topRight() + down);
    tailAt(Side::Right);
    path.lineTo(box.bottomRight() - down).arcTo(cornerRadius, box.bottomRight() - across);
    path.lineTo(box.bottomLeft() + across).arcTo(cornerRadius, box.bottomLeft() - down);
    tailAt(Side::Left);
    path.lineTo(box.topLeft() + down).arcTo(cornerRadius, box.topLeft() + across);
    return path.close();
}

} // namespace

Callout::Callout(CSVGObj *owner)
    : ShapeOfType(owner)
    , m_savedFrame(this, frameText)
    , m_label(this, shapekit::usualLabelTexts(), newLabel(), labelColor)
{
    m_savedFrame.setPanels(false, false);
}

QSizeF Callout::balloonFrame() const
{
    return m_frame.isEmpty() ? size() : m_frame;
}

QRectF Callout::fittingBox() const
{
    const QSizeF frame = balloonFrame();
    return QRectF(QPointF(0, 0), frame).marginsAdded(roomOutside(m_tip.size, m_tip.centre));
}

void Callout::keepFrame(const QSizeF &size)
{
    m_frame = size;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!roomOutside(m_tip.size, m_tip.centre).isNull())
        out << size;
    m_savedFrame = bytes;
}

void Callout::propertyChanged(const shapekit::Property *property)
{
    if (!property || property == &m_savedFrame)
        takeFrame();
    ShapeOfType::propertyChanged(property);
}

void Callout::takeFrame()
{
    QDataStream in(m_savedFrame);
    QSizeF frame;
    in >> frame;
    const bool isFrame = in.status() == QDataStream::Ok && frame.width() > 0 && frame.height() > 0 &&
                         frame.width() <= width() && frame.height() <= height();
    m_frame = isFrame ? frame : QSizeF();
    // It was put where the data have it, for the size that they have.
    if (pointCount() > 0)
        m_tip = {point(1), balloonFrame()};
}

void Callout::setSize(QSizeF, QSizeF newSize)
{
    if (!document || newSize.isEmpty())
        return;
    const QMarginsF room = roomOutside(m_tip.size, m_tip.centre);
    const QSizeF frame = newSize - QSizeF(room.left() + room.right(), room.top() + room.bottom());
    // Damaged data may have any size.
    keepFrame(frame.expandedTo(smallestBalloon / 2));
    // Moved from 0, since files tell 0 from -0.
    document->setViewBox(QRectF(QPointF(0, 0), newSize).translated(-room.left(), -room.top()));
    ShapeOfType::propertyChanged(nullptr);
}

/// The last step of a creating drag may differ from the previous one.
void Callout::notifyObjectCreated()
{
    const QSizeF present = owner->getClientRect().size();
    if (!document || document->viewBox().size() == present)
        return;
    setSize(size(), present);
    invalidate();
}

bool Callout::updateSVG(QZeSvgNode *node, QPointF delta, bool refresh)
{
    const QRectF before = fittingBox();
    if (!isBeingLoaded)
        m_frame = balloonFrame();
    const bool isPoint = ShapeOfType::updateSVG(node, delta, false);
    if (isPoint && !isBeingLoaded) {
        keepFrame(m_frame);
        growBox(before, fittingBox());
    }
    if (refresh)
        invalidate();
    return isPoint;
}

bool Callout::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const bool isPressed = ShapeOfType::mousePressEvent(event);
    m_beforeDrag = state();
    return isPressed;
}

/// The library makes its own undo step for an active point only.
bool Callout::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    const bool isBlocked = belongDoc && belongDoc->editingBlocked() != 0;
    if (isBlocked || !activeControlPoint)
        return ShapeOfType::mouseReleaseEvent(event);
    activeControlPoint = nullptr;
    ShapeOfType::mouseReleaseEvent(event);
    const QByteArray after = state();
    auto *command = new CSVGBaseUndoCmd(this, stateAction, nullptr, true);
    command->setDataBuffer(m_beforeDrag, after);
    addUndoRedo(command);
    RecordDataBuffer(after, stateAction);
    updateOutlineRegion();
    return true;
}

bool Callout::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    return actionId == stateAction ? takeState(in) : ShapeOfType::DoPlaybackActionEx(actionId, in);
}

QByteArray Callout::state() const
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (document)
        out << document->viewBox() << owner->getClientRect().size() << balloonFrame() << m_tip.centre << m_tip.size
            << owner->getPos();
    return bytes;
}

bool Callout::takeState(QDataStream &in)
{
    QRectF box;
    QSizeF size;
    QSizeF frame;
    shapekit::Place tip;
    QPointF pos;
    in >> box >> size >> frame >> tip.centre >> tip.size >> pos;
    if (in.status() != QDataStream::Ok || !document || box.isEmpty() || size.isEmpty() || frame.isEmpty())
        return false;
    m_tip = tip;
    keepFrame(frame);
    document->setViewBox(box);
    owner->setSize2(size, false);
    owner->setPos(pos, false);
    ShapeOfType::propertyChanged(nullptr);
    updateOutlineRegion();
    invalidate();
    return true;
}

QSizeF Callout::smallestSize() const
{
    const QMarginsF room = roomOutside(m_tip.size, m_tip.centre);
    return smallestBalloon + QSizeF(room.left() + room.right(), room.top() + room.bottom());
}

QRectF Callout::range(int number)
{
    const QRectF all(QPointF(0, 0), balloonFrame());
    // Damaged data may count further points.
    return number == 1 ? all.adjusted(-farthest, -farthest, farthest, farthest) : QRectF();
}

/// A tip outside keeps its distance from the frame, one inside stays inside.
QPointF Callout::wantedPoint(int number)
{
    const QSizeF frame = balloonFrame();
    if (number != 1)
        return {};
    if (frame == m_tip.size)
        return m_tip.centre;
    const QSizeF growth = frame - m_tip.size;
    const QPointF put = m_tip.centre;
    const double right = m_tip.size.width() - tipReach;
    const double x = put.x() > right ? put.x() + growth.width() : std::min(put.x(), frame.width() - tipReach);
    const double y = put.y() < tipReach ? put.y() : std::max(put.y() + growth.height(), tipReach);
    return {x, y};
}

void Callout::pointMoved(int number, QPointF centre)
{
    if (number == 1)
        m_tip = {centre, balloonFrame()};
}

/// The middles of the sides of the frame, whatever the tail is.
QVector<shapekit::Connection> Callout::connections()
{
    const QRectF frame(QPointF(0, 0), balloonFrame());
    return {{QStringLiteral("left"), {frame.left(), frame.center().y()}, 180},
            {QStringLiteral("top"), {frame.center().x(), frame.top()}, 270},
            {QStringLiteral("right"), {frame.right(), frame.center().y()}, 0},
            {QStringLiteral("bottom"), {frame.center().x(), frame.bottom()}, 90}};
}

QString Callout::pathWithTailBelow(const QRectF &box)
{
    const QPointF tip = point(1) - box.bottomLeft() - QPointF(rootEnd, 0);
    // The pieces "h" and "v" grow; the first piece of the tail starts 48 from the left, the second ends at 28.
    QString path =
        QStringLiteral("M10,0h120a10,10 0 0 1 10,10v60a10,10 0 0 1-10,10h-82l%1l%2l-18,0"
                       "a10,10 0 0 1-10-10v-60a10,10 0 0 1 10-10z")
            .arg(numbersToString({tip.x(), tip.y()}), numbersToString({rootStart - rootEnd - tip.x(), -tip.y()}));
    path = changePathWidth(path, box.width() - 140, 0);
    path = changePathHeight(path, box.height() - 80, 0);
    return changePathBeginPoint(path, box.left(), box.top());
}

QRectF Callout::balloonBox()
{
    const double inset = frame().left();
    return QRectF(QPointF(0, 0), balloonFrame()).adjusted(inset, inset, -inset, -inset - tailHeight);
}

void Callout::draw()
{
    const QRectF box = balloonBox();
    const Side side = sideOfTail(box, point(1));
    if (side == Side::Bottom)
        set("figure", "d", pathWithTailBelow(box));
    else
        setPath("figure", balloon(box, side, point(1)));
    drawLabel();
}

} // namespace callout
