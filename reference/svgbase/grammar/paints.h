#pragma once

#include <QtCore/QString>
#include <QtGui/QColor>

#include <optional>

namespace Svg {

/// What a "fill" or a "stroke" asks for (SVG 1.1 §11.2).
struct Paint
{
    enum Kind : quint8 {
        /// Never mentioned: draws nothing, as `None` does, but document-wide styling may still reach it.
        Unset,
        None,
        Color,
        /// "currentColor"; replaced by a colour once the "color" property is known.
        CurrentColor,
        /// A gradient; `color` is used where it can't be found, if it is valid.
        Server,
        /// What fills or strokes the element that shows this one: with a marker, or by using it (SVG 2 §13.2).
        ContextFill,
        ContextStroke
    };
    Kind kind = Unset;
    QColor color;
    QString server;
    /// Whether the colour is the "color" property's, that of the element itself where the paint is inherited.
    bool followsColor = false;
};

/// Nothing when the text is no paint. Colours that are made of others may be made of `current`.
std::optional<Paint> parsePaint(QStringView text, const QColor &current = QColor());
/// The id in a reference of the form "#id"; empty for anything else.
QString localReference(QStringView text);
/// The id in text of the form "url(#id)", with or without quotes; empty for anything else. `rest`, when given, gets
/// what follows.
QString functionReference(QStringView text, QStringView *rest = nullptr);

} // namespace Svg
