#pragma once

#include "shapes/writingdesk.h"

#include <framework/operationtype.h>

#include <pagehost/documentfile.h>
#include <pagehost/objectid.h>
#include <pagehost/objectplugin.h>

/// The second rectangle when it is below the first one, 50 to the right, and when it is far to the right.
const inline QPointF below(150, 300);
const inline QPointF farRight(400, 300);
/// The property of the kind of way, after start, end and course.
constexpr int wayProperty = 5104;
/// Behind joints and detour.
constexpr qint32 labelProperty = 5107;

/// Two rectangles, 100 wide and 60 high, the first one at (100, 100), and the connector tool. Their lines are 2
/// wide and inside, so that their outlines are 1 inside of their frames.
struct Desk : WritingDesk
{
    explicit Desk(int variant = pagehost::StraightConnector, const QPointF &second = below)
        : WritingDesk(pagehost::ToolRole::Connector, {QColor(0x25, 0x63, 0xcf), 2, variant})
        , one(box(QStringLiteral("shapes.roundedrectangle"), {100, 100}))
        , two(box(QStringLiteral("shapes.roundedrectangle"), second))
    {
    }
    CBaseObject *box(const QString &kind, const QPointF &corner)
    {
        putToolDown();
        CBaseObject *made = draw(kind, corner, corner + QPointF(100, 60));
        undoStack()->clear();
        page->select({});
        page->scene()->setTool(pageTool.get());
        return made;
    }
    CBaseObject *connect(const QPointF &from, const QPointF &to)
    {
        drag(from, to);
        const QVector<CBaseObject *> objects = page->objects();
        return objects.last();
    }
    /// From the first rectangle's middle to the second one's.
    CBaseObject *connectBoth() { return connect(middleOf(one), middleOf(two)); }
    /// From the first one's right side to the second one's top.
    CBaseObject *connectPlaces() { return connect({203, 127}, {202, 297}); }
    static QPointF middleOf(const CBaseObject *object) { return placeOf(object).center(); }
    void putToolDown() { page->scene()->setTool(nullptr); }

    CBaseObject *one;
    CBaseObject *two;
};

/// The corners of a line, scene coordinates.
inline QVector<QPointF> cornersOf(CBaseObject *line)
{
    const QString svg = WritingDesk::svgOf(line);
    const QRegularExpression figure(
        QStringLiteral("id=\"figure\"[^>]* d=\"([^\"]*)\"|d=\"([^\"]*)\"[^>]*id=\"figure\""));
    const QRegularExpressionMatch match = figure.match(svg);
    const QString path = match.captured(1) + match.captured(2);
    const QRegularExpression number(QStringLiteral("(-?[0-9.]+) (-?[0-9.]+)"));
    QVector<QPointF> corners;
    auto found = number.globalMatch(path);
    const QRegularExpression box(QStringLiteral("viewBox=\"(-?[0-9.]+) (-?[0-9.]+)"));
    const QRegularExpressionMatch corner = box.match(svg);
    const QPointF origin = line->getPos() - QPointF(corner.captured(1).toDouble(), corner.captured(2).toDouble());
    while (found.hasNext()) {
        const QRegularExpressionMatch next = found.next();
        corners.append(origin + QPointF(next.captured(1).toDouble(), next.captured(2).toDouble()));
    }
    return corners;
}

/// The way between the middles, (150, 130) and (200, 330), goes 1 to the right on 4 down: it leaves the first
/// outline at y = 159, 29 below its middle, and reaches the second one at y = 301.
const inline QVector<QPointF> direct{{157.25, 159}, {192.75, 301}};
const inline QVector<QPointF> betweenPlaces{{200, 130}, {200, 300}};
