#pragma once

#include "clipboard/pdfpages.h"

#include <QtCore/QObject>
#include <QtCore/QSizeF>

class CBaseObject;

namespace pagehost {
class Page;
} // namespace pagehost

namespace board {

class Notices;
class Workspace;

/// Makes pages of a PDF's pages: each lies locked at the bottom of a page of its own, to be written on.
class Worksheets : public QObject
{
    Q_OBJECT

public:
    /// All must outlive this.
    Worksheets(Workspace *workspace, Notices *notices, QObject *parent);

    /// Adds the pages behind the current one, once they are converted. A page without anything gives way to them if
    /// it is the only one. What went wrong is told.
    void insert(const QString &file);

Q_SIGNALS:
    void inserted();

private:
    void addPages(const QVector<QByteArray> &drawings);
    bool addPage(int index, const QByteArray &drawing);
    CBaseObject *objectOf(const QByteArray &drawing, pagehost::Page *page) const;
    void tell(PdfProblem problem);

    Workspace *m_workspace;
    Notices *m_notices;
    PdfPages m_pages;
    QString m_name; ///< of the file that is converted, for people
};

} // namespace board
