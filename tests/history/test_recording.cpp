#include "properties/valuecodec.h"

#include <support/shapefixture.h>
#include <support/streams.h>

#include <framework/cundoredo.h>
#include <svgobj/csvgbaseundocmd.h>

#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using support::bytesOf;
using support::ShapeFixture;
using support::TestShape;
using support::twoPointTemplate;

/// A shape's entries in the host's playback record, and pushing an undo command.
class TestRecording : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aColourIsRecorded();
    void aBrushIsRecorded();
    void anIntegerIsRecordedAsThirtyTwoBits();
    void aRealIsRecorded();
    void aFlagIsRecordedAsOneByte();
    void aTextIsRecorded();
    void aBufferIsRecordedAsItIs();
    void anEmptyBufferIsRecordedToo();
    void aShapeWithoutObjectRecordsNothing();
    void valuesAreEncodedBigEndian();
    void aShortValueKeepsItsStart();

    void aCommandGoesOnTheHostsStack();
    void theStackOwnsTheCommand();
    void noCommandIsIgnored();
};

void TestRecording::aColourIsRecorded()
{
    const ShapeFixture fixture;
    fixture.shape->RecordColor(QColor(1, 2, 3, 4), 1002);
    QCOMPARE(recording::count("RecordAction"), 1);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1002, bytesOf(QColor(1, 2, 3, 4))}));
}

void TestRecording::aBrushIsRecorded()
{
    const ShapeFixture fixture;
    const QBrush brush(Qt::red, Qt::Dense3Pattern);
    fixture.shape->RecordBrush(brush, 77);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({77, bytesOf(brush)}));
}

void TestRecording::anIntegerIsRecordedAsThirtyTwoBits()
{
    const ShapeFixture fixture;
    fixture.shape->RecordInt(-2, 1003);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({1003, QByteArray("\xff\xff\xff\xfe", 4)}));
}

void TestRecording::aRealIsRecorded()
{
    const ShapeFixture fixture;
    fixture.shape->RecordDouble(0.5, 77);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({77, QByteArray("\x3f\xe0\0\0\0\0\0\0", 8)}));
}

void TestRecording::aFlagIsRecordedAsOneByte()
{
    const ShapeFixture fixture;
    fixture.shape->RecordBool(true, 77);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({77, QByteArray("\1", 1)}));
    fixture.shape->RecordBool(false, 78);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({78, QByteArray("\0", 1)}));
}

void TestRecording::aTextIsRecorded()
{
    const ShapeFixture fixture;
    fixture.shape->RecordString("Ab", 77);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({77, QByteArray("\0\0\0\4\0A\0b", 8)}));
}

void TestRecording::aBufferIsRecordedAsItIs()
{
    const ShapeFixture fixture;
    fixture.shape->RecordDataBuffer(QByteArray("a\0b", 3), 77);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({77, QByteArray("a\0b", 3)}));
}

void TestRecording::anEmptyBufferIsRecordedToo()
{
    const ShapeFixture fixture;
    fixture.shape->RecordDataBuffer({}, 77);
    QCOMPARE(recording::lastArguments("RecordAction"), QVariantList({77, QByteArray()}));
}

void TestRecording::aShapeWithoutObjectRecordsNothing()
{
    TestShape shape(nullptr, twoPointTemplate());
    recording::clear();
    shape.RecordInt(1, 77);
    shape.RecordDataBuffer("abc", 77);
    QCOMPARE(recording::names(), QStringList());
}

void TestRecording::valuesAreEncodedBigEndian()
{
    QCOMPARE(encodeValues(qint32(0x01020304), true), QByteArray("\1\2\3\4\1", 5));
}

void TestRecording::aShortValueKeepsItsStart()
{
    QDataStream empty(QByteArray{});
    QVERIFY(!decodeValue<QColor>(empty).isValid());
    QDataStream full(bytesOf(qint32(9)));
    QCOMPARE(decodeValue<qint32>(full), 9);
    QCOMPARE(decodeValue<qint32>(full), 0);
}

void TestRecording::aCommandGoesOnTheHostsStack()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    auto *command = new CSVGBaseUndoCmd(fixture.shape, 1003, nullptr, true);
    command->setInt(1, 2);
    fixture.shape->addUndoRedo(command);
    QCOMPARE(recording::count("undo", "push"), 1);
    QCOMPARE(CUndoRedo::GetInstance()->stack()->command(0), command);
}

void TestRecording::theStackOwnsTheCommand()
{
    ShapeFixture fixture(twoPointTemplate());
    fixture.load();
    fixture.shape->addUndoRedo(new CSVGBaseUndoCmd(fixture.shape, 1003, nullptr, true));
    QCOMPARE(recording::count("undo", "delete"), 0);
    CUndoRedo::GetInstance()->stack()->clear();
    QCOMPARE(recording::count("undo", "delete"), 1);
}

void TestRecording::noCommandIsIgnored()
{
    const ShapeFixture fixture;
    fixture.shape->addUndoRedo(nullptr);
    QCOMPARE(recording::names(), QStringList());
}

QTEST_MAIN(TestRecording)
#include "test_recording.moc"
