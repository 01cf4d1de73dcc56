#include <shapekit/property.h>

#include <shapekit/propertiedshape.h>

#include <svgobj/csvgobj.h>

#include <QtCore/QDataStream>

#include <algorithm>
#include <cmath>

namespace shapekit {

namespace {

/// Numbers of a list are whole multiples of 1 / this, so that a control point's value can be recovered from its
/// position.
constexpr double listPrecision = 1e4;

/// Reads a value from the stream; the present one when the stream doesn't hold a complete value.
template<class Value> Value valueFrom(QDataStream &in, const Value &present)
{
    Value value;
    in >> value;
    return in.status() == QDataStream::Ok ? value : present;
}

QString numberText(double value)
{
    return QString::number(value, 'g', 10);
}

} // namespace

Property::Property(PropertiedShape *shape, const Text &text, int id)
    : m_shape(shape)
    , m_text(text)
    , m_id(id)
{
    shape->addProperty(this, m_id, m_actionId);
}

void Property::setIds(int id, int actionId)
{
    m_id = id;
    m_actionId = actionId;
}

void Property::setPanels(bool properties, bool settings)
{
    m_inPropertyPanel = properties;
    m_inSettings = settings;
}

QString Property::nameKey() const
{
    return keyOf(m_text);
}

QString Property::keyOf(const Text &text) const
{
    return text.key(m_shape->kind());
}

QByteArray Property::bytes() const
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    write(out);
    return bytes;
}

void Property::setBytes(const QByteArray &bytes)
{
    QDataStream in(bytes);
    read(in);
}

Switch::Switch(PropertiedShape *shape, const Text &text, bool on)
    : Property(shape, text)
    , m_on(on)
{
}

void Switch::write(QDataStream &out) const
{
    out << m_on;
}

void Switch::read(QDataStream &in)
{
    m_on = valueFrom(in, m_on);
}

QJsonObject Switch::control(CSVGObj &object) const
{
    QString id = controlId();
    QString title = nameKey();
    return object.GetSettingJsonSwitch(id, title, m_on);
}

void Switch::takeAnswer(const QString &text)
{
    m_on = text == QLatin1String("true") || text == QLatin1String("1");
}

WholeNumber::WholeNumber(PropertiedShape *shape, const Text &text, int value, int lowest, int highest)
    : Property(shape, text)
    , m_value(value)
    , m_lowest(lowest)
    , m_highest(highest)
{
}

void WholeNumber::operator=(int value)
{
    m_value = std::clamp(value, m_lowest, m_highest);
}

QByteArray WholeNumber::editor() const
{
    constexpr qint32 step = 1;
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << qint32(m_lowest) << qint32(m_highest) << step;
    return bytes;
}

void WholeNumber::write(QDataStream &out) const
{
    out << qint32(m_value);
}

void WholeNumber::read(QDataStream &in)
{
    *this = valueFrom(in, qint32(m_value));
}

QJsonObject WholeNumber::control(CSVGObj &object) const
{
    QString id = controlId();
    QString title = nameKey();
    QString value = QString::number(m_value);
    QString lowest = QString::number(m_lowest);
    QString highest = QString::number(m_highest);
    QString step = QStringLiteral("1");
    QString unit;
    return object.GetSettingJsonSlider(id, title, value, lowest, highest, step, unit);
}

void WholeNumber::takeAnswer(const QString &text)
{
    bool isNumber = false;
    const int value = text.trimmed().toInt(&isNumber);
    if (isNumber)
        *this = value;
}

RealNumber::RealNumber(PropertiedShape *shape, const Text &text, double value, double lowest, double highest,
                       double step, int id)
    : Property(shape, text, id)
    , m_value(value)
    , m_lowest(lowest)
    , m_highest(highest)
    , m_step(step)
{
}

void RealNumber::operator=(double value)
{
    if (!std::isnan(value))
        m_value = std::clamp(value, m_lowest, m_highest);
}

QByteArray RealNumber::editor() const
{
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly) << m_lowest << m_highest << m_step;
    return bytes;
}

void RealNumber::write(QDataStream &out) const
{
    out << m_value;
}

void RealNumber::read(QDataStream &in)
{
    *this = valueFrom(in, m_value);
}

QJsonObject RealNumber::control(CSVGObj &object) const
{
    QString id = controlId();
    QString title = nameKey();
    QString value = numberText(m_value);
    QString lowest = numberText(m_lowest);
    QString highest = numberText(m_highest);
    QString step = numberText(m_step);
    QString unit;
    return object.GetSettingJsonSlider(id, title, value, lowest, highest, step, unit);
}

void RealNumber::takeAnswer(const QString &text)
{
    bool isNumber = false;
    const double value = text.trimmed().toDouble(&isNumber);
    if (isNumber)
        *this = value;
}

DrawingScale::DrawingScale(PropertiedShape *shape, const Text &text, double value, double lowest, double highest,
                           double step)
    : RealNumber(shape, text, value, lowest, highest, step, PropertiedShape::drawingScaleId)
{
}

Choice::Choice(PropertiedShape *shape, const Text &text, int index, const QVector<const Text *> &entries)
    : Property(shape, text)
    , m_index(index)
    , m_entries(entries)
{
}

QStringList Choice::entryKeys() const
{
    QStringList keys;
    for (const Text *entry : m_entries)
        keys.append(keyOf(*entry));
    return keys;
}

void Choice::setIndex(int index)
{
    m_index = std::max(0, std::min(index, m_entries.size() - 1));
}

QByteArray Choice::editor() const
{
    constexpr qint32 textsOnly = 0;
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << qint32(m_entries.size()) << textsOnly;
    for (const Text *entry : m_entries)
        out << keyOf(*entry);
    return bytes;
}

void Choice::write(QDataStream &out) const
{
    out << qint32(m_index);
}

void Choice::read(QDataStream &in)
{
    setIndex(valueFrom(in, qint32(m_index)));
}

QJsonObject Choice::control(CSVGObj &object) const
{
    QString id = controlId();
    QString title = nameKey();
    QList<QString> icons;
    QList<QString> texts = entryKeys();
    return object.GetSettingJsonComboBox(id, title, m_index, icons, texts);
}

void Choice::takeAnswer(const QString &text)
{
    bool isNumber = false;
    const int index = text.trimmed().toInt(&isNumber);
    if (isNumber)
        setIndex(index);
}

ColorValue::ColorValue(PropertiedShape *shape, const Text &text, QRgb color)
    : Property(shape, text)
    , m_color(QColor::fromRgba(color))
{
}

void ColorValue::write(QDataStream &out) const
{
    out << m_color;
}

void ColorValue::read(QDataStream &in)
{
    const QColor color = valueFrom(in, m_color);
    if (color.isValid())
        m_color = color;
}

QJsonObject ColorValue::control(CSVGObj &object) const
{
    QString id = controlId();
    QString title = nameKey();
    QString value = m_color.name(QColor::HexArgb);
    return object.GetSettingJsonColorPicker(id, title, value);
}

void ColorValue::takeAnswer(const QString &text)
{
    const QColor color(text);
    if (color.isValid())
        m_color = color;
}

TextValue::TextValue(PropertiedShape *shape, const Text &text, const QString &value)
    : Property(shape, text)
    , m_value(value)
{
}

void TextValue::write(QDataStream &out) const
{
    // JSON doesn't tell null from empty: both formats must open to the same bytes.
    out << (m_value.isNull() ? QString(QLatin1String("")) : m_value);
}

void TextValue::read(QDataStream &in)
{
    m_value = valueFrom(in, m_value);
}

QJsonObject TextValue::control(CSVGObj &object) const
{
    QString id = controlId();
    QString title = nameKey();
    QString value = m_value;
    QString type = QStringLiteral("text");
    QString none;
    return object.GetSettingJsonInput(id, title, value, type, none, none, none);
}

NumberList::NumberList(PropertiedShape *shape, const Text &text, int count, double lowest, double highest)
    : TextValue(shape, text, QString())
    , m_count(count)
    , m_lowest(lowest)
    , m_highest(highest)
{
    setNumbers({});
}

const QVector<double> &NumberList::numbers() const
{
    const QString text = *this;
    if (text != m_numbersText) {
        const QChar *start = text.constData();
        m_numbers = shape()->parseNumbersList(start);
        m_numbersText = text;
    }
    return m_numbers;
}

void NumberList::setNumber(int index, double number)
{
    if (index < 0 || index >= m_count || !std::isfinite(number))
        return;
    // Always yields the full count, whatever was read.
    QStringList texts = QString(*this).split(QLatin1Char(' '));
    texts[index] = textOf(number);
    TextValue::operator=(texts.join(QLatin1Char(' ')));
}

void NumberList::read(QDataStream &in)
{
    TextValue::read(in);
    setNumbers(numbers());
}

void NumberList::fromJson(const QJsonValue &value)
{
    TextValue::fromJson(value);
    setNumbers(numbers());
}

void NumberList::takeAnswer(const QString &text)
{
    TextValue::takeAnswer(text);
    setNumbers(numbers());
}

void NumberList::setNumbers(QVector<double> numbers)
{
    numbers.resize(m_count);
    QStringList texts;
    for (const double number : qAsConst(numbers))
        texts.append(textOf(number));
    TextValue::operator=(texts.join(QLatin1Char(' ')));
}

// One by one: in a list the writer puts no separator before a zero.
QString NumberList::textOf(double number) const
{
    const double rounded = std::round(std::clamp(number, m_lowest, m_highest) * listPrecision) / listPrecision;
    return shape()->numbersToString({rounded + 0.0}); // no negative zero
}

DataValue::DataValue(PropertiedShape *shape, const Text &text)
    : Property(shape, text)
{
}

void DataValue::write(QDataStream &out) const
{
    out << m_value;
}

void DataValue::read(QDataStream &in)
{
    m_value = valueFrom(in, m_value);
}

void DataValue::fromJson(const QJsonValue &value)
{
    const QByteArray bytes = QByteArray::fromBase64(value.toString().toLatin1());
    m_value = bytes.isEmpty() ? QByteArray() : bytes; // null when empty, as in a new shape
}

} // namespace shapekit
