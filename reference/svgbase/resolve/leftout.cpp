#include "resolve/leftout.h"

#include "geometry/shapegeometry.h"
#include "grammar/fontfamilies.h"
#include "grammar/inputlimits.h"
#include "grammar/numbers.h"
#include "tree/references.h"

namespace Svg {

namespace {

QString textOf(const Node &node, const char *name)
{
    return node.attributes.value(QString::fromLatin1(name));
}

Problem ofAnimation(const Node &animation)
{
    if (textOf(animation, "values").count(QLatin1Char(';')) >= Limits::animationValues)
        return {Message::TooManyAnimationValues,
                QStringLiteral("An animation with more than %1 values is left out.").arg(Limits::animationValues)};
    for (const char *name : {"begin", "end"}) {
        if (textOf(animation, name).count(QLatin1Char(';')) >= Limits::animationConditions)
            return {
                Message::TooManyAnimationConditions,
                QStringLiteral("Moments of an animation beyond %1 are left out.").arg(Limits::animationConditions)};
    }
    return Problem();
}

Problem ofTextReference(const Tree &tree, const Node &tref)
{
    const NodeIndex target = tree.findId(hrefTarget(tref.attributes));
    int characters = 0;
    for (NodeIndex at = target; at != noNode && characters <= Limits::trefCharacters;
         at = tree.following(at, target))
        if (tree.node(at).kind == ElementKind::Characters)
            characters += tree.node(at).text.size();
    if (characters <= Limits::trefCharacters)
        return Problem();
    return {Message::TooManyCharacters, QStringLiteral("Of a text that is referred to, characters beyond %1 are "
                                                       "left out.")
                                            .arg(Limits::trefCharacters)};
}

bool hasTooManyShapes(const Tree &tree, NodeIndex glyph)
{
    int left = Limits::glyphShapes;
    for (NodeIndex at = tree.following(glyph, glyph); at != noNode && left >= 0; at = tree.following(at, glyph))
        left -= hasGeometry(tree.node(at).kind) ? 1 : 0;
    return left < 0;
}

Problem tooLong(const QString &text)
{
    return {Message::ListTooLong, text};
}

Problem ofGlyph(const Tree &tree, NodeIndex glyph)
{
    const Node &node = tree.node(glyph);
    if (textOf(node, "unicode").size() > Limits::glyphCharacters)
        return tooLong(
            QStringLiteral("Of a glyph's characters, those beyond %1 are left out.").arg(Limits::glyphCharacters));
    for (const char *name : {"lang", "glyph-name"}) {
        const QString list = textOf(node, name);
        const int most = *name == 'l' ? Limits::glyphLanguages : Limits::glyphNames;
        if (list.size() > Limits::glyphListCharacters || list.count(QLatin1Char(',')) >= most)
            return tooLong(
                QStringLiteral("Of a glyph's list of %1 languages or %2 names, in %3 characters, the rest "
                               "is left out.")
                    .arg(Limits::glyphLanguages)
                    .arg(Limits::glyphNames)
                    .arg(Limits::glyphListCharacters));
    }
    if (hasTooManyShapes(tree, glyph))
        return tooLong(QStringLiteral("Shapes of a glyph beyond %1 are left out.").arg(Limits::glyphShapes));
    return Problem();
}

Problem ofFontFace(const Node &face)
{
    if (hasTooManyFamilies(textOf(face, "font-family")))
        return tooLong(
            QStringLiteral("Of a font's families, those beyond %1 are left out.").arg(Limits::listedFamilies));
    if (textOf(face, "font-weight").size() > Limits::glyphListCharacters)
        return tooLong(QStringLiteral("Of a font's list of weights, characters beyond %1 are left out.")
                           .arg(Limits::glyphListCharacters));
    return Problem();
}

// A kernel has as many factors as its list, or changes nothing.
Problem ofConvolution(const Node &convolution)
{
    const int factors = parseNumberList(textOf(convolution, "kernelMatrix")).value_or(QVector<double>()).size();
    if (factors <= Limits::convolutionFactors)
        return Problem();
    return tooLong(
        QStringLiteral("A convolution of more than %1 factors is left out.").arg(Limits::convolutionFactors));
}

} // namespace

Problem leftOut(const Tree &tree, NodeIndex element)
{
    const Node &node = tree.node(element);
    switch (node.kind) {
    case ElementKind::Tref:
        return ofTextReference(tree, node);
    case ElementKind::Glyph:
    case ElementKind::MissingGlyph:
        return ofGlyph(tree, element);
    case ElementKind::FontFace:
        return ofFontFace(node);
    case ElementKind::FeConvolveMatrix:
        return ofConvolution(node);
    default:
        return isAnimation(node.kind) ? ofAnimation(node) : Problem();
    }
}

} // namespace Svg
