// Form and picture of every shape, and drags of its control points under any mirroring, rotation, size and zoom.

#include <shapes/checklisttest.h>

#include <checklist/pose.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgstructurenode.h>
#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtWidgets/QUndoStack>

using shapetest::ShapeDriver;

namespace {

constexpr double tolerance = 0.01; // item units

/// Shapes that keep their points on a line or circle of their own: a drag takes these to the nearest place there.
QStringList boundPoints()
{
    return {
        QStringLiteral("clock"),
        QStringLiteral("pendulum"),
        QStringLiteral("pie"),
        QStringLiteral("protractor"),
        QStringLiteral("star"),
        QStringLiteral("declared/balance"),
        QStringLiteral("declared/fractioncircle"),
        QStringLiteral("declared/gauge"),
        QStringLiteral("declared/prism"),
        QStringLiteral("declared/ramp"),
        QStringLiteral("declared/switch"),
    };
}

/// The figures and texts of a drawing, in groups or not, without control points.
QVector<const QZeSvgNode *> partsOf(const QZeSvgStructureNode &root)
{
    QVector<const QZeSvgNode *> parts;
    for (const QZeSvgNode *node : support::listed(root.children()))
        if (node->type() == QZeSvgNode::Group)
            parts += partsOf(*static_cast<const QZeSvgStructureNode *>(node));
        else if (!node->nodeId().startsWith(QLatin1String("control_")))
            parts.append(node);
    return parts;
}

} // namespace

class TestForms : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyShapeKeepsThePromise_data() { shapetest::addChecklistRows(checklist::formChecks()); }
    void everyShapeKeepsThePromise() { QCOMPARE(shapetest::findingsOfRow(), QStringList()); }
    void linesAreAsWideAsTheyAreOnceTheyAreSaved_data() { addShapeRows(); }
    void linesAreAsWideAsTheyAreOnceTheyAreSaved();
    void controlPointGoesWhereItCanBeDragged_data();
    void controlPointGoesWhereItCanBeDragged();
    void someControlPointsAreFree() { QVERIFY(freeDrags >= 10); }

private:
    void addShapeRows();

    int freeDrags = 0; ///< drags of the table that had to end under the cursor
};

void TestForms::addShapeRows()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(shapetest::allShapeNames()))
        QTest::newRow(qPrintable(name)) << name;
}

/// A file keeps one pen width, a whole number of units, and loading gives it to every line that follows the pen.
void TestForms::linesAreAsWideAsTheyAreOnceTheyAreSaved()
{
    QFETCH(QString, name);
    constexpr double otherWidth = 7;
    ShapeDriver shape(name);
    const double saved = shape.core().getPenWidth();
    QVERIFY(saved != otherWidth);
    QVector<QPair<const QZeSvgNode *, double>> widths;
    for (const QZeSvgNode *part : support::listed(partsOf(shape.document())))
        widths.append({part, part->strokeWidth()});
    shape.document().setAllStrokeWidth(otherWidth);
    int followers = 0;
    for (const auto &[node, width] : widths) {
        if (node->strokeWidth() != otherWidth)
            continue;
        ++followers;
        QVERIFY2(width == saved, qPrintable(QStringLiteral("%1: %2").arg(node->nodeId()).arg(width)));
    }
    const QStringList withoutLines{QStringLiteral("picture"), QStringLiteral("text")};
    QCOMPARE(followers > 0, !withoutLines.contains(name));
}

void TestForms::controlPointGoesWhereItCanBeDragged_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<int>("pose");
    for (const QString &name : support::listed(shapetest::allShapeNames())) {
        for (int pose = 0; pose < checklist::poseCount; ++pose)
            QTest::newRow(qPrintable(name + QStringLiteral(", ") + QLatin1String(checklist::poses[pose].name)))
                << name << pose;
    }
}

void TestForms::controlPointGoesWhereItCanBeDragged()
{
    QFETCH(QString, name);
    QFETCH(int, pose);
    const checklist::Pose &how = checklist::poses[pose];
    const checklist::ZoomedDocument document(how.zoom);
    ShapeDriver shape(name);
    checklist::createInPose(shape, how);
    for (int number = 1; number <= shape.controlPointCount(); ++number) {
        // Wherever a drag takes it: the shape says where it can be. There it goes from where it was, exactly.
        const QPointF start = shape.scenePoint(number);
        const QPointF way(23, -17);
        const QPointF target = shape.object().mapToScene(shape.seenControlPoint(number) + way);
        const bool isFree = !boundPoints().contains(name) && shape.hasRoom(number, way);
        freeDrags += isFree;
        shape.dragInScene(number, target);
        const QPointF end = shape.scenePoint(number);
        shape.undoStack().undo();
        QVERIFY(QLineF(shape.scenePoint(number), start).length() < tolerance);
        shape.dragInScene(number, end);
        QVERIFY2(QLineF(shape.scenePoint(number), end).length() < tolerance, qPrintable(QString::number(number)));
        // A free point goes under the cursor at once.
        QVERIFY2(!isFree || QLineF(end, target).length() < tolerance, qPrintable(QString::number(number)));
        shape.undoStack().undo();
    }
}

QTEST_MAIN(TestForms)
#include "test_forms.moc"
