#pragma once

#include <pagehost/document.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <framework/cbaseobject.h>

#include <QtGui/QPainter>

inline QByteArray svg(const QByteArray &content)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" viewBox=\"0 0 2 1\">" + content + "</svg>";
}

/// Paints itself blue, whatever its look as SVG.
class DrawnObject : public CBaseObject
{
public:
    DrawnObject()
        : CBaseObject(1, true, nullptr, nullptr)
    {
        CBaseObject::setSize(QSizeF(40, 30), false, false);
    }
    QString kindName() const override { return QStringLiteral("IDS_DRAWN"); }
    /// Without a painter, it is told that its look changed.
    void OnQPainterDraw(QPainter *painter) override
    {
        if (painter)
            painter->fillRect(getClientRect(), Qt::blue);
    }
};

/// Gives every object as the SVG document `look`.
class DrawingPlugin : public pagehost::ObjectPlugin
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override { return {{"drawn", "IDS_DRAWN", {}}}; }
    CBaseObject *createObject(const QString &) const override { return new DrawnObject; }
    pagehost::TextTable texts(const QString &) const override { return {{"IDS_DRAWN", "Drawn"}}; }
    QByteArray dataOf(CBaseObject *, const QString &type) const override
    {
        return type == "image/svg+xml" ? look : QByteArray();
    }
    QByteArray look = svg("<g id=\"a\"/>");
};

struct DrawnPage
{
    DrawnPage()
        : page(document.appendPage(QSizeF(200, 100)))
    {
        registry.addPlugin(&plugin, "test");
    }
    CBaseObject *add(const QPointF &pos)
    {
        CBaseObject *object = registry.createObject("drawn");
        page->addObject(object);
        object->CPSRootObject::setPos(pos, false);
        return object;
    }

    DrawingPlugin plugin;
    pagehost::ObjectRegistry registry;
    pagehost::Document document;
    pagehost::Page *page;
};
