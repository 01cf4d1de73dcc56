// Controls of letters in settings panels.

#include <shapekit/lettercontrol.h>

#include <QtTest/QtTest>

using shapekit::LetterPart;

class TestLetterControl : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void controlSaysWhatItSets_data();
    void controlSaysWhatItSets();
};

void TestLetterControl::controlSaysWhatItSets_data()
{
    QTest::addColumn<int>("part");
    QTest::newRow("text") << int(LetterPart::Text);
    QTest::newRow("font") << int(LetterPart::Font);
    QTest::newRow("size") << int(LetterPart::Size);
    QTest::newRow("bold") << int(LetterPart::Bold);
    QTest::newRow("italic") << int(LetterPart::Italic);
    QTest::newRow("underlined") << int(LetterPart::Underlined);
    QTest::newRow("colour") << int(LetterPart::Colour);
    QTest::newRow("alignment") << int(LetterPart::Alignment);
    QTest::newRow("list") << int(LetterPart::List);
    QTest::newRow("width") << int(LetterPart::Width);
}

void TestLetterControl::controlSaysWhatItSets()
{
    QFETCH(int, part);
    const QJsonObject given{{QStringLiteral("id"), QStringLiteral("idA")}};
    const QJsonObject control = shapekit::letterControl(given, LetterPart(part));
    QCOMPARE(control, QJsonObject({{QStringLiteral("id"), QStringLiteral("idA")},
                                   {QStringLiteral("section"), QStringLiteral("text")},
                                   {QStringLiteral("role"), QString::fromLatin1(QTest::currentDataTag())}}));
}

QTEST_APPLESS_MAIN(TestLetterControl)
#include "test_lettercontrol.moc"
