#include <declared/core/review.h>

#include <declared/core/declaredshape.h>
#include <declared/core/outlinedistance.h>

#include <shapekit/attributeplaces.h>
#include <shapekit/shapeobject.h>

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QLineF>

#include <algorithm>
#include <memory>

namespace declared {

namespace {

/// Document units. Files have a few digits behind the point.
constexpr double pointTolerance = 0.01;
constexpr double lookTolerance = 0.5;
/// A point that moves by less stands still, as in the kit.
constexpr double settledEpsilon = 4.0 / (1 << 20);
/// Texts are drawn in the font at hand; this part of their size may be between the file's and the declared one.
constexpr double textTolerance = 0.6;
const QString advice = QStringLiteral("\"gliololok-shape look\" writes it");

QList<QZeSvgNode *> childrenOf(const QZeSvgNode &node)
{
    const bool isStructure = node.type() == QZeSvgNode::Group || node.type() == QZeSvgNode::Document;
    return isStructure ? static_cast<const QZeSvgStructureNode &>(node).children() : QList<QZeSvgNode *>();
}

const QZeSvgNode *partOf(const QZeSvgNode *node, const QVector<int> &way)
{
    for (const int index : way)
        node = node ? childrenOf(*node).value(index) : nullptr;
    return node;
}

QPainterPath outlineOf(const QZeSvgNode &node)
{
    QPainterPath outline = node.path();
    if (node.type() == QZeSvgNode::Polygon)
        outline.addPolygon(node.polygon());
    else if (node.type() != QZeSvgNode::Path)
        outline.addRect(node.transformedBounds());
    return outline;
}

class Review
{
public:
    Review(const ShapeKind &kind, DeclaredShape &shape, const QZeSvgTinyDocument *drawn)
        : m_kind(kind)
        , m_declaration(kind.declaration())
        , m_shape(shape)
        , m_drawn(drawn)
    {
    }

    QVector<Message> messages()
    {
        for (int number = 1; number <= m_declaration.points.size(); ++number)
            reviewPoint(number);
        for (const ElementDeclaration &element : m_declaration.elements)
            if (element.repeat < 0)
                reviewElement(element);
        for (int i = 0; i < m_declaration.repeats.size(); ++i)
            reviewRepeat(i);
        // Evaluating has noted what goes wrong now.
        m_shape.presentState().takeNotes();
        return m_messages + m_kind.told();
    }

private:
    void warn(const char *code, Place place, const QString &text)
    {
        m_messages.append({Message::Warning, QLatin1String(code), place.line, place.column, text});
    }

    void reviewPoint(int number)
    {
        const PointDeclaration &point = m_declaration.point(number);
        const QPointF stands = m_shape.standingPoints().at(number - 1);
        ShapeState &state = m_shape.presentState();
        if (QLineF(stands, point.centre).length() > pointTolerance)
            warn("C34", point.source,
                 QStringLiteral("control_%1 settles at %2 %3, not where it is drawn")
                     .arg(QString::number(number), numberText(stands.x()), numberText(stands.y())));
        const QPointF again = state.settled(number, stands, m_shape.freeRange(number));
        if (QLineF(stands, again).length() > settledEpsilon)
            warn("C49", point.source,
                 QStringLiteral("control_%1 doesn't stay where it settles: %2 %3 becomes %4 %5")
                     .arg(QString::number(number), numberText(stands.x()), numberText(stands.y()),
                          numberText(again.x()), numberText(again.y())));
        if (!QRectF(QPointF(0, 0), m_declaration.size).contains(stands))
            warn("C50", point.source,
                 QStringLiteral("control_%1 stands outside of the size of the shape").arg(QString::number(number)));
        reviewRange(state, point.x);
        reviewRange(state, point.y);
    }

    void reviewRange(ShapeState &state, const AxisDeclaration &axis)
    {
        if (!axis.isLimited)
            return;
        const double low = state.valueOf(axis.range.low).number();
        const double high = state.valueOf(axis.range.high).number();
        if (low > high)
            warn("C36", axis.range.low.place,
                 QStringLiteral("the range is empty at the default size: %1 .. %2")
                     .arg(numberText(low), numberText(high)));
    }

    void reviewElement(const ElementDeclaration &element)
    {
        const QZeSvgNode *present = m_shape.drawing()->namedNode(element.id);
        if (!present)
            return;
        compare(element, partOf(m_drawn, element.way), *present);
        if (element.letters.content.isValid())
            compareText(element);
        reviewArea(element, *present);
    }

    void reviewRepeat(int index)
    {
        const RepeatDeclaration &repeat = m_declaration.repeats.at(index);
        const QZeSvgNode *group = m_shape.drawing()->namedNode(repeat.id);
        const QZeSvgNode *drawnGroup = partOf(m_drawn, repeat.way);
        if (!group || !drawnGroup || !group->isVisible())
            return;
        const QList<QZeSvgNode *> copies = childrenOf(*group);
        const QList<QZeSvgNode *> drawn = childrenOf(*drawnGroup);
        const auto isShown = [](const QZeSvgNode *copy) { return copy->isVisible(); };
        const int shown = int(std::count_if(copies.begin(), copies.end(), isShown));
        if (shown != repeat.drawnRounds)
            warn("C35", repeat.loops.first().from.place,
                 QStringLiteral("the group has %1 children in the file, and %2 when it is repeated: %3")
                     .arg(QString::number(repeat.drawnRounds), QString::number(shown), advice));
        for (const ElementDeclaration &element : m_declaration.elements)
            for (int round = 0; element.repeat == index && round < std::min(shown, drawn.size()); ++round)
                compareCopy(element, drawn.at(round), copies.at(round));
    }

    void compareCopy(const ElementDeclaration &element, const QZeSvgNode *drawn, const QZeSvgNode *copy)
    {
        const QZeSvgNode *present = partOf(copy, element.path);
        const int before = m_messages.size();
        if (present)
            compare(element, partOf(drawn, element.path), *present);
        // One message for all copies.
        if (m_messages.size() > before + 1 || (m_messages.size() > before && isTold(element, before)))
            m_messages.resize(before);
    }

    bool isTold(const ElementDeclaration &element, int count) const
    {
        const auto isIt = [&](const Message &message) {
            return message.line == element.place.line && message.column == element.place.column;
        };
        return std::any_of(m_messages.begin(), m_messages.begin() + count, isIt);
    }

    void compare(const ElementDeclaration &element, const QZeSvgNode *drawn, const QZeSvgNode &present)
    {
        if (!drawn)
            return;
        if (drawn->isVisible() != present.isVisible()) {
            warn("C35", element.place,
                 present.isVisible()
                     ? QStringLiteral("the element is hidden in the file, but not as it is declared")
                     : QStringLiteral("the element is visible in the file, but not as it is declared"));
            return;
        }
        if (!present.isVisible())
            return;
        // Letters of a declared shape are outlines, those of the file are laid out by the viewer.
        const bool isText = drawn->type() == QZeSvgNode::Text;
        const double distance =
            isText ? QLineF(drawn->transformedBounds().center(), present.transformedBounds().center()).length()
                   : outlineDistance(outlineOf(*drawn), outlineOf(present));
        const double tolerance =
            isText ? std::max(lookTolerance, textTolerance * element.letters.fixedSize) : lookTolerance;
        if (qIsInf(distance))
            warn("C35", element.place, QStringLiteral("the file lacks the declared look: %1").arg(advice));
        else if (distance > tolerance)
            warn("C35", element.place,
                 QStringLiteral("the look in the file is up to %1 apart from the declared one: %2")
                     .arg(QString::number(distance, 'g', 3), advice));
    }

    /// Of a text that isn't repeated.
    void compareText(const ElementDeclaration &element)
    {
        const Value content = m_shape.presentState().valueOf(element.letters.content);
        if (content.isFinite() && content.text.simplified() != element.letters.drawn.simplified())
            warn("C35", element.place,
                 QStringLiteral("the text in the file is \"%1\", the declared one \"%2\"")
                     .arg(element.letters.drawn.simplified().left(40), content.text.simplified().left(40)));
    }

    void reviewArea(const ElementDeclaration &element, const QZeSvgNode &present)
    {
        const QRectF bounds = present.transformedBounds();
        const double reach = present.strokeWidth() / 2 - lookTolerance;
        const QRectF room = QRectF(QPointF(0, 0), m_declaration.size);
        if (present.isVisible() && !bounds.isEmpty() &&
            !room.contains(bounds.adjusted(-reach, -reach, reach, reach)))
            warn("C50", element.place, QStringLiteral("the drawing leaves the size of the shape"));
    }

    const ShapeKind &m_kind;
    const Declaration &m_declaration;
    DeclaredShape &m_shape;
    const QZeSvgTinyDocument *m_drawn;
    QVector<Message> m_messages;
};

/// The SVG library's messages about a file, but for those that its reader gives.
QVector<Message> libraryMessages(const QByteArray &file, const QVector<QZeSvgTinyDocument::Message> &found)
{
    const shapekit::AttributePlaces attributes(found.isEmpty() ? QString() : QString::fromUtf8(file));
    QVector<Message> messages;
    for (const QZeSvgTinyDocument::Message &message : found) {
        if (message.code == QZeSvgTinyDocument::Message::ForeignReference)
            continue;
        const shapekit::TextPlace end{message.line, message.column};
        const shapekit::TextPlace place = attributes.of(message).value_or(end);
        messages.append(
            {Message::Warning, QStringLiteral("C37"), int(place.line), int(place.column), message.text});
    }
    return messages;
}

} // namespace

QVector<Message> reviewed(const ShapeKind &kind, const QByteArray &file)
{
    shapekit::ShapeObject object(kind.kind());
    auto *shape = dynamic_cast<DeclaredShape *>(object.core());
    if (!shape || !shape->drawing())
        return {};
    shape->settleDrawing();
    QVector<QZeSvgTinyDocument::Message> found;
    const std::unique_ptr<QZeSvgTinyDocument> drawn(QZeSvgTinyDocument::load(file, &found));
    QVector<Message> messages = Review(kind, *shape, drawn.get()).messages() + libraryMessages(file, found);
    std::stable_sort(messages.begin(), messages.end(), [](const Message &a, const Message &b) {
        return a.line != b.line ? a.line < b.line : a.column < b.column;
    });
    return messages;
}

} // namespace declared
