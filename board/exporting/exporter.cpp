#include "exporting/exporter.h"

#include "core/notices.h"
#include "core/workspace.h"
#include "documents/documentcontroller.h"
#include "exporting/steps.h"
#include "output/objectsimage.h"

#include <pagehost/document.h>
#include <pagehost/page.h>

#include <QtCore/QDir>
#include <QtCore/QFileInfo>
#include <QtWidgets/QWidget>

#include <algorithm>

namespace board {

namespace {

/// Bottom to top.
QVector<CBaseObject *> selectedObjects(const pagehost::Document &document)
{
    return document.currentPage()->selectedObjects();
}

ExportContent contentOf(const pagehost::Document &document, ExportScope scope)
{
    switch (scope) {
    case ExportScope::AllPages:
        return allPages(&document);
    case ExportScope::Selection:
        return {{}, selectedObjects(document)};
    default:
        return {{document.currentPage()}, {}};
    }
}

/// A folder of several files is chosen for pictures and drawings of all pages.
bool needsFolder(const ExportChoice &choice)
{
    return choice.scope == ExportScope::AllPages && choice.format.format != PageFormat::Pdf;
}

} // namespace

Exporter::Exporter(const Workspace *workspace, const DocumentController *documents, Notices *notices,
                   QWidget *window)
    : QObject(window)
    , m_workspace(workspace)
    , m_documents(documents)
    , m_notices(notices)
    , m_window(window)
    , m_dialogs(workspace, window)
{
}

void Exporter::ask()
{
    const pagehost::Document &document = *m_workspace->document();
    const ObjectsImage selected = imageOf(selectedObjects(document), 1);
    auto *dialog = new ExportDialog(m_workspace, document.currentPage()->size(), selected.area.size(), m_window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    connect(dialog, &ExportDialog::chosen, this, &Exporter::askWhere);
    dialog->open();
}

void Exporter::askWhere(const ExportChoice &choice)
{
    QString title = m_workspace->text("IDS_BOARD_EXPORT");
    title.remove(QChar(0x2026));
    if (needsFolder(choice))
        return m_dialogs.askForFolder(title, m_documents->folder(),
                                      [=](const QString &folder) { writeInto(folder, choice.format); });
    const auto writeFile = [=](const QString &file) {
        write(contentOf(*m_workspace->document(), choice.scope), {file}, choice.format);
    };
    m_dialogs.askForFileToWrite(title, suggestedFile(choice), writeFile);
}

/// Beside the board's file, under its name; single pages with their number.
QString Exporter::suggestedFile(const ExportChoice &choice) const
{
    QString name = QFileInfo(m_documents->name()).completeBaseName();
    if (choice.scope == ExportScope::CurrentPage)
        name += QStringLiteral("-%1").arg(m_workspace->document()->currentIndex() + 1);
    return QDir(m_documents->folder()).filePath(name + QLatin1Char('.') + suffixOf(choice.format.format));
}

void Exporter::writeInto(const QString &folder, const ExportFormat &format)
{
    const QStringList files = exportFiles(m_workspace->document(), folder, format.format);
    QStringList present = files;
    present.erase(std::remove_if(present.begin(), present.end(),
                                 [](const QString &file) { return !QFileInfo::exists(file); }),
                  present.end());
    const auto go = [=] { write(allPages(m_workspace->document()), files, format); };
    if (present.isEmpty())
        go();
    else
        m_dialogs.askToReplace(present, go);
}

void Exporter::write(const ExportContent &content, const QStringList &files, const ExportFormat &format)
{
    const auto job = std::make_shared<ExportJob>(content, files, m_workspace->registry(), format);
    takeSteps(*m_workspace, m_window,
              {m_workspace->text("IDS_BOARD_EXPORTING"), job->stepCount(), [job](int) { job->step(); },
               [this, job](bool cancelled) { tell(job->result(), cancelled); }});
}

void Exporter::tell(const ExportResult &result, bool cancelled)
{
    const QStringList &files = result.files;
    if (files.size() == 1)
        m_notices->add({m_workspace->text("IDS_BOARD_EXPORTED_ONE").arg(QDir::toNativeSeparators(files.first())),
                        {},
                        {},
                        QStringLiteral("exportedNotice")});
    else if (!files.isEmpty())
        m_notices->add(
            {m_workspace->text("IDS_BOARD_EXPORTED").arg(files.size()).arg(QFileInfo(files.first()).absolutePath()),
             {},
             {},
             QStringLiteral("exportedNotice")});
    const char *trouble = cancelled ? "IDS_BOARD_EXPORT_CANCELLED" : "IDS_BOARD_NOT_EXPORTED";
    if (!result.problems.isEmpty() || cancelled)
        m_notices->add({m_workspace->text(trouble), result.problems, {}, QStringLiteral("exportNotice")});
    else
        m_notices->remove(QStringLiteral("exportNotice"));
}

} // namespace board
