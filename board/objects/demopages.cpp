#include "objects/demopages.h"

#include "application/workspace.h"
#include "objects/objectmaker.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>
#include <framework/cpagebgprop.h>
#include <framework/cundoredo.h>

#include <QtWidgets/QUndoStack>

#include <array>
#include <cmath>

namespace board {

namespace {

/// A fill and the outline that goes with it.
struct Dress
{
    QRgb pen, fill, second;
};

constexpr std::array<Dress, 6> wardrobe{{{0xff1f5fa8, 0xffa9d0f5, 0xffe8f3fd},
                                         {0xffb0562b, 0xffffd3a8, 0xfffff0df},
                                         {0xff2f7d4f, 0xffb5e3c2, 0xffecf8ef},
                                         {0xff7a4aa8, 0xffd9c4f0, 0xfff4edfb},
                                         {0xffb23a5b, 0xfff7bccb, 0xfffdecf0},
                                         {0xff2b7f86, 0xffa9e0e0, 0xffe6f7f7}}};

constexpr QRgb paper = 0xfffdfdfb;
constexpr double pageMargin = 70;
/// Part of its cell that a shape takes.
constexpr double cellPart = 0.74;
/// Proportion of the cells that the page is divided into.
constexpr double cellAspect = 1.35;

QPointF centreOf(const CBaseObject *object)
{
    return object->mapToScene(object->getClientRect().center());
}

void moveCentreTo(CBaseObject *object, const QPointF &centre)
{
    object->setPos(object->getPos() + centre - centreOf(object), false);
}

/// Cells of a page in reading order.
struct Grid
{
    int columns = 1;
    int rows = 1;
    QRectF area;

    Grid(const QRectF &page, int count)
        : area(page.adjusted(pageMargin, pageMargin, -pageMargin, -pageMargin))
    {
        const double perRow = std::sqrt(count * area.width() / area.height() / cellAspect);
        columns = qBound(1, qRound(perRow), count);
        rows = (count + columns - 1) / columns;
    }

    QRectF cell(int index) const
    {
        const QSizeF size(area.width() / columns, area.height() / rows);
        const QPointF corner(index % columns * size.width(), index / columns * size.height());
        return {area.topLeft() + corner, size};
    }
};

class DemoPainter
{
public:
    DemoPainter(Workspace &workspace, pagehost::Page *page)
        : m_workspace(workspace)
        , m_page(page)
    {
        CPageBgProp background(page);
        background.setFillColor(QColor(paper));
        background.setFillEnable(true);
        page->setBackground(background);
    }

    /// Every kind once, plain, then once more in another form, size and fill.
    void paintCatalogue()
    {
        const QVector<pagehost::ObjectKind> kinds = m_workspace.registry().kinds();
        const int count = kinds.size() * 2;
        const Grid grid(m_page->rect(), count);
        for (int i = 0; i < count; ++i) {
            CBaseObject *object = place(kinds.at(i % kinds.size()).id, grid.cell(i), cellPart);
            if (!object)
                continue;
            dress(object, i);
            if (i >= kinds.size())
                vary(object, i);
        }
    }

    /// All kinds again and again, each turned a little further, growing towards the edge.
    void paintWreath()
    {
        const QVector<pagehost::ObjectKind> kinds = m_workspace.registry().kinds();
        constexpr int places = 12;
        constexpr double degrees = 360.0 / places;
        const QPointF centre = m_page->rect().center();
        for (int i = 0; i < places; ++i) {
            const double angle = qDegreesToRadians(i * degrees - 90);
            const QPointF spot = centre + QPointF(420 * std::cos(angle), 240 * std::sin(angle));
            CBaseObject *object =
                place(kinds.at(i % kinds.size()).id, QRectF(spot - QPointF(75, 55), QSizeF(150, 110)), 1);
            if (!object)
                continue;
            dress(object, i);
            pagehost::rotateObjects({object}, i * degrees);
        }
        if (CBaseObject *middle = place(kinds.last().id, QRectF(centre - QPointF(130, 130), QSizeF(260, 260)), 1))
            dress(middle, places);
    }

private:
    CBaseObject *place(const QString &kindId, const QRectF &cell, double part)
    {
        const QSizeF size = cell.size() * part;
        CBaseObject *object = makeObject(m_page, m_workspace.registry(), kindId, cell.topLeft(), size);
        if (!object)
            return nullptr;
        const QSizeF drawn = object->getClientRect().size();
        const double excess = qMax(drawn.width() / size.width(), drawn.height() / size.height());
        if (excess > 1)
            object->setSize(drawn / excess, false, true);
        moveCentreTo(object, cell.center());
        return object;
    }

    void dress(CBaseObject *object, int index)
    {
        const Dress &dress = wardrobe[index % wardrobe.size()];
        pagehost::setPenColor({object}, QColor(dress.pen));
        pagehost::setPenWidth({object}, 3);
        pagehost::setFill({object}, QColor(dress.fill));
    }

    void vary(CBaseObject *object, int index)
    {
        const Dress &dress = wardrobe[index % wardrobe.size()];
        CPageBgProp fill = *object->getFillProp();
        fill.setFillType(CPageBgProp::GradientFill);
        fill.setFillColor(QColor(dress.fill));
        fill.setGradientColor(QColor(dress.second));
        fill.setGradientAngle(90);
        pagehost::setObjectsFill({object}, fill);
        pagehost::setPenStyle({object}, index % 2 ? Qt::DashLine : Qt::SolidLine);
        if (index % 2)
            pagehost::mirrorObjects({object}, true);
        pagehost::rotateObjects({object}, index % 2 ? -12 : 12);
    }

    Workspace &m_workspace;
    pagehost::Page *m_page;
};

void clearPages(pagehost::Document *document)
{
    while (document->pageCount() > 0)
        document->takePage(document->pageCount() - 1);
}

} // namespace

void fillWithDemo(Workspace &workspace)
{
    if (workspace.registry().kinds().isEmpty())
        return;
    pagehost::Document *document = workspace.document();
    CUndoRedo::GetInstance()->stack()->clear();
    clearPages(document);
    DemoPainter(workspace, document->appendPage()).paintCatalogue();
    DemoPainter(workspace, document->appendPage()).paintWreath();
    for (pagehost::Page *page : document->pages())
        page->select({});
    document->setCurrentIndex(0);
    CUndoRedo::GetInstance()->stack()->clear();
}

} // namespace board
