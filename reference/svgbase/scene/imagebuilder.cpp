#include "scene/imagebuilder.h"

#include "grammar/inputlimits.h"
#include "images/images.h"
#include "resolve/viewports.h"
#include "scene/layerwrapping.h"

namespace Svg {

namespace {

std::optional<QRectF> cutOf(const Facts &facts)
{
    return viewportCut(*facts.style, facts.localBounds, facts.viewport);
}

bool takePixels(BuildContext &context, const ImageContent &content)
{
    const auto pixels = qint64(content.size.width() * content.size.height());
    const bool fresh = !context.images.contains(&content);
    if (context.shownPixels + pixels > Limits::shownImagePixels ||
        (fresh && context.imagePixels + pixels > Limits::imagePixels))
        return false;
    context.shownPixels += pixels;
    if (fresh) {
        context.images.insert(&content);
        context.imagePixels += pixels;
    }
    return true;
}

void appendShown(BuildContext &context, DisplayItem item, const PictureItem &shown, DisplayItems *items)
{
    if (!takePixels(context, *shown.content)) {
        context.report.add(
            Message::TooManyImagePixels,
            QStringLiteral("Images with more than %1 pixels together are left out.").arg(Limits::imagePixels),
            item.node);
        return;
    }
    item.controlCentre = context.controlCentre;
    item.content = std::make_shared<const PictureItem>(shown);
    items->append(item);
}

void appendPicture(BuildContext &context, NodeIndex node, const FactsPointer &facts, DisplayItems *items)
{
    DisplayItem item;
    item.node = node;
    item.facts = facts;
    PictureItem shown;
    shown.content = facts->image;
    shown.fit = facts->fitted().fit;
    shown.target = shown.fit.mapRect(QRectF(QPointF(), shown.content->size));
    if (const std::optional<QRectF> cut = cutOf(*facts))
        shown.target &= *cut;
    appendShown(context, item, shown, items);
}

// The other document starts anew: it inherits nothing and uses its share of this drawing's budget.
DisplayItems documentItems(BuildContext &context, NodeIndex node, const Facts &facts)
{
    const QSizeF window = facts.image->takesSize ? facts.localBounds.size() : facts.image->window;
    const std::unique_ptr<SettledTree> document = context.document.imageDocument(*facts.image, window);
    BuildContext inner(*document, context.content);
    inner.budget = context.budget;
    inner.boundsBudget = context.boundsBudget;
    inner.boundsVisits = context.boundsVisits;
    inner.appliedPrimitives = context.appliedPrimitives;
    inner.images = context.images;
    inner.imagePixels = context.imagePixels;
    inner.shownPixels = context.shownPixels;
    inner.imageDepth = context.imageDepth + 1;
    inner.control = context.control;
    inner.controlCentre = context.controlCentre;
    auto *root = new Facts(*document->facts(rootNode));
    const FactsPointer rootFacts(root);
    root->toDocument = root->toDocument * facts.fitted().fit * facts.toDocument;
    DisplayItems items = inner.content.element(inner, rootNode, rootFacts);
    if (inner.blends)
        wrapInLayer(inner, rootNode, nullptr, &items);
    context.budget = inner.budget;
    context.boundsBudget = inner.boundsBudget;
    context.boundsVisits = inner.boundsVisits;
    context.appliedPrimitives = inner.appliedPrimitives;
    context.images = inner.images;
    context.imagePixels = inner.imagePixels;
    context.shownPixels = inner.shownPixels;
    // Locations in the inner document mean nothing to readers of the outer one.
    QVector<Message> messages;
    inner.report.appendTo(&messages, Tree());
    for (const Message &message : qAsConst(messages))
        context.report.add(message.code, message.text, node);
    return items;
}

void appendDocument(BuildContext &context, NodeIndex node, const FactsPointer &facts, DisplayItems *items)
{
    if (context.imageDepth >= Limits::imageDepth) {
        context.report.add(
            Message::ImagesTooDeep,
            QStringLiteral("Documents more than %1 deep in images are left out.").arg(Limits::imageDepth));
        return;
    }
    DisplayItems drawing = documentItems(context, node, *facts);
    if (drawing.isEmpty())
        return;
    if (const std::optional<QRectF> cut = cutOf(*facts)) {
        const auto layer = std::make_shared<LayerEffects>();
        layer->hasRegion = true;
        layer->region.addRect(*cut);
        layer->regionToDocument = facts->toDocument;
        wrapInLayer(context, node, layer, &drawing);
    }
    *items += drawing;
}

} // namespace

void appendImage(BuildContext &context, NodeIndex node, const FactsPointer &facts, DisplayItems *items)
{
    if (facts->localBounds.isEmpty() || !facts->fitted().fit.isInvertible())
        return;
    if (facts->image->document)
        appendDocument(context, node, facts, items);
    else
        appendPicture(context, node, facts, items);
}

void appendGlyphPicture(BuildContext &context, const DisplayItem &item, const PlacedPicture &picture,
                        DisplayItems *items)
{
    PictureItem shown;
    shown.content = picture.content;
    shown.toElement = picture.place;
    shown.target = QRectF(QPointF(), picture.content->size);
    if (picture.place.isInvertible())
        appendShown(context, item, shown, items);
}

} // namespace Svg
