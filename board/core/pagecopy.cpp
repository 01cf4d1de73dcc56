#include "core/pagecopy.h"

#include <pagehost/commands.h>
#include <pagehost/documentfile.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

namespace board {

void duplicatePage(pagehost::Document *document, const pagehost::ObjectRegistry &registry)
{
    const pagehost::Page *page = document->currentPage();
    const QByteArray bytes = pagehost::encodeObjects(page->objects());
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_BOARD_DUPLICATE_PAGE"));
    pagehost::Page *copy = pagehost::addPage(document, document->currentIndex() + 1, page->size());
    pagehost::setPageBackground(copy, page->background());
    pagehost::ObjectGroups groups;
    const QVector<CBaseObject *> objects = pagehost::decodeObjects(bytes, registry, nullptr, copy, &groups);
    pagehost::addObjects(copy, objects, groups);
    GetFramework()->endUndoGroup();
    copy->select({});
}

} // namespace board
