#include "text/core/writing.h"

#include <shapekit/shapeobject.h>

#include <pagehost/objectplugin.h>
#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDataStream>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace text {

namespace {

using shapekit::Text;

const Text textText("Text", "Text");
const Text sizeText("Font size", "Schriftgröße");
const Text boldText("Bold", "Fett");
const Text italicText("Italic", "Kursiv");
const Text alignmentText("Alignment", "Ausrichtung");
const Text leftText("Left", "Links");
const Text middleText("Middle", "Mitte");
const Text rightText("Right", "Rechts");
const Text wrapText("Line width", "Zeilenbreite");

constexpr double smallestFont = 4;
constexpr double largestFont = 400;
constexpr double usualFont = 24;
constexpr double widestLine = 4000;
/// Half the line around a text without letters, which is inside of its box.
constexpr double boxInset = 0.5;
/// Longer texts are cut.
constexpr int mostCharacters = 20000;

/// Without the characters that XML can't have, which are never seen.
QString printable(const QString &text)
{
    QString allowed;
    for (const QChar character : text.left(mostCharacters))
        if (character == QLatin1Char('\n') || character == QLatin1Char('\t') ||
            (character.unicode() >= 0x20 && character.unicode() < 0xfffe))
            allowed.append(character);
    const QString whole = QString::fromUtf8(allowed.toUtf8()); // replaces halves of surrogate pairs
    return whole;
}

QString anchorName(Alignment alignment)
{
    return alignment == Alignment::Left    ? QStringLiteral("start")
           : alignment == Alignment::Right ? QStringLiteral("end")
                                           : QStringLiteral("middle");
}

Qt::Alignment alignmentOf(Alignment alignment)
{
    return Qt::AlignTop | (alignment == Alignment::Left    ? Qt::AlignLeft
                           : alignment == Alignment::Right ? Qt::AlignRight
                                                           : Qt::AlignHCenter);
}

QString number(double value)
{
    return QString::number(value, 'g', 10);
}

void writeBox(QXmlStreamWriter &writer, const QSizeF &size, bool isShown)
{
    writer.writeEmptyElement(QStringLiteral("rect"));
    writer.writeAttribute(QStringLiteral("id"), QStringLiteral("area"));
    writer.writeAttribute(QStringLiteral("x"), number(boxInset));
    writer.writeAttribute(QStringLiteral("y"), number(boxInset));
    writer.writeAttribute(QStringLiteral("width"), number(size.width() - 2 * boxInset));
    writer.writeAttribute(QStringLiteral("height"), number(size.height() - 2 * boxInset));
    writer.writeAttribute(QStringLiteral("fill"), QStringLiteral("none"));
    writer.writeAttribute(QStringLiteral("stroke"), isShown ? QStringLiteral("#7d8896") : QStringLiteral("none"));
    writer.writeAttribute(QStringLiteral("keeps"), QStringLiteral("stroke"));
}

void writeLines(QXmlStreamWriter &writer, const TextLook &look, const QVector<TextLine> &lines)
{
    writer.writeStartElement(QStringLiteral("text"));
    writer.writeAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    writer.writeAttribute(QStringLiteral("font-family"), QStringLiteral("sans-serif"));
    writer.writeAttribute(QStringLiteral("font-size"), number(look.fontSize));
    if (look.isBold)
        writer.writeAttribute(QStringLiteral("font-weight"), QStringLiteral("bold"));
    if (look.isItalic)
        writer.writeAttribute(QStringLiteral("font-style"), QStringLiteral("italic"));
    writer.writeAttribute(QStringLiteral("text-anchor"), anchorName(look.alignment));
    writer.writeAttribute(QStringLiteral("fill_follows"), QStringLiteral("pen"));
    for (const TextLine &line : lines) {
        writer.writeStartElement(QStringLiteral("tspan"));
        writer.writeAttribute(QStringLiteral("x"), number(line.anchor.x()));
        writer.writeAttribute(QStringLiteral("y"), number(line.anchor.y()));
        writer.writeCharacters(line.text);
        writer.writeEndElement();
    }
    writer.writeEndElement();
}

} // namespace

Writing::Writing(CSVGObj *owner)
    : ShapeOfType(owner)
    , m_text(this, textText, QString())
    , m_fontSize(this, sizeText, usualFont, smallestFont, largestFont, 1)
    , m_bold(this, boldText, false)
    , m_italic(this, italicText, false)
    , m_alignment(this, alignmentText, 0, {&leftText, &middleText, &rightText})
    , m_wrapWidth(this, wrapText, 0, 0, widestLine, 10)
{
    propPenStyleEnabled = propPenWidthEnabled = false;
}

Writing *Writing::of(CBaseObject *object)
{
    return shapekit::coreOf<Writing>(object);
}

void Writing::begin(const QColor &color, double fontSize)
{
    setPenColor(color, false);
    m_fontSize = fontSize;
    rebuild();
    shapekit::finishCreation(*owner);
}

void Writing::wrapTo(double width)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << width;
    QDataStream in(bytes);
    SetAttribute(m_wrapWidth.id(), in, true, false);
}

TextLook Writing::look() const
{
    return {printable(m_text), m_fontSize, m_bold, m_italic, Alignment(int(m_alignment)), m_wrapWidth};
}

QString Writing::getSVG()
{
    const TextLook present = look();
    const TextLayout layout = layOut(present);
    QString svg;
    QXmlStreamWriter writer(&svg);
    writer.writeStartElement(QStringLiteral("svg"));
    writer.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
    writer.writeAttribute(QStringLiteral("width"), number(layout.size.width()));
    writer.writeAttribute(QStringLiteral("height"), number(layout.size.height()));
    writer.writeAttribute(
        QStringLiteral("viewBox"),
        QStringLiteral("0 0 %1 %2").arg(number(layout.size.width())).arg(number(layout.size.height())));
    // A text without letters has something to be seen and taken hold of.
    writeBox(writer, layout.size, present.text.isEmpty());
    writeLines(writer, present, layout.lines);
    writer.writeEndElement();
    return svg;
}

QSizeF Writing::getDefaultSVGSize()
{
    return document ? document->viewBox().size() : ShapeOfType::getDefaultSVGSize();
}

void Writing::propertyChanged(const shapekit::Property *)
{
    rebuild();
}

/// The box takes the size of the new text at the present magnification.
void Writing::rebuild()
{
    const double before = document ? document->viewBox().width() : 0;
    const QColor color = getPenColor();
    reloadTemplate();
    setPenColor(color, false);
    if (isBeingLoaded || !owner->isCreateFinished() || before <= 0)
        return;
    const double magnification = owner->getClientRect().width() / before;
    owner->setSize2(document->viewBox().size() * magnification, false);
}

QVector<shapekit::LabelPlace> Writing::labelPlaces()
{
    shapekit::LabelPlace place;
    place.propertyId = m_text.id();
    place.text = m_text;
    place.box = document->viewBox();
    place.fontSize = m_fontSize;
    place.isBold = m_bold;
    place.color = getPenColor();
    place.alignment = alignmentOf(Alignment(int(m_alignment)));
    return {place};
}

bool Writing::GetSpecialProperty(int propId, QDataStream &out)
{
    if (propId != pagehost::VanishesEmpty)
        return ShapeOfType::GetSpecialProperty(propId, out);
    out << printable(m_text).trimmed().isEmpty();
    return true;
}

} // namespace text
