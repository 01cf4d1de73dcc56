#include "window/pageexporting.h"

#include "core/notices.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace board {

PageExporting::PageExporting(const Workspace *workspace, const DocumentController *documents, Notices *notices,
                             QWidget *window)
    : QObject(window)
    , m_workspace(workspace)
    , m_documents(documents)
    , m_notices(notices)
    , m_dialogs(workspace, window)
{
}

void PageExporting::ask(PageFormat format)
{
    const char *titleKey = format == PageFormat::Svg ? "IDS_BOARD_EXPORT_SVG" : "IDS_BOARD_EXPORT";
    m_dialogs.askForFolder(m_workspace->text(titleKey), m_documents->folder(), [=](const QString &folder) {
        QStringList present = exportFiles(m_workspace->document(), folder, format);
        present.erase(std::remove_if(present.begin(), present.end(),
                                     [](const QString &file) { return !QFileInfo::exists(file); }),
                      present.end());
        if (present.isEmpty())
            write(folder, format);
        else
            m_dialogs.askToReplace(present, [=] { write(folder, format); });
    });
}

void PageExporting::write(const QString &folder, PageFormat format)
{
    const ExportResult result = exportPages(m_workspace->document(), m_workspace->registry(), folder, {format, 1});
    if (!result.files.isEmpty())
        m_notices->add({m_workspace->text("IDS_BOARD_EXPORTED").arg(result.files.size()).arg(folder),
                        {},
                        {},
                        QStringLiteral("exportedNotice")});
    if (!result.problems.isEmpty())
        m_notices->add(
            {m_workspace->text("IDS_BOARD_NOT_EXPORTED"), result.problems, {}, QStringLiteral("exportNotice")});
    else
        m_notices->remove(QStringLiteral("exportNotice"));
}

} // namespace board
