// Drags that move the view box, and property changes, in random order with undo and redo in between: control points
// and view box come back exactly, and with them what a core saves.

#include <support/mouse.h>
#include <support/shapefixture.h>
#include <support/streams.h>

#include <QtTest/QtTest>

#include <random>

using namespace support;

class TestRandomDrags : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepComesBack_data();
    void everyStepComesBack();
};

namespace {

constexpr unsigned startValue = 314159;
constexpr int steps = 10000;
constexpr int pointCount = 3;
constexpr int mostAtOnce = 5;

/// A shape that shows just its control points and a margin around them, wherever they are dragged.
class GrowingShape : public ShapeFixture
{
public:
    explicit GrowingShape(bool raw)
        : ShapeFixture(svgText(QStringLiteral("0 0 100 50"), controlPointsText(pointCount)))
    {
        shape->rawControlPoints = raw;
        shape->propPenStyleEnabled = true;
        shape->propPenWidthEnabled = true;
        shape->onUpdateNode = [this](QZeSvgNode *, QPointF, bool) {
            fit();
            return true;
        };
        load();
        select();
        fit();
    }

    void fit()
    {
        QRectF covered = shape->pointRect(1);
        for (int number = 2; number <= pointCount; ++number)
            covered = covered.united(shape->pointRect(number));
        shape->adjustSvgPosition(covered.adjusted(-4, -4, 4, 4), true);
    }

    /// Left and top of the control points, the view box, and what is saved.
    QByteArray state()
    {
        QByteArray places;
        for (int number = 1; number <= pointCount; ++number)
            places += bytesOf(shape->pointRect(number).topLeft());
        Output out;
        shape->save(out);
        return places + bytesOf(shape->document->viewBox()) + out.bytes();
    }

    /// Item coordinates of the middle of a control point: the shape is drawn one to one.
    QPointF middleOf(int number)
    {
        return shape->pointRect(number).center() - shape->document->viewBox().topLeft() +
               object.clientRect.topLeft();
    }
};

} // namespace

void TestRandomDrags::everyStepComesBack_data()
{
    QTest::addColumn<bool>("raw");
    QTest::newRow("usual control points") << false;
    QTest::newRow("raw control points") << true;
}

void TestRandomDrags::everyStepComesBack()
{
    QFETCH(const bool, raw);
    GrowingShape growing(raw);
    std::mt19937 engine(startValue);
    const auto below = [&](int end) { return int(engine() % unsigned(end)); };
    QVector<QByteArray> states{growing.state()};
    int boxes = 0;
    for (int step = 0; step < steps; ++step) {
        const int index = undoStack().index();
        const QRectF box = growing.shape->document->viewBox();
        const int kind = below(10);
        if (kind < 2) {
            undoStack().setIndex(qMax(0, index - below(mostAtOnce)));
        } else if (kind < 4) {
            undoStack().setIndex(qMin(undoStack().count(), index + below(mostAtOnce)));
        } else if (kind < 8) {
            const QPointF from = growing.middleOf(1 + below(pointCount));
            drag(*growing.shape, from, from + QPointF(below(321) - 160, below(321) - 160) / 8);
        } else {
            // The pen width resizes raw control points, and an odd size moves their centre for good.
            const int propId = raw ? 5003 : 5004;
            growing.shape->SetAttribute(propId, inputOf(qint32(below(6))), below(2) == 0, true);
        }
        boxes += box != growing.shape->document->viewBox();
        if (kind >= 4 && undoStack().index() > index) {
            states.resize(undoStack().index());
            states.append(growing.state());
        }
        QCOMPARE(growing.state().toHex(), states.at(undoStack().index()).toHex());
        recording::clear();
    }
    QVERIFY(boxes > steps / 10); // the view box did move
}

QTEST_MAIN(TestRandomDrags)
#include "test_randomdrags.moc"
