#pragma once

#include <shapekit/formula.h>
#include <shapekit/property.h>

namespace shapekit {

/// A formula that the user writes, and the last one that could be read, which stays in force meanwhile. A setting
/// of the panel tells what is wrong with the text.
class SHAPEKIT_EXPORT FormulaValue : public Property
{
public:
    /// `formula` is readable.
    FormulaValue(PropertiedShape *shape, const Text &text, const QString &formula);

    /// The function to draw.
    const Formula &formula() const { return m_formula; }
    /// The text as the user has written it, readable or not.
    QString text() const { return m_text; }

    QVector<const Text *> texts() const override;
    DATA_TYPE dataType() const override { return DATA_TYPE_4; }
    /// The text, and behind it the formula in force where that is another one.
    void write(QDataStream &out) const override;
    void read(QDataStream &in) override;
    /// The text, or an array of both.
    QJsonValue toJson() const override;
    void fromJson(const QJsonValue &value) override;
    QJsonObject control(CSVGObj &object) const override;
    void takeAnswer(const QString &text) override;

private:
    void take(const QString &text, const QString &inForce);

    QString m_text;
    QString m_inForce;
    Formula m_formula;
};

} // namespace shapekit
