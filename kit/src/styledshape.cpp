#include <shapekit/styledshape.h>

#include <shapekit/kind.h>
#include <shapekit/picturedata.h>
#include <shapekit/templatecheck.h>
#include <shapekit/treewalk.h>

#include <svgobj/csvganimate.h>
#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgobj.h>

#include <framework/cpagebgprop.h>
#include <pagehost/objectplugin.h>
#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDataStream>
#include <QtCore/QPointer>
#include <QtGui/QPainterPath>

#include "figures.h"

#include <algorithm>
#include <cmath>
#include <memory>

namespace shapekit {

namespace {

constexpr int lastHostFilledType = 26;
constexpr int extraHostFilledType = 1000;
/// Action of undo steps that hold the page object's whole fill; never recorded.
constexpr int pageFillAction = 1990;
/// The library's margin around a control point that can be pressed, and where a press is clearly within it,
/// document units.
constexpr double pointMargin = 6;
constexpr double rimOfPoint = 5;
/// Where a press on a control point is tried: at its middle, then at its rim.
constexpr QPointF pressSides[] = {{0, 0}, {-1, 0}, {1, 0}, {0, -1}, {0, 1}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}};
/// The library widens the pen by this much in the region, item units.
constexpr double regionPenMargin = 2;
/// Reach of a line beyond its middle, in widths: half of it, and with mitred corners as far as SVG's default miter
/// limit allows (SVG 1.1 §11.4).
constexpr double lineReach = 0.5;
constexpr double pointedLineReach = 0.5 * 4;

bool fillsAlike(const QBrush &a, const QBrush &b)
{
    const bool aFills = a.style() != Qt::NoBrush;
    const bool bFills = b.style() != Qt::NoBrush;
    return aFills == bFills && (!aFills || a.color() == b.color());
}

QByteArray bytesOf(const CPageBgProp &fill)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    fill.save(out);
    return bytes;
}

/// An inherited attribute.
QString inherited(const QZeSvgNode &node, const QString &name)
{
    QString value = node.attribute(name);
    for (const QZeSvgNode *group = node.parent(); group && value.isEmpty(); group = group->parent())
        value = group->attribute(name);
    return value;
}

double reachOfLine(const QZeSvgNode &node)
{
    const bool isRounded = inherited(node, QStringLiteral("stroke-linejoin")) == QLatin1String("round") &&
                           inherited(node, QStringLiteral("stroke-linecap")) != QLatin1String("square");
    return isRounded ? lineReach : pointedLineReach;
}

/// With its line.
QRectF paintedBounds(const QZeSvgNode &node, double reachOfItsLine)
{
    const QRectF bounds = node.transformedBounds();
    const double reach = reachOfItsLine * node.strokeWidth();
    return bounds.isNull() ? bounds : bounds.adjusted(-reach, -reach, reach, reach);
}

bool isControlPoint(const QString &id)
{
    return id.startsWith(QLatin1String("control_"));
}

} // namespace

StyledShape::StyledShape(CSVGObj *owner, int type)
    : CSVGBase(owner)
    , m_type(type)
{
    propPenEnabled = true;
    propPenStyleEnabled = true;
    propPenWidthEnabled = true;
    keepOutlineRegion = true;
    // In pixels up to here; painting only follows later changes of the zoom.
    controlPointSize /= zoomRate;
}

QString StyledShape::getSVG()
{
    return m_kind ? m_kind->templateText : QString();
}

bool StyledShape::loadSVG(bool initGlobals)
{
    const bool loaded = CSVGBase::loadSVG(initGlobals);
    // The library replaces a template that can't be read by an empty document.
    if (document && document->children().isEmpty())
        reportUnreadTemplate(getSVG());
    return loaded;
}

void StyledShape::reportUnreadTemplate(const QString &text) const
{
    if (!m_kind)
        return;
    const QVector<pagehost::PluginMessage> faults = templateFaults(text, m_kind->templateName());
    for (const pagehost::PluginMessage &fault : faults)
        m_kind->log->report(fault);
}

void StyledShape::reportError(const char *code, const QString &element, const QString &text) const
{
    if (m_kind && !m_kind->log->has(QLatin1String(code), element))
        m_kind->log->report(
            {pagehost::PluginMessage::Error, QLatin1String(code), m_kind->templateName(), 0, 0, element, text});
}

void StyledShape::initGlobalPropValues()
{
    readLook();
    setPenColor(owner->getMyPen().color(), false);
    if (propFillEnabled)
        fillPageObject(m_templateFill);
}

void StyledShape::initPropItems()
{
    readLook();
    CSVGBase::initPropItems();
}

QByteArray StyledShape::toSvg()
{
    if (!document)
        return {};
    if (isFilledByPageObject())
        updateBrush(getFillBrush());
    const std::unique_ptr<QZeSvgTinyDocument> copy(QZeSvgTinyDocument::load(document->toSvg()));
    if (isFilledByPageObject())
        updateBrush(QBrush());
    if (!copy)
        return {};
    for (quint32 i = 0; i < controlPointCount; ++i)
        if (QZeSvgNode *point = copy->namedNode(QStringLiteral("control_%1").arg(i + 1)))
            (point->parent() ? point->parent() : copy.get())->removeChild(point);
    const QSizeF size = owner->getClientRect().size();
    copy->setViewBox(drawnArea());
    copy->setAttribute(QStringLiteral("width"), QString::number(size.width()));
    copy->setAttribute(QStringLiteral("height"), QString::number(size.height()));
    copy->setAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    return copy->toSvg();
}

void StyledShape::takePicture(const QByteArray &) {}

void StyledShape::reloadTemplate()
{
    const int selection = document ? document->selectionState() : 0;
    delete document;
    document = nullptr;
    activeControlPoint = nullptr;
    m_lookRead = false;
    m_painted.clear();
    m_figures.clear();
    m_pennedFills.clear();
    m_pennedLines.clear();
    if (!loadSVG(false))
        return;
    document->setSelectionState(selection);
    updateOutlineRegion();
}

QSizeF StyledShape::naturalSize() const
{
    return document ? naturalSizeOf(*document) : QSizeF();
}

QRectF StyledShape::drawnArea()
{
    return document->viewBox();
}

QBrush StyledShape::getFillBrush()
{
    if (!isFilledByPageObject())
        return CSVGBase::getFillBrush();
    QBrush brush = owner->getHostFillBrush();
    const CPageBgProp *fill = owner->getFillProp();
    // A fill that is switched off keeps its colour, also when undo switches it off again.
    if (brush.style() == Qt::NoBrush && fill) {
        QColor color = fill->fillColor();
        color.setAlpha(fill->opacity());
        brush.setColor(color);
    }
    return brush;
}

void StyledShape::setFillBrush(const QBrush &brush, bool record, bool notify)
{
    if (m_fillBeingRead) {
        *m_fillBeingRead = brush;
        return;
    }
    if (!isFilledByPageObject()) {
        CSVGBase::setFillBrush(brush, record, notify);
        if (notify)
            takePageFill();
        return;
    }
    // The page object passes its new fill back to this function; by then it is the present one, which ends the
    // recursion.
    if (!fillsAlike(brush, getFillBrush())) {
        if (record)
            RecordColor(brush.color(), ACT_SVG_FILLCOLOR);
        fillPageObject(brush);
        return;
    }
    if (notify && !isBeingLoaded)
        invalidate();
}

void StyledShape::setPenColor(QColor color, bool record)
{
    CSVGBase::setPenColor(color, record);
    colorPenFollowers();
}

bool StyledShape::setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo)
{
    if (propId != PROP_SVG_FILLCOLOR)
        return CSVGBase::setInnerProperty(propId, in, record, addUndo);
    QBrush fill;
    if (!readFill(in, fill))
        return false; // damaged data must not blacken a shape
    const bool keepsWholeFill = addUndo && hasRichFill();
    const QByteArray before = keepsWholeFill ? bytesOf(*owner->getFillProp()) : QByteArray();
    if (addUndo && !keepsWholeFill) {
        auto *command = new CSVGBaseUndoCmd(this, ACT_SVG_FILLCOLOR, nullptr, true);
        command->setBrush(getFillBrush(), fill);
        addUndoRedo(command);
    }
    setFillBrush(fill, record, true);
    if (keepsWholeFill) {
        auto *command = new CSVGBaseUndoCmd(this, pageFillAction, nullptr, true);
        command->setDataBuffer(before, bytesOf(*owner->getFillProp()));
        addUndoRedo(command);
    }
    return true;
}

bool StyledShape::readFill(QDataStream &in, QBrush &fill)
{
    m_fillBeingRead = &fill;
    const bool isRead = CSVGBase::setInnerProperty(PROP_SVG_FILLCOLOR, in, false, false);
    m_fillBeingRead = nullptr;
    return isRead && in.status() == QDataStream::Ok;
}

bool StyledShape::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    if (actionId != pageFillAction)
        return CSVGBase::DoPlaybackActionEx(actionId, in);
    CPageBgProp fill(nullptr);
    if (!fill.load(in))
        return false;
    owner->setFillProp(&fill, false);
    invalidate();
    return true;
}

bool StyledShape::GetSpecialProperty(int propId, QDataStream &out)
{
    if (propId == pagehost::PaintedArea) {
        out << paintedArea();
        return true;
    }
    if (propId == pagehost::ConnectionPlaces && document) {
        writeConnections(out);
        return true;
    }
    if (propId == pagehost::ConnectionOutline && document) {
        out << connectionOutline();
        return true;
    }
    if (propId == pagehost::ControlPoints && document) {
        writeControlPoints(out);
        return true;
    }
    if (propId == pagehost::LabelPlaces && document) {
        writeLabels(out);
        return true;
    }
    if (propId == pagehost::HitAtOutline && document) {
        out << !isHitInside();
        return true;
    }
    if (propId == pagehost::DragHint) {
        const QString hint = dragHint();
        if (!hint.isEmpty())
            out << hint;
        return !hint.isEmpty();
    }
    if (propId != pagehost::AnimationRuns)
        return CSVGBase::GetSpecialProperty(propId, out);
    if (!document || !document->animated())
        return false;
    out << isAnimating();
    return true;
}

bool StyledShape::SetSpecialProperty(int propId, QDataStream &in, bool record)
{
    if (propId == pagehost::LabelText)
        return writeLabel(in, record);
    if (propId == pagehost::HiddenLabel) {
        qint32 label = 0;
        in >> label;
        return document && hideLabel(label);
    }
    if (propId != pagehost::AnimationRuns)
        return CSVGBase::SetSpecialProperty(propId, in, record);
    if (!document || !document->animated())
        return false;
    bool on = false;
    in >> on;
    if (in.status() == QDataStream::Ok && on != isAnimating())
        play(on);
    return true;
}

void StyledShape::takePageFill()
{
    const CPageBgProp *fill = owner->getFillProp();
    if (!document || isFilledByPageObject() || !propFillEnabled || !fill || !fill->isFillEnable())
        return;
    const QBrush brush = fill->createBrushByProp(document->viewBox(), false);
    const QBrush present = document->getAllFillBrush();
    if (brush.color() == present.color() && brush != present)
        updateBrush(brush);
}

QRectF StyledShape::paintedArea()
{
    const QRectF target = owner->getClientRect();
    const QRectF box = document ? document->viewBox() : QRectF();
    if (box.isEmpty())
        return target;
    QRectF painted;
    for (const PaintedNode &part : qAsConst(m_painted))
        painted |= paintedBounds(*part.node, part.reach);
    const QTransform toObject = stretching(box, target);
    QRectF area = target | toObject.mapRect(painted);
    if (outlineRegion && !outlineRegion->isEmpty()) {
        const double reach = (getPenWidth() + regionPenMargin) / 2;
        area |= toObject.mapRect(outlineRegion->boundingRect()).adjusted(-reach, -reach, reach, reach);
    }
    return area;
}

QVector<Connection> StyledShape::connections()
{
    const QRectF box = drawnArea();
    return {{QStringLiteral("left"), {box.left(), box.center().y()}, 180},
            {QStringLiteral("top"), {box.center().x(), box.top()}, 270},
            {QStringLiteral("right"), {box.right(), box.center().y()}, 0},
            {QStringLiteral("bottom"), {box.center().x(), box.bottom()}, 90}};
}

QTransform StyledShape::mirroring() const
{
    const QRectF target = owner->getClientRect();
    const bool acrossX = owner->isMirrored();
    const bool acrossY = owner->isFlipped();
    const double shiftX = acrossX ? target.left() + target.right() : 0;
    const double shiftY = acrossY ? target.top() + target.bottom() : 0;
    return QTransform::fromScale(acrossX ? -1 : 1, acrossY ? -1 : 1) * QTransform::fromTranslate(shiftX, shiftY);
}

QTransform StyledShape::seenMapping()
{
    return stretching(drawnArea(), owner->getClientRect()) * mirroring();
}

QTransform StyledShape::seenPointMapping()
{
    return stretching(document->viewBox(), owner->getClientRect()) * mirroring();
}

/// The library takes the last point whose rectangle is as near as its margin.
int StyledShape::pressedPoint(QPointF place) const
{
    int pressed = -1;
    for (int i = 0; i < int(controlPointCount); ++i) {
        const QZeSvgNode *point = controlPoints[i];
        const QRectF reach =
            point ? point->boundingRect().adjusted(-pointMargin, -pointMargin, pointMargin, pointMargin) : QRectF();
        if (point && point->isVisible() && reach.contains(place))
            pressed = i;
    }
    return pressed;
}

/// Points overlap where a shape is small; then the rim of one may still be its own.
QPointF StyledShape::pressPlace(int index, const QTransform &toObject) const
{
    const QRectF rect = controlPoints[index]->boundingRect();
    const double reachX = rect.width() / 2 + rimOfPoint;
    const double reachY = rect.height() / 2 + rimOfPoint;
    const QRectF client = owner->getClientRect();
    for (const QPointF &side : pressSides) {
        const QPointF place = rect.center() + QPointF(side.x() * reachX, side.y() * reachY);
        if (pressedPoint(place) == index && client.contains(toObject.map(place)))
            return toObject.map(place);
    }
    return toObject.map(rect.center());
}

void StyledShape::writeControlPoints(QDataStream &out)
{
    settleDrawing();
    const QTransform toObject = seenPointMapping();
    QVector<int> visible;
    for (int i = 0; i < int(controlPointCount); ++i)
        if (controlPoints[i] && controlPoints[i]->isVisible())
            visible.append(i);
    out << qint32(visible.size());
    for (const int i : qAsConst(visible)) {
        QZeSvgNode *point = controlPoints[i];
        const QRectF rect = point->boundingRect();
        const QPointF half(rect.width() / 2, rect.height() / 2);
        const QRectF range(QPointF(getXMin(point), getYMin(point)) + half,
                           QPointF(getXMax(point), getYMax(point)) + half);
        out << qint32(i + 1) << pointHint(i + 1) << toObject.map(rect.center()) << pressPlace(i, toObject)
            << toObject.mapRect(range) << (point->canMoveHorizontally() && range.width() > 0)
            << (point->canMoveVertically() && range.height() > 0);
    }
}

void StyledShape::writeConnections(QDataStream &out)
{
    const QTransform toObject = seenMapping();
    const QVector<Connection> places = connections();
    out << qint32(places.size());
    for (const Connection &connection : places) {
        const double seenX = owner->isMirrored() ? 180 - connection.out : connection.out;
        const double seen = owner->isFlipped() ? -seenX : seenX;
        out << connection.name << toObject.map(connection.place) << seen - 360 * std::floor(seen / 360);
    }
}

QRectF StyledShape::paintedBoundsOf(const QZeSvgNode &node)
{
    if (!node.isVisible())
        return {};
    if (node.type() != QZeSvgNode::Group)
        return paintedBounds(node, reachOfLine(node));
    QRectF painted;
    const QList<QZeSvgNode *> children = static_cast<const QZeSvgStructureNode &>(node).children();
    for (const QZeSvgNode *child : children)
        painted |= paintedBoundsOf(*child);
    return painted;
}

/// Letters as they are typed are recorded, but no steps to take back.
bool StyledShape::writeLabel(QDataStream &in, bool record)
{
    qint32 id = 0;
    QString text;
    in >> id >> text;
    const QVector<LabelPlace> places = labelPlaces();
    const auto isIt = [id](const LabelPlace &label) { return label.propertyId == id; };
    if (in.status() != QDataStream::Ok || std::none_of(places.cbegin(), places.cend(), isIt))
        return false;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << text;
    QDataStream value(bytes);
    return SetAttribute(id, value, record, false);
}

void StyledShape::writeLabels(QDataStream &out)
{
    const QTransform toObject = seenMapping();
    const QVector<LabelPlace> places = labelPlaces();
    out << qint32(places.size());
    for (const LabelPlace &label : places)
        out << qint32(label.propertyId) << label.text << toObject.mapRect(label.box)
            << label.fontSize * std::abs(toObject.m22()) << label.isBold << label.hasManyLines << label.color
            << qint32(label.alignment);
}

QTransform StyledShape::stretching(const QRectF &box, const QRectF &target)
{
    return QTransform::fromTranslate(-box.x(), -box.y()) *
           QTransform::fromScale(target.width() / box.width(), target.height() / box.height()) *
           QTransform::fromTranslate(target.x(), target.y());
}

bool StyledShape::isFilledByPageObject() const
{
    return m_type <= lastHostFilledType || m_type == extraHostFilledType;
}

QZeSvgNode *StyledShape::node(const char *id) const
{
    if (!document)
        return nullptr;
    QZeSvgNode *found = document->namedNode(QLatin1String(id));
    if (!found && m_kind)
        reportUnknownNode(*m_kind, QLatin1String(id));
    return found;
}

/// Restarting renders a picture, whose listeners may delete the shape, and leaves the document's clock stopped.
void StyledShape::play(bool on)
{
    if (!on) {
        stopAnimate();
        document->stopAnimate();
        return;
    }
    const QPointer<CSVGAnimate> restarted(animator);
    startAnimate();
    if (restarted)
        document->startAnimate();
}

void StyledShape::readLook()
{
    if (!document || m_lookRead)
        return;
    m_lookRead = true;
    forEachNode(*document, [this](QZeSvgNode &node, NodeLook look) {
        look.keepsFill |= keepsItsLook;
        look.keepsStroke |= keepsItsLook;
        // Only switches off: a fill or stroke of "none" has already done so.
        if (look.keepsFill || look.fillFollowsPen)
            node.setFillEnabled(false);
        if (look.keepsStroke || look.strokeFollowsPen)
            node.setStrokeEnabled(false);
        if (look.fillFollowsPen)
            m_pennedFills.append(&node);
        if (look.strokeFollowsPen)
            m_pennedLines.append(&node);
        if (isFigure(node.nodeId()))
            m_figures.append(&node);
        if (node.type() != QZeSvgNode::Group && !isControlPoint(node.nodeId()))
            m_painted.append({&node, reachOfLine(node)});
    });
    m_templateFill = document->getAllFillBrush();
    propFillEnabled = m_templateFill.style() != Qt::NoBrush;
}

void StyledShape::colorPenFollowers()
{
    const QColor color = getPenColor();
    const QString opacity = QString::number(color.alphaF());
    for (QZeSvgNode *node : qAsConst(m_pennedFills)) {
        node->setAttribute(QStringLiteral("fill"), color.name());
        node->setAttribute(QStringLiteral("fill-opacity"), opacity);
    }
    for (QZeSvgNode *node : qAsConst(m_pennedLines)) {
        node->setAttribute(QStringLiteral("stroke"), color.name());
        node->setAttribute(QStringLiteral("stroke-opacity"), opacity);
    }
}

void StyledShape::fillPageObject(const QBrush &brush)
{
    CPageBgProp fill(nullptr);
    if (brush.style() != Qt::NoBrush) {
        fill.setFillType(CPageBgProp::SolidFill);
        fill.setFillColor(brush.color());
        fill.setOpacity(brush.color().alpha());
        fill.setFillEnable(true);
    } else if (owner->getFillProp()) {
        fill = *owner->getFillProp();
        fill.setFillColor(QColor(brush.color().rgb()));
        fill.setOpacity(brush.color().alpha());
        fill.setFillEnable(false);
    }
    owner->setFillProp(&fill, false);
}

bool StyledShape::hasRichFill() const
{
    const CPageBgProp *fill = owner->getFillProp();
    return fill && fill->fillType() != CPageBgProp::SolidFill && (fill->isFillEnable() || isFilledByPageObject());
}

} // namespace shapekit
