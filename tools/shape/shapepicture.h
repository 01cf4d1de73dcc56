#pragma once

#include <checklist/subject.h>

#include <QtGui/QImage>

namespace checklist {
class ShapeDriver;
}

namespace shapetool {

/// A new object of a shape, on white.
QImage pictureOf(const checklist::Subject &subject);
/// Rows of sizes, of mirrored forms, and of the extremes of every control point.
QImage sheetOf(const checklist::Subject &subject);

} // namespace shapetool
