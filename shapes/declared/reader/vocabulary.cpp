#include <declared/reader/vocabulary.h>

#include <algorithm>
#include <iterator>

namespace declared {

namespace {

struct DeclarationForm
{
    const char *name;
    const char *attributes;
};

constexpr DeclarationForm declarationForms[] = {
    {"about", "name id words group rank sizing aspect filled smallest pen icon type layout"},
    {"property", "name type value from to step count title panel was"},
    {"entry", "name title"},
    {"let", "name value"},
    {"connection", "name at out"},
};

constexpr const char *typeNames = "whole real switch choice colour text numbers points";
constexpr const char *pointNames =
    "range-x range-y along step step-x step-y place mirrors allowed follow-x follow-y "
    "offset-x offset-y hint";
constexpr const char *drawnElements = "g path rect circle ellipse line polygon polyline text image use";

struct AttributeForm
{
    const char *name;
    const char *elements; ///< those that have it, "*" for all
};

constexpr AttributeForm attributeForms[] = {
    {"d", "path"},
    {"points", "polygon polyline"},
    {"x", "rect text tspan image use"},
    {"y", "rect text tspan image use"},
    {"width", "rect image use"},
    {"height", "rect image use"},
    {"rx", "rect ellipse"},
    {"ry", "rect ellipse"},
    {"cx", "circle ellipse"},
    {"cy", "circle ellipse"},
    {"r", "circle"},
    {"x1", "line"},
    {"y1", "line"},
    {"x2", "line"},
    {"y2", "line"},
    {"text", "text"},
    {"repeat", "g"},
    {"box", ""},
    {"align", ""},
    {"valign", ""},
    {"size", ""},
    {"lines", ""},
    {"title", ""},
    {"from", "animate animateColor animateMotion animateTransform"},
    {"to", "animate animateColor animateMotion animateTransform set"},
    {"by", "animate animateColor animateMotion animateTransform"},
    {"values", "animate animateColor animateMotion animateTransform"},
    {"begin", "animate animateColor animateMotion animateTransform set"},
    {"dur", "animate animateColor animateMotion animateTransform set"},
    {"repeatCount", "animate animateColor animateMotion animateTransform set"},
    {"path", "animateMotion"},
    {"transform", "*"},
    {"fill", "*"},
    {"fill-opacity", "*"},
    {"stroke", "*"},
    {"stroke-opacity", "*"},
    {"stroke-width", "*"},
    {"stroke-dasharray", "*"},
    {"stroke-dashoffset", "*"},
    {"opacity", "*"},
    {"font-size", "*"},
    {"visible", "*"},
    {"keeps", "*"},
};

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '), Qt::SkipEmptyParts);
}

} // namespace

QStringList declarations()
{
    QStringList names;
    for (const DeclarationForm &form : declarationForms)
        names.append(QLatin1String(form.name));
    return names;
}

QStringList attributesOf(const QString &declaration)
{
    for (const DeclarationForm &form : declarationForms)
        if (declaration == QLatin1String(form.name))
            return words(form.attributes);
    return {};
}

QStringList propertyTypes()
{
    static const QStringList names = words(typeNames);
    return names;
}

QStringList pointAttributes()
{
    static const QStringList names = words(pointNames);
    return names;
}

QStringList figureAttributes()
{
    QStringList names;
    for (const AttributeForm &form : attributeForms)
        names.append(QLatin1String(form.name));
    return names;
}

bool takesAttribute(const QString &element, const QString &attribute)
{
    const auto form = std::find_if(std::begin(attributeForms), std::end(attributeForms),
                                   [&](const AttributeForm &one) { return attribute == QLatin1String(one.name); });
    if (form == std::end(attributeForms))
        return false;
    return QLatin1String(form->elements) == QLatin1String("*") ? isDrawnElement(element)
                                                               : words(form->elements).contains(element);
}

bool isDrawnElement(const QString &element)
{
    static const QStringList names = words(drawnElements);
    return names.contains(element);
}

} // namespace declared
