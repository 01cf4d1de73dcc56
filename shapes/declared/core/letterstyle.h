#pragma once

#include <declared/reader/declaration.h>

#include <shapekit/lettercontrol.h>
#include <shapekit/text.h>

#include <svgobj/csvgpropitem.h>

#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtGui/QColor>

#include <memory>
#include <optional>

class CSVGObj;
class QDataStream;

namespace shapekit {
struct Kind;
}

namespace declared {

/// Titles of the parts of a letter style.
struct LetterTitles
{
    std::unique_ptr<shapekit::Text> size, bold, italic, underlined, colour;
};

/// The look of all repeated labels of a shape, which the user sets for all of them at once. Parts that nobody has
/// set are those of the file. Sizes of different labels stay in proportion: the size is that of the first one.
class LetterStyle
{
public:
    enum Part { Size, Bold, Italic, Underlined, Colour };
    static constexpr Part parts[] = {Size, Bold, Italic, Underlined, Colour};
    /// Parts have these ids as properties and as actions, below those of the shape's own actions.
    static constexpr int firstId = 1048569;

    static constexpr double smallestFont = 2;
    static constexpr double largestFont = 400;

    /// The declarations outlive it.
    explicit LetterStyle(const QVector<LabelDeclaration> &labels);

    /// The part of an id, if the shape has repeated labels.
    std::optional<Part> partOf(int id) const;
    static int idOf(Part part) { return firstId + part; }
    static const shapekit::Text &titleOf(Part part, const LetterTitles &titles);

    /// @name The look of a label as it is drawn
    /// @{
    double sizeOf(const LabelDeclaration &label) const;
    /// By how much the user has enlarged the letters; 1 where they are as in the file, or smaller.
    double growth() const;
    bool isBold(const LabelDeclaration &label) const;
    bool isItalic() const { return m_isItalic; }
    bool isUnderlined() const { return m_isUnderlined; }
    QColor colourOf(const LabelDeclaration &label, const QColor &pen) const;
    /// @}

    /// @name Values of parts
    /// @{
    /// As panels show it.
    void write(Part part, const QColor &pen, QDataStream &out) const;
    /// As undo steps and lessons have it: a colour that follows the file is invalid.
    QByteArray bytes(Part part) const;
    /// Takes either, within the bounds. A value that can't be read changes nothing.
    void read(Part part, QDataStream &in);
    /// A colour that is the one of the file or of the pen follows it from now on.
    void dropGivenColour(const QColor &pen);
    /// @}

    /// @name The property panel
    /// @{
    static DATA_TYPE dataType(Part part);
    static QByteArray editor(Part part);
    /// @}
    /// @name The settings panel
    /// @{
    QJsonObject control(Part part, CSVGObj &object, const QString &titleKey, const QColor &pen) const;
    static QString controlId(Part part);
    static shapekit::LetterPart roleOf(Part part);
    /// The value of a control's answer as read() takes it; empty for an answer that is no value.
    QByteArray bytesOfAnswer(Part part, const QString &answer) const;
    /// @}

    /// Parts that the user has set; empty for none.
    QJsonObject toJson() const;
    /// Parts that are missing are those of the file.
    void fromJson(const QJsonObject &saved);

private:
    void reset();
    void setSize(double size);

    const LabelDeclaration *m_first; ///< null without repeated labels
    double m_size = 0;
    bool m_isBold = false;
    bool m_isItalic = false;
    bool m_isUnderlined = false;
    QColor m_colour; ///< invalid: that of the file, or of the pen
};

} // namespace declared
