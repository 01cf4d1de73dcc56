#include "randomdocument.h"

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
        {QStringLiteral("text"), words("x y font-size")},
    };
    return map;
}

const QStringList &commonAttributes()
{
    static const QStringList list = words(
        "fill stroke stroke-width fill-opacity opacity transform class style color display visibility fill-rule "
        "stroke-dasharray stroke-linecap stroke-linejoin font-size");
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
    };
    static const QMap<QString, QStringList> all = [] {
        QMap<QString, QStringList> result = map;
        for (const QString &name : words("x y width height rx ry cx cy r x1 y1 x2 y2 fx fy fr"))
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
    static const QStringList list = words("linearGradient radialGradient pattern symbol g");
    return list;
}

bool holdsElements(const QString &name)
{
    return words("g a svg symbol switch defs pattern").contains(name);
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
    for (RandomElement &child : element->children) {
        if (child.attributes.contains(QStringLiteral("id")))
            all->append(&child);
        collect(&child, all);
    }
}

} // namespace

RandomDocument::RandomDocument(quint32 start)
    : m_random(start)
{
    m_root.name = QStringLiteral("svg");
    m_root.attributes = {{QStringLiteral("xmlns"), QStringLiteral("http://www.w3.org/2000/svg")},
                         {QStringLiteral("viewBox"), QStringLiteral("0 0 100 100")}};
    RandomElement defs{QStringLiteral("defs"), {}, {}, {}};
    for (int i = 0; i < 4; ++i)
        defs.children.append(make(definedElements().at(below(definedElements().size())), 1));
    m_root.children.append(defs);
    if (below(2) == 0) {
        RandomElement style{QStringLiteral("style"), {}, {}, {}};
        style.text =
            QStringLiteral(".a{fill:green;stroke:black}.b{opacity:.5}#e5{stroke:red!important}g rect{fill:#ccc}"
                           "circle:first-child{fill:gold}[fill=red]{stroke:navy}");
        m_root.children.append(style);
    }
    addChildren(&m_root, 0);
    addChildren(&m_root, 0);
}

RandomElement RandomDocument::make(const QString &name, int depth)
{
    RandomElement element{name, {}, {}, {}};
    element.attributes.insert(QStringLiteral("id"), QStringLiteral("e%1").arg(++m_count));
    const QStringList own = attributesOfElements().value(name);
    for (const QString &attribute : own) {
        if (below(4) != 0)
            element.attributes.insert(attribute, valueFor(attribute));
    }
    for (int i = below(4); i > 0; --i) {
        const QString attribute = attributeFor(name);
        element.attributes.insert(attribute, valueFor(attribute));
    }
    if (name == QLatin1String("text"))
        element.text = QStringLiteral("Ag");
    if (name.endsWith(QLatin1String("Gradient"))) {
        for (int i = below(4); i > 0; --i)
            element.children.append(make(QStringLiteral("stop"), depth + 1));
    }
    if (holdsElements(name))
        addChildren(&element, depth + 1);
    return element;
}

void RandomDocument::addChildren(RandomElement *parent, int depth)
{
    if (depth >= deepest)
        return;
    for (int i = below(mostChildren); i > 0; --i)
        parent->children.append(make(drawnElements().at(below(drawnElements().size())), depth));
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

QString RandomDocument::valueFor(const QString &attribute)
{
    if (attribute == QLatin1String("href"))
        return QLatin1Char('#') + reference();
    if ((attribute == QLatin1String("fill") || attribute == QLatin1String("stroke")) && below(3) == 0)
        return QStringLiteral("url(#%1) red").arg(reference());
    const QStringList known = valuesOfAttributes().value(attribute);
    return known.at(below(known.size()));
}

RandomElement *RandomDocument::pick()
{
    QVector<RandomElement *> all;
    collect(&m_root, &all);
    return all.at(below(all.size()));
}

RandomDocument::Change RandomDocument::change()
{
    RandomElement *element = pick();
    const QString attribute = attributeFor(element->name);
    const QString id = element->attributes.value(QStringLiteral("id"));
    if (below(4) == 0) {
        element->attributes.remove(attribute);
        return {id, attribute, QString()};
    }
    const QString value = valueFor(attribute);
    element->attributes.insert(attribute, value);
    return {id, attribute, value};
}

QByteArray RandomDocument::text() const
{
    QString text;
    writeElement(m_root, &text);
    return text.toUtf8();
}
