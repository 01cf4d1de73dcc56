#include "shape/drawing.h"

#include <declared/reader/filelimits.h>
#include <declared/reader/filereader.h>

#include <shapekit/picturedata.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QFile>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

#include <memory>

namespace shapetool {

namespace {

/// Longer side of an icon as a shape, units.
constexpr double iconSide = 120;
/// A drawing is an icon, and enlarged, up to this size.
constexpr double largestIcon = 64;
const QString currentColor = QStringLiteral("currentColor");

/// The paints that a drawing names.
struct Paints
{
    QSet<QString> colours;
    bool hasStyles = false; ///< style sheets and style attributes are not looked into
};

bool isColour(const QString &paint)
{
    return !paint.isEmpty() && paint != QLatin1String("none") && paint != QLatin1String("inherit") &&
           !paint.startsWith(QLatin1String("url"));
}

Paints paintsOf(const QByteArray &svg)
{
    Paints paints;
    for (QXmlStreamReader reader(svg); !reader.atEnd();) {
        if (reader.readNext() != QXmlStreamReader::StartElement)
            continue;
        const QXmlStreamAttributes attributes = reader.attributes();
        paints.hasStyles |=
            reader.name() == QLatin1String("style") || attributes.hasAttribute(QLatin1String("style"));
        for (const char *name : {"fill", "stroke", "stop-color"}) {
            const QString paint = attributes.value(QLatin1String(name)).toString().trimmed();
            if (isColour(paint))
                paints.colours.insert(paint.toLower());
        }
    }
    return paints;
}

/// Copies the drawing into a document of the wanted size, without what isn't SVG and without control points.
class DrawingWriter
{
public:
    DrawingWriter(const QByteArray &svg, const QString &name, const QString &group)
        : m_reader(svg)
        , m_writer(&m_text)
        , m_name(name)
        , m_group(group)
        , m_paints(paintsOf(svg))
    {
    }
    QByteArray text(const QRectF &box, const QSizeF &size);

private:
    void begin(const QRectF &box, const QSizeF &size);
    void copyContent();
    void copyElement();
    void copyAttribute(const QXmlStreamAttribute &attribute);
    bool isSvg() const
    {
        return m_reader.namespaceUri() == declared::svgNamespace || m_reader.namespaceUri().isEmpty();
    }
    /// One colour gives way to the user's.
    bool hasOneColour() const { return !m_paints.hasStyles && m_paints.colours.size() <= 1; }

    QByteArray m_text;
    QXmlStreamReader m_reader;
    QXmlStreamWriter m_writer;
    QString m_name;
    QString m_group;
    Paints m_paints;
};

QByteArray DrawingWriter::text(const QRectF &box, const QSizeF &size)
{
    m_reader.readNextStartElement();
    begin(box, size);
    copyContent();
    m_writer.writeEndDocument();
    return m_text;
}

void DrawingWriter::begin(const QRectF &box, const QSizeF &size)
{
    m_writer.setAutoFormatting(true);
    m_writer.writeStartDocument();
    m_writer.writeStartElement(QStringLiteral("svg"));
    m_writer.writeDefaultNamespace(declared::svgNamespace);
    m_writer.writeNamespace(declared::shapeNamespace, QStringLiteral("shape"));
    m_writer.writeNamespace(QStringLiteral("http://www.w3.org/1999/xlink"), QStringLiteral("xlink"));
    m_writer.writeAttribute(QStringLiteral("viewBox"),
                            QStringLiteral("0 0 %1 %2").arg(size.width()).arg(size.height()));
    m_writer.writeEmptyElement(declared::shapeNamespace, QStringLiteral("about"));
    m_writer.writeAttribute(QStringLiteral("name"), m_name);
    m_writer.writeAttribute(QStringLiteral("group"), m_group);
    m_writer.writeAttribute(QStringLiteral("sizing"), QStringLiteral("stretch"));
    m_writer.writeAttribute(QStringLiteral("aspect"), QStringLiteral("kept"));
    m_writer.writeStartElement(QStringLiteral("g"));
    m_writer.writeAttribute(QStringLiteral("id"), QStringLiteral("figure"));
    m_writer.writeAttribute(
        QStringLiteral("transform"),
        QStringLiteral("scale(%1) translate(%2 %3)").arg(size.width() / box.width()).arg(-box.x()).arg(-box.y()));
    if (!hasOneColour())
        m_writer.writeAttribute(declared::shapeNamespace, QStringLiteral("keeps"), QStringLiteral("fill stroke"));
    const QXmlStreamAttributes attributes = m_reader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QStringRef name = attribute.qualifiedName();
        const bool isOfRoot = name == QLatin1String("viewBox") || name == QLatin1String("width") ||
                              name == QLatin1String("height") || name == QLatin1String("x") ||
                              name == QLatin1String("y") || name == QLatin1String("id") ||
                              name == QLatin1String("version") || name == QLatin1String("preserveAspectRatio");
        if (!isOfRoot)
            copyAttribute(attribute);
    }
}

void DrawingWriter::copyContent()
{
    for (int depth = 1; depth > 0 && !m_reader.atEnd();) {
        const QXmlStreamReader::TokenType token = m_reader.readNext();
        if (token == QXmlStreamReader::StartElement && !isSvg()) {
            m_reader.skipCurrentElement();
        } else if (token == QXmlStreamReader::StartElement) {
            ++depth;
            copyElement();
        } else if (token == QXmlStreamReader::EndElement) {
            --depth;
            m_writer.writeEndElement();
        } else if (token == QXmlStreamReader::Characters && !m_reader.isWhitespace()) {
            m_writer.writeCharacters(m_reader.text().toString());
        }
    }
}

void DrawingWriter::copyElement()
{
    m_writer.writeStartElement(m_reader.name().toString());
    const QXmlStreamAttributes attributes = m_reader.attributes();
    for (const QXmlStreamAttribute &attribute : attributes)
        copyAttribute(attribute);
}

void DrawingWriter::copyAttribute(const QXmlStreamAttribute &attribute)
{
    const QString name = attribute.name().toString();
    const bool isControlPoint =
        name == QLatin1String("id") && attribute.value().startsWith(QLatin1String("control_"));
    const bool isPlain = attribute.prefix().isEmpty() || attribute.prefix() == QLatin1String("xlink");
    if (!isPlain || isControlPoint || name == QLatin1String("class"))
        return;
    if (attribute.prefix().isEmpty())
        m_writer.writeAttribute(name, attribute.value().toString());
    else
        m_writer.writeAttribute(attribute.namespaceUri().toString(), name, attribute.value().toString());
    // A line takes the pen's colour and keeps its own width, which belongs to the drawing.
    if (name == QLatin1String("stroke") && hasOneColour() && isColour(attribute.value().toString()))
        m_writer.writeAttribute(declared::shapeNamespace, name, QStringLiteral("{pen}"));
}

} // namespace

Drawing readDrawing(const QString &path)
{
    Drawing drawing;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        drawing.problem = QStringLiteral("%1 can't be read: %2").arg(path, file.errorString());
        return drawing;
    }
    drawing.svg = file.read(declared::limits::fileBytes + 1);
    QVector<QZeSvgTinyDocument::Message> messages;
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(drawing.svg, &messages));
    if (drawing.svg.size() > declared::limits::fileBytes)
        drawing.problem = QStringLiteral("%1 is larger than 1 MiB").arg(path);
    else if (!document)
        drawing.problem = QStringLiteral("%1:%2:%3: %4")
                              .arg(path)
                              .arg(messages.value(0).line)
                              .arg(messages.value(0).column)
                              .arg(messages.value(0).text);
    return drawing;
}

QByteArray shapeOfDrawing(const Drawing &drawing, const QString &name, const QString &group)
{
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(drawing.svg));
    const QSizeF natural = shapekit::naturalSizeOf(*document);
    const double longer = std::max(natural.width(), natural.height());
    const QSizeF size = longer <= largestIcon ? natural * (iconSide / longer) : natural;
    const bool hasBox = !document->attribute(QStringLiteral("viewBox")).isEmpty();
    const QRectF box = hasBox ? document->viewBox() : QRectF(QPointF(0, 0), natural);
    return DrawingWriter(drawing.svg, name, group).text(box, size);
}

} // namespace shapetool
