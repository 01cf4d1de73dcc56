#pragma once

#include <shapekit/shapekit_global.h>
#include <shapekit/tagscanner.h>
#include <shapekit/textplaces.h>

#include <svgbase/qzesvgtinydocument.h>

#include <optional>

namespace shapekit {

/// Places of the attributes that messages about an SVG text mean: the messages themselves name the ends of tags.
class SHAPEKIT_EXPORT AttributePlaces
{
public:
    /// Reads the tags of an SVG text, which may be faulty.
    explicit AttributePlaces(const QString &text);

    /// Nothing where the attribute isn't known.
    std::optional<TextPlace> of(const QZeSvgTinyDocument::Message &message) const;

private:
    int offsetOf(const QZeSvgTinyDocument::Message &message) const;
    RawTag tagBefore(qint64 line, qint64 column) const;

    QString m_text;
    TextPlaces m_places;
    QVector<RawTag> m_tags;
};

} // namespace shapekit
