#include "documents/filedialogs.h"

#include "core/workspace.h"
#include "documents/freenames.h"
#include "documents/question.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>

namespace board {

namespace {

/// Files that are to be replaced and named one by one.
constexpr int mostNames = 8;

QString filterOf(const QString &name, const QStringList &patterns)
{
    return QStringLiteral("%1 (%2)").arg(name, patterns.join(QLatin1Char(' ')));
}

QFileDialog *makeDialog(QWidget *window, const QString &title)
{
    auto *dialog = new QFileDialog(window, title);
    dialog->setOption(QFileDialog::DontUseNativeDialog);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    return dialog;
}

/// For a file to write. Names are completed and files that exist are asked about by us: the dialog itself would ask
/// before it has added a suffix to a name with a dot, and block.
QFileDialog *makeSaveDialog(QWidget *window, const QString &title, const QString &suggestion)
{
    QFileDialog *dialog = makeDialog(window, title);
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setFileMode(QFileDialog::AnyFile);
    dialog->setDirectory(QFileInfo(suggestion).absolutePath());
    return dialog;
}

/// The file that the name field names. The dialog itself prefers a file that is selected in its list, which lags
/// behind what is typed.
QString typedFile(const QFileDialog &dialog, const QString &selected)
{
    const auto *nameEdit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    const QString name = nameEdit ? nameEdit->text() : QString();
    const bool isPlain = !name.isEmpty() && !name.startsWith(QLatin1Char('~')) && !name.contains(QLatin1Char('"'));
    return isPlain ? dialog.directory().absoluteFilePath(name) : selected;
}

} // namespace

FileDialogs::FileDialogs(const Workspace *workspace, QWidget *window)
    : m_workspace(workspace)
    , m_window(window)
{
}

void FileDialogs::askForFileToOpen(const QString &folder, const TakeFile &take) const
{
    QString title = m_workspace->text("IDS_BOARD_OPEN");
    QFileDialog *dialog = makeDialog(m_window, title.remove(QChar(0x2026)));
    dialog->setDirectory(folder);
    dialog->setFileMode(QFileDialog::ExistingFile);
    dialog->setNameFilters({filterOf(m_workspace->text("IDS_BOARD_ALL_BOARDS"),
                                     {QStringLiteral("*.") + binarySuffix, QStringLiteral("*.") + jsonSuffix}),
                            filterOf(m_workspace->text("IDS_BOARD_WORKSHEETS"), {QStringLiteral("*.pdf")}),
                            filterOf(m_workspace->text("IDS_BOARD_ALL_FILES"), {QStringLiteral("*")})});
    QObject::connect(dialog, &QFileDialog::fileSelected, m_window, take);
    dialog->open();
}

void FileDialogs::askForFileToSave(const QString &suggestion, const TakeFile &take) const
{
    QString title = m_workspace->text("IDS_BOARD_SAVE_AS");
    QFileDialog *dialog = makeSaveDialog(m_window, title.remove(QChar(0x2026)), suggestion);
    const QString binary =
        filterOf(m_workspace->text("IDS_BOARD_BINARY_BOARDS"), {QStringLiteral("*.") + binarySuffix});
    const QString json = filterOf(m_workspace->text("IDS_BOARD_JSON_BOARDS"), {QStringLiteral("*.") + jsonSuffix});
    dialog->setNameFilters({binary, json});
    const auto useFilter = [dialog, json](const QString &filter) {
        dialog->setDefaultSuffix(filter == json ? jsonSuffix : binarySuffix);
    };
    const bool isJson = suggestion.endsWith(jsonSuffix, Qt::CaseInsensitive);
    dialog->selectNameFilter(isJson ? json : binary);
    useFilter(isJson ? json : binary);
    dialog->selectFile(suggestion);
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, useFilter);
    QObject::connect(dialog, &QFileDialog::fileSelected, m_window, [*this, dialog, take](const QString &file) {
        takeWithSuffix(typedFile(*dialog, file), dialog->defaultSuffix(), take);
    });
    dialog->open();
}

void FileDialogs::askForFileToWrite(const QString &title, const QString &suggestion, const TakeFile &take) const
{
    QFileDialog *dialog = makeSaveDialog(m_window, title, suggestion);
    const QString suffix = QFileInfo(suggestion).suffix();
    dialog->setNameFilter(filterOf(suffix.toUpper(), {QStringLiteral("*.") + suffix}));
    dialog->selectFile(suggestion);
    QObject::connect(
        dialog, &QFileDialog::fileSelected, m_window, [*this, dialog, suffix, take](const QString &file) {
            const QString typed = typedFile(*dialog, file);
            const bool isComplete = QFileInfo(typed).suffix().compare(suffix, Qt::CaseInsensitive) == 0;
            takeUnlessPresent(isComplete ? typed : typed + QLatin1Char('.') + suffix, take);
        });
    dialog->open();
}

/// The dialog adds its suffix only to names without a dot.
void FileDialogs::takeWithSuffix(const QString &file, const QString &suffix, const TakeFile &take) const
{
    takeUnlessPresent(!formatSuffixOf(file).isEmpty() ? file : file + QLatin1Char('.') + suffix, take);
}

void FileDialogs::takeUnlessPresent(const QString &file, const TakeFile &take) const
{
    if (!QFileInfo::exists(file))
        return take(file);
    askToReplace({file}, [take, file] { take(file); });
}

void FileDialogs::askForFolder(const QString &title, const QString &folder, const TakeFile &take) const
{
    QString plain = title;
    QFileDialog *dialog = makeDialog(m_window, plain.remove(QChar(0x2026)));
    dialog->setFileMode(QFileDialog::Directory);
    dialog->setOption(QFileDialog::ShowDirsOnly);
    dialog->setDirectory(folder);
    QObject::connect(dialog, &QFileDialog::fileSelected, m_window, take);
    dialog->open();
}

void FileDialogs::askToReplace(const QStringList &files, const Work &replace) const
{
    QStringList names;
    const QStringList named = files.mid(0, mostNames);
    for (const QString &file : named)
        names.append(QFileInfo(file).fileName());
    if (files.size() > mostNames)
        names.append(m_workspace->text("IDS_BOARD_MORE_PROBLEMS").arg(files.size() - mostNames));
    const bool isOne = files.size() == 1;
    const auto text = [this](const char *key) { return m_workspace->text(key); };
    ask(*m_workspace, m_window,
        {isOne ? text("IDS_BOARD_REPLACE_TITLE").arg(names.first())
               : text("IDS_BOARD_REPLACE_SEVERAL").arg(files.size()),
         isOne ? QString() : names.join(QLatin1Char('\n')),
         {{text("IDS_BOARD_REPLACE"), true, replace}},
         {}});
}

void FileDialogs::askToKeepChanges(const QString &name, const Work &save, const Work &discard) const
{
    const auto text = [this](const char *key) { return m_workspace->text(key); };
    ask(*m_workspace, m_window,
        {text("IDS_BOARD_KEEP_TITLE").arg(name),
         text("IDS_BOARD_KEEP_TEXT"),
         {{text("IDS_BOARD_SAVE"), false, save}, {text("IDS_BOARD_KEEP_DISCARD"), true, discard}},
         {}});
}

void FileDialogs::askAboutConflict(const QString &file, const Work &keepMine, const Work &takeTheirs,
                                   const Work &saveBoth) const
{
    const auto text = [this](const char *key) { return m_workspace->text(key); };
    ask(*m_workspace, m_window,
        {text("IDS_BOARD_CONFLICT_TITLE").arg(QFileInfo(file).fileName()),
         text("IDS_BOARD_CONFLICT_TEXT"),
         {{text("IDS_BOARD_CONFLICT_BOTH"), false, saveBoth},
          {text("IDS_BOARD_CONFLICT_MINE"), true, keepMine},
          {text("IDS_BOARD_CONFLICT_THEIRS"), true, takeTheirs}},
         {}});
}

void FileDialogs::askToSaveShared(const QString &file, const pagehost::ReplacementEffects &effects,
                                  const Work &save, const Work &saveAs) const
{
    const auto text = [this](const char *key) { return m_workspace->text(key); };
    QStringList explanation;
    if (effects.otherNames > 0)
        explanation.append(text("IDS_BOARD_LINKS_TEXT").arg(effects.otherNames));
    if (effects.changesOwner)
        explanation.append(text("IDS_BOARD_OWNER_TEXT"));
    ask(*m_workspace, m_window,
        {text("IDS_BOARD_SHARED_TITLE").arg(QFileInfo(file).fileName()),
         explanation.join(QLatin1Char('\n')),
         {{text("IDS_BOARD_SAVE_AS"), false, saveAs}, {text("IDS_BOARD_SAVE_HERE"), true, save}},
         {}});
}

} // namespace board
