#include "page/textmark.h"

#include "look/theme.h"
#include "page/labeleditor.h"

#include <framework/cbaseobject.h>

#include <QtGui/QPainter>
#include <QtWidgets/QGraphicsView>

namespace board {

namespace {

constexpr int lineWidth = 2;
constexpr int cornerRadius = 4;
constexpr int markAlpha = 48;

/// Item coordinates.
QRectF boxOf(CBaseObject &object, qint32 propertyId)
{
    const QVector<EditableLabel> labels = labelsOf(object);
    for (const EditableLabel &label : labels)
        if (label.propertyId == propertyId)
            return label.box;
    return {};
}

} // namespace

TextMark::TextMark(QGraphicsView *view)
    : m_view(view)
{
}

void TextMark::set(CBaseObject *object, qint32 propertyId)
{
    m_object = object;
    m_propertyId = propertyId;
    m_view->viewport()->update();
}

QRectF TextMark::box() const
{
    if (!m_object || !m_object->scene() || m_object->scene() != m_view->scene())
        return {};
    return m_object->mapToScene(boxOf(*m_object, m_propertyId)).boundingRect();
}

void TextMark::paint(QPainter *painter) const
{
    const QRectF text = box();
    if (text.isEmpty())
        return;
    const QRectF marked = m_view->mapFromScene(text).boundingRect();
    QColor color = themeColors().warn;
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setPen(QPen(color, lineWidth));
    color.setAlpha(markAlpha);
    painter->setBrush(color);
    // The line lies within the box, which is repainted when its object moves.
    const double inset = lineWidth / 2.0;
    painter->drawRoundedRect(marked.adjusted(inset, inset, -inset, -inset), cornerRadius, cornerRadius);
    painter->restore();
}

} // namespace board
