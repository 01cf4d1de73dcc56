#pragma once

#include <support/testshape.h>
#include <svgobj/csvgobj.h>

#include <functional>

namespace support {

/// A page object for tests. The recording host logs everything that the library asks of its base classes (object
/// "object"); this class adds the two operations that a host calls back: "OnQPainterDraw" (argument: whether it got
/// a painter) and "createSVGBase".
class TestObject : public CSVGObj
{
public:
    explicit TestObject(int kind = 0, bool selectable = true, QGraphicsItem *parent = nullptr);

    /// Makes a core of the given template and type, with this object as its owner, and takes it in. The template is
    /// not loaded yet, so that mode flags can be set first. A core that is there is deleted.
    TestShape *makeCore(const QString &templateText = {}, int type = 27);
    /// The core as a test shape; null when there is none.
    TestShape *core() const { return static_cast<TestShape *>(svgBase); }

    /// Makes the client rectangle (item coordinates) without any call to host or core, as if it had always been so.
    void place(QRectF rect);

    /// Whether OnQPainterDraw() paints or is only logged. Off at first: most tests have nothing to see.
    bool paints = false;
    /// Called by createSVGBase() after logging; empty: makeCore() with the given type and an empty template,
    /// loaded.
    std::function<void(int type, bool flag)> onCreateCore;
    /// Called by setFillProp() after it was logged as "CSVGObj::setFillProp"; empty: the base's behaviour.
    std::function<void(CPageBgProp *prop, bool record)> onSetFillProp;
    /// Called by notifyObjPropertyChanged() after it was logged, as a listener of the host would be.
    std::function<void(int id)> onNotify;

    using CSVGObj::attributeIds;
    using CSVGObj::baseSize;
    using CSVGObj::cacheImage;
    using CSVGObj::cacheMutex;
    using CSVGObj::clientRect;
    using CSVGObj::createFinished;
    using CSVGObj::createThreadId;
    using CSVGObj::dragEnd;
    using CSVGObj::dragStart;
    using CSVGObj::fillBrush;
    using CSVGObj::fillProp;
    using CSVGObj::mirrorHorizontal;
    using CSVGObj::mirrorVertical;
    using CSVGObj::myPen;
    using CSVGObj::objName;
    using CSVGObj::regionPath;
    using CSVGObj::svgBase;

    QString kindName() const override;
    bool createSVGBase(int type, bool flag) override;
    void OnQPainterDraw(QPainter *painter) override;
    void setFillProp(CPageBgProp *prop, bool record) override;
    void notifyObjPropertyChanged(int id, const QString &value) override;
};

} // namespace support
