#include "window/shapefolder.h"

#include "core/workspace.h"

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtCore/QSaveFile>
#include <QtCore/QStandardPaths>
#include <QtCore/QUrl>
#include <QtGui/QDesktopServices>
#include <QtWidgets/QInputDialog>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMessageBox>

namespace board {

namespace {

const QString fileEnding = QStringLiteral(".shape.svg");

/// A box whose corner is dragged; it shows properties, a control point and an outline.
QByteArray startingShape(const QString &name)
{
    static const QString pattern = QStringLiteral(
        R"(<svg xmlns="http://www.w3.org/2000/svg" xmlns:shape="urn:gliololok:shape" viewBox="0 0 120 80">
    <shape:about name="%1" filled="page"/>
    <path id="figure" fill="#ffe48a" stroke="#3f63a8" stroke-width="2" stroke-linejoin="round"
          d="M1 1H99L119 21V79H1Z"
          shape:d="M{left} {top}H{p1.x}L{right} {top + right - p1.x}V{bottom}H{left}Z"/>
    <rect id="control_1" x="95" y="-3" width="8" height="8" fill="none"
          shape:range-x="w / 2 .. w - 12" shape:range-y="1" shape:follow-x="shorter" shape:follow-y="start"/>
</svg>
)");
    return pattern.arg(name.toHtmlEscaped()).toUtf8();
}

/// Letters and digits only; the file's name is the id of the shape.
QString plainName(const QString &name)
{
    static const QRegularExpression others(QStringLiteral("[^a-z0-9]"));
    QString plain = name.toLower();
    plain.remove(others);
    return plain.isEmpty() ? QStringLiteral("shape") : plain;
}

QString freeFile(const QDir &folder, const QString &plain)
{
    QString file = folder.filePath(plain + fileEnding);
    for (int number = 2; QFile::exists(file); ++number)
        file = folder.filePath(plain + QString::number(number) + fileEnding);
    return file;
}

void openFolder()
{
    QDir().mkpath(userShapeFolder());
    QDesktopServices::openUrl(QUrl::fromLocalFile(userShapeFolder()));
}

void makeShape(const Workspace &workspace, const QString &name, QWidget *window)
{
    QString problem;
    if (writeNewShape(name, &problem).isEmpty()) {
        QMessageBox::warning(window, workspace.text("IDS_BOARD_SHAPE_NOT_WRITTEN"), problem);
        return;
    }
    openFolder();
}

void askForName(const Workspace *workspace, QWidget *window)
{
    auto *dialog = new QInputDialog(window);
    dialog->setAttribute(Qt::WA_DeleteOnClose);
    dialog->setWindowTitle(workspace->text("IDS_BOARD_NEW_SHAPE"));
    dialog->setLabelText(workspace->text("IDS_BOARD_SHAPE_NAME"));
    QObject::connect(dialog, &QInputDialog::textValueSelected, window, [workspace, window](const QString &name) {
        if (!name.trimmed().isEmpty())
            makeShape(*workspace, name.trimmed(), window);
    });
    dialog->open();
}

} // namespace

QString userShapeFolder()
{
    return QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) + QStringLiteral("/shapes");
}

QString writeNewShape(const QString &name, QString *problem)
{
    const QDir folder(userShapeFolder());
    folder.mkpath(QStringLiteral("."));
    QSaveFile file(freeFile(folder, plainName(name)));
    const bool isWritten = file.open(QIODevice::WriteOnly) && file.write(startingShape(name)) >= 0 && file.commit();
    if (isWritten)
        return file.fileName();
    *problem = QDir::toNativeSeparators(file.fileName()) + QStringLiteral(": ") + file.errorString();
    return {};
}

void addShapeFolderActions(QMenu *menu, const Workspace *workspace, QWidget *window)
{
    menu->addAction(workspace->text("IDS_BOARD_NEW_SHAPE"), window,
                    [workspace, window] { askForName(workspace, window); });
    menu->addAction(workspace->text("IDS_BOARD_OPEN_SHAPES"), window, [] { openFolder(); });
}

} // namespace board
