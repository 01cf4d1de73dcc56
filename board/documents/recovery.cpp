#include "documents/recovery.h"

#include "application/workspace.h"
#include "documents/documentcontroller.h"
#include "window/notices.h"

#include <pagehost/documentfile.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QStandardPaths>

namespace board {

Recovery::Recovery(Workspace *workspace, DocumentController *documents, Notices *notices, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_documents(documents)
    , m_notices(notices)
    , m_autosave(recoveryFolder())
{
    connect(workspace, &Workspace::documentReplaced, this, &Recovery::watchDocument);
    connect(documents, &DocumentController::saved, this,
            [this](const QString &file) { m_autosave.setOriginalFile(file); });
    connect(&m_autosave, &pagehost::Autosave::failed, this, [this](const pagehost::FileMessage &problem) {
        m_notices->add({m_workspace->text("IDS_BOARD_AUTOSAVE_FAILED"),
                        {pagehost::describe(problem, m_workspace->localizer())},
                        {},
                        QStringLiteral("autosaveNotice")});
    });
    watchDocument();
}

void Recovery::watchDocument()
{
    m_autosave.setDocument(m_workspace->document(), m_documents->file());
}

void Recovery::offer()
{
    const QLocale locale(m_workspace->localizer().language());
    for (const pagehost::RecoverableDocument &copy : m_autosave.recoverable()) {
        const QString name = copy.originalFile.isEmpty() ? m_workspace->text("IDS_BOARD_UNTITLED")
                                                         : QFileInfo(copy.originalFile).fileName();
        const QString time = locale.toString(copy.time, QLocale::ShortFormat);
        const QString text = m_workspace->text("IDS_BOARD_RECOVERABLE").arg(name, time);
        m_notices->add({text,
                        {},
                        {{m_workspace->text("IDS_BOARD_RECOVER"), [this, copy] { recover(copy); }},
                         {m_workspace->text("IDS_BOARD_FORGET"), [copy] { pagehost::Autosave::discard(copy); }}},
                        copy.recoveryFile});
    }
}

void Recovery::recover(const pagehost::RecoverableDocument &copy)
{
    m_documents->whenSafe([this, copy] {
        pagehost::OpenResult result = m_autosave.recover(copy, m_workspace->registry());
        if (!result.document) {
            QStringList lines;
            for (const pagehost::FileMessage &message : result.messages)
                lines.append(pagehost::describe(message, m_workspace->localizer()));
            m_notices->add({m_workspace->text("IDS_BOARD_NOT_OPENED").arg(copy.recoveryFile), lines, {}, {}});
            return;
        }
        m_documents->takeRecovered(std::move(result), copy.originalFile);
        // Only once there is another copy of the work.
        if (m_autosave.saveNow())
            pagehost::Autosave::discard(copy);
    });
}

QString recoveryFolder()
{
    return QDir(QStandardPaths::writableLocation(QStandardPaths::AppDataLocation))
        .filePath(QStringLiteral("recovery"));
}

} // namespace board
