// Texts in boxes: lines, sizes and places.

#include <shapekit/labellayout.h>

#include <QtTest/QtTest>

using namespace shapekit;

namespace {

LabelLook lookOf(const QString &text)
{
    LabelLook look;
    look.text = text;
    look.box = {100, 50};
    look.size = 10;
    return look;
}

QStringList textsOf(const LabelLayout &layout)
{
    QStringList texts;
    for (const LabelLine &line : layout.lines)
        texts.append(line.text);
    return texts;
}

} // namespace

class TestLabelLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textStandsInTheMiddleOfItsBox();
    void textStandsAtTheSideItIsAlignedTo_data();
    void textStandsAtTheSideItIsAlignedTo();
    void longTextIsBrokenAtTheBox();
    void lineBreaksAreKept();
    void textThatFitsGetsAsLargeAsItMay();
    void textOfOneLineHasOneLine();
    void textStandsAlikeInWhicheverBoxItStoodBefore_data();
    void textStandsAlikeInWhicheverBoxItStoodBefore();
    void boldLettersAreWider();
    void arabicBeginsAtTheRight();
    void chineseIsBrokenBetweenSigns();
    void alignmentsAreThoseOfQt();
    void pathOfLettersHasHundredths();
};

void TestLabelLayout::textStandsInTheMiddleOfItsBox()
{
    const LabelLayout layout = layOut(lookOf(QStringLiteral("Hello")));
    QCOMPARE(textsOf(layout), QStringList({QStringLiteral("Hello")}));
    QCOMPARE(layout.size, 10.0);
    QCOMPARE(layout.lines.first().anchor.x(), 50.0);
    const QRectF letters = layout.outline.boundingRect();
    QVERIFY(qAbs(letters.center().x() - 50) < 1);
    QVERIFY(qAbs(letters.center().y() - 25) < 2);
    QVERIFY(letters.height() > 6 && letters.height() < 10);
}

void TestLabelLayout::textStandsAtTheSideItIsAlignedTo_data()
{
    QTest::addColumn<int>("alignment");
    QTest::addColumn<int>("vertical");
    QTest::newRow("top left") << int(LabelAlignment::Start) << int(LabelAlignment::Start);
    QTest::newRow("bottom right") << int(LabelAlignment::End) << int(LabelAlignment::End);
}

void TestLabelLayout::textStandsAtTheSideItIsAlignedTo()
{
    QFETCH(int, alignment);
    QFETCH(int, vertical);
    LabelLook look = lookOf(QStringLiteral("Hello"));
    look.alignment = LabelAlignment(alignment);
    look.vertical = LabelAlignment(vertical);
    const LabelLayout layout = layOut(look);
    const QRectF letters = layout.outline.boundingRect();
    const bool isStart = look.alignment == LabelAlignment::Start;
    QCOMPARE(layout.lines.first().anchor.x(), isStart ? 0.0 : 100.0);
    QVERIFY(isStart ? letters.left() >= 0 && letters.left() < 2 : letters.right() <= 100 && letters.right() > 98);
    QVERIFY(isStart ? letters.bottom() < 14 : letters.top() > 36);
}

void TestLabelLayout::longTextIsBrokenAtTheBox()
{
    LabelLook look = lookOf(QStringLiteral("The quick brown fox jumps over the lazy dog"));
    const LabelLayout broken = layOut(look);
    QVERIFY(broken.lines.size() >= 2);
    QCOMPARE(textsOf(broken).join(QLatin1Char(' ')), look.text);
    QVERIFY(broken.outline.boundingRect().width() <= 100);
    look.hasManyLines = false;
    QCOMPARE(textsOf(layOut(look)), QStringList({look.text}));
}

void TestLabelLayout::lineBreaksAreKept()
{
    const LabelLayout layout = layOut(lookOf(QStringLiteral("one\ntwo")));
    QCOMPARE(textsOf(layout), QStringList({QStringLiteral("one"), QStringLiteral("two")}));
    QVERIFY(layout.lines.at(1).anchor.y() > layout.lines.at(0).anchor.y() + 8);
}

void TestLabelLayout::textThatFitsGetsAsLargeAsItMay()
{
    LabelLook look = lookOf(QStringLiteral("A"));
    look.size = 30;
    look.smallest = 6;
    QCOMPARE(layOut(look).size, 30.0);
    look.text = QStringLiteral("The quick brown fox jumps over the lazy dog and sleeps");
    const LabelLayout smaller = layOut(look);
    QVERIFY(smaller.size > 6 && smaller.size < 30);
    const QRectF letters = smaller.outline.boundingRect();
    QVERIFY(QRectF(0, 0, 100, 50).contains(letters));
    look.text = QString(QStringLiteral("many words ")).repeated(80);
    QCOMPARE(layOut(look).size, 6.0);
}

void TestLabelLayout::textOfOneLineHasOneLine()
{
    LabelLook look = lookOf(QStringLiteral("one\ntwo"));
    look.hasManyLines = false;
    QCOMPARE(textsOf(layOut(look)), QStringList({QStringLiteral("one two")}));
}

void TestLabelLayout::textStandsAlikeInWhicheverBoxItStoodBefore_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("hasManyLines");
    QTest::addColumn<double>("smallest");
    QTest::newRow("a word") << QStringLiteral("Radius") << true << 0.0;
    QTest::newRow("a word that gets smaller") << QStringLiteral("Radius") << true << 4.0;
    QTest::newRow("one line") << QStringLiteral("12.5 and more") << false << 4.0;
    QTest::newRow("many words") << QStringLiteral("The quick brown fox jumps\nover the dog") << true << 0.0;
    QTest::newRow("many words that get smaller") << QStringLiteral("The quick brown fox\njumps ") << true << 4.0;
    QTest::newRow("Arabic") << QString::fromUtf8("مرحبا بالعالم") << true << 4.0;
}

void TestLabelLayout::textStandsAlikeInWhicheverBoxItStoodBefore()
{
    QFETCH(QString, text);
    QFETCH(bool, hasManyLines);
    QFETCH(double, smallest);
    LabelLook look = lookOf(text);
    look.hasManyLines = hasManyLines;
    look.smallest = smallest;
    LabelLayout before;
    for (const double width : {100.0, 20.0, 60.0, 61.0, 240.0, 5.0, 36.0}) {
        look.box.setWidth(width);
        const LabelLayout fresh = layOut(look);
        before = layOut(look, before.letters);
        QCOMPARE(before.size, fresh.size);
        QCOMPARE(textsOf(before), textsOf(fresh));
        QCOMPARE(before.outline, fresh.outline);
    }
    look.isBold = true;
    QCOMPARE(layOut(look, before.letters).outline, layOut(look).outline);
    look.text += QLatin1Char('.');
    QCOMPARE(layOut(look, before.letters).outline, layOut(look).outline);
}

void TestLabelLayout::boldLettersAreWider()
{
    LabelLook look = lookOf(QStringLiteral("Hello"));
    const double plain = layOut(look).outline.boundingRect().width();
    look.isBold = true;
    QVERIFY(layOut(look).outline.boundingRect().width() > plain);
}

void TestLabelLayout::arabicBeginsAtTheRight()
{
    LabelLook look = lookOf(QString::fromUtf8("مرحبا بالعالم"));
    look.alignment = LabelAlignment::Start;
    const LabelLayout layout = layOut(look);
    QCOMPARE(layout.lines.size(), 1);
    QVERIFY(layout.lines.first().isRightToLeft);
    QCOMPARE(layout.lines.first().anchor.x(), 100.0);
    QVERIFY(layout.outline.boundingRect().right() > 96);
    look.alignment = LabelAlignment::End;
    QVERIFY(layOut(look).outline.boundingRect().left() < 4);
}

void TestLabelLayout::chineseIsBrokenBetweenSigns()
{
    // Long enough for every font, one without these signs included.
    LabelLook look = lookOf(QString::fromUtf8("三角形的内角和等于一百八十度").repeated(4));
    const LabelLayout layout = layOut(look);
    QVERIFY(layout.lines.size() >= 2);
    QCOMPARE(textsOf(layout).join(QString()), look.text);
}

void TestLabelLayout::alignmentsAreThoseOfQt()
{
    LabelLook look;
    QCOMPARE(look.flags(), Qt::Alignment(Qt::AlignCenter));
    look.alignment = LabelAlignment::Start;
    look.vertical = LabelAlignment::End;
    QCOMPARE(look.flags(), Qt::AlignLeft | Qt::AlignBottom);
    look.alignment = LabelAlignment::End;
    look.vertical = LabelAlignment::Start;
    QCOMPARE(look.flags(), Qt::AlignRight | Qt::AlignTop);
}

void TestLabelLayout::pathOfLettersHasHundredths()
{
    QPainterPath outline;
    outline.moveTo(0.123456, 1);
    outline.lineTo(2, 3.999);
    QCOMPARE(pathOfLetters(outline, {10, 20}), QStringLiteral("M10.12 21 L12 24 "));
    QCOMPARE(pathOfLetters({}, {10, 20}), QStringLiteral("M0 0"));
}

QTEST_MAIN(TestLabelLayout)
#include "test_labellayout.moc"
