#pragma once

#include "core/textsearch.h"

class CBaseObject;

namespace pagehost {
class Document;
class Page;
} // namespace pagehost

/// Texts that users have written on the pages of a document: those of text objects, and labels of others.
namespace board {

/// A match in a text of an object.
struct FoundText
{
    pagehost::Page *page = nullptr;
    CBaseObject *object = nullptr;
    qint32 propertyId = 0; ///< of the text
    TextMatch match;
};

inline bool operator==(const FoundText &one, const FoundText &other)
{
    return one.object == other.object && one.propertyId == other.propertyId && one.match == other.match;
}

/// By pages, on each in the order in which its objects are read, whether they can be seen or not.
QVector<FoundText> findTexts(const pagehost::Document &document, const QString &sought,
                             const SearchOptions &options);

struct ReplacedTexts
{
    int replaced = 0;
    int locked = 0; ///< left alone, since their objects are locked
};

/// Puts another text in place of these matches, which are in order, as one undo step under the localisation key
/// `stepKey`. Text objects without a letter leave their page.
ReplacedTexts replaceTexts(const QVector<FoundText> &found, const QString &replacement, const QString &stepKey);

} // namespace board
