#include "text/bidiruns.h"

#include "grammar/inputlimits.h"
#include "properties/computedstyle.h"
#include "text/fonts.h"

#include <QtGui/QGlyphRun>
#include <QtGui/QTextLayout>

#include <algorithm>

namespace Svg {

namespace {

constexpr ushort leftToRightEmbedding = 0x202a;
constexpr ushort rightToLeftEmbedding = 0x202b;
constexpr ushort popDirection = 0x202c;
constexpr ushort leftToRightIsolate = 0x2066;
constexpr ushort rightToLeftIsolate = 0x2067;
constexpr ushort firstStrongIsolate = 0x2068;
constexpr ushort popIsolate = 0x2069;
constexpr double endlessLine = 16777215;

bool isOverridden(const TextContent &content, int level)
{
    const UnicodeBidi mode = inlineStyleOf(content.levels.at(level).style).unicodeBidi;
    return mode == UnicodeBidi::Override || mode == UnicodeBidi::IsolateOverride;
}

// Splits by level alone, as if all text ran from left to right.
QVector<BidiRun> levelRuns(const TextContent &content, int begin, int end)
{
    QVector<BidiRun> runs;
    for (int i = begin; i < end; ++i) {
        const TextCharacter &character = content.characters.at(i);
        const bool full = !runs.isEmpty() && i - runs.constLast().begin >= Limits::shapedCharacters;
        const bool follows = i > begin && content.characters.at(i - 1).level == character.level;
        if (follows && !full)
            ++runs.last().end;
        else
            runs.append({i, i + 1, false, isOverridden(content, character.level)});
    }
    return runs;
}

bool needsBidi(const TextContent &content, int begin, int end)
{
    for (int i = begin; i < end; ++i) {
        const TextCharacter &character = content.characters.at(i);
        const ComputedStyle &style = content.levels.at(character.level).style;
        if (textStyleOf(style).rightToLeft)
            return true;
        switch (QChar::direction(codeOf(content.text, character))) {
        case QChar::DirR:
        case QChar::DirAL:
        case QChar::DirAN:
        case QChar::DirRLE:
        case QChar::DirRLO:
        case QChar::DirRLI:
            return true;
        default:
            break;
        }
    }
    return false;
}

/// The characters with the controls for elements, and the index of each character among them.
struct ControlledText
{
    QString text;
    QVector<int> places;
};

/// The controls that represent an element (CSS Writing Modes 3 §2.2).
struct Controls
{
    QString opening;
    QString closing;
};

Controls controlsOf(const ComputedStyle &style)
{
    const bool right = textStyleOf(style).rightToLeft;
    const QChar isolate(right ? rightToLeftIsolate : leftToRightIsolate);
    const QChar override(right ? rightToLeftOverride : leftToRightOverride);
    const QChar pop(popDirection);
    switch (inlineStyleOf(style).unicodeBidi) {
    case UnicodeBidi::Normal:
        break;
    case UnicodeBidi::Embed:
        return {QChar(right ? rightToLeftEmbedding : leftToRightEmbedding), pop};
    case UnicodeBidi::Isolate:
        return {isolate, QChar(popIsolate)};
    case UnicodeBidi::Plaintext:
        return {QChar(firstStrongIsolate), QChar(popIsolate)};
    case UnicodeBidi::Override:
        return {override, pop};
    case UnicodeBidi::IsolateOverride:
        return {QString(isolate) + override, QString(pop) + QChar(popIsolate)};
    }
    return {};
}

// The levels that close and open between two characters are those on the path from one to the other.
ControlledText withControls(const TextContent &content, int begin, int end)
{
    ControlledText result;
    QVector<int> open;
    for (int i = begin; i < end; ++i) {
        QVector<int> wanted;
        for (int level = content.characters.at(i).level; level >= 0; level = content.levels.at(level).above)
            if (inlineStyleOf(content.levels.at(level).style).unicodeBidi != UnicodeBidi::Normal)
                wanted.prepend(level);
        const int common =
            int(std::mismatch(open.begin(), open.end(), wanted.begin(), wanted.end()).first - open.begin());
        while (open.size() > common)
            result.text += controlsOf(content.levels.at(open.takeLast()).style).closing;
        for (int k = common; k < wanted.size(); ++k) {
            result.text += controlsOf(content.levels.at(wanted.at(k)).style).opening;
            open.append(wanted.at(k));
        }
        result.places.append(result.text.size());
        const TextCharacter &character = content.characters.at(i);
        result.text += content.text.midRef(character.begin, character.length);
    }
    return result;
}

// Lays a part of the line out in one font, only to find the visual order.
QVector<BidiRun> orderedRuns(const TextContent &content, int begin, int end)
{
    const ControlledText controlled = withControls(content, begin, end);
    const ComputedStyle &style = content.levels.at(content.characters.at(begin).level).style;
    QTextLayout layout(controlled.text, outlineFont(style.font));
    QTextOption option;
    option.setWrapMode(QTextOption::NoWrap);
    option.setFlags(QTextOption::IncludeTrailingSpaces);
    option.setTextDirection(textStyleOf(content.levels.first().style).rightToLeft ? Qt::RightToLeft
                                                                                  : Qt::LeftToRight);
    layout.setTextOption(option);
    layout.beginLayout();
    QTextLine line = layout.createLine();
    line.setLineWidth(endlessLine);
    layout.endLayout();

    QVector<BidiRun> runs;
    QVector<double> places;
    for (int i = begin; i < end; ++i) {
        const TextCharacter &character = content.characters.at(i);
        const QList<QGlyphRun> glyphs = line.glyphRuns(controlled.places.at(i - begin), character.length);
        const bool known = !glyphs.isEmpty() && !glyphs.first().positions().isEmpty();
        const bool right = known ? glyphs.first().isRightToLeft() : !runs.isEmpty() && runs.constLast().rightToLeft;
        const bool follows = i > begin && content.characters.at(i - 1).level == character.level &&
                             runs.constLast().rightToLeft == right;
        if (follows) {
            ++runs.last().end;
            if (known)
                places.last() = qMin(places.constLast(), glyphs.first().positions().first().x());
        } else {
            runs.append({i, i + 1, right, isOverridden(content, character.level)});
            places.append(known ? glyphs.first().positions().first().x() : 0);
        }
    }
    QVector<int> order(runs.size());
    for (int i = 0; i < order.size(); ++i)
        order[i] = i;
    std::stable_sort(order.begin(), order.end(), [&](int a, int b) { return places.at(a) < places.at(b); });
    QVector<BidiRun> sorted;
    for (const int i : qAsConst(order))
        sorted.append(runs.at(i));
    return sorted;
}

} // namespace

QVector<BidiRun> bidiRuns(const TextContent &content, int begin, int end)
{
    if (!needsBidi(content, begin, end))
        return levelRuns(content, begin, end);
    QVector<BidiRun> runs;
    for (int at = begin; at < end; at += Limits::shapedCharacters)
        runs += orderedRuns(content, at, qMin(end, at + Limits::shapedCharacters));
    return runs;
}

} // namespace Svg
