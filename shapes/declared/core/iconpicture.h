#pragma once

#include <QtCore/QByteArray>

namespace declared {

/// An SVG picture as a PNG for palettes, in its proportions; empty for one that can't be read.
QByteArray iconPicture(const QByteArray &svg);

} // namespace declared
