#pragma once

#include "framework/lessons/classroom.h"

#include <pagehost/pagetool.h>
#include <pagehost/selection.h>
#include <pagehost/toolsession.h>

#include <memory>

/// A page with a tool of the project's own plug-ins, and the hand that draws with it. Time is that of the recorder.
class WritingDesk : public Classroom
{
public:
    explicit WritingDesk(pagehost::ToolRole role, const pagehost::ToolStyle &style = {Qt::red, 5, 0})
        : session(page, &shapes())
    {
        take(role, style);
    }
    ~WritingDesk() { page->scene()->setTool(nullptr); }

    void take(pagehost::ToolRole role, const pagehost::ToolStyle &style)
    {
        pageTool = shapes().createTool(role, &session);
        if (!pageTool)
            qFatal("no plug-in has the tool");
        pageTool->setStyle(style);
        page->scene()->setTool(pageTool.get());
    }
    /// Draws along these places, the first pressed, the last released.
    void drawAlong(const QVector<QPointF> &places)
    {
        press(places.first());
        for (int i = 1; i + 1 < places.size(); ++i)
            moveTo(places.at(i));
        release(places.last());
    }
    CBaseObject *object(int index) const { return page->objects().value(index); }
    static QRectF placeOf(const CBaseObject *object) { return {object->getPos(), object->getClientRect().size()}; }
    static QString svgOf(CBaseObject *object)
    {
        return QString::fromUtf8(shapes().dataOf(object, QStringLiteral("image/svg+xml")));
    }

    pagehost::ToolSession session;
    std::unique_ptr<pagehost::PageTool> pageTool;
};
