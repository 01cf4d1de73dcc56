#include <pagehost/style.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <pagehost/attributestream.h>

#include <host/attributehead.h>
#include <host/payload.h>
#include <host/streamedcolors.h>

namespace pagehost {

namespace {

std::optional<AttributeHead> headOf(CBaseObject *object, int id)
{
    return readAttributeHead(id, describedBy(object, id));
}

/// The name of the property at the first object that has it.
QString nameOf(const QVector<CBaseObject *> &objects, int id)
{
    for (CBaseObject *object : objects)
        if (const auto head = headOf(object, id))
            return head->nameKey;
    return QStringLiteral("IDS_ITEM_SET_ATTRIBUTE");
}

template<typename Value> bool setAttributes(const QVector<CBaseObject *> &objects, int id, const Value &value)
{
    bool taken = false;
    GetFramework()->beginUndoGroup(nameOf(objects, id));
    for (CBaseObject *object : objects)
        taken |= giveAttribute(object, id, payloadOf(value), true);
    GetFramework()->endUndoGroup();
    return taken;
}

bool isPenStyle(qint32 style)
{
    return style >= Qt::NoPen && style <= Qt::DashDotDotLine;
}

} // namespace

bool setPenColor(const QVector<CBaseObject *> &objects, const QColor &color)
{
    return setAttributes(objects, PenColorProperty, color);
}

bool setPenStyle(const QVector<CBaseObject *> &objects, Qt::PenStyle style)
{
    return setAttributes(objects, PenStyleProperty, qint32(style));
}

bool setPenWidth(const QVector<CBaseObject *> &objects, int width)
{
    // Panels send the index in the list of widths, which begins at 1.
    return width >= 1 && setAttributes(objects, PenWidthProperty, qint32(width - 1));
}

bool setFill(const QVector<CBaseObject *> &objects, const QColor &color)
{
    return setAttributes(objects, FillProperty, QBrush(color));
}

ObjectStyle styleOf(CBaseObject *object)
{
    ObjectStyle style;
    if (const auto head = headOf(object, PenColorProperty)) {
        const std::optional<QColor> color = colorFrom(head->value);
        style.hasPenColor = color.has_value();
        style.penColor = color.value_or(style.penColor);
    }
    if (const auto head = headOf(object, FillProperty)) {
        const std::optional<QBrush> fill = brushFrom(head->value);
        style.hasFill = fill.has_value();
        style.fill = fill.value_or(style.fill);
    }
    if (const auto head = headOf(object, PenStyleProperty)) {
        const std::optional<ListChoice> choice = choiceOf(*head);
        style.hasPenStyle = choice && isPenStyle(choice->chosen);
        style.penStyle = style.hasPenStyle ? Qt::PenStyle(choice->chosen) : style.penStyle;
    }
    if (const auto head = headOf(object, PenWidthProperty)) {
        if (const std::optional<ListChoice> choice = choiceOf(*head)) {
            style.hasPenWidth = true;
            style.penWidth = choice->chosen + 1;
            style.maxPenWidth = choice->count;
        }
    }
    return style;
}

} // namespace pagehost
