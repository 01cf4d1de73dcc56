#include "application/demopages.h"

#include "core/workspace.h"
#include "objects/objectmaker.h"

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>
#include <framework/cpagebgprop.h>
#include <framework/cundoredo.h>

#include <QtCore/QtMath>
#include <QtWidgets/QUndoStack>

#include <algorithm>
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
/// Dresses by which a varied shape is ahead of its plain one.
constexpr int otherDress = 3;
/// Part of its cell that a shape takes.
constexpr double cellPart = 0.74;
/// Proportion of the cells that the page is divided into.
constexpr double cellAspect = 1.35;

// The last page, scene units.
constexpr QPointF wreathRadius(490, 270);
constexpr QSizeF wreathShape(124, 90);
constexpr QSizeF middleShape(270, 220);
constexpr int middleCount = 3;
constexpr double paneStep = 150;
constexpr int paneAlpha = 190;

QRectF centredOn(const QPointF &centre, const QSizeF &size)
{
    return {centre - QPointF(size.width(), size.height()) / 2, size};
}

QPointF centreOf(const CBaseObject *object)
{
    return object->mapToScene(object->getClientRect().center());
}

void moveCentreTo(CBaseObject *object, const QPointF &centre)
{
    object->setPos(object->getPos() + centre - centreOf(object), false);
}

/// Those of the palette; of kinds that only tools make, like texts, nothing is to be seen yet.
QVector<pagehost::ObjectKind> shownKinds(const Workspace &workspace)
{
    QVector<pagehost::ObjectKind> kinds = workspace.registry().kinds();
    const auto isHidden = [](const pagehost::ObjectKind &kind) { return kind.group.isEmpty(); };
    kinds.erase(std::remove_if(kinds.begin(), kinds.end(), isHidden), kinds.end());
    return kinds;
}

/// Cells of a page in reading order.
struct Grid
{
    int columns = 1;
    int rows = 1;
    QRectF area;

    Grid(const QRectF &page, int columnCount, int rowCount)
        : columns(columnCount)
        , rows(rowCount)
        , area(page.adjusted(pageMargin, pageMargin, -pageMargin, -pageMargin))
    {
    }

    /// A cell for every kind, as large as they can be.
    static Grid forKinds(const QRectF &page, int kinds)
    {
        Grid best(page, kinds, 1);
        for (int columns = 1; columns < kinds; ++columns) {
            const Grid grid(page, columns, (kinds + columns - 1) / columns);
            if (grid.room() > best.room())
                best = grid;
        }
        return best;
    }

    QSizeF cellSize() const { return {area.width() / columns, area.height() / rows}; }

    /// Height of the largest picture of the usual proportions that fits into a cell.
    double room() const { return qMin(cellSize().width() / cellAspect, cellSize().height()); }

    QRectF cell(int index) const
    {
        const int row = index / columns;
        const int column = index % columns;
        const QPointF corner(column * cellSize().width(), row * cellSize().height());
        return {area.topLeft() + corner, cellSize()};
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

    /// Every kind once, plain.
    void paintCatalogue()
    {
        paintKinds([this](CBaseObject *object, int index) { dress(object, index); });
    }

    /// Every kind once, in another form and fill.
    void paintVariations()
    {
        paintKinds([this](CBaseObject *object, int index) {
            dress(object, index + otherDress);
            vary(object, index + otherDress);
        });
    }

    /// All kinds again and again, each turned a little further, around a few large ones.
    void paintWreath()
    {
        const QVector<pagehost::ObjectKind> kinds = shownKinds(m_workspace);
        constexpr int places = 12;
        constexpr double degrees = 360.0 / places;
        const QPointF centre = m_page->rect().center();
        for (int i = 0; i < places; ++i) {
            const double angle = qDegreesToRadians(i * degrees - 90);
            const QPointF spot =
                centre + QPointF(wreathRadius.x() * std::cos(angle), wreathRadius.y() * std::sin(angle));
            CBaseObject *object = place(kinds.at(i % kinds.size()).id, centredOn(spot, wreathShape), 1);
            if (!object)
                continue;
            dress(object, i);
            pagehost::rotateObjects({object}, i * degrees);
        }
        for (int i = 0; i < middleCount; ++i)
            paintPane(kinds.at(i % kinds.size()).id, centre + QPointF((i - 1) * paneStep, 0), i);
    }

private:
    template<class Decorate> void paintKinds(Decorate decorate)
    {
        const QVector<pagehost::ObjectKind> kinds = shownKinds(m_workspace);
        const Grid grid = Grid::forKinds(m_page->rect(), kinds.size());
        for (int i = 0; i < kinds.size(); ++i)
            if (CBaseObject *object = place(kinds.at(i).id, grid.cell(i), cellPart))
                decorate(object, i);
    }

    /// In the middle of the cell, as large as fits into that part of it, in the proportions of a new object.
    CBaseObject *place(const QString &kindId, const QRectF &cell, double part)
    {
        CBaseObject *object = makeObject(m_page, m_workspace.registry(), kindId, cell.topLeft());
        if (!object)
            return nullptr;
        object->setSize(object->getClientRect().size().scaled(cell.size() * part, Qt::KeepAspectRatio), false,
                        true);
        moveCentreTo(object, cell.center());
        return object;
    }

    /// A large shape that lets what is behind it show through.
    void paintPane(const QString &kindId, const QPointF &centre, int index)
    {
        CBaseObject *object = place(kindId, centredOn(centre, middleShape), 1);
        if (!object)
            return;
        dress(object, index);
        QColor glass(wardrobe[index % wardrobe.size()].fill);
        glass.setAlpha(paneAlpha);
        pagehost::setFill({object}, glass);
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
    if (shownKinds(workspace).isEmpty())
        return;
    pagehost::Document *document = workspace.document();
    CUndoRedo::GetInstance()->stack()->clear();
    clearPages(document);
    DemoPainter(workspace, document->appendPage()).paintCatalogue();
    DemoPainter(workspace, document->appendPage()).paintVariations();
    DemoPainter(workspace, document->appendPage()).paintWreath();
    const QVector<pagehost::Page *> pages = document->pages();
    for (pagehost::Page *page : pages)
        page->select({});
    document->setCurrentIndex(0);
    CUndoRedo::GetInstance()->stack()->clear();
    document->markSaved();
}

} // namespace board
