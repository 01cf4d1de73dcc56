#include "page/labelwriting.h"

#include "page/labeleditor.h"
#include "page/pageview.h"

#include <framework/cbaseobject.h>

#include <algorithm>

namespace board {

LabelWriting::LabelWriting(PageView *view)
    : QObject(view)
    , m_view(view)
{
}

bool LabelWriting::writeAt(const QPoint &pos)
{
    CBaseObject *object = objectAt(pos);
    const std::optional<EditableLabel> label = labelAt(object, pos);
    if (!label)
        return false;
    write(object, *label, false);
    return true;
}

bool LabelWriting::hasTextAt(const QPoint &pos) const
{
    const std::optional<EditableLabel> label = labelAt(objectAt(pos), pos);
    return label && !label->text.isEmpty();
}

bool LabelWriting::goOnAt(const QPoint &pos)
{
    CBaseObject *object = objectAt(pos);
    const std::optional<EditableLabel> label = labelAt(object, pos);
    if (!label || label->text.isEmpty())
        return false;
    pagehost::Page *page = m_view->page();
    while (page->enterGroupOf(object))
        continue;
    page->select({object});
    write(object, *label, false);
    m_editor->putCursorAt(pos);
    return true;
}

/// The topmost label that can be written. `object` may be null.
std::optional<EditableLabel> LabelWriting::labelAt(CBaseObject *object, const QPoint &pos) const
{
    if (!object || object->isLocked())
        return std::nullopt;
    const QPointF place = object->mapFromScene(m_view->mapToScene(pos));
    const QVector<EditableLabel> labels = labelsOf(*object);
    const auto found = std::find_if(labels.rbegin(), labels.rend(),
                                    [place](const EditableLabel &label) { return label.box.contains(place); });
    return found == labels.rend() ? std::nullopt : std::make_optional(*found);
}

bool LabelWriting::isFree(const QPoint &pos) const
{
    if (!m_view->isEditable() || !m_view->page()->rect().contains(m_view->mapToScene(pos)))
        return false;
    CBaseObject *object = objectAt(pos);
    const QVector<EditableLabel> labels = object ? labelsOf(*object) : QVector<EditableLabel>();
    // A locked shape is paper to write on, unless a click is meant for its own text.
    return std::all_of(labels.begin(), labels.end(),
                       [object](const EditableLabel &label) { return object->isLocked() && label.text.isEmpty(); });
}

/// The topmost one, or the selected one around it; handles and other aids are none. Null where nothing may be
/// written.
CBaseObject *LabelWriting::objectAt(const QPoint &pos) const
{
    if (!m_view->isEditable())
        return nullptr;
    const QList<QGraphicsItem *> found = m_view->items(pos);
    for (QGraphicsItem *item : found)
        if (auto *object = dynamic_cast<CBaseObject *>(item))
            return object;
    const QPointF scenePos = m_view->mapToScene(pos);
    const QVector<CBaseObject *> selected = m_view->page()->selectedObjects();
    for (CBaseObject *object : selected)
        if (object->getClientRect().contains(object->mapFromScene(scenePos)))
            return object;
    return nullptr;
}

bool LabelWriting::isWriting() const
{
    return m_editor;
}

LabelEditor *LabelWriting::editor() const
{
    return m_editor;
}

bool LabelWriting::canWriteSelected() const
{
    const QVector<CBaseObject *> selected =
        m_view->isEditable() ? m_view->page()->selectedObjects() : QVector<CBaseObject *>();
    return selected.size() == 1 && !selected.first()->isLocked() && !labelsOf(*selected.constFirst()).isEmpty();
}

bool LabelWriting::writeSelected(bool isNewObject)
{
    if (!canWriteSelected())
        return false;
    CBaseObject *object = m_view->page()->selectedObjects().constFirst();
    write(object, labelsOf(*object).constFirst(), isNewObject);
    return true;
}

void LabelWriting::end()
{
    if (m_editor)
        m_editor->finish();
}

void LabelWriting::write(CBaseObject *object, const EditableLabel &label, bool isNewObject)
{
    end();
    m_editor = new LabelEditor(object, label, isNewObject, m_view);
    connect(m_editor, &LabelEditor::finished, this, &LabelWriting::ended);
    Q_EMIT begun();
}

} // namespace board
