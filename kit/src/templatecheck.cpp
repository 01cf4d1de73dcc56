#include <shapekit/templatecheck.h>

#include <shapekit/attributeplaces.h>
#include <shapekit/kind.h>
#include <shapekit/place.h>
#include <shapekit/suggestion.h>
#include <shapekit/tagscanner.h>
#include <shapekit/textplaces.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QMap>
#include <QtCore/QRegularExpression>
#include <QtCore/QSet>

#include <algorithm>
#include <memory>
#include <optional>

namespace shapekit {

namespace {

using pagehost::PluginMessage;

constexpr int mostPoints = 32;

/// Attributes of SVG 1.1 (appendix M), SVG 2 and SMIL without a prefix.
constexpr char elementAttributes[] =
    "accent-height accumulate additive alphabetic amplitude arabic-form ascent attributeName "
    "attributeType azimuth baseFrequency baseProfile bbox begin bias by calcMode cap-height class "
    "clipPathUnits color contentScriptType contentStyleType cx cy d descent diffuseConstant divisor dur "
    "dx dy edgeMode elevation end exponent externalResourcesRequired fill filterRes filterUnits format fr "
    "from fx fy g1 g2 glyph-name glyphRef gradientTransform gradientUnits hanging height horiz-adv-x "
    "horiz-origin-x horiz-origin-y href id ideographic in in2 intercept k k1 k2 k3 k4 kernelMatrix "
    "kernelUnitLength keyPoints keySplines keyTimes lang lengthAdjust limitingConeAngle local "
    "markerHeight markerUnits markerWidth maskContentUnits maskUnits mathematical max media method min "
    "mode name numOctaves offset onload operator order orient orientation origin overline-position "
    "overline-thickness panose-1 path pathLength patternContentUnits patternTransform patternUnits points "
    "pointsAtX pointsAtY pointsAtZ preserveAlpha preserveAspectRatio primitiveUnits r radius refX refY "
    "rendering-intent repeatCount repeatDur requiredExtensions requiredFeatures restart result rotate rx "
    "ry scale seed slope spacing specularConstant specularExponent spreadMethod startOffset stdDeviation "
    "stemh stemv stitchTiles strikethrough-position strikethrough-thickness string style surfaceScale "
    "systemLanguage tableValues target targetX targetY textLength title to transform type u1 u2 "
    "underline-position underline-thickness unicode unicode-range units-per-em v-alphabetic v-hanging "
    "v-ideographic v-mathematical values version vert-adv-y vert-origin-x vert-origin-y viewBox "
    "viewTarget width widths x x-height x1 x2 xChannelSelector xmlns y y1 y2 yChannelSelector z "
    "zoomAndPan";

/// Presentation attributes of SVG 1.1, and those of CSS that the SVG library reads.
constexpr char presentationAttributes[] =
    "alignment-baseline baseline-shift clip clip-path clip-rule color-interpolation "
    "color-interpolation-filters color-profile color-rendering cursor direction display dominant-baseline "
    "enable-background fill-opacity fill-rule filter flood-color flood-opacity font font-family "
    "font-kerning font-size font-size-adjust font-stretch font-style font-variant font-variant-ligatures "
    "font-weight glyph-orientation-horizontal glyph-orientation-vertical image-rendering inline-size "
    "isolation kerning letter-spacing lighting-color line-height marker marker-end marker-mid "
    "marker-start mask mask-type mix-blend-mode opacity overflow paint-order pointer-events "
    "shape-rendering stop-color stop-opacity stroke stroke-dasharray stroke-dashoffset stroke-linecap "
    "stroke-linejoin stroke-miterlimit stroke-opacity stroke-width text-anchor text-decoration "
    "text-decoration-color text-decoration-line text-decoration-style text-decoration-thickness "
    "text-orientation text-rendering text-transform text-underline-offset text-underline-position "
    "transform-box transform-origin translate unicode-bidi vector-effect visibility white-space "
    "word-spacing writing-mode";

/// Attributes of shapes.
constexpr char shapeAttributes[] =
    "x_from x_to y_from y_to x_move y_move x_follows y_follows x_offset y_offset keeps fill_follows "
    "stroke_follows";

const QStringList &knownAttributes()
{
    static const QStringList names = [] {
        QStringList all;
        for (const char *part : {elementAttributes, presentationAttributes, shapeAttributes})
            all += QString::fromLatin1(part).split(QLatin1Char(' '));
        return all;
    }();
    return names;
}

/// Ignored: names of other namespaces, data for programs, and scripts, which never run.
bool isOfNobody(const QString &name)
{
    return name.contains(QLatin1Char(':')) || name.startsWith(QLatin1String("data-")) ||
           name.startsWith(QLatin1String("aria-")) || name.startsWith(QLatin1String("on")) ||
           name == QLatin1String("role") || name == QLatin1String("tabindex");
}

/// The places of the ids of a template.
QMap<QString, int> idsOf(const QString &text)
{
    QMap<QString, int> ids;
    TagScanner scanner(text);
    for (RawTag tag; scanner.next(tag);) {
        const int start = tag.offsetOf(QStringLiteral("id"));
        if (start != tag.offset)
            ids.insert(valueAt(text, start), start);
    }
    return ids;
}

/// Reads one template and collects its faults.
class TemplateCheck
{
public:
    TemplateCheck(const QString &text, const QString &file)
        : m_text(text)
        , m_file(file)
        , m_places(text)
        , m_attributes(text)
    {
        TagScanner scanner(m_text);
        for (RawTag tag; scanner.next(tag);)
            m_tags.append(tag);
    }
    QVector<PluginMessage> faults();

private:
    void report(PluginMessage::Severity severity, const char *code, int offset, const QString &text);
    bool isReadable();
    void reportLibraryMessage(const QZeSvgTinyDocument::Message &message, const char *code);
    void checkTag(const RawTag &tag);
    void checkNames(const RawTag &tag);
    void checkRoot(const RawTag &tag);
    void checkLook(const RawTag &tag);
    void checkPoint(const RawTag &tag);
    void checkAxis(const RawTag &tag, const QString &axis);
    void checkNumbering();
    bool has(const RawTag &tag, const QString &attribute) const;
    QString value(const RawTag &tag, const QString &attribute) const;
    double limit(const RawTag &tag, const QString &attribute, double otherwise);

    QString m_text;
    QString m_file;
    TextPlaces m_places;
    AttributePlaces m_attributes;
    QVector<RawTag> m_tags;
    QString m_element; ///< id of the element that is being checked
    QSet<QString> m_ids;
    QMap<int, int> m_points; ///< offsets by number
    QVector<PluginMessage> m_messages;
};

QVector<PluginMessage> TemplateCheck::faults()
{
    if (isReadable()) {
        for (const RawTag &tag : qAsConst(m_tags))
            checkTag(tag);
        checkNumbering();
    }
    std::stable_sort(m_messages.begin(), m_messages.end(), [](const PluginMessage &a, const PluginMessage &b) {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    });
    return m_messages;
}

void TemplateCheck::report(PluginMessage::Severity severity, const char *code, int offset, const QString &text)
{
    const auto [line, column] = m_places.of(offset);
    m_messages.append({severity, QLatin1String(code), m_file, line, column, m_element, text});
}

bool TemplateCheck::isReadable()
{
    if (m_text.isEmpty()) {
        m_messages.append({PluginMessage::Error,
                           QStringLiteral("K01"),
                           m_file,
                           0,
                           0,
                           {},
                           QStringLiteral("there is no template, or it is empty")});
        return false;
    }
    QVector<QZeSvgTinyDocument::Message> messages;
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(m_text.toUtf8(), &messages));
    for (const QZeSvgTinyDocument::Message &message : qAsConst(messages))
        reportLibraryMessage(message, document ? "K02" : "K01");
    return document != nullptr;
}

/// The library gives the end of an element; authors look for the attribute.
void TemplateCheck::reportLibraryMessage(const QZeSvgTinyDocument::Message &message, const char *code)
{
    const bool isError = message.severity == QZeSvgTinyDocument::Message::Error;
    m_messages.append({isError ? PluginMessage::Error : PluginMessage::Warning, QLatin1String(code), m_file,
                       message.line, message.column, message.elementId, message.text});
    const std::optional<TextPlace> place = isError ? std::nullopt : m_attributes.of(message);
    if (!place)
        return;
    m_messages.last().line = place->line;
    m_messages.last().column = place->column;
}

void TemplateCheck::checkTag(const RawTag &tag)
{
    m_element = value(tag, QStringLiteral("id"));
    if (tag.name == QLatin1String("svg") && m_ids.isEmpty() && m_points.isEmpty())
        checkRoot(tag);
    checkNames(tag);
    checkLook(tag);
    if (m_element.isEmpty())
        return;
    if (m_ids.contains(m_element))
        report(PluginMessage::Warning, "K11", tag.offsetOf(QStringLiteral("id")),
               QStringLiteral("another element has the id \"%1\"").arg(m_element));
    m_ids.insert(m_element);
    if (m_element.startsWith(QLatin1String("control_")))
        checkPoint(tag);
}

void TemplateCheck::checkNames(const RawTag &tag)
{
    for (const RawAttribute &attribute : tag.attributes)
        if (!isOfNobody(attribute.name) && !knownAttributes().contains(attribute.name))
            report(PluginMessage::Warning, "K03", attribute.offset,
                   QStringLiteral("there is no attribute \"%1\"%2")
                       .arg(attribute.name, suggestion(attribute.name, knownAttributes())));
}

void TemplateCheck::checkRoot(const RawTag &tag)
{
    const QStringList parts = value(tag, QStringLiteral("viewBox"))
                                  .split(QRegularExpression(QStringLiteral("[\\s,]+")), Qt::SkipEmptyParts);
    if (parts.size() == 4 && parts.at(2).toDouble() > 0 && parts.at(3).toDouble() > 0)
        return;
    report(PluginMessage::Error, "K08", tag.offsetOf(QStringLiteral("viewBox")),
           QStringLiteral("the template needs a viewBox of four numbers, with a positive width and height"));
}

void TemplateCheck::checkLook(const RawTag &tag)
{
    const QStringList kept = value(tag, QStringLiteral("keeps")).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &part : kept)
        if (part != QLatin1String("fill") && part != QLatin1String("stroke"))
            report(PluginMessage::Error, "K09", tag.offsetOf(QStringLiteral("keeps")),
                   QStringLiteral("\"keeps\" takes \"fill\", \"stroke\" or both, not \"%1\"").arg(part));
    for (const QString &name : {QStringLiteral("fill_follows"), QStringLiteral("stroke_follows")})
        if (has(tag, name) && value(tag, name) != QLatin1String("pen"))
            report(PluginMessage::Error, "K09", tag.offsetOf(name),
                   QStringLiteral("\"%1\" takes \"pen\", not \"%2\"").arg(name, value(tag, name)));
}

void TemplateCheck::checkPoint(const RawTag &tag)
{
    bool isNumber = false;
    const int number = m_element.midRef(int(qstrlen("control_"))).toInt(&isNumber);
    if (!isNumber || number < 1) {
        report(PluginMessage::Error, "K05", tag.offsetOf(QStringLiteral("id")),
               QStringLiteral("control points are numbered from 1: \"control_1\", \"control_2\""));
        return;
    }
    m_points.insert(number, tag.offsetOf(QStringLiteral("id")));
    checkAxis(tag, QStringLiteral("x"));
    checkAxis(tag, QStringLiteral("y"));
}

void TemplateCheck::checkAxis(const RawTag &tag, const QString &axis)
{
    const QString follows = axis + QLatin1String("_follows");
    if (has(tag, follows) && !Following::ruleNames().contains(value(tag, follows)))
        report(PluginMessage::Error, "K09", tag.offsetOf(follows),
               QStringLiteral("\"%1\" takes %2, not \"%3\"%4")
                   .arg(follows, Following::ruleNames().join(QStringLiteral(", ")), value(tag, follows),
                        suggestion(value(tag, follows), Following::ruleNames())));
    const QString offset = axis + QLatin1String("_offset");
    const QStringList distances = value(tag, offset).split(QLatin1Char(' '), Qt::SkipEmptyParts);
    for (const QString &distance : distances) {
        bool isNumber = false;
        distance.toDouble(&isNumber);
        if (!isNumber || distances.size() > 2)
            report(PluginMessage::Error, "K09", tag.offsetOf(offset),
                   QStringLiteral("\"%1\" takes one or two numbers").arg(offset));
    }
    const QString from = axis + QLatin1String("_from");
    const QString to = axis + QLatin1String("_to");
    const double start = value(tag, axis).toDouble();
    const double low = limit(tag, from, start);
    const double high = limit(tag, to, start);
    if (low > start || high < start)
        report(PluginMessage::Error, "K07", tag.offsetOf(low > start ? from : to),
               QStringLiteral("the limits exclude the point's own \"%1\", which is %2").arg(axis).arg(start));
}

double TemplateCheck::limit(const RawTag &tag, const QString &attribute, double otherwise)
{
    if (!has(tag, attribute))
        return otherwise;
    bool isNumber = false;
    const double number = value(tag, attribute).toDouble(&isNumber);
    if (isNumber)
        return number;
    report(PluginMessage::Error, "K07", tag.offsetOf(attribute),
           QStringLiteral("\"%1\" is a number, not \"%2\"").arg(attribute, value(tag, attribute)));
    return otherwise;
}

void TemplateCheck::checkNumbering()
{
    int expected = 1;
    for (auto point = m_points.cbegin(); point != m_points.cend(); ++point, ++expected) {
        m_element = QStringLiteral("control_%1").arg(point.key());
        if (point.key() != expected) {
            report(PluginMessage::Error, "K05", point.value(),
                   QStringLiteral("there is no \"control_%1\"; this point is not found").arg(expected));
            return;
        }
        if (expected > mostPoints) {
            report(PluginMessage::Error, "K06", point.value(),
                   QStringLiteral("a shape has at most %1 control points").arg(mostPoints));
            return;
        }
    }
}

bool TemplateCheck::has(const RawTag &tag, const QString &attribute) const
{
    return tag.offsetOf(attribute) != tag.offset;
}

QString TemplateCheck::value(const RawTag &tag, const QString &attribute) const
{
    if (!has(tag, attribute))
        return {};
    return valueAt(m_text, tag.offsetOf(attribute));
}

} // namespace

QVector<PluginMessage> templateFaults(const QString &text, const QString &file)
{
    return TemplateCheck(text, file).faults();
}

void checkTemplate(const Kind &kind)
{
    const QVector<PluginMessage> faults = templateFaults(kind.templateText, kind.templateName());
    for (const PluginMessage &fault : faults)
        kind.log->report(fault);
}

void reportUnknownNode(const Kind &kind, const QString &id)
{
    const QString code = QStringLiteral("K04");
    if (kind.log->has(code, id))
        return;
    const QMap<QString, int> ids = idsOf(kind.templateText);
    const QString meant = nearestName(id, ids.keys());
    const int offset = ids.value(meant, -1);
    PluginMessage message{PluginMessage::Error,
                          code,
                          kind.templateName(),
                          0,
                          0,
                          id,
                          QStringLiteral("no node has the id \"%1\"%2").arg(id, suggestion(id, ids.keys()))};
    if (offset >= 0) {
        const auto [line, column] = TextPlaces(kind.templateText).of(offset);
        message.line = line;
        message.column = column;
    }
    kind.log->report(message);
}

} // namespace shapekit
