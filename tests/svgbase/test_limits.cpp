// Every limit twice: what is just within it is drawn without a word, of what is just beyond it something is left
// out with a message, and the rest is drawn.

#include "inputlimits.h"
#include "svgdrawing.h"

#include <QtCore/QBuffer>
#include <QtCore/QFile>
#include <QtCore/QRegularExpression>

#include <QtTest>

using namespace Svg;
using Message = QZeSvgTinyDocument::Message;

namespace {

/// Where the limited thing shows, in a drawing of 100 × 100.
const QPoint probe(75, 25);
/// A square that has nothing to do with any limit.
const QPoint beside(2, 97);

QString rect(const QString &attributes = "fill='#0f0'")
{
    return "<rect width='94' height='94' " + attributes + "/>";
}

QString nested(const QString &open, const QString &close, int levels, const QString &content)
{
    return open.repeated(levels) + content + close.repeated(levels);
}

QString numbered(const QString &text, int count, int first = 0)
{
    QString result;
    for (int i = first; i < first + count; ++i)
        result += QString(text).replace("#N", QString::number(i)).replace("#P", QString::number(i - 1));
    return result;
}

QString attributes(int count)
{
    return numbered(" a#N='1'", count);
}

QString pathOf(int segments)
{
    // The last one makes a triangle of the line.
    return "<path fill='#0f0' d='M0 0" + QString("L0 0").repeated(segments - 3) + "H100V100'/>";
}

QString pointsOf(int points)
{
    return "<polygon fill='#0f0' points='" + QString("0,0 ").repeated(points - 2) + "100,0 100,100'/>";
}

// The last stop is what a gradient without length shows.
QString gradientOf(int stops)
{
    return "<linearGradient id='g' x2='0'>" + QString("<stop stop-color='red'/>").repeated(stops - 1) +
           "<stop stop-color='#0f0'/></linearGradient>" + rect("fill='url(#g)'");
}

QString gradientChain(int gradients)
{
    return numbered("<linearGradient id='g#N' href='#g#P'/>", gradients - 1, 1) +
           "<linearGradient id='g0'><stop stop-color='#0f0'/></linearGradient>" +
           rect(QString("fill='url(#g%1)'").arg(gradients - 1));
}

QString dashesOf(int entries)
{
    return "<path stroke='#0f0' stroke-width='50' d='M0 25H94' stroke-dasharray='200 0 " +
           QString("1 1 ").repeated((entries - 2) / 2) + "'/>";
}

QString rulesOf(int rules)
{
    return "<style>" + QString(".x{fill:red}").repeated(rules - 1) + "#p{fill:#0f0}</style>" + rect("id='p'");
}

// More elements than selectorSteps / leastSelectorSteps leave each of them the least number of steps.
QString selectorsOf(int selectors)
{
    return "<style>" + QString("rect[a]{fill:red}").repeated(selectors - 1) + "rect{fill:#0f0}</style>" + rect("") +
           QString("<desc/>").repeated(Limits::selectorSteps / Limits::leastSelectorSteps);
}

QString classesOf(int classes)
{
    return "<style>.c{fill:#0f0}</style>" + rect("class='" + QString("x ").repeated(classes - 1) + "c'");
}

/// One that begins and ends every second.
QString recurring(int times)
{
    return "<rect><animate attributeName='x' to='1' dur='.5s' begin='" + numbered("#Ns;", times - 1) +
           QString("%1s'/></rect>").arg(times - 1);
}

QString motion(int elements)
{
    return "<rect x='-200' width='94' height='94' fill='#0f0'><animateMotion dur='9s' path='M200 0" +
           QString("h1h-1").repeated((elements - 1) / 2) + (elements % 2 ? "" : "h1") + "'/></rect>";
}

QString patternsOf(int patterns)
{
    return numbered("<pattern id='p#N' width='1' height='1'><rect width='94' height='94' fill='#0f0'/></pattern>"
                    "<rect width='.1' height='.1' fill='url(#p#N)'/>",
                    patterns - 1) +
           "<pattern id='p' width='1' height='1'><rect width='94' height='94' fill='#0f0'/></pattern>" +
           rect("fill='url(#p)'");
}

QString largePatternsOf(int patterns)
{
    return "<g transform='scale(1000)'>" +
           numbered("<pattern id='p#N' width='100' height='100' patternUnits='userSpaceOnUse'>"
                    "<rect width='100' height='100' fill='#0f0'/></pattern>",
                    patterns) +
           numbered("<rect x='-9' width='.1' height='.1' fill='url(#p#N)'/>", patterns - 1) +
           QString("<rect width='.094' height='.094' fill='url(#p%1)'/></g>").arg(patterns - 1);
}

QString useChain(int uses)
{
    return "<defs><rect id='u0' width='94' height='94' fill='#0f0'/>" +
           numbered("<use id='u#N' href='#u#P'/>", uses - 1, 1) +
           QString("</defs><use href='#u%1'/>").arg(uses - 1);
}

QString usesOf(int groups, const QString &used)
{
    return "<defs><g id='u'>" + used + "</g>" + rect("id='last' fill='#0f0'") + "</defs>" +
           QString("<use href='#u'/>").repeated(groups) + "<use href='#last'/>";
}

QString textOf(int characters)
{
    return "<text x='9' y='9' font-size='.001'>" + QString(characters, 'i') + "</text>" + rect();
}

QString textPathsOf(int paths)
{
    return "<text font-size='.001'>" + QString("<textPath path='M0 0H9'>i</textPath>").repeated(paths) + "</text>" +
           rect();
}

QString textPathOf(int elements)
{
    return "<text font-size='.001'><textPath path='M0 0" + QString("l1 1").repeated(elements - 1) +
           "'>i</textPath></text>" + rect();
}

// Each letter of the font is a line with a thousand segments.
QString glyphsOf(int characters)
{
    return "<font horiz-adv-x='1'><font-face font-family='Long'/><glyph unicode='a' d='M0 0" +
           QString("h1").repeated(999) + "'/></font><text y='9' font-size='.001' font-family='Long'>" +
           QString(characters, 'a') + "</text>" + rect();
}

QString trefsOf(int trefs)
{
    return "<text id='t' font-size='.001'>i</text>" +
           QString("<text font-size='.001'><tref href='#t'/></text>").repeated(trefs) + rect();
}

QString textLengthsOf(int lengths)
{
    return "<text font-size='.001'>" + QString("<tspan textLength='1'>ii</tspan>").repeated(lengths) + "</text>" +
           rect();
}

QString scaled(double scale)
{
    return QString("<g transform='scale(%1)'><rect width='%2' height='%2' fill='#0f0'/></g>")
        .arg(scale, 0, 'g', 17)
        .arg(94 / scale, 0, 'g', 17);
}

QString clipChain(int clips)
{
    return "<clipPath id='c0'><rect width='94' height='94'/></clipPath>" +
           numbered("<clipPath id='c#N' clip-path='url(#c#P)'><rect width='94' height='94'/></clipPath>", clips - 1,
                    1) +
           rect(QString("fill='#0f0' clip-path='url(#c%1)'").arg(clips - 1));
}

// Each group measures all that is below it.
QString measured(int groups, int rects)
{
    return "<clipPath id='c' clipPathUnits='objectBoundingBox'><rect width='1' height='1'/></clipPath>" +
           nested("<g clip-path='url(#c)'>", "</g>", groups,
                  QString("<rect width='94' height='94'/>").repeated(rects)) +
           rect();
}

QString isolated(int groups)
{
    return QString("<g style='isolation:isolate'><rect width='100' height='93'/></g>").repeated(groups - 1) +
           "<g style='isolation:isolate'>" + rect() + "</g>";
}

QString deeplyIsolated(int levels)
{
    return nested("<g style='isolation:isolate'>", "</g>", levels, rect());
}

QString filterOf(int primitives)
{
    return "<filter id='f' x='0' y='0' width='1' height='1'>" +
           QString("<feFlood flood-color='#0f0'/>").repeated(primitives) + "</filter>" +
           rect("fill='red' filter='url(#f)'");
}

QString picture(const QImage &image)
{
    QBuffer buffer;
    image.save(&buffer, "PNG");
    return "data:image/png;base64," + QString::fromLatin1(buffer.data().toBase64());
}

QString imageShown(int times)
{
    QImage image(2048, 2048, QImage::Format_Grayscale8);
    image.fill(Qt::white);
    return "<defs><image id='i' width='.1' height='.1' href='" + picture(image) + "'/></defs>" +
           QString("<use href='#i'/>").repeated(times) + rect();
}

QString documentsInImages(int levels)
{
    QByteArray text = svgText(rect());
    for (int i = 1; i < levels; ++i)
        text =
            svgText("<image width='100' height='100' href='data:image/svg+xml;base64," + text.toBase64() + "'/>");
    return "<image width='100' height='100' href='data:image/svg+xml;base64," + text.toBase64() + "'/>";
}

QString animated(const QString &attributes)
{
    return "<rect width='94' height='94' fill='#0f0'><animate attributeName='x' dur='9s' " + attributes +
           "/></rect>";
}

QString values(int count)
{
    return animated("values='" + QString("0;").repeated(count - 1) + "0'");
}

QString begins(int count)
{
    return animated("to='0' begin='" + QString("1s;").repeated(count - 1) + "2s'");
}

QString skewedStrokes(int strokes)
{
    return "<g transform='skewX(1e-3)' fill='none'>" +
           QString("<path stroke='red' stroke-width='.01' stroke-dasharray='.01' d='M0 0H99'/>").repeated(strokes) +
           "</g>" + rect();
}

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
    for (const QString &factor : text.split('*'))
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
    void messagesNameTheElement();
    void firstOfEveryKindIsKeptAmongManyMessages();
    void messagesOfADrawingGoWhenItsCauseGoes();
    void aRootWithTooManyAttributesIsRefused();
    void namespacesInForceAreLimited();
    void everyLimitIsDocumented();
    void documentedCodesExist();
    void noReferenceToAFileIsFollowed();
};

void addRow(const char *name, Message::Code code, const QString &within, const QString &beyond, bool shown = false)
{
    QTest::newRow(name) << int(code) << within << beyond << shown;
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
    addRow("characters", Message::TooManyCharacters, textOf(Limits::textCharacters),
           textOf(Limits::textCharacters + 1), true);
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
           clipChain(Limits::effectDepth + 1));
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
    const int fitting = int(Limits::openLayerPixels / (941.0 * 941));
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
    QCOMPARE(document->messages().last().code, Message::TooManySegments);
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
    QVERIFY(DocumentPointer(QZeSvgTinyDocument::load((open + "/>").toUtf8())));
    QVERIFY(!QZeSvgTinyDocument::load((open + "><g xmlns:m='urn:m'/></svg>").toUtf8(), &messages));
    QCOMPARE(messages.last().code, Message::TooManyNamespaces);
}

void TestLimits::everyLimitIsDocumented()
{
    const QMap<QString, Limit> documented = documentedLimits();
    const QMap<QString, QString> constants =
        matches("/reference/svgbase/inputlimits.h", "constexpr \\w+ (\\w+) = ([^;]+);");
    QVERIFY(constants.size() > 50);
    QCOMPARE(documented.keys(), constants.keys());
    for (auto at = constants.begin(); at != constants.end(); ++at)
        QVERIFY2(documented.value(at.key()).value == product(at.value()), qPrintable(at.key()));
}

void TestLimits::documentedCodesExist()
{
    const QMap<QString, QString> codes = matches("/src/host/svgbase/qzesvgtinydocument.h", "([A-Z]\\w+) = (\\d+),");
    QSet<QString> used;
    for (const Limit &limit : documentedLimits()) {
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
