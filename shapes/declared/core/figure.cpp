#include <declared/core/figure.h>

#include <declared/core/attributecheck.h>
#include <declared/expressions/functions.h>
#include <declared/reader/filelimits.h>

#include <shapekit/pathtext.h>

#include <svgbase/qzesvgtinydocument.h>

#include <algorithm>

namespace declared {

namespace {

const QString displayName = QStringLiteral("display");
const QStringList paintNames{QStringLiteral("fill"), QStringLiteral("fill-opacity"), QStringLiteral("stroke"),
                             QStringLiteral("stroke-opacity")};

/// Writes changes only: unchanged nodes share their geometry with all shapes of the same template.
void setAttribute(QZeSvgNode &node, const QString &name, const QString &value)
{
    if (node.attribute(name) != value)
        node.setAttribute(name, value);
}

void setShown(QZeSvgNode &node, bool shown)
{
    setAttribute(node, displayName, shown ? QString() : QStringLiteral("none"));
}

QList<QZeSvgNode *> childrenOf(const QZeSvgNode &node)
{
    const bool isGroup = node.type() == QZeSvgNode::Group;
    return isGroup ? static_cast<const QZeSvgStructureNode &>(node).children() : QList<QZeSvgNode *>();
}

QString shortened(const QString &text)
{
    constexpr int longest = 40;
    return text.size() > longest ? text.left(longest) + QStringLiteral("...") : text;
}

/// The number of a text that an expression has made; another number where it is none.
double numberOf(const Expression &expression, ShapeState &state, double otherwise)
{
    if (!expression.isValid())
        return otherwise;
    const Value value = state.valueOf(expression);
    bool isNumber = false;
    const double number = value.text.toDouble(&isNumber);
    if (value.isFinite() && !isNumber)
        state.note("C37", expression.place, QStringLiteral("\"%1\" is no number").arg(shortened(value.text)));
    return isNumber && value.isFinite() ? number : qQNaN();
}

void copyPaintsOf(const QZeSvgNode &from, QZeSvgNode &to)
{
    for (const QString &name : paintNames)
        setAttribute(to, name, from.attribute(name));
    const QList<QZeSvgNode *> sources = childrenOf(from);
    const QList<QZeSvgNode *> targets = childrenOf(to);
    for (int i = 0; i < std::min(sources.size(), targets.size()); ++i)
        copyPaintsOf(*sources.at(i), *targets.at(i));
}

} // namespace

QZeSvgNode *partOf(QZeSvgNode *node, const QVector<int> &path)
{
    for (const int index : path)
        node = node ? childrenOf(*node).value(index) : nullptr;
    return node;
}

bool isShown(const QZeSvgNode &node)
{
    const QZeSvgNode *shown = &node;
    while (shown && shown->isVisible())
        shown = shown->parent();
    return !shown;
}

Figure::Figure(const Declaration &declaration)
    : m_declaration(declaration)
{
}

void Figure::find(QZeSvgTinyDocument &document)
{
    if (m_repeated.size() == m_declaration.repeats.size())
        return;
    for (const RepeatDeclaration &repeat : m_declaration.repeats) {
        Repeated repeated;
        QZeSvgNode *node = document.namedNode(repeat.id);
        const QList<QZeSvgNode *> children = node ? childrenOf(*node) : QList<QZeSvgNode *>();
        if (!children.isEmpty()) {
            repeated.group = static_cast<QZeSvgStructureNode *>(node);
            repeated.copies.append(children.first());
        }
        m_repeated.append(repeated);
    }
}

void Figure::write(QZeSvgTinyDocument &document, ShapeState &state, RoundWriter &rounds)
{
    find(document);
    for (const ElementDeclaration &element : m_declaration.elements) {
        QZeSvgNode *node = element.repeat < 0 ? document.namedNode(element.id) : nullptr;
        if (node)
            writeElement(element, *node, state);
    }
    for (int i = 0; i < m_repeated.size(); ++i)
        writeRepeated(i, state, rounds);
}

/// Rounds that are made of the same values stay: in most steps of a drag most do.
void Figure::writeRepeated(int index, ShapeState &state, RoundWriter &rounds)
{
    Repeated &repeated = m_repeated[index];
    if (!repeated.group)
        return;
    const Inputs inputs = state.valuesOf(m_declaration.repeats.at(index).inputs);
    const bool isDrawn = isShown(*repeated.group);
    const bool isWritten = repeated.written && areSame(*repeated.written, inputs) && !rounds.hasChanged(index);
    if (isDrawn && isWritten && state.pay(repeated.cost))
        return;
    const Budget before = state.budget();
    rounds.begin(index);
    const int count = isDrawn ? writeRounds(index, state, rounds) : 0;
    rounds.end(index);
    for (int spare = count; isDrawn && spare < repeated.copies.size(); ++spare)
        setShown(*repeated.copies.at(spare), false);
    repeated.written.reset();
    if (!isDrawn || state.isExhausted())
        return;
    repeated.written = inputs;
    repeated.cost = before - state.budget();
}

/// Gives the number of rounds.
int Figure::writeRounds(int index, ShapeState &state, RoundWriter &rounds)
{
    Repeated &repeated = m_repeated[index];
    const QVector<LoopDeclaration> &loops = m_declaration.repeats.at(index).loops;
    int round = 0;
    const auto boundOf = [&](const Expression &bound) {
        const Value value = state.valueOf(bound);
        return value.isFinite() ? wholeOf(value.number()) : qQNaN();
    };
    const LoopDeclaration &outer = loops.first();
    const double last = boundOf(outer.to);
    for (double i = boundOf(outer.from); i <= last && !state.isExhausted(); ++i) {
        state.setLoop(outer, i);
        const bool isNested = loops.size() > 1;
        const double innerFrom = isNested ? boundOf(loops.last().from) : 0;
        const double innerTo = isNested ? boundOf(loops.last().to) : 0;
        for (double k = innerFrom; k <= innerTo && !state.isExhausted(); ++k) {
            if (isNested)
                state.setLoop(loops.last(), k);
            if (round == repeated.copies.size() && !addCopy(repeated)) {
                state.note("C41", outer.from.place, QStringLiteral("a drawing has at most 1000 repeated elements"));
                return round;
            }
            writeRound(index, round, state);
            rounds.write(index, *repeated.copies.at(round), isNested ? QVector<double>{i, k} : QVector<double>{i});
            ++round;
        }
    }
    return round;
}

bool Figure::addCopy(Repeated &repeated)
{
    if (m_copies >= limits::repeatedElements)
        return false;
    QZeSvgNode *copy = repeated.copies.first()->clone();
    repeated.group->addChild(copy,
                             QStringLiteral("%1_%2").arg(repeated.group->nodeId()).arg(repeated.copies.size()));
    repeated.copies.append(copy);
    ++m_copies;
    return true;
}

void Figure::writeRound(int index, int round, ShapeState &state)
{
    QZeSvgNode *copy = m_repeated.at(index).copies.at(round);
    setShown(*copy, true);
    for (const ElementDeclaration &element : m_declaration.elements) {
        QZeSvgNode *node = element.repeat == index ? partOf(copy, element.path) : nullptr;
        if (node)
            writeElement(element, *node, state);
    }
}

void Figure::writeElement(const ElementDeclaration &element, QZeSvgNode &node, ShapeState &state)
{
    const bool isVisible = !element.visible.isValid() || state.holds(element.visible);
    setShown(node, isVisible && writeAttributes(element, node, state));
}

bool Figure::writeAttributes(const ElementDeclaration &element, QZeSvgNode &node, ShapeState &state)
{
    bool isDrawn = true;
    for (const AttributeDeclaration &attribute : element.attributes) {
        const Value value = state.valueOf(attribute.text);
        isDrawn = writeAttribute(attribute, value, node, state) && isDrawn;
    }
    if (element.letters.content.isValid())
        isDrawn = writeLetters(element.letters, node, state) && isDrawn;
    return isDrawn;
}

bool Figure::writeAttribute(const AttributeDeclaration &attribute, const Value &value, QZeSvgNode &node,
                            ShapeState &state)
{
    if (!value.isFinite())
        return false;
    if (node.attribute(attribute.name) == value.text)
        return true;
    if (!isValidAttribute(attribute.name, value.text)) {
        state.note("C37", attribute.text.place,
                   QStringLiteral("\"%1\" is no value of \"%2\"").arg(shortened(value.text), attribute.name));
        return false;
    }
    node.setAttribute(attribute.name, value.text);
    return true;
}

bool Figure::writeLetters(const LettersDeclaration &letters, QZeSvgNode &node, ShapeState &state)
{
    const Value content = state.valueOf(letters.content);
    const QPointF start(numberOf(letters.x, state, letters.fixedX), numberOf(letters.y, state, letters.fixedY));
    const double size = numberOf(letters.size, state, letters.fixedSize);
    if (!content.isFinite() || !Value(start).isFinite() || !qIsFinite(size))
        return false;
    setAttribute(
        node, QStringLiteral("d"),
        shapekit::PathText().line(start, content.text.left(limits::drawnLetters), size, letters.anchor).text());
    return true;
}

void Figure::copyPaints()
{
    for (Repeated &repeated : m_repeated) {
        for (int i = 1; i < repeated.copies.size(); ++i)
            copyPaintsOf(*repeated.copies.first(), *repeated.copies.at(i));
        repeated.written.reset();
    }
}

QVector<QZeSvgStructureNode *> Figure::repeatedGroups() const
{
    QVector<QZeSvgStructureNode *> groups;
    for (const Repeated &repeated : m_repeated)
        if (repeated.group)
            groups.append(repeated.group);
    return groups;
}

} // namespace declared
