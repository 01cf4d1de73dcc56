// Where a point lands that is dragged along a track.

#include <declared/core/tracks.h>

#include <QtCore/QLineF>
#include <QtTest/QtTest>

#include <cmath>

using namespace declared;

class TestTracks : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void pointStaysOnItsTrack_data();
    void pointStaysOnItsTrack();
    void trackThatIsNotFiniteHoldsNoPoint();
};

void TestTracks::pointStaysOnItsTrack_data()
{
    QTest::addColumn<int>("kind");
    QTest::addColumn<QVector<QPointF>>("arguments");
    QTest::addColumn<double>("step");
    QTest::addColumn<QPointF>("at");
    QTest::addColumn<QPointF>("lands");
    const auto row = [](const char *name, TrackDeclaration::Kind kind, const QVector<QPointF> &arguments,
                        double step, QPointF at,
                        QPointF lands) { QTest::newRow(name) << int(kind) << arguments << step << at << lands; };
    // Numbers stand in x.
    const QVector<QPointF> line{{0, 0}, {100, 0}};
    row("line", TrackDeclaration::Line, line, 0, {30, 40}, {30, 0});
    row("before the line", TrackDeclaration::Line, line, 0, {-5, 3}, {0, 0});
    row("behind the line", TrackDeclaration::Line, line, 0, {170, 3}, {100, 0});
    row("steps of a line", TrackDeclaration::Line, line, 25, {40, 9}, {50, 0});
    row("last step of a line", TrackDeclaration::Line, line, 30, {120, 0}, {90, 0});
    row("line without length", TrackDeclaration::Line, {{7, 8}, {7, 8}}, 0, {40, 9}, {7, 8});
    const QVector<QPointF> circle{{50, 50}, {10, 0}};
    row("circle", TrackDeclaration::Circle, circle, 0, {50, 90}, {50, 60});
    row("centre of the circle", TrackDeclaration::Circle, circle, 0, {50, 50}, {60, 50});
    row("steps of a circle", TrackDeclaration::Circle, circle, 90, {45, 43}, {50, 40});
    row("steps across the start", TrackDeclaration::Circle, circle, 90, {58, 48}, {60, 50});
    const QVector<QPointF> ellipse{{0, 0}, {20, 0}, {10, 0}};
    row("ellipse", TrackDeclaration::Ellipse, ellipse, 0, {0, -3}, {0, -10});
    row("ellipse at its side", TrackDeclaration::Ellipse, ellipse, 0, {-90, 0}, {-20, 0});
    row("steps of an ellipse", TrackDeclaration::Ellipse, ellipse, 45, {4, 2}, {20 * M_SQRT1_2, 10 * M_SQRT1_2});
    const QVector<QPointF> arc{{0, 0}, {10, 0}, {0, 0}, {90, 0}};
    row("arc", TrackDeclaration::Arc, arc, 0, {3, 3}, {10 * M_SQRT1_2, 10 * M_SQRT1_2});
    row("behind the arc", TrackDeclaration::Arc, arc, 0, {-10, -1}, {0, 10});
    row("before the arc", TrackDeclaration::Arc, arc, 0, {10, -1}, {10, 0});
    row("arc across the start", TrackDeclaration::Arc, {{0, 0}, {10, 0}, {270, 0}, {90, 0}}, 0, {20, 0}, {10, 0});
    const QVector<QPointF> sector{{0, 0}, {5, 0}, {15, 0}, {0, 0}, {90, 0}};
    row("inside the sector", TrackDeclaration::Sector, sector, 0, {6, 8}, {6, 8});
    row("within the inner arc", TrackDeclaration::Sector, sector, 0, {3, 4}, {3, 4});
    row("nearer than the inner arc", TrackDeclaration::Sector, sector, 0, {1, 0}, {5, 0});
    row("beyond the outer arc", TrackDeclaration::Sector, sector, 0, {0, 100}, {0, 15});
    row("beside the sector", TrackDeclaration::Sector, sector, 0, {-8, 6}, {0, 10});
}

void TestTracks::pointStaysOnItsTrack()
{
    QFETCH(int, kind);
    QFETCH(QVector<QPointF>, arguments);
    QFETCH(double, step);
    QFETCH(QPointF, at);
    QFETCH(QPointF, lands);
    QVector<Value> values;
    for (const QPointF &argument : qAsConst(arguments))
        values.append(argument);
    const QPointF found = nearestOnTrack(TrackDeclaration::Kind(kind), values, step, at);
    QVERIFY2(QLineF(found, lands).length() < 1e-9,
             qPrintable(QStringLiteral("%1 %2").arg(found.x()).arg(found.y())));
}

void TestTracks::trackThatIsNotFiniteHoldsNoPoint()
{
    const QPointF at(3, 4);
    QCOMPARE(nearestOnTrack(TrackDeclaration::Circle, {QPointF(0, 0), qQNaN()}, 0, at), at);
    QCOMPARE(nearestOnTrack(TrackDeclaration::None, {}, 0, at), at);
}

QTEST_GUILESS_MAIN(TestTracks)
#include "test_tracks.moc"
