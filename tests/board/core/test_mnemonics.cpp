// Letters for Alt.

#include <core/mnemonics.h>

#include <QtTest/QtTest>

class TestMnemonics : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void textsAreMarked_data();
    void textsAreMarked();
    void marksAreFoundAndRemoved_data();
    void marksAreFoundAndRemoved();
};

void TestMnemonics::textsAreMarked_data()
{
    using List = QStringList;
    QTest::addColumn<List>("texts");
    QTest::addColumn<List>("expected");
    QTest::newRow("none") << List{} << List{};
    QTest::newRow("first letters") << List{"Cut", "Paste"} << List{"&Cut", "&Paste"};
    QTest::newRow("beginning of another word")
        << List{"Send back", "Send away"} << List{"&Send back", "Send &away"};
    QTest::newRow("letter within") << List{"Cut", "Cat"} << List{"&Cut", "C&at"};
    QTest::newRow("upper and lower case are one key") << List{"Cut", "cup"} << List{"&Cut", "c&up"};
    QTest::newRow("umlauts are letters") << List{"Öl", "Ol"} << List{"&Öl", "&Ol"};
    QTest::newRow("digits") << List{"50 %", "5 %"} << List{"5&0 %", "&5 %"};
    // The second one has no other letter, so that the first one gives way.
    QTest::newRow("giving way") << List{"No", "N"} << List{"N&o", "&N"};
    QTest::newRow("giving way to each other") << List{"ab", "bc", "a"} << List{"a&b", "b&c", "&a"};
    QTest::newRow("too few letters") << List{"A", "a"} << List{"&A", "a"};
    QTest::newRow("no letters") << List{"…", "%"} << List{"…", "%"};
    QTest::newRow("given marks stay") << List{"Cut", "C&opy", "Open"} << List{"&Cut", "C&opy", "O&pen"};
    QTest::newRow("given twice") << List{"&Cut", "&Copy"} << List{"&Cut", "C&opy"};
    QTest::newRow("two ampersands are none") << List{"A && B", "A"} << List{"A && &B", "&A"};
    QTest::newRow("keys of an entry are no text") << List{"a\tCtrl+B", "b"} << List{"&a\tCtrl+B", "&b"};
}

void TestMnemonics::textsAreMarked()
{
    QFETCH(QStringList, texts);
    QFETCH(QStringList, expected);
    QCOMPARE(board::withMnemonics(texts), expected);
}

void TestMnemonics::marksAreFoundAndRemoved_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QChar>("character");
    QTest::addColumn<QString>("without");
    QTest::newRow("none") << "Cut" << QChar() << "Cut";
    QTest::newRow("first letter") << "&Cut" << QChar('c') << "Cut";
    QTest::newRow("later letter") << "Sa&ve As" << QChar('v') << "Save As";
    QTest::newRow("ampersand") << "A && B" << QChar() << "A && B";
    QTest::newRow("ampersand and a mark") << "A && &B" << QChar('b') << "A && B";
    QTest::newRow("at the end") << "Cut&" << QChar() << "Cut&";
}

void TestMnemonics::marksAreFoundAndRemoved()
{
    QFETCH(QString, text);
    QFETCH(QChar, character);
    QFETCH(QString, without);
    QCOMPARE(board::mnemonicOf(text), character);
    QCOMPARE(board::withoutMnemonic(text), without);
}

QTEST_APPLESS_MAIN(TestMnemonics)
#include "test_mnemonics.moc"
