// Applies sizes to the page object.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include "object/sizerules.h"
#include "shape/constants.h"
#include "shape/emptytext.h"
#include "shape/shapetype.h"

namespace {

constexpr QSizeF minimumWithoutCore(1.0, 1.0);
constexpr QSizeF defaultWithoutCore(30, 30);

/// Compares exactly, unlike QSizeF's own operator.
bool isIdentical(QSizeF a, QSizeF b)
{
    return a.width() == b.width() && a.height() == b.height();
}

} // namespace

void CSVGObj::setSize(QSizeF size, bool flag, bool forceOutline)
{
    const QSizeF oldSize = clientRect.size();
    if (!svgBase) {
        setSize2(size, flag);
        return;
    }
    validateSize(size);
    if (svgBase->keepAspectRatio)
        size = limitSize(size, baseSize);
    if (!svgBase->resizeRewritesSVG) {
        setSize2(size, flag);
        return;
    }
    if (!sameLength(size.width(), oldSize.width()) || !sameLength(size.height(), oldSize.height()))
        svgBase->setSize(oldSize, size);
    if (isHostFilled(svgBase->getSVGType()) || forceOutline)
        svgBase->updateOutlineRegion();
    setSize2(size, flag);
}

void CSVGObj::setSize2(QSizeF size, bool flag)
{
    dragStart = clientRect.topLeft();
    dragEnd = dragStart + QPointF(size.width(), size.height());
    // Recomputed from the two points, as all readers of them do.
    baseSize = QSizeF(dragEnd.x() - dragStart.x(), dragEnd.y() - dragStart.y());
    // Another thread may be reading the rectangle, to copy the picture into it.
    if (!isIdentical(clientRect.size(), baseSize))
        clientRect.setSize(baseSize);
    CBaseObject::setSize(size, flag, true);
    OnQPainterDraw(nullptr);
    notifyObjPropertyChanged(SizeChanged, emptyText());
}

void CSVGObj::validateSize(QSizeF &size)
{
    size = SizeRules::raised(size, svgBase ? svgBase->getMinimizeSize() : minimumWithoutCore);
}

QSizeF CSVGObj::getDefaultSize()
{
    return svgBase ? svgBase->getDefaultSVGSize() : defaultWithoutCore;
}

QSizeF CSVGObj::limitSize(QSizeF size, QSizeF ratio)
{
    return SizeRules::withAspect(size, ratio);
}
