#include "documents/question.h"

#include "core/workspace.h"
#include "look/icons.h"

#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>

namespace board {

namespace {

constexpr int signSide = 36;

} // namespace

void ask(const Workspace &workspace, QWidget *window, const Question &question)
{
    auto *box = new QMessageBox(QMessageBox::NoIcon, window->windowTitle().remove(QStringLiteral("[*]")),
                                question.text, QMessageBox::NoButton, window);
    box->setInformativeText(question.explanation);
    box->setIconPixmap(question.picture.isNull() ? icon(Icon::Info).pixmap(signSide, signSide) : question.picture);
    box->setAttribute(Qt::WA_DeleteOnClose);
    bool isFirst = true;
    for (const Question::Choice &choice : question.choices) {
        const auto role = choice.destroys ? QMessageBox::DestructiveRole : QMessageBox::AcceptRole;
        QPushButton *button = box->addButton(choice.text, role);
        QObject::connect(button, &QPushButton::clicked, window, choice.work);
        if (isFirst && !choice.destroys)
            box->setDefaultButton(button);
        isFirst = false;
    }
    QPushButton *cancel = box->addButton(workspace.text("IDS_BOARD_KEEP_CANCEL"), QMessageBox::RejectRole);
    box->setEscapeButton(cancel);
    if (!box->defaultButton())
        box->setDefaultButton(cancel);
    box->open();
}

} // namespace board
