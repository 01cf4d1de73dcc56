// Elements of the figure that expressions write anew.

#include <declared/reader/filelimits.h>
#include <declared/reader/filereader.h>
#include <declared/reader/vocabulary.h>

#include <algorithm>

namespace declared {

namespace {

double numberOr(const QString &text, double otherwise)
{
    QString digits = text.trimmed();
    if (digits.endsWith(QLatin1String("px")))
        digits.chop(2);
    bool isNumber = false;
    const double number = digits.toDouble(&isNumber);
    return isNumber && qIsFinite(number) ? number : otherwise;
}

} // namespace

bool FileReader::isDrawn(const Element &element) const
{
    return isSvg(element) && isDrawnElement(element.name);
}

void FileReader::readElements()
{
    for (int i = 0; i < m_elements.size(); ++i) {
        const Element &element = m_elements.at(i);
        if (isSvg(element) && !m_done.contains(i) && shapeAttribute(element, "repeat"))
            readRepeat(i);
    }
    for (int i = 0; i < m_elements.size(); ++i)
        if (isSvg(m_elements.at(i)) && !m_done.contains(i))
            readElement(i, -1, {});
    checkLabelIds();
    for (int repeat = 0; repeat < m_shape.repeats.size(); ++repeat)
        m_shape.repeats[repeat].inputs = inputsOfRounds(repeat);
}

void FileReader::readElement(int index, int repeat, const QVector<int> &path)
{
    const Element &element = m_elements.at(index);
    m_done.insert(index);
    ElementDeclaration declared;
    declared.repeat = repeat;
    declared.path = path;
    declared.way = wayTo(index);
    declared.place = m_tree.placeOf(element.offset);
    TemplateElement written;
    bool isDeclared = false;
    for (const Attribute &attribute : element.attributes) {
        if (attribute.namespaceUri != shapeNamespace)
            continue;
        isDeclared = true;
        if (!isLabel(element) || attribute.name == QLatin1String("visible"))
            readAttribute(element, attribute, declared, written);
    }
    if (isLabel(element)) {
        readLabel(index, repeat, path);
        written = m_written.value(index);
    }
    if (!isDeclared)
        return;
    if (declared.letters.content.isValid())
        readLetters(element, declared, written);
    declared.id = element.value("id");
    if (declared.id.isEmpty())
        declared.id = written.id = QStringLiteral("declared_%1").arg(index);
    m_written.insert(index, written);
    if (!declared.attributes.isEmpty() || declared.visible.isValid() || declared.letters.content.isValid())
        m_shape.elements.append(declared);
}

void FileReader::readAttribute(const Element &element, const Attribute &attribute, ElementDeclaration &declared,
                               TemplateElement &written)
{
    if (!figureAttributes().contains(attribute.name)) {
        error("C04", attribute,
              QStringLiteral("there is no attribute \"%1\"%2")
                  .arg(attribute.name, suggestion(attribute.name, figureAttributes())));
        return;
    }
    if (!takesAttribute(element.name, attribute.name)) {
        error("C38", attribute, QStringLiteral("\"%1\" has no \"%2\"").arg(element.name, attribute.name));
        return;
    }
    if (attribute.name == QLatin1String("keeps"))
        readKeeps(attribute, written);
    else if (attribute.name == QLatin1String("visible"))
        take(m_compiler.expression(attribute.value, Type::Number), declared.visible, attribute);
    else if (attribute.name == QLatin1String("text"))
        take(m_compiler.text(attribute.value), declared.letters.content, attribute);
    else if (attribute.name != QLatin1String("repeat"))
        readWritten(attribute, declared, written);
}

/// A fill or stroke of an expression is the shape's own; one of the pen's colour is left to the kit.
void FileReader::readWritten(const Attribute &attribute, ElementDeclaration &declared, TemplateElement &written)
{
    const bool isPaint = attribute.name == QLatin1String("fill") || attribute.name == QLatin1String("stroke");
    if (isPaint && isPen(attribute.value)) {
        written.attributes.append({attribute.name + QStringLiteral("_follows"), QStringLiteral("pen")});
        return;
    }
    AttributeDeclaration expression{attribute.name, {}};
    if (!take(m_compiler.text(attribute.value), expression.text, attribute))
        return;
    declared.attributes.append(expression);
    if (isPaint)
        written.kept.append(attribute.name);
}

void FileReader::readKeeps(const Attribute &attribute, TemplateElement &written)
{
    const QStringList paints = attribute.value.simplified().split(QLatin1Char(' '));
    for (const QString &paint : paints) {
        if (paint != QLatin1String("fill") && paint != QLatin1String("stroke")) {
            error("C39", attribute, QStringLiteral("\"keeps\" takes \"fill\", \"stroke\", or both"));
            return;
        }
    }
    written.kept += paints;
}

QString FileReader::inheritedValue(const Element &element, const char *name) const
{
    const Element *holder = &element;
    while (holder->value(name).isEmpty() && parentOf(*holder))
        holder = parentOf(*holder);
    return holder->value(name);
}

/// Text that changes is drawn as outlines: where it stands is read here, and its attributes are not written.
void FileReader::readLetters(const Element &element, ElementDeclaration &declared, TemplateElement &written)
{
    LettersDeclaration &letters = declared.letters;
    for (const SourceContent &content : element.contents)
        letters.drawn += content.text;
    letters.fixedX = numberOr(element.value("x"), letters.fixedX);
    letters.fixedY = numberOr(element.value("y"), letters.fixedY);
    letters.fixedSize = numberOr(inheritedValue(element, "font-size"), letters.fixedSize);
    const QString anchor = inheritedValue(element, "text-anchor");
    letters.anchor = anchor == QLatin1String("middle") ? 0.5 : anchor == QLatin1String("end") ? 1 : 0;
    QVector<AttributeDeclaration> others;
    for (const AttributeDeclaration &attribute : qAsConst(declared.attributes))
        if (attribute.name == QLatin1String("x"))
            letters.x = attribute.text;
        else if (attribute.name == QLatin1String("y"))
            letters.y = attribute.text;
        else if (attribute.name == QLatin1String("font-size"))
            letters.size = attribute.text;
        else
            others.append(attribute);
    declared.attributes = others;
    written.isLetters = true;
    written.dropped = QStringList{QStringLiteral("x"), QStringLiteral("y"), QStringLiteral("font-size"),
                                  QStringLiteral("text-anchor")};
}

void FileReader::readRepeat(int index)
{
    const Element &group = m_elements.at(index);
    if (group.name != QLatin1String("g"))
        return; // told with the other attributes of the element
    const Attribute &repeat = *shapeAttribute(group, "repeat");
    QVector<LoopExpression> loops;
    if (!take(m_compiler.loops(repeat.value), loops, repeat))
        return;
    if (loops.size() > 2 || m_shape.repeats.size() == limits::repeats) {
        error("C17", repeat, QStringLiteral("a group has one loop or two, and a file 64 such groups"));
        return;
    }
    RepeatDeclaration declared;
    QHash<QString, Symbol> names;
    for (const LoopExpression &loop : qAsConst(loops)) {
        const qint32 slot = newSlot();
        declared.loops.append({slot, loop.from, loop.to});
        names.insert(loop.name, {Symbol::Variable, Type::Number, slot, 0});
    }
    const QVector<int> children = drawnChildren(group);
    if (children.isEmpty()) {
        error("C38", group, QStringLiteral("there is nothing in the group to repeat"));
        return;
    }
    readElement(index, -1, {});
    m_written[index].hasOneChild = true;
    declared.id = group.value("id").isEmpty() ? m_written.value(index).id : group.value("id");
    declared.way = wayTo(index);
    declared.drawnRounds = children.size();
    m_shape.repeats.append(declared);
    m_compiler.setExtraNames(names);
    readRepeated(children.first(), m_shape.repeats.size() - 1, {});
    m_compiler.setExtraNames({});
    // The others only show what the first look is like.
    for (int i = 1; i < children.size(); ++i)
        m_done.insert(children.at(i));
}

QVector<qint32> FileReader::inputsOfRounds(int repeat) const
{
    QSet<qint32> inputs;
    const auto add = [&inputs](const Expression &expression) {
        for (const qint32 slot : expression.inputs)
            inputs.insert(slot);
    };
    for (const ElementDeclaration &element : qAsConst(m_shape.elements)) {
        if (element.repeat != repeat)
            continue;
        for (const AttributeDeclaration &attribute : element.attributes)
            add(attribute.text);
        for (const Expression *part : {&element.visible, &element.letters.content, &element.letters.x,
                                       &element.letters.y, &element.letters.size})
            add(*part);
    }
    for (const LabelDeclaration &label : qAsConst(m_shape.labels)) {
        if (label.repeat != repeat)
            continue;
        for (const Expression &side : label.box)
            add(side);
        add(label.content);
        if (label.followsPen)
            inputs.insert(slots_of::Pen);
    }
    const QVector<LoopDeclaration> &loops = m_shape.repeats.at(repeat).loops;
    for (const LoopDeclaration &loop : loops) {
        add(loop.from);
        add(loop.to);
    }
    for (const LoopDeclaration &loop : loops)
        inputs.remove(loop.slot);
    return QVector<qint32>(inputs.cbegin(), inputs.cend());
}

QVector<int> FileReader::wayTo(int index) const
{
    QVector<int> way;
    for (int parent = m_elements.at(index).parent; parent >= 0; parent = m_elements.at(index = parent).parent)
        way.prepend(drawnChildren(m_elements.at(parent)).indexOf(index));
    return way;
}

QVector<int> FileReader::drawnChildren(const Element &element) const
{
    QVector<int> children;
    for (const SourceContent &content : element.contents)
        if (content.element >= 0 && isDrawn(m_elements.at(content.element)))
            children.append(content.element);
    return children;
}

void FileReader::readRepeated(int index, int repeat, const QVector<int> &path)
{
    const Element &element = m_elements.at(index);
    if (m_done.contains(index) || shapeAttribute(element, "repeat")) {
        error("C38", element, QStringLiteral("a group is not repeated inside of another, nor is a control point"));
        return;
    }
    readElement(index, repeat, path);
    const QVector<int> children = drawnChildren(element);
    for (int i = 0; i < children.size(); ++i)
        readRepeated(children.at(i), repeat, path + QVector<int>{i});
}

void FileReader::readConnections()
{
    for (const Element &element : m_elements) {
        if (!isShape(element, "connection"))
            continue;
        checkNames(element);
        const Attribute *name = element.attribute(QStringLiteral("name"));
        const Attribute *at = element.attribute(QStringLiteral("at"));
        const Attribute *out = element.attribute(QStringLiteral("out"));
        if (!name || !at || !isName(name->value)) {
            error("C12", element, QStringLiteral("a connection needs a name and \"at\""));
            continue;
        }
        const auto isIt = [&](const ConnectionDeclaration &other) { return other.name == name->value; };
        if (std::any_of(m_shape.connections.cbegin(), m_shape.connections.cend(), isIt)) {
            error("C12", *name, QStringLiteral("there is another connection \"%1\"").arg(name->value));
            continue;
        }
        if (m_shape.connections.size() == limits::connections) {
            error("C17", element, QStringLiteral("a file has at most 64 connections"));
            return;
        }
        ConnectionDeclaration connection{name->value, {}, {}};
        take(m_compiler.expression(at->value, Type::Point), connection.at, *at);
        if (out)
            take(m_compiler.expression(out->value, Type::Number), connection.out, *out);
        m_shape.connections.append(connection);
    }
}

} // namespace declared
