#include "documents/shapenotices.h"

#include "core/notices.h"
#include "core/workspace.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>

#include <algorithm>

namespace board {

namespace {

const QString faultsId = QStringLiteral("shapeFaultsNotice");
const QString versionsId = QStringLiteral("shapeVersionsNotice");

QVector<CBaseObject *> earlierVersions(const pagehost::Document &document)
{
    QVector<CBaseObject *> earlier;
    const QVector<pagehost::Page *> pages = document.pages();
    for (const pagehost::Page *page : pages) {
        const QVector<CBaseObject *> objects = page->objects();
        std::copy_if(objects.begin(), objects.end(), std::back_inserter(earlier),
                     [](CBaseObject *object) { return !pagehost::isPresentVersion(*object); });
    }
    return earlier;
}

} // namespace

ShapeNotices::ShapeNotices(Workspace *workspace, Notices *notices, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_notices(notices)
{
    connect(workspace, &Workspace::kindsChanged, this, &ShapeNotices::show);
    connect(workspace, &Workspace::documentReplaced, this, &ShapeNotices::showEarlierVersions);
    show();
}

void ShapeNotices::show()
{
    showFaults();
    showEarlierVersions();
}

void ShapeNotices::showFaults()
{
    const QStringList faults = m_workspace->registry().faults();
    if (faults.isEmpty())
        m_notices->remove(faultsId);
    else
        m_notices->add({m_workspace->text("IDS_BOARD_SHAPE_FAULTS"), faults, {}, faultsId});
}

void ShapeNotices::showEarlierVersions()
{
    const int count = earlierVersions(*m_workspace->document()).size();
    if (count == 0) {
        m_notices->remove(versionsId);
        return;
    }
    const QString number = QString::number(count);
    const auto text = [&](const char *one, const char *several) {
        return count == 1 ? m_workspace->text(one) : m_workspace->text(several).arg(number);
    };
    const auto update = [this] { pagehost::updateVersion(earlierVersions(*m_workspace->document())); };
    m_notices->add({text("IDS_BOARD_SHAPE_VERSION", "IDS_BOARD_SHAPE_VERSIONS"),
                    {},
                    {{text("IDS_BOARD_UPDATE_SHAPE", "IDS_BOARD_UPDATE_SHAPES"), update}},
                    versionsId});
}

} // namespace board
