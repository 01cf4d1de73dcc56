#include "svgbase/comparisonrules.h"

#include <QtCore/QFile>
#include <QtCore/QStringList>

namespace {

constexpr int fields = 3;

// A source names its section, by number or by its title in quotes.
bool namesSection(const QString &source)
{
    return source.contains(QChar(0xa7)) || source.count(QLatin1Char('"')) == 2;
}

bool isComplete(const QStringList &parts)
{
    return parts.size() == fields && !parts.at(0).trimmed().isEmpty() && namesSection(parts.at(1)) &&
           !parts.at(2).trimmed().isEmpty();
}

} // namespace

const ComparisonRule *ComparisonRules::take(const QString &name)
{
    const ComparisonRule *found = nullptr;
    for (const ComparisonRule &rule : qAsConst(m_rules))
        if (name.startsWith(rule.start) && (!found || rule.start.size() > found->start.size()))
            found = &rule;
    if (found)
        m_used.insert(found->start);
    return found;
}

QStringList ComparisonRules::unused() const
{
    QStringList starts;
    for (const ComparisonRule &rule : m_rules)
        if (!m_used.contains(rule.start))
            starts.append(rule.start);
    return starts;
}

ComparisonRules readComparisonRules(const QString &path)
{
    ComparisonRules rules;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        rules.addProblem(QStringLiteral("cannot read ") + path);
        return rules;
    }
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'));
    for (const QString &line : lines) {
        if (line.trimmed().isEmpty() || line.startsWith(QLatin1String("//")))
            continue;
        const QStringList parts = line.split(QLatin1Char('|'));
        if (isComplete(parts))
            rules.add({parts.at(0).trimmed(), parts.at(1).trimmed(), parts.at(2).trimmed()});
        else
            rules.addProblem(QStringLiteral("not understood: ") + line);
    }
    return rules;
}
