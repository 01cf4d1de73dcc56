// The settings panel of a shape: its description and the user's answers.

#include <support/shapefixture.h>

#include <framework/cundoredo.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace support;

class TestSettingsPanel : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void init();
    void cleanup();
    void aFreshShapeDescribesItsOutlineColour();
    void aDashLineIsTheSecondEntry();
    void controlsComeInOrderWithTheShapesOwnLast();
    void theTextIsIndentedAndEndsWithANewline();
    void anAnswerSetsTheLineStyle_data();
    void anAnswerSetsTheLineStyle();
    void twoAnswersAreOneGroupedStep();
    void oneAnswerIsNoGroup();
    void withoutUndoThereIsNoGroup();
    void aStyleThatIsNotOfferedIsNotChanged();
    void aFillAnswerKeepsTheBrushStyle();
    void anAnswerThatIsNoneChangesNothing();
    void anAnswerChangesOnlyWhatItNames();
    void withoutObjectAnAnswerChangesNothing();
    void theShapesOwnAnswersComeLast();
    void unknownAnswersCountForTheGroup();
    void withoutDocumentNothingIsSet();
    void withoutDocumentTheShapesOwnControlsAreDescribed();
    void withoutObjectTheShapesOwnControlsAreDescribed();
    void aPenColourThatIsNotOfferedIsNotChanged();
    void anAnswerIsRecordedWithoutAnUndoStep();
    void anAnswerIsUndoableWithoutARecord();
    void aColourThatIsNoneIsAppliedAsInvalid();
    void aFillColourThatIsNoneIsAppliedAsInvalid();
    void answersAreAppliedInAFixedOrder();
    void theShapesOwnSetAttributeIsAsked();

private:
    QJsonArray settings();
    std::unique_ptr<ShapeFixture> fixture;
};

void TestSettingsPanel::init()
{
    fixture = std::make_unique<ShapeFixture>(twoPointTemplate());
}

void TestSettingsPanel::cleanup()
{
    fixture.reset();
}

QJsonArray TestSettingsPanel::settings()
{
    QString text;
    if (!fixture->shape->GetSettingJson(text))
        return {};
    return QJsonDocument::fromJson(text.toUtf8()).object()["settings"].toArray();
}

void TestSettingsPanel::aFreshShapeDescribesItsOutlineColour()
{
    fixture->load();
    fixture->shape->setPenColor(QColor(255, 0, 0, 128), false);
    QCOMPARE(settings().size(), 1);
    QCOMPARE(recording::lastArguments("object", "GetSettingJsonColorPicker"),
             QVariantList({"idOutlineColor", "IDS_PHYSICSOBJ_OUTLINECOLOR", "#80ff0000"}));
}

void TestSettingsPanel::aDashLineIsTheSecondEntry()
{
    fixture->shape->propPenStyleEnabled = true;
    fixture->shape->propPenEnabled = false;
    fixture->load();
    fixture->shape->setPenStyle(Qt::DashLine, false);
    QCOMPARE(settings().size(), 1);
    const QVariantList arguments = recording::lastArguments("object", "GetSettingJsonComboBox");
    QCOMPARE(arguments.mid(0, 3), QVariantList({"idLineStyle", "IDS_MATHOBJ_LINESTYLE_TITLE", 1}));
    QCOMPARE(arguments.value(3).toStringList(),
             QStringList({"items/mathobject/LineStyle0.svg", "items/mathobject/LineStyle1.svg",
                          "items/mathobject/LineStyle2.svg", "items/mathobject/LineStyle3.svg",
                          "items/mathobject/LineStyle4.svg"}));
    QCOMPARE(arguments.value(4).toStringList(), QStringList());
}

void TestSettingsPanel::controlsComeInOrderWithTheShapesOwnLast()
{
    fixture->shape->propPenStyleEnabled = true;
    fixture->shape->propFillEnabled = true;
    fixture->shape->onGetSettingArray = [](QJsonArray &array) {
        array.append(QStringLiteral("own"));
        return true;
    };
    fixture->load();
    fixture->shape->updateBrush(QBrush(QColor(0, 0, 255)));
    const QJsonArray controls = settings();
    QCOMPARE(controls.size(), 4);
    QCOMPARE(controls[3].toString(), QStringLiteral("own"));
    QCOMPARE(recording::names({"GetSettingJsonComboBox", "GetSettingJsonColorPicker"}),
             QStringList({"object.GetSettingJsonComboBox", "object.GetSettingJsonColorPicker",
                          "object.GetSettingJsonColorPicker"}));
    QCOMPARE(recording::lastArguments("object", "GetSettingJsonColorPicker"),
             QVariantList({"idFillColor", "IDS_SVG_FILLCOLOR", "#ff0000ff"}));
}

void TestSettingsPanel::theTextIsIndentedAndEndsWithANewline()
{
    fixture->shape->propPenEnabled = false;
    fixture->load();
    QString text;
    QVERIFY(fixture->shape->GetSettingJson(text));
    QCOMPARE(text, QStringLiteral("{\n    \"settings\": [\n    ]\n}\n"));
}

void TestSettingsPanel::anAnswerSetsTheLineStyle_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<int>("style");
    QTest::newRow("dash-dot") << "3" << 4;
    QTest::newRow("blanks") << " 3 " << 4;
    QTest::newRow("a fraction is no number") << "3.0" << 1;
    QTest::newRow("words are no number") << "dotted" << 1;
    QTest::newRow("no line") << "-1" << 0;
    QTest::newRow("the largest number is no style") << "2147483647" << 1;
}

void TestSettingsPanel::anAnswerSetsTheLineStyle()
{
    QFETCH(QString, text);
    fixture->shape->propPenStyleEnabled = true;
    fixture->load();
    recording::framework().settings = {{"idLineStyle", text}};
    QVERIFY(fixture->shape->SetSettingJson(QString(), true, false));
    QTEST(int(fixture->shape->getPenStyle()), "style");
}

void TestSettingsPanel::twoAnswersAreOneGroupedStep()
{
    fixture->shape->propFillEnabled = true;
    fixture->load();
    recording::framework().settings = {{"idOutlineColor", "#ff00ff00"}, {"idFillColor", "#800000ff"}};
    QVERIFY(fixture->shape->SetSettingJson(QString(), true, true));
    QCOMPARE(recording::names({"beginUndoGroup", "push", "endUndoGroup", "SetSettingArray"}),
             QStringList({"framework.beginUndoGroup", "undo.push", "undo.push", "shape.SetSettingArray",
                          "framework.endUndoGroup"}));
    QCOMPARE(recording::lastArguments("beginUndoGroup"), QVariantList({"IDS_ITEM_SET_ATTRIBUTE"}));
    QCOMPARE(fixture->shape->getPenColor(), QColor(Qt::green));
    QCOMPARE(fixture->shape->getFillBrush().color(), QColor(0, 0, 255, 128));
    QCOMPARE(recording::calls("object", "RecordAction").size(), 2);
}

void TestSettingsPanel::oneAnswerIsNoGroup()
{
    fixture->load();
    recording::framework().settings = {{"idOutlineColor", "#ff00ff00"}};
    fixture->shape->SetSettingJson(QString(), false, true);
    QCOMPARE(recording::count("beginUndoGroup"), 0);
    QCOMPARE(recording::count("endUndoGroup"), 0);
    QCOMPARE(CUndoRedo::GetInstance()->stack()->count(), 1);
    QCOMPARE(CUndoRedo::GetInstance()->stack()->text(0), QStringLiteral("IDS_SVG_attribute_adjust"));
}

void TestSettingsPanel::withoutUndoThereIsNoGroup()
{
    fixture->load();
    recording::framework().settings = {{"idOutlineColor", "#ff00ff00"}, {"other", "1"}};
    fixture->shape->SetSettingJson(QString(), false, false);
    QCOMPARE(recording::count("beginUndoGroup"), 0);
    QCOMPARE(CUndoRedo::GetInstance()->stack()->count(), 0);
}

void TestSettingsPanel::aStyleThatIsNotOfferedIsNotChanged()
{
    fixture->load();
    recording::framework().settings = {{"idLineStyle", "3"}, {"idFillColor", "#ff0000ff"}};
    fixture->shape->SetSettingJson(QString(), true, true);
    QCOMPARE(recording::count("document", "setAllStrokeStyle"), 0);
    QCOMPARE(recording::count("document", "setAllFillBrush"), 0);
}

void TestSettingsPanel::aFillAnswerKeepsTheBrushStyle()
{
    fixture->shape->propFillEnabled = true;
    fixture->load();
    fixture->shape->updateBrush(QBrush(Qt::red, Qt::CrossPattern));
    recording::framework().settings = {{"idFillColor", "#ff0000ff"}};
    fixture->shape->SetSettingJson(QString(), false, false);
    QCOMPARE(fixture->shape->getFillBrush(), QBrush(Qt::blue, Qt::CrossPattern));
}

void TestSettingsPanel::anAnswerThatIsNoneChangesNothing()
{
    fixture->load();
    recording::framework().settings = {{"idOutlineColor", "#ff00ff00"}};
    recording::framework().settingsParse = false;
    QVERIFY(fixture->shape->SetSettingJson(QString(), true, true));
    QCOMPARE(recording::count("document", "setAllStrokeColor"), 0);
    QCOMPARE(recording::count("SetSettingArray"), 0);
}

void TestSettingsPanel::anAnswerChangesOnlyWhatItNames()
{
    fixture->shape->propPenStyleEnabled = true;
    fixture->shape->propFillEnabled = true;
    fixture->load();
    recording::framework().settings = {{"own", "1"}};
    QVERIFY(fixture->shape->SetSettingJson(QString(), true, true));
    QCOMPARE(recording::count("shape", "SetAttribute"), 0);
    QCOMPARE(recording::count("RecordAction"), 0);
    QCOMPARE(recording::count("SetSettingArray"), 1);
}

void TestSettingsPanel::withoutObjectAnAnswerChangesNothing()
{
    TestShape shape(nullptr, twoPointTemplate());
    QVERIFY(shape.loadSVG(false));
    recording::framework().settings = {{"idOutlineColor", "#ff00ff00"}};
    recording::clear();
    QVERIFY(shape.SetSettingJson(QString(), true, true));
    QCOMPARE(recording::count("SetSettingArray"), 0);
    QCOMPARE(recording::count("document", "setAllStrokeColor"), 0);
}

void TestSettingsPanel::theShapesOwnAnswersComeLast()
{
    fixture->load();
    QMap<QString, QString> seen;
    bool recordSeen = false;
    bool undoSeen = true;
    fixture->shape->onSetSettingArray = [&](QMap<QString, QString> &values, bool record, bool undo) {
        seen = values;
        recordSeen = record;
        undoSeen = undo;
        return true;
    };
    recording::framework().settings = {{"own", "5"}};
    fixture->shape->SetSettingJson(QString(), true, false);
    QCOMPARE(seen, (QMap<QString, QString>{{"own", "5"}}));
    QVERIFY(recordSeen);
    QVERIFY(!undoSeen);
}

void TestSettingsPanel::unknownAnswersCountForTheGroup()
{
    fixture->load();
    recording::framework().settings = {{"idOutlineColor", "#ff00ff00"}, {"idSomethingElse", "1"}};
    QVERIFY(fixture->shape->SetSettingJson(QString(), false, true));
    QCOMPARE(recording::names({"beginUndoGroup", "push", "endUndoGroup"}),
             QStringList({"framework.beginUndoGroup", "undo.push", "framework.endUndoGroup"}));
}

void TestSettingsPanel::withoutDocumentNothingIsSet()
{
    fixture->shape->propFillEnabled = true;
    fixture->shape->propPenStyleEnabled = true;
    recording::framework().settings = {
        {"idLineStyle", "1"}, {"idOutlineColor", "#ff00ff00"}, {"idFillColor", "#800000ff"}};
    QVERIFY(fixture->shape->SetSettingJson(QString(), true, true));
    QCOMPARE(recording::count("push") + recording::count("RecordAction"), 0);
}

void TestSettingsPanel::withoutDocumentTheShapesOwnControlsAreDescribed()
{
    fixture->shape->propPenStyleEnabled = true;
    fixture->shape->propFillEnabled = true;
    fixture->shape->onGetSettingArray = [](QJsonArray &array) {
        array.append(QStringLiteral("own"));
        return true;
    };
    QCOMPARE(settings(), QJsonArray({QStringLiteral("own")}));
}

void TestSettingsPanel::withoutObjectTheShapesOwnControlsAreDescribed()
{
    TestShape shape(nullptr, twoPointTemplate());
    QVERIFY(shape.loadSVG(false));
    shape.onGetSettingArray = [](QJsonArray &array) {
        array.append(QStringLiteral("own"));
        return true;
    };
    QString text;
    QVERIFY(shape.GetSettingJson(text));
    QCOMPARE(QJsonDocument::fromJson(text.toUtf8()).object(),
             (QJsonObject{{"settings", QJsonArray({QStringLiteral("own")})}}));
}

void TestSettingsPanel::aPenColourThatIsNotOfferedIsNotChanged()
{
    fixture->shape->propPenEnabled = false;
    fixture->load();
    recording::framework().settings = {{"idOutlineColor", "#ff00ff00"}};
    QVERIFY(fixture->shape->SetSettingJson(QString(), true, true));
    QCOMPARE(recording::count("document", "setAllStrokeColor"), 0);
    QCOMPARE(CUndoRedo::GetInstance()->stack()->count(), 0);
}

void TestSettingsPanel::anAnswerIsRecordedWithoutAnUndoStep()
{
    fixture->load();
    recording::framework().settings = {{"idOutlineColor", "#ff00ff00"}};
    fixture->shape->SetSettingJson(QString(), true, false);
    QCOMPARE(recording::calls("object", "RecordAction").size(), 1);
    QCOMPARE(CUndoRedo::GetInstance()->stack()->count(), 0);
}

void TestSettingsPanel::anAnswerIsUndoableWithoutARecord()
{
    fixture->load();
    recording::framework().settings = {{"idOutlineColor", "#ff00ff00"}};
    fixture->shape->SetSettingJson(QString(), false, true);
    QCOMPARE(recording::calls("object", "RecordAction").size(), 0);
    QCOMPARE(CUndoRedo::GetInstance()->stack()->count(), 1);
}

void TestSettingsPanel::aColourThatIsNoneIsAppliedAsInvalid()
{
    fixture->load();
    fixture->shape->setPenColor(Qt::red, false);
    recording::framework().settings = {{"idOutlineColor", "no colour"}};
    QVERIFY(fixture->shape->SetSettingJson(QString(), true, false));
    QVERIFY(!fixture->shape->getPenColor().isValid());
    QCOMPARE(recording::calls("object", "RecordAction").size(), 1);
}

void TestSettingsPanel::aFillColourThatIsNoneIsAppliedAsInvalid()
{
    fixture->shape->propFillEnabled = true;
    fixture->load();
    fixture->shape->updateBrush(QBrush(Qt::red, Qt::CrossPattern));
    recording::clear();
    recording::framework().settings = {{"idFillColor", "no colour"}};
    QVERIFY(fixture->shape->SetSettingJson(QString(), false, false));
    // The page object passes its resulting fill back to the shape.
    const QVector<recording::Call> applied = recording::calls("document", "setAllFillBrush");
    QVERIFY(!applied.isEmpty());
    const QBrush brush = applied.first().arguments.first().value<QBrush>();
    QVERIFY(!brush.color().isValid());
    QCOMPARE(brush.style(), Qt::CrossPattern);
}

void TestSettingsPanel::answersAreAppliedInAFixedOrder()
{
    fixture->shape->propPenStyleEnabled = true;
    fixture->shape->propFillEnabled = true;
    fixture->load();
    recording::framework().settings = {
        {"idFillColor", "#ff0000ff"}, {"idLineStyle", "1"}, {"idOutlineColor", "#ff00ff00"}, {"own", "1"}};
    fixture->shape->SetSettingJson(QString(), true, true);
    QCOMPARE(recording::names({"setAllStrokeStyle", "setAllStrokeColor", "setAllFillBrush", "SetSettingArray"}),
             QStringList({"document.setAllStrokeStyle", "document.setAllStrokeColor", "document.setAllFillBrush",
                          "shape.SetSettingArray"}));
}

void TestSettingsPanel::theShapesOwnSetAttributeIsAsked()
{
    fixture->load();
    QList<int> asked;
    fixture->shape->onSetAttribute = [&](int propId, QDataStream &in, bool record, bool addUndo) {
        QColor color;
        in >> color;
        asked << propId << int(record) << int(addUndo) << int(color.rgba());
        return true;
    };
    recording::framework().settings = {{"idOutlineColor", "#80010203"}};
    fixture->shape->SetSettingJson(QString(), true, false);
    QCOMPARE(asked, QList<int>({5002, 1, 0, int(0x80010203)}));
    QCOMPARE(recording::count("document", "setAllStrokeColor"), 0);
}

QTEST_MAIN(TestSettingsPanel)
#include "test_settingspanel.moc"
