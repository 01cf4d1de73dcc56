#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QJsonObject>

namespace shapekit {

/// The part of a text, written on the page by the user, that a control of the settings panel sets.
enum class LetterPart {
    Text,       ///< the text itself
    Font,       ///< name of the font
    Size,       ///< of the font
    Bold,       ///< weight of the font
    Italic,     ///< slant of the font
    Underlined, ///< a line under each line of text
    Colour,     ///< of the letters
    Alignment,  ///< of the lines, in the order left, middle, right or start, middle, end
    List,       ///< marks at the beginning of lines
    Width       ///< of the lines
};

/// The control in the panel's section "text", with the part as its "role": hosts offer it where a text is written.
SHAPEKIT_EXPORT QJsonObject letterControl(QJsonObject control, LetterPart part);

} // namespace shapekit
