// Shapes of "clip-path" and lists of filter functions: every accepted one can be built on any box.

#include "grammarinput.h"

#include "grammar/basicshapes.h"
#include "grammar/filterlists.h"

#include <QtCore/QtNumeric>

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = fuzzedText(data, size);
    const std::optional<Svg::ClipShape> shape = Svg::parseClipShape(text);
    for (const QRectF &box : {QRectF(), QRectF(-5, 3, 200, 100), QRectF(0, 0, 1e9, 1e-9)}) {
        if (!shape || shape->function.isEmpty())
            continue;
        const std::optional<QPainterPath> path = Svg::basicShape(shape->function, box, 16);
        const QRectF bounds = path ? path->boundingRect() : QRectF();
        require(qIsFinite(bounds.width() + bounds.height()), "a shape is finite");
    }
    Svg::parseFilterList(text, Svg::FilterUnits::Optional);
    return 0;
}
