#include "text/core/writing.h"

#include <shapekit/shapeobject.h>

#include <pagehost/objectplugin.h>
#include <pagehost/textlinks.h>
#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDataStream>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace text {

namespace {

using shapekit::Text;

const Text textText("Text", "Text");
const Text fontText("Font", "Schriftart");
const Text sizeText("Font size", "Schriftgröße");
const Text boldText("Bold", "Fett");
const Text italicText("Italic", "Kursiv");
const Text alignmentText("Alignment", "Ausrichtung");
const Text leftText("Left", "Links");
const Text middleText("Middle", "Mitte");
const Text rightText("Right", "Rechts");
const Text underlinedText("Underlined", "Unterstrichen");
const Text linksText("Links", "Verweise");
const Text wrapText("Line width", "Zeilenbreite");

constexpr double smallestFont = 4;
constexpr double largestFont = 400;
constexpr double usualFont = 24;
constexpr double widestLine = 4000;
/// Half the line around a text without letters, which is inside of its box.
constexpr double boxInset = 0.5;
/// Longer texts are cut.
constexpr int mostCharacters = 20000;
constexpr int longestFamily = 100;

/// Without the characters that XML can't have, which are never seen.
QString printable(const QString &text)
{
    QString allowed;
    const QString kept = text.left(mostCharacters);
    for (const QChar character : kept)
        if (character == QLatin1Char('\n') || character == QLatin1Char('\t') ||
            (character.unicode() >= 0x20 && character.unicode() < 0xfffe))
            allowed.append(character);
    return QString::fromUtf8(allowed.toUtf8()); // replaces halves of surrogate pairs
}

/// Without signs that mean something in lists of families.
QString familyOf(const QString &chosen)
{
    QString family = printable(chosen.left(longestFamily)).simplified();
    for (const char sign : {'"', '\'', '\\', ',', ';'})
        family.remove(QLatin1Char(sign));
    return family;
}

/// With the usual one for a machine that hasn't got it.
QString familyList(const QString &family)
{
    const QString usual = QStringLiteral("sans-serif");
    return family.isEmpty() ? usual : QStringLiteral("'%1', %2").arg(family, usual);
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

/// Begins a part of the line that is underlined, and leads to the address where that may be followed.
void beginLink(QXmlStreamWriter &writer, const QString &address)
{
    const bool leadsSomewhere = pagehost::isLinkAddress(address);
    writer.writeStartElement(leadsSomewhere ? QStringLiteral("a") : QStringLiteral("tspan"));
    if (leadsSomewhere)
        writer.writeAttribute(QStringLiteral("xlink:href"), printable(address));
    writer.writeAttribute(QStringLiteral("text-decoration"), QStringLiteral("underline"));
}

/// The letters of a line, those of links underlined.
void writeLetters(QXmlStreamWriter &writer, const TextLine &line, const QVector<pagehost::TextLink> &links)
{
    int written = 0;
    for (const pagehost::TextLink &link : links) {
        const int first = std::max(link.start - line.start, written);
        const int last = std::min(link.start + link.length - line.start, line.text.size());
        if (first >= last)
            continue;
        writer.writeCharacters(line.text.mid(written, first - written));
        beginLink(writer, link.address);
        writer.writeCharacters(line.text.mid(first, last - first));
        writer.writeEndElement();
        written = last;
    }
    writer.writeCharacters(line.text.mid(written));
}

void writeLines(QXmlStreamWriter &writer, const TextLook &look, const QVector<TextLine> &lines,
                const QVector<pagehost::TextLink> &links)
{
    writer.writeStartElement(QStringLiteral("text"));
    writer.writeAttribute(QStringLiteral("xml:space"), QStringLiteral("preserve"));
    writer.writeAttribute(QStringLiteral("font-family"), familyList(look.family));
    writer.writeAttribute(QStringLiteral("font-size"), number(look.fontSize));
    if (look.isBold)
        writer.writeAttribute(QStringLiteral("font-weight"), QStringLiteral("bold"));
    if (look.isItalic)
        writer.writeAttribute(QStringLiteral("font-style"), QStringLiteral("italic"));
    if (look.isUnderlined)
        writer.writeAttribute(QStringLiteral("text-decoration"), QStringLiteral("underline"));
    writer.writeAttribute(QStringLiteral("text-anchor"), anchorName(look.alignment));
    writer.writeAttribute(QStringLiteral("fill_follows"), QStringLiteral("pen"));
    // A line around them would make them bold.
    writer.writeAttribute(QStringLiteral("keeps"), QStringLiteral("stroke"));
    for (const TextLine &line : lines) {
        writer.writeStartElement(QStringLiteral("tspan"));
        writer.writeAttribute(QStringLiteral("x"), number(line.anchor.x()));
        writer.writeAttribute(QStringLiteral("y"), number(line.anchor.y()));
        writeLetters(writer, line, links);
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
    , m_underlined(this, underlinedText, false)
    , m_links(this, linksText)
    , m_font(this, fontText, QString())
{
    m_links.setPanels(false, false);
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
    return {printable(m_text),           m_fontSize,   m_bold,      m_italic,
            Alignment(int(m_alignment)), m_underlined, m_wrapWidth, familyOf(m_font)};
}

QString Writing::getSVG()
{
    const TextLook present = look();
    const TextLayout layout = layOut(present);
    QString svg;
    QXmlStreamWriter writer(&svg);
    writer.writeStartElement(QStringLiteral("svg"));
    writer.writeDefaultNamespace(QStringLiteral("http://www.w3.org/2000/svg"));
    writer.writeAttribute(QStringLiteral("xmlns:xlink"), QStringLiteral("http://www.w3.org/1999/xlink"));
    writer.writeAttribute(QStringLiteral("width"), number(layout.size.width()));
    writer.writeAttribute(QStringLiteral("height"), number(layout.size.height()));
    writer.writeAttribute(
        QStringLiteral("viewBox"),
        QStringLiteral("0 0 %1 %2").arg(number(layout.size.width()), number(layout.size.height())));
    // A text without letters has something to be seen and taken hold of.
    writeBox(writer, layout.size, present.text.isEmpty());
    if (!m_areLettersHidden)
        writeLines(writer, present, layout.lines, pagehost::decodedLinks(m_links));
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
    const QSizeF before = document ? document->viewBox().size() : QSizeF();
    const QColor color = getPenColor();
    reloadTemplate();
    setPenColor(color, false);
    if (isBeingLoaded || !owner->isCreateFinished() || before.isEmpty())
        return;
    const QSizeF size = owner->getClientRect().size();
    owner->setSize2(m_magnification.sizeFor(document->viewBox().size(), before, size), false);
}

bool Writing::hideLabel(int propertyId)
{
    m_areLettersHidden = propertyId == m_text.id();
    rebuild();
    invalidate();
    return true;
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
    if (propId == pagehost::LabelLinks) {
        out << qint32(1) << qint32(m_text.id()) << qint32(m_links.id()) << QByteArray(m_links);
        return true;
    }
    if (propId == pagehost::LinkAreas && document) {
        writeLinkAreas(out);
        return true;
    }
    if (propId != pagehost::VanishesEmpty)
        return ShapeOfType::GetSpecialProperty(propId, out);
    out << printable(m_text).trimmed().isEmpty();
    return true;
}

bool Writing::SetSpecialProperty(int propId, QDataStream &in, bool record)
{
    return propId == pagehost::LabelLinks ? takeLinks(in, record)
                                          : ShapeOfType::SetSpecialProperty(propId, in, record);
}

/// While they are typed: recorded, but no step to take back.
bool Writing::takeLinks(QDataStream &in, bool record)
{
    qint32 label = 0;
    QByteArray links;
    in >> label >> links;
    if (in.status() != QDataStream::Ok || label != m_text.id())
        return false;
    if (links == QByteArray(m_links))
        return true;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << links;
    QDataStream value(bytes);
    return SetAttribute(m_links.id(), value, record, false);
}

/// A box for each line that a link is on.
void Writing::writeLinkAreas(QDataStream &out)
{
    const QVector<pagehost::TextLink> links = pagehost::decodedLinks(m_links);
    const QTransform toObject = seenMapping();
    const QVector<TextLine> lines = links.isEmpty() ? QVector<TextLine>() : layOut(look()).lines;
    QVector<QPair<QRectF, QString>> areas;
    for (const TextLine &line : lines) {
        for (const pagehost::TextLink &link : links) {
            const int first = std::max(link.start - line.start, 0);
            const int last = std::min(link.start + link.length - line.start, line.text.size());
            if (first >= last)
                continue;
            QRectF box = line.box;
            box.setLeft(line.box.left() + line.advances.at(first));
            box.setRight(line.box.left() + line.advances.at(last));
            areas.append({toObject.mapRect(box.normalized()), link.address});
        }
    }
    out << qint32(areas.size());
    for (const auto &area : qAsConst(areas))
        out << area.first << area.second;
}

} // namespace text
