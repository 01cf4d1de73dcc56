// Texts on the page as their tool and their properties make them.

#include "shapes/writingdesk.h"

#include <pagehost/objectplugin.h>
#include <pagehost/textlinks.h>

#include <support/listed.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtGui/QPainter>
#include <QtGui/QPainterPath>

#include <cmath>

using pagehost::ToolRole;

namespace {

/// Property ids of a text, in the order of its panel.
enum : int { TextId = 5101, SizeId, BoldId, ItalicId, AlignmentId, WidthId, UnderlinedId, LinksId, FontId };

struct Desk : WritingDesk
{
    Desk()
        : WritingDesk(ToolRole::Text, {QColor(0x25, 0x63, 0xcf), 20, 0})
    {
    }
    CBaseObject *clicked()
    {
        click({100, 112});
        return page->objects().value(0);
    }
    template<typename Value> static void set(CBaseObject *object, int id, const Value &value)
    {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        out << value;
        QDataStream in(&bytes, QIODevice::ReadWrite);
        object->SetAttribute(id, in, true);
    }
    static void type(CBaseObject *object, const QString &text)
    {
        QByteArray bytes;
        QDataStream(&bytes, QIODevice::WriteOnly) << qint32(TextId) << text;
        QDataStream in(bytes);
        object->SetSpecialProperty(pagehost::LabelText, in, true);
    }
    static bool isEmpty(CBaseObject *object)
    {
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        if (!object->GetSpecialProperty(pagehost::VanishesEmpty, out))
            qFatal("a text tells whether it is empty");
        return bytes.at(0) != 0;
    }
};

} // namespace

class TestWriting : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aClickMakesATextThatIsSelected();
    void aPressAloneMakesNoText();
    void aClickOnATextMakesNone();
    void aDragOnATextMakesAnother();
    void aTextThatIsBeingDraggedIsTakenBack();
    void aDragMakesLinesOfItsWidth();
    void aDragToTheLeftDoesTheSame();
    void theBoxGrowsWithTheText();
    void aLargerTextKeepsItsMagnification();
    void everySettingShows();
    void thePanelHasASectionForItsLetters();
    void aListIsChosenInThePanel();
    void theColourIsChosenInThePanel();
    void lettersAreAsWideAsTheFontHasThem();
    void theFontIsChosenInThePanel();
    void theBoxFitsTheLettersOfTheFont();
    void theFontIsTakenBackSavedAndRecorded();
    void namesOfFontsCannotWriteIntoTheDrawing_data();
    void namesOfFontsCannotWriteIntoTheDrawing();
    void aTextWithoutAFontOpensWithTheUsualOne();
    void linksAreUnderlinedAndTellWhereTheyAre();
    void drawingsLeadOnlyToTheWebAndToMail_data();
    void drawingsLeadOnlyToTheWebAndToMail();
    void linksAreTakenBackSavedAndRecorded();
    void brokenLinksAreNone();
    void aTextIsExportedAsText();
    void signsOfXmlAreWrittenAsTheyAre();
    void onlyATextWithoutLettersIsEmpty();
    void aChangeIsTakenBackWithTheSize();
    void aTextThatIsSavedAndOpenedIsTheSame();
    void aLessonShowsTheTextAsItIsTyped();
    void aDamagedTextOpens();
};

void TestWriting::aClickMakesATextThatIsSelected()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    QVERIFY(text);
    // The click is in the middle of the first line.
    QCOMPARE(text->getPos(), QPointF(100, 100));
    QCOMPARE(desk.page->selectedObjects(), QVector<CBaseObject *>{text});
    QCOMPARE(desk.session.takeResult()->afterwards, pagehost::ToolPage::Write);
    QCOMPARE(undoStack()->count(), 1);
}

void TestWriting::aPressAloneMakesNoText()
{
    Desk desk;
    desk.press({100, 112});
    QVERIFY(desk.pageTool->isDrawing());
    QCOMPARE(desk.page->objectCount(), 0);
    QVERIFY(desk.pageTool->cancel());
    QVERIFY(!desk.pageTool->isDrawing());
    QVERIFY(!desk.pageTool->cancel());
    desk.release({100, 112});
    QCOMPARE(desk.page->objectCount(), 0);
    QCOMPARE(undoStack()->count(), 0);
}

namespace {

/// The page has a text at (100, 112).
struct WrittenDesk : Desk
{
    WrittenDesk()
        : written(page, &shapes(), [](const QPointF &pos) { return pos == QPointF(100, 112); })
        , tool(shapes().createTool(ToolRole::Text, &written))
    {
        page->scene()->setTool(tool.get());
    }
    ~WrittenDesk() { page->scene()->setTool(nullptr); }

    pagehost::ToolSession written;
    std::unique_ptr<pagehost::PageTool> tool;
};

} // namespace

void TestWriting::aClickOnATextMakesNone()
{
    WrittenDesk desk;
    desk.click({100, 112});
    QCOMPARE(desk.page->objectCount(), 0);
    QCOMPARE(undoStack()->count(), 0);
    QVERIFY(!desk.tool->isDrawing());
    QCOMPARE(*desk.written.takeResult()->writtenText, QPointF(100, 112));
    desk.click({100, 212});
    QCOMPARE(desk.page->objectCount(), 1);
}

void TestWriting::aDragOnATextMakesAnother()
{
    WrittenDesk desk;
    desk.drawAlong({{100, 112}, {103, 112}, {100, 112}});
    QVERIFY(desk.written.takeResult()->writtenText);
    desk.drawAlong({{100, 112}, {104, 112}, {100, 112}});
    QCOMPARE(desk.page->objectCount(), 1);
    QVERIFY(!desk.written.takeResult()->writtenText);
}

void TestWriting::aTextThatIsBeingDraggedIsTakenBack()
{
    Desk desk;
    desk.press({100, 112});
    desk.moveTo({200, 112});
    QCOMPARE(desk.page->objectCount(), 1);
    QVERIFY(desk.pageTool->cancel());
    QCOMPARE(desk.page->objectCount(), 0);
    desk.release({200, 112});
    QCOMPARE(desk.page->objectCount(), 0);
    QCOMPARE(undoStack()->count(), 0);
}

void TestWriting::aDragMakesLinesOfItsWidth()
{
    Desk desk;
    desk.drawAlong({{100, 100}, {200, 150}, {350, 200}});
    QCOMPARE(desk.placeOf(desk.object(0)).topLeft(), QPointF(100, 100));
    QCOMPARE(desk.placeOf(desk.object(0)).width(), 250.0);
    const double line = desk.placeOf(desk.object(0)).height();
    desk.type(desk.object(0), "Words that are too many for one line of this width");
    QCOMPARE(desk.placeOf(desk.object(0)).width(), 250.0);
    QVERIFY(desk.placeOf(desk.object(0)).height() > 1.9 * line);
}

void TestWriting::aDragToTheLeftDoesTheSame()
{
    Desk desk;
    desk.drawAlong({{350, 100}, {200, 150}, {100, 200}});
    QCOMPARE(desk.placeOf(desk.object(0)).left(), 100.0);
    QCOMPARE(desk.placeOf(desk.object(0)).width(), 250.0);
}

void TestWriting::theBoxGrowsWithTheText()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    const QRectF before = desk.placeOf(text);
    desk.type(text, "wonderful");
    const QRectF oneLine = desk.placeOf(text);
    QVERIFY(oneLine.width() > before.width());
    QCOMPARE(oneLine.height(), before.height());
    QCOMPARE(oneLine.topLeft(), before.topLeft());
    desk.type(text, "wonderful\nwonderful");
    QCOMPARE(desk.placeOf(text).size(), QSizeF(oneLine.width(), 2 * oneLine.height()));
}

void TestWriting::aLargerTextKeepsItsMagnification()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, "wonderful");
    const QSizeF size = desk.placeOf(text).size();
    QVERIFY(pagehost::resizeObject(text, size * 2));
    desk.type(text, "wonderful\nwonderful");
    QCOMPARE(desk.placeOf(text).size(), QSizeF(size.width() * 2, size.height() * 4));
}

void TestWriting::everySettingShows()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, "wonderful");
    QVERIFY(desk.svgOf(text).contains("fill=\"#2563cf\""));
    QVERIFY(desk.svgOf(text).contains("font-size=\"20\""));
    desk.set(text, SizeId, 30.0);
    QVERIFY(desk.svgOf(text).contains("font-size=\"30\""));
    desk.set(text, BoldId, true);
    QVERIFY(desk.svgOf(text).contains("font-weight=\"bold\""));
    desk.set(text, ItalicId, true);
    QVERIFY(desk.svgOf(text).contains("font-style=\"italic\""));
    QVERIFY(pagehost::setPenColor({text}, QColor(0xc9, 0x25, 0x2d)));
    QVERIFY(desk.svgOf(text).contains("fill=\"#c9252d\""));
    desk.set(text, UnderlinedId, true);
    QVERIFY(desk.svgOf(text).contains("text-decoration=\"underline\""));
    desk.set(text, AlignmentId, qint32(1));
    QVERIFY(desk.svgOf(text).contains("text-anchor=\"middle\""));
    desk.set(text, WidthId, 400.0);
    QCOMPARE(desk.placeOf(text).width(), 400.0);
}

namespace {

QJsonArray settingsOf(CBaseObject *text)
{
    QString json;
    text->GetSettingJson(json);
    return QJsonDocument::fromJson(json.toUtf8())[QLatin1String("settings")].toArray();
}

QJsonObject settingOf(CBaseObject *text, const QString &id)
{
    for (const QJsonValue &control : support::listed(settingsOf(text)))
        if (control[QLatin1String("id")] == id)
            return control.toObject();
    return {};
}

QString lettersOf(CBaseObject *text)
{
    return settingOf(text, QStringLiteral("idText"))[QLatin1String("value")].toString();
}

/// "see there", whose second word leads somewhere.
const QVector<pagehost::TextLink> oneLink{{4, 5, QStringLiteral("https://example.org/")}};

QVector<QPair<QRectF, QString>> linkAreasOf(CBaseObject *text)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!text->GetSpecialProperty(pagehost::LinkAreas, out))
        qFatal("a text tells where its links are");
    QDataStream in(bytes);
    QVector<QPair<QRectF, QString>> areas;
    qint32 count = 0;
    in >> count;
    for (qint32 i = 0; i < count; ++i) {
        QPair<QRectF, QString> area;
        in >> area.first >> area.second;
        areas.append(area);
    }
    return areas;
}

} // namespace

void TestWriting::thePanelHasASectionForItsLetters()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    QStringList ids;
    for (const QJsonValue &control : support::listed(settingsOf(text)))
        if (control[QLatin1String("section")] == QLatin1String("text"))
            ids.append(control[QLatin1String("id")].toString());
    QCOMPARE(ids, (QStringList{"idText", "idFont", "idFontSize", "idBold", "idItalic", "idUnderlined",
                               "idTextColour", "idAlignment", "idList", "idLineWidth"}));
}

void TestWriting::aListIsChosenInThePanel()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("one\ntwo"));
    const auto choose = [text](const char *kind) {
        text->SetSettingJson(QStringLiteral("{\"idList\": \"%1\"}").arg(QLatin1String(kind)), true, true);
    };
    choose("1");
    QCOMPARE(lettersOf(text), QStringLiteral("\u2022 one\n\u2022 two"));
    QCOMPARE(settingOf(text, QStringLiteral("idList"))[QLatin1String("index")].toInt(), 1);
    choose("2");
    QCOMPARE(lettersOf(text), QStringLiteral("1. one\n2. two"));
    QCOMPARE(settingOf(text, QStringLiteral("idList"))[QLatin1String("index")].toInt(), 2);
    choose("0");
    QCOMPARE(lettersOf(text), QStringLiteral("one\ntwo"));
    undoStack()->undo();
    QCOMPARE(lettersOf(text), QStringLiteral("1. one\n2. two"));
    choose("7");
    QCOMPARE(lettersOf(text), QStringLiteral("1. one\n2. two"));
}

void TestWriting::theColourIsChosenInThePanel()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("wonderful"));
    text->SetSettingJson(QStringLiteral("{\"idTextColour\": \"#ffc9252d\"}"), true, true);
    QVERIFY(desk.svgOf(text).contains("fill=\"#c9252d\""));
    undoStack()->undo();
    QVERIFY(desk.svgOf(text).contains("fill=\"#2563cf\""));
}

/// A line around them would make them bold.
void TestWriting::lettersAreAsWideAsTheFontHasThem()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.set(text, SizeId, 100.0);
    desk.set(text, FontId, QStringLiteral("DejaVu Sans"));
    desk.type(text, QStringLiteral("l"));
    text->SetSettingJson(QStringLiteral("{\"idTextColour\": \"#ff000000\"}"), true, true);
    desk.page->scene()->clearSelection();
    QFont font(QStringLiteral("DejaVu Sans"));
    font.setPixelSize(100);
    QPainterPath letter;
    letter.addText({}, font, QStringLiteral("l"));
    // A row of pixels through the middle of the letter.
    const QRectF place = desk.placeOf(text);
    QImage row(int(place.width()), 1, QImage::Format_RGB32);
    row.fill(Qt::white);
    QPainter painter(&row);
    desk.page->scene()->render(&painter, row.rect(),
                               {place.left(), std::floor(place.center().y()), row.width() / 1.0, 1});
    double ink = 0;
    for (int x = 0; x < row.width(); ++x)
        ink += 1 - row.pixelColor(x, 0).lightnessF();
    QVERIFY2(std::abs(ink - letter.boundingRect().width()) < 0.1, qPrintable(QString::number(ink)));
}

void TestWriting::theFontIsChosenInThePanel()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("wonderful"));
    QVERIFY(desk.svgOf(text).contains("font-family=\"sans-serif\""));
    const QJsonObject control = settingOf(text, QStringLiteral("idFont"));
    QCOMPARE(control[QLatin1String("valueType")].toString(), QStringLiteral("font"));
    QCOMPARE(control[QLatin1String("value")].toString(), QString());
    text->SetSettingJson(QStringLiteral("{\"idFont\": \"DejaVu Serif\"}"), true, true);
    QVERIFY2(desk.svgOf(text).contains("font-family=\"'DejaVu Serif', sans-serif\""), qPrintable(desk.svgOf(text)));
    QCOMPARE(settingOf(text, QStringLiteral("idFont"))[QLatin1String("value")].toString(),
             QStringLiteral("DejaVu Serif"));
    text->SetSettingJson(QStringLiteral("{\"idFont\": \"\"}"), true, true);
    QVERIFY(desk.svgOf(text).contains("font-family=\"sans-serif\""));
}

void TestWriting::theBoxFitsTheLettersOfTheFont()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("iiiiiiii"));
    const double usual = desk.placeOf(text).width();
    desk.set(text, FontId, QStringLiteral("DejaVu Sans Mono"));
    QVERIFY(desk.placeOf(text).width() > 1.5 * usual);
    undoStack()->undo();
    QCOMPARE(desk.placeOf(text).width(), usual);
}

void TestWriting::theFontIsTakenBackSavedAndRecorded()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("wonderful"));
    const QByteArray before = savedState(text);
    desk.recorder.start(&desk.document);
    desk.set(text, FontId, QStringLiteral("DejaVu Serif"));
    const QByteArray after = savedState(text);
    QVERIFY(after != before);
    const QStringList drawn = savedState(desk.document);
    QCOMPARE(desk.played(desk.recorder.stop()), drawn);
    undoStack()->undo();
    QCOMPARE(savedState(text), before);
    undoStack()->redo();
    QCOMPARE(savedState(text), after);
    QJsonObject json;
    text->saveJson(json);
    const std::unique_ptr<CBaseObject> opened(shapes().createObject(QStringLiteral("shapes.text")));
    opened->loadJson(json);
    QCOMPARE(desk.svgOf(opened.get()), desk.svgOf(text));
}

void TestWriting::namesOfFontsCannotWriteIntoTheDrawing_data()
{
    QTest::addColumn<QString>("chosen");
    QTest::addColumn<QString>("written");
    QTest::newRow("quotes") << "a'b\"c"
                            << "'abc', sans-serif";
    QTest::newRow("list") << "a, b;c"
                          << "'a bc', sans-serif";
    QTest::newRow("escape") << "a\\27 b"
                            << "'a27 b', sans-serif";
    QTest::newRow("lines") << " a\n\tb\x01 "
                           << "'a b', sans-serif";
    QTest::newRow("nothing else") << "','"
                                  << "sans-serif";
    QTest::newRow("too long") << QString(200, 'a') << "'" + QString(100, 'a') + "', sans-serif";
}

void TestWriting::namesOfFontsCannotWriteIntoTheDrawing()
{
    QFETCH(QString, chosen);
    QFETCH(QString, written);
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("wonderful"));
    desk.set(text, FontId, chosen);
    const QRegularExpression family(QStringLiteral("font-family=\"([^\"]*)\""));
    QCOMPARE(family.match(desk.svgOf(text)).captured(1), written);
}

/// Texts had no such property once.
void TestWriting::aTextWithoutAFontOpensWithTheUsualOne()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("wonderful"));
    desk.set(text, FontId, QStringLiteral("DejaVu Serif"));
    QJsonObject json;
    text->saveJson(json);
    QVERIFY(json.contains(QStringLiteral("SVG_Font")));
    json.remove(QStringLiteral("SVG_Font"));
    const std::unique_ptr<CBaseObject> opened(shapes().createObject(QStringLiteral("shapes.text")));
    opened->loadJson(json);
    QVERIFY(desk.svgOf(opened.get()).contains("font-family=\"sans-serif\""));
}

void TestWriting::linksAreUnderlinedAndTellWhereTheyAre()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("see there"));
    QVERIFY(linkAreasOf(text).isEmpty());
    desk.set(text, LinksId, pagehost::encodedLinks(oneLink));
    const QRegularExpression underlined(QStringLiteral(
        "see <a xlink:href=\"https://example.org/\" text-decoration=\"underline\"[^>]*>there</a></tspan>"));
    QVERIFY2(underlined.match(desk.svgOf(text)).hasMatch(), qPrintable(desk.svgOf(text)));
    const auto areas = linkAreasOf(text);
    QCOMPARE(areas.size(), 1);
    QCOMPARE(areas[0].second, oneLink[0].address);
    const QRectF box({0, 0}, desk.placeOf(text).size());
    QVERIFY(qAbs(areas[0].first.right() - box.right()) < 1);
    QVERIFY(areas[0].first.left() > box.width() / 3 && areas[0].first.left() < box.width() / 2);
    QCOMPARE(areas[0].first.height(), box.height());
    // On two lines there are two parts.
    desk.type(text, QStringLiteral("see th\nre"));
    QCOMPARE(linkAreasOf(text).size(), 2);
}

void TestWriting::drawingsLeadOnlyToTheWebAndToMail_data()
{
    QTest::addColumn<QString>("address");
    QTest::addColumn<QString>("written");
    const QString none;
    QTest::newRow("web") << "http://example.org"
                         << "http://example.org";
    QTest::newRow("signs of XML") << "https://example.org/?a=1&b=\"2\"" << none;
    QTest::newRow("ampersand") << "https://example.org/?a=1&b=2"
                               << "https://example.org/?a=1&amp;b=2";
    QTest::newRow("capitals") << "HTTPS://EXAMPLE.ORG/A"
                              << "HTTPS://EXAMPLE.ORG/A";
    QTest::newRow("mail") << "mailto:a@example.org"
                          << "mailto:a@example.org";
    QTest::newRow("nobody's mail") << "mailto:" << none;
    QTest::newRow("no host") << "https:///a" << none;
    QTest::newRow("script") << "javascript:alert(1)" << none;
    QTest::newRow("file") << "file:///etc/passwd" << none;
    QTest::newRow("data") << "data:text/html,a" << none;
    QTest::newRow("no scheme") << "example.org" << none;
    QTest::newRow("too long") << "https://example.org/" + QString(pagehost::longestAddress, 'a') << none;
}

void TestWriting::drawingsLeadOnlyToTheWebAndToMail()
{
    QFETCH(QString, address);
    QFETCH(QString, written);
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("see there"));
    desk.set(text, LinksId, pagehost::encodedLinks({{4, 5, address}}));
    const QRegularExpression link(QStringLiteral("<a xlink:href=\"([^\"]*)\"[^>]*>there</a>"));
    const QString drawing = desk.svgOf(text);
    QCOMPARE(link.match(drawing).captured(1), written);
    QVERIFY2(drawing.contains("there<"), qPrintable(drawing));
    QCOMPARE(drawing.contains("<a"), !written.isEmpty());
}

void TestWriting::linksAreTakenBackSavedAndRecorded()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("see there"));
    const QByteArray before = savedState(text);
    desk.recorder.start(&desk.document);
    desk.set(text, LinksId, pagehost::encodedLinks(oneLink));
    const QByteArray after = savedState(text);
    QVERIFY(after != before);
    const QStringList drawn = savedState(desk.document);
    QCOMPARE(desk.played(desk.recorder.stop()), drawn);
    undoStack()->undo();
    QCOMPARE(savedState(text), before);
    undoStack()->redo();
    QCOMPARE(savedState(text), after);
}

void TestWriting::brokenLinksAreNone()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("see there"));
    desk.set(text, LinksId, QByteArray("\0\0\0", 3));
    QVERIFY(linkAreasOf(text).isEmpty());
    // Overlapping, backwards, and beyond the text.
    desk.set(text, LinksId, pagehost::encodedLinks({{4, 5, "a:"}, {5, 2, "b:"}}));
    QVERIFY(linkAreasOf(text).isEmpty());
    desk.set(text, LinksId, pagehost::encodedLinks({{-4, 5, "a:"}}));
    QVERIFY(linkAreasOf(text).isEmpty());
    desk.set(text, LinksId, pagehost::encodedLinks({{6, 500, "a:"}}));
    QCOMPARE(linkAreasOf(text).size(), 1);
    desk.set(text, LinksId, pagehost::encodedLinks({{600, 500, "a:"}}));
    QVERIFY(linkAreasOf(text).isEmpty());
    QVERIFY(desk.svgOf(text).contains("see there"));
}

void TestWriting::aTextIsExportedAsText()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, "one\ntwo");
    const QString svg = desk.svgOf(text);
    QVERIFY2(svg.contains(">one</tspan>") && svg.contains(">two</tspan>"), qPrintable(svg));
}

void TestWriting::signsOfXmlAreWrittenAsTheyAre()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, QStringLiteral("a < b & \"c\"") + QChar(1) + QChar(0xd800));
    QVERIFY2(desk.svgOf(text).contains("a &lt; b &amp;"), qPrintable(desk.svgOf(text)));
    QVERIFY(!desk.svgOf(text).contains(QChar(1)));
}

void TestWriting::onlyATextWithoutLettersIsEmpty()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    QVERIFY(desk.isEmpty(text));
    desk.type(text, " \n ");
    QVERIFY(desk.isEmpty(text));
    desk.type(text, "a");
    QVERIFY(!desk.isEmpty(text));
}

void TestWriting::aChangeIsTakenBackWithTheSize()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, "wonderful");
    const QRectF before = desk.placeOf(text);
    desk.set(text, SizeId, 40.0);
    const QRectF after = desk.placeOf(text);
    QCOMPARE(after.size(), before.size() * 2);
    undoStack()->undo();
    QCOMPARE(desk.placeOf(text), before);
    undoStack()->redo();
    QCOMPARE(desk.placeOf(text), after);
}

void TestWriting::aTextThatIsSavedAndOpenedIsTheSame()
{
    Desk desk;
    CBaseObject *text = desk.clicked();
    desk.type(text, "one\ntwo");
    desk.set(text, BoldId, true);
    const std::unique_ptr<CBaseObject> copy(pagehost::cloneObject(text, &shapes()));
    QCOMPARE(savedState(copy.get()), savedState(text));
    QCOMPARE(desk.svgOf(copy.get()), desk.svgOf(text));
    const std::unique_ptr<CBaseObject> opened(shapes().createObject(QStringLiteral("shapes.text")));
    QJsonObject json;
    text->saveJson(json);
    opened->loadJson(json);
    QCOMPARE(desk.placeOf(opened.get()), desk.placeOf(text));
    QCOMPARE(desk.svgOf(opened.get()), desk.svgOf(text));
}

void TestWriting::aLessonShowsTheTextAsItIsTyped()
{
    Desk desk;
    desk.recorder.start(&desk.document);
    CBaseObject *text = desk.clicked();
    desk.letTimersRun();
    for (const char *typed : {"o", "on", "one"}) {
        desk.now += 1000;
        desk.type(text, typed);
        desk.letTimersRun();
    }
    const QStringList written = savedState(desk.document);
    const pagehost::Lesson lesson = desk.recorder.stop();
    desk.player.setLesson(lesson);
    desk.player.seek(2000);
    const QString svg = desk.svgOf(desk.player.document()->page(0)->objects().constFirst());
    QVERIFY2(svg.contains(">on</tspan>"), qPrintable(svg));
    QCOMPARE(desk.played(lesson), written);
}

void TestWriting::aDamagedTextOpens()
{
    Desk desk;
    desk.type(desk.clicked(), "one\ntwo");
    const QByteArray whole = savedState(desk.object(0));
    for (int at = 0; at < whole.size(); ++at) {
        QByteArray bytes = whole;
        bytes[at] = char(~bytes[at]);
        const std::unique_ptr<CBaseObject> opened(shapes().createObject(QStringLiteral("shapes.text")));
        QDataStream in(bytes);
        opened->load(in);
        QVERIFY(!savedState(opened.get()).isEmpty());
    }
}

QTEST_MAIN(TestWriting)
#include "test_writing.moc"
