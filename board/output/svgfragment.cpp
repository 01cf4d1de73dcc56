#include "output/svgfragment.h"

#include <QtCore/QRegularExpression>
#include <QtCore/QSet>
#include <QtCore/QXmlStreamReader>
#include <QtCore/QXmlStreamWriter>

namespace board {

namespace {

/// Facts about a document that copying it needs.
struct Survey
{
    bool isSvg = false;
    bool hasStyleSheet = false;
    QSet<QString> ids;
};

QStringRef localName(const QStringRef &qualifiedName)
{
    return qualifiedName.mid(qualifiedName.indexOf(QLatin1Char(':')) + 1);
}

/// Names are copied as they stand, prefixes included.
void prepare(QXmlStreamReader &in)
{
    in.setNamespaceProcessing(false);
}

Survey surveyOf(const QByteArray &source)
{
    QXmlStreamReader in(source);
    prepare(in);
    Survey survey;
    bool isRoot = true;
    while (!in.atEnd()) {
        if (in.readNext() == QXmlStreamReader::ProcessingInstruction)
            survey.hasStyleSheet |= in.processingInstructionTarget() == QLatin1String("xml-stylesheet");
        if (!in.isStartElement())
            continue;
        const QStringRef name = localName(in.qualifiedName());
        survey.isSvg |= isRoot && name == QLatin1String("svg");
        survey.hasStyleSheet |= name == QLatin1String("style");
        isRoot = false;
        const QXmlStreamAttributes attributes = in.attributes();
        for (const QXmlStreamAttribute &attribute : attributes)
            if (attribute.qualifiedName() == QLatin1String("id"))
                survey.ids.insert(attribute.value().toString());
    }
    survey.isSvg = survey.isSvg && !in.hasError();
    return survey;
}

/// Puts the prefix before what a pattern captures as its second group, where that is an id of the document.
QString renamed(const QString &value, const QRegularExpression &pattern, const QSet<QString> &ids,
                const QString &prefix)
{
    QString result;
    int done = 0;
    auto matches = pattern.globalMatch(value);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        if (!ids.contains(match.captured(2)))
            continue;
        result += value.mid(done, match.capturedStart(2) - done) + prefix;
        done = match.capturedStart(2);
    }
    return result + value.mid(done);
}

/// An attribute's value with the ids in it renamed: those of "url(#id)" anywhere, of "#id" in links, of
/// "id.event" in times of animations.
QString renamedValue(const QStringRef &name, const QString &value, const QSet<QString> &ids, const QString &prefix)
{
    static const QRegularExpression inUrl(QStringLiteral("(url\\(\\s*['\"]?#)([^'\")\\s]+)"));
    static const QRegularExpression inLink(QStringLiteral("^(\\s*#)(.+?)\\s*$"));
    static const QRegularExpression inTime(QStringLiteral("(^|;)\\s*([^;.\\s]+)(?=\\.)"));
    static const QRegularExpression inList(QStringLiteral("(^|\\s)(\\S+)"));
    if (name == QLatin1String("id"))
        return prefix + value;
    if (localName(name) == QLatin1String("href"))
        return renamed(value, inLink, ids, prefix);
    if (name == QLatin1String("begin") || name == QLatin1String("end"))
        return renamed(value, inTime, ids, prefix);
    if (name == QLatin1String("aria-labelledby") || name == QLatin1String("aria-describedby"))
        return renamed(value, inList, ids, prefix);
    return renamed(value, inUrl, ids, prefix);
}

bool belongsToPlace(const QStringRef &name)
{
    return name == QLatin1String("x") || name == QLatin1String("y") || name == QLatin1String("width") ||
           name == QLatin1String("height") || name == QLatin1String("overflow");
}

void writePlace(QXmlStreamWriter &out, const QSizeF &size)
{
    out.writeAttribute(QStringLiteral("width"), QString::number(size.width()));
    out.writeAttribute(QStringLiteral("height"), QString::number(size.height()));
    // Outlines reach beyond the box.
    out.writeAttribute(QStringLiteral("overflow"), QStringLiteral("visible"));
}

void writeElement(QXmlStreamWriter &out, const QXmlStreamReader &in, const Survey &survey, const QString &prefix,
                  const QSizeF *rootSize)
{
    out.writeStartElement(in.qualifiedName().toString());
    const QXmlStreamAttributes attributes = in.attributes();
    for (const QXmlStreamAttribute &attribute : attributes) {
        const QStringRef name = attribute.qualifiedName();
        if (!rootSize || !belongsToPlace(name))
            out.writeAttribute(name.toString(),
                               renamedValue(name, attribute.value().toString(), survey.ids, prefix));
    }
    if (rootSize)
        writePlace(out, *rootSize);
}

void copyDocument(QXmlStreamWriter &out, const QByteArray &source, const Survey &survey, const QString &prefix,
                  const QSizeF &size)
{
    QXmlStreamReader in(source);
    prepare(in);
    bool isRoot = true;
    while (!in.atEnd()) {
        switch (in.readNext()) {
        case QXmlStreamReader::StartElement:
            writeElement(out, in, survey, prefix, isRoot ? &size : nullptr);
            isRoot = false;
            break;
        case QXmlStreamReader::EndElement:
            out.writeEndElement();
            break;
        case QXmlStreamReader::Characters:
            if (!isRoot)
                out.writeCharacters(in.text().toString());
            break;
        default:
            break;
        }
    }
}

void writeAsPicture(QXmlStreamWriter &out, const QByteArray &source, const QSizeF &size)
{
    out.writeEmptyElement(QStringLiteral("image"));
    writePlace(out, size);
    out.writeAttribute(QStringLiteral("preserveAspectRatio"), QStringLiteral("none"));
    out.writeAttribute(QStringLiteral("xlink:href"),
                       QStringLiteral("data:image/svg+xml;base64,") + QString::fromLatin1(source.toBase64()));
}

} // namespace

bool writeSvgFragment(QXmlStreamWriter &out, const QByteArray &source, const QSizeF &size, const QString &prefix)
{
    const Survey survey = surveyOf(source);
    if (!survey.isSvg)
        return false;
    if (survey.hasStyleSheet)
        writeAsPicture(out, source, size);
    else
        copyDocument(out, source, survey, prefix, size);
    return true;
}

} // namespace board
