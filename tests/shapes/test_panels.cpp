// The panels of every shape: what it tells about its properties can be read, shown in words, answered and taken
// back.

#include <shapes/randomedits.h>
#include <shapes/shapedriver.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <QtCore/QJsonDocument>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

using shapetest::RandomEdits;
using shapetest::ShapeDriver;

namespace {

constexpr unsigned startValue = 4711;
constexpr int firstOwnProperty = 5101;

QByteArray coreBytes(const ShapeDriver &shape)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    shape.object().save(out);
    return bytes;
}

QJsonArray settingsOf(const ShapeDriver &shape)
{
    QString json;
    if (!shape.object().GetSettingJson(json))
        return {};
    return QJsonDocument::fromJson(json.toUtf8()).object()[QStringLiteral("settings")].toArray();
}

bool answer(const ShapeDriver &shape, const QJsonObject &values)
{
    return shape.object().SetSettingJson(QString::fromUtf8(QJsonDocument(values).toJson()), true, true);
}

/// A shape's description of one property: the head, and the value with its editor.
struct Description
{
    int id = 0;
    int editor = 0;
    QString name;
    bool isEnabled = false;
    QByteArray rest;
};

Description describe(const ShapeDriver &shape, int property)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!shape.object().GetAttribute(property, out))
        return {};
    Description description;
    QDataStream in(bytes);
    in >> description.id >> description.editor >> description.name >> description.isEnabled;
    description.rest = bytes.mid(int(in.device()->pos()));
    return description;
}

QByteArray bareValue(const ShapeDriver &shape, int property)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    shape.core().getInnerProperty(property, out);
    return bytes;
}

/// The bytes of the editor that stand before or around the value.
int editorSize(const Description &description)
{
    constexpr int bounds = 12;
    constexpr int realBounds = 24;
    constexpr int wholeSize = bounds + 4;
    if (description.editor != 7)
        return 0;
    return description.rest.size() == wholeSize ? bounds : realBounds;
}

} // namespace

class TestPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void settingsAreNamedInBothLanguages_data() { addShapeRows(); }
    void settingsAreNamedInBothLanguages();
    void everyAnswerIsOneStepAndIsTakenBack_data() { addShapeRows(); }
    void everyAnswerIsOneStepAndIsTakenBack();
    void allAnswersTogetherAreOneStep_data() { addShapeRows(); }
    void allAnswersTogetherAreOneStep();
    void nonsenseIsNoAnswer_data() { addShapeRows(); }
    void nonsenseIsNoAnswer();
    void propertiesTellTheirEditorAndValue_data() { addShapeRows(); }
    void propertiesTellTheirEditorAndValue();
    void presentValueGivenBackChangesNothing_data() { addShapeRows(); }
    void presentValueGivenBackChangesNothing();

private:
    void addShapeRows();
};

void TestPanels::addShapeRows()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : shapetest::allShapeNames())
        QTest::newRow(qPrintable(name)) << name;
}

void TestPanels::settingsAreNamedInBothLanguages()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const pagehost::TextTable english = shape.plugin()->texts(QStringLiteral("en"));
    const pagehost::TextTable german = shape.plugin()->texts(QStringLiteral("de"));
    QSet<QString> ids;
    const QJsonArray settings = settingsOf(shape);
    QVERIFY(!settings.isEmpty());
    for (const QJsonValue &value : settings) {
        const QJsonObject control = value.toObject();
        const QString id = control[QStringLiteral("id")].toString();
        QVERIFY2(id.startsWith(QStringLiteral("id")) && !ids.contains(id), qPrintable(id));
        ids.insert(id);
        const QString title = control[QStringLiteral("title")].toString();
        if (!title.startsWith(QStringLiteral("IDS_SHAPE_")))
            continue;
        QVERIFY2(!english.value(title).isEmpty() && !german.value(title).isEmpty(), qPrintable(title));
        for (const QJsonValue &entry : control[QStringLiteral("texts")].toArray())
            QVERIFY2(english.contains(entry.toString()) && german.contains(entry.toString()), qPrintable(title));
    }
}

void TestPanels::everyAnswerIsOneStepAndIsTakenBack()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    RandomEdits answers(shape, startValue);
    for (const QJsonValue &value : settingsOf(shape)) {
        const QJsonObject control = value.toObject();
        const QString id = control[QStringLiteral("id")].toString();
        const QByteArray before = coreBytes(shape);
        const int steps = shape.undoStack().count();
        QVERIFY(answer(shape, {{id, answers.answerTo(control)}}));
        const QByteArray after = coreBytes(shape);
        QVERIFY2(after != before, qPrintable(id));
        QCOMPARE(shape.undoStack().count(), steps + 1);
        shape.undoStack().undo();
        QVERIFY2(coreBytes(shape) == before, qPrintable(id));
        shape.undoStack().redo();
        QVERIFY2(coreBytes(shape) == after, qPrintable(id));
    }
}

void TestPanels::allAnswersTogetherAreOneStep()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    RandomEdits answers(shape, startValue);
    QJsonObject all;
    for (const QJsonValue &value : settingsOf(shape))
        all[value.toObject()[QStringLiteral("id")].toString()] = answers.answerTo(value.toObject());
    const QByteArray before = coreBytes(shape);
    QVERIFY(answer(shape, all));
    QVERIFY(coreBytes(shape) != before);
    QCOMPARE(shape.undoStack().count(), 1);
    shape.undoStack().undo();
    QCOMPARE(coreBytes(shape), before);
}

void TestPanels::nonsenseIsNoAnswer()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const QByteArray before = coreBytes(shape);
    QVERIFY(shape.object().SetSettingJson(QStringLiteral("{ nonsense"), true, true));
    QVERIFY(answer(shape, {{QStringLiteral("idNobody"), QStringLiteral("1")}}));
    QCOMPARE(coreBytes(shape), before);
    QCOMPARE(shape.undoStack().count(), 0);
    // Numbers far outside the bounds, and words where numbers belong: the shape stays one that can be drawn.
    for (const QJsonValue &value : settingsOf(shape)) {
        const QString id = value.toObject()[QStringLiteral("id")].toString();
        if (id == QLatin1String("idLineStyle"))
            continue;
        for (const char *text : {"-1e9", "1e9", "nan", "word", ""})
            QVERIFY(answer(shape, {{id, QString::fromLatin1(text)}}));
    }
    QVERIFY(!shape.painted().isNull());
    ShapeDriver copy(name);
    QDataStream in(coreBytes(shape));
    QVERIFY(copy.object().load(in));
    QCOMPARE(coreBytes(copy), coreBytes(shape));
}

void TestPanels::propertiesTellTheirEditorAndValue()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const pagehost::TextTable english = shape.plugin()->texts(QStringLiteral("en"));
    for (const int property : shape.object().getAttributeIds()) {
        if (!shape.core().findPropItemByPropID(property))
            continue;
        const Description description = describe(shape, property);
        QCOMPARE(description.id, property);
        QVERIFY2((QSet<int>{1, 2, 4, 5, 7, 8}.contains(description.editor)), qPrintable(description.name));
        QVERIFY(description.isEnabled);
        QVERIFY(property < firstOwnProperty || english.contains(description.name));
        const QByteArray value = bareValue(shape, property);
        QVERIFY(!value.isEmpty());
        // A list has its length before the value and its entries behind it.
        if (description.editor == 1)
            QVERIFY(description.rest.mid(4).startsWith(value) && description.rest.size() > 8);
        else
            QCOMPARE(description.rest.mid(editorSize(description)), value);
    }
}

void TestPanels::presentValueGivenBackChangesNothing()
{
    QFETCH(QString, name);
    ShapeDriver shape(name);
    shape.createByClick();
    const QByteArray before = coreBytes(shape);
    const QString geometry = shape.geometry();
    const QList<int> ids = shape.object().getAttributeIds();
    for (const int property : ids) {
        // With the record flag the pen width is the index that the panel shows, as the value is.
        QByteArray value = bareValue(shape, property);
        QDataStream in(&value, QIODevice::ReadWrite);
        if (shape.core().findPropItemByPropID(property))
            QVERIFY(shape.object().SetAttribute(property, in, true));
    }
    QCOMPARE(coreBytes(shape), before);
    QCOMPARE(shape.geometry(), geometry);
}

QTEST_MAIN(TestPanels)
#include "test_panels.moc"
