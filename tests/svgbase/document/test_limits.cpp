// Every limit twice: what is just within it is drawn without a word, of what is just beyond it something is left
// out with a message, and the rest is drawn.

#include "grammar/inputlimits.h"
#include "svgbase/document/limitdocuments.h"
#include "svgbase/svgdrawing.h"

#include <support/listed.h>

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

#include <QtTest>

using namespace Svg;
using namespace limitdocuments;
using Message = QZeSvgTinyDocument::Message;

namespace {

/// Where the limited thing shows, in a drawing of 100 × 100.
const QPoint probe(75, 25);
/// A square that has nothing to do with any limit.
const QPoint beside(2, 97);

bool has(const QVector<Message> &messages, Message::Code code)
{
    return std::any_of(messages.begin(), messages.end(),
                       [code](const Message &message) { return message.code == code; });
}

QByteArray contentOf(const char *path)
{
    QFile file(QStringLiteral(SOURCE_DIR) + path);
    file.open(QIODevice::ReadOnly);
    return file.readAll();
}

/// The value of "16 * 1024 * 1024" and the like.
double product(const QString &text)
{
    double result = 1;
    for (const QString &factor : support::listed(text.split('*')))
        result *= factor.toDouble();
    return result;
}

struct Limit
{
    double value;
    QString code;
};

/// Rows of tables that name a constant: "| what | `name` | value | beyond | code |" or "| `name` | value | what |".
QMap<QString, Limit> documentedLimits()
{
    QMap<QString, Limit> limits;
    const QStringList lines =
        QString::fromUtf8(contentOf("/docs/svg-support.md")).section("## Limits", 1).split('\n');
    static const QRegularExpression name("^`(\\w+)`$");
    for (const QString &line : lines) {
        QStringList cells = line.split('|');
        for (QString &cell : cells)
            cell = cell.trimmed();
        for (int i = 1; i <= 2 && i + 1 < cells.size(); ++i) {
            const QRegularExpressionMatch match = name.match(cells.at(i));
            if (match.hasMatch())
                limits[match.captured(1)] = {cells.at(i + 1).toDouble(), i == 2 ? cells.value(5) : QString()};
        }
    }
    return limits;
}

/// Matches of a pattern with two groups in a file.
QMap<QString, QString> matches(const char *path, const char *pattern)
{
    QMap<QString, QString> found;
    auto all = QRegularExpression(pattern).globalMatch(QString::fromUtf8(contentOf(path)));
    while (all.hasNext()) {
        const QRegularExpressionMatch match = all.next();
        found[match.captured(1)] = match.captured(2);
    }
    return found;
}

} // namespace

class TestLimits : public QObject
{
    Q_OBJECT

private slots:
    void drawUpToTheLimit_data();
    void drawUpToTheLimit();
    void whatComesLateInALongDrawingLooksTheSame();
    void pixelsOpenAtATimeAreLimited();
    void eventsOfAnimationsAreLimited();
    void pathsOfMotionsAreLimited();
    void animatedAttributesOfAnElementAreLimited();
    void messagesNameTheElement();
    void firstOfEveryKindIsKeptAmongManyMessages();
    void messagesOfADrawingGoWhenItsCauseGoes();
    void aRootWithTooManyAttributesIsRefused();
    void namespacesInForceAreLimited();
    void whatStandsBeforeTooManyNamespacesIsDrawn();
    void namespacesOfWhatIsLeftOutCount();
    void everyLimitIsDocumented();
    void documentedCodesExist();
    void noReferenceToAFileIsFollowed();
};

void addRow(const char *name, Message::Code code, const QString &within, const QString &beyond, bool shown = false)
{
    QTest::newRow(name) << int(code) << within << beyond << shown;
}

void addFontRows()
{
    const auto add = [](const char *name, const QString &within, const QString &beyond) {
        addRow(name, Message::ListTooLong, within, beyond, true);
    };
    const QString font = "<font><font-face font-family='f#N'/></font>";
    add("fonts", numbered(font, Limits::fonts) + rect(), numbered(font, Limits::fonts + 1) + rect());
    add("pairs of kerning", kernedPairs(), kernedPairs("<hkern k='1' g1='a0' g2='c'/>"));
    add("the same pair of kerning again", kernedPairs(), kernedPairs("<vkern k='1' g1='a0' g2='b0'/>"));
    add("kerning with nothing", kernedWithNothing(Limits::kerningPairs - 1),
        kernedWithNothing(Limits::kerningPairs));
    const QString glyph = "<glyph unicode='a'/>";
    add("glyphs of a character", fontWith(glyph.repeated(Limits::glyphsOfCharacter)),
        fontWith(glyph.repeated(Limits::glyphsOfCharacter + 1)));
    add("characters of a glyph", glyphWith("unicode='" + QString(Limits::glyphCharacters, 'b') + "'"),
        glyphWith("unicode='" + QString(Limits::glyphCharacters + 1, 'b') + "'"));
    add("languages of a glyph", glyphWith("lang='" + commas("en", Limits::glyphLanguages) + "'"),
        glyphWith("lang='" + commas("en", Limits::glyphLanguages + 1) + "'"));
    add("names of a glyph", glyphWith("glyph-name='" + commas("n", Limits::glyphNames) + "'"),
        glyphWith("glyph-name='" + commas("n", Limits::glyphNames + 1) + "'"));
    add("characters of a glyph's names",
        glyphWith("glyph-name='" + QString(Limits::glyphListCharacters, 'n') + "'"),
        glyphWith("glyph-name='" + QString(Limits::glyphListCharacters + 1, 'n') + "'"));
    const QString dot = "<rect width='1' height='1'/>";
    add("shapes of a glyph", glyphWith("unicode='b'", dot.repeated(Limits::glyphShapes)),
        glyphWith("unicode='b'", dot.repeated(Limits::glyphShapes + 1)));
    const auto weights = [](int characters) {
        return fontWith("<glyph unicode='a'/>", "font-weight='" + QString(characters - 3, ' ') + "400'");
    };
    add("weights of a font", weights(Limits::glyphListCharacters), weights(Limits::glyphListCharacters + 1));
    const auto families = [](const QString &list) {
        return "<font><font-face font-family='" + list + "'/></font>" + rect();
    };
    add("families of a font", families(commas("f", Limits::listedFamilies)),
        families(commas("f", Limits::listedFamilies + 1)));
    const auto asked = [](const QString &list) { return rect("fill='#0f0' font-family='" + list + "'"); };
    add("families of a text", asked(commas("f", Limits::listedFamilies)),
        asked(commas("f", Limits::listedFamilies + 1)));
    add("characters of families", asked(QString(Limits::familyCharacters, 'f')),
        asked(QString(Limits::familyCharacters + 1, 'f')));
}

void TestLimits::drawUpToTheLimit_data()
{
    QTest::addColumn<int>("code");
    QTest::addColumn<QString>("within");
    QTest::addColumn<QString>("beyond");
    QTest::addColumn<bool>("shown");
    // The root is one level more, and the root and the square beside it are two elements more.
    addRow("depth", Message::NestedTooDeep, nested("<g>", "</g>", Limits::depth - 2, rect()),
           nested("<g>", "</g>", Limits::depth - 1, rect()));
    addRow("elements", Message::TooManyElements, QString("<g/>").repeated(Limits::elements - 3) + rect(),
           QString("<g/>").repeated(Limits::elements - 2) + rect());
    addRow("attributes", Message::TooManyAttributes, rect("fill='#0f0'" + attributes(Limits::attributes - 3)),
           rect("fill='#0f0'" + attributes(Limits::attributes - 2)));
    addRow("segments", Message::TooManySegments, pathOf(Limits::pathSegments), pathOf(Limits::pathSegments + 1));
    addRow("points", Message::TooManySegments, pointsOf(Limits::pathSegments + 1),
           pointsOf(Limits::pathSegments + 2));
    addRow("gradient stops", Message::TooManyGradientStops, gradientOf(Limits::gradientStops),
           gradientOf(Limits::gradientStops + 1));
    addRow("gradient references", Message::GradientChainTooLong, gradientChain(Limits::gradientReferences),
           gradientChain(Limits::gradientReferences + 1));
    addRow("style rules", Message::TooManyStyleRules, rulesOf(Limits::styleRules), rulesOf(Limits::styleRules + 1));
    addRow("selector steps", Message::TooManySelectorSteps, selectorsOf(Limits::leastSelectorSteps - 1),
           selectorsOf(Limits::leastSelectorSteps + 1));
    addRow("classes", Message::TooManySelectorSteps, classesOf(Limits::classes), classesOf(Limits::classes + 1));
    addRow("patterns", Message::TooManyPatterns, patternsOf(Limits::patterns), patternsOf(Limits::patterns + 1));
    const int largePatterns = int(Limits::patternsPixels / Limits::patternPixels);
    addRow("pixels of patterns", Message::TooManyPatterns, largePatternsOf(largePatterns),
           largePatternsOf(largePatterns + 1));
    addRow("depth of use", Message::UseTooDeep, useChain(Limits::useDepth), useChain(Limits::useDepth + 1));
    // A group of 999 and what is in it are a thousand, the last one is one more.
    const QString thousand = QString("<g/>").repeated(999);
    addRow("references", Message::TooManyReferences, usesOf(Limits::useInstances / 1000 - 1, thousand),
           usesOf(Limits::useInstances / 1000, thousand));
    const QString longPath = "<path fill='none' d='M0 0" + QString("h1h-1").repeated(4999) + "'/>";
    const int longPaths = Limits::usedOutlineElements / 9999;
    addRow("outlines of references", Message::TooManyReferences, usesOf(longPaths, longPath),
           usesOf(longPaths + 1, longPath));
    const QString wordy = "<g data-x='" + QString(100000, 'x') + "'/>";
    addRow("attributes of references", Message::TooManyReferences,
           usesOf(Limits::usedCharacters / 100000 - 1, wordy), usesOf(Limits::usedCharacters / 100000, wordy));
    addRow("characters", Message::TooManyCharacters, textOf(Limits::textCharacters - Limits::charactersOfText),
           textOf(Limits::textCharacters - Limits::charactersOfText + 1), true);
    // Each is two code units.
    const int pictographs =
        (Limits::textCharacters - Limits::charactersOfText) / (2 * Limits::charactersOfPictograph);
    addRow("pictographs", Message::TooManyCharacters, textOf(pictographs, QStringLiteral("\U0001F600")),
           textOf(pictographs + 1, QStringLiteral("\U0001F600")), true);
    addRow("text paths", Message::TooManyTextPaths, textPathsOf(Limits::textPaths),
           textPathsOf(Limits::textPaths + 1), true);
    addRow("text references", Message::TooManyCharacters, trefsOf(Limits::trefs), trefsOf(Limits::trefs + 1), true);
    addRow("elements of a text path", Message::TextPathTooLong, textPathOf(Limits::textPathElements),
           textPathOf(Limits::textPathElements + 1), true);
    addRow("text lengths", Message::TooManyTextLengths, textLengthsOf(Limits::textLengths),
           textLengthsOf(Limits::textLengths + 1), true);
    addRow("outlines of fonts", Message::TooManyCharacters, glyphsOf(Limits::fontOutlineElements / 1000),
           glyphsOf(Limits::fontOutlineElements / 1000 + 1), true);
    addRow("transform", Message::TransformTooLarge, scaled(Limits::transformEntry),
           scaled(2 * Limits::transformEntry));
    addRow("dashes", Message::TooManyDashes, dashesOf(Limits::dashEntries), dashesOf(Limits::dashEntries + 2),
           true);
    addRow("effects in effects", Message::EffectsTooDeep, clipChain(Limits::effectDepth),
           clipChain(Limits::effectDepth + 1), true);
    // 50 groups visit 50 times all rectangles, and 50 + 49 + ... + 1 groups.
    addRow("bounds", Message::TooManyBoundsVisits, measured(50, (Limits::boundsVisits - 1275) / 50),
           measured(50, (Limits::boundsVisits - 1275) / 50 + 1), true);
    // The last one may take what is left and more than that is not asked.
    const int layers = int(Limits::layerPixels / (100 * 94 + Limits::layerOverhead)) + 1;
    addRow("layers", Message::TooManyLayerPixels, isolated(layers - 1), isolated(layers + 1));
    addRow("layers in layers", Message::TooManyLayerPixels, deeplyIsolated(Limits::layerDepth),
           deeplyIsolated(Limits::layerDepth + 1));
    addRow("filter primitives", Message::TooManyFilterPrimitives, filterOf(Limits::filterPrimitives),
           filterOf(Limits::filterPrimitives + 1));
    addRow("pixels shown", Message::TooManyImagePixels, imageShown(Limits::shownImagePixels / 2048 / 2048),
           imageShown(Limits::shownImagePixels / 2048 / 2048 + 1), true);
    addRow("documents in images", Message::ImagesTooDeep, documentsInImages(Limits::imageDepth),
           documentsInImages(Limits::imageDepth + 1));
    addRow("animation values", Message::TooManyAnimationValues, values(Limits::animationValues),
           values(Limits::animationValues + 1), true);
    addRow("animation begins", Message::TooManyAnimationConditions, begins(Limits::animationConditions),
           begins(Limits::animationConditions + 1), true);
    addRow("layers of style sheets", Message::InvalidStyleSheet, layersOf(Limits::styleLayers),
           layersOf(Limits::styleLayers + 1), true);
    addRow("boxes inside each other", Message::TooManyBoundsVisits, boxesInBoxes(Limits::contentDepth),
           boxesInBoxes(Limits::contentDepth + 1), true);
    // The group itself is visited, too.
    addRow("shapes in a box", Message::TooManyBoundsVisits, boxAround(Limits::contentVisits - 1),
           boxAround(Limits::contentVisits), true);
    addRow("text that is referred to", Message::TooManyCharacters, referredText(Limits::trefCharacters),
           referredText(Limits::trefCharacters + 1), true);
    // The line is 80 long.
    addRow("dashes along an outline", Message::TooManyDashes, tinyDashes(80.001 / Limits::dashes),
           tinyDashes(79 / Limits::dashes), true);
    static_assert(Limits::convolutionFactors == 32 * 32);
    addRow("factors of a convolution", Message::ListTooLong, convolved(32, 32), convolved(33, 32), true);
    addFontRows();
    addRow("decorated groups", Message::EffectsTooDeep, underlinedGroups(Limits::decoratingGroups),
           underlinedGroups(Limits::decoratingGroups + 1), true);
    addRow("distorted strokes", Message::TooManyStrokeElements, skewedStrokes(1), skewedStrokes(150), true);
}

void TestLimits::drawUpToTheLimit()
{
    QFETCH(int, code);
    QFETCH(QString, within);
    QFETCH(QString, beyond);
    QFETCH(bool, shown);
    const QString square = "<rect y='95' width='5' height='5' style='fill:#00f'/>";
    for (const bool isBeyond : {false, true}) {
        const DocumentPointer document = loadContent(square + (isBeyond ? beyond : within));
        QVERIFY(document);
        const QImage image = drawn(*document);
        QCOMPARE(image.pixelColor(beside), QColor(0, 0, 255));
        const bool isGreen = image.pixelColor(probe) == QColor(0, 255, 0);
        QCOMPARE(isGreen, isBeyond ? shown : true);
        QCOMPARE(has(document->messages(), Message::Code(code)), isBeyond);
    }
}

// Outlines beyond those that are kept mapped are mapped when they are painted.
void TestLimits::whatComesLateInALongDrawingLooksTheSame()
{
    const QString last =
        "<g transform='rotate(20)skewX(9)'><circle cx='40' cy='30' r='20' fill='#0f0' stroke='red' "
        "stroke-dasharray='3 1'/></g><clipPath id='c'><circle cx='70' cy='70' r='20'/></clipPath>"
        "<rect x='50' y='50' width='50' height='50' clip-path='url(#c)' fill='url(#g)'/>"
        "<linearGradient id='g'><stop stop-color='red'/><stop offset='1'/></linearGradient>"
        "<path d='M5 90q20-30 40 0' fill='none' stroke='#00f' vector-effect='non-scaling-stroke'/>";
    const QString many = QString("<path d='M0 0h1v1z'/>").repeated(Limits::keptElements / 4);
    const DocumentPointer document = loadContent(many + last);
    const QImage expected = drawnContent("<path d='M0 0h1v1z'/>" + last);
    const QImage image = drawn(*document);
    QVERIFY(document->messages().isEmpty());
    // The many lie in the first pixel, on top of each other.
    const QRect beside(1, 1, 99, 99);
    QCOMPARE(image.copy(beside), expected.copy(beside));
}

// Groups inside each other, each a picture of 941 × 941 pixels: 940 and one for smoothing.
void TestLimits::pixelsOpenAtATimeAreLimited()
{
    const int fitting = int((Limits::openLayerPixels + Limits::openLayerTargets * 1000 * 1000) / (941.0 * 941));
    for (const bool isBeyond : {false, true}) {
        const DocumentPointer document = loadContent(deeplyIsolated(isBeyond ? fitting + 1 : fitting));
        const QImage image = drawn(*document, QSize(1000, 1000));
        QCOMPARE(image.pixelColor(10 * probe) == QColor(0, 255, 0), !isBeyond);
        QCOMPARE(has(document->messages(), Message::TooManyLayerPixels), isBeyond);
    }
}

// The last of all events turns a square green.
void TestLimits::eventsOfAnimationsAreLimited()
{
    const QString square =
        "<rect width='94' height='94'><set attributeName='fill' to='#0f0' begin='2000s'/></rect>";
    const int mostBegins = Limits::animationConditions;
    const int animations = Limits::animationEvents / (2 * mostBegins);
    const QString others = recurring(mostBegins).repeated(animations - 1);
    for (const bool isBeyond : {false, true}) {
        const DocumentPointer document =
            loadContent(square + others + recurring(mostBegins - 1) + (isBeyond ? recurring(2) : QString()));
        document->setAnimationTime(2500);
        QCOMPARE(drawn(*document).pixelColor(probe) == QColor(0, 255, 0), !isBeyond);
        QCOMPARE(has(document->messages(), Message::TooManyAnimationEvents), isBeyond);
    }
}

// A square that stands outside is moved into the picture.
void TestLimits::pathsOfMotionsAreLimited()
{
    const int last = Limits::motionElements - 4 * 20000;
    for (const bool isBeyond : {false, true}) {
        const DocumentPointer document =
            loadContent(motion(20000).repeated(4) + motion(isBeyond ? last + 1 : last).replace("#0f0", "#00f"));
        document->setAnimationTime(0);
        QCOMPARE(drawn(*document).pixelColor(probe), isBeyond ? QColor(0, 255, 0) : QColor(0, 0, 255));
        QCOMPARE(has(document->messages(), Message::MotionPathsTooLong), isBeyond);
    }
}

// The last attribute that is animated turns a square green.
void TestLimits::animatedAttributesOfAnElementAreLimited()
{
    for (const bool isBeyond : {false, true}) {
        QString animations;
        for (int i = 0; i < Limits::attributes - (isBeyond ? 0 : 1); ++i)
            animations += QString("<set attributeName='a%1' to='9'/>").arg(i);
        const DocumentPointer document = loadContent("<rect width='94' height='94'>" + animations +
                                                     "<set attributeName='fill' to='#0f0'/></rect>");
        document->setAnimationTime(0);
        QCOMPARE(drawn(*document).pixelColor(probe) == QColor(0, 255, 0), !isBeyond);
        QCOMPARE(has(document->messages(), Message::TooManyAttributes), isBeyond);
    }
}

void TestLimits::messagesNameTheElement()
{
    const DocumentPointer document =
        loadContent("\n" + pathOf(Limits::pathSegments + 1).replace("<path", "<path id='long'"));
    const QVector<Message> messages = document->messages();
    QCOMPARE(messages.size(), 1);
    QCOMPARE(messages.first().severity, Message::Warning);
    QCOMPARE(messages.first().code, Message::TooManySegments);
    QCOMPARE(messages.first().elementId, QStringLiteral("long"));
    QCOMPARE(messages.first().line, 2);
}

void TestLimits::firstOfEveryKindIsKeptAmongManyMessages()
{
    const DocumentPointer document = loadContent(QString("<rect fill='nonsense'/>").repeated(500) +
                                                 pathOf(Limits::pathSegments + 1).repeated(2));
    QCOMPARE(document->messages().size(), Limits::messages + 1);
    QCOMPARE(document->messages().constLast().code, Message::TooManySegments);
}

void TestLimits::messagesOfADrawingGoWhenItsCauseGoes()
{
    const DocumentPointer document =
        loadContent(filterOf(Limits::filterPrimitives + 1).replace("94' fill", "94' id='r' fill"));
    QVERIFY(document->messages().isEmpty());
    drawn(*document);
    QVERIFY(has(document->messages(), Message::TooManyFilterPrimitives));
    document->namedNode("r")->setAttribute("filter", QString());
    drawn(*document);
    QVERIFY(document->messages().isEmpty());
}

void TestLimits::aRootWithTooManyAttributesIsRefused()
{
    QVector<Message> messages;
    QVERIFY(!QZeSvgTinyDocument::load(("<svg" + attributes(Limits::attributes + 1) + "/>").toUtf8(), &messages));
    QCOMPARE(messages.last().code, Message::TooManyAttributes);
    QCOMPARE(messages.last().severity, Message::Error);
    QVERIFY(DocumentPointer(QZeSvgTinyDocument::load(("<svg" + attributes(Limits::attributes) + "/>").toUtf8())));
}

void TestLimits::namespacesInForceAreLimited()
{
    QVector<Message> messages;
    const QString open = "<svg" + numbered(" xmlns:n#N='urn:n'", Limits::namespaceDeclarations);
    QVERIFY(DocumentPointer(QZeSvgTinyDocument::load((open + "/>").toUtf8(), &messages)));
    QVERIFY(messages.isEmpty());
    QVERIFY(!QZeSvgTinyDocument::load((open + " xmlns:m='urn:m'/>").toUtf8(), &messages));
    QCOMPARE(messages.last().code, Message::TooManyNamespaces);
}

// The root has two of its own.
void TestLimits::whatStandsBeforeTooManyNamespacesIsDrawn()
{
    const QString svg = "<svg xmlns='http://www.w3.org/2000/svg'>";
    for (const bool isBeyond : {false, true}) {
        const int inner = Limits::namespaceDeclarations - (isBeyond ? 1 : 2);
        const DocumentPointer document = loadContent(rect("fill='#00f'") + nested(svg, "</svg>", inner, rect()));
        QVERIFY(document);
        QCOMPARE(drawn(*document).pixelColor(probe), isBeyond ? QColor(0, 0, 255) : QColor(0, 255, 0));
        QCOMPARE(has(document->messages(), Message::TooManyNamespaces), isBeyond);
    }
}

void TestLimits::namespacesOfWhatIsLeftOutCount()
{
    const QString deep =
        nested("<g>", "</g>", Limits::depth,
               nested("<g xmlns='http://www.w3.org/2000/svg'>", "</g>", Limits::namespaceDeclarations, QString()));
    const DocumentPointer document = loadContent(rect() + deep);
    QCOMPARE(drawn(*document).pixelColor(probe), QColor(0, 255, 0));
    QVERIFY(has(document->messages(), Message::NestedTooDeep));
    QVERIFY(has(document->messages(), Message::TooManyNamespaces));
}

void TestLimits::everyLimitIsDocumented()
{
    const QMap<QString, Limit> documented = documentedLimits();
    const QMap<QString, QString> constants =
        matches("/reference/svgbase/grammar/inputlimits.h", "constexpr \\w+ (\\w+) = ([^;]+);");
    QVERIFY(constants.size() > 50);
    QCOMPARE(documented.keys(), constants.keys());
    for (auto at = constants.begin(); at != constants.end(); ++at)
        QVERIFY2(documented.value(at.key()).value == product(at.value()), qPrintable(at.key()));
}

void TestLimits::documentedCodesExist()
{
    const QMap<QString, QString> codes = matches("/src/host/svgbase/qzesvgtinydocument.h", "([A-Z]\\w+) = (\\d+),");
    QSet<QString> used;
    for (const Limit &limit : support::listed(documentedLimits())) {
        if (!limit.code.isEmpty())
            used.insert(limit.code);
        QVERIFY2(limit.code.isEmpty() || codes.contains(limit.code), qPrintable(limit.code));
    }
    for (auto at = codes.begin(); at != codes.end(); ++at)
        QVERIFY2(at.value().toInt() < Message::TextTooLong || used.contains(at.key()), qPrintable(at.key()));
}

void TestLimits::noReferenceToAFileIsFollowed()
{
    QTemporaryDir folder;
    QImage red(10, 10, QImage::Format_RGB32);
    red.fill(Qt::red);
    QVERIFY(red.save(folder.filePath("red.png")));
    const QString path = folder.filePath("own.svg");
    const QString content =
        "<image width='50' height='50' href='%1'/><use href='%2#r'/><filter id='f'><feImage href='%1'/>"
        "</filter><rect x='50' width='50' height='50' fill='url(%2#g)' filter='url(%2#f)'/>"
        "<style>@import url('%2');</style>"
        "<linearGradient id='g'><stop stop-color='red'/></linearGradient>";
    for (const QString &picture : {folder.filePath("red.png"), QString("red.png"), QString("own.svg"), path}) {
        for (const QString &start : {QString(), QString("file://")}) {
            const QByteArray text = svgText(content.arg(start + picture, start + path));
            QFile file(path);
            QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
            file.close();
            const QString before = QDir::currentPath();
            QDir::setCurrent(folder.path());
            const DocumentPointer document(QZeSvgTinyDocument::load(text));
            const QImage image = drawn(*document);
            QDir::setCurrent(before);
            QCOMPARE(image.pixelColor(25, 25).alpha(), 0);
            QVERIFY(image.pixelColor(75, 25) != QColor(Qt::red));
            QVERIFY(has(document->messages(), Message::ForeignReference));
        }
    }
}

QTEST_MAIN(TestLimits)
#include "test_limits.moc"
