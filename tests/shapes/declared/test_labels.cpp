// Texts that the user writes into declared shapes.

#include "shapefile.h"

#include <checklist/recordedactions.h>
#include <shapes/shapedriver.h>

#include <declared/core/shapekind.h>

#include <pagehost/objectplugin.h>

#include <shapekit/shapeobject.h>

#include <framework/cundoredo.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDataStream>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using namespace declared;

namespace {

const QByteArray cloud = "<path id='figure' fill='#fff' d='M0 0H120V80H0Z' shape:d='M0 0H{w}V{h}H0Z'/>"
                         "<text id='label_1' x='60' y='44' font-size='10' text-anchor='middle' fill='#334455' "
                         "shape:box='10; 20; w - 20; h - 40' shape:title='Caption'>Hello</text>";

QByteArray bytesOf(CSVGObj &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.save(out);
    return bytes;
}

} // namespace

class TestLabels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void labelIsDrawnInItsBox();
    void labelFollowsTheSize();
    void panelOffersTextAndLook();
    void writtenTextIsUndoneInOneStep();
    void labelIsSavedAndOpened();
    void exportedPictureHasTheTextAsText();
    void hostIsToldWhereALabelStands();
    void typedTextIsNoStepOfItsOwn();
    void titlesNameTheLabel();
    void titlesOfALabelWithoutAName();
    void everyCellHasATextOfItsOwn();
    void cellsAreSavedAndOpened();
    void figureWrittenOnThePageIsUndone_data() { addFigureRows(); }
    void figureWrittenOnThePageIsUndone();
    void cellsStayWhileTheirRowIsNotShown();
    void givenTextOfARoundFollowsItsExpression();
    void roundsFarFromZeroArentWritten();
    void exportedCellsAreText();
    void hiddenLabelIsNotWritten();
    void lessonTypesLetterByLetter();
    void lessonTypesFigures_data() { addFigureRows(); }
    void lessonTypesFigures();
    void writtenFigureIsExportedAsText_data() { addFigureRows(); }
    void writtenFigureIsExportedAsText();
    void figuresHaveTheColourOfThePen();
    void labelOfAHiddenGroupIsNotWritten();
    void labelsOfRoundsInAHiddenGroupArentWritten();

private:
    static void addFigureRows();

    const ShapeKind m_kind{declaredtest::readOf(declaredtest::fileOf(cloud))};
};

void TestLabels::labelIsDrawnInItsBox()
{
    shapetest::ShapeDriver shape(QStringLiteral("star"));
    shape.takeObject(new shapekit::ShapeObject(m_kind.kind()));
    shape.createByClick();
    shape.painted();
    const QZeSvgNode *label = shape.document().namedNode(QStringLiteral("label_1"));
    QVERIFY(label);
    QCOMPARE(label->type(), QZeSvgNode::Path);
    QVERIFY(QRectF(10, 20, 100, 40).contains(label->boundingRect()));
    QVERIFY(qAbs(label->boundingRect().center().x() - 60) < 1);
    QCOMPARE(label->attribute(QStringLiteral("fill")), QStringLiteral("#334455"));
}

void TestLabels::labelFollowsTheSize()
{
    shapetest::ShapeDriver shape(QStringLiteral("star"));
    shape.takeObject(new shapekit::ShapeObject(m_kind.kind()));
    shape.createByClick();
    shape.object().setSize(QSizeF(300, 200), false, true);
    shape.painted();
    const QRectF letters = shape.document().namedNode(QStringLiteral("label_1"))->boundingRect();
    QVERIFY(qAbs(letters.center().x() - 150) < 1);
    QVERIFY(qAbs(letters.center().y() - 100) < 2);
}

void TestLabels::panelOffersTextAndLook()
{
    shapekit::ShapeObject object(m_kind.kind());
    QJsonArray controls;
    object.core()->GetSettingArray(controls);
    QCOMPARE(controls.size(), 5);
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_label_1": "Nut", "idDeclared_label_1_size": "20",
                                             "idDeclared_label_1_bold": "true", "idDeclared_label_1_align": "0",
                                             "idDeclared_label_1_colour": "#ff112233"})"),
                          false, false);
    const QByteArray exported = object.core()->toSvg();
    QVERIFY(exported.contains("fill=\"#112233\""));
    QVERIFY(exported.contains("font-size=\"20\""));
    QVERIFY(exported.contains("font-weight=\"bold\""));
    QVERIFY(exported.contains("text-anchor=\"start\""));
    QVERIFY(exported.contains(">Nut</"));
}

void TestLabels::writtenTextIsUndoneInOneStep()
{
    shapetest::ShapeDriver shape(QStringLiteral("star"));
    shape.takeObject(new shapekit::ShapeObject(m_kind.kind()));
    shape.createByClick();
    shape.undoStack().clear();
    const QByteArray before = bytesOf(shape.object());
    shape.object().SetSettingJson(QStringLiteral(R"({"idDeclared_label_1": "Bolt"})"), true, true);
    QVERIFY(bytesOf(shape.object()) != before);
    QCOMPARE(shape.undoStack().count(), 1);
    shape.undoStack().undo();
    QCOMPARE(bytesOf(shape.object()), before);
}

void TestLabels::labelIsSavedAndOpened()
{
    shapekit::ShapeObject object(m_kind.kind());
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_label_1": "Bolt", "idDeclared_label_1_align": "2"})"),
                          false, false);
    QJsonObject json;
    object.saveJson(json);
    const QJsonObject label = json.value(QLatin1String("SVG_Declared"))
                                  .toObject()
                                  .value(QLatin1String("labels"))
                                  .toObject()
                                  .value(QLatin1String("label_1"))
                                  .toObject();
    QCOMPARE(label.value(QLatin1String("text")).toString(), QStringLiteral("Bolt"));
    QCOMPARE(label.value(QLatin1String("align")).toString(), QStringLiteral("end"));
    const QByteArray bytes = bytesOf(object);
    shapekit::ShapeObject opened(m_kind.kind());
    QDataStream in(bytes);
    QVERIFY(opened.load(in));
    QCOMPARE(bytesOf(opened), bytes);
    QVERIFY(opened.core()->toSvg().contains(">Bolt</"));
}

void TestLabels::exportedPictureHasTheTextAsText()
{
    shapekit::ShapeObject object(m_kind.kind());
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_label_1": "one\ntwo <3"})"), false, false);
    const QByteArray exported = object.core()->toSvg();
    QVERIFY(exported.contains("<text id=\"label_1\""));
    QVERIFY(exported.contains("<tspan x=\"60\" y=\""));
    QVERIFY(exported.contains(">one</tspan>"));
    QVERIFY(exported.contains(">two &lt;3</tspan>"));
    QVERIFY(exported.contains("text-anchor=\"middle\""));
    const std::unique_ptr<QZeSvgTinyDocument> seen(QZeSvgTinyDocument::load(exported));
    QVERIFY(seen);
    const QRectF letters = seen->namedNode(QStringLiteral("label_1"))->boundingRect();
    QVERIFY(qAbs(letters.center().x() - 60) < 2);
    QVERIFY(qAbs(letters.center().y() - 40) < 3);
}

void TestLabels::hostIsToldWhereALabelStands()
{
    shapetest::ShapeDriver shape(QStringLiteral("star"));
    shape.takeObject(new shapekit::ShapeObject(m_kind.kind()));
    shape.createByDrag({240, 160});
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    QVERIFY(shape.object().GetSpecialProperty(pagehost::LabelPlaces, out));
    QDataStream in(bytes);
    qint32 count = 0, id = 0, alignment = 0;
    QRectF box;
    double font = 0;
    bool isBold = true, hasManyLines = false;
    QColor color;
    QString text;
    in >> count >> id >> text >> box >> font >> isBold >> hasManyLines >> color >> alignment;
    QCOMPARE(count, 1);
    QCOMPARE(id, m_kind.declaration().labels.first().ids[0]);
    QCOMPARE(text, QStringLiteral("Hello"));
    QCOMPARE(box, QRectF(10, 20, 220, 120));
    QCOMPARE(font, 10.0);
    QVERIFY(!isBold && hasManyLines);
    QCOMPARE(color, QColor(0x33, 0x44, 0x55));
    QCOMPARE(Qt::Alignment(alignment), Qt::Alignment(Qt::AlignCenter));
}

void TestLabels::typedTextIsNoStepOfItsOwn()
{
    shapetest::ShapeDriver shape(QStringLiteral("star"));
    shape.takeObject(new shapekit::ShapeObject(m_kind.kind()));
    shape.createByClick();
    shape.undoStack().clear();
    QByteArray bytes;
    QDataStream(&bytes, QIODevice::WriteOnly)
        << qint32(m_kind.declaration().labels.first().ids[0]) << QStringLiteral("Ty");
    QDataStream in(bytes);
    QVERIFY(shape.object().SetSpecialProperty(pagehost::LabelText, in, true));
    QCOMPARE(shape.undoStack().count(), 0);
    QByteArray other;
    QDataStream(&other, QIODevice::WriteOnly) << qint32(5101) << QStringLiteral("Ty");
    QDataStream unknown(other);
    QVERIFY(!shape.object().SetSpecialProperty(pagehost::LabelText, unknown, true));
}

void TestLabels::titlesNameTheLabel()
{
    const QMap<QString, QString> english = m_kind.texts(QStringLiteral("en"));
    QCOMPARE(english.value(QStringLiteral("IDS_DECLARED_nut_label_1")), QStringLiteral("Caption"));
    QCOMPARE(english.value(QStringLiteral("IDS_DECLARED_nut_label_1_bold")), QStringLiteral("Caption: bold"));
    QCOMPARE(m_kind.texts(QStringLiteral("de")).value(QStringLiteral("IDS_DECLARED_nut_label_1_colour")),
             QStringLiteral("Caption: Farbe"));
}

void TestLabels::titlesOfALabelWithoutAName()
{
    const ShapeKind kind(declaredtest::readOf(
        declaredtest::fileOf("<path d='M0 0H120V80H0Z'/><text id='label_1' shape:box='0; 0; w; h'/>")));
    const QMap<QString, QString> english = kind.texts(QStringLiteral("en"));
    const QMap<QString, QString> german = kind.texts(QStringLiteral("de"));
    const QString key = QStringLiteral("IDS_DECLARED_nut_label_1");
    QCOMPARE(english.value(key), QStringLiteral("Text"));
    QCOMPARE(english.value(key + QStringLiteral("_size")), QStringLiteral("Font size"));
    QCOMPARE(english.value(key + QStringLiteral("_colour")), QStringLiteral("Text colour"));
    QCOMPARE(german.value(key + QStringLiteral("_bold")), QStringLiteral("Fett"));
    QCOMPARE(german.value(key + QStringLiteral("_colour")), QStringLiteral("Textfarbe"));
    QCOMPARE(german.value(key + QStringLiteral("_align")), QStringLiteral("Ausrichtung"));
}

namespace {

/// Rows of 40 and columns of 60.
const QByteArray grid =
    "<shape:property name='rows' type='whole' value='2' from='1' to='600'/>"
    "<path id='figure' fill='#fff' d='M0 0H120V80H0Z'/>"
    "<g shape:repeat='r in 1..rows, c in 1..2'><text id='label_cell' font-size='10' fill='#334455' "
    "shape:box='60 * c - 60; 40 * r - 40; 60; 40' shape:align='start'/><text/><text/><text/></g>";

/// The first label of a place, in item coordinates of a shape of the default size.
shapekit::LabelPlace placeAt(const shapekit::ShapeObject &object, QPointF point)
{
    const QVector<shapekit::LabelPlace> places = object.core()->labelPlaces();
    for (const shapekit::LabelPlace &place : places)
        if (place.box.contains(point))
            return place;
    return {};
}

void write(shapekit::ShapeObject &object, int id, const char *text)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << QString::fromUtf8(text);
    QDataStream in(&bytes, QIODevice::ReadWrite);
    object.SetAttribute(id, in, true);
}

QJsonObject labelsIn(shapekit::ShapeObject &object)
{
    QJsonObject json;
    object.saveJson(json);
    return json.value(QLatin1String("SVG_Declared")).toObject().value(QLatin1String("labels")).toObject();
}

} // namespace

void TestLabels::everyCellHasATextOfItsOwn()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(grid)));
    shapekit::ShapeObject object(kind.kind());
    QCOMPARE(object.core()->labelPlaces().size(), 4);
    const shapekit::LabelPlace cell = placeAt(object, {70, 50});
    QCOMPARE(cell.box, QRectF(60, 40, 60, 40));
    QCOMPARE(cell.text, QString());
    write(object, cell.propertyId, "seven");
    QCOMPARE(placeAt(object, {70, 50}).text, QStringLiteral("seven"));
    QCOMPARE(placeAt(object, {10, 50}).text, QString());
    QCOMPARE(object.core()->labelPlaces().size(), 4);
    const QJsonObject labels = labelsIn(object);
    QCOMPARE(labels.keys(), QStringList{QStringLiteral("label_cell_2_2")});
}

void TestLabels::cellsAreSavedAndOpened()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(grid)));
    shapekit::ShapeObject object(kind.kind());
    const QByteArray empty = bytesOf(object);
    write(object, placeAt(object, {70, 10}).propertyId, "top");
    const QByteArray bytes = bytesOf(object);
    shapekit::ShapeObject opened(kind.kind());
    QDataStream in(bytes);
    QVERIFY(opened.load(in));
    QCOMPARE(bytesOf(opened), bytes);
    QCOMPARE(placeAt(opened, {70, 10}).text, QStringLiteral("top"));
    QDataStream again(empty);
    QVERIFY(opened.load(again));
    QCOMPARE(placeAt(opened, {70, 10}).text, QString());
}

/// Shapes that succeed coded ones, where one of their figures stands, and what it is at first.
void TestLabels::addFigureRows()
{
    QTest::addColumn<QPointF>("place");
    QTest::addColumn<QString>("given");
    // The head is 29 high, the columns are 59 1/3 wide.
    QTest::newRow("table") << QPointF(90, 15) << QString();
    QTest::newRow("clock") << QPointF(103.5, 60) << QStringLiteral("3");
    QTest::newRow("numberline") << QPointF(91.2, 42) << QStringLiteral("3");
}

void TestLabels::figureWrittenOnThePageIsUndone()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QFETCH(QPointF, place);
    shapetest::ShapeDriver shape(name);
    shape.createByClick();
    shape.undoStack().clear();
    auto &object = static_cast<shapekit::ShapeObject &>(shape.object());
    const QByteArray before = bytesOf(object);
    const shapekit::LabelPlace figure = placeAt(object, place);
    QTEST(figure.text, "given");
    QVERIFY(figure.propertyId != 0);
    write(object, figure.propertyId, "Sum");
    const QByteArray written = bytesOf(object);
    QVERIFY(written != before);
    shapetest::ShapeDriver other(name);
    auto &opened = static_cast<shapekit::ShapeObject &>(other.object());
    QDataStream in(written);
    QVERIFY(opened.load(in));
    QVERIFY(in.atEnd());
    QCOMPARE(placeAt(opened, place).text, QStringLiteral("Sum"));
    QCOMPARE(CUndoRedo::GetInstance()->stack()->count(), 0);
    write(object, figure.propertyId, "Total");
    CUndoRedo::GetInstance()->stack()->undo();
    QCOMPARE(bytesOf(object), written);
}

void TestLabels::cellsStayWhileTheirRowIsNotShown()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(grid)));
    shapekit::ShapeObject object(kind.kind());
    write(object, placeAt(object, {10, 50}).propertyId, "below");
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_rows": "1"})"), false, false);
    QCOMPARE(object.core()->labelPlaces().size(), 2);
    QVERIFY(!object.core()->toSvg().contains("below"));
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_rows": "2"})"), false, false);
    QCOMPARE(placeAt(object, {10, 50}).text, QStringLiteral("below"));
}

void TestLabels::givenTextOfARoundFollowsItsExpression()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(
        "<shape:property name='first' type='whole' value='3' from='0' to='9'/>"
        "<path id='figure' fill='#fff' d='M0 0H120V80H0Z'/><g shape:repeat='i in 0..1'>"
        "<text id='label_n' shape:box='60 * i; 0; 60; 80' shape:text='{first + i}'>3</text><text>4</text></g>")));
    shapekit::ShapeObject object(kind.kind());
    QCOMPARE(placeAt(object, {70, 40}).text, QStringLiteral("4"));
    write(object, placeAt(object, {70, 40}).propertyId, "four");
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_first": "7"})"), false, false);
    QCOMPARE(placeAt(object, {10, 40}).text, QStringLiteral("7"));
    QCOMPARE(placeAt(object, {70, 40}).text, QStringLiteral("four"));
    write(object, placeAt(object, {70, 40}).propertyId, "8");
    QVERIFY(labelsIn(object).isEmpty());
}

void TestLabels::roundsFarFromZeroArentWritten()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(
        "<path id='figure' fill='#fff' d='M0 0H120V80H0Z'/><g shape:repeat='r in 511..512, c in -512..-512'>"
        "<text id='label_n' shape:box='0; 0; 60; 80'>a</text><text/></g>")));
    shapekit::ShapeObject object(kind.kind());
    QCOMPARE(object.core()->labelPlaces().size(), 1);
    write(object, object.core()->labelPlaces().constFirst().propertyId, "b");
    QCOMPARE(labelsIn(object).keys(), QStringList{QStringLiteral("label_n_511_-512")});
    QCOMPARE(object.core()->toSvg().count("<text "), 1);
}

void TestLabels::exportedCellsAreText()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(grid)));
    shapekit::ShapeObject object(kind.kind());
    write(object, placeAt(object, {10, 10}).propertyId, "first");
    write(object, placeAt(object, {70, 50}).propertyId, "last");
    const QByteArray exported = object.core()->toSvg();
    QVERIFY(exported.contains("<tspan x=\"0\""));
    QVERIFY(exported.contains(">first</tspan>"));
    QVERIFY(exported.contains("<tspan x=\"60\""));
    QVERIFY(exported.contains(">last</tspan>"));
    QVERIFY(!exported.contains("label-text"));
}

void TestLabels::hiddenLabelIsNotWritten()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(
        "<shape:property name='on' type='switch' value='no'/><path id='figure' fill='#fff' d='M0 0H120V80H0Z'/>"
        "<text id='label_1' shape:box='0; 0; w; h' shape:visible='on'>Hello</text>")));
    shapekit::ShapeObject object(kind.kind());
    QVERIFY(object.core()->labelPlaces().isEmpty());
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_on": "true"})"), false, false);
    QCOMPARE(object.core()->labelPlaces().size(), 1);
}

namespace {

/// Types into the label at a place as the editor does, and plays that.
void typeAndPlay(shapekit::ShapeObject &teachers, shapekit::ShapeObject &pupils, QPointF place)
{
    const int id = placeAt(teachers, place).propertyId;
    checklist::RecordedActions lesson;
    const QStringList typed{QStringLiteral("N"), QStringLiteral("Nu"), QStringLiteral("Nut")};
    for (const QString &text : typed) {
        QByteArray bytes;
        QDataStream(&bytes, QIODevice::WriteOnly) << qint32(id) << text;
        QDataStream in(bytes);
        QVERIFY(teachers.SetSpecialProperty(pagehost::LabelText, in, true));
    }
    QCOMPARE(lesson.actions.size(), 3);
    for (int i = 0; i < typed.size(); ++i) {
        QDataStream in(lesson.actions.at(i).second);
        QVERIFY(pupils.core()->DoPlaybackActionEx(lesson.actions.at(i).first, in));
        QCOMPARE(placeAt(pupils, place).text, typed.at(i));
    }
    QCOMPARE(bytesOf(pupils), bytesOf(teachers));
}

} // namespace

void TestLabels::lessonTypesLetterByLetter()
{
    for (const QByteArray &file : {cloud, grid}) {
        const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(file)));
        shapekit::ShapeObject teachers(kind.kind());
        shapekit::ShapeObject pupils(kind.kind());
        typeAndPlay(teachers, pupils, {20, 30});
    }
}

void TestLabels::lessonTypesFigures()
{
    const QString name = QString::fromLatin1(QTest::currentDataTag());
    QFETCH(QPointF, place);
    shapetest::ShapeDriver teachers(name);
    shapetest::ShapeDriver pupils(name);
    teachers.createByClick();
    pupils.createByClick();
    typeAndPlay(static_cast<shapekit::ShapeObject &>(teachers.object()),
                static_cast<shapekit::ShapeObject &>(pupils.object()), place);
}

void TestLabels::writtenFigureIsExportedAsText()
{
    QFETCH(QPointF, place);
    shapetest::ShapeDriver shape(QString::fromLatin1(QTest::currentDataTag()));
    shape.createByClick();
    auto &object = static_cast<shapekit::ShapeObject &>(shape.object());
    QVERIFY(!object.core()->toSvg().contains(">here</tspan>"));
    write(object, placeAt(object, place).propertyId, "here");
    QVERIFY(object.core()->toSvg().contains(">here</tspan>"));
}

void TestLabels::figuresHaveTheColourOfThePen()
{
    shapetest::ShapeDriver shape(QStringLiteral("numberline"));
    shape.createByClick();
    auto &object = static_cast<shapekit::ShapeObject &>(shape.object());
    object.core()->setPenColor(QColor(0xcc, 0x11, 0x22), false);
    const QVector<shapekit::LabelPlace> numbers = object.core()->labelPlaces();
    QCOMPARE(numbers.size(), 11);
    QCOMPARE(numbers.first().color, QColor(0xcc, 0x11, 0x22));
    QCOMPARE(numbers.last().color, QColor(0xcc, 0x11, 0x22));
    const auto *group =
        static_cast<const QZeSvgStructureNode *>(shape.document().namedNode(QStringLiteral("numbers")));
    const QList<QZeSvgNode *> children = group->children();
    for (const QZeSvgNode *number : children)
        QCOMPARE(number->attribute(QStringLiteral("fill")), QStringLiteral("#cc1122"));
}

void TestLabels::labelOfAHiddenGroupIsNotWritten()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(
        "<shape:property name='on' type='switch' value='no'/><path id='figure' fill='#fff' d='M0 0H120V80H0Z'/>"
        "<g shape:visible='on'><text id='label_1' shape:box='0; 0; w; h'>Hello</text></g>")));
    shapekit::ShapeObject object(kind.kind());
    QVERIFY(object.core()->labelPlaces().isEmpty());
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_on": "true"})"), false, false);
    QCOMPARE(object.core()->labelPlaces().size(), 1);
}

void TestLabels::labelsOfRoundsInAHiddenGroupArentWritten()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(
        "<shape:property name='on' type='switch' value='yes'/><path id='figure' fill='#fff' d='M0 0H120V80H0Z'/>"
        "<g shape:visible='on'><g shape:repeat='i in 0..1'><text id='label_1' shape:box='60 * i; 0; 60; h'>A</text>"
        "<text/></g></g>")));
    shapekit::ShapeObject object(kind.kind());
    QCOMPARE(object.core()->labelPlaces().size(), 2);
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_on": "false"})"), false, false);
    QVERIFY(object.core()->labelPlaces().isEmpty());
    object.SetSettingJson(QStringLiteral(R"({"idDeclared_on": "true"})"), false, false);
    QCOMPARE(object.core()->labelPlaces().size(), 2);
}

QTEST_MAIN(TestLabels)
#include "test_labels.moc"
