#include "resolve/patternplaces.h"

#include "grammar/viewboxes.h"

namespace Svg {

namespace {

/// Places one pattern.
class PatternPlacing
{
public:
    PatternPlacing(const PatternChain &chain, const QRectF &bounds, const QSizeF &viewport, double fontSize)
        : m_chain(chain)
        , m_bounds(bounds)
        , m_viewport(viewport)
        , m_fontSize(fontSize)
        , m_units(chain.isTileOfBounds() ? QSizeF(1, 1) : viewport)
    {
    }

    bool placeTile(PatternPlace *place) const;
    bool placeContent(PatternPlace *place) const;
    bool turn(PatternPlace *place) const;

private:
    double length(const char *name, Axis axis) const;

    const PatternChain &m_chain;
    QRectF m_bounds;
    QSizeF m_viewport;
    /// Of the pattern's own element, user units.
    double m_fontSize;
    /// Percentages of the tile refer to these.
    QSizeF m_units;
};

double PatternPlacing::length(const char *name, Axis axis) const
{
    const Length length = lengthOf(m_chain.held(QString(QLatin1String(name)))).value_or(Length());
    return toUserUnits(length, axis, {m_units, m_fontSize});
}

bool PatternPlacing::placeTile(PatternPlace *place) const
{
    const QRectF box(length("x", Axis::Horizontal), length("y", Axis::Vertical), length("width", Axis::Horizontal),
                     length("height", Axis::Vertical));
    const QRectF &b = m_bounds;
    place->tile = box;
    if (m_chain.isTileOfBounds())
        place->tile = QRectF(b.x() + box.x() * b.width(), b.y() + box.y() * b.height(), box.width() * b.width(),
                             box.height() * b.height());
    return box.width() > 0 && box.height() > 0 && !place->tile.isEmpty();
}

bool PatternPlacing::placeContent(PatternPlace *place) const
{
    const QRectF &tile = place->tile;
    place->contentViewport = m_viewport;
    const std::optional<QRectF> box = viewBoxOf(m_chain.held(QStringLiteral("viewBox")));
    if (box) {
        const AspectRatio ratio = parseAspectRatio(m_chain.held(QStringLiteral("preserveAspectRatio")).text());
        const std::optional<QTransform> fitted = viewBoxTransform(*box, tile, ratio);
        place->toPattern = fitted.value_or(QTransform());
        place->contentViewport = box->size();
        return fitted.has_value();
    }
    const QSizeF scale = m_chain.isContentOfBounds() ? m_bounds.size() : QSizeF(1, 1);
    place->toPattern = QTransform(scale.width(), 0, 0, scale.height(), tile.x(), tile.y());
    return !m_chain.isContentOfBounds() || !m_bounds.isEmpty();
}

bool PatternPlacing::turn(PatternPlace *place) const
{
    place->toTarget = resolved(m_chain.transform(), QRectF(QPointF(), m_units), m_fontSize);
    return place->toTarget.isInvertible();
}

} // namespace

std::optional<PatternPlace> patternPlace(const PatternChain &chain, const QRectF &bounds, const QSizeF &viewport,
                                         double fontSize)
{
    const PatternPlacing placing(chain, bounds, viewport, fontSize);
    PatternPlace place;
    const bool paints = placing.placeTile(&place) && placing.placeContent(&place) && placing.turn(&place);
    return paints ? std::make_optional(place) : std::nullopt;
}

} // namespace Svg
