#include <declared/core/declaredshape.h>

#include <declared/core/savedtext.h>
#include <declared/reader/filelimits.h>

#include <svgobj/csvgbaseundocmd.h>
#include <svgobj/csvgobj.h>

#include <framework/idocument.h>

#include <pagehost/objectplugin.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtCore/QJsonObject>

#include <algorithm>
#include <cmath>
#include <utility>

namespace declared {

namespace {

/// The page object paints its fill for this type whatever the template says.
constexpr int externallyFilledType = 1000;
/// Where nothing limits a drag.
constexpr double farAway = 1e6;
constexpr int presentForm = 1;
const QLatin1String savedKey(declaredKey);
const QString labelsKey = QStringLiteral("labels");
const QString pointsKey = QStringLiteral("points");
// Of the library, in the JSON of every shape.
const QString controlCountKey = QStringLiteral("SVG_ControlCount");
const QString viewBoxKey = QStringLiteral("SVG_viewBox");
const QString cornerKeys = QStringLiteral("SVG_Pos");
const QStringList knownMembers{QStringLiteral("form"),   QStringLiteral("id"),     QStringLiteral("text"),
                               QStringLiteral("inline"), QStringLiteral("values"), pointsKey};

int typeOf(const Declaration &declaration)
{
    if (declaration.isSuccessor())
        return declaration.type;
    return declaration.filling == Filling::Page ? DeclaredShape::pageFilledType : DeclaredShape::shapeFilledType;
}

/// The number that a whole or real one stands for; whole ones take the nearest.
void takeNumber(shapekit::Property &property, PropertyKind kind, double number)
{
    if (kind == PropertyKind::Whole)
        static_cast<shapekit::WholeNumber &>(property) = int(std::round(std::clamp(number, -1e9, 1e9)));
    else
        static_cast<shapekit::RealNumber &>(property) = number;
}

QString listText(const QVector<double> &numbers)
{
    QStringList texts;
    for (const double number : numbers)
        texts.append(numberText(number));
    return texts.join(QLatin1Char(' '));
}

QVector<QPointF> entriesOf(const QVector<double> &numbers, bool arePoints)
{
    QVector<QPointF> entries;
    for (int i = 0; i < numbers.size(); i += arePoints ? 2 : 1)
        entries.append({numbers.at(i), arePoints ? numbers.value(i + 1) : 0});
    return entries;
}

} // namespace

DeclaredShape::DeclaredShape(CSVGObj *owner, const ShapeKind &kind)
    : Shape(owner, typeOf(kind.declaration()),
            kind.declaration().sizing == declared::Sizing::Redrawn ? Redrawn : Stretched)
    , m_kind(kind)
    , m_declaration(kind.declaration())
    , m_state(kind.declaration())
    , m_figure(kind.declaration())
    , m_labels(kind.declaration().labels)
{
    keepAspectRatio = m_declaration.keepsAspect;
    setExternalFilled(m_declaration.type == externallyFilledType);
    addProperties(kind);
    // Behind the others, whose ids go by their order.
    m_labels.addProperties(this, kind.labelTitles());
}

void DeclaredShape::addProperties(const ShapeKind &kind)
{
    for (int i = 0; i < m_declaration.properties.size(); ++i) {
        const PropertyDeclaration &declared = m_declaration.properties.at(i);
        std::unique_ptr<shapekit::Property> property = makeProperty(kind, i, declared.kind);
        if (!m_declaration.isSuccessor())
            property->setIds(declared.id, declared.id);
        property->setPanels(declared.inPropertyPanel, declared.inSettings);
        m_values.push_back(std::move(property));
    }
    for (int i = 0; i < m_declaration.properties.size(); ++i)
        addFormerProperties(kind, i);
}

void DeclaredShape::addFormerProperties(const ShapeKind &kind, int index)
{
    for (const FormerProperty &former : m_declaration.properties.at(index).former) {
        m_former.push_back({makeProperty(kind, index, former.kind), former.kind, index});
        m_former.back().property->setIds(former.id, former.id);
        m_former.back().property->setPanels(false, false);
    }
}

std::unique_ptr<shapekit::Property> DeclaredShape::makeProperty(const ShapeKind &kind, int index,
                                                                PropertyKind valueKind)
{
    const PropertyDeclaration &declared = m_declaration.properties.at(index);
    const shapekit::Text &title = kind.title(index);
    switch (valueKind) {
    case PropertyDeclaration::Whole:
        return std::make_unique<shapekit::WholeNumber>(this, title, int(declared.number),
                                                       int(std::ceil(declared.from)), int(std::floor(declared.to)));
    case PropertyDeclaration::Real:
        return std::make_unique<shapekit::RealNumber>(this, title, declared.number, declared.from, declared.to,
                                                      declared.step);
    case PropertyDeclaration::Switch:
        return std::make_unique<shapekit::Switch>(this, title, declared.number != 0);
    case PropertyDeclaration::Choice:
        return std::make_unique<shapekit::Choice>(this, title, int(declared.number), kind.entries(index));
    case PropertyDeclaration::Colour:
        return std::make_unique<shapekit::ColorValue>(this, title, declared.colour.rgb());
    case PropertyDeclaration::Text:
        return std::make_unique<shapekit::TextValue>(this, title, declared.text);
    case PropertyDeclaration::Numbers:
    case PropertyDeclaration::Points:
        break;
    }
    auto list =
        std::make_unique<shapekit::NumberList>(this, title, declared.numbers.size(), declared.from, declared.to);
    list->takeAnswer(listText(declared.numbers));
    return list;
}

QString DeclaredShape::getSVG()
{
    return QString::fromUtf8(m_declaration.templateText);
}

void DeclaredShape::setPenColor(QColor color, bool record)
{
    // Expressions may name the colour: the next drawing is another one.
    updateSVG(false);
    Shape::setPenColor(color, record);
    m_figure.copyPaints();
}

void DeclaredShape::setFillBrush(const QBrush &brush, bool record, bool notify)
{
    updateSVG(false);
    Shape::setFillBrush(brush, record, notify);
}

QRectF DeclaredShape::paintedArea()
{
    QRectF area = Shape::paintedArea();
    if (!document || document->viewBox().isEmpty())
        return area;
    const QTransform toObject = stretching(document->viewBox(), owner->getClientRect());
    const QVector<QZeSvgStructureNode *> groups = m_figure.repeatedGroups();
    for (const QZeSvgStructureNode *group : groups)
        area |= toObject.mapRect(paintedBoundsOf(*group));
    return area;
}

ShapeState &DeclaredShape::presentState()
{
    updateState();
    return m_state;
}

void DeclaredShape::updateState()
{
    m_state.renewBudget();
    m_state.setSize(size());
    m_state.setFrame(frame());
    m_state.setStyle(getPenColor().rgb(), getFillBrush().color().rgb(), document->getAllStrokeWidth());
    m_state.setPoints(standingPoints());
    for (int i = 0; i < m_declaration.properties.size(); ++i)
        updateProperty(i);
}

void DeclaredShape::updateProperty(int index)
{
    const PropertyDeclaration &declared = m_declaration.properties.at(index);
    const shapekit::Property &property = *m_values.at(size_t(index));
    switch (declared.kind) {
    case PropertyDeclaration::Whole:
        m_state.setProperty(declared, double(static_cast<const shapekit::WholeNumber &>(property)));
        return;
    case PropertyDeclaration::Real:
        m_state.setProperty(declared, double(static_cast<const shapekit::RealNumber &>(property)));
        return;
    case PropertyDeclaration::Switch:
        m_state.setProperty(declared, static_cast<const shapekit::Switch &>(property) ? 1.0 : 0.0);
        return;
    case PropertyDeclaration::Choice:
        m_state.setProperty(declared, declared.entries.value(static_cast<const shapekit::Choice &>(property)));
        return;
    case PropertyDeclaration::Colour:
        m_state.setProperty(declared, QColor(static_cast<const shapekit::ColorValue &>(property)).name());
        return;
    case PropertyDeclaration::Text:
        m_state.setProperty(
            declared, QString(static_cast<const shapekit::TextValue &>(property)).left(limits::textCharacters));
        return;
    case PropertyDeclaration::Numbers:
    case PropertyDeclaration::Points:
        m_state.setList(declared, entriesOf(static_cast<const shapekit::NumberList &>(property).numbers(),
                                            declared.kind == PropertyDeclaration::Points));
        return;
    }
}

void DeclaredShape::propertyChanged(const shapekit::Property *property)
{
    for (const FormerValue &former : m_former) {
        if (former.property.get() != property)
            continue;
        const PropertyKind kind = m_declaration.properties.at(former.successor).kind;
        shapekit::Property &successor = *m_values.at(size_t(former.successor));
        if (kind == former.kind)
            successor.setBytes(property->bytes());
        else
            takeNumber(successor, kind, property->toJson().toDouble());
    }
    Shape::propertyChanged(property);
}

QVector<QPointF> DeclaredShape::standingPoints() const
{
    QVector<QPointF> points;
    // Saved data may bring more points than the file has, or fewer.
    for (int number = 1; number <= pointCount(); ++number)
        points.append(point(number));
    return points;
}

QRectF DeclaredShape::range(int number)
{
    const PointDeclaration &point = m_declaration.point(number);
    if (point.place.isValid() || point.track.kind != TrackDeclaration::None || point.mirrored > 0)
        return QRectF(QPointF(-farAway, -farAway), QPointF(farAway, farAway));
    updateState();
    return m_state.range(number, Shape::range(number));
}

QPointF DeclaredShape::settled(int number, QPointF centre)
{
    updateState();
    return m_state.settled(number, centre, Shape::range(number));
}

bool DeclaredShape::mayMove(int number, QPointF centre)
{
    if (!m_declaration.point(number).allowed.isValid())
        return true;
    updateState();
    const QPointF stands = m_state.settled(number, centre, Shape::range(number));
    return m_state.isAllowed(number, centre, stands);
}

void DeclaredShape::pointMoved(int number, QPointF centre)
{
    const PointDeclaration &point = m_declaration.point(number);
    Shape::pointMoved(number, centre);
    if (point.mirrored == 0)
        return;
    m_state.setSize(size());
    Shape::pointMoved(point.mirrored, m_state.mirrored(point, centre));
}

bool DeclaredShape::mousePressEvent(QGraphicsSceneMouseEvent *event)
{
    const bool isPressed = Shape::mousePressEvent(event);
    m_placesBeforeDrag = places();
    return isPressed;
}

/// The library makes its own undo step for an active point only.
bool DeclaredShape::mouseReleaseEvent(QGraphicsSceneMouseEvent *event)
{
    QZeSvgNode *dragged = std::exchange(activeControlPoint, nullptr);
    Shape::mouseReleaseEvent(event);
    if (!dragged)
        return false;
    if (belongDoc && belongDoc->editingBlocked() != 0) {
        activeControlPoint = dragged;
        return false;
    }
    finishDrag();
    updateOutlineRegion();
    return true;
}

void DeclaredShape::finishDrag()
{
    const QByteArray after = bytesOf(places());
    auto *command = new CSVGBaseUndoCmd(this, placesAction, nullptr, true);
    command->setDataBuffer(bytesOf(m_placesBeforeDrag), after);
    m_mayHaveUndoSteps = true;
    addUndoRedo(command);
    RecordDataBuffer(after, placesAction);
}

void DeclaredShape::putPoints(const Places &places)
{
    takePlaces(places);
    updateOutlineRegion();
    invalidate();
}

bool DeclaredShape::getInnerProperty(int propId, QDataStream &out)
{
    if (const auto part = m_labels.letters().partOf(propId)) {
        m_labels.letters().write(*part, getPenColor(), out);
        return true;
    }
    if (!m_labels.hasRound(propId))
        return Shape::getInnerProperty(propId, out);
    out << m_labels.textOfRound(propId);
    return true;
}

int DeclaredShape::actionIdToPropId(int actionId)
{
    const bool isOfLabels = m_labels.hasRound(actionId) || m_labels.letters().partOf(actionId);
    return isOfLabels ? actionId : Shape::actionIdToPropId(actionId);
}

bool DeclaredShape::writeRound(int id, QDataStream &in, bool record, bool addUndo)
{
    const QString before = m_labels.textOfRound(id);
    QString text;
    in >> text;
    if (in.status() != QDataStream::Ok)
        return false;
    if (addUndo) {
        auto *command = new CSVGBaseUndoCmd(this, id, nullptr, true);
        command->setString(before, text);
        addUndoRedo(command);
    }
    if (record)
        RecordString(text, id);
    m_labels.setTextOfRound(id, text);
    propertyChanged(nullptr);
    return true;
}

bool DeclaredShape::setInnerProperty(int propId, QDataStream &in, bool record, bool addUndo)
{
    m_mayHaveUndoSteps = m_mayHaveUndoSteps || addUndo;
    if (m_labels.hasRound(propId))
        return writeRound(propId, in, record, addUndo);
    if (const auto part = m_labels.letters().partOf(propId))
        return setLetters(*part, in, record, addUndo);
    return Shape::setInnerProperty(propId, in, record, addUndo);
}

bool DeclaredShape::DoPlaybackActionEx(int actionId, QDataStream &in)
{
    if (m_replay && (m_isRetired || actionId == versionAction))
        return m_replay(actionId, in);
    if (actionId != placesAction)
        return Shape::DoPlaybackActionEx(actionId, in);
    const Places places = placesFrom(in);
    if (!document || places.isEmpty())
        return false;
    putPoints(places);
    return true;
}

void DeclaredShape::retire()
{
    m_isRetired = true;
    stopAnimate();
}

void DeclaredShape::takeOver(DeclaredShape &former)
{
    QJsonObject state;
    saveJson(state);
    const bool isSizedAlike = former.resizeRewritesSVG == resizeRewritesSVG;
    QJsonObject before;
    former.saveJson(before);
    const QJsonValue count = state.value(controlCountKey);
    const QJsonValue box = state.value(viewBoxKey);
    for (auto member = before.begin(); member != before.end(); ++member)
        if (isSizedAlike || !member.key().startsWith(cornerKeys))
            state[member.key()] = *member;
    state[controlCountKey] = count;
    if (!isSizedAlike) {
        QJsonObject saved = state.value(savedKey).toObject();
        saved.remove(pointsKey);
        state[savedKey] = saved;
        state[viewBoxKey] = box;
    }
    loadJson(state);
    if (isSizedAlike)
        inheritPoints(former);
    if (resizeRewritesSVG)
        setSize(QSizeF(), owner->getClientRect().size());
    document->setSelectionState(former.document->selectionState());
    takePageFill();
    m_isTextInlined = former.m_isTextInlined;
}

QVector<shapekit::LabelPlace> DeclaredShape::labelPlaces()
{
    settleDrawing();
    return m_labels.places();
}

bool DeclaredShape::hideLabel(int propertyId)
{
    m_labels.hide(propertyId);
    updateSVG(false);
    invalidate();
    return true;
}

QByteArray DeclaredShape::toSvg()
{
    return m_labels.withTexts(Shape::toSvg());
}

bool DeclaredShape::GetSettingArray(QJsonArray &settings)
{
    Shape::GetSettingArray(settings);
    for (int i = 0; i < settings.size(); ++i) {
        const QJsonObject control = settings.at(i).toObject();
        if (const auto part = m_labels.partOfControl(control.value(QLatin1String("id")).toString()))
            settings[i] = shapekit::letterControl(control, *part);
    }
    addLetterControls(settings);
    return true;
}

QString DeclaredShape::hint(int number)
{
    const Expression &declared = m_declaration.point(number).hint;
    if (!declared.isValid())
        return {};
    const Value hint = presentState().valueOf(declared);
    return hint.isFinite() ? hint.text : QString();
}

QString DeclaredShape::hintAt(int number, QPointF centre)
{
    updateState();
    // A copy, since what is asked here happens to nobody.
    ShapeState state = m_state;
    QVector<QPointF> points = standingPoints();
    points[number - 1] = state.settled(number, centre, Shape::range(number));
    state.setPoints(points);
    const Value hint = state.valueOf(m_declaration.point(number).hint);
    return hint.isFinite() ? hint.text : QString();
}

void DeclaredShape::writePointEnds(QDataStream &out)
{
    settleDrawing();
    QVector<int> telling;
    for (int number = 1; number <= pointCount(); ++number) {
        const QZeSvgNode *point = controlPoints[number - 1];
        const QRectF ends = range(number);
        const bool isOneWay = point && (point->canMoveHorizontally() && ends.width() > 0) !=
                                           (point->canMoveVertically() && ends.height() > 0);
        if (isOneWay && m_declaration.point(number).hint.isValid())
            telling.append(number);
    }
    out << qint32(telling.size());
    for (const int number : qAsConst(telling)) {
        const QRectF ends = range(number);
        out << qint32(number) << hintAt(number, ends.topLeft()) << hintAt(number, ends.bottomRight());
    }
}

bool DeclaredShape::GetSpecialProperty(int propId, QDataStream &out)
{
    if (propId != pagehost::ControlPointEnds || !document)
        return Shape::GetSpecialProperty(propId, out);
    writePointEnds(out);
    return true;
}

QVector<shapekit::Connection> DeclaredShape::connections()
{
    if (m_declaration.connections.isEmpty())
        return Shape::connections();
    ShapeState &state = presentState();
    QVector<shapekit::Connection> places;
    for (const ConnectionDeclaration &declared : m_declaration.connections) {
        const Value at = state.valueOf(declared.at);
        const double out = declared.out.isValid() ? state.valueOf(declared.out).number() : qQNaN();
        if (at.isFinite())
            places.append({declared.name, at.point, out});
    }
    return places;
}

void DeclaredShape::draw()
{
    updateState();
    LabelRounds rounds(m_labels, m_state);
    m_figure.write(*document, m_state, rounds);
    m_labels.draw(*document, m_state);
    const QVector<Message> notes = m_state.takeNotes();
    for (const Message &note : notes)
        m_kind.tell(note);
}

QJsonObject DeclaredShape::values() const
{
    QJsonObject values;
    for (int i = 0; i < m_declaration.properties.size(); ++i) {
        const PropertyDeclaration &declared = m_declaration.properties.at(i);
        const shapekit::Property &property = *m_values.at(size_t(i));
        const bool isChoice = declared.kind == PropertyDeclaration::Choice;
        values[declared.name] =
            isChoice ? QJsonValue(declared.entries.at(static_cast<const shapekit::Choice &>(property)))
                     : property.toJson();
    }
    QJsonObject saved = m_unknown;
    saved[QStringLiteral("form")] = presentForm;
    saved[QStringLiteral("id")] = m_declaration.id;
    saved[QStringLiteral("text")] = m_declaration.hash;
    saved[QStringLiteral("values")] = values;
    if (!places().isEmpty())
        saved[pointsKey] = toJson(places());
    if (m_isTextInlined)
        saved[QStringLiteral("inline")] = inlined(m_declaration.text);
    const QJsonObject labels = m_labels.toJson(Labels::AllSingle);
    if (!labels.isEmpty())
        saved[labelsKey] = labels;
    return saved;
}

/// Properties that are missing or unknown keep the value of a new shape.
void DeclaredShape::takeValues(const QJsonObject &saved)
{
    m_unknown = saved;
    for (const QString &member : knownMembers)
        m_unknown.remove(member);
    const QJsonObject values = saved.value(QLatin1String("values")).toObject();
    for (int i = 0; i < m_declaration.properties.size(); ++i) {
        const PropertyDeclaration &declared = m_declaration.properties.at(i);
        QJsonValue value = values.value(declared.name);
        for (const FormerProperty &former : declared.former)
            if (value.isUndefined())
                value = values.value(former.name);
        if (value.isDouble() && (declared.kind == PropertyKind::Whole || declared.kind == PropertyKind::Real)) {
            takeNumber(*m_values.at(size_t(i)), declared.kind, value.toDouble());
            continue;
        }
        if (declared.kind == PropertyDeclaration::Choice) {
            const int entry = declared.entries.indexOf(value.toString());
            value = entry < 0 ? QJsonValue() : QJsonValue(entry);
        }
        m_values.at(size_t(i))->fromJson(value);
    }
    m_labels.fromJson(saved.value(labelsKey).toObject());
    takePlaces(placesFrom(saved.value(pointsKey).toArray()));
    propertyChanged(nullptr);
}

void DeclaredShape::saveValues(QDataStream &out)
{
    if (m_declaration.isSuccessor()) {
        Shape::saveValues(out);
        return;
    }
    out << QJsonDocument(values()).toJson(QJsonDocument::Compact);
}

void DeclaredShape::loadValues(QDataStream &in)
{
    if (m_declaration.isSuccessor()) {
        Shape::loadValues(in);
        return;
    }
    QByteArray bytes;
    in >> bytes;
    takeValues(QJsonDocument::fromJson(bytes).object());
}

void DeclaredShape::saveValues(QJsonObject &object)
{
    if (!m_declaration.isSuccessor()) {
        object[savedKey] = values();
        return;
    }
    Shape::saveValues(object);
    const QJsonObject labels = m_labels.toJson(Labels::ChangedSingle);
    if (!labels.isEmpty())
        object[savedKey] = QJsonObject{{labelsKey, labels}};
}

void DeclaredShape::loadValues(const QJsonObject &object)
{
    const QJsonObject saved = object.value(savedKey).toObject();
    if (!m_declaration.isSuccessor()) {
        takeValues(saved);
        return;
    }
    m_labels.fromJson(saved.value(labelsKey).toObject());
    Shape::loadValues(object);
}

QByteArray DeclaredShape::furtherValue() const
{
    const QJsonObject labels = m_labels.toJson(Labels::ChangedSingle);
    return labels.isEmpty() ? QByteArray() : QJsonDocument(labels).toJson(QJsonDocument::Compact);
}

void DeclaredShape::takeFurtherValue(const QByteArray &bytes)
{
    m_labels.fromJson(QJsonDocument::fromJson(bytes).object());
}

} // namespace declared
