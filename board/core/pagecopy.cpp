#include "core/pagecopy.h"

#include <pagehost/commands.h>
#include <pagehost/documentfile.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

namespace board {

void addPageCopy(pagehost::Document *document, const pagehost::Page &page, const pagehost::ObjectRegistry &registry,
                 const QString &stepKey)
{
    const QByteArray bytes = pagehost::encodeObjects(page.objects());
    GetFramework()->beginUndoGroup(stepKey);
    pagehost::Page *copy = pagehost::addPage(document, document->currentIndex() + 1, page.size());
    pagehost::setPageBackground(copy, page.background());
    pagehost::ObjectGroups groups;
    const QVector<CBaseObject *> objects = pagehost::decodeObjects(bytes, registry, nullptr, copy, &groups);
    pagehost::addObjects(copy, objects, groups);
    GetFramework()->endUndoGroup();
    copy->select({});
}

} // namespace board
