#include "framework/editor.h"

#include <QtCore/QBuffer>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>

namespace {

/// Every saved member off its default.
void makeSpecial(TestObject &object)
{
    QMap<QString, QVariant> name{{QStringLiteral("name"), QStringLiteral("Größe")}};
    object.setAllAttributes(name, false);
    object.setSubType(13001);
    object.CPSRootObject::setPos(QPointF(1.5, -2.25), false);
    object.setSize(QSizeF(123.25, 45.5), false, false);
    object.setRotation(33.125);
    object.setMirror(true, false, false);
    object.setZValue(7);
    object.setMyPenColor(QColor(1, 2, 3, 4), false);
    object.fillWith(QColor(9, 8, 7));
    object.setLocked(true);
    object.hide();
}

void compare(TestObject &object, TestObject &expected)
{
    QCOMPARE(object.getObjName(), expected.getObjName());
    QCOMPARE(object.getSubType(), expected.getSubType());
    QCOMPARE(object.getPos(), expected.getPos());
    QCOMPARE(object.getClientRect(), expected.getClientRect());
    QCOMPARE(object.rotation(), expected.rotation());
    QCOMPARE(object.isMirrored(), expected.isMirrored());
    QCOMPARE(object.isFlipped(), expected.isFlipped());
    QCOMPARE(object.zValue(), expected.zValue());
    QCOMPARE(object.getMyPen(), expected.getMyPen());
    QVERIFY(*object.getFillProp() == *expected.getFillProp());
    QCOMPARE(object.getHostFillBrush(), expected.getHostFillBrush());
    QCOMPARE(object.isLocked(), expected.isLocked());
    QCOMPARE(object.isVisible(), expected.isVisible());
}

QByteArray saved(TestObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.save(out);
    return bytes;
}

template<typename Value> QByteArray streamed(const Value &value)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << value;
    return bytes;
}

QByteArray attribute(TestObject &object, int id)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    return object.GetAttribute(id, out) ? bytes : QByteArray("unknown");
}

bool setAttribute(TestObject &object, int id, const QByteArray &value, bool record = false)
{
    QDataStream in(value);
    return object.SetAttribute(id, in, record);
}

} // namespace

class TestPersistence : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init() { undoStack()->clear(); }

    void comesBackFromAStream();
    void comesBackFromAPlaybackSnapshot();
    void comesBackFromJson();
    void whatFollowsOnTheStreamIsLeftThere();
    void everyShortStreamLeavesTheObjectAlone();
    void everyChangedByteIsSurvived();
    void impossibleNumbersAreRefused_data();
    void impossibleNumbersAreRefused();
    void missingJsonMembersKeepTheirValues();
    void mistypedJsonMembersKeepTheirValues();

    void attributesAreReadAndWritten_data();
    void attributesAreReadAndWritten();
    void impossibleAttributesAreRefused_data();
    void impossibleAttributesAreRefused();
    void unknownAttributesAreLeftOnTheStream();
    void recordedAttributeIsOneUndoStep_data();
    void recordedAttributeIsOneUndoStep();
    void unchangedAttributeLeavesNoStep();
    void rotationAttributeKeepsTheCentre();
    void widthOfAStubbornObjectIsUndoneExactly();
    void specialPropertiesAndSettingsAreUnknown();

    void attributeMapTellsThePlace();
    void attributeMapIsApplied();
    void attributeMapWithoutKnownKeysIsRefused();
};

void TestPersistence::comesBackFromAStream()
{
    TestObject object;
    makeSpecial(object);
    TestObject loaded;
    QDataStream in(saved(object));
    QVERIFY(loaded.load(in));
    compare(loaded, object);
}

void TestPersistence::comesBackFromAPlaybackSnapshot()
{
    TestObject object;
    makeSpecial(object);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    QVERIFY(object.SavePropertyForPlayback(out));
    TestObject loaded;
    QDataStream in(bytes);
    QVERIFY(loaded.LoadPropertyForPlayback(in));
    // The place in stacking order is the page's.
    QCOMPARE(loaded.zValue(), 0.0);
    loaded.setZValue(object.zValue());
    compare(loaded, object);
}

void TestPersistence::comesBackFromJson()
{
    TestObject object;
    makeSpecial(object);
    QJsonObject json;
    QVERIFY(object.saveJson(json));
    TestObject loaded;
    QVERIFY(loaded.loadJson(json));
    compare(loaded, object);
}

void TestPersistence::whatFollowsOnTheStreamIsLeftThere()
{
    TestObject object;
    QDataStream in(saved(object) + streamed(qint32(4711)));
    TestObject loaded;
    QVERIFY(loaded.load(in));
    qint32 next = 0;
    in >> next;
    QCOMPARE(next, 4711);
}

void TestPersistence::everyShortStreamLeavesTheObjectAlone()
{
    TestObject object;
    makeSpecial(object);
    const QByteArray bytes = saved(object);
    TestObject untouched;
    for (int length = 0; length < bytes.size(); ++length) {
        TestObject loaded;
        QDataStream in(bytes.left(length));
        QVERIFY2(!loaded.load(in), qPrintable(QString::number(length)));
        compare(loaded, untouched);
    }
}

void TestPersistence::everyChangedByteIsSurvived()
{
    TestObject object;
    makeSpecial(object);
    const QByteArray bytes = saved(object);
    int refused = 0;
    for (int at = 0; at < bytes.size(); ++at) {
        for (const char value : {'\0', '\x7f', '\xff'}) {
            QByteArray changed = bytes;
            changed[at] = value;
            TestObject loaded;
            QDataStream in(changed);
            refused += loaded.load(in) ? 0 : 1;
            QVERIFY(qIsFinite(loaded.getPos().x()) && qIsFinite(loaded.getClientRect().width()));
        }
    }
    QVERIFY(refused > 0);
}

void TestPersistence::impossibleNumbersAreRefused_data()
{
    QTest::addColumn<double>("rotation");
    QTest::addColumn<QRectF>("rect");
    QTest::addColumn<double>("penWidth");
    QTest::addColumn<int>("penStyle");
    QTest::addColumn<bool>("isTaken");
    const QRectF rect(0, 0, 10, 10);
    QTest::newRow("possible") << 1.0 << rect << 1.0 << 1 << true;
    QTest::newRow("rotation not a number") << qQNaN() << rect << 1.0 << 1 << false;
    QTest::newRow("negative width") << 1.0 << QRectF(0, 0, -1, 10) << 1.0 << 1 << false;
    QTest::newRow("infinite height") << 1.0 << QRectF(0, 0, 10, qInf()) << 1.0 << 1 << false;
    QTest::newRow("negative pen width") << 1.0 << rect << -1.0 << 1 << false;
    QTest::newRow("pen style beyond all") << 1.0 << rect << 1.0 << 6 << false;
}

void TestPersistence::impossibleNumbersAreRefused()
{
    QFETCH(double, rotation);
    QFETCH(QRectF, rect);
    QFETCH(double, penWidth);
    QFETCH(int, penStyle);
    QFETCH(bool, isTaken);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QString() << qint32(0) << QPointF(1, 2) << rotation << false << false << 0.0 << rect << quint32(0)
        << penWidth << qint32(penStyle) << true << false;
    CPageBgProp(nullptr).save(out);
    TestObject loaded;
    QDataStream in(bytes);
    QCOMPARE(loaded.load(in), isTaken);
    QCOMPARE(loaded.getPos(), isTaken ? QPointF(1, 2) : QPointF(0, 0));
}

void TestPersistence::missingJsonMembersKeepTheirValues()
{
    TestObject object;
    makeSpecial(object);
    TestObject expected;
    makeSpecial(expected);
    QJsonObject nothing;
    object.loadJson(nothing);
    compare(object, expected);
    QJsonObject one{{QStringLiteral("rotation"), 5.0}};
    object.loadJson(one);
    expected.setRotation(5);
    compare(object, expected);
}

void TestPersistence::mistypedJsonMembersKeepTheirValues()
{
    TestObject expected;
    makeSpecial(expected);
    QJsonObject json;
    expected.saveJson(json);
    const QStringList keys = json.keys();
    QCOMPARE(keys.size(), 14);
    for (const QString &key : keys) {
        QJsonObject mistyped = json;
        mistyped[key] = QJsonArray{QStringLiteral("nonsense")};
        TestObject object;
        makeSpecial(object);
        object.loadJson(mistyped);
        compare(object, expected);
    }
}

void TestPersistence::attributesAreReadAndWritten_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("text family") << 2001 << streamed(QStringLiteral("DejaVu Sans"));
    QTest::newRow("text size") << 2002 << streamed(17.5);
    QTest::newRow("text colour") << 2003 << streamed(QColor(1, 2, 3));
    QTest::newRow("text alignment") << 2004 << streamed(qint32(Qt::AlignRight));
    QTest::newRow("x") << 2010 << streamed(12.5);
    QTest::newRow("y") << 2011 << streamed(-3.5);
    QTest::newRow("width") << 2012 << streamed(250.0);
    QTest::newRow("height") << 2013 << streamed(0.5);
    QTest::newRow("rotation") << 2014 << streamed(45.0);
    QTest::newRow("locked") << 2015 << streamed(true);
    QTest::newRow("border colour") << 2050 << streamed(QColor(4, 5, 6, 7));
    QTest::newRow("border width") << 2051 << streamed(2.5);
}

void TestPersistence::attributesAreReadAndWritten()
{
    QFETCH(int, id);
    QFETCH(QByteArray, value);
    TestObject object;
    QVERIFY(attribute(object, id) != value);
    QVERIFY(setAttribute(object, id, value));
    QCOMPARE(attribute(object, id), value);
    QVERIFY(object.getAttributeIds().contains(id));
    QCOMPARE(undoStack()->count(), 0);
}

void TestPersistence::impossibleAttributesAreRefused_data()
{
    QTest::addColumn<int>("id");
    QTest::addColumn<QByteArray>("value");
    QTest::newRow("no family") << 2001 << streamed(QString());
    QTest::newRow("size of 0") << 2002 << streamed(0.0);
    QTest::newRow("size beyond all") << 2002 << streamed(1e9);
    QTest::newRow("x not a number") << 2010 << streamed(qQNaN());
    QTest::newRow("infinite width") << 2012 << streamed(qInf());
    // 11 bytes as a colour has, of a kind that there is not.
    QTest::newRow("text colour of an unknown kind") << 2003 << QByteArray("\x06\xff\xff\0\0\0\0\0\0\0\0", 11);
    QTest::newRow("border colour of an unknown kind") << 2050 << QByteArray("\x06\xff\xff\0\0\0\0\0\0\0\0", 11);
    QTest::newRow("negative border") << 2051 << streamed(-1.0);
    for (const int id : {2001, 2002, 2003, 2004, 2010, 2011, 2012, 2013, 2014, 2015, 2050, 2051})
        QTest::addRow("%d on an empty stream", id) << id << QByteArray();
}

void TestPersistence::impossibleAttributesAreRefused()
{
    QFETCH(int, id);
    QFETCH(QByteArray, value);
    TestObject object;
    const QByteArray before = attribute(object, id);
    QVERIFY(!setAttribute(object, id, value, true));
    QCOMPARE(attribute(object, id), before);
    QCOMPARE(undoStack()->count(), 0);
}

void TestPersistence::unknownAttributesAreLeftOnTheStream()
{
    TestObject object;
    for (const int id : {0, 2000, 2005, 2804, 5002, 5003, 5004, 5005}) {
        QCOMPARE(attribute(object, id), QByteArray("unknown"));
        QDataStream in(QByteArray(16, '\0'));
        QVERIFY(!object.SetAttribute(id, in, true));
        QCOMPARE(in.device()->pos(), 0);
    }
}

void TestPersistence::recordedAttributeIsOneUndoStep_data()
{
    attributesAreReadAndWritten_data();
}

void TestPersistence::recordedAttributeIsOneUndoStep()
{
    QFETCH(int, id);
    QFETCH(QByteArray, value);
    TestObject object;
    const QByteArray before = attribute(object, id);
    QVERIFY(setAttribute(object, id, value, true));
    QCOMPARE(stepTexts(), QStringList{QStringLiteral("IDS_ITEM_SET_ATTRIBUTE")});
    undoStack()->undo();
    QCOMPARE(attribute(object, id), before);
    undoStack()->redo();
    QCOMPARE(attribute(object, id), value);
}

void TestPersistence::unchangedAttributeLeavesNoStep()
{
    TestObject object;
    QVERIFY(setAttribute(object, 2010, streamed(0.0), true));
    QCOMPARE(undoStack()->count(), 0);
}

void TestPersistence::rotationAttributeKeepsTheCentre()
{
    TestObject object(QSizeF(100, 60), QPointF(100, 100));
    setAttribute(object, 2014, streamed(-90.0), true);
    QCOMPARE(object.rotation(), 270.0);
    QCOMPARE(object.mapToScene(QPointF(50, 30)), QPointF(150, 130));
    undoStack()->undo();
    QCOMPARE(object.getPos(), QPointF(100, 100));
}

void TestPersistence::widthOfAStubbornObjectIsUndoneExactly()
{
    StubbornObject object(QSizeF(99.9, 33.1));
    const double content = object.content;
    setAttribute(object, 2012, streamed(70.0), true);
    QVERIFY(object.getClientRect().height() < 30);
    undoStack()->undo();
    QVERIFY(object.getClientRect().width() == 99.9 && object.getClientRect().height() == 33.1);
    QVERIFY(object.content == content);
}

void TestPersistence::specialPropertiesAndSettingsAreUnknown()
{
    TestObject object;
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::ReadWrite);
    QString json;
    QVERIFY(!object.GetSpecialProperty(26, stream));
    QVERIFY(!object.SetSpecialProperty(26, stream, true));
    QVERIFY(!object.GetSettingJson(json));
    QVERIFY(!object.SetSettingJson(QStringLiteral("{}"), true, true));
    QVERIFY(bytes.isEmpty());
}

void TestPersistence::attributeMapTellsThePlace()
{
    TestObject object(QSizeF(100, 60), QPointF(1, 2));
    object.setRotation(3);
    QMap<QString, QVariant> map{{QStringLiteral("other"), 1}};
    QVERIFY(object.getAllAttributes(map));
    const QMap<QString, QVariant> expected{{QStringLiteral("other"), 1},      {QStringLiteral("name"), QString()},
                                           {QStringLiteral("locked"), false}, {QStringLiteral("x"), 1.0},
                                           {QStringLiteral("y"), 2.0},        {QStringLiteral("width"), 100.0},
                                           {QStringLiteral("height"), 60.0},  {QStringLiteral("rotation"), 3.0}};
    QCOMPARE(map, expected);
}

void TestPersistence::attributeMapIsApplied()
{
    TestObject object;
    const QMap<QString, QVariant> map{{QStringLiteral("name"), QStringLiteral("N")},
                                      {QStringLiteral("locked"), true},
                                      {QStringLiteral("x"), 5},
                                      {QStringLiteral("width"), 7.5}};
    QVERIFY(object.setAllAttributes(map, false));
    QCOMPARE(object.getObjName(), QStringLiteral("N"));
    QVERIFY(object.isLocked());
    QCOMPARE(object.getPos(), QPointF(5, 0));
    QCOMPARE(object.getClientRect(), QRectF(0, 0, 7.5, 60));
}

void TestPersistence::attributeMapWithoutKnownKeysIsRefused()
{
    TestObject object;
    QVERIFY(!object.setAllAttributes({}, false));
    QVERIFY(!object.setAllAttributes({{QStringLiteral("pen_width"), 3}}, false));
    QVERIFY(!object.setAllAttributes({{QStringLiteral("x"), QStringLiteral("nonsense")}}, false));
    QCOMPARE(object.getPos(), QPointF(0, 0));
}

QTEST_MAIN(TestPersistence)
#include "test_persistence.moc"
