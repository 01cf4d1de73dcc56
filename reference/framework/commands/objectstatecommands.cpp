#include <pagehost/outline.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <commands/pagecommand.h>
#include <pagehost/page.h>

#include <algorithm>

namespace pagehost {

namespace {

const QString nameKey = QStringLiteral("name");

class NameCommand : public PageCommand
{
public:
    NameCommand(Page *page, CBaseObject *object, const QString &name)
        : PageCommand(page, {object}, QStringLiteral("IDS_UNDO_RENAME"))
        , m_before(object->getObjName())
        , m_after(name)
    {
    }

    void undo() override { bring(m_before); }

protected:
    void apply() override { bring(m_after); }

private:
    void bring(const QString &name)
    {
        objects().first()->setAllAttributes({{nameKey, name}}, false);
        page()->noteChange();
    }

    QString m_before;
    QString m_after;
};

class VisibilityCommand : public PageCommand
{
public:
    VisibilityCommand(Page *page, const QVector<CBaseObject *> &objects, bool visible)
        : PageCommand(page, objects, visible ? QStringLiteral("IDS_UNDO_SHOW") : QStringLiteral("IDS_UNDO_HIDE"))
        , m_visible(visible)
    {
    }

    void undo() override { setAll(!m_visible); }

protected:
    void apply() override { setAll(m_visible); }

private:
    void setAll(bool visible)
    {
        for (CBaseObject *object : objects())
            object->QGraphicsItem::setVisible(visible);
    }

    bool m_visible;
};

} // namespace

bool renameObject(Page *page, CBaseObject *object, const QString &name)
{
    if (!page->contains(object) || object->getObjName() == name)
        return false;
    CUndoRedo::GetInstance()->push(new NameCommand(page, object, name));
    return true;
}

bool setObjectsVisible(Page *page, const QVector<CBaseObject *> &objects, bool visible)
{
    QVector<CBaseObject *> changed;
    std::copy_if(objects.begin(), objects.end(), std::back_inserter(changed), [&](const CBaseObject *object) {
        return page->contains(object) && object->QGraphicsItem::isVisible() != visible;
    });
    if (changed.isEmpty())
        return false;
    CUndoRedo::GetInstance()->push(new VisibilityCommand(page, changed, visible));
    return true;
}

} // namespace pagehost
