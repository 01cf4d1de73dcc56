#include <frozen/listing.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QRegularExpression>

#include <cstring>

namespace {

const QString samples = QStringLiteral(GLIOLOLOK_FROZEN_SAMPLES);

QByteArray bigEndian(quint64 number, int size)
{
    QByteArray bytes;
    for (int shift = 8 * (size - 1); shift >= 0; shift -= 8)
        bytes.append(char(number >> shift & 0xff));
    return bytes;
}

QByteArray encodedDouble(double value)
{
    quint64 bits = 0;
    std::memcpy(&bits, &value, sizeof bits);
    return bigEndian(bits, sizeof bits);
}

/// The number of bytes, then two per character; a null text is told by a number that none has.
QByteArray encodedString(const QString &value)
{
    if (value == QLatin1String("null"))
        return bigEndian(0xffffffff, 4);
    const QString text = value.mid(1, value.size() - 2); // without its quotation marks
    QByteArray bytes = bigEndian(2 * quint64(text.size()), 4);
    for (const QChar character : text)
        bytes += bigEndian(character.unicode(), 2);
    return bytes;
}

QByteArray encoded(const QString &type, const QString &value)
{
    if (type == QLatin1String("bool"))
        return bigEndian(value == QLatin1String("true"), 1);
    if (type == QLatin1String("byte"))
        return bigEndian(value.toUInt(), 1);
    if (type == QLatin1String("quint16"))
        return bigEndian(value.toUInt(nullptr, 16), 2);
    if (type == QLatin1String("qint32"))
        return bigEndian(quint32(value.toInt()), 4);
    if (type == QLatin1String("double"))
        return encodedDouble(value.toDouble());
    if (type == QLatin1String("string"))
        return encodedString(value);
    if (type == QLatin1String("hex"))
        return QByteArray::fromHex(value.toLatin1());
    qFatal("a listing has the unknown type %s", qPrintable(type));
}

/// The lines of a listing, each matched by the pattern; comments left out.
QVector<QRegularExpressionMatch> lines(const QString &name, const QString &pattern)
{
    const QRegularExpression expression(QRegularExpression::anchoredPattern(pattern));
    QVector<QRegularExpressionMatch> matches;
    const QStringList texts = QString::fromUtf8(frozen::contents(name + ".txt")).split('\n', Qt::SkipEmptyParts);
    for (const QString &text : texts) {
        if (text.startsWith('#'))
            continue;
        matches.append(expression.match(text));
        if (!matches.last().hasMatch())
            qFatal("not a line of a listing: %s", qPrintable(text));
    }
    return matches;
}

const QString typeAndValue = QStringLiteral("(\\w+) +(\"[^\"]*\"|\\S+) +(\\S.*)");

QString typeOf(const QJsonValue &value)
{
    if (value.isBool())
        return QStringLiteral("bool");
    return value.isString() ? QStringLiteral("string") : QStringLiteral("number");
}

QString textOf(const QJsonValue &value)
{
    const QByteArray array = QJsonDocument(QJsonArray{value}).toJson(QJsonDocument::Compact);
    return QString::fromUtf8(array.mid(1, array.size() - 2)); // without its brackets
}

} // namespace

QStringList frozen::sampleNames(const QString &suffix)
{
    QStringList names = QDir(samples).entryList({"*." + suffix}, QDir::Files);
    for (QString &name : names)
        name.chop(suffix.size() + 1);
    return names;
}

QByteArray frozen::contents(const QString &fileName)
{
    QFile file(samples + '/' + fileName);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

QVector<frozen::Field> frozen::streamListing(const QString &name)
{
    QVector<Field> fields;
    const QVector<QRegularExpressionMatch> found = lines(name, "(\\d+) +" + typeAndValue);
    for (const QRegularExpressionMatch &line : found) {
        const QString type = line.captured(2);
        const QString value = line.captured(3);
        fields.append({line.captured(1).toInt(), type, value, line.captured(4), encoded(type, value)});
    }
    return fields;
}

QVector<frozen::Field> frozen::jsonListing(const QString &name)
{
    QVector<Field> fields;
    const QVector<QRegularExpressionMatch> found = lines(name, typeAndValue);
    for (const QRegularExpressionMatch &line : found)
        fields.append({0, line.captured(1), line.captured(2), line.captured(3), {}});
    return fields;
}

QStringList frozen::membersOf(const QJsonObject &object, const QString &prefix)
{
    QStringList members;
    for (auto member = object.begin(); member != object.end(); ++member) {
        const QJsonValue value = member.value();
        if (value.isObject())
            members += membersOf(value.toObject(), prefix + member.key() + '.');
        else
            members += QStringList({typeOf(value), textOf(value), prefix + member.key()}).join(' ');
    }
    return members;
}
