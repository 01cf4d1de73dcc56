#pragma once

#include <QtCore/QSet>
#include <QtCore/QString>
#include <QtCore/QVector>

/// Why a drawing is right: where the standard says so, and what it says, in our words.
struct ComparisonRule
{
    /// Prefix of the names of the cases.
    QString start;
    QString source;
    QString text;
};

/// Rules by the beginning of a case's name; the longest beginning counts.
class ComparisonRules
{
public:
    void add(const ComparisonRule &rule) { m_rules.append(rule); }
    void addProblem(const QString &problem) { m_problems.append(problem); }
    const QStringList &problems() const { return m_problems; }

    /// The rule for a case; null when there is none. It counts as used from then on.
    const ComparisonRule *take(const QString &name);
    /// Beginnings of names of rules that were never taken.
    QStringList unused() const;

private:
    QVector<ComparisonRule> m_rules;
    QStringList m_problems;
    QSet<QString> m_used;
};

/// Reads lines of the form "beginning | source | text"; empty lines and lines that begin with "//" say nothing.
ComparisonRules readComparisonRules(const QString &path);
