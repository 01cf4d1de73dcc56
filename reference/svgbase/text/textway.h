#pragma once

#include "geometry/pathmeasure.h"
#include "properties/computedstyle.h"
#include "text/textservices.h"

namespace Svg {

/// The path that a `textPath` puts its characters on (SVG 2 §11.8), user units of the text.
class TextWay
{
public:
    /// The path of a `textPath` element; of length 0 without a target.
    TextWay(const Tree &tree, NodeIndex textPath, const ComputedStyle &style, const QSizeF &viewport,
            const OwnTransform &transformOf);

    /// Whether the path has too many elements to be followed.
    bool isTooLong() const { return m_tooLong; }
    double length() const { return m_measure.length(); }
    /// Start of the text before anchoring.
    double startOffset() const { return m_startOffset; }
    /// The transform at the middle of a character, `distance` along the path. Empty for a character that is not
    /// shown: beyond the ends, or, on a closed path, more than once around from the start.
    std::optional<PathMeasure::Place> at(double distance, TextAnchor anchor) const;
    /// Where text continues after the path.
    QPointF end() const { return m_measure.at(m_measure.length()).point; }

private:
    TextWay(const Tree &tree, NodeIndex textPath, const ComputedStyle &style, const QPainterPath &path);

    PathMeasure m_measure;
    bool m_tooLong = false;
    double m_startOffset = 0;
    bool m_closed = false;
};

} // namespace Svg
