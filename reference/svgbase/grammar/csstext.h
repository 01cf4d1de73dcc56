#pragma once

#include <QtCore/QString>
#include <QtCore/QVector>

namespace Svg {

/// A reading position in text of style sheets (CSS Syntax 3 §4).
struct CssCursor
{
    const QChar *at;
    const QChar *end;

    explicit CssCursor(QStringView text)
        : at(text.begin())
        , end(text.end())
    {
    }

    bool atEnd() const { return at == end; }
    /// The next character; a null character at the end.
    QChar peek() const { return at == end ? QChar() : *at; }
    bool take(char expected);
    /// White space and comments; true when there were any.
    bool skipSpace();
    /// An identifier with its escapes resolved; empty, with the cursor unchanged, if there is none.
    QString takeIdentifier();
    /// Letters, digits, "-", "_" and escapes with any beginning, as after "#".
    QString takeName();
    /// A string in quotes; false, with the cursor unchanged, if there is no terminated one.
    bool takeString(QString *value);
    /// Moves to the first of `stops` outside of strings, comments and brackets, or to the end.
    void skipTo(const char *stops);
};

/// The first hundred parts of a value between white space; strings and brackets are not split.
QVector<QStringView> cssWords(QStringView text);
/// The text without its comments.
QString withoutComments(QStringView text);

} // namespace Svg
