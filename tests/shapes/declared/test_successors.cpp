// Declared shapes that take the place of shapes written in C++: kinds, ids and saved data stay what they were.

#include "folderreading.h"
#include "shapefile.h"

#include <declared/core/declaredshape.h>

#include <shapekit/shapeobject.h>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>

using namespace declared;

namespace {

const shapekit::Text teethText("Tooth count", "Zähne"), faceText("Face", "Gesicht"), gladText("Glad", "Froh"),
    sadText("Sad", "Traurig");

const char *aboutNut = "name='Nut' name.de='Mutter' type='8' layout='kit' filled='page'";
const QByteArray contentOfNut =
    "<shape:property name='teeth' type='whole' value='5' from='3' to='24' title='Tooth count' title.de='Zähne'/>"
    "<shape:property name='face' type='choice' value='sad' title='Face'><shape:entry name='glad' title='Glad'/>"
    "<shape:entry name='sad' title='Sad'/></shape:property>"
    "<path id='figure' fill='#fff' stroke='#000' d='M0 0H120V80Z' shape:d='M0 0H{w}V{h + 0 * teeth}Z' "
    "shape:visible=\"face != ''\"/>"
    "<rect id='control_1' x='56' y='36' width='8' height='8' shape:range-x='8 .. w - 8' shape:range-y='h / 2'/>";

/// Another one, which a user labels.
const char *aboutPlate = "name='Plate' type='9' layout='kit' filled='page'";
const QByteArray contentOfPlate = "<path id='figure' fill='#fff' stroke='#000' d='M0 0H120V80Z'/>";
const QByteArray label = "<text id='label_text' shape:box='10; 10; w - 20; h - 20'/>";

/// The same shape, written in C++.
class CodedNut : public shapekit::ShapeOfType<8>
{
public:
    using ShapeOfType::ShapeOfType;

    QString getSVG() override
    {
        return QString::fromUtf8(
            declaredtest::readOf(declaredtest::fileAbout(aboutNut, contentOfNut))->templateText);
    }

private:
    shapekit::WholeNumber m_teeth{this, teethText, 5, 3, 24};
    shapekit::Choice m_face{this, faceText, 1, {&gladText, &sadText}};
};

SharedDeclaration shapeWith(const char *about, const QByteArray &content)
{
    return declaredtest::readOf(declaredtest::fileAbout(about, content));
}

void write(CSVGObj &object, const QString &text)
{
    object.SetSettingJson(
        QStringLiteral(R"({"idDeclared_label_text": "%1", "idDeclared_label_text_size": "30"})").arg(text), false,
        false);
}

/// Written text and size of letters.
QString labelOf(const shapekit::ShapeObject &object)
{
    const QVector<shapekit::LabelPlace> places = object.core()->labelPlaces();
    return places.size() == 1 ? QStringLiteral("%1 %2").arg(places.first().text).arg(places.first().fontSize)
                              : QString();
}

shapekit::Kind codedKind()
{
    shapekit::Kind kind;
    kind.name = QStringLiteral("nut");
    kind.makeCore = &shapekit::makeCore<CodedNut>;
    return kind;
}

QByteArray savedBytes(CSVGObj &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.save(out);
    return bytes;
}

QJsonObject savedJson(CSVGObj &object)
{
    QJsonObject json;
    object.saveJson(json);
    return json;
}

} // namespace

class TestSuccessors : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void kindIsThatOfTheCodedShape();
    void newShapeSavesTheSameBytes();
    void changedShapeSavesTheSameBytes();
    void oldDataOpen();
    void propertiesHaveTheIdsOfTheirOrder();
    void controlsHaveTheIdsOfTheirTitles();
    void textsHaveTheKeysOfTheCodedShape();
    void emptyLabelIsNotSaved();
    void labelOfAShapeWithoutPropertiesIsSavedAndOpened();
    void labelOfAShapeWithPropertiesIsSavedAndOpened();
    void labelIsSavedInJson();
    void dataFromBeforeItsLabelEmptyIt();
    void whatFollowsAShapeWithALabelInTheStreamStays();
    void onlyInstalledFilesSucceed();

private:
    const ShapeKind m_plainPlate{shapeWith(aboutPlate, contentOfPlate)};
    const ShapeKind m_plate{shapeWith(aboutPlate, contentOfPlate + label)};
    const ShapeKind m_labelledNut{shapeWith(aboutNut, contentOfNut + label)};
    const ShapeKind m_declared{declaredtest::readOf(declaredtest::fileAbout(aboutNut, contentOfNut))};
    const shapekit::Kind m_coded = codedKind();
};

void TestSuccessors::kindIsThatOfTheCodedShape()
{
    QCOMPARE(m_declared.kind().id(), QStringLiteral("shapes.nut"));
    QCOMPARE(m_declared.kind().nameKey(), QStringLiteral("IDS_SHAPE_NUT"));
    shapekit::ShapeObject object(m_declared.kind());
    QCOMPARE(object.core()->getSVGType(), 8);
}

void TestSuccessors::newShapeSavesTheSameBytes()
{
    shapekit::ShapeObject declared(m_declared.kind());
    shapekit::ShapeObject coded(m_coded);
    QCOMPARE(savedBytes(declared), savedBytes(coded));
    QCOMPARE(savedJson(declared), savedJson(coded));
    QVERIFY(savedJson(coded).contains(QLatin1String("SVG_ToothCount")));
}

void TestSuccessors::changedShapeSavesTheSameBytes()
{
    shapekit::ShapeObject declared(m_declared.kind());
    shapekit::ShapeObject coded(m_coded);
    const QByteArray before = savedBytes(coded);
    for (shapekit::ShapeObject *object : {&declared, &coded}) {
        object->SetSettingJson(QStringLiteral(R"({"idToothCount": "7", "idFace": "0"})"), false, false);
        object->setSize(QSizeF(240, 90), false, true);
    }
    QVERIFY(savedBytes(coded) != before);
    QCOMPARE(savedBytes(declared), savedBytes(coded));
    QCOMPARE(savedJson(declared), savedJson(coded));
}

void TestSuccessors::oldDataOpen()
{
    shapekit::ShapeObject coded(m_coded);
    coded.SetSettingJson(QStringLiteral(R"({"idToothCount": "9", "idFace": "0"})"), false, false);
    const QByteArray bytes = savedBytes(coded);
    QJsonObject json = savedJson(coded);
    shapekit::ShapeObject fromBytes(m_declared.kind());
    QDataStream in(bytes);
    QVERIFY(fromBytes.load(in));
    QVERIFY(in.atEnd());
    QCOMPARE(savedBytes(fromBytes), bytes);
    shapekit::ShapeObject fromJson(m_declared.kind());
    QVERIFY(fromJson.loadJson(json));
    QCOMPARE(savedJson(fromJson), json);
    QCOMPARE(json.value(QLatin1String("SVG_ToothCount")).toInt(), 9);
}

void TestSuccessors::propertiesHaveTheIdsOfTheirOrder()
{
    shapekit::ShapeObject object(m_declared.kind());
    QCOMPARE(object.core()->getPropName(5101), QStringLiteral("IDS_SHAPE_NUT_TOOTHCOUNT"));
    QCOMPARE(object.core()->getPropName(5102), QStringLiteral("IDS_SHAPE_NUT_FACE"));
    QCOMPARE(object.core()->actionIdToPropId(1101), 5101);
    QCOMPARE(object.core()->actionIdToPropId(1102), 5102);
}

void TestSuccessors::controlsHaveTheIdsOfTheirTitles()
{
    shapekit::ShapeObject declared(m_declared.kind());
    shapekit::ShapeObject coded(m_coded);
    QJsonArray ofDeclared, ofCoded;
    declared.core()->GetSettingArray(ofDeclared);
    coded.core()->GetSettingArray(ofCoded);
    QCOMPARE(ofDeclared.size(), 2);
    QCOMPARE(ofDeclared, ofCoded);
}

void TestSuccessors::textsHaveTheKeysOfTheCodedShape()
{
    const QMap<QString, QString> german = m_declared.texts(QStringLiteral("de"));
    QCOMPARE(german.value(QStringLiteral("IDS_SHAPE_NUT")), QStringLiteral("Mutter"));
    QCOMPARE(german.value(teethText.key(&m_coded)), QStringLiteral("Zähne"));
    QCOMPARE(m_declared.texts(QStringLiteral("en")).value(sadText.key(&m_coded)), QStringLiteral("Sad"));
}

void TestSuccessors::emptyLabelIsNotSaved()
{
    shapekit::ShapeObject plate(m_plate.kind());
    shapekit::ShapeObject plainPlate(m_plainPlate.kind());
    QCOMPARE(savedBytes(plate), savedBytes(plainPlate));
    QCOMPARE(savedJson(plate), savedJson(plainPlate));
    shapekit::ShapeObject nut(m_labelledNut.kind());
    shapekit::ShapeObject plainNut(m_declared.kind());
    QCOMPARE(savedBytes(nut), savedBytes(plainNut));
    QCOMPARE(savedJson(nut), savedJson(plainNut));
}

void TestSuccessors::labelOfAShapeWithoutPropertiesIsSavedAndOpened()
{
    shapekit::ShapeObject plate(m_plate.kind());
    const QByteArray empty = savedBytes(plate);
    write(plate, QStringLiteral("Water"));
    QCOMPARE(labelOf(plate), QStringLiteral("Water 30"));
    const QByteArray bytes = savedBytes(plate);
    QVERIFY(bytes.startsWith(empty + "\x89SVGmore"));
    shapekit::ShapeObject opened(m_plate.kind());
    QDataStream in(bytes);
    QVERIFY(opened.load(in));
    QVERIFY(in.atEnd());
    QCOMPARE(labelOf(opened), QStringLiteral("Water 30"));
    QCOMPARE(savedBytes(opened), bytes);
}

void TestSuccessors::labelOfAShapeWithPropertiesIsSavedAndOpened()
{
    shapekit::ShapeObject nut(m_labelledNut.kind());
    QCOMPARE(nut.core()->actionIdToPropId(1101), 5101);
    nut.SetSettingJson(QStringLiteral(R"({"idToothCount": "7"})"), false, false);
    write(nut, QStringLiteral("Steel"));
    shapekit::ShapeObject opened(m_labelledNut.kind());
    const QByteArray bytes = savedBytes(nut);
    QDataStream in(bytes);
    QVERIFY(opened.load(in));
    QVERIFY(in.atEnd());
    QCOMPARE(labelOf(opened), QStringLiteral("Steel 30"));
    QCOMPARE(savedBytes(opened), bytes);
    shapekit::ShapeObject coded(m_coded);
    coded.SetSettingJson(QStringLiteral(R"({"idToothCount": "7"})"), false, false);
    QDataStream again(bytes);
    QVERIFY(coded.load(again));
    QCOMPARE(savedJson(coded).value(QLatin1String("SVG_ToothCount")).toInt(), 7);
}

void TestSuccessors::labelIsSavedInJson()
{
    for (const ShapeKind *kind : {&m_plate, &m_labelledNut}) {
        shapekit::ShapeObject shape(kind->kind());
        write(shape, QStringLiteral("Water"));
        QJsonObject json = savedJson(shape);
        const QJsonObject labels =
            json.value(QLatin1String("SVG_Declared")).toObject().value(QLatin1String("labels")).toObject();
        QCOMPARE(labels.value(QLatin1String("label_text")).toObject().value(QLatin1String("text")).toString(),
                 QStringLiteral("Water"));
        shapekit::ShapeObject opened(kind->kind());
        QVERIFY(opened.loadJson(json));
        QCOMPARE(labelOf(opened), QStringLiteral("Water 30"));
        QCOMPARE(savedJson(opened), json);
    }
}

void TestSuccessors::dataFromBeforeItsLabelEmptyIt()
{
    for (const auto &[plain, labelled] :
         {std::pair(&m_plainPlate, &m_plate), std::pair(&m_declared, &m_labelledNut)}) {
        shapekit::ShapeObject old(plain->kind());
        const QByteArray bytes = savedBytes(old);
        QJsonObject json = savedJson(old);
        shapekit::ShapeObject shape(labelled->kind());
        write(shape, QStringLiteral("Water"));
        QDataStream in(bytes);
        QVERIFY(shape.load(in));
        QCOMPARE(labelOf(shape), QStringLiteral(" 12"));
        QCOMPARE(savedBytes(shape), bytes);
        write(shape, QStringLiteral("Water"));
        QVERIFY(shape.loadJson(json));
        QCOMPARE(labelOf(shape), QStringLiteral(" 12"));
    }
}

void TestSuccessors::whatFollowsAShapeWithALabelInTheStreamStays()
{
    for (const QString &text : {QString(), QStringLiteral("Water")}) {
        shapekit::ShapeObject plate(m_plate.kind());
        if (!text.isEmpty())
            write(plate, text);
        QByteArray bytes;
        QDataStream out(&bytes, QIODevice::WriteOnly);
        plate.save(out);
        out << QStringLiteral("next");
        QDataStream in(bytes);
        shapekit::ShapeObject opened(m_plate.kind());
        QVERIFY(opened.load(in));
        QString next;
        in >> next;
        QCOMPARE(next, QStringLiteral("next"));
        QCOMPARE(labelOf(opened), text.isEmpty() ? QStringLiteral(" 12") : QStringLiteral("Water 30"));
    }
}

void TestSuccessors::onlyInstalledFilesSucceed()
{
    QTemporaryDir folder;
    QFile file(folder.filePath(QStringLiteral("nut.shape.svg")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    file.write(declaredtest::fileAbout(aboutNut, contentOfNut));
    file.close();
    QStringList problems;
    QVERIFY(declaredtest::readFolders({folder.path()}, problems, QStringLiteral("/elsewhere")).empty());
    QCOMPARE(problems,
             QStringList({file.fileName() +
                          QStringLiteral(":2:59: error C51: only shapes that come with the plug-in have a "
                                         "type and a layout")}));
    QStringList none;
    const auto kinds = declaredtest::readFolders({folder.path()}, none, folder.path());
    QVERIFY(none.isEmpty());
    QCOMPARE(kinds.size(), size_t(1));
    QCOMPARE(kinds.front()->kind().id(), QStringLiteral("shapes.nut"));
}

QTEST_MAIN(TestSuccessors)
#include "test_successors.moc"
