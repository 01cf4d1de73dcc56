#pragma once

#include <shapekit/shapekit_global.h>
#include <shapekit/text.h>

#include <svgobj/csvgpropitem.h>

#include <QtCore/QByteArray>
#include <QtCore/QJsonObject>
#include <QtCore/QJsonValue>
#include <QtCore/QStringList>
#include <QtCore/QVector>
#include <QtGui/QColor>

class CSVGObj;
class QDataStream;

namespace shapekit {

class PropertiedShape;

/// A value of a shape that the user can set in the property panel and the settings panel, and that is saved,
/// recorded and undone with the shape. A property is a member of its shape and registers itself there.
class SHAPEKIT_EXPORT Property
{
public:
    virtual ~Property() = default;
    Property(const Property &) = delete;
    Property &operator=(const Property &) = delete;

    /// The property's id, unique within the shape.
    int id() const { return m_id; }
    /// The action under which its changes are recorded.
    int actionId() const { return m_actionId; }
    /// Replaces the ids that the shape has given; before the first object of the shape is there.
    void setIds(int id, int actionId);
    /// The panels that offer the property; both unless told otherwise.
    void setPanels(bool properties, bool settings);
    /// See setPanels().
    bool isInPropertyPanel() const { return m_inPropertyPanel; }
    /// See setPanels().
    bool isInSettings() const { return m_inSettings; }
    /// Leaves saving to the shape, which does it without PropertiedShape.
    void leaveSavingToShape() { m_isSavedByShape = true; }
    /// See leaveSavingToShape().
    bool isSavedByShape() const { return m_isSavedByShape; }
    /// Localisation key of the name.
    QString nameKey() const;
    /// The texts that panels show for it.
    virtual QVector<const Text *> texts() const { return {&m_text}; }
    /// The key of the value in saved JSON.
    QString jsonKey() const { return QStringLiteral("SVG_") + m_text.name(); }
    /// The id of the control in the settings panel.
    QString controlId() const { return QStringLiteral("id") + m_text.name(); }

    /// Decides the editor of the property panel.
    virtual DATA_TYPE dataType() const = 0;
    /// The editor description for the type; empty when the type needs none.
    virtual QByteArray editor() const { return {}; }
    /// Writes the value alone.
    virtual void write(QDataStream &out) const = 0;
    /// Reads a value and limits it to the property's bounds. A value that can't be read changes nothing.
    virtual void read(QDataStream &in) = 0;
    /// The value as saved JSON has it.
    virtual QJsonValue toJson() const = 0;
    /// Takes a value from saved JSON, limited to the bounds. A value of another type changes nothing.
    virtual void fromJson(const QJsonValue &value) = 0;
    /// The control of the settings panel; an empty object for none.
    virtual QJsonObject control(CSVGObj &object) const = 0;
    /// Applies the text that the control answered.
    virtual void takeAnswer(const QString &text) = 0;

    /// The value as write() writes it.
    QByteArray bytes() const;
    /// Takes a value as read() reads it.
    void setBytes(const QByteArray &bytes);

protected:
    /// An id of 0 means the next free one of the shape.
    Property(PropertiedShape *shape, const Text &text, int id = 0);
    /// The shape that the property is a member of.
    PropertiedShape *shape() const { return m_shape; }
    /// Localisation key of one of the shape's texts.
    QString keyOf(const Text &text) const;

private:
    PropertiedShape *m_shape;
    const Text &m_text;
    int m_id;
    int m_actionId;
    bool m_inPropertyPanel = true;
    bool m_inSettings = true;
    bool m_isSavedByShape = false;
};

/// On or off.
class SHAPEKIT_EXPORT Switch : public Property
{
public:
    /// Registers itself at the shape, initially `on`.
    Switch(PropertiedShape *shape, const Text &text, bool on);
    /// The value.
    operator bool() const { return m_on; }

    DATA_TYPE dataType() const override { return DATA_TYPE_0; }
    void write(QDataStream &out) const override;
    void read(QDataStream &in) override;
    QJsonValue toJson() const override { return m_on; }
    void fromJson(const QJsonValue &value) override { m_on = value.toBool(m_on); }
    QJsonObject control(CSVGObj &object) const override;
    void takeAnswer(const QString &text) override;

private:
    bool m_on;
};

/// A whole number between two bounds.
class SHAPEKIT_EXPORT WholeNumber : public Property
{
public:
    /// Registers itself at the shape. `value` is the initial one, between the bounds.
    WholeNumber(PropertiedShape *shape, const Text &text, int value, int lowest, int highest);
    /// The value.
    operator int() const { return m_value; }
    /// Sets the value, limited to the bounds; draws and records nothing.
    void operator=(int value);

    DATA_TYPE dataType() const override { return DATA_TYPE_INT; }
    QByteArray editor() const override;
    void write(QDataStream &out) const override;
    void read(QDataStream &in) override;
    QJsonValue toJson() const override { return m_value; }
    void fromJson(const QJsonValue &value) override { *this = value.toInt(m_value); }
    QJsonObject control(CSVGObj &object) const override;
    void takeAnswer(const QString &text) override;

private:
    int m_value;
    int m_lowest;
    int m_highest;
};

/// A number between two bounds, with the panel's step.
class SHAPEKIT_EXPORT RealNumber : public Property
{
public:
    /// Registers itself at the shape. `value` is the initial one, between the bounds; an `id` of 0 means the next
    /// free one.
    RealNumber(PropertiedShape *shape, const Text &text, double value, double lowest, double highest, double step,
               int id = 0);
    /// The value.
    operator double() const { return m_value; }
    /// Sets the value, limited to the bounds; draws and records nothing.
    void operator=(double value);

    DATA_TYPE dataType() const override { return DATA_TYPE_REAL; }
    QByteArray editor() const override;
    void write(QDataStream &out) const override;
    void read(QDataStream &in) override;
    QJsonValue toJson() const override { return m_value; }
    void fromJson(const QJsonValue &value) override { *this = value.toDouble(m_value); }
    QJsonObject control(CSVGObj &object) const override;
    void takeAnswer(const QString &text) override;

private:
    double m_value;
    double m_lowest;
    double m_highest;
    double m_step;
};

/// Item units per drawn unit of a shape of type 26: at 2 it is half as large, about the middle of its frame.
class SHAPEKIT_EXPORT DrawingScale : public RealNumber
{
public:
    /// Registers itself at the shape, under PropertiedShape::drawingScaleId.
    DrawingScale(PropertiedShape *shape, const Text &text, double value, double lowest, double highest,
                 double step);
};

/// A choice between several texts.
class SHAPEKIT_EXPORT Choice : public Property
{
public:
    /// Registers itself at the shape. `index` is the entry chosen initially, from 0.
    Choice(PropertiedShape *shape, const Text &text, int index, const QVector<const Text *> &entries);
    /// Index of the chosen entry, from 0.
    operator int() const { return m_index; }

    QVector<const Text *> texts() const override { return Property::texts() + m_entries; }
    DATA_TYPE dataType() const override { return DATA_TYPE_INT; }
    QByteArray editor() const override;
    void write(QDataStream &out) const override;
    void read(QDataStream &in) override;
    QJsonValue toJson() const override { return m_index; }
    void fromJson(const QJsonValue &value) override { setIndex(value.toInt(m_index)); }
    QJsonObject control(CSVGObj &object) const override;
    void takeAnswer(const QString &text) override;

private:
    void setIndex(int index);

    int m_index;
    QStringList entryKeys() const;

    QVector<const Text *> m_entries;
};

/// A colour in addition to those of pen and fill.
class SHAPEKIT_EXPORT ColorValue : public Property
{
public:
    /// Registers itself at the shape, with its initial colour.
    ColorValue(PropertiedShape *shape, const Text &text, QRgb color);
    /// The value.
    operator QColor() const { return m_color; }

    DATA_TYPE dataType() const override { return DATA_TYPE_COLOR; }
    void write(QDataStream &out) const override;
    void read(QDataStream &in) override;
    QJsonValue toJson() const override { return m_color.name(QColor::HexArgb); }
    void fromJson(const QJsonValue &value) override { takeAnswer(value.toString()); }
    QJsonObject control(CSVGObj &object) const override;
    void takeAnswer(const QString &text) override;

private:
    QColor m_color;
};

/// A line of text.
class SHAPEKIT_EXPORT TextValue : public Property
{
public:
    /// Registers itself at the shape, with its initial text.
    TextValue(PropertiedShape *shape, const Text &text, const QString &value);
    /// The value.
    operator QString() const { return m_value; }
    /// Sets the value; draws and records nothing.
    void operator=(const QString &value) { m_value = value; }

    DATA_TYPE dataType() const override { return DATA_TYPE_4; }
    void write(QDataStream &out) const override;
    void read(QDataStream &in) override;
    QJsonValue toJson() const override { return m_value; }
    void fromJson(const QJsonValue &value) override { m_value = value.toString(m_value); }
    QJsonObject control(CSVGObj &object) const override;
    void takeAnswer(const QString &text) override { m_value = text; }

private:
    QString m_value;
};

/// A fixed count of numbers between two bounds, as text that the user may write: separated by blanks, commas or
/// nothing, up to the first non-number; missing ones are 0. The text is normalised: at most four decimal places and
/// single blanks.
class SHAPEKIT_EXPORT NumberList : public TextValue
{
public:
    /// Registers itself at the shape, with `count` zeros.
    NumberList(PropertiedShape *shape, const Text &text, int count, double lowest, double highest);

    /// The numbers, always as many as the list has.
    const QVector<double> &numbers() const;
    /// Sets the number at an index (from 0); ignores an index out of range.
    void setNumber(int index, double number);

    void read(QDataStream &in) override;
    void fromJson(const QJsonValue &value) override;
    void takeAnswer(const QString &text) override;

private:
    void setNumbers(QVector<double> numbers);
    QString textOf(double number) const;

    int m_count;
    double m_lowest;
    double m_highest;
    /// The numbers as last parsed, and the text that they were parsed from.
    mutable QVector<double> m_numbers;
    mutable QString m_numbersText;
};

/// Bytes that only the shape can read, such as a picture. No control offers them.
class SHAPEKIT_EXPORT DataValue : public Property
{
public:
    /// Registers itself at the shape, without a byte.
    DataValue(PropertiedShape *shape, const Text &text);
    /// The value.
    operator QByteArray() const { return m_value; }
    /// Sets the value; draws and records nothing.
    void operator=(const QByteArray &value) { m_value = value; }

    DATA_TYPE dataType() const override { return DATA_TYPE_5; }
    void write(QDataStream &out) const override;
    void read(QDataStream &in) override;
    QJsonValue toJson() const override { return QString::fromLatin1(m_value.toBase64()); }
    void fromJson(const QJsonValue &value) override;
    QJsonObject control(CSVGObj &) const override { return {}; }
    void takeAnswer(const QString &) override {}

private:
    QByteArray m_value;
};

} // namespace shapekit
