#pragma once

#include <checklist/subject.h>

#include <QtCore/QString>
#include <QtCore/QStringList>
#include <QtCore/QVector>

namespace checklist {

/// Collects where a shape doesn't keep a promise.
class Report
{
public:
    /// Notes a finding unless something holds; gives whether it does.
    bool expect(bool holds, const QString &finding);
    bool isClean() const { return m_findings.isEmpty(); }
    const QStringList &findings() const { return m_findings; }

private:
    QStringList m_findings;
};

/// A promise that every shape keeps, and how it is checked.
struct Check
{
    const char *name;
    const char *promise;
    void (*run)(const Subject &subject, Report &report);
};

/// @name The checklist, by what is promised
/// @{
const QVector<Check> &savingChecks();
const QVector<Check> &panelChecks();
const QVector<Check> &formChecks();
const QVector<Check> &draggingChecks();
QVector<Check> allChecks();
/// @}

/// The start of all random numbers, so that every run does the same.
constexpr unsigned startValue = 20240229;

} // namespace checklist
