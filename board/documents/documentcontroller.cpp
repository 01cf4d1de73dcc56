#include "documents/documentcontroller.h"

#include "core/notices.h"
#include "core/workspace.h"
#include "documents/droppeddocument.h"
#include "documents/freenames.h"
#include "documents/savefolders.h"

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtCore/QStandardPaths>

namespace board {

namespace {

const QString fileNotice = QStringLiteral("fileNotice");
const QString otherNotice = QStringLiteral("changedFileNotice");

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
    , m_watch(this)
{
    connect(&m_watch, &FileWatch::stateChanged, this, &DocumentController::showFileState);
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
    const QString file = origin();
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
        m_damagedFile.clear();
        m_notices->remove(fileNotice);
        belongTo({}, {});
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
    if (isPdf(path)) {
        Q_EMIT worksheetChosen(path);
        return true;
    }
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
    // A recovered copy of a damaged file is whole, and does not know what it belongs over.
    const bool isKnown = isWhole && !result.stamp.isNull();
    m_damagedFile = isKnown ? QString() : file;
    m_notices->remove(fileNotice);
    if (!isWhole)
        m_notices->add({m_workspace->text(noticeKey).arg(shown(file)), texts(result.messages), {}, fileNotice});
    belongTo(isKnown ? file : QString(), isKnown ? result.stamp : pagehost::FileStamp());
    m_workspace->replaceDocument(std::move(result.document));
}

void DocumentController::belongTo(const QString &file, const pagehost::FileStamp &stamp)
{
    m_file = file;
    m_stamp = stamp;
    m_notices->remove(otherNotice);
    m_watch.watch(file, stamp);
}

void DocumentController::showFileState()
{
    const QString name = QFileInfo(m_file).fileName();
    const Notice::Answer answer{m_workspace->text("IDS_BOARD_CONFLICT_DECIDE"), [this] { decide(m_file, {}); }};
    switch (m_watch.state()) {
    case FileWatch::Same:
        m_notices->remove(otherNotice);
        break;
    case FileWatch::Gone:
        m_notices->add({m_workspace->text("IDS_BOARD_FILE_GONE").arg(name), {}, {}, otherNotice});
        break;
    case FileWatch::Changed:
        m_notices->add({m_workspace->text("IDS_BOARD_CONFLICT_TITLE").arg(name), {}, {answer}, otherNotice});
        break;
    }
}

void DocumentController::decide(const QString &file, const Work &next)
{
    settle();
    m_dialogs.askAboutConflict(
        file, [this, file, next] { saveTo(file, std::nullopt, next); }, [this, file] { openNow(file); },
        [this, file, next] { write(freeNameBeside(file, QStringLiteral("%1")), pagehost::FileStamp(), next); });
}

void DocumentController::save(const Work &next)
{
    settle();
    if (m_file.isEmpty())
        saveAs(next);
    else
        saveTo(m_file, m_stamp, next);
}

void DocumentController::saveAs(const Work &next)
{
    settle();
    m_dialogs.askForFileToSave(suggestion(), [this, next](const QString &file) {
        const QString path = QFileInfo(file).absoluteFilePath();
        // The user has agreed to replace a file that is there.
        const Expectation other = QFileInfo::exists(path) ? Expectation() : pagehost::FileStamp();
        saveTo(path, path == m_file ? m_stamp : other, next);
    });
}

void DocumentController::saveTo(const QString &file, const Expectation &expected, const Work &next)
{
    const pagehost::ReplacementEffects effects = pagehost::effectsOfReplacing(file);
    if (effects.otherNames == 0 && !effects.changesOwner)
        return write(file, expected, next);
    m_dialogs.askToSaveShared(
        file, effects, [this, file, expected, next] { write(file, expected, next); },
        [this, next] { saveAs(next); });
}

void DocumentController::write(const QString &file, const Expectation &expected, const Work &next)
{
    if (!keepDamaged(file))
        return;
    SaveFolders::add(QFileInfo(file).absolutePath());
    const pagehost::SaveResult result = pagehost::saveDocument(*m_workspace->document(), file, expected);
    if (result.isConflict)
        return decide(file, next);
    if (!result.saved)
        return showNotSaved(file, result.problem);
    m_damagedFile.clear();
    m_notices->remove(fileNotice);
    belongTo(file, result.stamp);
    m_recent.add(file);
    m_workspace->document()->markSaved();
    Q_EMIT stateChanged();
    Q_EMIT saved(file);
    if (next)
        next();
}

/// Keeps the damaged file: somebody else may be able to read more of it.
bool DocumentController::keepDamaged(const QString &file)
{
    if (m_damagedFile.isEmpty() || QFileInfo(file) != QFileInfo(m_damagedFile) || !QFileInfo::exists(file))
        return true;
    const QString kept = freeNameBeside(file, m_workspace->text("IDS_BOARD_DAMAGED_NAME"));
    SaveFolders::add(QFileInfo(file).absolutePath());
    const pagehost::SaveResult result = pagehost::copyFile(file, kept);
    if (!result.saved)
        showNotSaved(kept, result.problem);
    return result.saved;
}

void DocumentController::showNotSaved(const QString &file, const pagehost::FileMessage &problem)
{
    m_notices->add({m_workspace->text("IDS_BOARD_NOT_SAVED").arg(shown(file)), texts({problem}), {}, fileNotice});
}

QString DocumentController::suggestion() const
{
    if (!m_damagedFile.isEmpty())
        return freeNameBeside(m_damagedFile, m_workspace->text("IDS_BOARD_REPAIRED_NAME"));
    if (!m_file.isEmpty())
        return m_file;
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
