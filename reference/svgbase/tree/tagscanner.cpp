#include "tree/tagscanner.h"

#include "grammar/inputlimits.h"

#include <algorithm>
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

/// A part of the text, and whether it has too many quoted values; `Hopeless` if their end is unknown.
struct Scan
{
    enum Finding { Fine, Crowded, Hopeless };
    const char *end;
    Finding finding;
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
        ++values;
        const void *close = memchr(at + 1, *at, size_t(end - at) - 1);
        if (!close)
            return {end, values > Limits::attributes ? Scan::Hopeless : Scan::Fine};
        at = static_cast<const char *>(close) + 1;
    }
    if (values <= Limits::attributes)
        return {at, Scan::Fine};
    return {at, at == end ? Scan::Hopeless : Scan::Crowded};
}

// A literal may contain whole tags as an entity's text; equals signs count their attributes.
Scan scanDoctype(const char *at, const char *end)
{
    int open = 0;
    for (; at != end; ++at) {
        if (startsWith(at, end, "<!--")) {
            at = findText(qMin(at + 4, end), end, "-->") - 1;
        } else if (startsWith(at, end, "<?")) {
            at = findText(at, end, "?>") - 1;
        } else if (*at == '"' || *at == '\'') {
            const char quote = *at;
            int values = 0;
            for (++at; at != end && *at != quote; ++at)
                values += *at == '=' ? 1 : 0;
            if (values > Limits::attributes)
                return {at, Scan::Hopeless};
            if (at == end)
                return {end, Scan::Fine};
        } else if (*at == '<') {
            ++open;
        } else if (*at == '>' && --open == 0) {
            return {at, Scan::Fine};
        }
    }
    return {end, Scan::Fine};
}

Scan scanMarkup(const char *at, const char *end)
{
    if (startsWith(at, end, "<!--"))
        return {findText(at + 4, end, "-->"), Scan::Fine};
    if (startsWith(at, end, "<![CDATA["))
        return {findText(at, end, "]]>"), Scan::Fine};
    if (startsWith(at, end, "<?"))
        return {findText(at, end, "?>"), Scan::Fine};
    if (startsWith(at, end, "<!"))
        return scanDoctype(at, end);
    return scanTag(at, end);
}

// A quote also does, although not in XML: there must be space for the mark after the name.
bool endsName(char c)
{
    return c == ' ' || c == '\t' || c == '\n' || c == '\r' || c == '/' || c == '>' || c == '"' || c == '\'';
}

// Moves all line ends to the end of the tag, so that line numbers stay correct.
void replaceAttributes(char *at, char *end)
{
    while (at != end && !endsName(*at))
        ++at;
    if (end[-1] == '/')
        --end;
    const auto lines = std::count(at, end, '\n');
    // Shorter than the quotes of the minimum number of values.
    const QByteArray mark = " " + QByteArray(crowdedMark.data(), crowdedMark.size()) + "=''";
    memcpy(at, mark.constData(), size_t(mark.size()));
    memset(at + mark.size(), ' ', size_t(end - at) - size_t(mark.size()));
    memset(end - lines, '\n', size_t(lines));
}

} // namespace

std::optional<QByteArray> withoutCrowdedTags(const QByteArray &xml)
{
    QByteArray result = xml;
    const char *begin = xml.constBegin();
    const char *end = xml.constEnd();
    for (const char *at = begin; at != end;) {
        const void *found = memchr(at, '<', size_t(end - at));
        if (!found)
            break;
        const char *tag = static_cast<const char *>(found);
        const Scan scan = scanMarkup(tag, end);
        if (scan.finding == Scan::Hopeless)
            return std::nullopt;
        if (scan.finding == Scan::Crowded) {
            char *own = result.data() + (tag - begin);
            replaceAttributes(own, own + (scan.end - tag));
        }
        at = scan.end;
    }
    return result;
}

} // namespace Svg
