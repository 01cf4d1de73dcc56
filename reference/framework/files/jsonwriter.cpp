#include <files/jsonwriter.h>

#include <QtCore/QJsonArray>

#include <algorithm>
#include <charconv>
#include <cmath>

namespace pagehost {

namespace {

constexpr int indentation = 2;
/// Integers below 2^53 are the same for every reader.
constexpr double exactIntegers = 9007199254740992.0;
/// Room for the shortest text of any number.
constexpr int numberCapacity = 32;

bool isPlain(const QJsonValue &value)
{
    return !value.isObject() && !value.isArray();
}

template<typename Number> void appendNumber(QByteArray &text, Number number)
{
    char digits[numberCapacity];
    const auto end = std::to_chars(digits, digits + numberCapacity, number).ptr;
    text.append(digits, int(end - digits));
}

void appendEscaped(QByteArray &text, uchar character)
{
    constexpr char hexDigits[] = "0123456789abcdef";
    switch (character) {
    case '"':
        text.append("\\\"");
        break;
    case '\\':
        text.append("\\\\");
        break;
    case '\n':
        text.append("\\n");
        break;
    case '\t':
        text.append("\\t");
        break;
    default:
        text.append("\\u00").append(hexDigits[character >> 4]).append(hexDigits[character & 0xf]);
        break;
    }
}

bool needsEscape(char character)
{
    return uchar(character) < 0x20 || character == '"' || character == '\\';
}

} // namespace

void JsonWriter::beginObject(const char *key)
{
    beginItem(key);
    m_text.append('{');
    ++m_depth;
}

void JsonWriter::endObject()
{
    --m_depth;
    if (!m_text.endsWith('{'))
        newLine();
    m_text.append('}');
}

void JsonWriter::beginArray(const char *key)
{
    beginItem(key);
    m_text.append('[');
    ++m_depth;
}

void JsonWriter::endArray()
{
    --m_depth;
    if (!m_text.endsWith('['))
        newLine();
    m_text.append(']');
}

void JsonWriter::member(const char *key, const QJsonValue &value)
{
    beginItem(key);
    writeValue(value);
}

void JsonWriter::member(const char *key, const QByteArray &asciiText)
{
    beginItem(key);
    m_text.append('"').append(asciiText).append('"');
}

void JsonWriter::member(const QString &key, const QJsonValue &value)
{
    beginItem(nullptr);
    writeString(key);
    m_text.append(": ");
    writeValue(value);
}

void JsonWriter::rawMember(const char *key, const QByteArray &text)
{
    beginItem(key);
    m_text.append(text);
}

void JsonWriter::cutBack(int size)
{
    m_text.truncate(size);
    m_isExact = true;
}

void JsonWriter::beginItem(const char *key)
{
    if (m_depth > 0) {
        if (!m_text.endsWith('{') && !m_text.endsWith('['))
            m_text.append(',');
        newLine();
    }
    if (key)
        m_text.append('"').append(key).append("\": ");
}

void JsonWriter::newLine()
{
    const int size = m_text.size();
    m_text.resize(size + 1 + indentation * m_depth);
    std::fill(m_text.begin() + size, m_text.end(), ' ');
    m_text[size] = '\n';
}

void JsonWriter::writeValue(const QJsonValue &value)
{
    switch (value.type()) {
    case QJsonValue::Bool:
        m_text.append(value.toBool() ? "true" : "false");
        break;
    case QJsonValue::Double:
        writeNumber(value);
        break;
    case QJsonValue::String:
        writeString(value.toString());
        break;
    case QJsonValue::Array:
        writeArray(value.toArray());
        break;
    case QJsonValue::Object:
        writeObject(value.toObject());
        break;
    default:
        m_text.append("null");
        break;
    }
}

void JsonWriter::writeObject(const QJsonObject &object)
{
    m_text.append('{');
    ++m_depth;
    for (auto entry = object.begin(); entry != object.end(); ++entry)
        member(entry.key(), entry.value());
    endObject();
}

void JsonWriter::writeArray(const QJsonArray &array)
{
    m_text.append('[');
    if (std::all_of(array.begin(), array.end(), isPlain)) {
        for (const QJsonValue &value : array) {
            m_text.append(m_text.endsWith('[') ? "" : ", ");
            writeValue(value);
        }
        m_text.append(']');
        return;
    }
    ++m_depth;
    for (const QJsonValue &value : array) {
        beginItem(nullptr);
        writeValue(value);
    }
    endArray();
}

void JsonWriter::writeNumber(const QJsonValue &value)
{
    const double number = value.toDouble();
    // Qt reads subnormal numbers as 0.
    if (!std::isfinite(number) || std::fpclassify(number) == FP_SUBNORMAL) {
        m_isExact = false;
        m_text.append("null");
        return;
    }
    const bool isSmall = std::abs(number) < exactIntegers;
    const bool isInteger = isSmall && double(qint64(number)) == number && !(number == 0 && std::signbit(number));
    isInteger ? appendNumber(m_text, qint64(number)) : appendNumber(m_text, number);
}

void JsonWriter::writeString(const QString &text)
{
    const QByteArray utf8 = text.toUtf8();
    m_text.append('"');
    if (std::none_of(utf8.begin(), utf8.end(), needsEscape))
        m_text.append(utf8);
    else
        for (const char character : utf8)
            needsEscape(character) ? appendEscaped(m_text, uchar(character)) : void(m_text.append(character));
    m_text.append('"');
}

} // namespace pagehost
