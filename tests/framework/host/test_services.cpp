#include <framework/cutil.h>
#include <framework/graphicsviewname.h>
#include <framework/idocument.h>
#include <framework/iframework.h>
#include <framework/ijsonutil.h>

#include <pagehost/application.h>
#include <pagehost/recorder.h>

#include "framework/testobject.h"

#include <QtCore/QJsonArray>
#include <QtTest/QtTest>
#include <QtWidgets/QGraphicsScene>
#include <QtWidgets/QGraphicsView>

namespace {

class OtherDocument : public IDocument
{
public:
    int documentState() const override { return 3; }
    int editingBlocked() const override { return 1; }
    double zoomRate() const override { return 2; }
};

class OtherFramework : public IFramework
{
public:
    void colorSetting(int, QColor &color, bool) override { color = Qt::red; }
    IDocument *currentDocument() override { return nullptr; }
    void beginUndoGroup(const QString &) override {}
    void endUndoGroup() override {}
};

/// Notes the view that it is painted in.
class ViewNameItem : public QGraphicsRectItem
{
public:
    ViewNameItem()
        : QGraphicsRectItem(0, 0, 50, 50)
    {
    }
    void paint(QPainter *painter, const QStyleOptionGraphicsItem *, QWidget *) override
    {
        names.append(painter_getGraphicsViewName(painter, scene()));
    }
    QStringList names;
};

class Notes : public pagehost::ActionSink
{
public:
    void actionRecorded(CPSRootObject *object, int actionId, const QByteArray &payload) override
    {
        objects.append(object);
        ids.append(actionId);
        payloads.append(payload);
    }
    QVector<CPSRootObject *> objects;
    QVector<int> ids;
    QVector<QByteArray> payloads;
};

int opaquePixels(const QImage &image, int row)
{
    int count = 0;
    for (int x = 0; x < image.width(); ++x)
        count += qAlpha(image.pixel(x, row)) > 0 ? 1 : 0;
    return count;
}

} // namespace

class TestServices : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup()
    {
        SetFramework(nullptr);
        pagehost::setCurrentDocument(nullptr);
    }

    void thereIsAnEditableDocumentFromTheStart();
    void currentDocumentIsTheOneThatWasSet();
    void colorIsLeftAloneUntilConfigured();
    void configuredColorsAreKeptByThemeAndId();
    void frameworkCanBeReplacedAndBroughtBack();
    void zoomIsOneWithoutAnyDocument();

    void rectangleBecomesFourNumbers();
    void mapBecomesAnObject();
    void valueWithoutObjectFormBecomesAnEmptyObject();
    void fourNumbersBecomeARectangle();
    void otherObjectsBecomeMaps_data();
    void otherObjectsBecomeMaps();

    void lineIconShowsTheLineInTheMiddle();
    void lineIconIsEmptyForNoLine_data();
    void lineIconIsEmptyForNoLine();
    void dashedLineHasGaps();
    void lineIconOfNoSizeIsNull();

    void viewNameIsThatOfThePaintedView();
    void viewNameIsKnownInAGrabbedView();
    void viewNameIsEmptyForImages();
    void viewNameIsEmptyWithoutPainterOrScene();

    void recordsReachTheSink();
    void nullRecordIsIgnored();
    void sinkCanBeReplaced();
    void replayReachesHostAndObject();

    void settingControlsHoldWhatTheyAreGiven();
    void settingAnswersAreRead_data();
    void settingAnswersAreRead();
    void otherTextIsNoSettingAnswer_data();
    void otherTextIsNoSettingAnswer();
};

void TestServices::thereIsAnEditableDocumentFromTheStart()
{
    const IDocument *document = GetFramework()->currentDocument();
    QVERIFY(document);
    QCOMPARE(document->documentState(), 0);
    QCOMPARE(document->editingBlocked(), 0);
    QCOMPARE(document->zoomRate(), 1.0);
}

void TestServices::currentDocumentIsTheOneThatWasSet()
{
    OtherDocument document;
    pagehost::setCurrentDocument(&document);
    QCOMPARE(GetFramework()->currentDocument(), &document);
    QCOMPARE(TestObject().getCurZoomRate(), 2.0);
    pagehost::setCurrentDocument(nullptr);
    QCOMPARE(TestObject().getCurZoomRate(), 1.0);
}

void TestServices::colorIsLeftAloneUntilConfigured()
{
    QColor color(1, 2, 3);
    GetFramework()->colorSetting(IFramework::DefaultPenColor, color, false);
    QCOMPARE(color, QColor(1, 2, 3));
}

void TestServices::configuredColorsAreKeptByThemeAndId()
{
    pagehost::setColorSetting(IFramework::DefaultPenColor, false, Qt::red);
    pagehost::setColorSetting(IFramework::DefaultPenColor, true, Qt::blue);
    QColor editing(1, 2, 3);
    QColor presenting(1, 2, 3);
    QColor other(1, 2, 3);
    GetFramework()->colorSetting(IFramework::DefaultPenColor, editing, false);
    GetFramework()->colorSetting(IFramework::DefaultPenColor, presenting, true);
    GetFramework()->colorSetting(1002, other, false);
    QCOMPARE(editing, QColor(Qt::red));
    QCOMPARE(presenting, QColor(Qt::blue));
    QCOMPARE(other, QColor(1, 2, 3));

    pagehost::setColorSetting(IFramework::DefaultPenColor, false, QColor());
    pagehost::setColorSetting(IFramework::DefaultPenColor, true, QColor());
    colorIsLeftAloneUntilConfigured();
}

void TestServices::frameworkCanBeReplacedAndBroughtBack()
{
    IFramework *builtIn = GetFramework();
    OtherFramework other;
    QCOMPARE(SetFramework(&other), builtIn);
    QCOMPARE(GetFramework(), &other);
    QCOMPARE(SetFramework(nullptr), &other);
    QCOMPARE(GetFramework(), builtIn);
    QCOMPARE(SetFramework(builtIn), builtIn);
    QCOMPARE(GetFramework(), builtIn);
}

void TestServices::zoomIsOneWithoutAnyDocument()
{
    OtherFramework other;
    SetFramework(&other);
    QCOMPARE(TestObject().getCurZoomRate(), 1.0);
}

void TestServices::rectangleBecomesFourNumbers()
{
    const QJsonObject expected{{QStringLiteral("x"), 1.5},
                               {QStringLiteral("y"), -2.0},
                               {QStringLiteral("width"), 3.0},
                               {QStringLiteral("height"), 4.0}};
    QCOMPARE(GetJsonUtil()->variantToJson(QRectF(1.5, -2, 3, 4)), expected);
}

void TestServices::mapBecomesAnObject()
{
    const QVariantMap map{{QStringLiteral("key"), QStringLiteral("value")}};
    QCOMPARE(GetJsonUtil()->variantToJson(map), QJsonObject::fromVariantMap(map));
}

void TestServices::valueWithoutObjectFormBecomesAnEmptyObject()
{
    QCOMPARE(GetJsonUtil()->variantToJson(QPointF(1, 2)), QJsonObject());
    QCOMPARE(GetJsonUtil()->variantToJson(7), QJsonObject());
    QCOMPARE(GetJsonUtil()->variantToJson(QVariant()), QJsonObject());
}

void TestServices::fourNumbersBecomeARectangle()
{
    const QJsonObject object = GetJsonUtil()->variantToJson(QRectF(1.5, -2, 3, 4));
    const QVariant variant = GetJsonUtil()->jsonToVariant(object);
    QCOMPARE(int(variant.type()), int(QVariant::RectF));
    QCOMPARE(variant.toRectF(), QRectF(1.5, -2, 3, 4));
}

void TestServices::otherObjectsBecomeMaps_data()
{
    QTest::addColumn<QJsonObject>("object");
    QJsonObject rect = GetJsonUtil()->variantToJson(QRectF(1, 2, 3, 4));
    QTest::newRow("empty") << QJsonObject();
    QJsonObject more = rect;
    more[QStringLiteral("z")] = 5;
    QTest::newRow("one number more") << more;
    QJsonObject fewer = rect;
    fewer.remove(QStringLiteral("x"));
    QTest::newRow("one number fewer") << fewer;
    QJsonObject text = rect;
    text[QStringLiteral("x")] = QStringLiteral("1");
    QTest::newRow("text for a number") << text;
    QJsonObject renamed = fewer;
    renamed[QStringLiteral("left")] = 1;
    QTest::newRow("other name") << renamed;
}

void TestServices::otherObjectsBecomeMaps()
{
    QFETCH(QJsonObject, object);
    const QVariant variant = GetJsonUtil()->jsonToVariant(object);
    QCOMPARE(int(variant.type()), int(QVariant::Map));
    QCOMPARE(variant.toMap(), object.toVariantMap());
}

void TestServices::lineIconShowsTheLineInTheMiddle()
{
    const QImage icon = CUtil::genIconForLineStyle(40, 11, 3, Qt::SolidLine, Qt::red).toImage();
    QCOMPARE(icon.size(), QSize(40, 11));
    QCOMPARE(icon.pixelColor(20, 5), QColor(Qt::red));
    QCOMPARE(opaquePixels(icon, 5), 40);
    QCOMPARE(opaquePixels(icon, 0), 0);
    QCOMPARE(opaquePixels(icon, 10), 0);
}

void TestServices::lineIconIsEmptyForNoLine_data()
{
    QTest::addColumn<int>("style");
    for (const int style : {-1, int(Qt::NoPen), int(Qt::CustomDashLine), 1000})
        QTest::addRow("style %d", style) << style;
}

void TestServices::lineIconIsEmptyForNoLine()
{
    QFETCH(int, style);
    const QImage icon = CUtil::genIconForLineStyle(40, 11, 3, style, Qt::red).toImage();
    QCOMPARE(icon.size(), QSize(40, 11));
    for (int row = 0; row < icon.height(); ++row)
        QCOMPARE(opaquePixels(icon, row), 0);
}

void TestServices::dashedLineHasGaps()
{
    const QImage icon = CUtil::genIconForLineStyle(60, 11, 2, Qt::DashLine, Qt::red).toImage();
    const int drawn = opaquePixels(icon, 5);
    QVERIFY(drawn > 20 && drawn < 60);
}

void TestServices::lineIconOfNoSizeIsNull()
{
    QVERIFY(CUtil::genIconForLineStyle(0, 11, 2, Qt::DashLine, Qt::red).isNull());
    QVERIFY(CUtil::genIconForLineStyle(5, -1, 2, Qt::DashLine, Qt::red).isNull());
}

void TestServices::viewNameIsThatOfThePaintedView()
{
    QGraphicsScene scene;
    auto *item = new ViewNameItem;
    scene.addItem(item);
    QGraphicsView first(&scene);
    QGraphicsView second(&scene);
    first.setObjectName(QStringLiteral("first"));
    second.setObjectName(QStringLiteral("second"));
    first.show();
    QVERIFY(QTest::qWaitForWindowExposed(&first));
    first.viewport()->repaint();
    QVERIFY(item->names.contains(QStringLiteral("first")));
    QVERIFY(!item->names.contains(QStringLiteral("second")));
    second.show();
    QVERIFY(QTest::qWaitForWindowExposed(&second));
    second.viewport()->repaint();
    QVERIFY(item->names.contains(QStringLiteral("second")));
}

void TestServices::viewNameIsKnownInAGrabbedView()
{
    QGraphicsScene scene;
    auto *item = new ViewNameItem;
    scene.addItem(item);
    QGraphicsView view(&scene);
    view.setObjectName(QStringLiteral("mainGraphicsView"));
    view.grab();
    QVERIFY(!item->names.isEmpty());
    for (const QString &name : qAsConst(item->names))
        QCOMPARE(name, QStringLiteral("mainGraphicsView"));
}

void TestServices::viewNameIsEmptyForImages()
{
    QGraphicsScene scene;
    auto *item = new ViewNameItem;
    scene.addItem(item);
    QGraphicsView view(&scene);
    view.setObjectName(QStringLiteral("mainGraphicsView"));
    QImage image(50, 50, QImage::Format_ARGB32);
    QPainter painter(&image);
    scene.render(&painter);
    QCOMPARE(item->names, QStringList{QString()});
}

void TestServices::viewNameIsEmptyWithoutPainterOrScene()
{
    QGraphicsScene scene;
    QImage image(50, 50, QImage::Format_ARGB32);
    QPainter painter(&image);
    QCOMPARE(painter_getGraphicsViewName(nullptr, &scene), QString());
    QCOMPARE(painter_getGraphicsViewName(&painter, nullptr), QString());
}

void TestServices::recordsReachTheSink()
{
    Notes notes;
    pagehost::setActionSink(&notes);
    TestObject object;
    QByteArray payload("payload");
    object.RecordAction(1001, &payload);
    pagehost::setActionSink(nullptr);
    QCOMPARE(notes.objects, QVector<CPSRootObject *>{&object});
    QCOMPARE(notes.ids, QVector<int>{1001});
    QCOMPARE(notes.payloads, QVector<QByteArray>{"payload"});
    object.RecordAction(1001, &payload);
    QCOMPARE(notes.ids.size(), 1);
}

void TestServices::nullRecordIsIgnored()
{
    Notes notes;
    pagehost::setActionSink(&notes);
    TestObject().RecordAction(1001, nullptr);
    pagehost::setActionSink(nullptr);
    QVERIFY(notes.ids.isEmpty());
}

void TestServices::sinkCanBeReplaced()
{
    Notes first;
    Notes second;
    QCOMPARE(pagehost::setActionSink(&first), nullptr);
    QCOMPARE(pagehost::actionSink(), static_cast<pagehost::ActionSink *>(&first));
    QCOMPARE(pagehost::setActionSink(&second), static_cast<pagehost::ActionSink *>(&first));
    QCOMPARE(pagehost::setActionSink(nullptr), static_cast<pagehost::ActionSink *>(&second));
}

void TestServices::replayReachesHostAndObject()
{
    /// Answers for its own kinds only, as shapes do.
    class Player : public TestObject
    {
    public:
        bool DoPlaybackActionEx(int actionId, QDataStream &) override
        {
            played.append(actionId);
            return actionId == 1001;
        }
        QVector<int> played;
    };
    Player object;
    QByteArray pos;
    QDataStream out(&pos, QIODevice::WriteOnly);
    out << QPointF(7, 8);
    QVERIFY(pagehost::replayAction(&object, pagehost::ActionMoved, pos));
    QCOMPARE(object.getPos(), QPointF(7, 8));
    QVERIFY(object.played.isEmpty());
    QVERIFY(pagehost::replayAction(&object, 1001, pos));
    QVERIFY(!pagehost::replayAction(&object, 1002, pos));
    const QVector<int> expected{1001, 1002};
    QCOMPARE(object.played, expected);
}

void TestServices::settingControlsHoldWhatTheyAreGiven()
{
    TestObject object;
    QString id = QStringLiteral("id");
    QString title = QStringLiteral("IDS_TITLE");
    QString a = QStringLiteral("a");
    QString b = QStringLiteral("b");
    QString c = QStringLiteral("c");
    QString d = QStringLiteral("d");
    QString e = QStringLiteral("e");
    QList<QString> icons{a, b};
    QList<QString> texts{c};

    const QJsonObject box = object.GetSettingJsonComboBox(id, title, 1, icons, texts);
    QCOMPARE(box, QJsonObject({{QStringLiteral("type"), QStringLiteral("combobox")},
                               {QStringLiteral("id"), id},
                               {QStringLiteral("title"), title},
                               {QStringLiteral("index"), 1},
                               {QStringLiteral("icons"), QJsonArray({a, b})},
                               {QStringLiteral("texts"), QJsonArray({c})}}));
    const QJsonObject picker = object.GetSettingJsonColorPicker(id, title, a);
    QCOMPARE(picker, QJsonObject({{QStringLiteral("type"), QStringLiteral("colorpicker")},
                                  {QStringLiteral("id"), id},
                                  {QStringLiteral("title"), title},
                                  {QStringLiteral("color"), a}}));
    const QJsonObject input = object.GetSettingJsonInput(id, title, a, b, c, d, e);
    QCOMPARE(input, QJsonObject({{QStringLiteral("type"), QStringLiteral("input")},
                                 {QStringLiteral("id"), id},
                                 {QStringLiteral("title"), title},
                                 {QStringLiteral("value"), a},
                                 {QStringLiteral("valueType"), b},
                                 {QStringLiteral("minimum"), c},
                                 {QStringLiteral("maximum"), d},
                                 {QStringLiteral("unit"), e}}));
    const QJsonObject toggle = object.GetSettingJsonSwitch(id, title, true);
    QCOMPARE(toggle, QJsonObject({{QStringLiteral("type"), QStringLiteral("switch")},
                                  {QStringLiteral("id"), id},
                                  {QStringLiteral("title"), title},
                                  {QStringLiteral("on"), true}}));
    const QJsonObject slider = object.GetSettingJsonSlider(id, title, a, b, c, d, e);
    QCOMPARE(slider, QJsonObject({{QStringLiteral("type"), QStringLiteral("slider")},
                                  {QStringLiteral("id"), id},
                                  {QStringLiteral("title"), title},
                                  {QStringLiteral("value"), a},
                                  {QStringLiteral("minimum"), b},
                                  {QStringLiteral("maximum"), c},
                                  {QStringLiteral("step"), d},
                                  {QStringLiteral("unit"), e}}));
    const QJsonObject button = object.GetSettingJsonCommond(id, title, a);
    QCOMPARE(button, QJsonObject({{QStringLiteral("type"), QStringLiteral("command")},
                                  {QStringLiteral("id"), id},
                                  {QStringLiteral("title"), title},
                                  {QStringLiteral("command"), a}}));
}

using Values = QMap<QString, QString>;

void TestServices::settingAnswersAreRead_data()
{
    QTest::addColumn<QString>("json");
    QTest::addColumn<QString>("id");
    QTest::addColumn<QString>("value");
    QTest::newRow("text") << R"({"a": "x y"})"
                          << "a"
                          << "x y";
    QTest::newRow("empty text") << R"({"a": ""})"
                                << "a"
                                << "";
    QTest::newRow("whole number") << R"({"a": 3})"
                                  << "a"
                                  << "3";
    QTest::newRow("fraction") << R"({"a": -2.5})"
                              << "a"
                              << "-2.5";
    QTest::newRow("on") << R"({"a": true})"
                        << "a"
                        << "true";
    QTest::newRow("off") << R"({"a": false})"
                         << "a"
                         << "false";
    QTest::newRow("entries") << R"([{"id": "a", "value": 3}])"
                             << "a"
                             << "3";
}

void TestServices::settingAnswersAreRead()
{
    QFETCH(QString, json);
    QFETCH(QString, id);
    QFETCH(QString, value);
    Values values{{QStringLiteral("old"), QStringLiteral("gone")}};
    QVERIFY(TestObject().ParseSettingJson(json, values));
    const Values expected{{id, value}};
    QCOMPARE(values, expected);
}

void TestServices::otherTextIsNoSettingAnswer_data()
{
    QTest::addColumn<QString>("json");
    for (const char *json : {"", "nonsense", "{", "3", "\"text\"", R"({"a": null})", R"({"a": [1]})",
                             R"({"a": {"b": 1}})", R"([1])", R"([{"id": "a"}])", R"([{"value": 3}])"})
        QTest::newRow(*json ? json : "nothing") << QString::fromLatin1(json);
}

void TestServices::otherTextIsNoSettingAnswer()
{
    QFETCH(QString, json);
    const Values before{{QStringLiteral("old"), QStringLiteral("kept")}};
    Values values = before;
    QVERIFY(!TestObject().ParseSettingJson(json, values));
    QCOMPARE(values, before);
}

QTEST_MAIN(TestServices)
#include "test_services.moc"
