#include "core/documentsearch.h"

#include "core/readingorder.h"
#include "page/labeleditor.h"
#include "page/labels.h"
#include "page/linkediting.h"

#include <pagehost/commands.h>
#include <pagehost/document.h>
#include <pagehost/page.h>
#include <pagehost/selection.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <algorithm>

namespace board {

namespace {

/// In drawing order.
QVector<FoundText> findIn(pagehost::Page *page, CBaseObject *object, const QString &sought,
                          const SearchOptions &options)
{
    QVector<FoundText> found;
    const QVector<EditableLabel> labels = labelsOf(*object);
    for (const EditableLabel &label : labels) {
        const QVector<TextMatch> matches = matchesIn(label.text, sought, options);
        for (const TextMatch &match : matches)
            found.append({page, object, label.propertyId, match});
    }
    return found;
}

/// Of each object that has some.
QVector<QVector<FoundText>> findOnPage(pagehost::Page *page, const QString &sought, const SearchOptions &options)
{
    QVector<QVector<FoundText>> found;
    const QVector<CBaseObject *> objects = page->objects();
    for (CBaseObject *object : objects) {
        const QVector<FoundText> inObject = findIn(page, object, sought, options);
        if (!inObject.isEmpty())
            found.append(inObject);
    }
    return found;
}

QVector<QVector<FoundText>> inReadingOrder(const QVector<QVector<FoundText>> &found)
{
    QVector<QRectF> boxes;
    for (const QVector<FoundText> &inObject : found)
        boxes.append(pagehost::boundsOf({inObject.first().object}));
    QVector<QVector<FoundText>> ordered;
    const QVector<int> order = readingOrder(boxes);
    for (const int index : order)
        ordered.append(found.at(index));
    return ordered;
}

QString textOf(const FoundText &found)
{
    const QVector<EditableLabel> labels = labelsOf(*found.object);
    for (const EditableLabel &label : labels)
        if (label.propertyId == found.propertyId)
            return label.text;
    return {};
}

/// Where a place of a text is after replacing; within a match, behind its replacement or before it.
int movedPlace(int place, const QVector<TextMatch> &matches, int length, bool isBehind)
{
    int by = 0;
    for (const TextMatch &match : matches)
        if (match.start + match.length <= place)
            by += length - match.length;
        else if (match.start < place)
            return match.start + by + (isBehind ? length : 0);
    return place + by;
}

/// Replacements within links belong to them, those of which only a part was in a link don't.
QVector<pagehost::TextLink> movedLinks(const QVector<pagehost::TextLink> &links, const QVector<TextMatch> &matches,
                                       int length)
{
    QVector<pagehost::TextLink> moved;
    for (const pagehost::TextLink &link : links) {
        const int start = movedPlace(link.start, matches, length, true);
        const int end = movedPlace(link.start + link.length, matches, length, false);
        if (end > start)
            moved.append({start, end - start, link.address});
    }
    return moved;
}

/// All of the matches are in the same text.
void replaceInText(const QVector<FoundText> &found, const QString &replacement)
{
    QVector<TextMatch> matches;
    for (const FoundText &one : found)
        matches.append(one.match);
    const FoundText &text = found.first();
    const LabelLinkState before = linksOf(*text.object, text.propertyId);
    setLabelText(*text.object, text.propertyId, replaced(textOf(text), matches, replacement));
    if (!before.links.isEmpty())
        setLabelLinks(*text.object, before.propertyId, movedLinks(before.links, matches, replacement.size()));
    if (vanishesEmpty(*text.object))
        pagehost::removeObjects(text.page, {text.object});
}

} // namespace

QVector<FoundText> findTexts(const pagehost::Document &document, const QString &sought,
                             const SearchOptions &options)
{
    QVector<FoundText> found;
    const QVector<pagehost::Page *> pages = document.pages();
    for (pagehost::Page *page : pages) {
        const QVector<QVector<FoundText>> ofObjects = inReadingOrder(findOnPage(page, sought, options));
        for (const QVector<FoundText> &ofObject : ofObjects)
            found += ofObject;
    }
    return found;
}

ReplacedTexts replaceTexts(const QVector<FoundText> &found, const QString &replacement, const QString &stepKey)
{
    ReplacedTexts result;
    GetFramework()->beginUndoGroup(stepKey);
    for (int begin = 0; begin < found.size();) {
        const FoundText &first = found.at(begin);
        const auto end = std::find_if(found.begin() + begin, found.end(), [&](const FoundText &one) {
            return one.object != first.object || one.propertyId != first.propertyId;
        });
        const QVector<FoundText> ofText = found.mid(begin, int(end - found.begin()) - begin);
        begin += ofText.size();
        if (first.object->isLocked()) {
            result.locked += ofText.size();
            continue;
        }
        replaceInText(ofText, replacement);
        result.replaced += ofText.size();
    }
    GetFramework()->endUndoGroup();
    return result;
}

} // namespace board
