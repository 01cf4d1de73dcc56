#include "resolve/markerforms.h"

#include "grammar/angles.h"
#include "grammar/viewboxes.h"
#include "resolve/viewports.h"

namespace Svg {

namespace {

const Length defaultMarkerSize{3, Unit::User};

double markerSide(const Attributes &attributes, const QString &name, Axis axis, const LengthContext &context)
{
    return toUserUnits(lengthOf(attributes.held(name)).value_or(defaultMarkerSize), axis, context);
}

void readOrientation(const Attributes &attributes, MarkerForm *form)
{
    const QString text = attributes.value(QStringLiteral("orient")).trimmed();
    form->turnsBackAtStart = text == QLatin1String("auto-start-reverse");
    form->turns = form->turnsBackAtStart || text == QLatin1String("auto");
    if (!form->turns)
        form->angle = parseAngle(text).value_or(0);
}

// False when the content has no room.
bool fitContent(const Attributes &attributes, const LengthContext &context, MarkerForm *form)
{
    const QSizeF size(markerSide(attributes, QStringLiteral("markerWidth"), Axis::Horizontal, context),
                      markerSide(attributes, QStringLiteral("markerHeight"), Axis::Vertical, context));
    if (size.isEmpty())
        return false;
    form->box = QRectF(QPointF(), size);
    form->viewport = size;
    const std::optional<QRectF> viewBox = viewBoxOf(attributes.held(AttributeId::ViewBox));
    if (viewBox) {
        const AspectRatio ratio = parseAspectRatio(attributes.value(AttributeId::PreserveAspectRatio));
        const std::optional<QTransform> fitted = viewBoxTransform(*viewBox, form->box, ratio);
        if (!fitted)
            return false;
        form->contentToBox = *fitted;
        form->viewport = viewBox->size();
    }
    const QPointF reference = referencePoint(attributes, {form->viewport, context.fontSize});
    const QPointF origin = form->contentToBox.map(reference);
    form->boxToPlace = QTransform::fromTranslate(-origin.x(), -origin.y());
    return true;
}

} // namespace

std::optional<MarkerForm> markerForm(const Node &marker, const ComputedStyle &style, double strokeWidth,
                                     const QSizeF &viewport)
{
    MarkerForm form;
    if (marker.attributes.value(QStringLiteral("markerUnits")) != QLatin1String("userSpaceOnUse"))
        form.scale = strokeWidth;
    readOrientation(marker.attributes, &form);
    if (!(form.scale > 0) || !fitContent(marker.attributes, {viewport, style.font.size}, &form))
        return std::nullopt;
    form.cut = viewportCut(style, form.box, viewport);
    return form;
}

} // namespace Svg
