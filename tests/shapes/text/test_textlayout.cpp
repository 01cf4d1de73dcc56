// Lines of texts and the box around them. Fonts differ between systems, so sizes are compared with each other.

#include <text/core/textlayout.h>

#include <QtTest/QtTest>

using text::layOut;
using text::TextLayout;
using text::TextLook;

namespace {

TextLook lookOf(const QString &words, double wrapWidth = 0)
{
    TextLook look;
    look.text = words;
    look.wrapWidth = wrapWidth;
    return look;
}

QStringList textsOf(const TextLayout &layout)
{
    QStringList texts;
    for (const text::TextLine &line : layout.lines)
        texts.append(line.text.trimmed());
    return texts;
}

} // namespace

class TestTextLayout : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aTextBreaksWhereTheUserBreaksIt();
    void aWidthBreaksLinesBetweenWords();
    void aBrokenTextIsAsWideAsItsWidth();
    void anEmptyTextHasRoomForACursor();
    void twiceTheFontSizeIsTwiceTheBox();
    void boldLettersAreWider();
    void lettersAreThoseOfTheFamily();
    void familyThatIsNotInstalledHasTheUsualLetters();
    void theAlignmentIsThatOfTheAnchors();
    void endlessTextsHaveAnEnd();
    void brokenItemsHangUnderTheirText_data();
    void brokenItemsHangUnderTheirText();
    void onlyMarksAtTheLeftMakeLinesHang();
};

void TestTextLayout::aTextBreaksWhereTheUserBreaksIt()
{
    const TextLayout layout = layOut(lookOf("one two\n\nthree"));
    QCOMPARE(textsOf(layout), QStringList({"one two", "", "three"}));
    const double lineHeight = layOut(lookOf("one")).size.height();
    QCOMPARE(layout.size.height(), 3 * lineHeight);
    QCOMPARE(layout.lines[2].anchor.y() - layout.lines[0].anchor.y(), 2 * lineHeight);
}

void TestTextLayout::aWidthBreaksLinesBetweenWords()
{
    const double oneWord = layOut(lookOf("wonderful")).size.width();
    QCOMPARE(textsOf(layOut(lookOf("wonderful wonderful wonderful", oneWord * 1.5))),
             QStringList({"wonderful", "wonderful", "wonderful"}));
    QCOMPARE(layOut(lookOf("wonderful wonderful wonderful")).lines.size(), 1);
}

void TestTextLayout::aBrokenTextIsAsWideAsItsWidth()
{
    QCOMPARE(layOut(lookOf("a", 300)).size.width(), 300.0);
}

void TestTextLayout::anEmptyTextHasRoomForACursor()
{
    const TextLayout layout = layOut(lookOf(""));
    QCOMPARE(layout.size.width(), 12.0);
    QCOMPARE(layout.size.height(), layOut(lookOf("one")).size.height());
}

void TestTextLayout::twiceTheFontSizeIsTwiceTheBox()
{
    TextLook look = lookOf("wonderful");
    const QSizeF before = layOut(look).size;
    look.fontSize *= 2;
    QCOMPARE(layOut(look).size, before * 2);
}

void TestTextLayout::boldLettersAreWider()
{
    TextLook look = lookOf("wonderful");
    const double before = layOut(look).size.width();
    look.isBold = true;
    QVERIFY(layOut(look).size.width() > before);
}

/// In document units: fonts are 24 high, and measured at 100.
void TestTextLayout::lettersAreThoseOfTheFamily()
{
    TextLook look = lookOf("wonderful");
    look.family = QStringLiteral("DejaVu Sans Mono");
    QFont font(look.family);
    font.setPixelSize(100);
    const QFontMetricsF metrics(font);
    QCOMPARE(layOut(look).size.width(), metrics.horizontalAdvance(look.text) * 24 / 100);
    QVERIFY(layOut(look).size.width() != layOut(lookOf("wonderful")).size.width());
}

void TestTextLayout::familyThatIsNotInstalledHasTheUsualLetters()
{
    TextLook look = lookOf("wonderful");
    look.family = QStringLiteral("Nobody's Letters Mono");
    QCOMPARE(layOut(look).size, layOut(lookOf("wonderful")).size);
}

void TestTextLayout::theAlignmentIsThatOfTheAnchors()
{
    TextLook look = lookOf("a", 300);
    QCOMPARE(layOut(look).lines.first().anchor.x(), 0.0);
    look.alignment = text::Alignment::Middle;
    QCOMPARE(layOut(look).lines.first().anchor.x(), 150.0);
    look.alignment = text::Alignment::Right;
    QCOMPARE(layOut(look).lines.first().anchor.x(), 300.0);
}

void TestTextLayout::endlessTextsHaveAnEnd()
{
    QCOMPARE(layOut(lookOf(QString(5000, QLatin1Char('\n')))).lines.size(), 1000);
}

void TestTextLayout::brokenItemsHangUnderTheirText_data()
{
    QTest::addColumn<QString>("mark");
    QTest::newRow("bullet") << QStringLiteral("\u2022 ");
    QTest::newRow("number") << QStringLiteral("12. ");
}

/// In document units: fonts are 24 high, and measured at 100.
void TestTextLayout::brokenItemsHangUnderTheirText()
{
    QFETCH(QString, mark);
    QFont font(QStringLiteral("sans-serif"));
    font.setPixelSize(100);
    const double hang = QFontMetricsF(font).horizontalAdvance(mark) * 24 / 100;
    QVERIFY(hang > 0);
    const double oneWord = layOut(lookOf("wonderful")).size.width();
    const TextLayout layout = layOut(lookOf(mark + "wonderful wonderful\nnext", oneWord * 1.8));
    QCOMPARE(textsOf(layout), QStringList({mark + "wonderful", "wonderful", "next"}));
    QCOMPARE(layout.lines[0].anchor.x(), 0.0);
    QCOMPARE(layout.lines[1].anchor.x(), hang);
    QCOMPARE(layout.lines[2].anchor.x(), 0.0);
}

void TestTextLayout::onlyMarksAtTheLeftMakeLinesHang()
{
    const double oneWord = layOut(lookOf("wonderful")).size.width();
    const QString bullet = QStringLiteral("\u2022 ");
    TextLook centred = lookOf(bullet + "wonderful wonderful", oneWord * 1.8);
    centred.alignment = text::Alignment::Middle;
    QCOMPARE(layOut(centred).lines[1].anchor.x(), oneWord * 0.9);
    QCOMPARE(layOut(lookOf("1234. wonderful wonderful", oneWord * 1.8)).lines[1].anchor.x(), 0.0);
    QCOMPARE(layOut(lookOf("1.wonderful wonderful", oneWord * 1.8)).lines[1].anchor.x(), 0.0);
}

QTEST_MAIN(TestTextLayout)
#include "test_textlayout.moc"
