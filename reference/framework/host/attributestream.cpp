#include <pagehost/attributestream.h>

#include <framework/cbaseobject.h>

#include <host/attributehead.h>
#include <host/payload.h>
#include <host/streamedcolors.h>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtCore/QtEndian>

#include <algorithm>
#include <cmath>

namespace pagehost {

namespace {

constexpr int intRangeBytes = 3 * 4 + 4;  // minimum, maximum, step and value
constexpr int realRangeBytes = 3 * 8 + 8; // the same as doubles
constexpr qint32 textList = 0;
constexpr qint32 iconList = 2; // each entry has a pixmap after its text
constexpr qint32 mostEntries = 1000;
constexpr int mostIconPixels = 1024;

using Kind = AttributeDescription::Kind;
using Reading = std::optional<AttributeDescription>;

/// A stream over bytes that knows how many remain.
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

/// A pixmap is a marker and a PNG file, whose header tells how much memory it takes.
bool isModestPixmap(const QByteArray &bytes)
{
    constexpr int widthAt = 4 + 16; // after the marker, the PNG signature and the head of its first chunk
    constexpr int heightAt = widthAt + 4;
    if (bytes.size() < 4 || qFromBigEndian<qint32>(bytes.constData()) == 0)
        return true;
    if (bytes.size() < heightAt + 4)
        return false;
    const auto width = qFromBigEndian<quint32>(bytes.constData() + widthAt);
    const auto height = qFromBigEndian<quint32>(bytes.constData() + heightAt);
    return width <= mostIconPixels && height <= mostIconPixels;
}

Reading readList(AttributeDescription attribute, const QByteArray &bytes)
{
    Reader in(bytes);
    attribute.kind = AttributeDescription::Choice;
    const auto count = in.take<qint32>();
    const auto chosen = in.take<qint32>();
    const auto listKind = in.take<qint32>();
    if (!in.isGood() || count < 1 || count > mostEntries)
        return {};
    for (int i = 0; i < count && in.isGood(); ++i) {
        AttributeDescription::Entry entry;
        entry.text = in.take<QString>();
        if (listKind == iconList) {
            if (!isModestPixmap(in.rest()))
                return {};
            entry.icon = in.take<QPixmap>();
        }
        attribute.entries.append(entry);
    }
    attribute.value = chosen >= 0 && chosen < count ? chosen : -1;
    return in.isAtEnd() ? Reading(attribute) : Reading();
}

/// Gradients and textures need no colour, and the colour of an empty brush is not visible.
QColor shownColor(Qt::BrushStyle style, const QColor &color)
{
    const bool isColorless = style >= Qt::LinearGradientPattern && !color.isValid();
    return style == Qt::NoBrush || isColorless ? QColor(Qt::transparent) : color;
}

/// Read only the colour of a brush: its gradient or texture belongs to the object and may be anything.
Reading readPaint(AttributeDescription attribute, const QByteArray &bytes)
{
    const bool isBrush = bytes.size() > streamedColorBytes;
    const std::optional<QColor> color = colorFrom(bytes.mid(isBrush ? colorInBrush : 0, streamedColorBytes));
    if (!color)
        return {};
    const QColor shown = isBrush ? shownColor(Qt::BrushStyle(bytes.at(0)), *color) : *color;
    attribute.kind = isBrush ? AttributeDescription::Brush : AttributeDescription::Color;
    attribute.value = shown;
    return shown.isValid() ? Reading(attribute) : Reading();
}

template<typename Number> Reading readRangeOf(AttributeDescription attribute, Kind kind, const QByteArray &bytes)
{
    Reader in(bytes);
    const auto minimum = in.take<Number>();
    const auto maximum = in.take<Number>();
    const auto step = in.take<Number>();
    const auto value = in.take<Number>();
    const double numbers[] = {double(minimum), double(maximum), double(step), double(value)};
    const bool isFinite =
        std::all_of(std::begin(numbers), std::end(numbers), [](double number) { return std::isfinite(number); });
    if (!isFinite || minimum >= maximum || step < 0)
        return {};
    attribute.kind = kind;
    attribute.range = {double(minimum), double(maximum), double(step)};
    attribute.value = qBound(minimum, value, maximum);
    return attribute;
}

Reading readRange(const AttributeDescription &attribute, const QByteArray &bytes)
{
    if (bytes.size() == intRangeBytes)
        return readRangeOf<qint32>(attribute, AttributeDescription::WholeRange, bytes);
    const bool isReal = bytes.size() == realRangeBytes;
    return isReal ? readRangeOf<double>(attribute, AttributeDescription::RealRange, bytes) : Reading();
}

/// Numbers without a range have no editor code; their size gives the type.
Reading readPlainNumber(AttributeDescription attribute, const QByteArray &bytes)
{
    Reader in(bytes);
    if (bytes.size() == int(sizeof(qint32))) {
        attribute.kind = AttributeDescription::Whole;
        attribute.value = in.take<qint32>();
        return attribute;
    }
    attribute.kind = AttributeDescription::Real;
    const auto number = bytes.size() == int(sizeof(double)) ? in.take<double>() : qQNaN();
    attribute.value = number;
    return std::isfinite(number) ? Reading(attribute) : Reading();
}

template<typename Value> Reading readOnly(AttributeDescription attribute, Kind kind, const QByteArray &bytes)
{
    Reader in(bytes);
    attribute.kind = kind;
    attribute.value = in.take<Value>();
    return in.isAtEnd() ? Reading(attribute) : Reading();
}

AttributeDescription descriptionOf(int id, const AttributeHead &head)
{
    AttributeDescription attribute;
    attribute.id = id;
    attribute.nameKey = head.nameKey;
    attribute.isEnabled = head.isEnabled;
    return attribute;
}

Reading readCoded(int id, const AttributeHead &head)
{
    const AttributeDescription attribute = descriptionOf(id, head);
    switch (head.code) {
    case ListEditor:
        return readList(attribute, head.value);
    case ColorEditor:
        return readPaint(attribute, head.value);
    case SwitchEditor:
        return readOnly<bool>(attribute, AttributeDescription::Switch, head.value);
    case TextEditor:
        return readOnly<QString>(attribute, AttributeDescription::Text, head.value);
    case RangeEditor:
        return readRange(attribute, head.value);
    default:
        return {};
    }
}

QByteArray listBytes(const AttributeDescription &attribute)
{
    const QVector<AttributeDescription::Entry> &entries = attribute.entries;
    const bool hasIcons =
        std::any_of(entries.begin(), entries.end(), [](const auto &entry) { return !entry.icon.isNull(); });
    QByteArray bytes =
        payloadOf(qint32(entries.size()), qint32(attribute.value.toInt()), hasIcons ? iconList : textList);
    for (const AttributeDescription::Entry &entry : entries)
        bytes += hasIcons ? payloadOf(entry.text, entry.icon) : payloadOf(entry.text);
    return bytes;
}

QByteArray rangeBytes(const AttributeDescription &attribute)
{
    const AttributeDescription::Range &range = attribute.range;
    return attribute.kind == AttributeDescription::WholeRange
               ? payloadOf(qint32(range.minimum), qint32(range.maximum), qint32(range.step))
               : payloadOf(range.minimum, range.maximum, range.step);
}

/// Empty for numbers without a range.
std::optional<qint32> codeOf(Kind kind)
{
    switch (kind) {
    case AttributeDescription::Choice:
        return ListEditor;
    case AttributeDescription::Color:
    case AttributeDescription::Brush:
        return ColorEditor;
    case AttributeDescription::Switch:
        return SwitchEditor;
    case AttributeDescription::Text:
        return TextEditor;
    case AttributeDescription::WholeRange:
    case AttributeDescription::RealRange:
        return RangeEditor;
    default:
        return {};
    }
}

} // namespace

std::optional<AttributeDescription> readAttribute(int id, const QByteArray &bytes)
{
    if (const auto head = readAttributeHead(id, bytes)) {
        if (Reading reading = readCoded(id, *head))
            return reading;
    }
    // Without a code, the name stands in its place.
    const auto plain = readPlainHead(id, bytes);
    return plain ? readPlainNumber(descriptionOf(id, *plain), plain->value) : Reading();
}

std::optional<AttributeDescription> attributeOf(CBaseObject *object, int id)
{
    return readAttribute(id, describedBy(object, id));
}

QByteArray writeAttribute(const AttributeDescription &attribute)
{
    const std::optional<qint32> code = codeOf(attribute.kind);
    QByteArray bytes = payloadOf(qint32(attribute.id));
    bytes += code ? payloadOf(*code) : QByteArray();
    bytes += payloadOf(attribute.nameKey, attribute.isEnabled);
    if (attribute.kind == AttributeDescription::Choice)
        return bytes + listBytes(attribute);
    bytes += code == RangeEditor ? rangeBytes(attribute) : QByteArray();
    return bytes + attributeAnswer(attribute, attribute.value);
}

QByteArray attributeAnswer(const AttributeDescription &attribute, const QVariant &value)
{
    switch (attribute.kind) {
    case AttributeDescription::Choice:
    case AttributeDescription::Whole:
    case AttributeDescription::WholeRange:
        return payloadOf(qint32(value.toInt()));
    case AttributeDescription::Real:
    case AttributeDescription::RealRange:
        return payloadOf(value.toDouble());
    case AttributeDescription::Color:
        return payloadOf(value.value<QColor>());
    case AttributeDescription::Brush:
        return payloadOf(QBrush(value.value<QColor>()));
    case AttributeDescription::Switch:
        return payloadOf(value.toBool());
    case AttributeDescription::Text:
        return payloadOf(value.toString());
    }
    return {};
}

bool giveAttribute(CBaseObject *object, int id, const QByteArray &answer, bool record)
{
    // Objects may modify the value that they are passed.
    QBuffer buffer;
    buffer.setData(answer);
    buffer.open(QIODevice::ReadWrite);
    QDataStream stream(&buffer);
    return object->SetAttribute(id, stream, record);
}

} // namespace pagehost
