#pragma once

#include "properties/computedstyle.h"
#include "tree/tree.h"

#include <QtCore/QRectF>
#include <QtCore/QSharedData>
#include <QtGui/QBrush>
#include <QtGui/QPainterPath>
#include <QtGui/QPen>
#include <QtGui/QTransform>

#include <functional>
#include <memory>
#include <optional>

namespace Svg {

struct Facts;
struct ImageContent;
struct PlacedPicture;
using FactsPointer = QExplicitlySharedDataPointer<const Facts>;
/// Returns the facts of a node without animation.
using FactsOfNode = std::function<FactsPointer(NodeIndex)>;

/// One outline with the paint of its fill and stroke; user units of its element.
struct Outline
{
    QPainterPath path;
    /// Elements that end an open subpath where it began; a stroke has caps there.
    QVector<int> openEnds;
    QBrush fill = Qt::NoBrush;
    /// Paint of the pen; set even if the pen draws nothing, since document-wide styling may widen it.
    QBrush strokePaint = Qt::NoBrush;
    QPen pen = Qt::NoPen;
    /// Patterns that replace the brushes, which then only tell that there is paint.
    int fillPattern = -1;
    int strokePattern = -1;
    /// Paints of the style: a pattern may come from a context.
    Paint::Kind fillKind = Paint::Unset;
    Paint::Kind strokeKind = Paint::Unset;
    /// Of its style, for the patterns.
    float fillOpacity = 1;
    float strokeOpacity = 1;
    /// Whether its edges are smoothed.
    bool smooth = true;
    /// Whether its stroke lies under its fill.
    bool strokeFirst = false;
    /// Scale of the lengths of dashes; 0 for a solid line.
    double dashScale = 1;
    /// A glyph's picture shown instead, within the path; user units. Null for all other outlines.
    std::shared_ptr<const PlacedPicture> picture;
};

/// A paint with everything that it is relative to, so that other elements can be painted with it.
struct ContextPaint
{
    QBrush brush = Qt::NoBrush;
    /// A pattern that replaces the brush.
    int pattern = -1;
    /// Of the element that the paint belongs to, its user units.
    QRectF bounds;
    QSizeF viewport;
    QTransform toDocument;
};

/// Values of "context-fill" and "context-stroke".
struct PaintContext
{
    ContextPaint fill;
    ContextPaint stroke;
};

/// The sides that are set; the others are the used element's own.
struct UsedSize
{
    std::optional<double> width;
    std::optional<double> height;
};

/// Facts of viewports, images and uses only.
struct Fitting : QSharedData
{
    /// How the box of an image's content, or a nested view box, is fitted into the units around it.
    QTransform fit;
    /// Of a "use": the size that it sets for a used "svg" or "symbol", user units.
    UsedSize usedSize;
    /// Of a viewport that clips its content: its box, in the units around it.
    std::optional<QRectF> cut;
    /// Of a viewport: the units around it, in which the clip lies.
    QTransform aroundToDocument;
};

/// Everything that drawing and measuring need to know of one element at its place. Facts never change: an element
/// that changes gets new ones, and so do its children, whose facts name the parent they were resolved against.
struct Facts : QSharedData
{
    FactsPointer parent;
    /// Revision of gradients and references; 0 when none of them matters here.
    quint32 referenceRevision = 0;
    StylePointer style = initialStyle();
    /// Content of an "image"; null for other elements.
    std::shared_ptr<const ImageContent> image;
    /// Null for most elements; fitted() returns a default then.
    QSharedDataPointer<Fitting> fitting;
    /// Null outside of markers and used elements.
    std::shared_ptr<const PaintContext> context;
    /// Reference of percentages, user units.
    QSizeF viewport;
    QTransform toDocument;
    /// Whether neither the element nor one above it has a "display" of none.
    bool displayed = true;
    /// One for most elements, one per differently painted part for text; none for an element without geometry.
    QVector<Outline> outlines;
    /// Bounds of the geometry without strokes: user units, document units. Null without geometry.
    QRectF localBounds;
    QRectF bounds;
    bool hasGeometry = false;

    /// Whether they were resolved against a parent with the same inherited style.
    bool inheritsAlike(const FactsPointer &above) const;
    const Fitting &fitted() const;
    /// For changes while the facts are made.
    Fitting &ownFitting();
};

} // namespace Svg
