// Documents that were made to take long or much: what is drawn of them, and what says that something is left out.
// scripts/hostile_svg.py measures such documents.

#include "grammar/csstext.h"
#include "grammar/inputlimits.h"
#include "paint/paintbudget.h"
#include "style/selectormatching.h"
#include "svgbase/svgdrawing.h"

#include <QtCore/QBuffer>

#include <QtTest>

using namespace Svg;
using Message = QZeSvgTinyDocument::Message;

namespace {

const QColor green(0, 255, 0);

bool has(const QZeSvgTinyDocument &document, Message::Code code)
{
    const QVector<Message> messages = document.messages();
    return std::any_of(messages.begin(), messages.end(),
                       [code](const Message &message) { return message.code == code; });
}

QString numbered(const QString &text, int count)
{
    QString result;
    for (int i = 0; i < count; ++i)
        result += QString(text).replace("#N", QString::number(i)).replace("#M", QString::number(i + 1));
    return result;
}

QString styledRect(const QString &style)
{
    return "<rect width='100' height='100' style='" + style + "'/>";
}

/// Lines from the left edge to the right one and back, all across each other.
QString crossingEdges(int edges)
{
    QString data = "M0 0";
    for (int i = 1; i <= edges; ++i)
        data += QString("L%1 %2").arg(i % 2 ? 100 : 0).arg(i % 2 ? 100 : 0);
    return data;
}

/// A downward line at the left, then a way back up at the right, again and again.
QString loops(int count)
{
    return QString("M10 0L10 100 90 100 90 0").repeated(count);
}

QColor pixel(const QString &content, int x = 50, int y = 50)
{
    return drawnContent(content).pixelColor(x, y);
}

} // namespace

class TestHostile : public QObject
{
    Q_OBJECT

private slots:
    void aPartIsFoundInATextThatNearlyRepeatsIt_data();
    void aPartIsFoundInATextThatNearlyRepeatsIt();
    void wordsAreFoundAsWholes();
    void selectorsCountTheTextThatTheyLookAt();
    void selectorsCountTheAttributesThatTheyLookAt();
    void selectorsCountTheLanguagesThatTheyLookAt();
    void rulesCountTheTextOfTheirValues();
    void commentsAreFoundBehindQuotesThatDoNotEnd();
    void importanceIsFoundBehindAnySpace();
    void problemsOfASheetNameTheirLines();
    void variablesInACircleAreNone_data();
    void variablesInACircleAreNone();
    void variablesFollowEachOtherWithoutEnd();
    void textInThePlaceOfVariablesIsLimited();
    void kerningIsCountedAsItIsLookedUp_data();
    void kerningIsCountedAsItIsLookedUp();
    void kerningOfAllFontsIsCountedTogether();
    void glyphsAreFoundByLanguageInAnyCase();
    void shapesOfAGlyphInheritFromGroupsInIt();
    void aClipOfThousandsOfEdgesIsDrawn();
    void crowdedEdgesInAGradientAreLeftOut();
    void workOnOutlinesDoesNotGrowWithTheTarget();
    void imagesCountAsPaintingWork();
    void picturesOfFiltersInFiltersCountTogether();
    void primitivesOfAllFiltersAreCounted();
    void attributesOfADocumentTypeAreCounted();
};

void TestHostile::aPartIsFoundInATextThatNearlyRepeatsIt_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("part");
    QTest::addColumn<bool>("found");
    QTest::newRow("at the end of repetitions") << "aaaaab"
                                               << "aab" << true;
    QTest::newRow("behind a beginning of itself") << "ababac"
                                                  << "abac" << true;
    QTest::newRow("behind two beginnings of itself") << "aabaabaaa"
                                                     << "aabaaa" << true;
    QTest::newRow("all of it") << "abc"
                               << "abc" << true;
    QTest::newRow("longer than the text") << "abc"
                                          << "abcd" << false;
    QTest::newRow("but for its first letter") << "aaaaaa"
                                              << "baaa" << false;
    QTest::newRow("but for its last letter") << "aaaaaa"
                                             << "aaab" << false;
    QTest::newRow("in two parts") << "ab-ac"
                                  << "abac" << false;
    QTest::newRow("nothing") << "abc"
                             << "" << true;
}

void TestHostile::aPartIsFoundInATextThatNearlyRepeatsIt()
{
    QFETCH(QString, text);
    QFETCH(QString, part);
    QFETCH(bool, found);
    QCOMPARE(containsText(text, part), found);
}

void TestHostile::wordsAreFoundAsWholes()
{
    QVERIFY(containsWord(QString("aa a"), QString("a")));
    QVERIFY(containsWord(QString("b\ta\nc"), QString("a")));
    QVERIFY(!containsWord(QString("aa ab ba"), QString("a")));
    QVERIFY(!containsWord(QString("a b"), QString("a b")));
    QVERIFY(!containsWord(QString("a"), QString()));
}

// In a document of 100000 elements each may look at 32 characters in each of 200 steps.
void TestHostile::selectorsCountTheTextThatTheyLookAt()
{
    static_assert(Limits::selectorSteps / Limits::leastSelectorSteps < 100000);
    const QString others = QString("<desc/>").repeated(100000);
    for (const int length : {3200, 32000}) {
        const DocumentPointer document =
            loadContent("<style>[data-x*='b'] rect{fill:#0f0}</style><g data-x='" + QString(length, 'a') + "b'>" +
                        styledRect("") + "</g>" + others);
        const bool isFound = length < 32 * Limits::leastSelectorSteps;
        QCOMPARE(drawn(*document).pixelColor(50, 50), isFound ? green : QColor(Qt::black));
        QCOMPARE(has(*document, Message::TooManySelectorSteps), !isFound);
    }
}

// Looking through 242 attributes counts as 60 steps, and the tag as one.
void TestHostile::selectorsCountTheAttributesThatTheyLookAt()
{
    const QString others = QString("<desc/>").repeated(100000);
    for (const int rules : {3, 4}) {
        const DocumentPointer document =
            loadContent("<style>rect{fill:#0f0}" + numbered("rect[b#N]{fill:red}", rules) +
                        "</style><rect width='100' height='100'" + numbered(" a#N=''", 240) + "/>" + others);
        const bool isComplete = rules * 61 + 1 < Limits::leastSelectorSteps;
        QCOMPARE(drawn(*document).pixelColor(50, 50), isComplete ? green : QColor(Qt::black));
        QCOMPARE(has(*document, Message::TooManySelectorSteps), !isComplete);
    }
}

// Each language is a step.
void TestHostile::selectorsCountTheLanguagesThatTheyLookAt()
{
    const QString others = QString("<desc/>").repeated(100000);
    for (const int languages : {100, 300}) {
        const DocumentPointer document =
            loadContent("<style>:lang(" + QString("de,").repeated(languages) + "en){fill:#0f0}</style>" +
                        "<rect lang='en-GB' width='100' height='100'/>" + others);
        const bool isFound = languages < Limits::leastSelectorSteps;
        QCOMPARE(drawn(*document).pixelColor(50, 50), isFound ? green : QColor(Qt::black));
        QCOMPARE(has(*document, Message::TooManySelectorSteps), !isFound);
    }
}

// Two characters of a value count as a step.
void TestHostile::rulesCountTheTextOfTheirValues()
{
    const QString others = QString("<desc/>").repeated(100000);
    for (const int spaces : {300, 450}) {
        const DocumentPointer document = loadContent("<style>rect{fill:rgb(0," + QString(spaces, ' ') +
                                                     "255,0)}</style>" + styledRect("") + others);
        const bool isRead = spaces < 2 * Limits::leastSelectorSteps;
        QCOMPARE(drawn(*document).pixelColor(50, 50), isRead ? green : QColor(Qt::black));
        QCOMPARE(has(*document, Message::TooManySelectorSteps), !isRead);
    }
}

void TestHostile::commentsAreFoundBehindQuotesThatDoNotEnd()
{
    QCOMPARE(withoutComments(QString("a'b/*c*/d")), QString("a'bd"));
    QCOMPARE(withoutComments(QString("\"a'b/*c*/d'e/*f*/")), QString("\"a'b/*c*/d'e"));
    QCOMPARE(withoutComments(QString("'a/*b*/'c/*d*/")), QString("'a/*b*/'c"));
    // An escaped quote ends no string, and begins one where nothing is escaped.
    QCOMPARE(withoutComments(QString("'a\\'/*b*/")), QString("'a\\'"));
}

void TestHostile::importanceIsFoundBehindAnySpace()
{
    const QString sheet = "<style>rect{fill:lime%1}rect{fill:red}</style>" + styledRect("");
    QCOMPARE(pixel(sheet.arg("!important")), green);
    QCOMPARE(pixel(sheet.arg(" ! \n IMPORTANT ")), green);
    QCOMPARE(pixel(sheet.arg(" important")), QColor(Qt::red));
}

void TestHostile::problemsOfASheetNameTheirLines()
{
    QVector<Message> messages;
    const QByteArray text = "<svg xmlns='http://www.w3.org/2000/svg'><style>\n"
                            "rect{fill:nonsense}\n\n"
                            "g{x-y}rect{stroke:nonsense}\n"
                            "  @nothing;</style></svg>";
    const DocumentPointer document(QZeSvgTinyDocument::load(text, &messages));
    QVERIFY(document);
    QVector<QPair<int, int>> places;
    for (const Message &message : qAsConst(messages))
        places.append({int(message.line), int(message.column)});
    const QVector<QPair<int, int>> expected{{2, 6}, {4, 3}, {4, 12}, {5, 3}};
    QCOMPARE(places, expected);
}

void TestHostile::variablesInACircleAreNone_data()
{
    QTest::addColumn<QString>("style");
    QTest::newRow("of two") << "--a:var(--b);--b:var(--a);fill:var(--a,lime)";
    QTest::newRow("of one") << "--a:var(--a);fill:var(--a,lime)";
    QTest::newRow("with a fallback in it") << "--a:var(--b,red);--b:var(--a,red);fill:var(--b,lime)";
    QTest::newRow("by a fallback") << "--a:var(--x,var(--b));--b:var(--a);fill:var(--a,lime)";
    QTest::newRow("that meets another one") << "--a:var(--b);--b:var(--a) var(--c);--c:var(--b);fill:var(--c,lime)";
    QTest::newRow("outside of it") << "--c:var(--a,lime);--a:var(--b);--b:var(--a);fill:var(--c)";
    QTest::newRow("of eight references each") << numbered("--a#N:" + QString("var(--a#M)").repeated(8) + ";", 999) +
                                                     "--a999:var(--a0);fill:var(--a7,lime)";
}

// CSS Custom Properties 1 §2.3: all of a circle are invalid, fallbacks or not, so that the fallback of whoever asks
// for one of them counts.
void TestHostile::variablesInACircleAreNone()
{
    QFETCH(QString, style);
    QCOMPARE(pixel(styledRect(style)), green);
}

void TestHostile::variablesFollowEachOtherWithoutEnd()
{
    QCOMPARE(pixel(styledRect(numbered("--a#N:var(--a#M);", 1000) + "--a1000:lime;fill:var(--a0)")), green);
}

// In a document of one more than 100000 elements each may put 200 characters in the places of variables.
void TestHostile::textInThePlaceOfVariablesIsLimited()
{
    static_assert(Limits::substitutedCharacters / Limits::leastSubstitutedCharacters == 100000);
    const QString others = QString("<desc/>").repeated(100000);
    for (const int spaces : {150, 250}) {
        const DocumentPointer document = loadContent("<g style='--a:rgb(0," + QString(spaces, ' ') + "255,0)'>" +
                                                     styledRect("fill:var(--a)") + "</g>" + others);
        const bool isWithin = spaces < Limits::leastSubstitutedCharacters;
        QCOMPARE(drawn(*document).pixelColor(50, 50), isWithin ? green : QColor(Qt::black));
        QCOMPARE(has(*document, Message::TooManyStyleRules), !isWithin);
    }
}

QString kernedText(const QString &kerning)
{
    return "<font horiz-adv-x='500'><font-face font-family='f' units-per-em='1000'/>"
           "<glyph unicode='a' glyph-name='a' d='M0 0H500V1000H0z'/>" +
           kerning + "</font><text font-family='f' font-size='20' y='50'>aa</text>";
}

void TestHostile::kerningIsCountedAsItIsLookedUp_data()
{
    QTest::addColumn<QString>("kerning");
    const QString thousand = QString("b,").repeated(1000);
    QTest::newRow("equal names") << "<hkern g1='" + thousand + "' g2='" + thousand + "' k='1'/>";
    const QString ranges = QString("U+4e??,").repeated(4);
    QTest::newRow("equal ranges") << "<hkern u1='" + ranges + "' u2='" + ranges + "' k='1'/>";
    QTest::newRow("equal elements") << QString("<hkern g1='b,b,b,b,b,b,b,b,b,b' g2='b,b,b,b,b,b,b,b,b,b' k='1'/>")
                                           .repeated(Limits::kerningPairs / 100);
}

// As many pairs as there may be, or more, take the place of one behind them, whatever they say.
void TestHostile::kerningIsCountedAsItIsLookedUp()
{
    QFETCH(QString, kerning);
    const QString pair = "<hkern g1='a' g2='a' k='-1000'/>";
    for (const bool isBehind : {false, true}) {
        const DocumentPointer document = loadContent(kernedText(isBehind ? kerning + pair : pair + kerning));
        // Kerned, the second letter reaches from 30 to 40.
        QCOMPARE(drawn(*document).pixelColor(35, 45).alpha(), isBehind ? 0 : 255);
        QVERIFY(has(*document, Message::ListTooLong));
    }
}

void TestHostile::kerningOfAllFontsIsCountedTogether()
{
    // 360000 pairs.
    const QString names = numbered("b#N,", 600);
    const QString first = kernedText("<hkern g1='" + names + "' g2='" + names + "' k='1'/>");
    const QString second = QString(first).replace("'f'", "'g'");
    for (const QString &content : {first, first + second}) {
        const DocumentPointer document = loadContent(content);
        drawn(*document);
        QCOMPARE(has(*document, Message::ListTooLong), content != first);
    }
}

void TestHostile::glyphsAreFoundByLanguageInAnyCase()
{
    const QString text = "<font horiz-adv-x='1000'><font-face font-family='f' units-per-em='1000'/>"
                         "<glyph unicode='a' lang='EN' d='M0 0H1000V1000H0z'/></font>"
                         "<text font-family='f' font-size='20' y='50' xml:lang='%1'>a</text>";
    QCOMPARE(pixel(text.arg("en-gb"), 10, 40), QColor(Qt::black));
    QCOMPARE(pixel(text.arg("En"), 10, 40), QColor(Qt::black));
    QVERIFY(pixel(text.arg("eng"), 10, 40) != QColor(Qt::black));
}

// "none" of a group inside of the glyph, and of the one around the font, reaches shapes; what they say themselves
// comes first. Transforms add up.
void TestHostile::shapesOfAGlyphInheritFromGroupsInIt()
{
    const QString text = "<g fill='%1'><font horiz-adv-x='1000'><font-face font-family='f' units-per-em='1000'/>"
                         "<glyph unicode='a'><g fill='none' transform='translate(0 500)'>"
                         "<rect width='500' height='500'/>"
                         "<g transform='translate(500 0)'><rect width='500' height='500' fill='red'/></g></g>"
                         "<rect width='500' height='500'/></glyph></font></g>"
                         "<text font-family='f' font-size='100' y='100'>a</text>";
    const QImage filled = drawnContent(text.arg("red"));
    QCOMPARE(filled.pixelColor(25, 25).alpha(), 0);
    QCOMPARE(filled.pixelColor(75, 25), QColor(Qt::black));
    QCOMPARE(filled.pixelColor(25, 75), QColor(Qt::black));
    QCOMPARE(drawnContent(text.arg("none")).pixelColor(25, 75).alpha(), 0);
}

// All of the loops go around the same way: nothing cancels out.
void TestHostile::aClipOfThousandsOfEdgesIsDrawn()
{
    const DocumentPointer document = loadContent("<clipPath id='c'><path d='" + loops(7900) + "'/></clipPath>" +
                                                 QString("<rect width='100' height='100' fill='#0f0' "
                                                         "clip-path='url(#c)'/>")
                                                     .repeated(3));
    const QImage image = drawn(*document);
    QCOMPARE(image.pixelColor(50, 50), green);
    QCOMPARE(image.pixelColor(5, 50).alpha(), 0);
    QVERIFY(!has(*document, Message::TooMuchPainting));
}

// A painter draws what is filled by a gradient, and walks along its rows to each crossing; in one colour the
// library draws it itself, one crossing as fast as another.
void TestHostile::crowdedEdgesInAGradientAreLeftOut()
{
    const QString gradient = "<linearGradient id='g'><stop stop-color='red'/><stop offset='1'/></linearGradient>";
    const QString path = "<path fill='%1' d='" + crossingEdges(30000) + "V100'/>";
    for (const bool isPlain : {true, false}) {
        const DocumentPointer document = loadContent(gradient + path.arg(isPlain ? "red" : "url(#g)"));
        drawn(*document, QSize(256, 256));
        QCOMPARE(has(*document, Message::TooMuchPainting), !isPlain);
    }
}

void TestHostile::workOnOutlinesDoesNotGrowWithTheTarget()
{
    PaintBudget budget(4096.0 * 4096);
    QVERIFY(!budget.lacksWork());
    budget.work -= 5 * Limits::paintedWork;
    QVERIFY(!budget.lacksWork());
    budget.outlineWork -= 1.01 * Limits::paintedWork;
    QVERIFY(budget.lacksWork());
    QVERIFY(budget.taken() > 1);
}

void TestHostile::imagesCountAsPaintingWork()
{
    QImage red(2, 2, QImage::Format_ARGB32);
    red.fill(Qt::red);
    QBuffer png;
    red.save(&png, "PNG");
    const QString image = "<image id='i' width='200' height='200' href='data:image/png;base64," +
                          QString::fromLatin1(png.data().toBase64()) + "'/>";
    const QString last = "<rect width='50' height='50' fill='#0f0'/>";
    // A pixel of an image that is turned counts 8, one of the target gives 400.
    const double work = Limits::paintedWork + 10000 * Limits::paintedWorkPerPixel;
    const int most = int(work / (10000 * 8));
    const QString use = "<use href='#i' transform='translate(20 -60) rotate(20)'/>";
    for (const bool isBeyond : {false, true}) {
        const int uses = isBeyond ? most * 2 : most / 2;
        const DocumentPointer document = loadContent("<defs>" + image + "</defs>" + use.repeated(uses) + last);
        QCOMPARE(drawn(*document).pixelColor(40, 40), isBeyond ? QColor(Qt::red) : green);
        QCOMPARE(has(*document, Message::TooMuchPainting), isBeyond);
    }
}

QString waitingResults(const QString &id, int count, const QString &first)
{
    return "<filter id='" + id + "' x='0' y='0' width='1' height='1'>" +
           numbered("<feFlood flood-color='#0f0' result='r#N'/>", count) + first + "<feMerge>" +
           numbered("<feMergeNode in='r#N'/>", count) + "</feMerge></filter>";
}

// At 1000 × 1000 pixels, 41 pictures may be held: 20 results for each of two filters fit one by one, but not one
// inside the other.
void TestHostile::picturesOfFiltersInFiltersCountTogether()
{
    const QString inner = waitingResults("inner", 20, QString());
    const QString apart = inner + QString("<rect width='100' height='100' filter='url(#inner)'/>").repeated(2);
    const QString within = inner + waitingResults("outer", 20, "<feImage href='#r' result='r0'/>") +
                           "<defs><rect id='r' width='100' height='100' filter='url(#inner)'/></defs>"
                           "<rect width='100' height='100' filter='url(#outer)'/>";
    for (const QString &content : {apart, within}) {
        const DocumentPointer document = loadContent(content);
        QCOMPARE(drawn(*document).pixelColor(50, 50), green);
        QVERIFY(!has(*document, Message::TooManyLayerPixels));
        drawn(*document, QSize(1000, 1000));
        QCOMPARE(has(*document, Message::TooManyLayerPixels), content == within);
    }
}

void TestHostile::primitivesOfAllFiltersAreCounted()
{
    const QString floods = QString("<feFlood flood-color='#0f0'/>").repeated(Limits::filterPrimitives);
    const QString filter = "<filter id='f' x='0' y='0' width='1' height='1'>" + floods + "</filter>";
    const QString beside = "<rect x='-99' width='9' height='9' filter='url(#f)'/>";
    const QString shown = "<rect width='100' height='100' fill='red' filter='url(#f)'/>";
    const int most = Limits::appliedPrimitives / Limits::filterPrimitives;
    for (const bool isBeyond : {false, true}) {
        const DocumentPointer document = loadContent(filter + beside.repeated(isBeyond ? most : most - 1) + shown);
        QCOMPARE(drawn(*document).pixelColor(50, 50), isBeyond ? QColor(Qt::red) : green);
        QCOMPARE(has(*document, Message::TooManyFilterPrimitives), isBeyond);
    }
}

// Each element is given a megabyte and 33 characters more: of 128 of them the last one is too much.
void TestHostile::attributesOfADocumentTypeAreCounted()
{
    for (const int given : {127, 128}) {
        QVector<Message> messages;
        const QByteArray text = "<!DOCTYPE svg [<!ATTLIST g a CDATA '" + QByteArray(1024 * 1024, 'x') +
                                "'>]><svg xmlns='http://www.w3.org/2000/svg'>" +
                                QByteArray("<g/>").repeated(given) + "</svg>";
        QVERIFY(DocumentPointer(QZeSvgTinyDocument::load(text, &messages)));
        QCOMPARE(!messages.isEmpty(), given == 128);
        QVERIFY(messages.isEmpty() || messages.constFirst().code == Message::TooManyAttributes);
    }
}

QTEST_MAIN(TestHostile)
#include "test_hostile.moc"
