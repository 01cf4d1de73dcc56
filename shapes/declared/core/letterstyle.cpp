#include <declared/core/letterstyle.h>

#include <declared/expressions/value.h>

#include <svgobj/csvgobj.h>

#include <QtCore/QDataStream>

#include <algorithm>
#include <cmath>

namespace declared {

namespace {

const QString sizeKey = QStringLiteral("size");
const QString boldKey = QStringLiteral("bold");
const QString italicKey = QStringLiteral("italic");
const QString underlinedKey = QStringLiteral("underlined");
const QString colourKey = QStringLiteral("colour");

const LabelDeclaration *firstRepeated(const QVector<LabelDeclaration> &labels)
{
    const auto found =
        std::find_if(labels.begin(), labels.end(), [](const LabelDeclaration &label) { return label.repeat >= 0; });
    return found == labels.end() ? nullptr : &*found;
}

/// Letters are opaque.
QColor opaque(const QColor &colour)
{
    return colour.isValid() ? QColor(colour.rgb()) : QColor();
}

QColor givenColour(const LabelDeclaration &label, const QColor &pen)
{
    return opaque(label.followsPen ? pen : label.colour);
}

template<typename Value> void take(QDataStream &in, Value &value)
{
    Value read{};
    in >> read;
    if (in.status() == QDataStream::Ok)
        value = read;
}

template<typename Value> QByteArray bytesOf(const Value &value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    return bytes;
}

} // namespace

LetterStyle::LetterStyle(const QVector<LabelDeclaration> &labels)
    : m_first(firstRepeated(labels))
{
    reset();
}

void LetterStyle::reset()
{
    m_size = m_first ? m_first->size : 0;
    m_isBold = m_first && m_first->isBold;
    m_isItalic = m_isUnderlined = false;
    m_colour = QColor();
}

std::optional<LetterStyle::Part> LetterStyle::partOf(int id) const
{
    if (!m_first || id < idOf(Size) || id > idOf(Colour))
        return {};
    return Part(id - firstId);
}

const shapekit::Text &LetterStyle::titleOf(Part part, const LetterTitles &titles)
{
    switch (part) {
    case Size:
        return *titles.size;
    case Bold:
        return *titles.bold;
    case Italic:
        return *titles.italic;
    case Underlined:
        return *titles.underlined;
    case Colour:
        break;
    }
    return *titles.colour;
}

double LetterStyle::sizeOf(const LabelDeclaration &label) const
{
    return m_size == m_first->size ? label.size : label.size * m_size / m_first->size;
}

double LetterStyle::growth() const
{
    return std::max(1.0, m_size / m_first->size);
}

bool LetterStyle::isBold(const LabelDeclaration &label) const
{
    return m_isBold == m_first->isBold ? label.isBold : m_isBold;
}

QColor LetterStyle::colourOf(const LabelDeclaration &label, const QColor &pen) const
{
    return m_colour.isValid() ? m_colour : givenColour(label, pen);
}

void LetterStyle::write(Part part, const QColor &pen, QDataStream &out) const
{
    if (part == Colour)
        out << colourOf(*m_first, pen);
    else
        out.writeRawData(bytes(part).constData(), bytes(part).size());
}

QByteArray LetterStyle::bytes(Part part) const
{
    switch (part) {
    case Size:
        return bytesOf(m_size);
    case Bold:
        return bytesOf(m_isBold);
    case Italic:
        return bytesOf(m_isItalic);
    case Underlined:
        return bytesOf(m_isUnderlined);
    case Colour:
        break;
    }
    return bytesOf(m_colour);
}

void LetterStyle::setSize(double size)
{
    if (!std::isnan(size))
        m_size = std::clamp(size, smallestFont, largestFont);
}

void LetterStyle::read(Part part, QDataStream &in)
{
    double size = m_size;
    switch (part) {
    case Size:
        take(in, size);
        return setSize(size);
    case Bold:
        return take(in, m_isBold);
    case Italic:
        return take(in, m_isItalic);
    case Underlined:
        return take(in, m_isUnderlined);
    case Colour:
        take(in, m_colour);
        m_colour = opaque(m_colour);
        return;
    }
}

void LetterStyle::dropGivenColour(const QColor &pen)
{
    if (m_colour.isValid() && m_colour == givenColour(*m_first, pen))
        m_colour = QColor();
}

QString LetterStyle::controlId(Part part)
{
    // Those of texts, so that texts and labels that are selected together have them in common.
    static const QString ids[] = {QStringLiteral("idFontSize"), QStringLiteral("idBold"),
                                  QStringLiteral("idItalic"), QStringLiteral("idUnderlined"),
                                  QStringLiteral("idTextColour")};
    return ids[part];
}

QJsonObject LetterStyle::control(Part part, CSVGObj &object, const QString &titleKey, const QColor &pen) const
{
    QString id = controlId(part);
    QString title = titleKey;
    if (part == Colour) {
        QString colour = colourOf(*m_first, pen).name(QColor::HexArgb);
        return object.GetSettingJsonColorPicker(id, title, colour);
    }
    if (part != Size)
        return object.GetSettingJsonSwitch(id, title,
                                           part == Bold     ? m_isBold
                                           : part == Italic ? m_isItalic
                                                            : m_isUnderlined);
    QString value = numberText(m_size);
    QString smallest = numberText(smallestFont);
    QString largest = numberText(largestFont);
    QString step = QStringLiteral("1");
    QString unit;
    return object.GetSettingJsonSlider(id, title, value, smallest, largest, step, unit);
}

shapekit::LetterPart LetterStyle::roleOf(Part part)
{
    using shapekit::LetterPart;
    static constexpr LetterPart roles[] = {LetterPart::Size, LetterPart::Bold, LetterPart::Italic,
                                           LetterPart::Underlined, LetterPart::Colour};
    return roles[part];
}

DATA_TYPE LetterStyle::dataType(Part part)
{
    return part == Size ? DATA_TYPE_REAL : part == Colour ? DATA_TYPE_COLOR : DATA_TYPE_0;
}

QByteArray LetterStyle::editor(Part part)
{
    QByteArray bytes;
    if (part == Size)
        QDataStream(&bytes, QIODevice::WriteOnly) << smallestFont << largestFont << 1.0;
    return bytes;
}

QByteArray LetterStyle::bytesOfAnswer(Part part, const QString &answer) const
{
    if (part == Colour) {
        const QColor colour(answer);
        return colour.isValid() ? bytesOf(colour) : QByteArray();
    }
    if (part != Size)
        return bytesOf(answer == QLatin1String("true") || answer == QLatin1String("1"));
    bool isNumber = false;
    const double size = answer.trimmed().toDouble(&isNumber);
    return isNumber ? bytesOf(size) : QByteArray();
}

QJsonObject LetterStyle::toJson() const
{
    QJsonObject saved;
    if (!m_first)
        return saved;
    if (m_size != m_first->size)
        saved[sizeKey] = m_size;
    if (m_isBold != m_first->isBold)
        saved[boldKey] = m_isBold;
    if (m_isItalic)
        saved[italicKey] = true;
    if (m_isUnderlined)
        saved[underlinedKey] = true;
    if (m_colour.isValid())
        saved[colourKey] = m_colour.name(QColor::HexArgb);
    return saved;
}

void LetterStyle::fromJson(const QJsonObject &saved)
{
    reset();
    if (!m_first)
        return;
    setSize(saved.value(sizeKey).toDouble(m_size));
    m_isBold = saved.value(boldKey).toBool(m_isBold);
    m_isItalic = saved.value(italicKey).toBool();
    m_isUnderlined = saved.value(underlinedKey).toBool();
    const QString colour = saved.value(colourKey).toString();
    if (!colour.isEmpty())
        m_colour = opaque(QColor(colour));
}

} // namespace declared
