// Promises about panels: properties can be read, shown in words, answered and taken back.

#include <checklist/check.h>
#include <checklist/randomedits.h>
#include <checklist/shapedriver.h>
#include <checklist/states.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <QtCore/QDataStream>
#include <QtCore/QSet>
#include <QtWidgets/QUndoStack>

#include <algorithm>

namespace checklist {

namespace {

/// Localisation keys begin so.
const QString keyStart = QStringLiteral("IDS_");
/// Keys of the library, whose texts the host has.
const QStringList libraryKeyStarts{QStringLiteral("IDS_SVG_"), QStringLiteral("IDS_ITEM_"),
                                   QStringLiteral("IDS_MATHOBJ_"), QStringLiteral("IDS_PHYSICSOBJ_")};
constexpr int firstOwnProperty = 5101;

QString idOf(const QJsonValue &control)
{
    return control.toObject()[QStringLiteral("id")].toString();
}

/// A key of the shape's own needs an English text.
bool isTold(const QString &text, const pagehost::TextTable &english)
{
    const auto isStart = [&text](const QString &start) { return text.startsWith(start); };
    return !text.startsWith(keyStart) || !english.value(text).isEmpty() ||
           std::any_of(libraryKeyStarts.cbegin(), libraryKeyStarts.cend(), isStart);
}

void settingsHaveIdsAndTitles(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    const pagehost::TextTable english = subject.plugin->texts(QStringLiteral("en"));
    QSet<QString> ids;
    const QJsonArray settings = settingsOf(shape);
    report.expect(!settings.isEmpty(), QStringLiteral("the settings panel is empty"));
    for (const QJsonValue &control : settings) {
        const QString id = idOf(control);
        report.expect(id.startsWith(QLatin1String("id")), QStringLiteral("the control \"%1\" has no id").arg(id));
        report.expect(!ids.contains(id), QStringLiteral("two controls have the id \"%1\"").arg(id));
        ids.insert(id);
        const QString title = control.toObject()[QStringLiteral("title")].toString();
        report.expect(isTold(title, english), QStringLiteral("\"%1\" has no English text").arg(title));
        const QJsonArray texts = control.toObject()[QStringLiteral("texts")].toArray();
        for (const QJsonValue &entry : texts)
            report.expect(isTold(entry.toString(), english),
                          QStringLiteral("\"%1\" has no English text").arg(entry.toString()));
    }
}

void everyAnswerIsOneStepAndIsTakenBack(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    RandomEdits answers(shape, startValue);
    const QJsonArray settings = settingsOf(shape);
    for (const QJsonValue &control : settings) {
        const QString id = idOf(control);
        const QByteArray before = savedBytes(shape);
        const int steps = shape.undoStack().count();
        report.expect(answer(shape, {{id, answers.answerTo(control.toObject())}}),
                      QStringLiteral("\"%1\" takes no answer").arg(id));
        const QByteArray after = savedBytes(shape);
        report.expect(after != before, QStringLiteral("an answer of \"%1\" isn't saved").arg(id));
        if (!report.expect(shape.undoStack().count() == steps + 1,
                           QStringLiteral("an answer of \"%1\" isn't one undo step").arg(id)))
            continue;
        shape.undoStack().undo();
        report.expect(savedBytes(shape) == before, QStringLiteral("an answer of \"%1\" isn't undone").arg(id));
        shape.undoStack().redo();
        report.expect(savedBytes(shape) == after, QStringLiteral("an answer of \"%1\" isn't redone").arg(id));
    }
}

void allAnswersTogetherAreOneStep(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    RandomEdits answers(shape, startValue);
    QJsonObject all;
    const QJsonArray settings = settingsOf(shape);
    for (const QJsonValue &control : settings)
        all[idOf(control)] = answers.answerTo(control.toObject());
    const QByteArray before = savedBytes(shape);
    report.expect(answer(shape, all) && savedBytes(shape) != before, QStringLiteral("answers have no effect"));
    if (!report.expect(shape.undoStack().count() == 1,
                       QStringLiteral("answers given together aren't one undo step")))
        return;
    shape.undoStack().undo();
    report.expect(savedBytes(shape) == before, QStringLiteral("answers given together aren't undone"));
}

void nonsenseIsNoAnswer(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    const QByteArray before = savedBytes(shape);
    report.expect(shape.object().SetSettingJson(QStringLiteral("{ nonsense"), true, true) &&
                      answer(shape, {{QStringLiteral("idNobody"), QStringLiteral("1")}}),
                  QStringLiteral("nonsense is refused, which loses other answers"));
    report.expect(savedBytes(shape) == before && shape.undoStack().count() == 0,
                  QStringLiteral("nonsense changes the shape"));
    // Numbers far outside the bounds, and words where numbers belong: the shape stays one that can be drawn.
    const QJsonArray settings = settingsOf(shape);
    for (const QJsonValue &control : settings)
        if (idOf(control) != QLatin1String("idLineStyle"))
            for (const char *text : {"-1e9", "1e9", "nan", "word", ""})
                answer(shape, {{idOf(control), QString::fromLatin1(text)}});
    report.expect(!shape.painted().isNull(), QStringLiteral("it isn't drawn after answers out of bounds"));
    ShapeDriver copy(subject.plugin, subject.kindId);
    report.expect(open(copy, savedBytes(shape)) && savedBytes(copy) == savedBytes(shape),
                  QStringLiteral("after answers out of bounds it isn't opened as it is saved"));
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

/// Bytes of the bounds before the value.
int boundsSize(const Description &description)
{
    constexpr int slider = 7;
    constexpr int wholeBounds = 12;
    constexpr int realBounds = 24;
    if (description.editor != slider)
        return 0;
    return description.rest.size() == wholeBounds + 4 ? wholeBounds : realBounds;
}

bool tellsValue(const Description &description, const QByteArray &value)
{
    constexpr int list = 1;
    // A list has its length before the value and its entries behind it.
    if (description.editor == list)
        return description.rest.mid(4).startsWith(value) && description.rest.size() > 8;
    return description.rest.mid(boundsSize(description)) == value;
}

void propertiesTellTheirEditorAndValue(const Subject &subject, Report &report)
{
    static const QSet<int> editors{1, 2, 4, 5, 7, 8};
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    const pagehost::TextTable english = subject.plugin->texts(QStringLiteral("en"));
    const QList<int> ids = shape.object().getAttributeIds();
    for (const int property : ids) {
        if (!shape.core().findPropItemByPropID(property))
            continue;
        const Description description = describe(shape, property);
        const QString name = QStringLiteral("property %1 (%2)").arg(property).arg(description.name);
        report.expect(description.id == property, name + QStringLiteral(" gives another id"));
        report.expect(editors.contains(description.editor), name + QStringLiteral(" has no editor"));
        report.expect(description.isEnabled, name + QStringLiteral(" is switched off"));
        report.expect(property < firstOwnProperty || isTold(description.name, english),
                      name + QStringLiteral(" has no English text"));
        const QByteArray value = bareValue(shape, property);
        report.expect(!value.isEmpty() && tellsValue(description, value),
                      name + QStringLiteral(" doesn't show its value"));
    }
}

void presentValueGivenBackChangesNothing(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByClick();
    const QByteArray before = savedBytes(shape);
    const QString geometry = shape.geometry();
    const QList<int> ids = shape.object().getAttributeIds();
    for (const int property : ids) {
        // With the record flag the pen width is the index that the panel shows, as the value is.
        QByteArray value = bareValue(shape, property);
        QDataStream in(&value, QIODevice::ReadWrite);
        if (shape.core().findPropItemByPropID(property))
            report.expect(shape.object().SetAttribute(property, in, true),
                          QStringLiteral("property %1 refuses its own value").arg(property));
    }
    report.expect(savedBytes(shape) == before && shape.geometry() == geometry,
                  QStringLiteral("present values given back change the shape"));
}

} // namespace

const QVector<Check> &panelChecks()
{
    static const QVector<Check> checks{
        {"settings", "settings have ids and titles", &settingsHaveIdsAndTitles},
        {"answers", "every answer is one step and is taken back", &everyAnswerIsOneStepAndIsTakenBack},
        {"answers-together", "all answers together are one step", &allAnswersTogetherAreOneStep},
        {"nonsense", "nonsense is no answer", &nonsenseIsNoAnswer},
        {"properties", "properties give their editor and value", &propertiesTellTheirEditorAndValue},
        {"same-values", "a present value given back changes nothing", &presentValueGivenBackChangesNothing},
    };
    return checks;
}

} // namespace checklist
