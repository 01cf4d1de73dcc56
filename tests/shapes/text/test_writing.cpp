// Texts on the page as their tool and their properties make them.

#include "shapes/writingdesk.h"

#include <pagehost/objectplugin.h>

using pagehost::ToolRole;

namespace {

/// Property ids of a text, in the order of its panel.
enum : int { TextId = 5101, SizeId, BoldId, ItalicId, AlignmentId, WidthId };

struct Desk : WritingDesk
{
    Desk()
        : WritingDesk(ToolRole::Text, {QColor("#2563cf"), 20, 0})
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
    void aDragMakesLinesOfItsWidth();
    void aDragToTheLeftDoesTheSame();
    void theBoxGrowsWithTheText();
    void aLargerTextKeepsItsMagnification();
    void everySettingShows();
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
    QVERIFY(pagehost::setPenColor({text}, QColor("#c9252d")));
    QVERIFY(desk.svgOf(text).contains("fill=\"#c9252d\""));
    desk.set(text, AlignmentId, qint32(1));
    QVERIFY(desk.svgOf(text).contains("text-anchor=\"middle\""));
    desk.set(text, WidthId, 400.0);
    QCOMPARE(desk.placeOf(text).width(), 400.0);
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
    const QString svg = desk.svgOf(desk.player.document()->page(0)->objects().first());
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
