#include <pagehost/style.h>

#include "editor.h"

#include <QtCore/QBuffer>

namespace {

class StyleStep : public CWbUndoCmd
{
public:
    void undo() override {}
    void redo() override {}
};

/// Answers for pen and fill as shapes do: describes each property on a stream, takes list entries by their number,
/// pushes its own steps, and writes a 0 over the value that it took.
class StyledObject : public TestObject
{
public:
    bool GetAttribute(int id, QDataStream &out) override
    {
        if (id == missing || id < 5002 || id > 5005) {
            return TestObject::GetAttribute(id, out);
        }
        const bool isList = id == 5003 || id == 5004;
        out << qint32(id) << qint32(isList ? 1 : 2) << QStringLiteral("IDS_NAME") << true;
        if (id == 5002) {
            out << color;
        } else if (id == 5005) {
            out << fill;
        } else if (id == 5003) {
            out << qint32(6) << style << qint32(2) << QString() << QPixmap();
        } else {
            out << qint32(8) << width - 1 << qint32(0) << QStringLiteral("1") << QStringLiteral("2");
        }
        return true;
    }
    bool SetAttribute(int id, QDataStream &in, bool record) override
    {
        if (id == missing || id < 5002 || id > 5005) {
            return TestObject::SetAttribute(id, in, record);
        }
        recorded.append(record);
        if (id == 5002) {
            in >> color;
        } else if (id == 5003) {
            in >> style;
        } else if (id == 5004) {
            in >> width;
            ++width;
        } else {
            in >> fill;
        }
        CUndoRedo::GetInstance()->push(new StyleStep);
        in.device()->reset();
        in << qint32(0);
        return in.status() == QDataStream::Ok;
    }

    QColor color = Qt::black;
    qint32 style = Qt::DashLine;
    qint32 width = 3;
    QBrush fill = QBrush(QColor(Qt::yellow));
    int missing = 0;
    QVector<bool> recorded;
};

} // namespace

class TestStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void settersReachTheObject();
    void severalObjectsAreOneStep();
    void objectsWithoutThePropertyLeaveNoStep();
    void widthBelowOneIsRefused();
    void styleIsReadBack();
    void missingPropertiesAreToldApart_data();
    void missingPropertiesAreToldApart();
    void nonsenseDescriptionIsNoStyle();
};

void TestStyle::settersReachTheObject()
{
    StyledObject object;
    QVERIFY(pagehost::setPenColor({&object}, QColor(1, 2, 3, 4)));
    QVERIFY(pagehost::setPenStyle({&object}, Qt::DotLine));
    QVERIFY(pagehost::setPenWidth({&object}, 5));
    QVERIFY(pagehost::setFill({&object}, QColor(5, 6, 7, 8)));
    QCOMPARE(object.color, QColor(1, 2, 3, 4));
    QCOMPARE(object.style, qint32(Qt::DotLine));
    QCOMPARE(object.width, 5);
    QCOMPARE(object.fill, QBrush(QColor(5, 6, 7, 8)));
    QCOMPARE(object.recorded, QVector<bool>(4, true));
    QCOMPARE(undoStack()->count(), 4);
}

void TestStyle::severalObjectsAreOneStep()
{
    StyledObject one;
    StyledObject other;
    QVERIFY(pagehost::setPenColor({&one, &other}, Qt::red));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_ITEM_SET_ATTRIBUTE")});
    QCOMPARE(undoStack()->command(0)->childCount(), 2);
    QCOMPARE(one.color, QColor(Qt::red));
    QCOMPARE(other.color, QColor(Qt::red));
}

void TestStyle::objectsWithoutThePropertyLeaveNoStep()
{
    TestObject plain;
    QVERIFY(!pagehost::setPenColor({&plain}, Qt::red));
    QVERIFY(!pagehost::setPenColor({}, Qt::red));
    QCOMPARE(undoStack()->count(), 0);
    StyledObject styled;
    QVERIFY(pagehost::setPenColor({&plain, &styled}, Qt::red));
    QCOMPARE(undoStack()->count(), 1);
}

void TestStyle::widthBelowOneIsRefused()
{
    StyledObject object;
    QVERIFY(!pagehost::setPenWidth({&object}, 0));
    QCOMPARE(object.width, 3);
    QCOMPARE(undoStack()->count(), 0);
}

void TestStyle::styleIsReadBack()
{
    StyledObject object;
    const pagehost::ObjectStyle style = pagehost::styleOf(&object);
    QVERIFY(style.hasPenColor && style.hasPenStyle && style.hasPenWidth && style.hasFill);
    QCOMPARE(style.penColor, QColor(Qt::black));
    QCOMPARE(style.penStyle, Qt::DashLine);
    QCOMPARE(style.penWidth, 3);
    QCOMPARE(style.maxPenWidth, 8);
    QCOMPARE(style.fill, QBrush(QColor(Qt::yellow)));
}

void TestStyle::missingPropertiesAreToldApart_data()
{
    QTest::addColumn<int>("missing");
    for (int id = 5002; id <= 5005; ++id) {
        QTest::addRow("property %d", id) << id;
    }
}

void TestStyle::missingPropertiesAreToldApart()
{
    QFETCH(int, missing);
    StyledObject object;
    object.missing = missing;
    const pagehost::ObjectStyle style = pagehost::styleOf(&object);
    QCOMPARE(style.hasPenColor, missing != 5002);
    QCOMPARE(style.hasPenStyle, missing != 5003);
    QCOMPARE(style.hasPenWidth, missing != 5004);
    QCOMPARE(style.hasFill, missing != 5005);
}

void TestStyle::nonsenseDescriptionIsNoStyle()
{
    class Nonsense : public TestObject
    {
    public:
        bool GetAttribute(int, QDataStream &out) override
        {
            out << qint32(77);
            return true;
        }
    };
    Nonsense object;
    const pagehost::ObjectStyle style = pagehost::styleOf(&object);
    QVERIFY(!style.hasPenColor && !style.hasPenStyle && !style.hasPenWidth && !style.hasFill);
}

QTEST_MAIN(TestStyle)
#include "test_style.moc"
