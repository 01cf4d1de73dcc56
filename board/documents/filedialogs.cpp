#include "documents/filedialogs.h"

#include "application/workspace.h"
#include "look/icons.h"

#include <QtCore/QFileInfo>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace board {

namespace {

constexpr int questionIconSide = 36;
/// Files that are to be replaced and named one by one.
constexpr int mostNames = 8;
const QString binarySuffix = QStringLiteral("board");
const QString jsonSuffix = QStringLiteral("board.json");

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

/// The file that the name field names. The dialog itself prefers a file that is selected in its list, which lags
/// behind what is typed.
QString typedFile(const QFileDialog &dialog, const QString &selected)
{
    const auto *nameEdit = dialog.findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
    const QString name = nameEdit ? nameEdit->text() : QString();
    const bool isPlain = !name.isEmpty() && !name.startsWith(QLatin1Char('~')) && !name.contains(QLatin1Char('"'));
    return isPlain ? dialog.directory().absoluteFilePath(name) : selected;
}

bool hasFormatSuffix(const QString &file)
{
    return file.endsWith(QLatin1Char('.') + binarySuffix, Qt::CaseInsensitive) ||
           file.endsWith(QLatin1Char('.') + jsonSuffix, Qt::CaseInsensitive);
}

QMessageBox *makeQuestion(QWidget *window, const QString &text, const QString &explanation)
{
    auto *box = new QMessageBox(QMessageBox::NoIcon, window->windowTitle().remove(QStringLiteral("[*]")), text,
                                QMessageBox::NoButton, window);
    box->setInformativeText(explanation);
    box->setIconPixmap(icon(Icon::Info).pixmap(questionIconSide, questionIconSide));
    box->setAttribute(Qt::WA_DeleteOnClose);
    return box;
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
                            filterOf(m_workspace->text("IDS_BOARD_ALL_FILES"), {QStringLiteral("*")})});
    QObject::connect(dialog, &QFileDialog::fileSelected, m_window, take);
    dialog->open();
}

void FileDialogs::askForFileToSave(const QString &suggestion, const TakeFile &take) const
{
    QString title = m_workspace->text("IDS_BOARD_SAVE_AS");
    QFileDialog *dialog = makeDialog(m_window, title.remove(QChar(0x2026)));
    dialog->setAcceptMode(QFileDialog::AcceptSave);
    // The dialog itself would ask before it has added a suffix to a name with a dot, and block.
    dialog->setOption(QFileDialog::DontConfirmOverwrite);
    dialog->setFileMode(QFileDialog::AnyFile);
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
    dialog->setDirectory(QFileInfo(suggestion).absolutePath());
    dialog->selectFile(suggestion);
    QObject::connect(dialog, &QFileDialog::filterSelected, dialog, useFilter);
    QObject::connect(dialog, &QFileDialog::fileSelected, m_window, [*this, dialog, take](const QString &file) {
        takeWithSuffix(typedFile(*dialog, file), dialog->defaultSuffix(), take);
    });
    dialog->open();
}

/// The dialog adds its suffix only to names without a dot.
void FileDialogs::takeWithSuffix(const QString &file, const QString &suffix, const TakeFile &take) const
{
    const QString complete = hasFormatSuffix(file) ? file : file + QLatin1Char('.') + suffix;
    if (!QFileInfo::exists(complete))
        return take(complete);
    askToReplace({complete}, [take, complete] { take(complete); });
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
    for (const QString &file : files.mid(0, mostNames))
        names.append(QFileInfo(file).fileName());
    if (files.size() > mostNames)
        names.append(m_workspace->text("IDS_BOARD_MORE_PROBLEMS").arg(files.size() - mostNames));
    const bool isOne = files.size() == 1;
    QMessageBox *box = makeQuestion(m_window,
                                    isOne ? m_workspace->text("IDS_BOARD_REPLACE_TITLE").arg(names.first())
                                          : m_workspace->text("IDS_BOARD_REPLACE_SEVERAL").arg(files.size()),
                                    isOne ? QString() : names.join(QLatin1Char('\n')));
    QPushButton *agree = box->addButton(m_workspace->text("IDS_BOARD_REPLACE"), QMessageBox::DestructiveRole);
    QPushButton *cancel = box->addButton(m_workspace->text("IDS_BOARD_KEEP_CANCEL"), QMessageBox::RejectRole);
    box->setDefaultButton(cancel);
    QObject::connect(agree, &QPushButton::clicked, m_window, replace);
    box->open();
}

void FileDialogs::askToKeepChanges(const QString &name, const Work &save, const Work &discard) const
{
    QMessageBox *box = makeQuestion(m_window, m_workspace->text("IDS_BOARD_KEEP_TITLE").arg(name),
                                    m_workspace->text("IDS_BOARD_KEEP_TEXT"));
    QPushButton *saveButton = box->addButton(m_workspace->text("IDS_BOARD_SAVE"), QMessageBox::AcceptRole);
    QPushButton *discardButton =
        box->addButton(m_workspace->text("IDS_BOARD_KEEP_DISCARD"), QMessageBox::DestructiveRole);
    QPushButton *cancel = box->addButton(m_workspace->text("IDS_BOARD_KEEP_CANCEL"), QMessageBox::RejectRole);
    box->setDefaultButton(saveButton);
    box->setEscapeButton(cancel);
    QObject::connect(saveButton, &QPushButton::clicked, m_window, save);
    QObject::connect(discardButton, &QPushButton::clicked, m_window, discard);
    box->open();
}

} // namespace board
