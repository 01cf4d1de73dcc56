#include "resolve/resolver.h"

#include "geometry/pathmeasure.h"
#include "geometry/pathslack.h"
#include "geometry/shapegeometry.h"
#include "grammar/csstransforms.h"
#include "grammar/fontfamilies.h"
#include "grammar/inputlimits.h"
#include "grammar/numbers.h"
#include "grammar/transforms.h"
#include "properties/paintproperties.h"
#include "resolve/contextpaint.h"
#include "resolve/gradients.h"
#include "resolve/imageplacement.h"
#include "resolve/leftout.h"
#include "resolve/outlinebounds.h"
#include "resolve/patternchain.h"
#include "resolve/pens.h"
#include "resolve/viewports.h"
#include "style/cascade.h"
#include "text/textlayout.h"
#include "tree/conditions.h"

#include <array>
#include <utility>

namespace Svg {

namespace {

// Without one, every element except the root, which is a box of a page, turns about the origin (SVG 2 §8.10, §6.8).
QPointF transformOrigin(const Node &node, const ComputedStyle &style, const QRectF &box,
                        const LengthContext &context)
{
    const QPointF middle(context.viewport.width() / 2, context.viewport.height() / 2);
    const QPointF usual = node.kind == ElementKind::Document ? middle : QPointF();
    const QString text = styledAttribute(node, style, AttributeId::TransformOrigin).text();
    const std::optional<QPointF> origin =
        text.isEmpty() ? std::nullopt : parseTransformOrigin(text, {box.size(), style.font.size});
    return origin ? box.topLeft() + *origin : usual;
}

enum class TransformBox { View, OfShape, OfContent, OfStrokes };

TransformBox transformBoxOf(const Node &node, const ComputedStyle &style)
{
    const QString text = styledAttribute(node, style, AttributeId::TransformBox).text().trimmed();
    if (!isDrawable(node.kind) || node.kind == ElementKind::Document)
        return TransformBox::View;
    if (text == QLatin1String("stroke-box") || text == QLatin1String("border-box"))
        return TransformBox::OfStrokes;
    if (text != QLatin1String("fill-box") && text != QLatin1String("content-box"))
        return TransformBox::View;
    const bool isShape = hasGeometry(node.kind) && node.kind != ElementKind::Text;
    return isShape ? TransformBox::OfShape : TransformBox::OfContent;
}

/// Most characters of a value quoted in a message.
constexpr int longestQuote = 80;

QString shortened(const QString &value)
{
    return value.size() <= longestQuote ? value : value.left(longestQuote) + QStringLiteral("...");
}

Problem problemOf(const RejectedValue &rejected)
{
    if (rejected.property == AttributeId::StrokeDasharray && hasTooManyDashes(rejected.value))
        return {Message::TooManyDashes,
                QStringLiteral("A list of more than %1 dashes is left out.").arg(Limits::dashEntries)};
    if (rejected.property == AttributeId::FontFamily && hasTooManyFamilies(rejected.value))
        return {Message::ListTooLong,
                QStringLiteral("A list of more than %1 font families, or %2 characters, is left out.")
                    .arg(Limits::listedFamilies)
                    .arg(Limits::familyCharacters)};
    return {Message::InvalidProperty,
            QStringLiteral("A property does not take the value \"%1\".").arg(shortened(rejected.value))};
}

bool isBounded(double entry)
{
    return qAbs(entry) <= Limits::transformEntry;
}

bool isBounded(const QTransform &t)
{
    return isBounded(t.m11()) && isBounded(t.m12()) && isBounded(t.m21()) && isBounded(t.m22()) &&
           isBounded(t.dx()) && isBounded(t.dy());
}

// Without parts there is no style but the text's own.
bool hasOneStyle(const Tree &tree, const Node &text)
{
    for (NodeIndex child = text.firstChild; child != noNode; child = tree.node(child).next)
        if (isTextPart(tree.node(child).kind) && tree.node(child).kind != ElementKind::Characters)
            return false;
    return true;
}

// Lines may have colours of their own, or those of groups.
bool hasOnePaint(const ComputedStyle &text)
{
    return textStyleOf(text).decorations.isEmpty() && !inlineStyleOf(text).lineColor;
}

// "pathLength" is the author's measure of the length (SVG 2 §9.6.1).
double dashScale(const Node &node, const ComputedStyle &style, const QPainterPath &path)
{
    if (style.strokeDasharray.isEmpty() || !node.attributes.contains(AttributeId::PathLength))
        return 1;
    const double claimed = numberOf(node.attributes.held(AttributeId::PathLength)).value_or(-1);
    if (claimed < 0)
        return 1;
    return claimed == 0 ? 0 : PathMeasure(path).length() / claimed;
}

// A picture has no stroke.
void showPicture(const std::shared_ptr<const PlacedPicture> &picture, Outline *outline)
{
    if (!picture)
        return;
    outline->picture = picture;
    outline->pen = QPen(Qt::NoPen);
    outline->strokePaint = Qt::NoBrush;
    outline->strokePattern = noNode;
    outline->strokeFirst = false;
}

} // namespace

void Resolver::warn(const Node &node, const Problem &problem) const
{
    if (m_messages && !problem.text.isEmpty())
        m_messages->warn(problem.code, problem.text, node.line, node.column,
                         node.attributes.value(AttributeId::Id));
}

StyleCache *Resolver::styles() const
{
    if (!m_styles)
        m_styles = std::make_unique<StyleCache>();
    return m_styles.get();
}

void Resolver::resolveStyle(NodeIndex index, const KeptFacts &kept, Facts *facts) const
{
    const Node &node = m_tree.node(index);
    CascadeNotes notes;
    if (kept.style)
        facts->style = kept.facts->style;
    else
        facts->style = sharedCascade(m_tree, index, facts->parent ? facts->parent->style : initialStyle(),
                                     facts->viewport, styles(), m_messages ? &notes : nullptr);
    facts->displayed =
        facts->style->displayed && (!facts->parent || facts->parent->displayed) && passesConditions(node);
    if (notes.rulesLeftOut)
        warn(node, {Message::TooManySelectorSteps,
                    QStringLiteral("Finding all rules of the element takes too long; some are left out.")});
    if (notes.propertiesLeftOut)
        warn(node, {Message::TooManyStyleRules,
                    QStringLiteral("The element declares too many custom properties; the rest is left out.")});
    if (notes.substitutesLeftOut)
        warn(node, {Message::TooManyStyleRules,
                    QStringLiteral("Values of the element get too long by \"var()\"; the rest counts as unset.")});
    if (notes.linesLeftOut)
        warn(node, {Message::EffectsTooDeep,
                    QStringLiteral("Lines that groups of texts ask for are drawn for %1 groups inside each other.")
                        .arg(Limits::decoratingGroups)});
    // Their "fill" is not a paint.
    if (isAnimation(node.kind))
        return;
    for (const RejectedValue &rejected : qAsConst(notes.rejected))
        warn(node, problemOf(rejected));
}

bool Resolver::canMeasure() const
{
    if (m_services.measuring->revision != m_referenceRevision) {
        m_services.measuring->revision = m_referenceRevision;
        m_services.measuring->visits = 0;
    }
    const bool can =
        m_measuringDepth < Limits::contentDepth && m_services.measuring->visits < Limits::contentVisits;
    m_services.measuring->cut |= !can;
    return can;
}

// In the units of the element, without its own transform.
MeasuredContent Resolver::contentOf(NodeIndex index, const Facts &facts, ContentBox box) const
{
    Resolver inner(m_tree, m_referenceRevision, m_services);
    inner.m_measured = index;
    inner.m_measuringDepth = m_measuringDepth + 1;
    FactsPointer around;
    if (facts.parent) {
        auto *plain = new Facts(*facts.parent);
        around = FactsPointer(plain);
        plain->toDocument = QTransform();
    }
    return measuredContent(inner, m_tree, index, inner.resolve(index, around), box, m_services.measuring);
}

// Reference of percentages and of the origin of a transform (CSS Transforms 1 §5): a bounding box of the element if
// requested, else the view.
QRectF Resolver::transformBox(NodeIndex index, const Facts &facts, const LengthContext &context) const
{
    const Node &node = m_tree.node(index);
    const TransformBox box = transformBoxOf(node, *facts.style);
    const QRectF view(QPointF(), context.viewport);
    if (box == TransformBox::OfShape)
        return shapeGeometry(node, *facts.style, context.viewport).bounds;
    if (box == TransformBox::View || !canMeasure())
        return view;
    const MeasuredContent content =
        contentOf(index, facts, box == TransformBox::OfStrokes ? ContentBox::Stroke : ContentBox::Fill);
    return content.tooMuch ? view : content.bounds;
}

ContextPaint Resolver::ownPaint(const Paint &paint, Facts *facts) const
{
    NodeIndex pattern = noNode;
    const QBrush brush = brushOf(paint, 1, facts, &pattern);
    return handedDown(*facts, paint.kind, brush, pattern);
}

// A used element may be painted with gradients and patterns relative to the bounds of all of it.
void Resolver::resolveContext(NodeIndex index, Facts *facts) const
{
    facts->context = useContext(*facts);
    const ComputedStyle &style = *facts->style;
    const bool served = style.fill.kind == Paint::Server || style.stroke.kind == Paint::Server;
    if (!served || m_measuringDepth > 0 || !canMeasure())
        return;
    const MeasuredContent content = contentOf(index, *facts, ContentBox::Fill);
    if (!content.takesContextPaint)
        return;
    m_services.measuring->used = true;
    Facts target = *facts;
    target.localBounds = content.bounds;
    target.toDocument = ownTransform(index, *facts) * (facts->parent ? facts->parent->toDocument : QTransform());
    const auto context = std::make_shared<PaintContext>(*facts->context);
    if (style.fill.kind == Paint::Server)
        context->fill = ownPaint(style.fill, &target);
    if (style.stroke.kind == Paint::Server)
        context->stroke = ownPaint(style.stroke, &target);
    facts->context = context;
    facts->referenceRevision = m_referenceRevision;
}

QTransform Resolver::ownTransform(NodeIndex index, const Facts &facts) const
{
    if (index == m_measured)
        return QTransform();
    const Node &node = m_tree.node(index);
    const ComputedStyle &style = *facts.style;
    const AttributeValue &own = styledAttribute(node, style, AttributeId::Transform);
    if (own.isEmpty() && style.attributes.isEmpty())
        return QTransform();
    const bool isRoot = node.kind == ElementKind::Document;
    LengthContext context{isRoot ? rootSize(node, m_tree.window()) : facts.viewport, style.font.size};
    const QRectF box = transformBox(index, facts, context);
    context.viewport = box.size();
    std::optional<QTransform> transform = transformOf(own);
    if (!transform)
        transform = parseCssTransform(own.text(), context);
    if (!transform)
        warn(node, {Message::InvalidTransform,
                    QStringLiteral("The transform \"%1\" is not understood.").arg(shortened(own.text()))});
    // Attributes of these names have other meanings, so only style is used.
    const auto styled = [&style](AttributeId id) {
        return styledAttribute(Attributes(), style.attributes, id).text();
    };
    QTransform whole = transform.value_or(QTransform()) * individualTransforms(styled(AttributeId::Translate),
                                                                               styled(AttributeId::Rotate),
                                                                               styled(AttributeId::Scale), context);
    if (whole.isIdentity())
        return whole;
    const QPointF origin = transformOrigin(node, style, box, context);
    return QTransform::fromTranslate(-origin.x(), -origin.y()) * whole *
           QTransform::fromTranslate(origin.x(), origin.y());
}

// Of an element where it is defined, whoever refers to it.
QTransform Resolver::transformInTree(NodeIndex index, const QSizeF &viewport) const
{
    auto *around = new Facts;
    auto *facts = new Facts;
    const FactsPointer kept(facts);
    facts->parent = FactsPointer(around);
    around->style = StylePointer(new SharedStyle(styleInTree(m_tree, m_tree.node(index).parent)));
    around->viewport = facts->viewport = viewport;
    facts->style = StylePointer(new SharedStyle(styleInTree(m_tree, index)));
    return Resolver(m_tree, m_referenceRevision, m_services).ownTransform(index, *facts);
}

void Resolver::resolvePlace(NodeIndex index, Facts *facts) const
{
    const Node &node = m_tree.node(index);
    const QTransform outer = ownTransform(index, *facts);
    const bool mayAsk = !facts->style->attributes.isEmpty() || node.attributes.contains(AttributeId::TransformBox);
    const TransformBox box = mayAsk ? transformBoxOf(node, *facts->style) : TransformBox::View;
    if (box == TransformBox::OfContent || box == TransformBox::OfStrokes) {
        m_services.measuring->used = true;
        facts->referenceRevision = m_referenceRevision;
    }
    QTransform local;
    if (node.kind == ElementKind::Use) {
        const LengthReader lengths(node, *facts->style, facts->viewport);
        local = QTransform::fromTranslate(lengths.value(AttributeId::X, Axis::Horizontal),
                                          lengths.value(AttributeId::Y, Axis::Vertical));
        if (lengths.has(AttributeId::Width))
            facts->ownFitting().usedSize.width = lengths.size(AttributeId::Width, Axis::Horizontal);
        if (lengths.has(AttributeId::Height))
            facts->ownFitting().usedSize.height = lengths.size(AttributeId::Height, Axis::Vertical);
    } else if (node.kind == ElementKind::NestedSvg || node.kind == ElementKind::Symbol) {
        const Fit fit = nestedFit(node, *facts->style, facts->viewport,
                                  facts->parent ? facts->parent->fitted().usedSize : UsedSize());
        Fitting &fitting = facts->ownFitting();
        fitting.cut = viewportCut(*facts->style, fit.place, facts->viewport);
        local = fitting.fit = fit.transform;
        facts->viewport = fit.viewport;
        facts->displayed = facts->displayed && !fit.place.isEmpty();
        fitting.aroundToDocument = facts->parent ? outer * facts->parent->toDocument : outer;
    }
    if (node.kind == ElementKind::Document)
        local = rootTransform(node, outer, m_tree.window());
    else
        local *= outer;
    facts->toDocument = facts->parent ? local * facts->parent->toDocument : local;
    if (isBounded(facts->toDocument))
        return;
    // Content magnified beyond the limit is collapsed to nothing.
    facts->toDocument = QTransform(0, 0, 0, 0, 0, 0);
    warn(node, {Message::TransformTooLarge,
                QStringLiteral("What is magnified more than %1 times is left out.").arg(Limits::transformEntry)});
}

// Empty without a usable server, so that the fallback paint after the reference applies.
std::optional<QBrush> Resolver::servedBrush(NodeIndex server, double opacity, const Facts &facts,
                                            NodeIndex *pattern) const
{
    if (server == noNode)
        return std::nullopt;
    if (m_tree.node(server).kind == ElementKind::Pattern) {
        if (facts.localBounds.isEmpty() && needsBounds(PatternChain(m_tree, server)))
            return std::nullopt;
        *pattern = server;
        return QBrush(Qt::transparent);
    }
    const GradientTarget target{facts.localBounds, facts.viewport, opacity};
    std::optional<QBrush> brush = gradientBrush(m_tree, server, target, m_services.gradients);
    if (m_services.gradients->hasCutChain())
        warn(m_tree.node(server), {Message::GradientChainTooLong,
                                   QStringLiteral("Gradients beyond %1 that refer to each other are left out.")
                                       .arg(Limits::gradientReferences)});
    return brush;
}

QBrush Resolver::brushOf(const Paint &paint, double opacity, Facts *facts, int *pattern) const
{
    QColor color = paint.color;
    if (paint.kind == Paint::Server) {
        facts->referenceRevision = m_referenceRevision;
        if (const std::optional<QBrush> served = servedBrush(m_tree.findId(paint.server), opacity, *facts, pattern))
            return *served;
    } else if (const ContextPaint *above = contextPaint(*facts, paint.kind)) {
        *pattern = above->pattern;
        return contextBrush(*facts, paint.kind, opacity);
    } else if (paint.kind != Paint::Color) {
        return Qt::NoBrush;
    }
    if (!color.isValid())
        return Qt::NoBrush;
    color.setAlphaF(color.alphaF() * opacity);
    return plainBrush(color);
}

// Most elements are painted like earlier ones, in this document or in others; these share one brush.
QBrush Resolver::plainBrush(const QColor &color)
{
    static thread_local std::array<QBrush, 61> brushes;
    QBrush &known = brushes[size_t(color.rgba()) % brushes.size()];
    if (known.style() != Qt::SolidPattern || known.color() != color)
        known = QBrush(color);
    return known;
}

void Resolver::addOutline(const DrawnPath &path, const ComputedStyle &style, Facts *facts) const
{
    Outline outline;
    outline.path = withoutSlack(path.path);
    outline.openEnds = path.openEnds;
    outline.path.setFillRule(style.fillRule);
    // A path computes these on first use; done now, since facts are shared between threads.
    outline.path.boundingRect();
    outline.path.controlPointRect();
    outline.fill = brushOf(style.fill, style.fillOpacity, facts, &outline.fillPattern);
    outline.strokePaint = brushOf(style.stroke, style.strokeOpacity, facts, &outline.strokePattern);
    outline.dashScale = path.dashScale;
    outline.pen = strokePen(style, {outline.strokePaint, style.strokeWidth, std::nullopt, path.dashScale});
    outline.smooth = path.isText ? style.smoothText : style.smoothShapes;
    outline.fillKind = style.fill.kind;
    outline.strokeKind = style.stroke.kind;
    outline.fillOpacity = float(style.fillOpacity);
    outline.strokeOpacity = float(style.strokeOpacity);
    const auto first = std::find_if(style.paintOrder.begin(), style.paintOrder.end(),
                                    [](PaintStep step) { return step != PaintStep::Markers; });
    outline.strokeFirst = *first == PaintStep::Stroke;
    facts->outlines.append(outline);
}

void Resolver::resolveShape(NodeIndex index, const KeptFacts &kept, Facts *facts) const
{
    if (keepsGeometry(index, kept, *facts)) {
        keepGeometry(m_tree.node(index), *kept.facts, facts);
        return;
    }
    const Node &node = m_tree.node(index);
    Problem problem;
    const Geometry geometry = shapeGeometry(node, *facts->style, facts->viewport, &problem);
    warn(node, problem);
    facts->hasGeometry = geometry.valid;
    if (!geometry.valid)
        return;
    facts->localBounds = geometry.bounds;
    facts->bounds = mappedBounds(*facts, geometry.path);
    if (geometry.path.elementCount() > 0)
        addOutline({geometry.path, geometry.openEnds, dashScale(node, *facts->style, geometry.path), false},
                   *facts->style, facts);
    if (!kept.facts || kept.facts->outlines.isEmpty() || facts->outlines.isEmpty())
        return;
    // A repeated outline, or pen, takes no memory of its own.
    const Outline &known = kept.facts->outlines.constFirst();
    Outline &fresh = facts->outlines.first();
    if (fresh.path == known.path)
        fresh.path = known.path;
    if (fresh.pen == known.pen)
        fresh.pen = known.pen;
}

bool Resolver::keepsGeometry(NodeIndex index, const KeptFacts &kept, const Facts &facts) const
{
    const Node &node = m_tree.node(index);
    if (!kept.geometry || kept.facts->viewport != facts.viewport ||
        !isLaidOutAlike(*kept.facts->style, *facts.style))
        return false;
    if (node.kind != ElementKind::Text)
        return true;
    return kept.facts->referenceRevision == 0 && hasOneStyle(m_tree, node) && hasOnePaint(*facts.style);
}

void Resolver::keepGeometry(const Node &node, const Facts &kept, Facts *facts) const
{
    const bool isText = node.kind == ElementKind::Text;
    ComputedStyle style = static_cast<const ComputedStyle &>(*facts->style);
    if (isText)
        style.fillRule = textFillRule;
    facts->hasGeometry = kept.hasGeometry;
    facts->localBounds = kept.localBounds;
    for (const Outline &outline : kept.outlines) {
        addOutline({outline.path, outline.openEnds, isText ? 1 : dashScale(node, style, outline.path), isText},
                   style, facts);
        showPicture(outline.picture, &facts->outlines.last());
    }
    if (kept.toDocument == facts->toDocument)
        facts->bounds = kept.bounds;
    else if (isText)
        facts->bounds = mappedBounds(facts->toDocument, facts->outlines);
    else
        facts->bounds =
            mappedBounds(*facts, facts->outlines.isEmpty() ? QPainterPath() : facts->outlines.constFirst().path);
}

void Resolver::resolveText(NodeIndex index, const KeptFacts &kept, Facts *facts) const
{
    if (keepsGeometry(index, kept, *facts)) {
        keepGeometry(m_tree.node(index), *kept.facts, facts);
        return;
    }
    const auto transformOf = [this](NodeIndex shape, const QSizeF &viewport) {
        return transformInTree(shape, viewport);
    };
    const TextOutlines text =
        layOutText(m_tree, index, *facts->style, facts->viewport, {&m_glyphs, m_services.fonts, transformOf});
    warn(m_tree.node(index), text.problem);
    if (text.hasReferences)
        facts->referenceRevision = m_referenceRevision;
    // Boxes include the cells of all characters, also hidden ones and spaces (SVG 2 §8.10).
    facts->hasGeometry = !text.cells.isNull();
    facts->localBounds = text.cells;
    for (const TextRun &run : text.runs) {
        addOutline({run.path, {}, 1, true}, run.style, facts);
        showPicture(run.picture, &facts->outlines.last());
    }
    facts->bounds = mappedBounds(facts->toDocument, facts->outlines);
}

ImagePointer Resolver::image(const QString &reference, Problem *problem) const
{
    const auto known = m_images.constFind(reference);
    if (known != m_images.constEnd())
        return *known;
    ImagePointer content = readImage(reference, m_services.documents, problem);
    if (content)
        m_images.insert(reference, content);
    return content;
}

void Resolver::resolveImage(NodeIndex index, const KeptFacts &kept, Facts *facts) const
{
    const Node &node = m_tree.node(index);
    const bool plain = node.attributes.contains(AttributeId::Href);
    const QString reference = node.attributes.value(plain ? AttributeId::Href : AttributeId::XlinkHref);
    Problem problem;
    if (kept.image)
        facts->image = kept.facts->image;
    else if (!reference.isEmpty())
        facts->image = image(reference, &problem);
    warn(node, problem);
    const LengthReader lengths(node, *facts->style, facts->viewport);
    const ImagePlacement placement = imagePlacement(node, lengths, facts->image.get());
    facts->hasGeometry = true;
    facts->localBounds = placement.box;
    facts->ownFitting().fit = placement.fit;
    facts->bounds = mappedBounds(*facts, QPainterPath());
}

FactsPointer Resolver::resolve(NodeIndex index, const FactsPointer &parent, const KeptFacts &kept) const
{
    const Node &node = m_tree.node(index);
    auto *facts = new Facts;
    const FactsPointer result(facts);
    facts->parent = parent;
    facts->viewport = parent ? parent->viewport : rootViewport(node, m_tree.window());
    resolveStyle(index, kept, facts);
    const bool measuredBefore = std::exchange(m_services.measuring->cut, false);
    resolvePlace(index, facts);
    if (parent)
        facts->context = parent->context;
    if (node.kind == ElementKind::Use)
        resolveContext(index, facts);
    if (m_services.measuring->cut)
        warn(node, {Message::TooManyBoundsVisits,
                    QStringLiteral("Boxes for transforms and paints take too long to measure; others are used.")});
    m_services.measuring->cut |= measuredBefore;
    if (m_messages)
        warn(node, leftOut(m_tree, index));
    if (node.kind == ElementKind::Text)
        resolveText(index, kept, facts);
    else if (node.kind == ElementKind::Image)
        resolveImage(index, kept, facts);
    else
        resolveShape(index, kept, facts);
    return result;
}

} // namespace Svg
