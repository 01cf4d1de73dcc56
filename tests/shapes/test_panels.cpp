// The panels of every shape: what it tells about its properties can be read, shown in words, answered and taken
// back.

#include <shapes/checklisttest.h>

#include <checklist/states.h>

using checklist::settingsOf;
using shapetest::ShapeDriver;

class TestPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyShapeKeepsThePromise_data() { shapetest::addChecklistRows(checklist::panelChecks()); }
    void everyShapeKeepsThePromise() { QCOMPARE(shapetest::findingsOfRow(), QStringList()); }
    void settingsAreNamedInBothLanguages_data();
    void settingsAreNamedInBothLanguages();
};

void TestPanels::settingsAreNamedInBothLanguages_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(shapetest::allShapeNames()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestPanels::settingsAreNamedInBothLanguages()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const pagehost::TextTable english = shape.plugin()->texts(QStringLiteral("en"));
    const pagehost::TextTable german = shape.plugin()->texts(QStringLiteral("de"));
    QSet<QString> ids;
    const QJsonArray settings = settingsOf(shape);
    QVERIFY(!settings.isEmpty());
    for (const QJsonValue &value : settings) {
        const QJsonObject control = value.toObject();
        const QString id = control[QStringLiteral("id")].toString();
        QVERIFY2(id.startsWith(QStringLiteral("id")) && !ids.contains(id), qPrintable(id));
        ids.insert(id);
        const QString title = control[QStringLiteral("title")].toString();
        if (!title.startsWith(QStringLiteral("IDS_SHAPE_")))
            continue;
        QVERIFY2(!english.value(title).isEmpty() && !german.value(title).isEmpty(), qPrintable(title));
        for (const QJsonValue &entry : support::listed(control[QStringLiteral("texts")].toArray()))
            QVERIFY2(english.contains(entry.toString()) && german.contains(entry.toString()), qPrintable(title));
    }
}

QTEST_MAIN(TestPanels)
#include "test_panels.moc"

#include <support/listed.h>
