#pragma once

#include <shapekit/shapekit_global.h>

#include <QtCore/QString>
#include <QtCore/QVector>

namespace shapekit {

/// An attribute as it stands in a file.
struct RawAttribute
{
    QString name; ///< with its prefix
    int offset;   ///< of its value
};

/// A start tag as it stands in a file.
struct SHAPEKIT_EXPORT RawTag
{
    QString name;                     ///< with its prefix
    int offset = 0;                   ///< of its "<"
    QVector<RawAttribute> attributes; ///< in their order

    /// Where the value of an attribute begins; the tag itself if there is no such attribute.
    int offsetOf(const QString &attribute) const;
};

/// The value of an attribute that begins at `start`, behind its quote; empty when it doesn't end.
SHAPEKIT_EXPORT QString valueAt(const QString &text, int start);

/// Finds the start tags of an XML text, which may be faulty, in their order: Qt's reader tells where a tag ends,
/// but not where its attributes stand.
class SHAPEKIT_EXPORT TagScanner
{
public:
    /// Begins before the first tag.
    explicit TagScanner(const QString &text);

    /// False at the end of the text.
    bool next(RawTag &tag);
    /// How deep the last tag lies; the root's depth is 1. Tags that aren't closed make it larger.
    int depth() const { return m_depth; }

private:
    bool isAt(const char *text) const;
    void skipBehind(const char *text);
    void skipDeclaration();
    void readTag(RawTag &tag);
    void readAttribute(RawTag &tag);
    QString readName();
    void skipSpace();
    QChar current() const { return m_offset < m_text.size() ? m_text.at(m_offset) : QChar(); }

    QString m_text;
    int m_offset = 0;
    int m_depth = 0;
    bool m_isEmptyTag = false;
};

} // namespace shapekit
