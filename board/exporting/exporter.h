#pragma once

#include "documents/filedialogs.h"
#include "exporting/exportdialog.h"

#include <QtCore/QObject>

class QWidget;

namespace board {

class DocumentController;
class Notices;
class Workspace;

/// Exports pages, or what is selected, into files that the user chooses, and reports the result.
class Exporter : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    Exporter(const Workspace *workspace, const DocumentController *documents, Notices *notices, QWidget *window);

    void ask();

private:
    void askWhere(const ExportChoice &choice);
    QString suggestedFile(const ExportChoice &choice) const;
    void writeInto(const QString &folder, const ExportFormat &format);
    void write(const ExportContent &content, const QStringList &files, const ExportFormat &format);
    void tell(const ExportResult &result, bool cancelled);

    const Workspace *m_workspace;
    const DocumentController *m_documents;
    Notices *m_notices;
    QWidget *m_window;
    FileDialogs m_dialogs;
};

} // namespace board
