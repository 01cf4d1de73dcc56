#include "tree/conditions.h"

#include <QtCore/QLocale>
#include <QtCore/QStringList>

#include <algorithm>

namespace Svg {

namespace {

/// Prefixes of names of features; each version of SVG has its own.
const QLatin1String featureStarts[] = {
    QLatin1String("http://www.w3.org/TR/SVG11/feature#"),
    QLatin1String("http://www.w3.org/TR/SVG2/feature#"),
    QLatin1String("http://www.w3.org/Graphics/SVG/feature/1.2/#"),
    QLatin1String("org.w3c.svg"),
};

/// Features that a picture without scripts, links and typefaces of its own does not have (SVG 1.1 Appendix M).
const QLatin1String missingFeatures[] = {
    QLatin1String("SVG-dynamic"), QLatin1String("SVGDOM-dynamic"), QLatin1String("Script"),
    QLatin1String("Scripting"),   QLatin1String("Cursor"),         QLatin1String("Font"),
    QLatin1String("BasicFont"),   QLatin1String("Extensibility"),
};

bool hasFeature(const QString &name)
{
    for (const QLatin1String start : featureStarts) {
        if (!name.startsWith(start))
            continue;
        const QString feature = name.mid(start.size());
        return std::find(std::begin(missingFeatures), std::end(missingFeatures), feature) ==
               std::end(missingFeatures);
    }
    return false;
}

QStringList words(const QString &list)
{
    return list.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

bool hasFeatures(const QString &list)
{
    const QStringList names = words(list);
    return !names.isEmpty() && std::all_of(names.begin(), names.end(), hasFeature);
}

// "en" is asked for by "en" and by "en-GB".
bool asksFor(const QString &asked, const QString &own)
{
    return asked.compare(own, Qt::CaseInsensitive) == 0 ||
           asked.startsWith(own + QLatin1Char('-'), Qt::CaseInsensitive);
}

bool hasLanguage(const QString &list)
{
    const QString full = QLocale().bcp47Name();
    const QString language = full.section(QLatin1Char('-'), 0, 0);
    const QStringList asked = list.split(QLatin1Char(','));
    return std::any_of(asked.begin(), asked.end(), [&](const QString &tag) {
        return asksFor(tag.trimmed(), full) || asksFor(tag.trimmed(), language);
    });
}

} // namespace

bool passesConditions(const Node &node)
{
    for (const Attribute &attribute : node.attributes) {
        switch (attribute.id) {
        case AttributeId::RequiredExtensions:
            return false;
        case AttributeId::RequiredFeatures:
            if (!hasFeatures(attribute.value.text()))
                return false;
            break;
        case AttributeId::SystemLanguage:
            if (!hasLanguage(attribute.value.text()))
                return false;
            break;
        default:
            break;
        }
    }
    return true;
}

NodeIndex firstAllowedChild(const Tree &tree, NodeIndex parent)
{
    NodeIndex child = tree.node(parent).firstChild;
    while (child != noNode && !(isDrawable(tree.node(child).kind) && passesConditions(tree.node(child))))
        child = tree.node(child).next;
    return child;
}

} // namespace Svg
