#pragma once

#include <board/boarddriver.h>

#include <core/notices.h>
#include <documents/documentcontroller.h>
#include <documents/recovery.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>

#include <support/patience.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QSettings>
#include <QtCore/QTemporaryDir>
#include <QtTest/QtTest>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace boardtest {

/// A board, a folder for its files, and the answers to its dialogs.
struct Desk
{
    Desk()
    {
        QSettings().clear();
        QDir(board::recoveryFolder()).removeRecursively();
    }

    QString path(const QString &name) const { return folder.filePath(name); }
    board::DocumentController &documents() { return *board.window().documents(); }
    CBaseObject *drawOne() { return board.draw(rectangle, {500, 300}, {700, 420}); }
    void press(const QString &buttonText)
    {
        QPushButton *button = board.button(buttonText);
        QVERIFY2(button, qPrintable(buttonText));
        board.clickOn(button);
    }
    /// Writes the name into the open file dialog and agrees.
    void answerFile(const QString &file)
    {
        auto *dialog = board.window().findChild<QFileDialog *>();
        QVERIFY(dialog);
        auto *line = dialog->findChild<QLineEdit *>();
        QVERIFY(activate(*dialog));
        line->setFocus();
        line->setText(file);
        board.keyIn(line, Qt::Key_Return);
        QTRY_VERIFY_WITH_TIMEOUT(!board.window().findChild<QFileDialog *>(), support::patience);
    }
    bool isAsked() const { return board.window().findChild<QMessageBox *>() != nullptr; }
    QString notices() const
    {
        QStringList texts;
        const QList<QLabel *> labels = board.window().notices()->findChildren<QLabel *>();
        for (const QLabel *label : labels)
            texts.append(label->text());
        return texts.join('\n');
    }
    QByteArray contents(const QString &name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }
    int objectCount() { return board.page().objectCount(); }
    void saveAs(const QString &name)
    {
        board.key(Qt::Key_S, Qt::ControlModifier | Qt::ShiftModifier);
        answerFile(path(name));
    }
    /// Saves a board as half.board, cuts its last quarter off and opens what is left.
    void openDamaged()
    {
        drawOne();
        board.draw(arrow, {100, 100}, {200, 200});
        saveAs("half.board");
        QVERIFY(QFile::resize(path("half.board"), QFileInfo(path("half.board")).size() * 3 / 4));
        QVERIFY(documents().openNow(path("half.board")));
    }

    QTemporaryDir folder;
    BoardDriver board;
};

} // namespace boardtest
