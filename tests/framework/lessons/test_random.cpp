#include "framework/lessons/classroom.h"

#include <pagehost/lesson.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtCore/QRandomGenerator>

// Random editing of every kind, recorded and played. A step is one of a teacher's changes, with undo and redo among
// them; the numbers of steps can be multiplied by the environment variable LESSON_STEPS.

class TestLessonRandom : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void initTestCase();
    void everyShapePlaysWhatWasRecorded_data();
    void everyShapePlaysWhatWasRecorded();
    void manyShapesPlayWhatWasRecorded_data();
    void manyShapesPlayWhatWasRecorded();
};

namespace {

constexpr int stepsForEachShape = 50;
constexpr int stepsForAllShapes = 300;
constexpr int mostObjects = 8;
constexpr int mostPages = 4;

int scaled(int steps)
{
    return steps * qMax(1, qEnvironmentVariableIntValue("LESSON_STEPS"));
}

class Teacher
{
public:
    Teacher(Classroom &room, const QStringList &kinds, quint32 start)
        : m_room(room)
        , m_kinds(kinds)
        , m_random(start)
    {
    }

    void doSomething()
    {
        m_room.now += number(400);
        m_room.view.setScene(page()->scene());
        if (page()->objects().isEmpty())
            return draw();
        static const QVector<void (Teacher::*)()> changes{
            &Teacher::draw,      &Teacher::remove,     &Teacher::move,       &Teacher::resize,  &Teacher::rotate,
            &Teacher::mirror,    &Teacher::restack,    &Teacher::lock,       &Teacher::fill,    &Teacher::shade,
            &Teacher::color,     &Teacher::style,      &Teacher::width,      &Teacher::reshape, &Teacher::reshape,
            &Teacher::reshape,   &Teacher::dragHandle, &Teacher::dragHandle, &Teacher::undo,    &Teacher::undo,
            &Teacher::redo,      &Teacher::editPages,  &Teacher::setPaper,   &Teacher::zoom,    &Teacher::takeBreak,
            &Teacher::setNumber, &Teacher::wait,       &Teacher::cancel,     &Teacher::answer,  &Teacher::answer};
        (this->*changes[number(changes.size())])();
    }

private:
    int number(int below) { return int(m_random.bounded(quint32(below))); }
    double real(double from, double to) { return from + m_random.generateDouble() * (to - from); }
    QColor anyColor() { return QColor::fromRgba(m_random.generate()); }
    pagehost::Page *page() const { return m_room.document.currentPage(); }
    CBaseObject *any() { return page()->objects().at(number(page()->objectCount())); }

    void draw()
    {
        if (page()->objectCount() >= mostObjects)
            return remove();
        const QPointF from(real(10, 500), real(10, 400));
        m_room.draw(m_kinds[number(m_kinds.size())], from, from + QPointF(real(-80, 200), real(-60, 200)));
    }
    void remove() { pagehost::removeObjects(page(), {any()}); }
    void move() { pagehost::moveObjects({any(), any()}, QPointF(real(-40, 40), real(-40, 40))); }
    void resize() { pagehost::resizeObject(any(), QSizeF(real(5, 300), real(5, 300))); }
    void rotate() { pagehost::rotateObjects({any()}, real(-180, 180)); }
    void mirror() { pagehost::mirrorObjects({any()}, number(2) == 0); }
    void restack() { pagehost::restack(page(), {any()}, pagehost::StackingMove(number(4))); }
    void lock() { pagehost::setObjectsLocked({any()}, number(3) == 0); }
    void fill() { pagehost::setFill({any()}, anyColor()); }
    void shade() { pagehost::setObjectsFill({any()}, anyFill()); }
    void color() { pagehost::setPenColor({any()}, anyColor()); }
    void style() { pagehost::setPenStyle({any()}, Qt::PenStyle(number(6))); }
    void width() { pagehost::setPenWidth({any()}, number(8) + 1); }
    void undo() { undoStack()->setIndex(qMax(0, undoStack()->index() - number(4))); }
    void redo() { undoStack()->setIndex(qMin(undoStack()->count(), undoStack()->index() + number(4))); }
    void setPaper() { pagehost::setPageBackground(page(), anyFill()); }
    void zoom() { m_room.setZoom(real(0.5, 2)); }
    void wait() { Classroom::letTimersRun(); }

    CPageBgProp anyFill()
    {
        CPageBgProp fill(nullptr);
        fill.setFillEnable(number(4) != 0);
        fill.setFillType(number(4));
        fill.setFillColor(anyColor());
        fill.setGradientColor(anyColor());
        fill.setGradientAngle(number(360));
        fill.setPattern(Qt::BrushStyle(number(Qt::DiagCrossPattern + 1)));
        fill.setOpacity(number(256));
        return fill;
    }

    /// A press on a point of the page that is grip of that kind, if a few tries find one.
    bool pressGrip(pagehost::Grip::Kind kind, QPointF &pos)
    {
        CBaseObject *object = any();
        page()->select({object});
        const QRectF rect = object->getClientRect().adjusted(-8, -8, 8, 8);
        for (int tries = 0; tries < 60; ++tries) {
            pos = object->mapToScene(QPointF(real(rect.left(), rect.right()), real(rect.top(), rect.bottom())));
            if (page()->scene()->gripAt(pos).kind == kind) {
                m_room.press(pos);
                return true;
            }
        }
        return false;
    }
    void dragGrip(pagehost::Grip::Kind kind)
    {
        QPointF pos;
        if (!pressGrip(kind, pos))
            return;
        for (int moves = number(4); moves >= 0; --moves) {
            pos += QPointF(real(-25, 25), real(-25, 25));
            m_room.moveTo(pos);
            if (number(3) == 0)
                Classroom::letTimersRun();
        }
        m_room.release(pos);
    }
    void reshape() { dragGrip(pagehost::Grip::ControlPoint); }
    void dragHandle() { dragGrip(pagehost::Grip::Handle); }
    void cancel()
    {
        QPointF pos;
        if (pressGrip(number(2) ? pagehost::Grip::ControlPoint : pagehost::Grip::Handle, pos)) {
            m_room.moveTo(pos + QPointF(real(-25, 25), real(-25, 25)));
            page()->scene()->cancelDrag();
            m_room.release(pos);
        }
    }

    void setNumber()
    {
        QBuffer buffer;
        buffer.open(QIODevice::ReadWrite);
        QDataStream stream(&buffer);
        stream << real(20, 250);
        buffer.seek(0);
        any()->SetAttribute(2010 + number(5), stream, number(4) != 0);
    }

    /// Sends a settings panel's answer for one or two controls, sometimes nonsense.
    void answer()
    {
        CBaseObject *object = any();
        QString json;
        object->GetSettingJson(json);
        const QJsonArray controls =
            QJsonDocument::fromJson(json.toUtf8()).object().value(QLatin1String("settings")).toArray();
        QJsonObject answers;
        for (int i = 0; i <= number(2) && !controls.isEmpty(); ++i) {
            const QJsonObject control = controls.at(number(controls.size())).toObject();
            answers[control.value(QLatin1String("id")).toString()] = anyAnswer(control);
        }
        object->SetSettingJson(QString::fromUtf8(QJsonDocument(answers).toJson()), true, true);
    }
    QJsonValue anyAnswer(const QJsonObject &control)
    {
        const QString type = control.value(QLatin1String("type")).toString();
        if (number(10) == 0)
            return QStringLiteral("nonsense");
        if (type == QLatin1String("colorpicker"))
            return anyColor().name(QColor::HexArgb);
        if (type == QLatin1String("combobox"))
            return number(6);
        if (type == QLatin1String("switch"))
            return number(2) == 0;
        const double smallest = control.value(QLatin1String("minimum")).toString().toDouble();
        const double largest = control.value(QLatin1String("maximum")).toString().toDouble();
        return smallest < largest ? QString::number(real(smallest, largest)) : QString::number(number(100));
    }

    void editPages()
    {
        pagehost::Document &document = m_room.document;
        const int index = number(document.pageCount());
        switch (number(5)) {
        case 0:
            if (document.pageCount() < mostPages)
                pagehost::addPage(&document, index, QSizeF(real(300, 900), real(300, 900)));
            break;
        case 1:
            pagehost::removePage(&document, index);
            break;
        case 2:
            pagehost::movePage(&document, index, number(document.pageCount()));
            break;
        case 3:
            page()->setSize(QSizeF(real(300, 900), real(300, 900)));
            break;
        default:
            document.setCurrentIndex(index);
            break;
        }
        m_room.view.setScene(page()->scene());
    }

    void takeBreak()
    {
        if (m_room.recorder.isPaused())
            m_room.recorder.resume();
        else
            m_room.recorder.pause();
    }

    Classroom &m_room;
    QStringList m_kinds;
    QRandomGenerator m_random;
};

void recordAndPlay(const QStringList &kinds, quint32 start, int steps)
{
    Classroom room;
    Teacher teacher(room, kinds, start);
    for (int i = 0; i < 5; ++i)
        teacher.doSomething();
    QVERIFY(room.recorder.start(&room.document));
    // Only now have all objects followed the zoom, as they do when they are painted.
    const QStringList before = savedState(room.document);
    for (int i = 0; i < steps; ++i)
        teacher.doSomething();
    const pagehost::Lesson lesson = room.recorder.stop();
    const QStringList after = savedState(room.document);
    QVERIFY(after != before);

    pagehost::Lesson stored;
    QVERIFY(stored.fromBytes(lesson.toBytes()));
    room.player.setLesson(stored);
    QCOMPARE(savedState(*room.player.document()), before);
    room.player.playToEnd();
    QCOMPARE(savedState(*room.player.document()), after);
    room.player.seek(room.player.duration() / 3);
    room.player.seek(room.player.duration());
    QCOMPARE(savedState(*room.player.document()), after);
}

} // namespace

void TestLessonRandom::initTestCase()
{
    QVERIFY(shapes().kinds().size() >= 4);
}

void TestLessonRandom::everyShapePlaysWhatWasRecorded_data()
{
    QTest::addColumn<QString>("kind");
    const QVector<pagehost::ObjectKind> all = shapes().kinds();
    for (const pagehost::ObjectKind &kind : all)
        QTest::newRow(qPrintable(kind.id)) << kind.id;
}

void TestLessonRandom::everyShapePlaysWhatWasRecorded()
{
    QFETCH(QString, kind);
    recordAndPlay({kind}, qHash(kind, 0), scaled(stepsForEachShape));
}

void TestLessonRandom::manyShapesPlayWhatWasRecorded_data()
{
    QTest::addColumn<quint32>("start");
    for (const quint32 start : {1u, 20u, 300u})
        QTest::newRow(qPrintable(QString::number(start))) << start;
}

void TestLessonRandom::manyShapesPlayWhatWasRecorded()
{
    QFETCH(quint32, start);
    QStringList kinds;
    const QVector<pagehost::ObjectKind> all = shapes().kinds();
    for (const pagehost::ObjectKind &kind : all)
        kinds.append(kind.id);
    recordAndPlay(kinds, start, scaled(stepsForAllShapes));
}

QTEST_MAIN(TestLessonRandom)
#include "test_random.moc"
