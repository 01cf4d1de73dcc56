// Promises about saving, undo and playback: whatever a user does comes back to the byte.

#include <checklist/check.h>
#include <checklist/randomedits.h>
#include <checklist/recordedactions.h>
#include <checklist/shapedriver.h>
#include <checklist/states.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>
#include <QtGui/QBrush>
#include <QtWidgets/QUndoStack>

#include <cmath>

namespace checklist {

namespace {

constexpr int editCount = 25;
constexpr int damagedCount = 12;
constexpr int undoneEditCount = 30;
const QSizeF drawnSize(183.5, 147.25);

/// A shape that a user has drawn, selected and edited.
class Edited : public ShapeDriver
{
public:
    explicit Edited(const Subject &subject, int edits = editCount)
        : ShapeDriver(subject.plugin, subject.kindId)
    {
        createByDrag(drawnSize);
        select();
        RandomEdits(*this, startValue).edit(edits);
    }
};

void openedBytesSaveTheSame(const Subject &subject, Report &report)
{
    const QByteArray saved = savedBytes(Edited(subject));
    ShapeDriver copy(subject.plugin, subject.kindId);
    report.expect(open(copy, saved), QStringLiteral("it doesn't open its own bytes, or leaves some"));
    report.expect(savedBytes(copy) == saved, QStringLiteral("saved again, the bytes differ"));
}

// Corners a rounding error away from those of a new shape, as zooming leaves them.
void openedPointNextToItsNewPlaceSavesTheSame(const Subject &subject, Report &report)
{
    ShapeDriver original(subject.plugin, subject.kindId);
    original.createByClick();
    for (int number = 1; number <= original.controlPointCount(); ++number) {
        QZeSvgNode *point = original.document().namedNode(QStringLiteral("control_%1").arg(number));
        const QPointF corner = point->boundingRect().topLeft();
        point->setNumericAttribute(QStringLiteral("x"), std::nextafter(corner.x(), 1e6));
        point->setNumericAttribute(QStringLiteral("y"), std::nextafter(corner.y(), -1e6));
    }
    const QByteArray saved = savedBytes(original);
    ShapeDriver copy(subject.plugin, subject.kindId);
    report.expect(open(copy, saved), QStringLiteral("it doesn't open its own bytes"));
    report.expect(savedBytes(copy) == saved, QStringLiteral("saved again, the bytes differ"));
}

void openedJsonSavesTheSame(const Subject &subject, Report &report)
{
    const QByteArray saved = savedJson(Edited(subject));
    ShapeDriver copy(subject.plugin, subject.kindId);
    QJsonObject object = QJsonDocument::fromJson(saved).object();
    report.expect(copy.object().loadJson(object), QStringLiteral("it doesn't open its own JSON"));
    report.expect(savedJson(copy) == saved, QStringLiteral("saved again, the JSON differs"));
}

void openedShapeLooksTheSame(const Subject &subject, Report &report)
{
    Edited original(subject);
    ShapeDriver copy(subject.plugin, subject.kindId);
    open(copy, savedBytes(original));
    report.expect(copy.geometry() == original.geometry(),
                  QStringLiteral("the geometry of an opened shape differs"));
    original.object().setSelected(false);
    report.expect(copy.painted() == original.painted(), QStringLiteral("the picture of an opened shape differs"));
}

void openedShapeIsHitWhereItWas(const Subject &subject, Report &report)
{
    Edited original(subject);
    ShapeDriver copy(subject.plugin, subject.kindId);
    open(copy, savedBytes(original));
    const QRectF bounds = copy.object().boundingRect();
    const QPainterPath region = copy.object().shape();
    // The caller may be searching the scene, which must not be rearranged then.
    report.expect(copy.object().boundingRect() == bounds,
                  QStringLiteral("asking for its region changes its bounds"));
    original.object().notifyOutlineRegionChanged();
    report.expect(region == original.object().shape(), QStringLiteral("the region of an opened shape differs"));
}

void editsAreUndoneAndRedoneToTheByte(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByDrag(drawnSize);
    shape.select();
    RandomEdits edits(shape, startValue);
    QVector<QByteArray> states{savedBytes(shape)};
    for (int tries = 0; states.size() <= undoneEditCount && tries < 10 * undoneEditCount; ++tries) {
        const int before = shape.undoStack().count();
        edits.edit();
        // Properties that the shape doesn't offer make no step.
        if (shape.undoStack().count() == before)
            continue;
        if (!report.expect(shape.undoStack().count() == before + 1,
                           QStringLiteral("one edit makes several undo steps")))
            return;
        states.append(savedBytes(shape));
    }
    if (!report.expect(states.size() > 1, QStringLiteral("no edit can be undone")))
        return;
    // Back and forth at random, and all the way in the end.
    std::mt19937 random(startValue);
    int present = states.size() - 1;
    for (int i = 0; i < 4 * undoneEditCount; ++i) {
        const bool back = i < 2 * undoneEditCount ? random() % 2 : i < 3 * undoneEditCount;
        if (back ? present == 0 : present == states.size() - 1)
            continue;
        back ? shape.undoStack().undo() : shape.undoStack().redo();
        present += back ? -1 : 1;
        if (!report.expect(savedBytes(shape) == states.at(present),
                           QStringLiteral("%1 doesn't bring state %2 of %3 back")
                               .arg(back ? QStringLiteral("undo") : QStringLiteral("redo"))
                               .arg(present)
                               .arg(states.size())))
            return;
    }
}

// The page object grows between edit and undo: the form of before comes back, at the new size.
void formOfBeforeComesBackAfterOtherSizes(const Subject &subject, Report &report)
{
    ShapeDriver shape(subject.plugin, subject.kindId);
    shape.createByDrag(QSizeF(150, 150));
    shape.select();
    const QString before = shape.geometry();
    const QSizeF size = shape.object().getClientRect().size();
    RandomEdits(shape, startValue).edit(editCount);
    shape.object().setSize(size * 2, false, true);
    shape.object().setSize(size, false, true);
    while (shape.undoStack().canUndo())
        shape.undoStack().undo();
    report.expect(shape.geometry() == before, QStringLiteral("undo after other sizes gives another form"));
}

/// A fill is recorded as its colour and replayed as a brush: whoever plays converts it.
QByteArray payloadToReplay(int action, const QByteArray &payload)
{
    if (action != ACT_SVG_FILLCOLOR)
        return payload;
    QColor color;
    QDataStream in(payload);
    in >> color;
    QByteArray converted;
    QDataStream out(&converted, QIODevice::WriteOnly);
    out << QBrush(color);
    return converted;
}

void playbackEqualsTheLesson(const Subject &subject, Report &report)
{
    ShapeDriver live(subject.plugin, subject.kindId);
    live.createByDrag(drawnSize);
    live.select();
    QByteArray start;
    QDataStream out(&start, QIODevice::WriteOnly);
    live.object().SavePropertyForPlayback(out);
    const QByteArray saved = savedBytes(live);

    RecordedActions lesson;
    RandomEdits(live, startValue).edit(editCount);
    report.expect(lesson.actions.size() >= editCount / 2, QStringLiteral("edits are not recorded"));

    ShapeDriver player(subject.plugin, subject.kindId);
    open(player, saved);
    QDataStream snapshot(start);
    report.expect(player.object().LoadPropertyForPlayback(snapshot),
                  QStringLiteral("the start of a lesson is refused"));
    report.expect(savedBytes(player) == saved, QStringLiteral("the start of a lesson changes the shape"));
    const int recorded = lesson.actions.size();
    for (int i = 0; i < recorded; ++i) {
        const int action = lesson.actions.at(i).first;
        pagehost::replayAction(&player.object(), action, payloadToReplay(action, lesson.actions.at(i).second));
    }
    report.expect(lesson.actions.size() == recorded, QStringLiteral("playing records"));
    report.expect(savedBytes(player) == savedBytes(live),
                  QStringLiteral("what is played differs from what was done"));
    live.object().setSelected(false);
    player.core().invalidate();
    live.core().invalidate();
    report.expect(player.painted() == live.painted(), QStringLiteral("the picture that is played differs"));
    report.expect(player.paintedElsewhere() == live.paintedElsewhere(),
                  QStringLiteral("the picture that is played differs in another thread"));
}

void damagedBytesAreSurvived(const Subject &subject, Report &report)
{
    const Edited original(subject);
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    original.core().save(out);
    std::mt19937 random(startValue);
    for (int i = 0; i < damagedCount; ++i) {
        QByteArray damaged = bytes;
        if (i % 2)
            damaged.truncate(int(random() % unsigned(bytes.size())));
        else
            damaged[int(random() % unsigned(bytes.size()))] = char(random());
        ShapeDriver shape(subject.plugin, subject.kindId);
        shape.createByClick();
        QDataStream in(damaged);
        report.expect(shape.core().load(in),
                      QStringLiteral("damaged bytes are refused, which loses what follows them"));
        shape.core().invalidate();
        shape.object().setSize(QSizeF(100, 100), false, false);
        report.expect(shape.object().getClientRect().isValid(),
                      QStringLiteral("damaged bytes leave no valid size"));
    }
}

} // namespace

const QVector<Check> &savingChecks()
{
    static const QVector<Check> checks{
        {"saved-bytes", "opened bytes save the same", &openedBytesSaveTheSame},
        {"saved-places", "an opened point next to its new place saves the same",
         &openedPointNextToItsNewPlaceSavesTheSame},
        {"saved-json", "opened JSON saves the same", &openedJsonSavesTheSame},
        {"opened-look", "an opened shape looks the same", &openedShapeLooksTheSame},
        {"opened-region", "an opened shape is hit where it was", &openedShapeIsHitWhereItWas},
        {"undo", "edits are undone and redone to the byte", &editsAreUndoneAndRedoneToTheByte},
        {"undo-sizes", "the form of before comes back after other sizes", &formOfBeforeComesBackAfterOtherSizes},
        {"playback", "playback equals the lesson", &playbackEqualsTheLesson},
        {"damage", "damaged bytes are survived", &damagedBytesAreSurvived},
    };
    return checks;
}

} // namespace checklist
