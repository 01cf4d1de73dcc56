#include "clipboard/clipboardcontroller.h"

#include "clipboard/foreigndata.h"
#include "core/notices.h"
#include "core/workspace.h"
#include "objects/objectmaker.h"
#include "output/objectsimage.h"
#include "output/svgdrawing.h"
#include "page/pageview.h"

#include <pagehost/commands.h>
#include <pagehost/documentfile.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>
#include <pagehost/selection.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <QtCore/QMimeData>
#include <QtGui/QClipboard>
#include <QtGui/QGuiApplication>

namespace board {

namespace {

const QString svgType = QStringLiteral("image/svg+xml");
const QString pasteNotice = QStringLiteral("pasteNotice");
/// Pixels per scene unit of the picture for other programs.
constexpr double pictureScale = 2;
/// From a copy to the next, scene units, right and down.
constexpr double copyOffset = 20;

void moveBy(const QVector<CBaseObject *> &objects, const QPointF &delta)
{
    for (CBaseObject *object : qAsConst(objects))
        object->setPos(object->getPos() + delta, false);
}

/// The move that brings `area`, which is no larger than `page`, into it.
QPointF wayInto(const QRectF &page, const QRectF &area)
{
    const double left = qBound(page.left(), area.left(), qMax(page.left(), page.right() - area.width()));
    const double top = qBound(page.top(), area.top(), qMax(page.top(), page.bottom() - area.height()));
    return QPointF(left, top) - area.topLeft();
}

} // namespace

ClipboardController::ClipboardController(Workspace *workspace, PageView *view, Notices *notices, QObject *parent)
    : QObject(parent)
    , m_workspace(workspace)
    , m_view(view)
    , m_notices(notices)
{
    connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, this, &ClipboardController::look);
    connect(view, &PageView::pointerMoved, this, [this](const QPointF &pos) { m_pointer = pos; });
    connect(view, &PageView::pointerLeft, this, [this] { m_pointer.reset(); });
    look();
}

/// Only when something new is there: other programs may take their time to answer.
void ClipboardController::look()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    m_canPaste = data && accepts(*data);
    Q_EMIT stateChanged();
}

bool ClipboardController::isBusy() const
{
    return m_view->page()->scene()->isDragging();
}

void ClipboardController::copy()
{
    const QVector<CBaseObject *> objects = m_view->page()->selectedObjects();
    if (objects.isEmpty() || isBusy())
        return;
    auto *data = new QMimeData;
    const QByteArray bytes = pagehost::encodeObjects(objects);
    data->setData(pagehost::objectsMimeType(), bytes);
    const ObjectsImage picture = imageOf(objects, pictureScale);
    if (!picture.image.isNull())
        data->setImageData(picture.image);
    const QRectF area = picture.area | pagehost::boundsOf(objects);
    const QByteArray svg = svgOf(objects, area, m_workspace->registry());
    if (!svg.isEmpty())
        data->setData(svgType, svg);
    QGuiApplication::clipboard()->setMimeData(data);
    m_lastData.clear();
}

void ClipboardController::cut()
{
    if (isBusy())
        return;
    copy();
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_BOARD_CUT"));
    pagehost::deleteSelection(m_view->page());
    GetFramework()->endUndoGroup();
}

bool ClipboardController::accepts(const QMimeData &data) const
{
    return data.hasFormat(pagehost::objectsMimeType()) || hasForeignData(data, m_workspace->registry());
}

void ClipboardController::paste()
{
    const QMimeData *data = QGuiApplication::clipboard()->mimeData();
    if (!data || !m_view->page() || isBusy())
        return;
    const Pasted pasted = read(*data);
    if (pasted.objects.isEmpty())
        return;
    const bool isOverPage = m_pointer && m_view->page()->rect().contains(*m_pointer);
    const std::optional<QPointF> middle = isOverPage ? m_pointer : std::nullopt;
    place(pasted, middle);
    moveBy(pasted.objects, nextOffset(data->data(pagehost::objectsMimeType()), middle));
    keepOnPage(pasted);
    add(pasted);
}

void ClipboardController::drop(const QMimeData &data, const QPointF &scenePos)
{
    const Pasted pasted = read(data);
    place(pasted, scenePos);
    keepOnPage(pasted);
    add(pasted);
}

/// Finished objects on no page; what could not be read is told.
ClipboardController::Pasted ClipboardController::read(const QMimeData &data)
{
    QStringList problems;
    QVector<CBaseObject *> objects;
    pagehost::ObjectGroups groups;
    const bool isOurs = data.hasFormat(pagehost::objectsMimeType());
    if (isOurs) {
        QVector<pagehost::FileMessage> messages;
        objects = pagehost::decodeObjects(data.data(pagehost::objectsMimeType()), m_workspace->registry(),
                                          &messages, m_view->page(), &groups);
        for (const pagehost::FileMessage &message : qAsConst(messages))
            problems.append(pagehost::describe(message, m_workspace->localizer()));
    } else {
        QStringList unreadable;
        objects = makeObjects(data, m_workspace->registry(), unreadable);
        for (CBaseObject *object : qAsConst(objects))
            finishForPage(object, m_view->page(), m_view->page()->rect().topLeft());
        for (const QString &name : qAsConst(unreadable))
            problems.append(m_workspace->text("IDS_BOARD_NOT_DROPPED").arg(name));
    }
    const char *key = objects.isEmpty() ? "IDS_BOARD_NOT_PASTED" : "IDS_BOARD_PASTED_IN_PART";
    if (objects.isEmpty() || !problems.isEmpty())
        m_notices->add({m_workspace->text(key), problems, {}, pasteNotice});
    else
        m_notices->remove(pasteNotice);
    return {objects, groups, isOurs};
}

/// Objects of this board stay where they were, those of others come to the middle of what is shown.
void ClipboardController::place(const Pasted &pasted, const std::optional<QPointF> &middle)
{
    const QRectF bounds = pagehost::boundsOf(pasted.objects);
    const QRectF page = m_view->page()->rect();
    if (middle) {
        moveBy(pasted.objects, *middle - bounds.center());
    } else if (!pasted.havePlaces || !bounds.intersects(page)) {
        const QRectF shown = m_view->mapToScene(m_view->viewport()->rect()).boundingRect() & page;
        moveBy(pasted.objects, (shown.isEmpty() ? page : shown).center() - bounds.center());
    }
}

/// Brings data of other programs wholly onto the page. Objects of a board may have stood partly off theirs.
void ClipboardController::keepOnPage(const Pasted &pasted)
{
    if (!pasted.havePlaces)
        moveBy(pasted.objects, wayInto(m_view->page()->rect(), pagehost::boundsOf(pasted.objects)));
}

QPointF ClipboardController::nextOffset(const QByteArray &data, const std::optional<QPointF> &middle)
{
    const bool isRepeated = data == m_lastData && !data.isEmpty() && middle == m_lastMiddle;
    m_repeats = isRepeated ? m_repeats + 1 : 0;
    m_lastData = data;
    m_lastMiddle = middle;
    // At the mouse the first one stands exactly there.
    const int steps = middle || data.isEmpty() ? m_repeats : m_repeats + 1;
    return QPointF(copyOffset, copyOffset) * steps;
}

void ClipboardController::add(const Pasted &pasted)
{
    if (pasted.objects.isEmpty())
        return;
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_BOARD_PASTE"));
    pagehost::Page *page = m_view->page();
    pagehost::addObjects(page, pasted.objects, pasted.groups, page->enteredGroup());
    GetFramework()->endUndoGroup();
    m_view->setFocus();
}

void ClipboardController::copyLook()
{
    const QVector<CBaseObject *> objects = m_view->page()->selectedObjects();
    if (objects.isEmpty())
        return;
    m_look.take(objects.first());
    Q_EMIT stateChanged();
}

void ClipboardController::pasteLook()
{
    if (!isBusy())
        m_look.give(m_view->page()->selectedObjects());
}

} // namespace board
