// The settings of a text: its own properties, and those of its letters in a section of their own.

#include "text/core/lists.h"
#include "text/core/writing.h"

#include <shapekit/lettercontrol.h>

#include <svgobj/csvgobj.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>

#include <utility>

namespace text {

namespace {

using shapekit::LetterPart;
using shapekit::Text;

const Text colourText("Text colour", "Textfarbe");
const Text listText("List", "Liste");
const Text noListText("No list", "Keine Liste");
const Text bulletsText("Bullets", "Aufzählung");
const Text numbersText("Numbers", "Nummerierung");

const QString colourId = QStringLiteral("idTextColour");
const QString listId = QStringLiteral("idList");

template<class Value> QByteArray bytesOf(const Value &value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    return bytes;
}

} // namespace

QVector<const Text *> Writing::texts() const
{
    return ShapeOfType::texts() +
           QVector<const Text *>{&colourText, &listText, &noListText, &bulletsText, &numbersText};
}

bool Writing::GetSettingArray(QJsonArray &settings)
{
    QString colour = getPenColor().name(QColor::HexArgb);
    QString colourControl = colourId;
    QString colourTitle = colourText.key(kind());
    QString listControl = listId;
    QString listTitle = listText.key(kind());
    QList<QString> icons;
    QList<QString> entries{noListText.key(kind()), bulletsText.key(kind()), numbersText.key(kind())};
    QJsonObject font = m_font.control(*owner);
    font[QStringLiteral("valueType")] = QStringLiteral("font");
    const QJsonObject picker = owner->GetSettingJsonColorPicker(colourControl, colourTitle, colour);
    const QJsonObject list =
        owner->GetSettingJsonComboBox(listControl, listTitle, int(listKindOf(m_text)), icons, entries);
    const std::pair<QJsonObject, LetterPart> controls[] = {{m_text.control(*owner), LetterPart::Text},
                                                           {font, LetterPart::Font},
                                                           {m_fontSize.control(*owner), LetterPart::Size},
                                                           {m_bold.control(*owner), LetterPart::Bold},
                                                           {m_italic.control(*owner), LetterPart::Italic},
                                                           {m_underlined.control(*owner), LetterPart::Underlined},
                                                           {picker, LetterPart::Colour},
                                                           {m_alignment.control(*owner), LetterPart::Alignment},
                                                           {list, LetterPart::List},
                                                           {m_wrapWidth.control(*owner), LetterPart::Width}};
    for (const auto &[control, part] : controls)
        settings.append(shapekit::letterControl(control, part));
    return true;
}

bool Writing::SetSettingArray(QMap<QString, QString> &values, bool record, bool undo)
{
    ShapeOfType::SetSettingArray(values, record, undo);
    const QColor colour(values.value(colourId));
    if (colour.isValid()) {
        QDataStream in(bytesOf(colour));
        SetAttribute(PROP_SVG_PENCOLOR, in, record, undo);
    }
    bool isKind = false;
    const int kind = values.value(listId).toInt(&isKind);
    if (isKind && kind >= int(ListKind::None) && kind <= int(ListKind::Numbers)) {
        QDataStream in(bytesOf(asList(m_text, ListKind(kind))));
        SetAttribute(m_text.id(), in, record, undo);
    }
    return true;
}

} // namespace text
