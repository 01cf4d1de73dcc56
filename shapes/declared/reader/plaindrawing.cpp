#include <declared/reader/plaindrawing.h>

#include <declared/reader/filereader.h>

#include <QtCore/QRectF>
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
/// Beginnings of ids that declarations and the template of a shape give a meaning to.
const QStringList meaningfulIds{QStringLiteral("control_"), QStringLiteral("label_"), QStringLiteral("figure"),
                                QStringLiteral("declared_")};
const QString penText = QStringLiteral("{pen}");
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

bool isColour(const QString &paint)
{
    return !paint.isEmpty() && paint != QLatin1String("none") && paint != QLatin1String("inherit") &&
           paint != QLatin1String("transparent");
}

void addColour(QSet<QString> &colours, const QString &value)
{
    const QString colour = value.trimmed().toLower();
    if (isColour(colour))
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

/// New ids by those that mean something in declarations.
QMap<QString, QString> renamedIds(const QVector<SourceElement> &elements)
{
    QSet<QString> ids;
    for (const SourceElement &element : elements)
        ids.insert(element.value("id"));
    QMap<QString, QString> renamed;
    for (const QString &id : qAsConst(ids)) {
        const bool hasMeaning = std::any_of(meaningfulIds.begin(), meaningfulIds.end(),
                                            [&](const QString &beginning) { return id.startsWith(beginning); });
        QString other = id;
        while (hasMeaning && ids.contains(other))
            other.prepend(QLatin1String("drawn_"));
        if (hasMeaning)
            renamed.insert(id, other);
    }
    return renamed;
}

class DrawingWriter
{
public:
    DrawingWriter(const QVector<SourceElement> &elements, const DrawingAbout &about)
        : m_elements(elements)
        , m_about(about)
        , m_renamed(renamedIds(elements))
        , m_hasOneColour(hasOneColour(elements))
        , m_writer(&m_text)
    {
    }

    QByteArray write();

private:
    void writeAbout();
    void writeAttributes(const SourceElement &element, const QSet<QString> &leftOut);
    void writePlain(const SourceAttribute &attribute);
    QString withNewIds(QString text) const;
    void writeContents(const SourceElement &element);

    const QVector<SourceElement> &m_elements;
    const DrawingAbout &m_about;
    const QMap<QString, QString> m_renamed;
    const bool m_hasOneColour;
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
    writeAbout();
    m_writer.writeStartElement(svgNamespace, QStringLiteral("g"));
    m_writer.writeAttribute(QStringLiteral("id"), QStringLiteral("figure"));
    m_writer.writeAttribute(
        QStringLiteral("transform"),
        QStringLiteral("scale(%1) translate(%2 %3)").arg(number(scale), number(-box.x()), number(-box.y())));
    if (!m_hasOneColour)
        m_writer.writeAttribute(shapeNamespace, QStringLiteral("keeps"), QStringLiteral("fill stroke"));
    writeAttributes(root, attributesOfPlace);
    writeContents(root);
    m_writer.writeEndElement();
    m_writer.writeEndElement();
    return m_text;
}

void DrawingWriter::writeAbout()
{
    m_writer.writeCharacters(QStringLiteral("\n"));
    m_writer.writeEmptyElement(shapeNamespace, QStringLiteral("about"));
    if (!m_about.id.isEmpty())
        m_writer.writeAttribute(QStringLiteral("id"), m_about.id);
    for (auto name = m_about.name.begin(); name != m_about.name.end(); ++name) {
        const bool isEnglish = name.key() == QLatin1String("en");
        m_writer.writeAttribute(QStringLiteral("name") + (isEnglish ? QString() : QLatin1Char('.') + name.key()),
                                *name);
    }
    if (!m_about.group.isEmpty())
        m_writer.writeAttribute(QStringLiteral("group"), m_about.group);
    m_writer.writeAttribute(QStringLiteral("sizing"), QStringLiteral("stretch"));
    m_writer.writeAttribute(QStringLiteral("smallest"), QStringLiteral("8 8"));
    m_writer.writeCharacters(QStringLiteral("\n"));
}

/// References to renamed elements: links, paints, the selectors of a style sheet.
QString DrawingWriter::withNewIds(QString text) const
{
    for (auto id = m_renamed.begin(); id != m_renamed.end(); ++id)
        text.replace(QRegularExpression(QStringLiteral("#%1(?![\\w-])").arg(QRegularExpression::escape(id.key()))),
                     QLatin1Char('#') + *id);
    return text;
}

/// A line takes the pen's colour and keeps its own width, which belongs to the drawing.
void DrawingWriter::writePlain(const SourceAttribute &attribute)
{
    const bool isId = attribute.name == QLatin1String("id");
    m_writer.writeAttribute(attribute.name,
                            isId ? m_renamed.value(attribute.value, attribute.value) : withNewIds(attribute.value));
    if (attribute.name == QLatin1String("stroke") && m_hasOneColour && isColour(attribute.value.trimmed()))
        m_writer.writeAttribute(shapeNamespace, attribute.name, penText);
}

void DrawingWriter::writeAttributes(const SourceElement &element, const QSet<QString> &leftOut)
{
    for (const SourceAttribute &attribute : element.attributes)
        if (attribute.namespaceUri.isEmpty() && !leftOut.contains(attribute.name))
            writePlain(attribute);
        else if (attribute.namespaceUri == linkNamespace)
            m_writer.writeAttribute(linkNamespace, attribute.name, withNewIds(attribute.value));
}

/// Recursion is as deep as files may be.
void DrawingWriter::writeContents(const SourceElement &element)
{
    for (const SourceContent &content : element.contents) {
        if (content.element < 0) {
            m_writer.writeCharacters(element.name == QLatin1String("style") ? withNewIds(content.text)
                                                                            : content.text);
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

DrawingAbout droppedDrawing()
{
    return {
        QStringLiteral("PlainDrawing"),
        {{QStringLiteral("en"), QStringLiteral("Drawing")}, {QStringLiteral("de"), QStringLiteral("Zeichnung")}},
        {}};
}

QByteArray declarationOfDrawing(const QByteArray &svg, const DrawingAbout &about, QVector<Message> *messages)
{
    SourceTree tree;
    QVector<Message> ignored;
    QVector<Message> &told = messages ? *messages : ignored;
    if (!tree.read(svg, told))
        return {};
    const QVector<SourceElement> &elements = tree.elements();
    const SourceElement &root = elements.first();
    if (root.name != QLatin1String("svg") || root.namespaceUri != svgNamespace) {
        told.append({Message::Error, QStringLiteral("C02"), 1, 1, QStringLiteral("there is no svg root")});
        return {};
    }
    const bool isDeclared = std::any_of(elements.begin(), elements.end(), [](const SourceElement &element) {
        return element.namespaceUri == shapeNamespace;
    });
    return isDeclared ? svg : DrawingWriter(elements, about).write();
}

} // namespace declared
