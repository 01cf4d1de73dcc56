#include "documents/recovery.h"

#include "core/notices.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"
#include "documents/question.h"
#include "documents/savefolders.h"

#include <pagehost/documentfile.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QLocale>
#include <QtCore/QStandardPaths>

namespace board {

namespace {

constexpr int pictureWidth = 120;

/// A page with something on it; the first one where all are empty.
pagehost::Page *telling(const pagehost::Document &document)
{
    const QVector<pagehost::Page *> pages = document.pages();
    for (pagehost::Page *page : pages)
        if (page->objectCount() > 0)
            return page;
    return document.page(0);
}

} // namespace

Recovery::Recovery(Workspace *workspace, DocumentController *documents, Notices *notices, QWidget *window)
    : QObject(window)
    , m_window(window)
    , m_workspace(workspace)
    , m_documents(documents)
    , m_notices(notices)
    , m_autosave(recoveryFolder())
{
    connect(workspace, &Workspace::documentReplaced, this, &Recovery::watchDocument);
    connect(documents, &DocumentController::saved, this,
            [this](const QString &file) { m_autosave.setOriginalFile(file, m_documents->stamp()); });
    connect(&m_autosave, &pagehost::Autosave::failed, this, [this](const pagehost::FileMessage &problem) {
        m_notices->add({m_workspace->text("IDS_BOARD_AUTOSAVE_FAILED"),
                        {pagehost::describe(problem, m_workspace->localizer())},
                        {},
                        QStringLiteral("autosaveNotice")});
    });
    watchDocument();
}

void Recovery::setCompletion(const std::function<void()> &complete)
{
    connect(&m_autosave, &pagehost::Autosave::aboutToLook, this, complete);
}

void Recovery::watchDocument()
{
    m_autosave.setDocument(m_workspace->document(), m_documents->origin(), m_documents->stamp());
}

void Recovery::offer()
{
    SaveFolders::tidy();
    m_autosave.tidy();
    const QVector<pagehost::RecoverableDocument> copies = m_autosave.recoverable();
    for (const pagehost::RecoverableDocument &copy : copies)
        show(offerOf(copy));
}

Recovery::Offer Recovery::offerOf(const pagehost::RecoverableDocument &copy) const
{
    const QLocale locale(m_workspace->localizer().language());
    const QString name = copy.originalFile.isEmpty() ? m_workspace->text("IDS_BOARD_UNTITLED")
                                                     : QFileInfo(copy.originalFile).fileName();
    const QString time = locale.toString(copy.time, QLocale::ShortFormat);
    Offer offer{copy, m_workspace->text("IDS_BOARD_RECOVERY_NAME").arg(name, time), {}};
    const pagehost::OpenResult opened = pagehost::openDocument(copy.recoveryFile, m_workspace->registry());
    if (!opened.document)
        return offer;
    const int pages = opened.document->pageCount();
    const char *key = pages == 1 ? "IDS_BOARD_RECOVERY_ONE_PAGE" : "IDS_BOARD_RECOVERY_PAGES";
    offer.description = m_workspace->text(key).arg(offer.description, QString::number(pages));
    pagehost::Page *page = telling(*opened.document);
    offer.picture = QPixmap::fromImage(pagehost::pageImage(page, pictureWidth / page->size().width()));
    return offer;
}

void Recovery::show(const Offer &offer)
{
    const pagehost::RecoverableDocument copy = offer.copy;
    m_notices->add({m_workspace->text("IDS_BOARD_RECOVERABLE").arg(offer.description),
                    {},
                    {{m_workspace->text("IDS_BOARD_RECOVER"), [this, copy] { recover(copy); }},
                     {m_workspace->text("IDS_BOARD_FORGET"), [this, offer] { askToDiscard(offer); }}},
                    copy.recoveryFile,
                    offer.picture});
}

/// The offer stays until the answer.
void Recovery::askToDiscard(const Offer &offer)
{
    show(offer);
    const pagehost::RecoverableDocument copy = offer.copy;
    const auto discard = [this, copy] {
        m_notices->remove(copy.recoveryFile);
        pagehost::Autosave::discard(copy);
    };
    ask(*m_workspace, m_window,
        {m_workspace->text("IDS_BOARD_FORGET_TITLE").arg(offer.description),
         m_workspace->text("IDS_BOARD_FORGET_TEXT"),
         {{m_workspace->text("IDS_BOARD_FORGET_FOR_EVER"), true, discard}},
         offer.picture});
}

void Recovery::recover(const pagehost::RecoverableDocument &copy)
{
    m_documents->whenSafe([this, copy] {
        pagehost::OpenResult result = m_autosave.recover(copy, m_workspace->registry());
        if (!result.document) {
            QStringList lines;
            for (const pagehost::FileMessage &message : qAsConst(result.messages))
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
