// Names: those that every file knows, and the lets of a file.

#include <declared/reader/filelimits.h>
#include <declared/reader/filereader.h>
#include <declared/reader/vocabulary.h>

#include <declared/expressions/functions.h>

#include <QtCore/QRegularExpression>

namespace declared {

namespace {

struct FixedName
{
    const char *name;
    slots_of::Fixed slot;
    Type type;
};

constexpr FixedName fixedNameForms[] = {{"w", slots_of::Width, Type::Number},
                                        {"h", slots_of::Height, Type::Number},
                                        {"left", slots_of::Left, Type::Number},
                                        {"top", slots_of::Top, Type::Number},
                                        {"right", slots_of::Right, Type::Number},
                                        {"bottom", slots_of::Bottom, Type::Number},
                                        {"middle", slots_of::Middle, Type::Point},
                                        {"points", slots_of::PointCount, Type::Number},
                                        {"pen", slots_of::Pen, Type::Text},
                                        {"fill", slots_of::Fill, Type::Text},
                                        {"penwidth", slots_of::PenWidth, Type::Number},
                                        {"pi", slots_of::Pi, Type::Number}};

/// Words of the language, names of points, and "at", which has its meaning only in limits.
bool isReserved(const QString &name)
{
    static const QRegularExpression reserved(QStringLiteral("\\A(for|in|if|else|end|and|or|not|at|p|p[0-9]+)\\z"));
    return reserved.match(name).hasMatch() || builtinNames().contains(name);
}

} // namespace

QStringList fixedNames()
{
    QStringList names;
    for (const FixedName &fixed : fixedNameForms)
        names.append(QLatin1String(fixed.name));
    return names;
}

void FileReader::defineFixedNames()
{
    for (const FixedName &fixed : fixedNameForms)
        m_symbols.names.insert(QLatin1String(fixed.name), {Symbol::Variable, fixed.type, fixed.slot, 0});
    m_symbols.names.insert(QStringLiteral("p"), {Symbol::List, Type::Point, slots_of::PointList, 1});
    m_shape.slotCount = slots_of::FirstPoint;
    for (int i = 0; i < m_points.size(); ++i) {
        const qint32 slot = newSlot();
        m_pointsOfSlot.insert(slot, 1u << i);
        m_symbols.names.insert(QStringLiteral("p%1").arg(i + 1), {Symbol::Variable, Type::Point, slot, 0});
    }
}

/// Why a name can't be given; empty for one that can.
QString FileReader::nameFault(const QString &name) const
{
    if (!isName(name))
        return QStringLiteral("\"%1\" is no name: letters, digits and \"_\", a letter first").arg(name);
    if (builtinNames().contains(name))
        return QStringLiteral("\"%1\" is a function").arg(name);
    if (isReserved(name))
        return QStringLiteral("\"%1\" is a word of expressions, or the name of a control point").arg(name);
    if (fixedNames().contains(name))
        return QStringLiteral("\"%1\" is a value of every shape").arg(name);
    if (m_symbols.names.contains(name))
        return QStringLiteral("\"%1\" is another value or function of this file").arg(name);
    return {};
}

bool FileReader::define(const QString &name, const Attribute &attribute, const Symbol &symbol)
{
    const QString fault = nameFault(name);
    if (!fault.isEmpty()) {
        error("C12", attribute, fault);
        return false;
    }
    m_symbols.names.insert(name, symbol);
    m_defined.append({name, &attribute});
    return true;
}

bool FileReader::readLetName(const Element &element, Let &let, QStringList &parameters)
{
    static const QRegularExpression form(QStringLiteral("\\A\\s*(\\w+)\\s*(?:\\(([\\w\\s,]*)\\))?\\s*\\z"));
    const Attribute *name = element.attribute(QStringLiteral("name"));
    const QRegularExpressionMatch match = form.match(name->value);
    if (!match.hasMatch()) {
        error("C12", *name, QStringLiteral("a name is \"name\" or \"name(a, b)\""));
        return false;
    }
    let.name = match.captured(1);
    let.isFunction = !match.captured(2).isNull() && name->value.contains(QLatin1Char('('));
    if (let.isFunction) {
        const QStringList parts = match.captured(2).split(QLatin1Char(','));
        for (const QString &part : parts)
            parameters.append(part.trimmed());
    }
    for (const QString &parameter : qAsConst(parameters)) {
        const bool isTwice = parameters.count(parameter) > 1;
        const QString fault =
            isTwice ? QStringLiteral("\"%1\" is there twice").arg(parameter) : nameFault(parameter);
        if (!fault.isEmpty()) {
            error("C12", *name, fault);
            return false;
        }
    }
    if (parameters.size() > limits::parametersOfLet)
        error("C17", *name, QStringLiteral("a function takes at most 8 values"));
    return true;
}

void FileReader::readLets()
{
    QVector<Let> lets;
    for (const Element &element : m_elements) {
        if (!isShape(element, "let"))
            continue;
        checkNames(element);
        Let let{&element, element.attribute(QStringLiteral("value")), {}, false, {}};
        QStringList parameters;
        if (!let.value || !element.attribute(QStringLiteral("name"))) {
            error("C12", element, QStringLiteral("\"let\" needs a name and a value"));
            continue;
        }
        if (!readLetName(element, let, parameters))
            continue;
        if (lets.size() == limits::lets) {
            error("C17", element, QStringLiteral("a file has at most 256 lets"));
            break;
        }
        let.mentioned = namesIn(let.value->value, parameters);
        let.mentioned.removeDuplicates();
        const Symbol undefined{Symbol::Undefined, Type::Number, 0, 0};
        const Symbol function{Symbol::Function, Type::Number, m_symbols.functions.size(), 0};
        if (!define(let.name, *element.attribute(QStringLiteral("name")), let.isFunction ? function : undefined))
            continue;
        if (let.isFunction)
            m_symbols.functions.append({let.name, parameters, let.value->value});
        lets.append(let);
    }
    compileLets(lets);
}

/// Values before what is made of them. What is left when nothing can go on mentions itself by way of others.
void FileReader::compileLets(QVector<Let> lets)
{
    QSet<QString> waiting;
    for (const Let &let : qAsConst(lets))
        waiting.insert(let.name);
    bool goesOn = true;
    while (goesOn) {
        goesOn = false;
        for (int i = 0; i < lets.size(); ++i) {
            const Let let = lets.at(i);
            const auto isWaiting = [&](const QString &name) { return waiting.contains(name); };
            if (std::any_of(let.mentioned.begin(), let.mentioned.end(), isWaiting))
                continue;
            compileLet(let);
            waiting.remove(let.name);
            lets.removeAt(i--);
            goesOn = true;
        }
    }
    for (const Let &let : qAsConst(lets)) {
        const QString text = QStringLiteral("\"%1\" is made of itself, or of what is").arg(let.name);
        error(let.isFunction ? "C25" : "C24", *let.value, text);
    }
}

void FileReader::compileLet(const Let &let)
{
    Expression expression;
    if (let.isFunction || !take(m_compiler.expression(let.value->value), expression, *let.value))
        return;
    const qint32 slot = newSlot();
    m_pointsOfSlot.insert(slot, pointsOf(expression));
    m_symbols.names.insert(let.name, {Symbol::Variable, expression.type, slot, 0});
    m_shape.lets.append({slot, expression});
}

quint32 FileReader::pointsOf(const Expression &expression) const
{
    quint32 points = 0;
    for (const qint32 slot : expression.inputs)
        points |= m_pointsOfSlot.value(slot);
    return points;
}

} // namespace declared
