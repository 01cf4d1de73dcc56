#include "panels/properties/attributestream.h"

#include <QtCore/QDataStream>
#include <QtCore/QtEndian>
#include <QtGui/QBrush>
#include <QtGui/QColor>

#include <algorithm>
#include <cmath>

namespace board {

namespace {

/// Code of the editor, written by GetAttribute() after the property id.
enum EditorCode : qint32 { ListCode = 1, ColorCode = 2, SwitchCode = 4, TextCode = 5, RangeCode = 7 };

constexpr int intRangeBytes = 3 * 4 + 4;  // minimum, maximum, step and the value
constexpr int realRangeBytes = 3 * 8 + 8; // the same as doubles
constexpr int colorBytes = 11;            // a QColor on a stream
constexpr int colorAtInBrush = 1;         // behind the brush's style
constexpr qint32 iconList = 2;            // the list kind whose entries carry a pixmap
constexpr qint32 mostEntries = 1000;
constexpr int mostIconPixels = 1024;

using Reading = std::optional<PropertyDescription>;

/// A stream over bytes that knows how many are left.
class Reader
{
public:
    explicit Reader(const QByteArray &bytes)
        : m_stream(bytes)
    {
    }
    template<typename Value> Value take()
    {
        Value value{};
        m_stream >> value;
        return value;
    }
    bool isGood() const { return m_stream.status() == QDataStream::Ok; }
    bool isAtEnd() const { return isGood() && m_stream.atEnd(); }
    QByteArray rest() const { return m_stream.device()->peek(m_stream.device()->bytesAvailable()); }

private:
    QDataStream m_stream;
};

/// A pixmap is a marker and a PNG file, whose header says how much memory it would take.
bool isModestPixmap(const QByteArray &bytes)
{
    constexpr int widthAt = 4 + 16; // behind the marker, the PNG signature and the head of its first chunk
    constexpr int heightAt = widthAt + 4;
    if (bytes.size() < 4 || qFromBigEndian<qint32>(bytes.constData()) == 0)
        return true;
    if (bytes.size() < heightAt + 4)
        return false;
    const auto width = qFromBigEndian<quint32>(bytes.constData() + widthAt);
    const auto height = qFromBigEndian<quint32>(bytes.constData() + heightAt);
    return width <= mostIconPixels && height <= mostIconPixels;
}

Reading readList(PropertyDescription property, Reader &in)
{
    property.kind = PropertyDescription::Choice;
    const auto count = in.take<qint32>();
    const auto chosen = in.take<qint32>();
    const auto listKind = in.take<qint32>();
    if (!in.isGood() || count < 1 || count > mostEntries)
        return {};
    for (int i = 0; i < count && in.isGood(); ++i) {
        PropertyDescription::Entry entry;
        entry.text = in.take<QString>();
        if (listKind == iconList) {
            if (!isModestPixmap(in.rest()))
                return {};
            entry.icon = in.take<QPixmap>();
        }
        property.entries.append(entry);
    }
    property.value = chosen >= 0 && chosen < count ? chosen : -1;
    return in.isAtEnd() ? Reading(property) : Reading();
}

/// Gradients and textures need not have a colour, and one of no brush is not seen.
QColor shownColor(Qt::BrushStyle style, const QColor &color)
{
    const bool isColorless = style >= Qt::LinearGradientPattern && !color.isValid();
    return style == Qt::NoBrush || isColorless ? QColor(Qt::transparent) : color;
}

Reading readColor(PropertyDescription property, const QByteArray &bytes)
{
    if (bytes.size() < colorBytes)
        return {};
    const bool isBrush = bytes.size() > colorBytes;
    // Of a brush only the colour is read: its gradient or texture is the object's own, and could be anything.
    const QByteArray colorStream = bytes.mid(isBrush ? colorAtInBrush : 0, colorBytes);
    // Qt takes over any number as the colour's model, and trips over it later.
    if (uchar(colorStream.at(0)) > QColor::ExtendedRgb)
        return {};
    Reader in(colorStream);
    const auto color = in.take<QColor>();
    const QColor shown = isBrush ? shownColor(Qt::BrushStyle(bytes.at(0)), color) : color;
    property.kind = isBrush ? PropertyDescription::Brush : PropertyDescription::Color;
    property.value = shown;
    return in.isGood() && shown.isValid() ? Reading(property) : Reading();
}

template<typename Number>
Reading readRange(PropertyDescription property, PropertyDescription::Kind kind, const QByteArray &bytes)
{
    Reader in(bytes);
    const auto minimum = in.take<Number>();
    const auto maximum = in.take<Number>();
    const auto step = in.take<Number>();
    const auto value = in.take<Number>();
    const double numbers[] = {double(minimum), double(maximum), double(step), double(value)};
    for (const double number : numbers) {
        if (!std::isfinite(number))
            return {};
    }
    if (minimum >= maximum || step < 0)
        return {};
    property.kind = kind;
    const bool isWhole = kind == PropertyDescription::WholeRange;
    const int decimals = step > 0 ? NumberRange::decimalsOf(step) : NumberRange::usualDecimals;
    property.range = {double(minimum), double(maximum), double(step), isWhole ? 0 : decimals};
    property.value = qBound(minimum, value, maximum);
    return property;
}

/// Numbers without a range have no editor code; their size tells the type.
Reading readPlainNumber(PropertyDescription property, const QByteArray &bytes)
{
    Reader in(bytes);
    if (bytes.size() == int(sizeof(qint32))) {
        property.kind = PropertyDescription::Whole;
        property.value = in.take<qint32>();
        return property;
    }
    property.kind = PropertyDescription::Real;
    property.range.decimals = NumberRange::usualDecimals;
    const auto number = bytes.size() == int(sizeof(double)) ? in.take<double>() : qQNaN();
    property.value = number;
    return std::isfinite(number) ? Reading(property) : Reading();
}

Reading readSwitch(PropertyDescription property, Reader &in)
{
    property.kind = PropertyDescription::Switch;
    property.value = in.take<bool>();
    return in.isAtEnd() ? Reading(property) : Reading();
}

Reading readText(PropertyDescription property, Reader &in)
{
    property.kind = PropertyDescription::Text;
    property.value = in.take<QString>();
    return in.isAtEnd() ? Reading(property) : Reading();
}

Reading readValue(const PropertyDescription &property, qint32 code, Reader &in)
{
    switch (code) {
    case ListCode:
        return readList(property, in);
    case ColorCode:
        return readColor(property, in.rest());
    case SwitchCode:
        return readSwitch(property, in);
    case TextCode:
        return readText(property, in);
    case RangeCode: {
        const QByteArray rest = in.rest();
        if (rest.size() == intRangeBytes)
            return readRange<qint32>(property, PropertyDescription::WholeRange, rest);
        return rest.size() == realRangeBytes ? readRange<double>(property, PropertyDescription::RealRange, rest)
                                             : Reading();
    }
    default:
        return {};
    }
}

/// Bytes that are something else seldom make text that can be printed.
bool isName(const QString &text)
{
    return !text.isEmpty() &&
           std::all_of(text.begin(), text.end(), [](QChar character) { return character.isPrint(); });
}

/// False when there is no name or flag where the stream stands.
bool readHead(PropertyDescription &property, Reader &in)
{
    property.nameKey = in.take<QString>();
    property.isEnabled = in.take<bool>();
    return in.isGood() && isName(property.nameKey);
}

} // namespace

std::optional<PropertyDescription> parseAttribute(int id, const QByteArray &bytes)
{
    PropertyDescription property;
    property.id = id;
    Reader coded(bytes);
    if (coded.take<qint32>() != id)
        return {};
    const auto code = coded.take<qint32>();
    if (readHead(property, coded)) {
        if (const Reading reading = readValue(property, code, coded))
            return reading;
    }
    // Without a code the name stands where the code would.
    Reader plain(bytes);
    plain.take<qint32>();
    return readHead(property, plain) ? readPlainNumber(property, plain.rest()) : Reading();
}

QByteArray attributeAnswer(const PropertyDescription &property, const QVariant &value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    switch (property.kind) {
    case PropertyDescription::Choice:
    case PropertyDescription::Whole:
    case PropertyDescription::WholeRange:
        out << qint32(value.toInt());
        break;
    case PropertyDescription::Real:
    case PropertyDescription::RealRange:
        out << value.toDouble();
        break;
    case PropertyDescription::Color:
        out << value.value<QColor>();
        break;
    case PropertyDescription::Brush:
        out << QBrush(value.value<QColor>());
        break;
    case PropertyDescription::Switch:
        out << value.toBool();
        break;
    case PropertyDescription::Text:
        out << value.toString();
        break;
    }
    return bytes;
}

} // namespace board
