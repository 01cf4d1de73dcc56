#pragma once

#include "documents/filedialogs.h"
#include "output/pageexport.h"

#include <QtCore/QObject>

class QWidget;

namespace board {

class DocumentController;
class Notices;
class Workspace;

/// Exports the pages of the document into a folder that the user chooses, and reports the result.
class PageExporting : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    PageExporting(const Workspace *workspace, const DocumentController *documents, Notices *notices,
                  QWidget *window);

    void ask(PageFormat format);

private:
    void write(const QString &folder, PageFormat format);

    const Workspace *m_workspace;
    const DocumentController *m_documents;
    Notices *m_notices;
    FileDialogs m_dialogs;
};

} // namespace board
