#include <checklist/check.h>

namespace checklist {

namespace {

/// More of one check say nothing new.
constexpr int mostFindings = 10;

} // namespace

bool Report::expect(bool holds, const QString &finding)
{
    if (!holds && m_findings.size() < mostFindings)
        m_findings.append(finding);
    return holds;
}

QVector<Check> allChecks()
{
    return savingChecks() + panelChecks() + formChecks() + draggingChecks();
}

} // namespace checklist
