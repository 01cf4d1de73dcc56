#pragma once

#include <QtCore/QObject>

#include <memory>

class QPrintDialog;
class QPrinter;
class QWidget;

namespace board {

class DocumentController;
class Notices;
class Workspace;

/// Prints pages, or what is selected: one or several on a sheet of paper.
class Printing : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    Printing(const Workspace *workspace, const DocumentController *documents, Notices *notices, QWidget *window);
    ~Printing() override;

    void ask();
    /// Prints what the printer is set to, and tells if that fails.
    void print(const std::shared_ptr<QPrinter> &printer, int pagesPerSheet);

private:
    QPrintDialog *makeDialog(QPrinter *printer) const;

    const Workspace *m_workspace;
    const DocumentController *m_documents;
    Notices *m_notices;
    QWidget *m_window;
};

} // namespace board
