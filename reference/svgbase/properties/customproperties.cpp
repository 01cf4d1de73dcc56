#include "properties/customproperties.h"

#include "properties/settlingorder.h"

#include <algorithm>

namespace Svg {

namespace {

/// Deepest nesting of fallbacks, and longest text that references may make.
constexpr int deepestFallback = 16;
constexpr int longestValue = 4096;
/// Deepest nesting of elements that declare custom properties; deeper ones declare none.
constexpr int deepestLevel = 32;

qsizetype closingBracket(QStringView text, qsizetype from)
{
    int open = 1;
    for (qsizetype i = from; i < text.size(); ++i)
        if (text[i] == QLatin1Char('('))
            ++open;
        else if (text[i] == QLatin1Char(')') && --open == 0)
            return i;
    return -1;
}

class Substitution
{
public:
    explicit Substitution(const CustomProperties &properties)
        : m_properties(properties)
    {
    }

    bool append(QStringView value, QString *result);

private:
    bool appendReference(QStringView arguments, QString *result);
    static bool appendPlain(QStringView text, QString *result);

    const CustomProperties &m_properties;
    int m_depth = 0;
    int m_references = 0;
};

// Declared properties have been resolved by now and contain no references.
bool Substitution::appendReference(QStringView arguments, QString *result)
{
    if (++m_references > mostReferences)
        return false;
    const qsizetype comma = arguments.indexOf(QLatin1Char(','));
    const QStringView name = comma < 0 ? arguments : arguments.left(comma);
    const QString *known = m_properties.find(name.trimmed().toString());
    if (!known)
        return comma >= 0 && append(arguments.mid(comma + 1).trimmed(), result);
    return appendPlain(*known, result);
}

bool Substitution::appendPlain(QStringView text, QString *result)
{
    if (result->size() + text.size() > longestValue)
        return false;
    *result += text;
    return true;
}

bool Substitution::append(QStringView value, QString *result)
{
    if (++m_depth > deepestFallback)
        return false;
    qsizetype from = 0;
    for (;;) {
        const qsizetype start = value.indexOf(variableStart, from, Qt::CaseInsensitive);
        if (!appendPlain(value.mid(from, start < 0 ? -1 : start - from), result))
            return false;
        if (start < 0)
            break;
        const qsizetype begin = start + variableStart.size();
        const qsizetype end = closingBracket(value, begin);
        if (end < 0 || !appendReference(value.mid(begin, end - begin), result))
            return false;
        from = end + 1;
    }
    --m_depth;
    return true;
}

} // namespace

const QString *CustomProperties::find(const QString &name) const
{
    for (const Level *level = m_level.data(); level; level = level->above.data()) {
        const auto known = level->values.constFind(name);
        if (known != level->values.constEnd())
            return known->isNull() ? nullptr : &*known;
    }
    return nullptr;
}

void CustomProperties::insert(const QString &name, const QString &value)
{
    // A shared level belongs to the parent.
    if (!m_level || m_level->ref.loadRelaxed() > 1) {
        if (m_level && m_level->depth >= deepestLevel)
            return;
        auto *fresh = new Level;
        fresh->above = m_level;
        fresh->depth = m_level ? m_level->depth + 1 : 1;
        m_level = QExplicitlySharedDataPointer<Level>(fresh);
    }
    m_level->values.insert(name, value.isNull() ? QLatin1String("") : value);
}

void CustomProperties::settle(int *charactersLeft)
{
    if (!m_level)
        return;
    QHash<QString, QString> &values = m_level->values;
    if (std::none_of(values.constBegin(), values.constEnd(), hasVariables))
        return;
    const QVector<Settling> order = SettlingOrder(values).find();
    for (const Settling &next : order) {
        QString settled;
        if (!next.isCircular && *charactersLeft >= 0)
            settled = withVariables(values.value(next.name), *this).value_or(QString());
        *charactersLeft = qMax(*charactersLeft - settled.size(), -1);
        values[next.name] = *charactersLeft < 0 ? QString() : settled;
    }
}

std::optional<QString> withVariables(QStringView value, const CustomProperties &properties)
{
    QString result;
    if (!Substitution(properties).append(value, &result))
        return std::nullopt;
    return result;
}

} // namespace Svg
