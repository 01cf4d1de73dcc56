#include <shapekit/shape.h>

#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QScopedValueRollback>
#include <QtCore/QtMath>
#include <QtGui/QPainterPath>
#include <QtGui/QTransform>

#include <algorithm>
#include <cmath>

namespace shapekit {

namespace {

/// Smallest side of a redrawn object, item units; control points need that much room.
constexpr double smallestRedrawnSide = 24;
constexpr double smallestStretchedSide = 16;
/// The pen takes at most this share of the shorter side.
constexpr double largestInsetShare = 0.25;
/// No page is larger; shapes with a longer side aren't drawn.
constexpr double largestSide = 1e6;
/// Where no control point stands, document units.
constexpr double awayFromAll = 2 * largestSide;
constexpr quint32 controlPointCapacity = 32;
/// Places are whole multiples of 1 / this, document units. Files, undo steps and recorded actions hold corners of
/// control points; rounding restores the exact centre from a corner despite rounding errors.
constexpr double placesPerUnit = 1 << 20;
/// A point this close to its settled place stays; otherwise it would creep with every load.
constexpr double settledEpsilon = 4 / placesPerUnit;
/// Document units; far smaller than the distance of two places, far larger than the rounding error of a corner.
constexpr double roundingEpsilon = 1e-9;
/// Half the side of a control point in a template, whose limits are those of the corner.
constexpr double templateHalf = 4;
/// Points that limit each other settle within this many rounds.
constexpr int settlingRounds = 2;
constexpr int numberDigits = 10;

bool isSide(double length)
{
    return length > 0 && length < largestSide;
}

bool isNear(QPointF a, QPointF b, double distance)
{
    return qAbs(a.x() - b.x()) < distance && qAbs(a.y() - b.y()) < distance;
}

/// To the last bit: the operators of QPointF forgive small differences.
bool isSame(QPointF a, QPointF b)
{
    return a.x() == b.x() && a.y() == b.y();
}

QPointF rounded(QPointF point)
{
    return {std::round(point.x() * placesPerUnit) / placesPerUnit,
            std::round(point.y() * placesPerUnit) / placesPerUnit};
}

/// The nearest place in a range; the end of an inverted range wins.
double within(double value, double low, double high)
{
    return std::min(std::max(value, low), high);
}

void moveCorner(QZeSvgNode &point, QPointF corner)
{
    point.setNumericAttribute(QStringLiteral("x"), corner.x());
    point.setNumericAttribute(QStringLiteral("y"), corner.y());
}

QTransform scaledAbout(QPointF centre, double factor)
{
    QTransform transform = QTransform::fromTranslate(centre.x(), centre.y());
    transform.scale(factor, factor);
    transform.translate(-centre.x(), -centre.y());
    return transform;
}

QString numberText(double value)
{
    return QString::number(value, 'g', numberDigits);
}

} // namespace

Shape::Shape(CSVGObj *owner, int type, Sizing sizing)
    : PropertiedShape(owner, type)
    , m_redrawn(sizing == Redrawn)
{
    keepAspectRatio = sizing == Stretched;
    resizeRewritesSVG = m_redrawn;
    rawControlPoints = m_redrawn;
}

bool Shape::loadSVG(bool initGlobals)
{
    m_following.clear();
    const bool loaded = PropertiedShape::loadSVG(initGlobals);
    if (loaded) {
        takeMovedControlPoints();
        placeControlPoints();
        redraw(false);
    }
    return loaded;
}

bool Shape::load(QDataStream &in)
{
    const QScopedValueRollback<bool> loading(isBeingLoaded, true);
    const QVector<QPointF> corners = moveControlPointsAway();
    const bool loaded = PropertiedShape::load(in);
    bringControlPointsBack(corners);
    finishLoading();
    return loaded;
}

bool Shape::loadJson(QJsonObject &object)
{
    const QScopedValueRollback<bool> loading(isBeingLoaded, true);
    const QVector<QPointF> corners = moveControlPointsAway();
    const bool loaded = PropertiedShape::loadJson(object);
    bringControlPointsBack(corners);
    finishLoading();
    return loaded;
}

/// Lets every control point come from far away to the place that data have for it: the library leaves a point where
/// it is that would move by less than a drag can tell, and what is saved next would not be what was opened. Raw
/// points are written as they are read. Gives the corners of before.
QVector<QPointF> Shape::moveControlPointsAway()
{
    QVector<QPointF> corners;
    for (int i = 0; !rawControlPoints && i < pointCount(); ++i) {
        corners.append(controlPoints[i] ? controlPoints[i]->boundingRect().topLeft() : QPointF());
        if (controlPoints[i])
            moveCorner(*controlPoints[i], {awayFromAll, awayFromAll});
    }
    return corners;
}

/// Puts points that the data have no place for back to where they stood.
void Shape::bringControlPointsBack(const QVector<QPointF> &corners)
{
    for (int i = 0; i < corners.size(); ++i) {
        QZeSvgNode *node = controlPoints[i];
        if (node && node->boundingRect().topLeft() == QPointF(awayFromAll, awayFromAll))
            moveCorner(*node, corners.at(i));
    }
}

void Shape::finishLoading()
{
    isBeingLoaded = false;
    if (!document)
        return;
    placeControlPoints();
    // A new object renders its picture itself, once its core is loaded.
    redraw(owner->isCreateFinished());
    settleDrawing();
}

bool Shape::updateSVG(QZeSvgNode *node, QPointF, bool refresh)
{
    const int index = indexOf(node);
    if (index < 0)
        return false;
    const QRectF place = node->boundingRect();
    if (node == activeControlPoint)
        m_dragged[index].noteDrag(dragStartPos, place);
    pointMoved(index + 1, rounded(m_dragged.value(index).meantCentre(place)));
    // While data are read, each node stands where they put it, or waits far away: finishLoading() places all.
    if (isBeingLoaded)
        settlePoints();
    else
        placeControlPoints();
    redraw(refresh);
    return true;
}

bool Shape::updateSVG(bool refresh)
{
    redraw(refresh);
    return true;
}

bool Shape::updateAllControlPoints(bool refresh, bool)
{
    takeMovedControlPoints();
    placeControlPoints();
    redraw(refresh);
    return true;
}

void Shape::setSize(QSizeF, QSizeF newSize)
{
    fitTo(newSize);
}

void Shape::notifyObjectCreated()
{
    // The last step of a creating drag may differ from the previous step, which the shape was notified of.
    if (m_redrawn && fitTo(owner->getClientRect().size()))
        invalidate();
}

void Shape::growBox(const QRectF &before, const QRectF &after)
{
    if (before == after || !owner->isCreateFinished())
        return;
    // Only presses of the mouse tell the shape how it is mirrored; replayed steps and settings have none.
    setFlipOn(owner->isMirrored(), owner->isFlipped());
    const QRectF box = document->viewBox();
    adjustSvgPosition({box.topLeft() + after.topLeft() - before.topLeft(),
                       box.bottomRight() + after.bottomRight() - before.bottomRight()},
                      true);
}

/// Opening a shape sets its pen width after its control points. A point that keeps its size and centre then must
/// keep its exact corner, or saving again would not reproduce the file.
void Shape::setPenWidth(int width, bool record)
{
    QVector<QRectF> before;
    for (int i = 0; i < pointCount(); ++i)
        before.append(controlPoints[i] ? controlPoints[i]->boundingRect() : QRectF());
    PropertiedShape::setPenWidth(width, record);
    for (int i = 0; i < before.size(); ++i) {
        const QRectF present = controlPoints[i] ? controlPoints[i]->boundingRect() : QRectF();
        if (!isSame(present.topLeft(), before.at(i).topLeft()) && present.size() == before.at(i).size() &&
            isNear(present.center(), before.at(i).center(), roundingEpsilon))
            moveCorner(*controlPoints[i], before.at(i).topLeft());
    }
}

QSizeF Shape::getMinimizeSize()
{
    return smallestSize();
}

QSizeF Shape::smallestSize() const
{
    const double side = m_redrawn ? smallestRedrawnSide : smallestStretchedSide;
    return {side, side};
}

QString Shape::hint(int)
{
    return {};
}

QString Shape::dragHint()
{
    const int index = indexOf(activeControlPoint);
    return index < 0 ? QString() : hint(index + 1);
}

QString Shape::pointHint(int number)
{
    return hint(number);
}

QByteArray Shape::toSvg()
{
    settleDrawing();
    return PropertiedShape::toSvg();
}

void Shape::updateOutlineRegion()
{
    if (!m_isDrawn) {
        settleDrawing();
        return;
    }
    PropertiedShape::updateOutlineRegion();
    const double scale = drawingScale();
    if (!outlineRegion || scale == 1)
        return;
    *outlineRegion = scaledAbout(document->viewBox().center(), 1 / scale).map(*outlineRegion);
}

QRectF Shape::drawnArea()
{
    QRectF area(QPointF(0, 0), size() * drawingScale());
    area.moveCenter(document->viewBox().center());
    return area;
}

bool Shape::getOutlinePath(QPainterPath *path)
{
    settleDrawing();
    if (!PropertiedShape::getOutlinePath(path))
        return false;
    const QTransform toObject = stretching(document->viewBox(), owner->getClientRect());
    for (int i = 0; i < pointCount(); ++i) {
        QPainterPath grip;
        if (controlPoints[i])
            grip.addRect(toObject.mapRect(controlPoints[i]->boundingRect()));
        if (!path->contains(grip.boundingRect()))
            *path += grip;
    }
    return true;
}

QRectF Shape::paintedArea()
{
    settleDrawing();
    QRectF area = PropertiedShape::paintedArea();
    if (!document || document->viewBox().isEmpty())
        return area;
    const QRectF target = owner->getClientRect();
    const double magnification = 1 / drawingScale();
    if (magnification > 1)
        area |= scaledAbout(target.center(), magnification).mapRect(area);
    const QTransform toObject = stretching(document->viewBox(), target);
    for (int i = 0; owner->isSelected() && i < pointCount(); ++i)
        if (controlPoints[i])
            area |= toObject.mapRect(controlPoints[i]->boundingRect());
    return area;
}

double Shape::getXMin(QZeSvgNode *node)
{
    const int index = indexOf(node);
    return index < 0 ? CSVGBase::getXMin(node) : range(index + 1).left() - node->boundingRect().width() / 2;
}

double Shape::getXMax(QZeSvgNode *node)
{
    const int index = indexOf(node);
    return index < 0 ? CSVGBase::getXMax(node) : range(index + 1).right() - node->boundingRect().width() / 2;
}

double Shape::getYMin(QZeSvgNode *node)
{
    const int index = indexOf(node);
    return index < 0 ? CSVGBase::getYMin(node) : range(index + 1).top() - node->boundingRect().height() / 2;
}

double Shape::getYMax(QZeSvgNode *node)
{
    const int index = indexOf(node);
    return index < 0 ? CSVGBase::getYMax(node) : range(index + 1).bottom() - node->boundingRect().height() / 2;
}

bool Shape::CanMoveControlPoint(QZeSvgNode *node, QPointF pos)
{
    const int index = indexOf(node);
    return index < 0 || mayMove(index + 1, QRectF(pos, node->boundingRect().size()).center());
}

bool Shape::mayMove(int, QPointF)
{
    return true;
}

QRectF Shape::range(int number)
{
    return templateRange(number);
}

QPointF Shape::settled(int number, QPointF centre)
{
    const QRectF limits = range(number);
    return {within(centre.x(), limits.left(), limits.right()), within(centre.y(), limits.top(), limits.bottom())};
}

void Shape::pointMoved(int number, QPointF centre)
{
    if (!isPoint(number))
        return;
    if (m_places.size() < number)
        m_places.resize(number);
    m_places[number - 1] = {centre, size()};
}

void Shape::inheritPoints(const Shape &former)
{
    m_dragged = former.m_dragged;
    takePlaces(former.m_places);
}

void Shape::takePlaces(const QVector<Place> &places)
{
    for (int i = 0; i < std::min(m_places.size(), places.size()); ++i)
        m_places[i] = places.at(i);
    placeControlPoints();
    redraw(false);
}

QPointF Shape::wantedPoint(int number)
{
    return m_places.value(number - 1)
        .at(size(), followingOf(number, Qt::Horizontal), followingOf(number, Qt::Vertical));
}

void Shape::propertyChanged(const Property *)
{
    placeControlPoints();
    redraw(false);
}

bool Shape::isPoint(int number) const
{
    return number >= 1 && number <= pointCount();
}

/// Damaged data may count fewer points than the template has; only the template's are worth a report.
void Shape::reportMissingPoint(const QString &id) const
{
    if (document && !document->namedNode(id))
        reportError("K10", id, QStringLiteral("there is no control point \"%1\"").arg(id));
}

QPointF Shape::point(int number) const
{
    if (!isPoint(number))
        reportMissingPoint(QStringLiteral("control_%1").arg(number));
    return m_points.value(number - 1);
}

QSizeF Shape::size() const
{
    return document ? document->viewBox().size() : QSizeF();
}

double Shape::shorterSide() const
{
    return std::min(width(), height());
}

QRectF Shape::frame() const
{
    const double stroke = document ? document->getAllStrokeWidth() : 0;
    const double inset = std::min(stroke / 2, largestInsetShare * shorterSide());
    return QRectF(QPointF(0, 0), size()).adjusted(inset, inset, -inset, -inset);
}

void Shape::setPath(const char *id, const PathText &path)
{
    set(id, "d", path.text());
}

void Shape::set(const char *id, const char *attribute, const QString &value)
{
    // An unchanged node keeps sharing its geometry with all shapes of the same template.
    QZeSvgNode *target = node(id);
    if (target && target->attribute(QLatin1String(attribute)) != value)
        target->setAttribute(QLatin1String(attribute), value);
}

void Shape::set(const char *id, const char *attribute, double value)
{
    set(id, attribute, numberText(value));
}

void Shape::rotate(const char *id, double degrees, QPointF about)
{
    set(id, "transform",
        QStringLiteral("rotate(%1 %2 %3)").arg(numberText(degrees), numberText(about.x()), numberText(about.y())));
}

int Shape::pointCount() const
{
    return int(std::min(controlPointCount, controlPointCapacity));
}

int Shape::indexOf(QZeSvgNode *node) const
{
    QZeSvgNode **const end = controlPoints + pointCount();
    QZeSvgNode **const found = std::find(controlPoints, end, node);
    return !node || found == end ? -1 : int(found - controlPoints);
}

QRectF Shape::templateRange(int number)
{
    const Following x = followingOf(number, Qt::Horizontal);
    const Following y = followingOf(number, Qt::Vertical);
    QRectF limits(QPointF(x.offset, y.offset), QPointF(width() - x.endOffset, height() - y.endOffset));
    const QZeSvgNode *point = isPoint(number) ? controlPoints[number - 1] : nullptr;
    if (m_redrawn || !point)
        return limits;
    const auto limit = [point](const char *name, double otherwise) {
        const QString text = point->attribute(QLatin1String(name));
        return text.isEmpty() ? otherwise : text.toDouble() + templateHalf;
    };
    return {QPointF(limit("x_from", limits.left()), limit("y_from", limits.top())),
            QPointF(limit("x_to", limits.right()), limit("y_to", limits.bottom()))};
}

Following Shape::readFollowing(const QZeSvgNode &point, const QString &axis)
{
    Following following;
    following.rule = Following::ruleNamed(point.attribute(axis + QLatin1String("_follows")));
    const QStringList offsets =
        point.attribute(axis + QLatin1String("_offset")).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    if (!offsets.isEmpty()) {
        following.offset = offsets.first().toDouble();
        following.endOffset = offsets.last().toDouble();
    }
    return following;
}

const Following &Shape::followingOf(int number, Qt::Orientation axis)
{
    static const Following none;
    if (!isPoint(number))
        return none;
    while (m_following.size() < number) {
        const QZeSvgNode *point = controlPoints[m_following.size()];
        m_following.append(point ? std::array<Following, 2>{readFollowing(*point, QStringLiteral("x")),
                                                            readFollowing(*point, QStringLiteral("y"))}
                                 : std::array<Following, 2>{});
    }
    return m_following.at(number - 1)[axis == Qt::Horizontal ? 0 : 1];
}

bool Shape::fitTo(const QSizeF &newSize)
{
    const QRectF box(QPointF(0, 0), newSize);
    if (!isSide(newSize.width()) || !isSide(newSize.height()) || !document || document->viewBox() == box)
        return false;
    document->setViewBox(box);
    placeControlPoints();
    redraw(false);
    return true;
}

void Shape::takeMovedControlPoints()
{
    for (int i = 0; i < pointCount(); ++i) {
        if (!controlPoints[i])
            continue;
        const QPointF centre = rounded(controlPoints[i]->boundingRect().center());
        // A damaged file may contain any position.
        const bool isPlace = std::isfinite(centre.x()) && std::isfinite(centre.y());
        if (isPlace && (i >= m_points.size() || centre != m_points.at(i)))
            pointMoved(i + 1, centre);
    }
}

void Shape::settlePoints()
{
    m_points.clear();
    for (int number = 1; number <= pointCount(); ++number)
        m_points.append(rounded(wantedPoint(number)));
    const QVector<QPointF> wanted = m_points;
    for (int round = 0; round < settlingRounds; ++round) {
        for (int i = 0; i < wanted.size(); ++i) {
            const QPointF place = rounded(settled(i + 1, wanted.at(i)));
            m_points[i] = isNear(place, wanted.at(i), settledEpsilon) ? wanted.at(i) : place;
        }
    }
}

void Shape::placeControlPoint(int index)
{
    QZeSvgNode *node = controlPoints[index];
    if (!node)
        return;
    const QRectF present = node->boundingRect();
    const QPointF centre = m_points.value(index);
    // After resizing for a zoom, a corner is off from its computed place by a rounding error; loading must keep
    // exactly that corner.
    if (isNear(present.center(), centre, roundingEpsilon))
        return;
    moveCorner(*node, {centre.x() - present.width() / 2, centre.y() - present.height() / 2});
}

void Shape::placeControlPoints()
{
    settlePoints();
    for (int i = 0; i < pointCount(); ++i)
        placeControlPoint(i);
}

void Shape::redraw(bool refresh)
{
    m_isDrawn = false;
    if (refresh && !isBeingLoaded)
        invalidate();
}

// Damaged files contain sizes and places for which a shape that repeats its parts would draw for ever.
bool Shape::isDrawable() const
{
    // Pen and fill of a template are read before its control points.
    if (m_points.size() != pointCount())
        return false;
    const auto isPlace = [](QPointF point) {
        return qAbs(point.x()) < largestSide && qAbs(point.y()) < largestSide;
    };
    return isSide(width()) && isSide(height()) && std::all_of(m_points.begin(), m_points.end(), isPlace);
}

void Shape::settleDrawing()
{
    if (m_isDrawn || !document)
        return;
    m_isDrawn = true;
    if (isDrawable())
        draw();
    if (document->getAllFillBrush().gradient())
        takePageFill();
    updateOutlineRegion();
}

QRectF between(QPointF first, QPointF second)
{
    return {first, second};
}

QPointF onCircle(QPointF centre, double radius, double degrees)
{
    const double angle = qDegreesToRadians(degrees);
    return centre + QPointF(std::sin(angle), -std::cos(angle)) * radius;
}

QPointF stretched(QPointF vector, QSizeF factor)
{
    return {vector.x() * factor.width(), vector.y() * factor.height()};
}

double angleOf(QPointF point, QPointF centre)
{
    const QPointF arm = point - centre;
    const double degrees = qRadiansToDegrees(std::atan2(arm.x(), -arm.y()));
    return degrees < 0 ? degrees + 360 : degrees;
}

} // namespace shapekit
