#include "tree/tagscanner.h"

#include "inputlimits.h"

#include <cstring>

namespace Svg {

namespace {

const char *findText(const char *at, const char *end, const char *text)
{
    const size_t length = strlen(text);
    while (size_t(end - at) >= length) {
        const void *found = memchr(at, text[0], size_t(end - at) - length + 1);
        if (!found)
            return end;
        at = static_cast<const char *>(found);
        if (memcmp(at, text, length) == 0)
            return at + length;
        ++at;
    }
    return end;
}

bool startsWith(const char *at, const char *end, const char *text)
{
    const size_t length = strlen(text);
    return size_t(end - at) >= length && memcmp(at, text, length) == 0;
}

/// A part of the text, and whether it has too many quoted values.
struct Scan
{
    const char *end;
    bool crowded;
};

// Every attribute has one quoted value.
Scan scanTag(const char *at, const char *end)
{
    int values = 0;
    while (at != end && *at != '>') {
        if (*at != '"' && *at != '\'') {
            ++at;
            continue;
        }
        if (++values > Limits::attributes)
            return {at, true};
        const void *close = memchr(at + 1, *at, size_t(end - at) - 1);
        if (!close)
            return {end, false};
        at = static_cast<const char *>(close) + 1;
    }
    return {at, false};
}

// A literal may hold whole tags as an entity's text; their attributes show as equals signs.
Scan scanDoctype(const char *at, const char *end)
{
    int open = 0;
    for (; at != end; ++at) {
        if (startsWith(at, end, "<!--")) {
            at = findText(at, end, "-->") - 1;
        } else if (*at == '"' || *at == '\'') {
            const char quote = *at;
            int values = 0;
            for (++at; at != end && *at != quote; ++at)
                values += *at == '=' ? 1 : 0;
            if (values > Limits::attributes)
                return {at, true};
            if (at == end)
                return {end, false};
        } else if (*at == '<') {
            ++open;
        } else if (*at == '>' && --open == 0) {
            return {at, false};
        }
    }
    return {end, false};
}

Scan scanMarkup(const char *at, const char *end)
{
    if (startsWith(at, end, "<!--"))
        return {findText(at + 4, end, "-->"), false};
    if (startsWith(at, end, "<![CDATA["))
        return {findText(at, end, "]]>"), false};
    if (startsWith(at, end, "<?"))
        return {findText(at, end, "?>"), false};
    if (startsWith(at, end, "<!"))
        return scanDoctype(at, end);
    return scanTag(at, end);
}

} // namespace

qint64 findCrowdedTag(const QByteArray &xml)
{
    const char *end = xml.constEnd();
    for (const char *at = xml.constBegin(); at != end;) {
        const void *tag = memchr(at, '<', size_t(end - at));
        if (!tag)
            return -1;
        const Scan scan = scanMarkup(static_cast<const char *>(tag), end);
        if (scan.crowded)
            return static_cast<const char *>(tag) - xml.constBegin();
        at = scan.end;
    }
    return -1;
}

} // namespace Svg
