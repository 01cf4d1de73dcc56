// The look of repeated labels, which the user sets for all of them at once.

#include "shapefile.h"

#include <checklist/recordedactions.h>
#include <shapes/shapedriver.h>

#include <declared/core/letterstyle.h>
#include <declared/core/shapekind.h>

#include <shapekit/labellayout.h>
#include <shapekit/shapeobject.h>

#include <framework/cundoredo.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace declared;

namespace {

using shapekit::LabelLayout;
using shapekit::LabelLook;
using shapekit::LabelPlace;
using shapekit::ShapeObject;

const QString everything = QStringLiteral(R"({"idFontSize": "9", "idBold": "true", "idItalic": "true",
                                              "idUnderlined": "true", "idTextColour": "#ff112233"})");

/// Two lines of different sizes and a text of several lines; the lines have the colour of the pen.
const QByteArray scale =
    "<path id='figure' fill='#fff' stroke='#336699' d='M0 0H120V80H0Z'/>"
    "<g shape:repeat='i in 0..1' shape:fill='{pen}' fill='#336699' font-size='10'>"
    "<text id='label_major' shape:box='60 * i; 0; 60; 12' shape:size='fit 2 .. 10' "
    "shape:lines='one'>1</text><text>1</text></g>"
    "<g shape:repeat='i in 0..1' shape:fill='{pen}' fill='#336699' font-size='5' font-weight='bold'>"
    "<text id='label_minor' shape:box='60 * i; 20; 60; 6' shape:lines='one' "
    "shape:valign='top'>2</text><text>2</text></g>"
    "<g shape:repeat='i in 0..1' fill='#445566' font-size='10'>"
    "<text id='label_note' shape:box='60 * i; 40; 60; 12' shape:size='fit 2 .. 10'>3</text><text>3</text></g>";

/// A shape that comes with the plug-in, as a click makes it.
struct Shape : shapetest::ShapeDriver
{
    explicit Shape(const QString &name = QString::fromLatin1(QTest::currentDataTag()))
        : ShapeDriver(name)
    {
        createByClick();
        undoStack().clear();
    }
    ShapeObject &shape() const { return static_cast<ShapeObject &>(object()); }
    void answer(const QString &answers) const { object().SetSettingJson(answers, true, true); }
};

QByteArray bytesOf(CSVGObj &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.save(out);
    return bytes;
}

QJsonObject savedLabels(CSVGObj &object)
{
    QJsonObject json;
    object.saveJson(json);
    return json.value(QLatin1String("SVG_Declared")).toObject().value(QLatin1String("labels")).toObject();
}

/// Of the settings panel, by id: kind, value and section.
QMap<QString, QJsonObject> letterControls(const ShapeObject &object)
{
    QJsonArray controls;
    object.core()->GetSettingArray(controls);
    QMap<QString, QJsonObject> letters;
    for (const QJsonValue &control : qAsConst(controls))
        if (control.toObject().value(QLatin1String("section")) == QLatin1String("text"))
            letters.insert(control.toObject().value(QLatin1String("id")).toString(), control.toObject());
    return letters;
}

LabelPlace placeAt(const ShapeObject &object, QPointF point)
{
    const QVector<LabelPlace> places = object.core()->labelPlaces();
    for (const LabelPlace &place : places)
        if (place.box.contains(point))
            return place;
    return {};
}

} // namespace

class TestLetters : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void underlineCoversTheWholeLine();
    void italicLettersLean();
    void panelOffersOneLookForAllFigures_data() { addShapes(); }
    void panelOffersOneLookForAllFigures();
    void labelsThatAreNotRepeatedHaveNoCommonLook();
    void lettersOfAllFiguresAreSetAtOnce_data() { addShapes(); }
    void lettersOfAllFiguresAreSetAtOnce();
    void eachPartIsAStepToTakeBack_data() { addShapes(); }
    void eachPartIsAStepToTakeBack();
    void lettersAreSavedAndOpened_data() { addShapes(); }
    void lettersAreSavedAndOpened();
    void lettersThatNobodySetAreNotSaved_data() { addShapes(); }
    void lettersThatNobodySetAreNotSaved();
    void lessonSetsLetters_data() { addShapes(); }
    void lessonSetsLetters();
    void writtenTextsHaveTheLookOfTheOthers();
    void sizesOfDifferentLabelsStayInProportion();
    void labelsThatAreBoldInTheFileStaySo();
    void lineGetsHigherWithItsLetters();
    void textsOfSeveralLinesStayInTheirBox();
    void colourThatIsThePensFollowsItOnceMore();
    void undoneColourFollowsThePen();
    void sizeOutOfBoundsIsTheNearestOne();
    void answersThatAreNoValuesChangeNothing();
    void damagedLettersAreThoseOfTheFile();
    void partsHaveTitles();

private:
    static void addShapes();
};

void TestLetters::addShapes()
{
    QTest::addColumn<int>("figures");
    QTest::newRow("table") << 12;
    QTest::newRow("clock") << 12;
    QTest::newRow("numberline") << 11;
}

/// Also where the letters cross the line.
void TestLetters::underlineCoversTheWholeLine()
{
    LabelLook look;
    look.text = QStringLiteral("age gap");
    look.box = {600, 120};
    look.size = 100;
    const QRectF plain = layOut(look).outline.boundingRect();
    look.isUnderlined = true;
    const LabelLayout layout = layOut(look);
    const QRectF letters = layout.outline.boundingRect();
    QVERIFY(letters.width() > plain.width());
    // The line of a font of 100 pixels is several pixels thick.
    const QFont font = [] {
        QFont sans(QStringLiteral("sans-serif"));
        sans.setPixelSize(100);
        return sans;
    }();
    const double y = layout.lines.first().anchor.y() + QFontMetricsF(font).underlinePos();
    for (int x = int(letters.left()) + 1; x < int(letters.right()); ++x)
        QVERIFY2(layout.outline.contains(QPointF(x, y)), qPrintable(QString::number(x)));
}

void TestLetters::italicLettersLean()
{
    LabelLook look;
    look.text = QStringLiteral("l");
    look.box = {100, 50};
    const double plain = layOut(look).outline.boundingRect().width();
    look.isItalic = true;
    QVERIFY(layOut(look).outline.boundingRect().width() > plain + 1);
}

void TestLetters::panelOffersOneLookForAllFigures()
{
    const Shape t;
    const QMap<QString, QJsonObject> letters = letterControls(t.shape());
    QCOMPARE(letters.keys(), (QStringList{"idBold", "idFontSize", "idItalic", "idTextColour", "idUnderlined"}));
    const LabelPlace figure = t.shape().core()->labelPlaces().constFirst();
    QCOMPARE(letters["idTextColour"].value(QLatin1String("color")).toString(), figure.color.name(QColor::HexArgb));
    QCOMPARE(letters["idFontSize"].value(QLatin1String("value")).toString().toDouble(), figure.fontSize);
    QVERIFY(!letters["idBold"].value(QLatin1String("on")).toBool());
}

void TestLetters::labelsThatAreNotRepeatedHaveNoCommonLook()
{
    const ShapeKind kind(
        declaredtest::readOf(declaredtest::fileOf("<path id='figure' fill='#fff' d='M0 0H120V80H0Z'/><text "
                                                  "id='label_1' shape:box='0; 0; w; h'>Hello</text>")));
    ShapeObject object(kind.kind());
    QVERIFY(!letterControls(object).contains(QStringLiteral("idFontSize")));
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.core()->getInnerProperty(LetterStyle::idOf(LetterStyle::Size), out);
    QVERIFY(bytes.isEmpty());
}

void TestLetters::lettersOfAllFiguresAreSetAtOnce()
{
    QFETCH(int, figures);
    const Shape t;
    t.answer(everything);
    const QVector<LabelPlace> places = t.shape().core()->labelPlaces();
    QCOMPARE(places.size(), figures);
    for (const LabelPlace &place : places) {
        QCOMPARE(place.fontSize, 9.0);
        QVERIFY(place.isBold);
        QCOMPARE(place.color, QColor(0x11, 0x22, 0x33));
    }
    // Empty cells leave nothing to see.
    const QByteArray exported = t.shape().core()->toSvg();
    const int written = int(
        std::count_if(places.begin(), places.end(), [](const LabelPlace &place) { return !place.text.isEmpty(); }));
    QCOMPARE(
        exported.count("font-size=\"9\" font-weight=\"bold\" font-style=\"italic\" text-decoration=\"underline\""),
        written);
    QCOMPARE(t.undoStack().count(), 1);
}

void TestLetters::eachPartIsAStepToTakeBack()
{
    const Shape t;
    const QStringList answers{R"({"idFontSize": "9"})", R"({"idBold": "true"})", R"({"idItalic": "true"})",
                              R"({"idUnderlined": "true"})", R"({"idTextColour": "#ff112233"})"};
    QVector<QByteArray> states{bytesOf(t.object())};
    for (const QString &answer : answers) {
        t.answer(answer);
        QVERIFY(bytesOf(t.object()) != states.last());
        states.append(bytesOf(t.object()));
        QCOMPARE(t.undoStack().count(), states.size() - 1);
    }
    const QImage painted = t.painted();
    for (int i = answers.size() - 1; i >= 0; --i) {
        t.undoStack().undo();
        QCOMPARE(bytesOf(t.object()), states.at(i));
    }
    for (int i = 0; i < answers.size(); ++i)
        t.undoStack().redo();
    QCOMPARE(bytesOf(t.object()), states.last());
    QCOMPARE(t.painted(), painted);
}

void TestLetters::lettersAreSavedAndOpened()
{
    const Shape t;
    t.answer(everything);
    const QJsonObject letters = savedLabels(t.object()).value(QLatin1String("letters")).toObject();
    QCOMPARE(letters,
             (QJsonObject{
                 {"size", 9}, {"bold", true}, {"italic", true}, {"underlined", true}, {"colour", "#ff112233"}}));
    Shape opened;
    const QByteArray bytes = bytesOf(t.object());
    QDataStream in(bytes);
    QVERIFY(opened.object().load(in));
    QCOMPARE(bytesOf(opened.object()), bytes);
    QCOMPARE(opened.painted(), t.painted());
    QJsonObject json;
    t.object().saveJson(json);
    Shape read;
    QVERIFY(read.object().loadJson(json));
    QCOMPARE(bytesOf(read.object()), bytes);
}

void TestLetters::lettersThatNobodySetAreNotSaved()
{
    const Shape t;
    const QByteArray before = bytesOf(t.object());
    QVERIFY(savedLabels(t.object()).isEmpty());
    const QString size = letterControls(t.shape()).value("idFontSize").value(QLatin1String("value")).toString();
    t.answer(everything);
    const QColor given = Shape().shape().core()->labelPlaces().constFirst().color;
    t.answer(QStringLiteral(R"({"idFontSize": "%1", "idBold": "false", "idItalic": "false",
                                "idUnderlined": "false", "idTextColour": "%2"})")
                 .arg(size, given.name(QColor::HexArgb)));
    QVERIFY(savedLabels(t.object()).isEmpty());
    QCOMPARE(bytesOf(t.object()), before);
}

void TestLetters::lessonSetsLetters()
{
    const Shape teachers;
    const Shape pupils;
    checklist::RecordedActions lesson;
    teachers.answer(everything);
    QCOMPARE(lesson.actions.size(), 5);
    for (const auto &action : qAsConst(lesson.actions)) {
        QDataStream in(action.second);
        QVERIFY(pupils.core().DoPlaybackActionEx(action.first, in));
    }
    QCOMPARE(bytesOf(pupils.object()), bytesOf(teachers.object()));
    QCOMPARE(pupils.painted(), teachers.painted());
}

void TestLetters::writtenTextsHaveTheLookOfTheOthers()
{
    const Shape t(QStringLiteral("table"));
    t.answer(everything);
    const LabelPlace cell = placeAt(t.shape(), {90, 15});
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QStringLiteral("Sum");
    QDataStream in(&bytes, QIODevice::ReadWrite);
    t.object().SetAttribute(cell.propertyId, in, true);
    QVERIFY(t.shape().core()->toSvg().contains("font-size=\"9\" font-weight=\"bold\" font-style=\"italic\""));
    QCOMPARE(savedLabels(t.object()).keys(), (QStringList{"label_cell_0_1", "letters"}));
}

void TestLetters::sizesOfDifferentLabelsStayInProportion()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(scale)));
    ShapeObject object(kind.kind());
    object.SetSettingJson(QStringLiteral(R"({"idFontSize": "6"})"), false, false);
    QCOMPARE(placeAt(object, {30, 6}).fontSize, 6.0);
    QCOMPARE(placeAt(object, {30, 22}).fontSize, 3.0);
    QCOMPARE(placeAt(object, {30, 46}).fontSize, 6.0);
}

void TestLetters::labelsThatAreBoldInTheFileStaySo()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(scale)));
    ShapeObject object(kind.kind());
    object.SetSettingJson(QStringLiteral(R"({"idBold": "true"})"), false, false);
    QVERIFY(placeAt(object, {30, 6}).isBold && placeAt(object, {30, 22}).isBold);
    object.SetSettingJson(QStringLiteral(R"({"idBold": "false"})"), false, false);
    QVERIFY(!placeAt(object, {30, 6}).isBold && placeAt(object, {30, 22}).isBold);
}

void TestLetters::lineGetsHigherWithItsLetters()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(scale)));
    ShapeObject object(kind.kind());
    object.SetSettingJson(QStringLiteral(R"({"idFontSize": "20"})"), false, false);
    // About its middle, and from its top.
    QCOMPARE(placeAt(object, {30, 6}).box, QRectF(0, -6, 60, 24));
    QCOMPARE(placeAt(object, {30, 6}).fontSize, 20.0);
    QCOMPARE(placeAt(object, {30, 28}).box, QRectF(0, 20, 60, 12));
    object.SetSettingJson(QStringLiteral(R"({"idFontSize": "5"})"), false, false);
    QCOMPARE(placeAt(object, {30, 6}).box, QRectF(0, 0, 60, 12));
}

void TestLetters::textsOfSeveralLinesStayInTheirBox()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(scale)));
    ShapeObject object(kind.kind());
    object.SetSettingJson(QStringLiteral(R"({"idFontSize": "20"})"), false, false);
    const LabelPlace note = placeAt(object, {30, 46});
    QCOMPARE(note.box, QRectF(0, 40, 60, 12));
    QVERIFY(note.fontSize < 12);
}

void TestLetters::colourThatIsThePensFollowsItOnceMore()
{
    const Shape t(QStringLiteral("numberline"));
    const auto colour = [&t] { return t.shape().core()->labelPlaces().constFirst().color; };
    QCOMPARE(colour(), QColor(t.shape().core()->getPenColor().rgb()));
    t.answer(QStringLiteral(R"({"idTextColour": "#ff112233"})"));
    t.shape().core()->setPenColor(QColor(0xcc, 0x11, 0x22), false);
    QCOMPARE(colour(), QColor(0x11, 0x22, 0x33));
    t.answer(QStringLiteral(R"({"idTextColour": "#ffcc1122"})"));
    t.shape().core()->setPenColor(QColor(0x44, 0x55, 0x66), false);
    QCOMPARE(colour(), QColor(0x44, 0x55, 0x66));
}

void TestLetters::undoneColourFollowsThePen()
{
    const Shape t(QStringLiteral("clock"));
    t.answer(QStringLiteral(R"({"idTextColour": "#ff112233"})"));
    t.undoStack().undo();
    t.shape().core()->setPenColor(QColor(0x44, 0x55, 0x66), false);
    QCOMPARE(t.shape().core()->labelPlaces().constFirst().color, QColor(0x44, 0x55, 0x66));
}

void TestLetters::sizeOutOfBoundsIsTheNearestOne()
{
    const Shape t(QStringLiteral("table"));
    const auto size = [&t] {
        return letterControls(t.shape()).value("idFontSize").value(QLatin1String("value")).toString();
    };
    t.answer(QStringLiteral(R"({"idFontSize": "1"})"));
    QCOMPARE(size(), QStringLiteral("2"));
    t.answer(QStringLiteral(R"({"idFontSize": "1000"})"));
    QCOMPARE(size(), QStringLiteral("400"));
}

void TestLetters::answersThatAreNoValuesChangeNothing()
{
    const Shape t(QStringLiteral("table"));
    const QByteArray before = bytesOf(t.object());
    t.answer(QStringLiteral(R"({"idFontSize": "large", "idTextColour": "none"})"));
    t.answer(QStringLiteral(R"({"idFontSize": "nan"})"));
    QCOMPARE(bytesOf(t.object()), before);
}

void TestLetters::damagedLettersAreThoseOfTheFile()
{
    const Shape t(QStringLiteral("table"));
    const QByteArray before = bytesOf(t.object());
    QJsonObject json;
    t.object().saveJson(json);
    json[QStringLiteral("SVG_Declared")] = QJsonObject{
        {"labels",
         QJsonObject{{"letters", QJsonObject{{"size", "9"}, {"bold", 1}, {"italic", 0}, {"colour", "?"}}}}}};
    t.object().loadJson(json);
    QCOMPARE(bytesOf(t.object()), before);
}

void TestLetters::partsHaveTitles()
{
    const Shape t(QStringLiteral("table"));
    const pagehost::TextTable english = t.plugin()->texts(QStringLiteral("en"));
    const pagehost::TextTable german = t.plugin()->texts(QStringLiteral("de"));
    QStringList titles;
    const QMap<QString, QJsonObject> controls = letterControls(t.shape());
    for (const QJsonObject &control : controls) {
        const QString key = control.value(QLatin1String("title")).toString();
        titles.append(english.value(key) + QLatin1Char('/') + german.value(key));
    }
    const QString bold = t.core().getPropName(LetterStyle::idOf(LetterStyle::Bold));
    QCOMPARE(english.value(bold), QStringLiteral("Bold"));
    QCOMPARE(titles, (QStringList{"Bold/Fett", QString::fromUtf8("Font size/Schriftgröße"), "Italic/Kursiv",
                                  "Text colour/Textfarbe", "Underlined/Unterstrichen"}));
}

QTEST_MAIN(TestLetters)
#include "test_letters.moc"
