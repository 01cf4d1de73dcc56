#pragma once

#include "images/images.h"
#include "resolve/contentbounds.h"
#include "resolve/facts.h"
#include "resolve/gradients.h"
#include "style/stylecache.h"
#include "text/documentfonts.h"
#include "text/glyphoutlines.h"
#include "tree/message.h"
#include "tree/tree.h"

namespace Svg {

/// Facts of the same element, earlier or at another place, and the parts of them that are still valid while its
/// style is the same. Equal outlines share their memory in any case.
struct KeptFacts
{
    const Facts *facts = nullptr;
    /// Nothing that style depends on has changed.
    bool style = false;
    /// Nothing that outlines depend on has changed, except possibly the style.
    bool geometry = false;
    /// The content of an "image" is unchanged.
    bool image = false;
};

/// A path to make an outline of.
struct DrawnPath
{
    QPainterPath path;
    QVector<int> openEnds;
    double dashScale = 1;
    bool isText = false;
};

/// Parts of a document that resolving uses beside its tree. Gradients and fonts are kept as long as the reference
/// revision stays the same.
struct ResolverServices
{
    GradientCache *gradients;
    DocumentFonts *fonts;
    /// Counts what is measured for boxes of content.
    ContentMeasuring *measuring;
    const DocumentReader &documents;
};

/// Turns elements into facts: resolves style, units, references and geometry.
class Resolver
{
public:
    /// `messages`, when given, receives what could not be understood.
    Resolver(const Tree &tree, quint32 referenceRevision, const ResolverServices &services,
             Messages *messages = nullptr)
        : m_tree(tree)
        , m_referenceRevision(referenceRevision)
        , m_services(services)
        , m_messages(messages)
    {
        m_services.gradients->setRevision(referenceRevision);
        m_services.fonts->setRevision(referenceRevision);
    }

    /// The facts of an element that stands under (or is used under) one with the given facts; null facts for the
    /// root.
    FactsPointer resolve(NodeIndex index, const FactsPointer &parent, const KeptFacts &kept = {}) const;
    /// The "transform" of an element, with its origin applied.
    QTransform ownTransform(NodeIndex index, const Facts &facts) const;
    /// The content shown by a reference of an element; equal references are read once.
    ImagePointer image(const QString &reference, Problem *problem) const;

private:
    StyleCache *styles() const;
    void resolveStyle(NodeIndex index, const KeptFacts &kept, Facts *facts) const;
    QTransform transformInTree(NodeIndex index, const QSizeF &viewport) const;
    void resolvePlace(NodeIndex index, Facts *facts) const;
    bool canMeasure() const;
    MeasuredContent contentOf(NodeIndex index, const Facts &facts, ContentBox box) const;
    QRectF transformBox(NodeIndex index, const Facts &facts, const LengthContext &context) const;
    void resolveContext(NodeIndex index, Facts *facts) const;
    void resolveShape(NodeIndex index, const KeptFacts &kept, Facts *facts) const;
    void resolveImage(NodeIndex index, const KeptFacts &kept, Facts *facts) const;
    bool keepsGeometry(NodeIndex index, const KeptFacts &kept, const Facts &facts) const;
    void keepGeometry(const Node &node, const Facts &kept, Facts *facts) const;
    void resolveText(NodeIndex index, const KeptFacts &kept, Facts *facts) const;
    void addOutline(const DrawnPath &path, const ComputedStyle &style, Facts *facts) const;
    std::optional<QBrush> servedBrush(NodeIndex server, double opacity, const Facts &facts,
                                      NodeIndex *pattern) const;
    ContextPaint ownPaint(const Paint &paint, Facts *facts) const;
    QBrush brushOf(const Paint &paint, double opacity, Facts *facts, int *pattern) const;
    static QBrush plainBrush(const QColor &color);
    void warn(const Node &node, const Problem &problem) const;

    const Tree &m_tree;
    quint32 m_referenceRevision;
    ResolverServices m_services;
    Messages *m_messages;
    /// The element whose content is measured, without its own transform.
    NodeIndex m_measured = noNode;
    /// How many elements around this one are being measured.
    int m_measuringDepth = 0;
    mutable GlyphOutlines m_glyphs;
    mutable std::unique_ptr<StyleCache> m_styles;
    mutable QHash<QString, ImagePointer> m_images;
};

} // namespace Svg
