#include "documents/documentcontroller.h"

#include "application/workspace.h"
#include "window/notices.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

namespace board {

namespace {

const QString fileNotice = QStringLiteral("fileNotice");

QString shown(const QString &file)
{
    return QDir::toNativeSeparators(file);
}

} // namespace

DocumentController::DocumentController(Workspace *workspace, QWidget *window, Notices *notices)
    : QObject(window)
    , m_workspace(workspace)
    , m_notices(notices)
    , m_dialogs(workspace, window)
{
    connect(workspace, &Workspace::documentReplaced, this, &DocumentController::watchDocument);
    watchDocument();
}

void DocumentController::watchDocument()
{
    connect(m_workspace->document(), &pagehost::Document::modifiedChanged, this, &DocumentController::stateChanged);
    Q_EMIT stateChanged();
}

QString DocumentController::name() const
{
    const QString file = m_file.isEmpty() ? m_damagedFile : m_file;
    return file.isEmpty() ? m_workspace->text("IDS_BOARD_UNTITLED") : QFileInfo(file).fileName();
}

bool DocumentController::isModified() const
{
    return m_workspace->document()->isModified();
}

void DocumentController::settle()
{
    if (m_settle)
        m_settle();
}

void DocumentController::whenSafe(const Work &next)
{
    settle();
    if (!isModified())
        return next();
    m_dialogs.askToKeepChanges(
        name(), [this, next] { save(next); }, next);
}

void DocumentController::createNew()
{
    whenSafe([this] {
        m_file.clear();
        m_damagedFile.clear();
        m_notices->remove(fileNotice);
        m_workspace->replaceDocument(std::make_unique<pagehost::Document>());
        // The page that it got is no work to be lost.
        m_workspace->document()->markSaved();
    });
}

QString DocumentController::folder() const
{
    return QFileInfo(suggestion()).absolutePath();
}

void DocumentController::askAndOpen()
{
    whenSafe([this] { m_dialogs.askForFileToOpen(folder(), [this](const QString &file) { openNow(file); }); });
}

void DocumentController::open(const QString &file)
{
    whenSafe([this, file] { openNow(file); });
}

bool DocumentController::openNow(const QString &file)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    pagehost::OpenResult result = pagehost::openDocument(path, m_workspace->registry());
    if (!result.document) {
        m_recent.remove(path);
        m_notices->add(
            {m_workspace->text("IDS_BOARD_NOT_OPENED").arg(shown(path)), texts(result.messages), {}, fileNotice});
        Q_EMIT stateChanged();
        return false;
    }
    take(result, path, "IDS_BOARD_OPENED_IN_PART");
    m_recent.add(path);
    return true;
}

void DocumentController::takeRecovered(pagehost::OpenResult result, const QString &file)
{
    take(result, file, "IDS_BOARD_RECOVERED_IN_PART");
}

void DocumentController::take(pagehost::OpenResult &result, const QString &file, const char *noticeKey)
{
    const bool isWhole = result.messages.isEmpty();
    m_file = isWhole ? file : QString();
    m_damagedFile = isWhole ? QString() : file;
    m_notices->remove(fileNotice);
    if (!isWhole)
        m_notices->add({m_workspace->text(noticeKey).arg(shown(file)), texts(result.messages), {}, fileNotice});
    m_workspace->replaceDocument(std::move(result.document));
}

void DocumentController::save(const Work &next)
{
    settle();
    if (m_file.isEmpty())
        saveAs(next);
    else
        saveTo(m_file, next);
}

void DocumentController::saveAs(const Work &next)
{
    settle();
    m_dialogs.askForFileToSave(suggestion(), [this, next](const QString &file) { saveTo(file, next); });
}

void DocumentController::saveTo(const QString &file, const Work &next)
{
    const QString path = QFileInfo(file).absoluteFilePath();
    const pagehost::SaveResult result = pagehost::saveDocument(*m_workspace->document(), path);
    if (!result.saved) {
        m_notices->add(
            {m_workspace->text("IDS_BOARD_NOT_SAVED").arg(shown(path)), texts({result.problem}), {}, fileNotice});
        return;
    }
    m_file = path;
    m_damagedFile.clear();
    m_notices->remove(fileNotice);
    m_recent.add(path);
    m_workspace->document()->markSaved();
    Q_EMIT stateChanged();
    Q_EMIT saved(path);
    if (next)
        next();
}

QString DocumentController::suggestion() const
{
    const QString file = m_file.isEmpty() ? m_damagedFile : m_file;
    if (!file.isEmpty())
        return file;
    const QStringList recent = m_recent.files();
    QDir folder = recent.isEmpty() ? QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation)
                                   : QFileInfo(recent.first()).absolutePath();
    if (!folder.exists())
        folder = QDir::home();
    return folder.absoluteFilePath(m_workspace->text("IDS_BOARD_UNTITLED"));
}

QStringList DocumentController::texts(const QVector<pagehost::FileMessage> &messages) const
{
    QStringList lines;
    for (const pagehost::FileMessage &message : messages)
        lines.append(pagehost::describe(message, m_workspace->localizer()));
    return lines;
}

} // namespace board
