#include <declared/core/shapestate.h>

#include <declared/core/tracks.h>
#include <declared/expressions/functions.h>

#include <QtCore/QtMath>

#include <algorithm>
#include <cmath>

namespace declared {

namespace {

/// A range whose last step is missing by as little as rounding takes has it, in steps.
constexpr double partOfStep = 1e-9;

/// To the last bit: the operators of QPointF forgive small differences.
bool isSamePoint(QPointF a, QPointF b)
{
    return a.x() == b.x() && a.y() == b.y();
}

bool areSame(const QVector<QPointF> &present, const QVector<QPointF> &entries)
{
    return present.size() == entries.size() &&
           std::equal(present.cbegin(), present.cend(), entries.cbegin(), isSamePoint);
}

bool isSameValue(const Value &present, const Value &value)
{
    return isSamePoint(present.point, value.point) && present.text == value.text;
}

} // namespace

bool areSame(const Inputs &present, const Inputs &others)
{
    return present.values.size() == others.values.size() && present.lists.size() == others.lists.size() &&
           std::equal(present.values.cbegin(), present.values.cend(), others.values.cbegin(), isSameValue) &&
           std::equal(present.lists.cbegin(), present.lists.cend(), others.lists.cbegin(),
                      [](const auto &a, const auto &b) { return areSame(a, b); });
}

ShapeState::ShapeState(const Declaration &declaration)
    : m_declaration(declaration)
{
    m_inputs.values.resize(declaration.slotCount);
    m_inputs.lists.resize(declaration.listCount);
    m_inputs.values[slots_of::Pi] = M_PI;
}

/// Values that stay leave the lets as they are: most inputs do, from one step of a drag to the next.
void ShapeState::set(qint32 slot, const Value &value)
{
    Value &present = m_inputs.values[slot];
    if (isSameValue(present, value))
        return;
    present = value;
    m_letsAreValid = false;
}

void ShapeState::setSize(QSizeF size)
{
    set(slots_of::Width, size.width());
    set(slots_of::Height, size.height());
    set(slots_of::Middle, QPointF(size.width() / 2, size.height() / 2));
}

void ShapeState::setFrame(const QRectF &frame)
{
    set(slots_of::Left, frame.left());
    set(slots_of::Top, frame.top());
    set(slots_of::Right, frame.right());
    set(slots_of::Bottom, frame.bottom());
}

void ShapeState::setStyle(QRgb pen, QRgb fill, double penWidth)
{
    if (m_pen != pen)
        set(slots_of::Pen, QColor(pen).name());
    if (m_fill != fill)
        set(slots_of::Fill, QColor(fill).name());
    m_pen = pen;
    m_fill = fill;
    set(slots_of::PenWidth, penWidth);
}

void ShapeState::setPoints(const QVector<QPointF> &centres)
{
    if (areSame(m_inputs.lists.at(slots_of::PointList), centres))
        return;
    m_inputs.lists[slots_of::PointList] = centres;
    m_letsAreValid = false;
    set(slots_of::PointCount, double(centres.size()));
    for (int i = 0; i < m_declaration.points.size(); ++i)
        set(slots_of::FirstPoint + i, centres.value(i));
}

void ShapeState::setProperty(const PropertyDeclaration &property, const Value &value)
{
    set(property.slot, value);
}

void ShapeState::setList(const PropertyDeclaration &property, const QVector<QPointF> &entries)
{
    if (areSame(m_inputs.lists.at(property.slot), entries))
        return;
    m_inputs.lists[property.slot] = entries;
    m_letsAreValid = false;
}

void ShapeState::setLoop(const LoopDeclaration &loop, double value)
{
    // Lets know nothing of loops.
    m_inputs.values[loop.slot] = value;
}

void ShapeState::evaluateLets()
{
    m_letsAreValid = true;
    for (const LetDeclaration &let : m_declaration.lets)
        m_inputs.values[let.slot] = Evaluator(m_declaration.program, m_inputs, m_budget).valueOf(let.value);
}

bool ShapeState::pay(const Budget &cost)
{
    const Budget left = m_budget - cost;
    if (m_budget.isExhausted || left.steps < 0 || left.characters < 0)
        return false;
    m_budget = left;
    return true;
}

Inputs ShapeState::valuesOf(const QVector<qint32> &inputs)
{
    if (!m_letsAreValid)
        evaluateLets();
    Inputs values;
    for (const qint32 slot : inputs)
        if (slot < 0)
            values.lists.append(m_inputs.lists.at(-1 - slot));
        else
            values.values.append(m_inputs.values.at(slot));
    return values;
}

Value ShapeState::valueOf(const Expression &expression)
{
    if (!m_letsAreValid)
        evaluateLets();
    const bool wasExhausted = m_budget.isExhausted;
    Value value = Evaluator(m_declaration.program, m_inputs, m_budget).valueOf(expression);
    if (m_budget.isExhausted && !wasExhausted)
        note("C41", expression.place, QStringLiteral("the drawing takes too many steps, or too much text"));
    else if (!value.isFinite() && !m_budget.isExhausted)
        note("C40", expression.place, QStringLiteral("the value is not finite"));
    return value;
}

void ShapeState::note(const char *code, Place place, const QString &text)
{
    const auto isIt = [&](const Message &message) {
        return message.code == QLatin1String(code) && message.line == place.line && message.column == place.column;
    };
    if (std::none_of(m_notes.cbegin(), m_notes.cend(), isIt))
        m_notes.append({Message::Warning, QLatin1String(code), place.line, place.column, text});
}

bool ShapeState::holds(const Expression &expression)
{
    const Value value = valueOf(expression);
    return !value.isFinite() || value.number() != 0;
}

double ShapeState::limitOf(const Expression &expression, double otherwise)
{
    const Value limit = valueOf(expression);
    return limit.isFinite() ? limit.number() : otherwise;
}

QRectF ShapeState::range(int number, QRectF limits)
{
    const PointDeclaration &point = m_declaration.point(number);
    if (point.x.isLimited) {
        const double low = limitOf(point.x.range.low, limits.left());
        const double high = limitOf(point.x.range.high, limits.right());
        limits = {QPointF(low, limits.top()), QPointF(high, limits.bottom())};
    }
    if (point.y.isLimited) {
        const double low = limitOf(point.y.range.low, limits.top());
        const double high = limitOf(point.y.range.high, limits.bottom());
        limits = {QPointF(limits.left(), low), QPointF(limits.right(), high)};
    }
    return limits;
}

double ShapeState::steppedFrom(double low, double value, double high, const Expression &step)
{
    const double within = std::min(std::max(value, low), high);
    const double width = step.isValid() ? valueOf(step).number() : 0;
    if (!(width > 0) || !qIsFinite(width))
        return within;
    const double most = std::floor((high - low) / width + partOfStep);
    return std::min(low + std::min(wholeOf((within - low) / width), most) * width, std::max(low, high));
}

QPointF ShapeState::settled(int number, QPointF at, const QRectF &limits)
{
    const PointDeclaration &point = m_declaration.point(number);
    m_inputs.values[slots_of::At] = at;
    if (point.mirrored > 0)
        return mirrored(point, m_inputs.values.at(slots_of::FirstPoint + point.mirrored - 1).point);
    if (point.place.isValid()) {
        const Value place = valueOf(point.place);
        return place.isFinite() ? place.point : at;
    }
    if (point.track.kind != TrackDeclaration::None) {
        QVector<Value> arguments;
        for (const Expression &argument : point.track.arguments)
            arguments.append(valueOf(argument));
        const double step = point.track.step.isValid() ? valueOf(point.track.step).number() : 0;
        return nearestOnTrack(point.track.kind, arguments, step, at);
    }
    const QRectF within = range(number, limits);
    return {steppedFrom(within.left(), at.x(), within.right(), point.x.step),
            steppedFrom(within.top(), at.y(), within.bottom(), point.y.step)};
}

bool ShapeState::isAllowed(int number, QPointF at, QPointF stands)
{
    const PointDeclaration &point = m_declaration.point(number);
    if (!point.allowed.isValid())
        return true;
    m_inputs.values[slots_of::At] = at;
    m_inputs.lists[slots_of::PointList][number - 1] = stands;
    set(slots_of::FirstPoint + number - 1, stands);
    return holds(point.allowed);
}

QPointF ShapeState::mirrored(const PointDeclaration &point, QPointF centre) const
{
    const QPointF size(m_inputs.values.at(slots_of::Width).number(), m_inputs.values.at(slots_of::Height).number());
    return {point.mirrorsX ? size.x() - centre.x() : centre.x(),
            point.mirrorsY ? size.y() - centre.y() : centre.y()};
}

} // namespace declared
