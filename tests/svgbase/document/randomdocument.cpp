#include "svgbase/document/randomdocument.h"

#include <QtCore/QStringList>

namespace {

constexpr int deepest = 4;
constexpr int mostChildren = 5;

QStringList words(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char(' '));
}

QStringList values(const char *text)
{
    return QString::fromLatin1(text).split(QLatin1Char('|'));
}

const QMap<QString, QStringList> &attributesOfElements()
{
    static const QMap<QString, QStringList> map{
        {QStringLiteral("rect"), words("x y width height rx ry")},
        {QStringLiteral("circle"), words("cx cy r")},
        {QStringLiteral("ellipse"), words("cx cy rx ry")},
        {QStringLiteral("line"), words("x1 y1 x2 y2")},
        {QStringLiteral("polyline"), words("points")},
        {QStringLiteral("polygon"), words("points")},
        {QStringLiteral("path"), words("d")},
        {QStringLiteral("use"), words("href x y width height")},
        {QStringLiteral("svg"), words("x y width height viewBox preserveAspectRatio overflow")},
        {QStringLiteral("symbol"), words("viewBox preserveAspectRatio overflow")},
        {QStringLiteral("linearGradient"), words("x1 y1 x2 y2 gradientUnits gradientTransform spreadMethod href")},
        {QStringLiteral("radialGradient"),
         words("cx cy r fx fy fr gradientUnits gradientTransform spreadMethod href")},
        {QStringLiteral("stop"), words("offset stop-color stop-opacity")},
        {QStringLiteral("pattern"),
         words("x y width height patternUnits patternContentUnits patternTransform viewBox href")},
        {QStringLiteral("text"), words("x y dx dy rotate textLength lengthAdjust font-size")},
        {QStringLiteral("tspan"), words("x y dx dy rotate font-size fill")},
        {QStringLiteral("textPath"), words("href startOffset method")},
        {QStringLiteral("clipPath"), words("clipPathUnits transform clip-path")},
        {QStringLiteral("mask"), words("x y width height maskUnits maskContentUnits mask mask-type")},
        {QStringLiteral("marker"), words("refX refY markerWidth markerHeight markerUnits orient viewBox "
                                         "preserveAspectRatio overflow")},
        {QStringLiteral("filter"), words("x y width height filterUnits primitiveUnits")},
        {QStringLiteral("feGaussianBlur"), words("stdDeviation in result")},
        {QStringLiteral("feOffset"), words("dx dy in result")},
        {QStringLiteral("feFlood"), words("flood-color flood-opacity result x width")},
        {QStringLiteral("feComposite"), words("in in2 operator result")},
    };
    return map;
}

const QStringList &commonAttributes()
{
    static const QStringList list = words(
        "fill stroke stroke-width fill-opacity opacity transform class style color display visibility fill-rule "
        "stroke-dasharray stroke-linecap stroke-linejoin font-size clip-path mask filter marker marker-start "
        "marker-mid marker-end stroke-opacity stroke-dashoffset stroke-miterlimit vector-effect clip-rule "
        "paint-order "
        "mix-blend-mode isolation text-anchor font-family font-weight letter-spacing text-decoration "
        "shape-rendering");
    return list;
}

const QStringList &rootAttributes()
{
    static const QStringList list = words("viewBox fill stroke stroke-width color class style font-size opacity");
    return list;
}

const QMap<QString, QStringList> &valuesOfAttributes()
{
    static const QStringList lengths = values("0|5|10|20|33.5|40|60|-5|50%|25%|2em|1cm|none of these");
    static const QStringList paints =
        values("red|#0a0|blue|none|currentColor|rgb(10,200,30)|#00f8|nonsense|inherit");
    static const QMap<QString, QStringList> map{
        {QStringLiteral("points"), values("0,0 50,0 50,50|10 10 60 20 40 70 5|20,20")},
        {QStringLiteral("d"),
         values("M10 10H60V60Z|M5 5 C 20 80 60 -20 90 50|M20 20 l 30 10 x 5|M0 0A20 30 10 0 1 60 60|")},
        {QStringLiteral("viewBox"), values("0 0 50 50|-10 -10 60 30|0 0 0 5|bad")},
        {QStringLiteral("preserveAspectRatio"), values("none|xMinYMin meet|xMaxYMax slice|xMidYMid|bad")},
        {QStringLiteral("overflow"), values("visible|hidden|auto")},
        {QStringLiteral("gradientUnits"), values("userSpaceOnUse|objectBoundingBox|bad")},
        {QStringLiteral("patternUnits"), values("userSpaceOnUse|objectBoundingBox|bad")},
        {QStringLiteral("patternContentUnits"), values("userSpaceOnUse|objectBoundingBox|bad")},
        {QStringLiteral("gradientTransform"), values("rotate(30)|scale(2 0.5)|translate(10)")},
        {QStringLiteral("patternTransform"), values("rotate(30)|scale(2 0.5)|translate(10)")},
        {QStringLiteral("spreadMethod"), values("pad|reflect|repeat")},
        {QStringLiteral("offset"), values("0|0.3|60%|1|-1|2")},
        {QStringLiteral("stop-color"), paints},
        {QStringLiteral("stop-opacity"), values("0|0.5|1")},
        {QStringLiteral("fill"), paints},
        {QStringLiteral("stroke"), paints},
        {QStringLiteral("color"), values("red|green|#336|inherit")},
        {QStringLiteral("stroke-width"), values("1|3|8|0|-2|5%|0.5em")},
        {QStringLiteral("fill-opacity"), values("0.5|0|1|30%")},
        {QStringLiteral("opacity"), values("0.5|0|1|0.25")},
        {QStringLiteral("transform"),
         values("translate(10 5)|rotate(20)|scale(0.5 1.5)|skewX(20)|matrix(1 0 0 1 5 5)|bad(")},
        {QStringLiteral("class"), values("a|b|a b|c")},
        {QStringLiteral("style"), values("fill:purple|stroke:teal;stroke-width:4|opacity:0.6|display:none|fill:url("
                                         "#e3) orange|color:navy;fill:currentColor")},
        {QStringLiteral("display"), values("none|inline|block")},
        {QStringLiteral("visibility"), values("hidden|visible|collapse")},
        {QStringLiteral("fill-rule"), values("evenodd|nonzero")},
        {QStringLiteral("stroke-dasharray"), values("5|4 2|10 5 2|none|0|-1")},
        {QStringLiteral("stroke-linecap"), values("butt|round|square")},
        {QStringLiteral("stroke-linejoin"), values("miter|round|bevel")},
        {QStringLiteral("font-size"), values("10|20|2em|150%|larger")},
        {QStringLiteral("rotate"), values("0|20|0 45")},
        {QStringLiteral("textLength"), values("30|60|-1")},
        {QStringLiteral("lengthAdjust"), values("spacing|spacingAndGlyphs")},
        {QStringLiteral("startOffset"), values("0|10|30%")},
        {QStringLiteral("method"), values("align|stretch")},
        {QStringLiteral("clipPathUnits"), values("userSpaceOnUse|objectBoundingBox")},
        {QStringLiteral("maskUnits"), values("userSpaceOnUse|objectBoundingBox")},
        {QStringLiteral("maskContentUnits"), values("userSpaceOnUse|objectBoundingBox")},
        {QStringLiteral("mask-type"), values("alpha|luminance")},
        {QStringLiteral("markerUnits"), values("strokeWidth|userSpaceOnUse")},
        {QStringLiteral("markerWidth"), values("3|6|0|10")},
        {QStringLiteral("markerHeight"), values("3|6|10")},
        {QStringLiteral("orient"), values("auto|auto-start-reverse|30|bad")},
        {QStringLiteral("filterUnits"), values("userSpaceOnUse|objectBoundingBox")},
        {QStringLiteral("primitiveUnits"), values("userSpaceOnUse|objectBoundingBox")},
        {QStringLiteral("stdDeviation"), values("1|2 0|4|-1")},
        {QStringLiteral("in"), values("SourceGraphic|SourceAlpha|r|BackgroundImage")},
        {QStringLiteral("in2"), values("SourceGraphic|SourceAlpha|r")},
        {QStringLiteral("result"), values("r|s")},
        {QStringLiteral("operator"), values("over|in|out|xor|atop")},
        {QStringLiteral("flood-color"), values("red|#0a0|currentColor")},
        {QStringLiteral("flood-opacity"), values("0.5|1|0")},
        {QStringLiteral("stroke-opacity"), values("0.5|0|1|30%")},
        {QStringLiteral("stroke-dashoffset"), values("0|3|-2|10%")},
        {QStringLiteral("stroke-miterlimit"), values("1|4|10|0")},
        {QStringLiteral("vector-effect"), values("none|non-scaling-stroke")},
        {QStringLiteral("clip-rule"), values("evenodd|nonzero")},
        {QStringLiteral("paint-order"), values("stroke|markers fill|normal")},
        {QStringLiteral("mix-blend-mode"), values("normal|multiply|hue")},
        {QStringLiteral("isolation"), values("auto|isolate")},
        {QStringLiteral("text-anchor"), values("start|middle|end")},
        {QStringLiteral("font-family"), values("DejaVu Sans|serif|monospace|No Such Family, sans-serif")},
        {QStringLiteral("font-weight"), values("bold|normal|bolder|300")},
        {QStringLiteral("letter-spacing"), values("2|normal|-1|0.1em")},
        {QStringLiteral("text-decoration"), values("underline|none|line-through")},
        {QStringLiteral("shape-rendering"), values("crispEdges|auto|geometricPrecision")},
        {QStringLiteral("media"), values("all|print|screen|(min-width:1px)")},
        {QStringLiteral("type"), values("text/css|text/other")},
    };
    static const QMap<QString, QStringList> all = [] {
        QMap<QString, QStringList> result = map;
        const QStringList names = words("x y width height rx ry cx cy r x1 y1 x2 y2 fx fy fr dx dy refX refY");
        for (const QString &name : names)
            result.insert(name, lengths);
        return result;
    }();
    return all;
}

const QStringList &drawnElements()
{
    static const QStringList list =
        words("rect rect circle ellipse line polyline polygon path path g g use svg symbol text a switch");
    return list;
}

const QStringList &definedElements()
{
    static const QStringList list =
        words("linearGradient radialGradient pattern symbol g clipPath mask marker filter path");
    return list;
}

// Which element an attribute wants to refer to.
QString referredElement(const QString &attribute)
{
    if (attribute.startsWith(QLatin1String("marker")))
        return QStringLiteral("marker");
    return attribute == QLatin1String("clip-path") ? QStringLiteral("clipPath") : attribute;
}

bool takesReference(const QString &attribute)
{
    return words("clip-path mask filter marker marker-start marker-mid marker-end").contains(attribute);
}

// Elements whose children can be taken out and added.
bool isOpenToChange(const QString &name)
{
    return words("g a svg switch symbol defs").contains(name);
}

bool holdsElements(const QString &name)
{
    return words("g a svg symbol switch defs pattern clipPath mask marker").contains(name);
}

void writeElement(const RandomElement &element, QString *text)
{
    *text += QLatin1Char('<') + element.name;
    for (auto it = element.attributes.constBegin(); it != element.attributes.constEnd(); ++it)
        *text += QStringLiteral(" %1=\"%2\"").arg(it.key(), it.value());
    *text += QLatin1Char('>') + element.text;
    for (const RandomElement &child : element.children)
        writeElement(child, text);
    *text += QStringLiteral("</%1>\n").arg(element.name);
}

void collect(RandomElement *element, QVector<RandomElement *> *all)
{
    if (element->attributes.contains(QStringLiteral("id")))
        all->append(element);
    for (RandomElement &child : element->children)
        collect(&child, all);
}

RandomElement *parentOf(RandomElement *top, const RandomElement *element)
{
    for (RandomElement &child : top->children) {
        if (&child == element)
            return top;
        if (RandomElement *found = parentOf(&child, element))
            return found;
    }
    return nullptr;
}

int placeOf(const RandomElement &parent, const RandomElement *element)
{
    return int(element - parent.children.constData());
}

} // namespace

RandomDocument::RandomDocument(quint32 start)
    : m_random(start)
{
    m_root.name = QStringLiteral("svg");
    m_root.attributes = {{QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/2000/svg")},
                         {QStringLiteral("id"), QStringLiteral("e0")},
                         {QStringLiteral("viewBox"), QStringLiteral("0 0 100 100")}};
    RandomElement defs{QStringLiteral("defs"), {}, {}, {}};
    for (int i = 0; i < 6; ++i)
        defs.children.append(make(definedElements().at(below(definedElements().size())), 1));
    m_root.children.append(defs);
    if (below(2) == 0)
        m_root.children.append(makeSheet());
    addChildren(&m_root, 0);
    addChildren(&m_root, 0);
}

RandomElement RandomDocument::makeSheet()
{
    RandomElement sheet{QStringLiteral("style"), {}, {}, {}};
    sheet.attributes.insert(QStringLiteral("id"), QStringLiteral("sheet"));
    sheet.text =
        QStringLiteral(".a{fill:green;stroke:black}.b{opacity:.5}#e5{stroke:red!important}g rect{fill:#ccc}"
                       "circle:first-child{fill:gold}[fill=red]{stroke:navy}g>path{stroke:orange}"
                       ".c~*{stroke-width:3}rect:last-child{fill:tan}[class~=b] text{font-size:15px}");
    return sheet;
}

RandomElement RandomDocument::make(const QString &name, int depth)
{
    RandomElement element{name, {}, {}, {}};
    const QString id = QStringLiteral("e%1").arg(++m_count);
    element.attributes.insert(QStringLiteral("id"), id);
    m_ids[name].append(id);
    const QStringList own = attributesOfElements().value(name);
    for (const QString &attribute : own)
        if (below(4) != 0)
            element.attributes.insert(attribute, valueFor(attribute));
    for (int i = below(4); i > 0; --i) {
        const QString attribute = attributeFor(name);
        element.attributes.insert(attribute, valueFor(attribute));
    }
    if (name == QLatin1String("text") || name == QLatin1String("tspan") || name == QLatin1String("textPath"))
        element.text = QStringLiteral("Ag");
    if (name == QLatin1String("text"))
        addParts(&element, depth, words("tspan tspan textPath"), 3);
    if (name.endsWith(QLatin1String("Gradient")))
        addParts(&element, depth, words("stop"), 4);
    if (name == QLatin1String("filter"))
        addParts(&element, depth, words("feGaussianBlur feOffset feFlood feComposite"), 4);
    if (holdsElements(name))
        addChildren(&element, depth + 1);
    return element;
}

void RandomDocument::addParts(RandomElement *parent, int depth, const QStringList &names, int most)
{
    for (int i = below(most); i > 0; --i)
        parent->children.append(make(names.at(below(names.size())), depth + 1));
}

void RandomDocument::addChildren(RandomElement *parent, int depth)
{
    if (depth < deepest)
        addParts(parent, depth - 1, drawnElements(), mostChildren);
}

QString RandomDocument::attributeFor(const QString &element)
{
    const QStringList own = attributesOfElements().value(element);
    if (!own.isEmpty() && below(2) == 0)
        return own.at(below(own.size()));
    return commonAttributes().at(below(commonAttributes().size()));
}

QString RandomDocument::reference()
{
    return QStringLiteral("e%1").arg(1 + below(m_count + 3));
}

QString RandomDocument::referenceTo(const QString &name)
{
    const QStringList known = m_ids.value(name);
    return known.isEmpty() || below(6) == 0 ? reference() : known.at(below(known.size()));
}

QString RandomDocument::valueFor(const QString &attribute)
{
    if (attribute == QLatin1String("href"))
        return QLatin1Char('#') + (below(4) == 0 ? referenceTo(QStringLiteral("path")) : reference());
    if (takesReference(attribute))
        return below(6) == 0 ? QStringLiteral("none")
                             : QStringLiteral("url(#%1)").arg(referenceTo(referredElement(attribute)));
    if ((attribute == QLatin1String("fill") || attribute == QLatin1String("stroke")) && below(3) == 0)
        return QStringLiteral("url(#%1) red").arg(reference());
    const QStringList known = valuesOfAttributes().value(attribute);
    return known.at(below(known.size()));
}

RandomElement *RandomDocument::pick()
{
    QVector<RandomElement *> all;
    collect(&m_root, &all);
    // Where an id stands twice, the first element has it.
    return find(all.at(below(all.size()))->attributes.value(QStringLiteral("id")));
}

RandomElement *RandomDocument::find(const QString &id)
{
    QVector<RandomElement *> all;
    collect(&m_root, &all);
    for (RandomElement *element : qAsConst(all))
        if (element->attributes.value(QStringLiteral("id")) == id)
            return element;
    return nullptr;
}

RandomDocument::Change RandomDocument::change()
{
    return below(3) == 0 ? changeStructure() : changeAttribute();
}

RandomDocument::Change RandomDocument::changeAttribute()
{
    RandomElement *element = pick();
    Change change;
    change.id = element->attributes.value(QStringLiteral("id"));
    change.attribute = attributeFor(element->name);
    if (element == &m_root)
        change.attribute = rootAttributes().at(below(rootAttributes().size()));
    else if (element->name == QLatin1String("style"))
        change.attribute = below(2) == 0 ? QStringLiteral("media") : QStringLiteral("type");
    const bool isRootBox = element == &m_root && change.attribute == QLatin1String("viewBox");
    if (below(4) == 0 && !isRootBox) {
        element->attributes.remove(change.attribute);
        return change;
    }
    static const QStringList boxes = values("0 0 100 100|0 0 80 120|-10 -10 150 130|20 10 60 60");
    change.value = isRootBox ? boxes.at(below(boxes.size())) : valueFor(change.attribute);
    element->attributes.insert(change.attribute, change.value);
    return change;
}

RandomDocument::Change RandomDocument::changeStructure()
{
    RandomElement *element = pick();
    RandomElement *parent = parentOf(&m_root, element);
    RandomElement *newParent = pick();
    const bool fits = parent && isOpenToChange(parent->name) && isOpenToChange(newParent->name) &&
                      element != newParent && !parentOf(element, newParent);
    if (!fits)
        return changeAttribute();
    Change change;
    change.id = element->attributes.value(QStringLiteral("id"));
    change.parentId = newParent->attributes.value(QStringLiteral("id"));
    const RandomElement copy = *element;
    switch (below(3)) {
    case 0:
        change.kind = Change::Remove;
        parent->children.remove(placeOf(*parent, element));
        break;
    case 1:
        change.kind = Change::Copy;
        change.newId = QStringLiteral("e%1").arg(++m_count);
        newParent->children.append(copy);
        newParent->children.last().attributes.insert(QStringLiteral("id"), change.newId);
        break;
    default:
        change.kind = Change::Move;
        parent->children.remove(placeOf(*parent, element));
        // The following elements have moved in memory.
        find(change.parentId)->children.append(copy);
        break;
    }
    return change;
}

QByteArray RandomDocument::text() const
{
    QString text;
    writeElement(m_root, &text);
    return text.toUtf8();
}
