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

    int id() const { return m_id; }
    int actionId() const { return m_actionId; }
    /// Replaces the ids that the shape has given; before the first object of the shape is there.
    void setIds(int id, int actionId);
    /// The panels that offer the property; both unless told otherwise.
    void setPanels(bool properties, bool settings);
    bool isInPropertyPanel() const { return m_inPropertyPanel; }
    bool isInSettings() const { return m_inSettings; }
    QString nameKey() const;
    /// The texts that panels show for it.
    virtual QVector<const Text *> texts() const { return {&m_text}; }
    /// The key of the value in saved JSON.
    QString jsonKey() const { return QStringLiteral("SVG_") + m_text.name(); }
    /// The id of the control in the settings panel.
    QString controlId() const { return QStringLiteral("id") + m_text.name(); }

    virtual DATA_TYPE dataType() const = 0;
    /// The editor description for the type; empty when the type needs none.
    virtual QByteArray editor() const { return {}; }
    virtual void write(QDataStream &out) const = 0;
    /// Reads a value and limits it to the property's bounds. A value that can't be read changes nothing.
    virtual void read(QDataStream &in) = 0;
    virtual QJsonValue toJson() const = 0;
    virtual void fromJson(const QJsonValue &value) = 0;
    /// The control of the settings panel; an empty object for none.
    virtual QJsonObject control(CSVGObj &object) const = 0;
    /// Applies the text that the control answered.
    virtual void takeAnswer(const QString &text) = 0;

    QByteArray bytes() const;
    void setBytes(const QByteArray &bytes);

protected:
    /// An id of 0 means the next free one of the shape.
    Property(PropertiedShape *shape, const Text &text, int id = 0);
    PropertiedShape *shape() const { return m_shape; }
    QString keyOf(const Text &text) const;

private:
    PropertiedShape *m_shape;
    const Text &m_text;
    int m_id;
    int m_actionId;
    bool m_inPropertyPanel = true;
    bool m_inSettings = true;
};

/// On or off.
class SHAPEKIT_EXPORT Switch : public Property
{
public:
    Switch(PropertiedShape *shape, const Text &text, bool on);
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
    WholeNumber(PropertiedShape *shape, const Text &text, int value, int lowest, int highest);
    operator int() const { return m_value; }
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
    RealNumber(PropertiedShape *shape, const Text &text, double value, double lowest, double highest, double step,
               int id = 0);
    operator double() const { return m_value; }
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
    DrawingScale(PropertiedShape *shape, const Text &text, double value, double lowest, double highest,
                 double step);
};

/// A choice between several texts.
class SHAPEKIT_EXPORT Choice : public Property
{
public:
    Choice(PropertiedShape *shape, const Text &text, int index, const QVector<const Text *> &entries);
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
    ColorValue(PropertiedShape *shape, const Text &text, QRgb color);
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
    TextValue(PropertiedShape *shape, const Text &text, const QString &value);
    operator QString() const { return m_value; }
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
    NumberList(PropertiedShape *shape, const Text &text, int count, double lowest, double highest);

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
    DataValue(PropertiedShape *shape, const Text &text);
    operator QByteArray() const { return m_value; }
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
