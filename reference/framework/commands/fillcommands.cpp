#include <pagehost/commands.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <commands/pagecommand.h>
#include <pagehost/page.h>

namespace pagehost {

namespace {

class BackgroundCommand : public PageCommand
{
public:
    BackgroundCommand(Page *page, const CPageBgProp &background)
        : PageCommand(page, {}, QStringLiteral("IDS_UNDO_BACKGROUND"))
        , m_before(page->background())
        , m_after(background)
    {
    }

    void undo() override { page()->setBackground(m_before); }

protected:
    void apply() override { page()->setBackground(m_after); }

private:
    CPageBgProp m_before;
    CPageBgProp m_after;
};

/// A solid fill equal in colour to a present picture or gradient would not replace it; a step must restore the
/// exact fill.
void replaceFill(CBaseObject *object, CPageBgProp fill, bool record)
{
    object->getFillProp()->setFillType(CPageBgProp::SolidFill);
    object->setFillProp(&fill, record);
}

class FillCommand : public AppliedCommand
{
public:
    FillCommand(const QVector<CBaseObject *> &objects, const CPageBgProp &fill)
        : AppliedCommand(QStringLiteral("IDS_UNDO_FILL"), false)
        , m_objects(objects)
        , m_after(fill)
    {
        for (const CBaseObject *object : objects)
            m_before.append(*object->getFillProp());
    }

    void undo() override
    {
        for (int i = 0; i < m_objects.size(); ++i)
            replaceFill(m_objects[i], m_before[i], false);
    }

protected:
    void apply() override
    {
        for (CBaseObject *object : qAsConst(m_objects))
            replaceFill(object, m_after, m_records);
        m_records = false;
    }

private:
    QVector<CBaseObject *> m_objects;
    QList<CPageBgProp> m_before;
    CPageBgProp m_after;
    bool m_records = true; ///< record what the user does, not what redo repeats
};

} // namespace

bool setPageBackground(Page *page, const CPageBgProp &background)
{
    if (background == page->background())
        return false;
    CUndoRedo::GetInstance()->push(new BackgroundCommand(page, background));
    return true;
}

bool setObjectsFill(const QVector<CBaseObject *> &objects, const CPageBgProp &fill)
{
    QVector<CBaseObject *> changed;
    for (CBaseObject *object : objects)
        if (*object->getFillProp() != fill)
            changed.append(object);
    if (changed.isEmpty())
        return false;
    CUndoRedo::GetInstance()->push(new FillCommand(changed, fill));
    return true;
}

} // namespace pagehost
