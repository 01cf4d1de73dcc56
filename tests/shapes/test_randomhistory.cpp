// Property changes and gestures in random order, undone and redone in between: every step comes back to the byte.
// GLIOLOLOK_HISTORY_STEPS gives the number of steps per shape.

#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <framework/cpagebgprop.h>

#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtCore/QBuffer>
#include <QtCore/QJsonDocument>
#include <QtGui/QBrush>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

#include <algorithm>
#include <random>

using shapetest::ShapeDriver;

class TestRandomHistory : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void everyStepComesBack_data();
    void everyStepComesBack();
    void undoBringsBackTheColourOfAFillThatWasOff();
};

namespace {

constexpr unsigned startValue = 271828;
/// Of all shapes together.
constexpr int usualSteps = 4000;
constexpr int mostAtOnce = 6;

int stepsPerShape()
{
    const int asked = qEnvironmentVariableIntValue("GLIOLOLOK_HISTORY_STEPS");
    return asked > 0 ? asked : usualSteps / shapetest::allShapeNames().size();
}

/// State of a shape after a step.
struct State
{
    QByteArray stream;
    QByteArray json;
    QVector<double> places; ///< left and top of all control points, then the view box, document units
};

/// Two texts from where they differ.
QString apart(const char *what, const QByteArray &now, const QByteArray &then)
{
    constexpr int shown = 300;
    const int begin = int(std::mismatch(now.cbegin(), now.cend(), then.cbegin(), then.cend()).first - now.cbegin());
    return QStringLiteral("%1 from %2 on\n%3\n%4")
        .arg(QLatin1String(what))
        .arg(begin)
        .arg(QString::fromUtf8(now.mid(begin, shown)), QString::fromUtf8(then.mid(begin, shown)));
}

/// A person who changes a shape at random, and what the shape was after every change.
class History
{
public:
    explicit History(const QString &name)
        : m_shape(name)
    {
        m_shape.createByDrag(QSizeF(60, 48));
        m_shape.select();
        m_shape.undoStack().clear();
        m_states.append(state());
    }

    void step()
    {
        switch (below(10)) {
        case 0:
        case 1:
            m_shape.undoStack().setIndex(qMax(0, m_shape.undoStack().index() - below(mostAtOnce)));
            break;
        case 2:
            m_shape.undoStack().setIndex(
                qMin(m_shape.undoStack().count(), m_shape.undoStack().index() + below(mostAtOnce)));
            break;
        case 3:
        case 4:
        case 5:
            drag();
            break;
        default:
            changeProperty();
            break;
        }
        const int index = m_shape.undoStack().index();
        if (m_shape.undoStack().count() == index && m_pushed) {
            m_states.resize(index);
            m_states.append(state());
        }
        m_pushed = false;
    }

    /// Empty when the shape is what it was after the step that the undo stack stands at.
    QString difference() const
    {
        const State &then = m_states.at(m_shape.undoStack().index());
        const State now = state();
        if (now.places != then.places)
            return QStringLiteral("control points or view box moved");
        // Without a gesture that moves the view box also everything that is saved.
        if (m_viewBoxMoves)
            return QString();
        if (now.stream != then.stream)
            return apart("stream", now.stream.toHex(), then.stream.toHex());
        return now.json == then.json ? QString() : apart("JSON", now.json, then.json);
    }

    bool undoAll()
    {
        m_shape.undoStack().setIndex(0);
        return difference().isEmpty();
    }
    bool redoAll()
    {
        m_shape.undoStack().setIndex(m_shape.undoStack().count());
        return difference().isEmpty();
    }
    int steps() const { return m_shape.undoStack().count(); }
    /// Whether there is anything to drag or set: a picture has neither.
    bool canChange()
    {
        return m_shape.controlPointCount() > 0 || offers(5002) || offers(5003) || offers(5004) || offers(5005);
    }

private:
    int below(int end) { return int(m_engine() % unsigned(end)); }

    State state() const
    {
        State result;
        QDataStream out(&result.stream, QIODevice::WriteOnly);
        m_shape.object().save(out);
        QJsonObject object;
        m_shape.object().saveJson(object);
        result.json = QJsonDocument(object).toJson();
        for (int number = 1; number <= m_shape.controlPointCount(); ++number)
            result.places << m_shape.controlPoint(number).x() << m_shape.controlPoint(number).y();
        const QRectF box = m_shape.document().viewBox();
        result.places << box.x() << box.y() << box.width() << box.height();
        return result;
    }

    void drag()
    {
        const int count = m_shape.undoStack().index();
        const QRectF before = m_shape.document().viewBox();
        const QPointF delta((below(801) - 400) / 16.0, (below(801) - 400) / 16.0);
        if (m_shape.controlPointCount() > 0)
            m_shape.dragControlPoint(1 + below(m_shape.controlPointCount()), delta);
        m_pushed = m_shape.undoStack().index() > count;
        m_viewBoxMoves = m_viewBoxMoves || m_shape.document().viewBox() != before;
    }

    /// Only properties that the shape offers: the others could be set, but no undo finds them.
    bool offers(int propId)
    {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        return m_shape.core().GetAttribute(propId, out);
    }

    void changeProperty()
    {
        const int propId = 5002 + below(4);
        if (!offers(propId))
            return;
        QBuffer buffer;
        buffer.open(QIODevice::ReadWrite);
        QDataStream stream(&buffer);
        writeValue(propId, stream);
        buffer.seek(0);
        m_shape.object().SetAttribute(propId, stream, below(2) == 0);
        m_pushed = true;
    }

    void writeValue(int propId, QDataStream &out)
    {
        const QColor color(below(256), below(256), below(256), below(3) ? 255 : below(256));
        if (propId == 5002)
            out << color;
        else if (propId == 5003)
            out << qint32(below(6));
        else if (propId == 5004)
            out << qint32(below(8));
        else
            out << QBrush(color, below(4) ? Qt::SolidPattern : Qt::BrushStyle(below(15)));
    }

    ShapeDriver m_shape;
    std::mt19937 m_engine{startValue};
    QVector<State> m_states;
    bool m_pushed = false;
    bool m_viewBoxMoves = false;
};

} // namespace

void TestRandomHistory::everyStepComesBack_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(shapetest::allShapeNames()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestRandomHistory::everyStepComesBack()
{
    QFETCH(QString, name);
    History history(name);
    const int steps = stepsPerShape();
    for (int i = 0; i < steps; ++i) {
        history.step();
        const QString difference = history.difference();
        QVERIFY2(difference.isEmpty(), qPrintable(QStringLiteral("step %1: %2").arg(i).arg(difference)));
    }
    QCOMPARE(history.steps() > 0, history.canChange());
    QVERIFY(history.undoAll());
    QVERIFY(history.redoAll());
}

void TestRandomHistory::undoBringsBackTheColourOfAFillThatWasOff()
{
    ShapeDriver shape(QStringLiteral("blockarrow"));
    shape.createByDrag(QSizeF(60, 48));
    const auto fill = [&](const QBrush &brush) {
        QBuffer buffer;
        buffer.open(QIODevice::ReadWrite);
        QDataStream stream(&buffer);
        stream << brush;
        buffer.seek(0);
        shape.object().SetAttribute(5005, stream, false);
    };
    const auto saved = [&] {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        shape.object().save(out);
        return bytes;
    };
    fill(QBrush(Qt::red));
    fill(QBrush(Qt::blue, Qt::NoBrush));
    const QByteArray off = saved();
    QVERIFY(!shape.object().getFillProp()->isFillEnable());
    fill(QBrush(Qt::green));
    shape.undoStack().undo();
    QCOMPARE(saved(), off);
    shape.undoStack().undo();
    QCOMPARE(shape.object().getFillProp()->fillColor(), QColor(Qt::red));
}

QTEST_MAIN(TestRandomHistory)
#include "test_randomhistory.moc"
