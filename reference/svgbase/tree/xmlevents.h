#pragma once

#include <QtCore/QStringView>
#include <QtCore/QVarLengthArray>

namespace Svg {

struct XmlAttribute
{
    QStringView namespaceUri;
    QStringView name;
    QStringView qualifiedName;
    QStringView value;
};

/// An "xmlns" attribute; the prefix of the default namespace is empty.
struct XmlDeclaration
{
    QStringView prefix;
    QStringView namespaceUri;
};

/// A start tag, its namespaces resolved. The texts belong to its reader and last until the next tag.
struct XmlElement
{
    QStringView namespaceUri;
    QStringView name;
    QStringView qualifiedName;
    QVarLengthArray<XmlAttribute, 16> attributes;
    QVarLengthArray<XmlDeclaration, 4> declarations;
};

/// Reading position at an event.
struct XmlPlace
{
    qint64 line = 1;
    qint64 column = 1;
};

} // namespace Svg
