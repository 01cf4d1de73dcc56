#pragma once

#include <shapekit/labellayout.h>
#include <shapekit/lettercontrol.h>
#include <shapekit/property.h>
#include <shapekit/shapekit_global.h>
#include <shapekit/styledshape.h>

#include <array>
#include <optional>

namespace shapekit {

/// The texts that panels show for the properties of a label. All outlive it.
struct LabelTexts
{
    const Text *text;      ///< name of the text
    const Text *size;      ///< name of the size of the font
    const Text *bold;      ///< name of the weight
    const Text *colour;    ///< name of the colour
    const Text *alignment; ///< name of the alignment
    /// Entries of the alignment, in the order of LabelAlignment.
    QVector<const Text *> alignments;
};

/// "Text", "Font size", "Bold", "Text colour" and "Alignment", for a shape with one label.
SHAPEKIT_EXPORT const LabelTexts &usualLabelTexts();

/// A text where it stands, for StyledShape::labelPlaces(). The corner is that of the box; document units.
SHAPEKIT_EXPORT LabelPlace placeOf(int propertyId, const LabelLook &look, QPointF corner, double fontSize,
                                   const QColor &color);

/// A text that the user writes into a box of the shape, with size, weight, colour and alignment as properties of
/// the shape. It is a member of the shape; the shape draws it and tells where it stands
/// (StyledShape::labelPlaces()).
class SHAPEKIT_EXPORT Label
{
public:
    /// Smallest size of the font that the user can set, document units.
    static constexpr double smallestFont = 2;
    /// Largest size of the font that the user can set, document units.
    static constexpr double largestFont = 400;

    /// Registers the properties at the shape, in the order of properties(). Text and look are those of a new shape.
    /// The shape saves them itself, by toJson().
    Label(PropertiedShape *shape, const LabelTexts &texts, const LabelLook &look, const QColor &color);

    /// Text and look in a box of that size, document units.
    LabelLook look(const QSizeF &box) const;
    /// Colour of the letters.
    QColor color() const { return m_color; }
    /// The text where it stands, for StyledShape::labelPlaces(): its box and the size of its letters
    /// (LabelLayout::size), document units.
    LabelPlace place(const QRectF &box, double fontSize) const;
    /// Text, size, weight, colour and alignment.
    std::array<Property *, 5> properties();
    /// The part that a control of the settings panel (Property::controlId()) sets; none for one of another
    /// property.
    std::optional<LetterPart> partOfControl(const QString &id) const;

    /// Whether text and look are those of a new shape.
    bool isAsNew() const;
    /// All values, by "text", "size", "bold", "colour" and "align".
    QJsonObject toJson() const;
    /// Reads what toJson() writes; values that are missing or can't be read are those of a new shape.
    void fromJson(const QJsonObject &saved);

private:
    LabelLook m_newLook;
    QColor m_newColor;
    TextValue m_text;
    RealNumber m_size;
    Switch m_bold;
    ColorValue m_color;
    Choice m_alignment;
};

} // namespace shapekit
