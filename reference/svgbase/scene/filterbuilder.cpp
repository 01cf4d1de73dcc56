#include "scene/filterbuilder.h"

#include "grammar/inputlimits.h"
#include "resolve/effectattributes.h"
#include "resolve/effectregion.h"
#include "resolve/filterattributes.h"
#include "resolve/filterfunctions.h"
#include "resolve/imageplacement.h"
#include "resolve/resolver.h"
#include "scene/imagebuilder.h"
#include "scene/openreference.h"
#include "tree/references.h"

namespace Svg {

namespace {

bool isPrimitive(ElementKind kind)
{
    return kind >= ElementKind::FeBlend && kind <= ElementKind::FeTurbulence && kind != ElementKind::FeMergeNode;
}

class FilterBuilder
{
public:
    FilterBuilder(BuildContext &context, const FilterTarget &target)
        : m_context(context)
        , m_target(target)
    {
    }

    /// False when the element is not one that can be applied.
    bool addElement(NodeIndex filter, Filter *result, bool *drawn);

private:
    const Node &element(NodeIndex index) const { return m_context.document.tree().node(index); }
    bool takePrimitive(NodeIndex filter, const FilterStep &step);
    bool addPrimitives(NodeIndex filter, FilterStep *step);
    ImagePointer image(NodeIndex node);
    FactsPointer useFacts(NodeIndex node, const PrimitiveUnits &units, const PrimitiveRegion &region) const;
    DisplayItems elementImage(NodeIndex node, const PrimitiveUnits &units, const PrimitiveRegion &region);
    DisplayItems shownImage(NodeIndex node, const PrimitiveUnits &units, const QRectF &whole,
                            const PrimitiveRegion &region);

    BuildContext &m_context;
    const FilterTarget &m_target;
};

ImagePointer FilterBuilder::image(NodeIndex node)
{
    const auto known = m_context.filterImages.constFind(node);
    if (known != m_context.filterImages.constEnd())
        return *known;
    Problem problem;
    ImagePointer read = m_context.document.resolver().image(imageReference(element(node)), &problem);
    m_context.filterImages.insert(node, read);
    return read;
}

// Like those of a "use" in the filtered element, or in units of its bounding box: moved by "x" and "y", which like
// "width" and "height" are known in the units of the element (SVG 1.1 §15.18).
FactsPointer FilterBuilder::useFacts(NodeIndex node, const PrimitiveUnits &units,
                                     const PrimitiveRegion &region) const
{
    auto *facts = new Facts;
    const FactsPointer result(facts);
    facts->style = StylePointer(new SharedStyle(inheritedStyle(*m_context.document.facts(node)->style)));
    facts->viewport = m_target.viewport;
    const QRectF box = units.ofBounds ? units.bounds : QRectF(0, 0, 1, 1);
    facts->toDocument = QTransform::fromScale(box.width(), box.height()) *
                        QTransform::fromTranslate(region.x.value_or(box.x()), region.y.value_or(box.y())) *
                        m_target.toDocument;
    if (region.width && box.width() > 0)
        facts->ownFitting().usedSize.width = *region.width / box.width();
    if (region.height && box.height() > 0)
        facts->ownFitting().usedSize.height = *region.height / box.height();
    return result;
}

// An element is shown as by a "use".
DisplayItems FilterBuilder::elementImage(NodeIndex node, const PrimitiveUnits &units, const PrimitiveRegion &region)
{
    const NodeIndex shown = m_context.document.tree().findId(hrefTarget(element(node).attributes));
    if (shown == noNode || shown == rootNode || !OpenReference::isAllowed(m_context, shown) ||
        ++m_context.budget.instances > Limits::useInstances)
        return {};
    const ElementKind kind = element(shown).kind;
    if (!isDrawable(kind) && kind != ElementKind::Symbol)
        return {};
    const OpenReference open(m_context, shown);
    const FactsPointer holder = useFacts(node, units, region);
    const Resolver resolver = m_context.document.resolver();
    const FactsPointer own = m_context.document.facts(shown);
    const FactsPointer facts = resolver.resolve(shown, holder, {own.data(), false, false, true});
    return m_context.content.element(m_context, shown, facts);
}

// The picture of an "feImage" is fitted into its subregion (Filter Effects 1 §9.12).
DisplayItems FilterBuilder::shownImage(NodeIndex node, const PrimitiveUnits &units, const QRectF &whole,
                                       const PrimitiveRegion &region)
{
    if (!hrefTarget(element(node).attributes).isEmpty())
        return elementImage(node, units, region);
    auto *facts = new Facts;
    const FactsPointer holder(facts);
    facts->image = image(node);
    if (!facts->image)
        return {};
    facts->style = m_context.document.facts(node)->style;
    facts->toDocument = m_target.toDocument;
    facts->localBounds = QRectF(region.x.value_or(whole.x()), region.y.value_or(whole.y()),
                                region.width.value_or(whole.width()), region.height.value_or(whole.height()));
    facts->ownFitting().fit = filterImageFit(element(node), *facts->image, facts->localBounds);
    DisplayItems items;
    appendImage(m_context, node, holder, &items);
    return items;
}

// False when the filter, or all filters together, would have too many primitives.
bool FilterBuilder::takePrimitive(NodeIndex filter, const FilterStep &step)
{
    if (step.primitives.size() == Limits::filterPrimitives) {
        m_context.report.add(
            Message::TooManyFilterPrimitives,
            QStringLiteral("A filter of more than %1 primitives has no effect.").arg(Limits::filterPrimitives),
            filter);
        return false;
    }
    if (m_context.appliedPrimitives == Limits::appliedPrimitives) {
        m_context.report.add(Message::TooManyFilterPrimitives,
                             QStringLiteral("Filters of more than %1 primitives together have no effect.")
                                 .arg(Limits::appliedPrimitives));
        return false;
    }
    ++m_context.appliedPrimitives;
    return true;
}

bool FilterBuilder::addPrimitives(NodeIndex filter, FilterStep *step)
{
    const PrimitiveUnits units{filterUnits(element(filter)).contentOfBounds, m_target.bounds, m_target.viewport};
    for (NodeIndex at = element(filter).firstChild; at != noNode; at = element(at).next) {
        const ElementKind kind = element(at).kind;
        if (!isPrimitive(kind))
            continue;
        if (!takePrimitive(filter, *step))
            return false;
        const FilterPrimitive primitive =
            readPrimitive(m_context.document.tree(), at, *m_context.document.facts(at)->style, units);
        const DisplayItems image =
            kind == ElementKind::FeImage ? shownImage(at, units, *step->region, primitive.region) : DisplayItems();
        if (!image.isEmpty())
            step->images.insert(step->primitives.size(), image);
        step->primitives.append(primitive);
    }
    return true;
}

bool FilterBuilder::addElement(NodeIndex filter, Filter *result, bool *drawn)
{
    if (filter == noNode || element(filter).kind != ElementKind::Filter)
        return false;
    const bool ofBounds = filterUnits(element(filter)).regionOfBounds;
    if (ofBounds && m_target.bounds.isEmpty())
        return false;
    FilterStep step;
    const double fontSize = m_context.document.facts(filter)->style->font.size;
    step.region = effectRegion(element(filter), ofBounds, {m_target.bounds, m_target.viewport, fontSize});
    if (!addPrimitives(filter, &step))
        return false;
    *drawn = *drawn && !step.region->isEmpty() && !step.primitives.isEmpty();
    result->steps.append(step);
    return true;
}

} // namespace

BuiltFilter buildFilter(BuildContext &context, const FilterTarget &target)
{
    BuiltFilter result;
    const QVector<FilterFunction> functions = filterFunctions(target.style);
    if (functions.isEmpty())
        return result;
    const auto filter = std::make_shared<Filter>();
    filter->toDocument = target.toDocument;
    filter->fillPaint = target.fillPaint;
    filter->strokePaint = target.strokePaint;
    FilterBuilder builder(context, target);
    for (const FilterFunction &function : functions)
        if (function.kind != FilterFunction::Reference)
            filter->steps.append({std::nullopt, {functionPrimitive(function, target.style)}, {}});
        else if (!builder.addElement(context.document.tree().findId(function.id), filter.get(), &result.drawn))
            return BuiltFilter();
    result.filter = filter;
    return result;
}

} // namespace Svg
