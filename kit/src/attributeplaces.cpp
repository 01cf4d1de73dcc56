#include <shapekit/attributeplaces.h>

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace shapekit {

namespace {

/// -1 when the tag has no such attribute.
int offsetIn(const RawTag &tag, const QString &attribute)
{
    const int offset = tag.offsetOf(attribute);
    return offset == tag.offset ? -1 : offset;
}

} // namespace

AttributePlaces::AttributePlaces(const QString &text)
    : m_text(text)
    , m_places(text)
{
    TagScanner scanner(m_text);
    for (RawTag tag; scanner.next(tag);)
        m_tags.append(tag);
}

std::optional<TextPlace> AttributePlaces::of(const QZeSvgTinyDocument::Message &message) const
{
    const int offset = message.line > 0 ? offsetOf(message) : -1;
    return offset < 0 ? std::nullopt : std::optional<TextPlace>(m_places.of(offset));
}

int AttributePlaces::offsetOf(const QZeSvgTinyDocument::Message &message) const
{
    static const QRegularExpression character(QStringLiteral("character (\\d+)"));
    static const QRegularExpression quoted(QStringLiteral("\"([^\"]+?)(?:\\.\\.\\.|…)?\""));
    const RawTag tag = tagBefore(message.line, message.column);
    if (message.code == QZeSvgTinyDocument::Message::InvalidPathData) {
        const int offset = offsetIn(tag, QStringLiteral("d"));
        const int number = character.match(message.text).captured(1).toInt();
        return offset < 0 ? -1 : offset + std::max(0, number - 1);
    }
    if (message.code == QZeSvgTinyDocument::Message::InvalidPoints)
        return offsetIn(tag, QStringLiteral("points"));
    if (message.code == QZeSvgTinyDocument::Message::InvalidImage) {
        const int offset = offsetIn(tag, QStringLiteral("href"));
        return offset < 0 ? offsetIn(tag, QStringLiteral("xlink:href")) : offset;
    }
    const QString value = quoted.match(message.text).captured(1);
    for (const RawAttribute &attribute : tag.attributes)
        if (!value.isEmpty() && valueAt(m_text, attribute.offset).contains(value))
            return attribute.offset;
    return -1;
}

/// The last start tag that begins before a place.
RawTag AttributePlaces::tagBefore(qint64 line, qint64 column) const
{
    const int offset = m_places.offsetOf({line, column});
    const auto next = std::lower_bound(m_tags.cbegin(), m_tags.cend(), offset,
                                       [](const RawTag &tag, int place) { return tag.offset < place; });
    return next == m_tags.cbegin() ? RawTag() : *(next - 1);
}

} // namespace shapekit
