// Moves and grows the visible part of the document, and follows size changes of the page object.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include "shape/constants.h"
#include "shape/controlpoints.h"
#include "shape/emptytext.h"
#include "shape/travel.h"
#include "shape/viewbox.h"

#include <cmath>

namespace {

double finiteOrZero(double value)
{
    return std::isfinite(value) ? value : 0.0;
}

bool isLength(double value)
{
    return qAbs(value) >= sizeEpsilon;
}

/// The object's side after its view box grew from `boxSide` by `growth`, at the same scale as before.
double grownSide(double objectSide, double boxSide, double growth)
{
    if (objectSide == boxSide)
        return boxSide + growth;
    if (!isLength(growth))
        return objectSide;
    const double side = objectSide * (boxSide + growth) / boxSide;
    return std::isfinite(side) ? side : objectSide;
}

/// Turns the item upright about its centre, which keeps its place in the scene.
void takeRotationOff(CSVGObj *object)
{
    const QRectF rect = object->getClientRect();
    const QPointF half(rect.width() / 2, rect.height() / 2);
    const QPointF sceneCenter = object->mapToScene(rect.topLeft() + half);
    object->setPos(sceneCenter - half, false);
    object->setRotation(0);
}

} // namespace

void CSVGBase::adjustSvgPosition(QPointF offset, double dw, double dh, bool updateObject)
{
    double dx = finiteOrZero(offset.x());
    double dy = finiteOrZero(offset.y());
    dw = finiteOrZero(dw);
    dh = finiteOrZero(dh);
    const QRectF rect = owner ? owner->getClientRect() : QRectF();
    const double rotation = owner ? owner->rotation() : 0.0;
    QPointF center(rect.x() + rect.width() / 2, rect.y() + rect.height() / 2);
    bool restoreRotation = false;

    if (isLength(dx) || isLength(dy) || flipHorizontal || flipVertical) {
        setViewBoxOf(document, viewBoxOf(document).translated(dx, dy));
        if (flipHorizontal)
            dx = -(dx + dw);
        if (flipVertical)
            dy = -(dy + dh);
        // A view box without width or height maps lengths to values that aren't finite.
        const QPointF moved(finiteOrZero(mapXToObject(dx)), finiteOrZero(mapYToObject(dy)));
        lastMousePos -= moved;
        if (owner && updateObject && (isLength(moved.x()) || isLength(moved.y()))) {
            if (isLength(rotation)) {
                takeRotationOff(owner);
                restoreRotation = true;
            }
            owner->setPos(owner->getPos() + moved, false);
            center -= moved;
        }
    }

    if (isLength(dw) || isLength(dh)) {
        const QRectF box = viewBoxOf(document);
        setViewBoxOf(document, QRectF(box.x(), box.y(), box.width() + dw, box.height() + dh));
        if (updateFinished)
            updateOutlineRegion();
        if (owner && updateObject) {
            const QSizeF size = owner->getClientRect().size();
            owner->setSize2(
                QSizeF(grownSide(size.width(), box.width(), dw), grownSide(size.height(), box.height(), dh)),
                false);
        }
    }

    if (!owner)
        return;
    if (restoreRotation)
        owner->setRotateByPoint(rotation, center, false);
    owner->updateRectChanged();
}

void CSVGBase::adjustSvgPosition(QRectF rect, bool updateObject)
{
    const QRectF box = viewBoxOf(document);
    adjustSvgPosition(rect.topLeft() - box.topLeft(), rect.width() - box.width(), rect.height() - box.height(),
                      updateObject);
}

void CSVGBase::resizeSVG(double dw, double dh, bool updateObject)
{
    adjustSvgPosition(QPointF(0, 0), dw, dh, updateObject);
}

void CSVGBase::setSize(QSizeF oldSize, QSizeF newSize)
{
    const QRectF box = settledViewBox(document);
    forEachControlPoint(controlPoints, controlPointCount, [&](QZeSvgNode *node) {
        const QRectF rect = node->boundingRect();
        const AxisTravel x{box.x(), box.width(), rect.x(), rect.width(), oldSize.width(), newSize.width()};
        const AxisTravel y{box.y(), box.height(), rect.y(), rect.height(), oldSize.height(), newSize.height()};
        const QPointF target(x.newStart(), y.newStart());
        node->setNumericAttribute(QStringLiteral("x"), target.x());
        node->setNumericAttribute(QStringLiteral("y"), target.y());
        // The delta is zero if the host's bounds follow their attributes at once.
        updateSVG(node, target - node->boundingRect().topLeft(), false);
    });
    if (!owner)
        return;
    owner->OnQPainterDraw(nullptr);
    owner->notifyObjPropertyChanged(CPSRootObject::SizeChanged, emptyText());
}
