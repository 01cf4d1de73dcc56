#include "style/customproperties.h"

namespace Svg {

namespace {

/// Deepest chain of references, and longest text that they may make.
constexpr int deepestReference = 16;
constexpr int longestValue = 4096;
/// Most references that one value is made of.
constexpr int mostReferences = 64;
/// Deepest nesting of elements that declare any; deeper ones declare none.
constexpr int deepestLevel = 32;

const QLatin1String variableStart("var(");

qsizetype closingBracket(QStringView text, qsizetype from)
{
    int open = 1;
    for (qsizetype i = from; i < text.size(); ++i) {
        if (text[i] == QLatin1Char('('))
            ++open;
        else if (text[i] == QLatin1Char(')') && --open == 0)
            return i;
    }
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

    const CustomProperties &m_properties;
    int m_depth = 0;
    int m_references = 0;
};

bool Substitution::appendReference(QStringView arguments, QString *result)
{
    if (++m_references > mostReferences)
        return false;
    const qsizetype comma = arguments.indexOf(QLatin1Char(','));
    const QStringView name = comma < 0 ? arguments : arguments.left(comma);
    const QString *known = m_properties.find(name.trimmed().toString());
    if (!known)
        return comma >= 0 && append(arguments.mid(comma + 1).trimmed(), result);
    return append(*known, result);
}

bool Substitution::append(QStringView value, QString *result)
{
    if (++m_depth > deepestReference)
        return false;
    qsizetype from = 0;
    for (;;) {
        const qsizetype start = value.indexOf(variableStart, from, Qt::CaseInsensitive);
        *result += value.mid(from, start < 0 ? -1 : start - from);
        if (result->size() > longestValue)
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
    // What is shared is the parent's.
    if (!m_level || m_level->ref.loadRelaxed() > 1) {
        if (m_level && m_level->depth >= deepestLevel)
            return;
        auto *fresh = new Level;
        fresh->above = m_level;
        fresh->depth = m_level ? m_level->depth + 1 : 1;
        m_level = QExplicitlySharedDataPointer<Level>(fresh);
    }
    m_level->values.insert(name, value.isNull() ? QStringLiteral("") : value);
}

void CustomProperties::settle()
{
    if (!m_level)
        return;
    QHash<QString, QString> settled;
    for (auto at = m_level->values.constBegin(); at != m_level->values.constEnd(); ++at) {
        if (hasVariables(*at))
            settled.insert(at.key(), withVariables(*at, *this).value_or(QString()));
    }
    for (auto at = settled.constBegin(); at != settled.constEnd(); ++at)
        m_level->values[at.key()] = *at;
}

bool hasVariables(QStringView value)
{
    // Few values have brackets, and looking for one is quick.
    return value.contains(QLatin1Char('(')) && value.contains(variableStart, Qt::CaseInsensitive);
}

std::optional<QString> withVariables(QStringView value, const CustomProperties &properties)
{
    QString result;
    if (!Substitution(properties).append(value, &result))
        return std::nullopt;
    return result;
}

} // namespace Svg
