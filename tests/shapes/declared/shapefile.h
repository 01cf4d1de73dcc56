#pragma once

#include <declared/reader/shapereader.h>

namespace declaredtest {

using namespace declared;

/// A file of a shape 120 × 80 whose content begins in its third line.
inline QByteArray fileAbout(const char *about, const QByteArray &content)
{
    return "<svg xmlns=\"http://www.w3.org/2000/svg\" xmlns:shape=\"urn:gliololok:shape\" viewBox=\"0 0 120 80\">\n"
           "<shape:about " +
           QByteArray(about) + "/>\n" + content + "</svg>";
}

inline QByteArray fileOf(const QByteArray &content)
{
    return fileAbout("name='Nut'", content);
}

inline SharedDeclaration readOf(const QByteArray &bytes, QVector<Message> *messages = nullptr)
{
    return readShape(bytes, QStringLiteral("nut"), messages);
}

} // namespace declaredtest
