#include "clipboard/worksheets.h"

#include "core/notices.h"
#include "core/workspace.h"
#include "objects/objectmaker.h"

#include <pagehost/commands.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <QtCore/QFileInfo>
#include <QtCore/QXmlStreamReader>

namespace board {

namespace {

const QString svgType = QStringLiteral("image/svg+xml");
const QString notice = QStringLiteral("worksheetNotice");
/// Scene units are 96 an inch, points 72.
constexpr double unitsPerPoint = 96.0 / 72;
/// Of a side of a page, scene units.
constexpr double longestSide = 8000;

/// Of a drawing, in points; that of a usual page where it says nothing sensible.
QSizeF pageSize(const QByteArray &drawing)
{
    QXmlStreamReader xml(drawing);
    xml.readNextStartElement();
    const QStringList box = xml.attributes().value(QLatin1String("viewBox")).toString().split(QLatin1Char(' '));
    const QSizeF size = QSizeF(box.value(2).toDouble(), box.value(3).toDouble()) * unitsPerPoint;
    const bool isSensible =
        size.width() >= 1 && size.height() >= 1 && size.width() <= longestSide && size.height() <= longestSide;
    return isSensible ? size : pagehost::Document::defaultPageSize();
}

} // namespace

Worksheets::Worksheets(Workspace *workspace, Notices *notices, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_notices(notices)
{
    connect(&m_pages, &PdfPages::converted, this, &Worksheets::addPages);
    connect(&m_pages, &PdfPages::failed, this, &Worksheets::tell);
}

void Worksheets::insert(const QString &file)
{
    m_name = QFileInfo(file).fileName();
    const Notice::Answer stop{m_workspace->text("IDS_BOARD_STOP_READING"), [this] { m_pages.stop(); }};
    m_notices->add({m_workspace->text("IDS_BOARD_READING_PDF").arg(m_name), {}, {stop}, notice});
    m_pages.convert(file);
}

void Worksheets::addPages(const QVector<QByteArray> &drawings)
{
    m_notices->remove(notice);
    pagehost::Document *document = m_workspace->document();
    const bool isNew = document->pageCount() == 1 && document->currentPage()->objectCount() == 0;
    const int first = document->currentIndex() + 1;
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_BOARD_ADD_WORKSHEET"));
    int index = first;
    for (const QByteArray &drawing : drawings)
        if (addPage(index, drawing))
            ++index;
    if (isNew && index > first)
        pagehost::removePage(document, 0);
    GetFramework()->endUndoGroup();
    if (index == first)
        return tell(PdfProblem::Unreadable);
    document->setCurrentIndex(isNew ? 0 : first);
    Q_EMIT inserted();
}

bool Worksheets::addPage(int index, const QByteArray &drawing)
{
    pagehost::Page *page = pagehost::addPage(m_workspace->document(), index, pageSize(drawing));
    CBaseObject *object = objectOf(drawing, page);
    if (!object)
        return pagehost::removePage(m_workspace->document(), index) && false;
    pagehost::addObjects(page, {object});
    page->select({});
    return true;
}

/// Null for a drawing that no plug-in takes.
CBaseObject *Worksheets::objectOf(const QByteArray &drawing, pagehost::Page *page) const
{
    CBaseObject *object = m_workspace->registry().createFromData(svgType, drawing);
    if (!object)
        return nullptr;
    finishForPage(object, page, {});
    object->setSize(page->size(), false, false);
    object->setPos(QPointF(), false);
    object->setLocked(true);
    return object;
}

void Worksheets::tell(PdfProblem problem)
{
    constexpr const char *keys[] = {"IDS_BOARD_NO_PDF_CONVERTER", "IDS_BOARD_PDF_UNREADABLE",
                                    "IDS_BOARD_PDF_TOO_LONG", "IDS_BOARD_PDF_TOO_SLOW"};
    m_notices->add({m_workspace->text(keys[int(problem)]).arg(m_name), {}, {}, notice});
}

} // namespace board
