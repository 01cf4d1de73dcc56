// Draws the shape core's document: target, scale, and visibility of control points.

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <framework/graphicsviewname.h>
#include <framework/idocument.h>
#include <framework/iframework.h>
#include <framework/ipspage.h>

#include <svgbase/qzesvgtinydocument.h>

#include "properties/valuecodec.h"
#include "shape/controlpoints.h"
#include "shape/controlpointsize.h"
#include "shape/emptytext.h"
#include "shape/shapetype.h"

#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsScene>

#include <limits>

namespace {

/// Object name of the view in which pages are edited: control points show there.
const QString editingView = QStringLiteral("mainGraphicsView");
/// Layer caches are dropped for this reason when only editing aids changed.
constexpr int editingAidsChanged = 2;

/// Clips a painter to a rectangle for its lifetime, replacing any clip; does nothing for a null pointer.
class ClipGuard
{
public:
    ClipGuard(QPainter *painter, const QRectF &rect)
        : m_painter(painter)
    {
        if (!m_painter)
            return;
        m_painter->save();
        m_painter->setClipRect(rect, Qt::ReplaceClip);
    }
    ~ClipGuard()
    {
        if (m_painter)
            m_painter->restore();
    }
    Q_DISABLE_COPY(ClipGuard)

private:
    QPainter *m_painter;
};

bool paintsPixmap(const QPainter *painter)
{
    return painter->device() && painter->device()->devType() == QInternal::Pixmap;
}

} // namespace

void CSVGBase::paint(QPainter *painter, bool toCache)
{
    paintEx(painter, 1.0f, toCache);
}

void CSVGBase::paintEx(QPainter *painter, float scale, bool toCache)
{
    if (!owner)
        return;
    const bool viewFlag = resolveViewFlag(painter, toCache);
    if (!document)
        return;
    followZoom();
    document->setBeforeDraw(true);
    const QRectF target = owner->getClientRect();
    const ClipGuard clip(isAnimating() && painter->isActive() ? painter : nullptr, target);
    if (getSVGType() == ScaledDrawingShape)
        scale = storedDrawScale(scale);
    document->draw(painter, target, scale, viewFlag);
}

bool CSVGBase::resolveViewFlag(QPainter *painter, bool toCache)
{
    bool viewFlag = toCache;
    if (painter_getGraphicsViewName(painter, owner->scene()) == editingView)
        viewFlag = true;
    else if (paintsPixmap(painter))
        viewFlag = toCache || owner->isSelected();
    if (!belongDoc)
        getBelongDoc();
    return viewFlag && (!belongDoc || belongDoc->documentState() == 0);
}

/// Control points keep their size on screen: a zoom other than the last one sizes them anew.
void CSVGBase::followZoom()
{
    if (!belongDoc)
        return;
    const double zoom = belongDoc->zoomRate();
    if (zoom == zoomRate)
        return;
    zoomRate = zoom;
    const int pixels = controlPointPixels(getPenWidth());
    if (!isUsableZoom(zoom, pixels))
        return;
    controlPointSize = pixels / zoom;
    forEachControlPoint(controlPoints, controlPointCount,
                        [this](QZeSvgNode *node) { changeControlPointSize(node, controlPointSize, true); });
}

float CSVGBase::storedDrawScale(float scale)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    GetSpecialProperty(PROP_SVG_DRAWSCALE, out);
    QDataStream in(bytes);
    const double unitsPerDrawnUnit = decodeValue<double>(in);
    const double stored = 1.0 / unitsPerDrawnUnit;
    const bool isUsable = unitsPerDrawnUnit > 0 && stored <= double(std::numeric_limits<float>::max());
    return isUsable ? float(stored) : scale;
}

void CSVGBase::invalidate()
{
    if (!owner)
        return;
    owner->OnQPainterDraw(nullptr);
    owner->notifyObjPropertyChanged(CPSRootObject::AppearanceChanged, emptyText());
}

void CSVGBase::setSelected(bool selected)
{
    if (!document)
        return;
    document->setSelectionState(selected ? 1 : 0);
    if (owner)
        owner->clearLayerEffectCache(editingAidsChanged);
}

IDocument *CSVGBase::getBelongDoc()
{
    if (const IPsPage *page = owner ? owner->GetPage() : nullptr)
        belongDoc = page->document();
    if (!belongDoc)
        belongDoc = GetFramework()->currentDocument();
    return belongDoc;
}

QGraphicsView *CSVGBase::findFirstVisibleView(QList<QGraphicsView *> &views)
{
    return CPSRootObject::FindFirstVisibleView(views);
}
