#pragma once

#include "paint/itemmapping.h"
#include "paint/paintbudget.h"
#include "scene/pattern.h"

#include <QtCore/QHash>

namespace Svg {

/// The pictures of tiles that a drawing made, one for each pattern and size, and the remaining budget for more.
/// Tiles that appear in many places, and in tiles of other patterns, are painted once.
class PatternTiles final : public PatternBrushes
{
public:
    QBrush brush(const Pattern &pattern, const QTransform &transform) override;

    const PaintBudget &budget() const { return m_budget; }
    const MappingBudget &mapping() const { return m_mapping; }
    /// Whether a tile was left out.
    bool isExhausted() const { return m_exhausted; }

private:
    QImage painted(const Pattern &pattern, const QSize &size, const QTransform &tileToPicture);
    QImage picture(const Pattern &pattern, const QSize &size, const QTransform &tileToPicture);

    QHash<QPair<const Pattern *, QPair<int, int>>, QImage> m_pictures;
    double m_pixelsLeft = Limits::patternsPixels;
    PaintBudget m_budget = PaintBudget::ofTiles();
    MappingBudget m_mapping;
    bool m_exhausted = false;
};

} // namespace Svg
