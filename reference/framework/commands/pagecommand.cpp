#include <commands/pagecommand.h>

#include <pagehost/page.h>

namespace pagehost {

AppliedCommand::AppliedCommand(const QString &textKey, bool alreadyApplied)
    : m_skipsRedo(alreadyApplied)
{
    setText(textKey);
}

void AppliedCommand::redo()
{
    if (m_skipsRedo) {
        m_skipsRedo = false;
        return;
    }
    apply();
}

PageCommand::PageCommand(Page *page, const QVector<CBaseObject *> &objects, const QString &textKey,
                         bool alreadyApplied)
    : AppliedCommand(textKey, alreadyApplied)
    , m_page(page)
    , m_objects(objects)
{
    for (CBaseObject *object : objects)
        page->retain(object);
}

PageCommand::~PageCommand()
{
    if (!m_page)
        return;
    for (CBaseObject *object : qAsConst(m_objects))
        m_page->release(object);
}

} // namespace pagehost
