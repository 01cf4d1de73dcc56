#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QString>
#include <QtCore/QVector>

namespace shapekit {

/// A place in a text; both are counted from 1, the column in UTF-16 units.
struct TextPlace
{
    qint64 line;   ///< from 1
    qint64 column; ///< from 1
};

/// Lines and columns of a text's offsets, found without reading the text each time.
class SHAPEKIT_EXPORT TextPlaces
{
public:
    /// Reads the text once.
    explicit TextPlaces(const QString &text);

    /// The place of an offset, from 0 to the length of the text.
    TextPlace of(int offset) const;
    /// The offset of a place. Lines before the first one give 0, those after the last one the offset of the last
    /// line.
    int offsetOf(const TextPlace &place) const;

private:
    QVector<int> m_lineStarts;
};

} // namespace shapekit
