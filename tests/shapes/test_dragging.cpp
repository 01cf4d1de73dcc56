// Control points of every shape, dragged over their ranges in every pose.

#include <shapes/checklisttest.h>

class TestDragging : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyShapeKeepsThePromise_data() { shapetest::addChecklistRows(checklist::draggingChecks()); }
    void everyShapeKeepsThePromise() { QCOMPARE(shapetest::findingsOfRow().join(QLatin1Char(0xa)), QString()); }
};

QTEST_MAIN(TestDragging)
#include "test_dragging.moc"
