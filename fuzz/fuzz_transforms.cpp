// Lists of transforms, in the syntax of attributes and of style sheets.

#include "grammarinput.h"

#include "grammar/csstransforms.h"
#include "grammar/transforms.h"

#include <QtCore/QtMath>

namespace {

bool isFinite(const QTransform &t)
{
    return qIsFinite(t.m11()) && qIsFinite(t.m12()) && qIsFinite(t.m21()) && qIsFinite(t.m22()) &&
           qIsFinite(t.dx()) && qIsFinite(t.dy());
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const unsigned char *data, size_t size)
{
    const QString text = fuzzedText(data, size);
    const Svg::LengthContext context{QSizeF(300, 200), 16};
    require(isFinite(Svg::parseTransform(text).value_or(QTransform())), "a transform is finite");
    require(isFinite(Svg::parseCssTransform(text, context).value_or(QTransform())), "a CSS transform is finite");
    Svg::parseTransformOrigin(text, context);
    return 0;
}
