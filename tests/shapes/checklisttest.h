#pragma once

#include <shapes/shapedriver.h>

#include <checklist/check.h>

#include <support/listed.h>

#include <QtTest/QtTest>

Q_DECLARE_METATYPE(checklist::Check)

namespace shapetest {

/// Rows of every check with every shape there is.
inline void addChecklistRows(const QVector<checklist::Check> &checks)
{
    QTest::addColumn<checklist::Check>("check");
    QTest::addColumn<QString>("name");
    for (const checklist::Check &check : checks)
        for (const QString &name : support::listed(allShapeNames()))
            QTest::newRow(qPrintable(QStringLiteral("%1: %2").arg(QLatin1String(check.promise), name)))
                << check << name;
}

/// The findings of the present row's check.
inline QStringList findingsOfRow()
{
    QFETCH(checklist::Check, check);
    QFETCH(QString, name);
    checklist::Report report;
    check.run({name, pluginOf(name), kindOf(name)}, report);
    return report.findings();
}

} // namespace shapetest
