#pragma once

#include <QtCore/QStringView>
#include <QtCore/QVector>

namespace Svg {

/// One "name: value" of a style attribute, as views into its text.
struct StyleDeclaration
{
    QStringView name;
    QStringView value;
    bool important = false;
};

/// The declarations of a style attribute in order. Other parts are left out.
QVector<StyleDeclaration> parseStyleAttribute(QStringView text);

} // namespace Svg
