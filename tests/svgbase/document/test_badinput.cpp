#include "grammar/inputlimits.h"
#include "svgbase/svgdrawing.h"
#include "tree/tagscanner.h"

#include <QtTest>

using namespace Svg;
using Message = QZeSvgTinyDocument::Message;

namespace {

/// Loads, measures, changes and draws; what a hostile text would have to survive.
void exercise(const QByteArray &text)
{
    const DocumentPointer document(QZeSvgTinyDocument::load(text));
    if (!document)
        return;
    drawn(*document, QSize(64, 64), true);
    document->transformedBounds();
    document->setAllStrokeColor(Qt::red);
    document->setAllStrokeWidth(3);
    document->setAllStrokeStyle(Qt::DashLine);
    drawn(*document, QSize(64, 48), true);
}

QString failure(const QByteArray &text)
{
    QVector<Message> messages;
    const DocumentPointer document(QZeSvgTinyDocument::load(text, &messages));
    return document || messages.isEmpty() ? QString() : messages.last().text;
}

} // namespace

class TestBadInput : public QObject
{
    Q_OBJECT

private slots:
    void entityBombIsRefused();
    void externalEntitiesAreNotRead();
    void hundredThousandNestedGroupsAreSurvived();
    void textLengthIsLimited();
    void textLengthIsLimitedInEveryEncoding();
    void attributeCountIsLimitedInsideEntities();
    void attributesInCommentsAndDataDoNotCount();
    void crowdedTagsAreFoundBehindWhatLooksLikeQuotes();
    void crowdedTagsWithoutSpacesStayInTheirRoom();
    void crowdedTagsKeepTheLinesOfWhatFollows();
    void namespaceDeclarationsAreLimited();
    void tenMegabytesOfPathDataAreCut();
    void manyPointsAreCut();
    void longTextIsCut();
    void oddNumbersEverywhere_data();
    void oddNumbersEverywhere();
    void selfReferences_data();
    void selfReferences();
    void multiplyingUseIsBounded();
    void deeplyChainedUseIsBounded();
    void longGradientChainsAreBounded();
    void tinyDashesAreDrawnSolid();
    void outlinesFarSmallerThanTheirPenAreStroked();
    void nestedLayersAreBounded();
    void manyWideLayersAreBounded();
    void hugeCoordinatesAreSurvived();
    void manySiblingsAreDrawn();
    void messagesAreLimited();
    void whatAnAnimationFillsIsNoPaint();
    void turnedFiltersOfAllSizesAreSurvived();
    void clippedMitersOfOddPathsAreSurvived();
};

void TestBadInput::entityBombIsRefused()
{
    QByteArray text = "<!DOCTYPE svg [<!ENTITY a0 'aaaaaaaaaa'>";
    for (int i = 1; i < 12; ++i) {
        const QByteArray below = "&a" + QByteArray::number(i - 1) + ";";
        text += "<!ENTITY a" + QByteArray::number(i) + " '" + below.repeated(10) + "'>";
    }
    text += "]><svg><text>&a11;</text></svg>";
    QVERIFY(!failure(text).isEmpty());
    QVERIFY(!failure("<!DOCTYPE svg [<!ENTITY a '&b;'><!ENTITY b '&a;'>]><svg>&a;</svg>").isEmpty());
}

void TestBadInput::externalEntitiesAreNotRead()
{
    const DocumentPointer document(
        QZeSvgTinyDocument::load("<!DOCTYPE svg [<!ENTITY file SYSTEM 'file:///etc/passwd'>]><svg><g "
                                 "id='a'><title>&file;</title></g></svg>"));
    if (document)
        QVERIFY(document->namedNode("a")->attribute("title").isEmpty());
}

void TestBadInput::hundredThousandNestedGroupsAreSurvived()
{
    const QByteArray open = QByteArray("<g opacity='.9' transform='scale(1.1)'>").repeated(100000);
    exercise("<svg>" + open + QByteArray("</g>").repeated(100000) + "</svg>");
}

void TestBadInput::textLengthIsLimited()
{
    const QByteArray head = "<svg><!--";
    const QByteArray tail = "--></svg>";
    const int room = Limits::textBytes - head.size() - tail.size();
    QVERIFY(failure(head + QByteArray(room, ' ') + tail).isEmpty());
    QVERIFY(failure(head + QByteArray(room + 1, ' ') + tail).contains(QString::number(Limits::textBytes)));
}

// A letter of one byte takes two in UTF-8, and one of UTF-16 two that would be one.
void TestBadInput::textLengthIsLimitedInEveryEncoding()
{
    const QByteArray head = "<?xml version='1.0' encoding='ISO-8859-1'?><svg><!--";
    const QByteArray tail = "--></svg>";
    const int room = (Limits::textBytes - head.size() - tail.size()) / 2;
    QVERIFY(failure(head + QByteArray(room, '\xfc') + tail).isEmpty());
    QVERIFY(failure(head + QByteArray(room + 1, '\xfc') + tail).contains(QString::number(Limits::textBytes)));
    const auto wide = [](int characters) {
        const QString text = "<svg><!--" + QString(characters - 18, ' ') + "--></svg>";
        return QByteArray(reinterpret_cast<const char *>(text.utf16()), 2 * text.size());
    };
    QVERIFY(failure(wide(Limits::textBytes / 2)).isEmpty());
    QVERIFY(failure(wide(Limits::textBytes / 2 + 1)).contains(QString::number(Limits::textBytes)));
}

void TestBadInput::attributeCountIsLimitedInsideEntities()
{
    QByteArray tag = "<g";
    for (int i = 0; i <= Limits::attributes; ++i)
        tag += " a" + QByteArray::number(i) + "=''";
    const QByteArray text = "<!DOCTYPE svg [<!ENTITY e \"" + tag + "/>\">]><svg>&e;</svg>";
    QVERIFY(!withoutCrowdedTags(text));
    QVERIFY(!failure(text).isEmpty());
}

void TestBadInput::attributesInCommentsAndDataDoNotCount()
{
    const QByteArray many = QByteArray("a='1' ").repeated(300);
    const QByteArray quoted = QByteArray("a=\"1\" ").repeated(300);
    const auto staysAsItIs = [](const QByteArray &text) { return withoutCrowdedTags(text) == text; };
    QVERIFY(staysAsItIs("<svg><!-- <g " + many + "/> --></svg>"));
    QVERIFY(staysAsItIs("<svg><![CDATA[<g " + many + "/>]]></svg>"));
    QVERIFY(staysAsItIs("<?pi <g " + many + "?><svg/>"));
    QVERIFY(staysAsItIs("<!DOCTYPE svg [<!-- ' --> <!ENTITY a \"x\">]><svg/>"));
    QVERIFY(staysAsItIs("<svg><g a='" + quoted));
}

void TestBadInput::crowdedTagsAreFoundBehindWhatLooksLikeQuotes()
{
    const QByteArray crowded = "<g " + QByteArray("a='1' ").repeated(300) + "/></svg>";
    const QByteArrayList starts{"<!DOCTYPE svg [<!-- ' -->]><svg>", "<!DOCTYPE svg [<?pi ' ?>]><svg>",
                                "<!DOCTYPE svg [<!--> ' -->]><svg>"};
    for (const QByteArray &start : starts) {
        const std::optional<QByteArray> thinned = withoutCrowdedTags(start + crowded);
        QVERIFY(thinned);
        QCOMPARE(thinned->size(), start.size() + crowded.size());
        QVERIFY(!thinned->contains("a='1'"));
    }
}

void TestBadInput::crowdedTagsWithoutSpacesStayInTheirRoom()
{
    for (const QByteArray &tag :
         {"<g" + QByteArray("\"\"").repeated(300) + ">", "<" + QByteArray("''").repeated(300) + "/>"}) {
        const std::optional<QByteArray> thinned = withoutCrowdedTags("<svg>" + tag + "</svg>");
        QVERIFY(thinned);
        QCOMPARE(thinned->size(), 5 + tag.size() + 6);
        QVERIFY(thinned->startsWith("<svg><") && thinned->endsWith("></svg>"));
        QVERIFY(thinned->contains(" gliololok-crowded-tag='' "));
        QVERIFY(!failure("<svg>" + tag + "</svg>").isEmpty());
    }
}

void TestBadInput::crowdedTagsKeepTheLinesOfWhatFollows()
{
    const QByteArray crowded = "<g\n" + QByteArray("a=\"\n\"\n").repeated(300) + "/>";
    const QByteArray text = "<svg>\n" + crowded + "\n<rect fill='nonsense'/></svg>";
    QVector<Message> messages;
    const DocumentPointer document(QZeSvgTinyDocument::load(text, &messages));
    QVERIFY(document);
    QCOMPARE(messages.size(), 2);
    QCOMPARE(messages.at(0).code, Message::TooManyAttributes);
    QCOMPARE(messages.at(1).code, Message::InvalidProperty);
    QCOMPARE(messages.at(1).line, 1 + 1 + 600 + 1 + 1);
}

void TestBadInput::namespaceDeclarationsAreLimited()
{
    QByteArray declarations;
    for (int i = 0; i < 65; ++i)
        declarations += " xmlns:a" + QByteArray::number(i) + "='urn:a'";
    QVERIFY(failure("<svg" + declarations + "/>").contains("64"));
    QVERIFY(failure("<svg><g" + declarations + "/></svg>").isEmpty());
    // One after the other they are not in force together.
    QVERIFY(failure("<svg>" + QByteArray("<g xmlns:a='urn:a'/>").repeated(100) + "</svg>").isEmpty());
}

void TestBadInput::tenMegabytesOfPathDataAreCut()
{
    const QByteArray data = QByteArray("l1 1 -1 1").repeated(10 * 1024 * 1024 / 9);
    const QByteArray text = "<svg viewBox='0 0 10 10'><path id='p' stroke='red' d='M0 0" + data + "'/></svg>";
    const DocumentPointer document(QZeSvgTinyDocument::load(text));
    QVERIFY(document);
    QCOMPARE(document->namedNode("p")->path().elementCount(), Limits::pathSegments);
    QCOMPARE(document->messages().size(), 1);
    QCOMPARE(document->messages().constFirst().elementId, QStringLiteral("p"));
    exercise(text);
}

void TestBadInput::manyPointsAreCut()
{
    const QByteArray text = "<svg><polygon id='p' points='" + QByteArray("1,1 2,3 ").repeated(100000) + "'/></svg>";
    const DocumentPointer document(QZeSvgTinyDocument::load(text));
    QVERIFY(document);
    QCOMPARE(document->namedNode("p")->polygon().size(), Limits::pathSegments + 1);
}

void TestBadInput::longTextIsCut()
{
    const QByteArray text = "<svg><text id='t'>" + QByteArray(Limits::textCharacters + 1000, 'i') + "</text></svg>";
    const DocumentPointer document(QZeSvgTinyDocument::load(text));
    QVERIFY(document);
    QCOMPARE(document->messages().size(), 1);
    QVERIFY(!document->namedNode("t")->boundingRect().isEmpty());
}

void TestBadInput::oddNumbersEverywhere_data()
{
    QTest::addColumn<QString>("number");
    for (const char *number : {"1e999", "-1e999", "1e308", "-1e308", "NaN", "inf", "-inf", "1e-999", "", "0", "-0",
                               "-1", "99999999999999999999", "1e", "٣", "%", "1e9", "-1e9"})
        QTest::newRow(number[0] ? number : "empty") << QString::fromUtf8(number);
}

void TestBadInput::oddNumbersEverywhere()
{
    QFETCH(QString, number);
    const QString text = QString(
        "<svg viewBox='0 0 %1 %1' width='%1'><g transform='translate(%1) rotate(%1) scale(%1)' opacity='%1'>"
        "<rect x='%1' y='%1' width='%1' height='%1' rx='%1' ry='%1' stroke='red' stroke-width='%1'/>"
        "<circle cx='%1' cy='%1' r='%1' fill='rgb(%1,%1,%1)' stroke='blue' stroke-dasharray='%1 1'/></g>"
        "<ellipse cx='%1' rx='%1' ry='%1' stroke='red' stroke-miterlimit='%1' stroke-dashoffset='%1'/>"
        "<line x1='%1' y1='5' x2='1' y2='%1' stroke='red' stroke-dasharray='.0001 %1' stroke-width='%1'/>"
        "<polygon points='0 0 %1 %1 5 %1' stroke='red'/>"
        "<path d='M0 0L%1 1A%1 %1 %1 0 1 5 5C%1 %1 1 1 %1 %1z' stroke='red'/>"
        "<linearGradient id='g' x1='%1' y2='%1' gradientTransform='scale(%1)'><stop offset='%1'/>"
        "<stop offset='%1' stop-opacity='%1' stop-color='red'/></linearGradient>"
        "<radialGradient id='h' cx='%1' r='%1' fx='%1' href='#g'/>"
        "<rect width='9' height='9' fill='url(#g)'/><rect width='9' height='9' fill='url(#h)'/>"
        "<text x='%1' dy='%1' font-size='%1' font-weight='%1'>text</text>"
        "<use href='#g' x='%1'/><svg x='%1' width='%1' height='%1' viewBox='0 0 %1 1'><rect width='9'/></svg>"
        "<rect id='control_1' x='%1' width='%1' height='8'/></svg>");
    const DocumentPointer document(QZeSvgTinyDocument::load(text.arg(number).toUtf8()));
    QVERIFY(document);
    document->setSelectionState(1);
    document->setViewBox(QRectF(0, 0, 10, 10));
    drawn(*document, QSize(64, 48), true);
    const QRectF bounds = document->transformedBounds();
    QVERIFY(!qIsNaN(bounds.x() + bounds.y() + bounds.width() + bounds.height()));
    document->setAllStrokeStyle(Qt::DashDotLine);
    document->setAllStrokeWidth(1e300);
    drawn(*document, QSize(48, 64), true);
}

void TestBadInput::selfReferences_data()
{
    QTest::addColumn<QString>("content");
    QTest::newRow("use of itself") << "<use id='a' href='#a'/>";
    QTest::newRow("use of its parent") << "<g id='a'><use href='#a'/><rect width='5' height='5'/></g>";
    QTest::newRow("use of each other") << "<g id='a'><use href='#b'/></g><g id='b'><use href='#a'/></g>";
    QTest::newRow("use of the root") << "<use href='#root'/>";
    QTest::newRow("use of a gradient") << "<linearGradient id='a'/><use href='#a'/>";
    QTest::newRow("symbol in itself")
        << "<symbol id='a'><use href='#a'/><rect width='9' height='9'/></symbol><use href='#a'/>";
    QTest::newRow("gradient of itself")
        << "<linearGradient id='a' href='#a'/><rect width='9' height='9' fill='url(#a)'/>";
    QTest::newRow("gradients of each other")
        << "<linearGradient id='a' href='#b'/><radialGradient id='b' href='#a'/>"
           "<rect width='9' height='9' fill='url(#a)' stroke='url(#b)'/>";
    QTest::newRow("paint by a shape") << "<rect id='a' width='9' height='9' fill='url(#a)'/>";
}

void TestBadInput::selfReferences()
{
    QFETCH(QString, content);
    QVERIFY(loadContent(content));
    exercise(svgText(content));
}

void TestBadInput::multiplyingUseIsBounded()
{
    QString content = "<defs><g id='a0'><rect width='9' height='9'/></g>";
    for (int i = 1; i < 20; ++i) {
        content += QStringLiteral("<g id='a%1'>").arg(i);
        content += QStringLiteral("<use href='#a%1' x='1'/>").arg(i - 1).repeated(10) + "</g>";
    }
    content += "</defs><use href='#a19'/>";
    QVERIFY(loadContent(content));
    exercise(svgText(content));
    // Large outlines are bounded by what they weigh.
    const QString heavy = "<defs><path id='p' d='M0 0" + QString("l1 1").repeated(30000) + "'/></defs>";
    exercise(svgText(heavy + QString("<use href='#p'/>").repeated(5000)));
}

void TestBadInput::deeplyChainedUseIsBounded()
{
    QString content = "<rect id='a0' width='9' height='9'/>";
    for (int i = 1; i < 5000; ++i)
        content += QStringLiteral("<use id='a%1' href='#a%2'/>").arg(i).arg(i - 1);
    exercise(svgText(content));
}

void TestBadInput::longGradientChainsAreBounded()
{
    QString content;
    for (int i = 0; i < 20000; ++i)
        content += QStringLiteral("<linearGradient id='a%1' href='#a%2'/>").arg(i).arg(i + 1);
    content += QStringLiteral("<rect width='9' height='9' fill='url(#a0)'/>").repeated(1000);
    exercise(svgText(content));
}

void TestBadInput::tinyDashesAreDrawnSolid()
{
    const QString line = "<path d='M0 50H100' stroke='red' stroke-width='10' %1/>";
    QCOMPARE(drawnContent(line.arg("stroke-dasharray='1e-7 1e-7'")), drawnContent(line.arg("")));
    exercise(svgText("<path d='M0 0L1e9 1e9' stroke='red' stroke-dasharray='.1'/>"));
    const DocumentPointer document = loadContent("<path d='M0 50H100' stroke='red' stroke-width='10'/>");
    document->setAllStrokeStyle(Qt::DotLine);
    document->setAllStrokeWidth(1e-9);
    drawn(*document);
    drawn(*document, QSize(100, 50));
}

// Qt cuts a curve until each piece strays less from its stroke than a float that must not become 0.
void TestBadInput::outlinesFarSmallerThanTheirPenAreStroked()
{
    exercise(svgText(
        "<path d='M1e-304 1e-304C1e-304 3e-304 2e-304 3e-304 2e-304 1e-304' stroke='red' stroke-width='1'/>",
        "0 0 3e-304 4e-304"));
}

void TestBadInput::nestedLayersAreBounded()
{
    const int levels = Limits::depth - 2;
    const QString open = QString("<g opacity='.99'><rect width='100' height='100'/>").repeated(levels);
    exercise(svgText(open + QString("</g>").repeated(levels)));
}

void TestBadInput::manyWideLayersAreBounded()
{
    exercise(svgText(QString("<g opacity='.5'><rect width='100' height='100'/><rect width='9' height='9'/></g>")
                         .repeated(30000)));
}

void TestBadInput::hugeCoordinatesAreSurvived()
{
    exercise(svgText("<circle r='1e9' stroke='red' stroke-width='1e6' stroke-dasharray='5'/>"
                     "<path d='M-1e9-1e9C1e9 0-1e9 5 1e9 1e9' stroke='red' fill='none'/>"
                     "<text font-size='1e9'>text</text><g transform='scale(1e300)'><g transform='scale(1e300)'>"
                     "<rect width='9' height='9' stroke='red'/></g></g>"));
}

void TestBadInput::manySiblingsAreDrawn()
{
    exercise(svgText(QString("<rect width='1' height='1' stroke='red'/>").repeated(50000)));
}

void TestBadInput::messagesAreLimited()
{
    const DocumentPointer document = loadContent(QString("<rect fill='nonsense'/>").repeated(5000));
    QCOMPARE(document->messages().size(), Limits::messages);
}

void TestBadInput::whatAnAnimationFillsIsNoPaint()
{
    const DocumentPointer document =
        loadContent("<rect width='1' height='1'><animate attributeName='x' to='5' dur='1s' fill='freeze'/></rect>");
    QVERIFY(document->messages().isEmpty());
}

void TestBadInput::turnedFiltersOfAllSizesAreSurvived()
{
    for (const char *transform :
         {"rotate(30)", "matrix(1e-9 1 1 1e-9 0 0)", "skewX(89.9999)", "matrix(1 1 1 1 0 0)",
          "rotate(1) scale(1e9)", "rotate(1) scale(1e-9)", "rotate(45) scale(1e6 1e-6)"}) {
        const QString content =
            QStringLiteral("<filter id='f' x='-9' y='-9' width='99' height='99'>"
                           "<feGaussianBlur stdDeviation='3 1e9'/><feTile/></filter>"
                           "<g transform='%1' filter='url(#f)'>"
                           "<g opacity='.5'><rect width='50' height='50' stroke='red'/></g></g>");
        exercise(svgText(content.arg(QLatin1String(transform))));
    }
}

void TestBadInput::clippedMitersOfOddPathsAreSurvived()
{
    for (const char *data : {"M0 0L0 0L10 10L0 0z", "M5 5z", "M0 0C0 0 0 0 0 0L9 9", "M0 0L1e9 0L0 0L-1e9 0",
                             "M0 0H50H0H50H0", "M0 0L1e-9 1e-9L0 1e-9z", "M0 0A5 5 0 0 1 0 0L3 4"}) {
        const QString content = QStringLiteral("<path d='%1' stroke='red' stroke-width='9' stroke-miterlimit='1e9' "
                                               "stroke-linejoin='miter-clip'/><path d='%1' stroke='red' "
                                               "stroke-dasharray='3 1e-9' stroke-linejoin='arcs'/>");
        exercise(svgText(content.arg(QLatin1String(data))));
    }
}

QTEST_MAIN(TestBadInput)
#include "test_badinput.moc"
