#include "text/textpositions.h"

#include "grammar/lengths.h"
#include "grammar/numbers.h"
#include "properties/computedstyle.h"

namespace Svg {

namespace {

// A list is valid up to its first error.
QVector<double> lengthList(const AttributeValue &list, Axis axis, const LengthContext &context)
{
    if (const double *number = list.asNumber())
        return {toUserUnits({*number}, axis, context)};
    QVector<double> values;
    if (const auto *lengths = list.as<QVector<Length>>()) {
        for (const Length &length : *lengths)
            values.append(toUserUnits(length, axis, context));
        return values;
    }
    const QString text = list.text();
    const Latin1Text bytes(text);
    Cursor cursor = bytes.cursor();
    Length length;
    cursor.skipSpace();
    while (readLength(cursor, &length)) {
        values.append(toUserUnits(length, axis, context));
        cursor.skipCommaSpace();
    }
    return values;
}

class PositionResolver
{
public:
    PositionResolver(const Tree &tree, const QSizeF &viewport, TextContent *content)
        : m_tree(tree)
        , m_viewport(viewport)
        , m_content(content)
    {
    }

    void apply(const TextLevel &level);

private:
    template<typename Member>
    void apply(const TextLevel &level, AttributeId attribute, Axis axis, Member TextCharacter::*member)
    {
        const AttributeValue &list = m_tree.node(level.node).attributes.held(attribute);
        if (list.isEmpty())
            return;
        const QVector<double> values = lengthList(list, axis, {m_viewport, level.emSize});
        const int count = qMin(values.size(), level.endCharacter - level.firstCharacter);
        for (int i = 0; i < count; ++i)
            m_content->characters[level.firstCharacter + i].*member = values.at(i);
    }
    void applyRotation(const TextLevel &level);

    const Tree &m_tree;
    QSizeF m_viewport;
    TextContent *m_content;
};

// The last angle applies to all remaining characters.
void PositionResolver::applyRotation(const TextLevel &level)
{
    const AttributeValue &list = m_tree.node(level.node).attributes.held(QStringLiteral("rotate"));
    const QVector<double> angles = numbersOf(list).value_or(QVector<double>());
    if (angles.isEmpty())
        return;
    for (int i = level.firstCharacter; i < level.endCharacter; ++i)
        m_content->characters[i].rotate = angles.at(qMin(i - level.firstCharacter, angles.size() - 1));
}

void PositionResolver::apply(const TextLevel &level)
{
    const bool isPath = level.kind == ElementKind::TextPath;
    if (!isPath) {
        apply(level, AttributeId::X, Axis::Horizontal, &TextCharacter::x);
        apply(level, AttributeId::Y, Axis::Vertical, &TextCharacter::y);
        apply(level, AttributeId::Dx, Axis::Horizontal, &TextCharacter::dx);
        apply(level, AttributeId::Dy, Axis::Vertical, &TextCharacter::dy);
    }
    applyRotation(level);
}

} // namespace

void resolvePositions(const Tree &tree, const QSizeF &viewport, TextContent *content)
{
    PositionResolver resolver(tree, viewport, content);
    for (const TextLevel &level : qAsConst(content->levels))
        resolver.apply(level);
}

} // namespace Svg
