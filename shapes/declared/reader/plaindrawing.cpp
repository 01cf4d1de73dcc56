#include <declared/reader/plaindrawing.h>

#include <declared/reader/filereader.h>

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QXmlStreamWriter>

#include <algorithm>

namespace declared {

namespace {

const QString linkNamespace = QStringLiteral("http://www.w3.org/1999/xlink");
/// The longer side of a new shape, document units.
constexpr double shortestSide = 120;
constexpr double longestSide = 640;
constexpr double usualSide = 100;

/// Attributes of the root that say where the drawing lies, not how it looks.
const QSet<QString> attributesOfPlace{QStringLiteral("viewBox"),     QStringLiteral("width"),
                                      QStringLiteral("height"),      QStringLiteral("x"),
                                      QStringLiteral("y"),           QStringLiteral("id"),
                                      QStringLiteral("transform"),   QStringLiteral("version"),
                                      QStringLiteral("baseProfile"), QStringLiteral("preserveAspectRatio")};
const QStringList paints{QStringLiteral("fill"), QStringLiteral("stroke"), QStringLiteral("stop-color"),
                         QStringLiteral("flood-color"), QStringLiteral("lighting-color")};

/// Of a length in plain numbers or pixels; 0 for others.
double pixelsOf(const QString &length)
{
    static const QRegularExpression plain(QStringLiteral("^\\s*(\\d+(?:\\.\\d*)?|\\.\\d+)(?:px)?\\s*$"));
    return plain.match(length).captured(1).toDouble();
}

QRectF boxOf(const SourceElement &root)
{
    const QStringList parts =
        root.value("viewBox").split(QRegularExpression(QStringLiteral("[\\s,]+")), Qt::SkipEmptyParts);
    if (parts.size() == 4) {
        const QRectF box(parts[0].toDouble(), parts[1].toDouble(), parts[2].toDouble(), parts[3].toDouble());
        if (!box.isEmpty())
            return box;
    }
    const QSizeF size(pixelsOf(root.value("width")), pixelsOf(root.value("height")));
    return {QPointF(), size.isEmpty() ? QSizeF(usualSide, usualSide) : size};
}

void addColour(QSet<QString> &colours, const QString &value)
{
    const QString colour = value.trimmed().toLower();
    if (!colour.isEmpty() && colour != QLatin1String("none") && colour != QLatin1String("inherit") &&
        colour != QLatin1String("transparent"))
        colours.insert(colour);
}

/// Of style sheets and "style" attributes.
void addColoursOfStyle(QSet<QString> &colours, const QString &style)
{
    static const QRegularExpression declaration(
        QStringLiteral("(?:^|[;{\\s])(?:%1)\\s*:\\s*([^;}!]+)").arg(paints.join(QLatin1Char('|'))));
    QRegularExpressionMatchIterator found = declaration.globalMatch(style);
    while (found.hasNext())
        addColour(colours, found.next().captured(1));
}

QSet<QString> coloursOf(const QVector<SourceElement> &elements)
{
    QSet<QString> colours;
    for (const SourceElement &element : elements) {
        for (const QString &paint : paints)
            if (const SourceAttribute *attribute = element.attribute(paint))
                addColour(colours, attribute->value);
        addColoursOfStyle(colours, element.value("style"));
        for (const SourceContent &content : element.contents)
            if (element.name == QLatin1String("style"))
                addColoursOfStyle(colours, content.text);
    }
    return colours;
}

/// The user's pen and fill would spoil pictures, gradients and drawings of several colours.
bool hasOneColour(const QVector<SourceElement> &elements)
{
    const bool hasPicture = std::any_of(elements.begin(), elements.end(), [](const SourceElement &element) {
        return element.name == QLatin1String("image") || element.name.endsWith(QLatin1String("Gradient"));
    });
    return !hasPicture && coloursOf(elements).size() <= 1;
}

QString number(double value)
{
    return QString::number(value, 'g', 10);
}

class DrawingWriter
{
public:
    explicit DrawingWriter(const QVector<SourceElement> &elements)
        : m_elements(elements)
        , m_writer(&m_text)
    {
    }

    QByteArray write();

private:
    void writeAttributes(const SourceElement &element, const QSet<QString> &leftOut);
    void writeContents(const SourceElement &element);

    const QVector<SourceElement> &m_elements;
    QByteArray m_text;
    QXmlStreamWriter m_writer;
};

QByteArray DrawingWriter::write()
{
    const SourceElement &root = m_elements.first();
    const QRectF box = boxOf(root);
    const double longer = std::max(box.width(), box.height());
    const double scale = std::clamp(longer, shortestSide, longestSide) / longer;
    m_writer.writeDefaultNamespace(svgNamespace);
    m_writer.writeNamespace(shapeNamespace, QStringLiteral("shape"));
    m_writer.writeNamespace(linkNamespace, QStringLiteral("xlink"));
    m_writer.writeStartElement(svgNamespace, QStringLiteral("svg"));
    m_writer.writeAttribute(
        QStringLiteral("viewBox"),
        QStringLiteral("0 0 %1 %2").arg(number(box.width() * scale), number(box.height() * scale)));
    m_writer.writeEmptyElement(shapeNamespace, QStringLiteral("about"));
    m_writer.writeAttribute(QStringLiteral("id"), QStringLiteral("PlainDrawing"));
    m_writer.writeAttribute(QStringLiteral("name"), QStringLiteral("Drawing"));
    m_writer.writeAttribute(QStringLiteral("name.de"), QStringLiteral("Zeichnung"));
    m_writer.writeAttribute(QStringLiteral("sizing"), QStringLiteral("stretch"));
    m_writer.writeAttribute(QStringLiteral("smallest"), QStringLiteral("8 8"));
    m_writer.writeStartElement(svgNamespace, QStringLiteral("g"));
    m_writer.writeAttribute(
        QStringLiteral("transform"),
        QStringLiteral("scale(%1) translate(%2 %3)").arg(number(scale), number(-box.x()), number(-box.y())));
    if (!hasOneColour(m_elements))
        m_writer.writeAttribute(shapeNamespace, QStringLiteral("keeps"), QStringLiteral("fill stroke"));
    writeAttributes(root, attributesOfPlace);
    writeContents(root);
    m_writer.writeEndElement();
    m_writer.writeEndElement();
    return m_text;
}

void DrawingWriter::writeAttributes(const SourceElement &element, const QSet<QString> &leftOut)
{
    for (const SourceAttribute &attribute : element.attributes) {
        // Ids that mean something in declarations.
        const bool isOfShapes =
            attribute.name == QLatin1String("id") && attribute.value.startsWith(QLatin1String("control_"));
        if (isOfShapes || (attribute.namespaceUri.isEmpty() && leftOut.contains(attribute.name)))
            continue;
        if (attribute.namespaceUri.isEmpty())
            m_writer.writeAttribute(attribute.name, attribute.value);
        else if (attribute.namespaceUri == linkNamespace)
            m_writer.writeAttribute(linkNamespace, attribute.name, attribute.value);
    }
}

/// Recursion is as deep as files may be.
void DrawingWriter::writeContents(const SourceElement &element)
{
    for (const SourceContent &content : element.contents) {
        if (content.element < 0) {
            m_writer.writeCharacters(content.text);
            continue;
        }
        const SourceElement &child = m_elements.at(content.element);
        if (child.namespaceUri != svgNamespace)
            continue;
        m_writer.writeStartElement(svgNamespace, child.name);
        writeAttributes(child, {});
        writeContents(child);
        m_writer.writeEndElement();
    }
}

} // namespace

QByteArray declarationOfDrawing(const QByteArray &svg)
{
    SourceTree tree;
    QVector<Message> messages;
    if (!tree.read(svg, messages))
        return {};
    const QVector<SourceElement> &elements = tree.elements();
    const SourceElement &root = elements.first();
    if (root.name != QLatin1String("svg") || root.namespaceUri != svgNamespace)
        return {};
    const bool isDeclared = std::any_of(elements.begin(), elements.end(), [](const SourceElement &element) {
        return element.namespaceUri == shapeNamespace;
    });
    return isDeclared ? svg : DrawingWriter(elements).write();
}

} // namespace declared
