// Faults of files that declare a shape: the code, and the line and column where it stands.

#include "shapefile.h"

#include <QtTest/QtTest>

using namespace declared;

class TestReadingFaults : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void faultsOfFilesStandWhereTheyAre_data();
    void faultsOfFilesStandWhereTheyAre();
    void faultsInsideStandWhereTheyAre_data();
    void faultsInsideStandWhereTheyAre();
    void faultsOfAboutStandWhereTheyAre_data();
    void faultsOfAboutStandWhereTheyAre();
    void successorsHaveNoFormerNames();
    void messageSaysWhyANameIsRefused_data();
    void messageSaysWhyANameIsRefused();
    void titlesOfSuccessorsMakeNoKeyThatIsTaken_data();
    void titlesOfSuccessorsMakeNoKeyThatIsTaken();
    void placesCountReferencesAsOneCharacter();
    void placesCountLines();
    void everyFaultOfAFileIsTold();
    void thirtyTwoPointsAreEnough();
    void largeAndDeepFilesAreRefused();
    void manyDeclarationsAreRefused();
    void manyAttributesAreRefusedAtOnce();
};

namespace {

/// "3:8 C20" for the first error, or nothing.
QString firstError(const QByteArray &bytes)
{
    QVector<Message> messages;
    const SharedDeclaration shape = declaredtest::readOf(bytes, &messages);
    for (const Message &message : qAsConst(messages)) {
        if (message.severity == Message::Error)
            return shape ? QStringLiteral("read")
                         : QStringLiteral("%1:%2 %3").arg(message.line).arg(message.column).arg(message.code);
    }
    return shape ? QString() : QStringLiteral("refused");
}

QByteArray point(int number, const char *attributes = "")
{
    return "<rect id='control_" + QByteArray::number(number) + "' x='1' y='1' width='8' height='8' " + attributes +
           "/>";
}

} // namespace

void TestReadingFaults::faultsOfFilesStandWhereTheyAre_data()
{
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *bytes, const char *fault) {
        QTest::newRow(bytes) << QString::fromLatin1(fault);
    };
    row("", "1:1 C01");
    row("<svg>", "1:6 C01");
    row("<svg xmlns='http://www.w3.org/2000/svg'>\n<a b=c/></svg>", "2:7 C01");
    row("<svg viewBox='0 0 1 1'/>", "1:1 C02");
    row("\n<g xmlns='http://www.w3.org/2000/svg'/>", "2:1 C02");
    row("<svg xmlns='http://www.w3.org/2000/svg'/>", "1:1 C02");
    row("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 0 9'/>", "1:50 C02");
    row("<svg xmlns='http://www.w3.org/2000/svg' viewBox='5 0 9 9'/>", "1:50 C02");
    row("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9'/>", "1:50 C02");
    row("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 x'/>", "1:50 C02");
    row("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 9'/>", "1:1 C03");
    row("<!DOCTYPE svg [<!ENTITY a 'b'>]><svg/>", "1:33 C45");
}

void TestReadingFaults::faultsOfFilesStandWhereTheyAre()
{
    QFETCH(QString, fault);
    QCOMPARE(firstError(QTest::currentDataTag()), fault);
}

void TestReadingFaults::faultsInsideStandWhereTheyAre_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("fault");
    const auto row = [](const QByteArray &content, const char *fault) {
        QTest::newRow(content.constData()) << content << QString::fromLatin1(fault);
    };
    row("<shape:about name='Other'/>", "3:1 C03");
    row("<shape:lett/>", "3:1 C04");
    row("<shape:let name='a' valeu='1' value='1'/>", "3:28 C04");
    row("<path shape:dd='M0 0'/>", "3:17 C04");
    row(point(1, "shape:rangex='1'"), "3:69 C04");
    row("<shape:property name='a' type='whole' value.de='1'/>", "3:49 C04");
    row("<path id='a'/><path id='a'/>", "3:25 C11");
    row("<shape:let name='w' value='1'/>", "3:18 C12");
    row("<shape:let name='sin' value='1'/>", "3:18 C12");
    row("<shape:let name='p7' value='1'/>", "3:18 C12");
    row("<shape:let name='a b' value='1'/>", "3:18 C12");
    row("<shape:let name='f(w)' value='1'/>", "3:18 C12");
    row("<shape:let name='f(a, a)' value='1'/>", "3:18 C12");
    row("<shape:let value='1'/>", "3:1 C12");
    row("<shape:let name='a' value='1'/><shape:let name='a' value='2'/>", "3:49 C12");
    row("<shape:property name='end' type='switch' value='no'/>", "3:23 C12");
    row("<shape:property type='switch' value='no'/>", "3:1 C12");
    row("<shape:connection at='p1'/>", "3:1 C12");
    row("<shape:connection name='a' at='w'/>", "3:32 C23");
    row("<shape:connection name='a' at='middle'/><shape:connection name='a' at='middle'/>", "3:65 C12");
    row("<shape:property name='a' type='number' value='1'/>", "3:32 C13");
    row("<shape:property name='a' value='1'/>", "3:1 C13");
    // Both names have the SHA-1 beginning 8d810.
    row("<shape:property name='bqj' type='switch' value='no'/><shape:property name='cnu' type='switch' "
        "value='no'/>",
        "3:76 C14");
    row("<shape:let name='a' value='1" + QByteArray(" + 1").repeated(500) + "'/>", "3:2028 C26");
    row("<text id='label_1'>a</text>", "3:1 C43");
    row("<text id='label_1' shape:box='1; 2; 3'>a</text>", "3:31 C43");
    row("<text id='label_1' shape:box='1; 2; 3; x'>a</text>", "3:40 C20");
    row("<text id='label_1' shape:box='1; 2; 3; 4' shape:size='fit 9 .. 6'>a</text>", "3:55 C43");
    row("<text id='label_1' shape:box='1; 2; 3; 4' shape:align='left'>a</text>", "3:56 C43");
    row("<text id='label_1' shape:box='1; 2; 3; 4' shape:text='a'>a</text>", "3:55 C38");
    row("<text id='title' shape:box='1; 2; 3; 4'>a</text>", "3:29 C38");
    row("<text id='label_a_1' shape:box='1; 2; 3; 4'/><g shape:repeat='i in 0..1'>"
        "<text id='label_a' shape:box='1; 2; 3; 4'/></g>",
        "3:1 C11");
    row("<g shape:repeat='i in 0..1'><text id='label_1' shape:box='1; 2; 3; i' shape:text='{j}'/></g>", "3:84 C20");
    row("<shape:property name='a' type='whole' value='1'/>", "3:1 C15");
    row("<shape:property name='a' type='whole' from='1' to='5'/>", "3:1 C15");
    row("<shape:property name='a' type='whole' from='1' to='5' value='6'/>", "3:62 C15");
    row("<shape:property name='a' type='whole' from='1' to='5' value='1.5'/>", "3:62 C15");
    row("<shape:property name='a' type='real' from='5' to='1' value='2'/>", "3:44 C15");
    row("<shape:property name='a' type='real' from='1' to='x' value='2'/>", "3:51 C15");
    row("<shape:property name='a' type='real' from='1' to='5' step='0' value='2'/>", "3:60 C15");
    row("<shape:property name='a' type='switch' value='on'/>", "3:47 C15");
    row("<shape:property name='a' type='switch' value='no' from='1'/>", "3:57 C15");
    row("<shape:property name='a' type='colour' value='red'/>", "3:47 C15");
    row("<shape:property name='a' type='numbers' value='1 x'/>", "3:48 C15");
    row("<shape:property name='a' type='numbers' value='1 2' count='3'/>", "3:48 C15");
    row("<shape:property name='a' type='points' value='1 2 3'/>", "3:47 C15");
    row("<shape:property name='a' type='text' value='' panel='left'/>", "3:54 C15");
    row("<shape:property name='a' type='choice' value='x'><shape:entry name='y'/></shape:property>", "3:47 C16");
    row("<shape:property name='a' type='choice' value='y'><shape:entry/></shape:property>", "3:50 C16");
    row("<shape:entry name='a'/>", "3:1 C16");
    row("<path shape:d='M{w'/>", "3:17 C18");
    row("<shape:let name='a' value='1 +'/>", "3:31 C19");
    row("<shape:let name='a' value='b'/>", "3:28 C20");
    row("<shape:let name='a' value='1 + f(2)'/>", "3:32 C21");
    row("<shape:let name='a' value='sin(1, 2)'/>", "3:28 C22");
    row("<path shape:visible='middle'/>", "3:22 C23");
    row("<shape:let name='a' value='b'/><shape:let name='b' value='a'/>", "3:28 C24");
    row("<shape:let name='f(v)' value='g(v)'/><shape:let name='g(v)' value='f(v)'/>", "3:31 C25");
    row(point(1, "shape:range-x='p1.x .. 9'"), "3:70 C27");
    row("<shape:let name='a' value='p1.x + 3'/>" + point(1, "shape:place='point(a, at.y)'"), "3:106 C27");
    row("<path shape:d='M{at}'/>", "3:18 C28");
    row(point(1, "shape:range-x='1 .. 2 .. 3'"), "3:77 C29");
    row(point(1, "shape:along='square(middle, 3)'"), "3:68 C30");
    row(point(1, "shape:along='circle(3, 3)'"), "3:68 C22");
    row(point(1, "shape:along='circle(middle, 3)' shape:place='at'"), "3:100 C31");
    row(point(1, "shape:step='3'"), "3:67 C31");
    row(point(1, "shape:mirrors='p1 x'"), "3:70 C32");
    row(point(1, "shape:mirrors='p2 x'"), "3:70 C32");
    row(point(1, "shape:mirrors='p2 x'") + point(2, "shape:mirrors='p1 x'"), "3:70 C32");
    row(point(1, "shape:follow-x='left'"), "3:71 C33");
    row(point(1, "shape:offset-x='1 2 3'"), "3:71 C33");
    row("<rect id='control_2' x='1' y='1' width='8' height='8'/>", "3:11 C07");
    row("<circle id='control_1' cx='1' cy='1' r='8'/>", "3:1 C09");
    row("<rect id='control_1' x='1' y='1' width='8'/>", "3:1 C09");
    row("<g transform='scale(2)'>" + point(1) + "</g>", "3:25 C10");
    row("<circle shape:d='M0 0'/>", "3:18 C38");
    row("<path shape:repeat='i in 0..3'/>", "3:21 C38");
    row("<title shape:fill='{pen}'/>", "3:20 C38");
    row("<text id='label_1' shape:box='0; 0; 9; 9' shape:fill='{pen}'/>", "3:55 C38");
    row("<g shape:repeat='i in 0..1'><text id='label_1' shape:box='0; 0; 9; 9' shape:fill='{fill}'/></g>",
        "3:83 C43");
    row("<g shape:repeat='i in 0..3'/>", "3:1 C38");
    row("<g shape:repeat='i in 0..1'><g shape:repeat='k in 0..1'><path/></g></g>", "3:29 C38");
    row("<path shape:keeps='all'/>", "3:20 C39");
    row("<use href='#nothing'/>", "3:13 C44");
    row("<path style='fill: url(#paint)'/>", "3:25 C44");
    row("<shape:property name='a' type='whole' value='1' from='0' to='9' was='b'/>", "3:70 C47");
    row("<shape:property name='a' type='whole' value='1' from='0' to='9' was='b:number'/>", "3:70 C47");
    row("<shape:property name='a' type='whole' value='1' from='0' to='9' was='b:text'/>", "3:70 C47");
    row("<shape:property name='a' type='whole' value='1' from='0' to='9' was='a:whole'/>", "3:70 C47");
    row("<shape:property name='a' type='switch' value='no' was='b:switch'/>"
        "<shape:property name='b' type='switch' value='no'/>",
        "3:56 C47");
    row("<shape:property name='a' type='switch' value='no' was='c:switch'/>"
        "<shape:property name='b' type='switch' value='no' was='c:switch'/>",
        "3:56 C47");
}

void TestReadingFaults::faultsInsideStandWhereTheyAre()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, fault);
    QCOMPARE(firstError(declaredtest::fileOf(content)), fault);
}

void TestReadingFaults::faultsOfAboutStandWhereTheyAre_data()
{
    QTest::addColumn<QString>("fault");
    const auto row = [](const char *about, const char *fault) {
        QTest::newRow(about) << QString::fromLatin1(fault);
    };
    row("name=''", "2:1 C03");
    row("name='Nut' nam='x'", "2:30 C04");
    row("name='Nut' id='a b'", "2:29 C05");
    row("name='Nut' sizing='stretched'", "2:33 C06");
    row("name='Nut' filled='all'", "2:33 C06");
    row("name='Nut' aspect='wide'", "2:33 C06");
    row("name='Nut' smallest='5'", "2:35 C06");
    row("name='Nut' pen='0'", "2:30 C06");
    row("name='Nut' icon='figure'", "2:31 C44");
    row("name='Nut' type='8' filled='page'", "2:31 C51");
    row("name='Nut' layout='kit'", "2:33 C51");
    row("name='Nut' layout='coded' type='8' filled='page'", "2:33 C51");
    row("name='Nut' layout='kit' type='26' filled='page'", "2:44 C51");
    row("name='Nut' layout='kit' type='2000'", "2:44 C51");
    row("name='Nut' layout='kit' type='8'", "2:44 C51");
    row("name='Nut' layout='kit' type='30' filled='page'", "2:44 C51");
}

void TestReadingFaults::faultsOfAboutStandWhereTheyAre()
{
    QFETCH(QString, fault);
    QCOMPARE(firstError(declaredtest::fileAbout(QTest::currentDataTag(), "")), fault);
}

void TestReadingFaults::successorsHaveNoFormerNames()
{
    QCOMPARE(
        firstError(declaredtest::fileAbout("name='Nut' layout='kit' type='30'",
                                           "<shape:property name='a' type='switch' value='no' was='b:switch'/>")),
        QStringLiteral("3:56 C51"));
}

void TestReadingFaults::messageSaysWhyANameIsRefused_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("f(1)") << R"("1" is no name: letters, digits and "_", a letter first)";
    QTest::newRow("sin") << R"("sin" is a function)";
    QTest::newRow("end") << R"("end" is a word of expressions, or the name of a control point)";
    QTest::newRow("p7") << R"("p7" is a word of expressions, or the name of a control point)";
    QTest::newRow("middle") << R"("middle" is a value of every shape)";
    QTest::newRow("used") << R"("used" is another value or function of this file)";
    QTest::newRow("f(v, v)") << R"("v" is there twice)";
}

void TestReadingFaults::messageSaysWhyANameIsRefused()
{
    QFETCH(QString, text);
    QVector<Message> messages;
    declaredtest::readOf(
        declaredtest::fileOf("<shape:property name='used' type='switch' value='no'/><shape:let name='" +
                             QByteArray(QTest::currentDataTag()) + "' value='used'/>"),
        &messages);
    QVERIFY(!messages.isEmpty());
    QCOMPARE(messages.first().code, QStringLiteral("C12"));
    QCOMPARE(messages.first().text, text);
}

void TestReadingFaults::titlesOfSuccessorsMakeNoKeyThatIsTaken_data()
{
    QTest::addColumn<QByteArray>("properties");
    QTest::addColumn<QString>("fault");
    const QByteArray first = "<shape:property name='a' type='switch' value='no' title='Hole'/>";
    const auto titled = [](const QByteArray &title) {
        return "<shape:property name='b' type='switch' value='no' title='" + title + "'/>";
    };
    for (const char *title : {"SVG type", "Control count", "Pen color", "Line style", "Outline color", "Declared"})
        QTest::newRow(title) << titled(title) << QStringLiteral("3:58 C12");
    QTest::newRow("another's") << first + titled("hole") << QStringLiteral("3:122 C12");
    QTest::newRow("free") << first + titled("Holes") << QString();
    QTest::newRow("a name") << QByteArray("<shape:property name='penColor' type='switch' value='no'/>")
                            << QStringLiteral("3:23 C12");
}

void TestReadingFaults::titlesOfSuccessorsMakeNoKeyThatIsTaken()
{
    QFETCH(QByteArray, properties);
    QFETCH(QString, fault);
    const char *about = "name='Nut' layout='kit' type='30'";
    QCOMPARE(firstError(declaredtest::fileAbout(about, properties)), fault);
    // The names of other shapes are apart from all keys.
    QCOMPARE(firstError(declaredtest::fileAbout("name='Nut'", properties)), QString());
}

void TestReadingFaults::placesCountReferencesAsOneCharacter()
{
    QCOMPARE(firstError(declaredtest::fileOf("<shape:let name='a' value='1 &lt; 2 &#43; b'/>")),
             QStringLiteral("3:43 C20"));
}

void TestReadingFaults::placesCountLines()
{
    QCOMPARE(firstError(declaredtest::fileOf("<path\n  shape:d='M0 0\n  L{nothing} 3'/>")),
             QStringLiteral("5:5 C20"));
}

void TestReadingFaults::everyFaultOfAFileIsTold()
{
    QVector<Message> messages;
    QVERIFY(!declaredtest::readOf(declaredtest::fileOf("<shape:let name='a' value='b'/>\n<path shape:d='M{c}'/>"),
                                  &messages));
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages.at(1).told(QStringLiteral("nut.shape.svg")),
             QStringLiteral("nut.shape.svg:4:18: error C20: there is no \"c\""));
}

void TestReadingFaults::thirtyTwoPointsAreEnough()
{
    QByteArray points;
    for (int number = 1; number <= 32; ++number)
        points += point(number) + "\n";
    QCOMPARE(firstError(declaredtest::fileOf(points)), QString());
    QCOMPARE(firstError(declaredtest::fileOf(points + point(33))), QStringLiteral("35:11 C08"));
}

void TestReadingFaults::largeAndDeepFilesAreRefused()
{
    const QByteArray blanks(1 << 20, ' ');
    QCOMPARE(firstError(declaredtest::fileOf(blanks)), QStringLiteral("1:1 C42"));
    const auto nested = [](int depth) {
        return QByteArray("<g>").repeated(depth) + QByteArray("</g>").repeated(depth);
    };
    QCOMPARE(firstError(declaredtest::fileOf(nested(63))), QString());
    QCOMPARE(firstError(declaredtest::fileOf(nested(64))), QStringLiteral("3:190 C42"));
    QCOMPARE(firstError(declaredtest::fileOf(QByteArray("<g/>").repeated(4998))), QString());
    QCOMPARE(firstError(declaredtest::fileOf(QByteArray("<g/>").repeated(4999))), QStringLiteral("3:19993 C42"));
}

void TestReadingFaults::manyDeclarationsAreRefused()
{
    QByteArray lets;
    for (int i = 0; i < 256; ++i)
        lets += "<shape:let name='a" + QByteArray::number(i) + "' value='1'/>";
    QCOMPARE(firstError(declaredtest::fileOf(lets)), QString());
    QCOMPARE(firstError(declaredtest::fileOf(lets + "\n<shape:let name='b' value='1'/>")),
             QStringLiteral("4:1 C17"));
    QByteArray properties;
    for (int i = 0; i < 64; ++i)
        properties += "<shape:property name='a" + QByteArray::number(i) + "' type='switch' value='no'/>";
    QCOMPARE(firstError(declaredtest::fileOf(properties)), QString());
    QCOMPARE(firstError(declaredtest::fileOf(properties + "\n<shape:property name='b' type='switch' value='no'/>")),
             QStringLiteral("4:1 C17"));
}

void TestReadingFaults::manyAttributesAreRefusedAtOnce()
{
    QByteArray attributes;
    for (int i = 0; i < 60000; ++i)
        attributes += " a" + QByteArray::number(i) + "=''";
    QCOMPARE(firstError(declaredtest::fileOf("<path" + attributes + "/>")), QStringLiteral("3:1 C42"));
}

QTEST_MAIN(TestReadingFaults)
#include "test_readingfaults.moc"
