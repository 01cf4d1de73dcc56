#include <shapekit/formulavalue.h>

#include <shapekit/text.h>

#include <svgobj/csvgobj.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>

namespace shapekit {

namespace {

const Text emptyText("Write a formula, such as sin(x).", "Eine Formel schreiben, etwa sin(x).");
const Text unexpectedText("“%2” can't stand at character %1.", "„%2“ kann an Stelle %1 nicht stehen.");
const Text unknownText("There is no “%2” (character %1).", "„%2“ gibt es nicht (Stelle %1).");
const Text noArgumentText("“%2” needs parentheses: %2(x) (character %1).",
                          "„%2“ braucht Klammern: %2(x) (Stelle %1).");
const Text unclosedText("“%2” at character %1 isn't closed.", "„%2“ an Stelle %1 wird nicht geschlossen.");
const Text incompleteText("Something is missing at the end (character %1).", "Am Ende fehlt etwas (Stelle %1).");
const Text tooLongText("The formula is too long (character %1).", "Die Formel ist zu lang (Stelle %1).");

/// Of a text that nobody can mean as a formula, UTF-16 units.
constexpr int mostKept = 5 * Formula::mostCharacters;

/// By Formula::Fault.
const QVector<const Text *> &messages()
{
    static const QVector<const Text *> texts{&emptyText,    &unexpectedText, &unknownText, &noArgumentText,
                                             &unclosedText, &incompleteText, &tooLongText};
    return texts;
}

} // namespace

FormulaValue::FormulaValue(PropertiedShape *shape, const Text &text, const QString &formula)
    : Property(shape, text)
    , m_text(formula)
    , m_inForce(formula)
    , m_formula(formula)
{
}

QVector<const Text *> FormulaValue::texts() const
{
    return Property::texts() + messages();
}

void FormulaValue::take(const QString &text, const QString &inForce)
{
    m_text = text.left(mostKept);
    const Formula written(m_text);
    if (written.isReadable()) {
        m_inForce = m_text;
        m_formula = written;
        return;
    }
    const Formula former(inForce);
    if (inForce == m_inForce || !former.isReadable())
        return;
    m_inForce = inForce;
    m_formula = former;
}

void FormulaValue::write(QDataStream &out) const
{
    out << m_text;
    if (m_inForce != m_text)
        out << m_inForce;
}

void FormulaValue::read(QDataStream &in)
{
    QString text;
    QString inForce;
    in >> text;
    if (in.status() != QDataStream::Ok)
        return;
    if (!in.atEnd())
        in >> inForce;
    take(text.isNull() ? QString(QLatin1String("")) : text, inForce);
}

QJsonValue FormulaValue::toJson() const
{
    return m_inForce == m_text ? QJsonValue(m_text) : QJsonValue(QJsonArray{m_text, m_inForce});
}

void FormulaValue::fromJson(const QJsonValue &value)
{
    if (value.isString())
        take(value.toString(), QString());
    else if (value.isArray())
        take(value[0].toString(QLatin1String("")), value[1].toString());
}

QJsonObject FormulaValue::control(CSVGObj &object) const
{
    QString id = controlId();
    QString title = nameKey();
    QString value = m_text;
    QString type = QStringLiteral("text");
    QString none;
    QJsonObject control = object.GetSettingJsonInput(id, title, value, type, none, none, none);
    const Formula written(m_text);
    if (!written.isReadable()) {
        control[QStringLiteral("message")] = keyOf(*messages().at(written.fault() - 1));
        control[QStringLiteral("arguments")] =
            QJsonArray{QString::number(written.faultOffset() + 1), written.faultyText()};
    }
    return control;
}

void FormulaValue::takeAnswer(const QString &text)
{
    take(text, m_inForce);
}

} // namespace shapekit
