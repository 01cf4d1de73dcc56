// Persistence of every shape: saved and opened, undone and redone, recorded and played back, it is the same to the
// byte.

#include <shapes/checklisttest.h>

class TestSaving : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyShapeKeepsThePromise_data() { shapetest::addChecklistRows(checklist::savingChecks()); }
    void everyShapeKeepsThePromise() { QCOMPARE(shapetest::findingsOfRow().join(QLatin1Char(0xa)), QString()); }
};

QTEST_MAIN(TestSaving)
#include "test_saving.moc"
