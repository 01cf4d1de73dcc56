#pragma once

#include <QtCore/QString>
#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// Value of "fill" or "stroke" (SVG 1.1 §11.2).
struct Paint
{
    enum Kind : quint8 {
        /// Not specified: draws nothing, like `None`, but document-wide styling may still apply.
        Unset,
        None,
        Color,
        /// "currentColor"; replaced by a colour once the "color" property is known.
        CurrentColor,
        /// A gradient; if it can't be found, `color` is used if valid.
        Server,
        /// The fill or stroke of the element that shows this one in a marker or through "use" (SVG 2 §13.2).
        ContextFill,
        ContextStroke
    };
    Kind kind = Unset;
    QColor color;
    QString server;
    /// Whether the colour is that of the "color" property, of the element itself even if the paint is inherited.
    bool followsColor = false;

    bool operator==(const Paint &other) const
    {
        return kind == other.kind && color == other.color && server == other.server &&
               followsColor == other.followsColor;
    }
};

/// No value for text that is not a paint. Relative and mixed colours may refer to `current`.
std::optional<Paint> parsePaint(QStringView text, const QColor &current = QColor());
/// The id in a reference of the form "#id"; empty for anything else.
QString localReference(QStringView text);
/// The id in text of the form "url(#id)", with or without quotes; empty for anything else. `rest`, if given,
/// receives the text that follows.
QString functionReference(QStringView text, QStringView *rest = nullptr);

} // namespace Svg
