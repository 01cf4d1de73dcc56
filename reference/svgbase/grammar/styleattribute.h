#pragma once

#include <QtCore/QStringView>
#include <QtCore/QVector>

namespace Svg {

/// One "name: value" of a style attribute; views into the text that was read.
struct StyleDeclaration
{
    QStringView name;
    QStringView value;
    bool important = false;
};

/// The declarations of a style attribute in their order. Parts that are no declaration are left out.
QVector<StyleDeclaration> parseStyleAttribute(QStringView text);

} // namespace Svg
