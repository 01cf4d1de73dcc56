// Control points and what limits them.

#include <declared/reader/filelimits.h>
#include <declared/reader/filereader.h>
#include <declared/reader/vocabulary.h>

#include <QtCore/QRegularExpression>

#include <algorithm>

namespace declared {

namespace {

struct TrackForm
{
    const char *name;
    TrackDeclaration::Kind kind;
    const char *parameters; ///< p point, n number
};

constexpr TrackForm trackForms[] = {{"line", TrackDeclaration::Line, "pp"},
                                    {"circle", TrackDeclaration::Circle, "pn"},
                                    {"ellipse", TrackDeclaration::Ellipse, "pnn"},
                                    {"arc", TrackDeclaration::Arc, "pnnn"},
                                    {"sector", TrackDeclaration::Sector, "pnnnn"}};

const QStringList followRules{QStringLiteral("side"),   QStringLiteral("start"),   QStringLiteral("end"),
                              QStringLiteral("middle"), QStringLiteral("shorter"), QStringLiteral("-shorter")};

bool fits(const TrackForm &form, const QVector<Expression> &arguments)
{
    const QByteArray parameters(form.parameters);
    if (arguments.size() != parameters.size())
        return false;
    for (int i = 0; i < arguments.size(); ++i)
        if (arguments.at(i).type != (parameters.at(i) == 'p' ? Type::Point : Type::Number))
            return false;
    return true;
}

} // namespace

QStringList trackNames()
{
    QStringList names;
    for (const TrackForm &form : trackForms)
        names.append(QLatin1String(form.name));
    return names;
}

/// Points are numbered from 1, without a gap.
void FileReader::findPoints()
{
    static const QRegularExpression form(QStringLiteral("\\Acontrol_([1-9][0-9]{0,3})\\z"));
    QMap<int, int> found;
    for (auto id = m_ids.constBegin(); id != m_ids.constEnd(); ++id) {
        const QRegularExpressionMatch match = form.match(id.key());
        if (match.hasMatch())
            found.insert(match.captured(1).toInt(), id.value());
    }
    for (auto point = found.constBegin(); point != found.constEnd(); ++point) {
        const Attribute &id = *m_elements.at(point.value()).attribute(QStringLiteral("id"));
        if (m_points.size() == limits::controlPoints) {
            error("C08", id, QStringLiteral("a shape has at most 32 control points"));
            return;
        }
        if (point.key() != m_points.size() + 1) {
            error("C07", id, QStringLiteral("control_%1 is missing before it").arg(m_points.size() + 1));
            return;
        }
        m_points.append(point.value());
    }
}

void FileReader::readPoints()
{
    m_compiler.setExtraNames({{QStringLiteral("at"), {Symbol::Variable, Type::Point, slots_of::At, 0}}});
    for (int i = 0; i < m_points.size(); ++i)
        readPoint(m_elements.at(m_points.at(i)), i + 1);
    m_compiler.setExtraNames({});
    for (int i = 0; i < m_points.size(); ++i)
        checkMirror(m_elements.at(m_points.at(i)), m_shape.points.at(i));
}

void FileReader::readPoint(const Element &element, int number)
{
    m_done.insert(m_points.at(number - 1));
    PointDeclaration point;
    double values[4] = {};
    bool isRead = element.name == QLatin1String("rect");
    const char *names[4] = {"x", "y", "width", "height"};
    for (int i = 0; i < 4; ++i) {
        bool isNumber = false;
        values[i] = element.value(names[i]).toDouble(&isNumber);
        isRead = isRead && isNumber && qIsFinite(values[i]) && (i < 2 || values[i] > 0);
    }
    if (!isRead)
        error("C09", element,
              QStringLiteral("a control point is a \"rect\" with numbers as x, y, width and height"));
    for (int i = m_points.at(number - 1); i >= 0; i = m_elements.at(i).parent)
        if (m_elements.at(i).attribute(QStringLiteral("transform")))
            error("C10", element, QStringLiteral("a control point lies inside of no transform"));
    point.source = m_tree.placeOf(element.offset);
    point.centre = {values[0] + values[2] / 2, values[1] + values[3] / 2};
    for (const Attribute &attribute : element.attributes) {
        if (attribute.namespaceUri == shapeNamespace && !pointAttributes().contains(attribute.name))
            error("C04", attribute,
                  QStringLiteral("there is no attribute \"%1\" of a control point%2")
                      .arg(attribute.name, suggestion(attribute.name, pointAttributes())));
    }
    readAxis(element, "x", point.x, number);
    readAxis(element, "y", point.y, number);
    readTrack(element, point.track, number);
    readMirror(element, point, number);
    if (const Attribute *place = shapeAttribute(element, "place")) {
        if (take(m_compiler.expression(place->value, Type::Point), point.place, *place))
            checkOwnPoint(*place, point.place, number);
    }
    if (const Attribute *allowed = shapeAttribute(element, "allowed"))
        take(m_compiler.expression(allowed->value, Type::Number), point.allowed, *allowed);
    if (const Attribute *hint = shapeAttribute(element, "hint"))
        take(m_compiler.text(hint->value), point.hint, *hint);
    checkLimits(element);
    writePoint(m_points.at(number - 1), point);
    m_shape.points.append(point);
}

void FileReader::checkOwnPoint(const Attribute &attribute, const Expression &expression, int number)
{
    if (pointsOf(expression) & (1u << (number - 1)))
        error("C27", attribute, QStringLiteral("a limit depends on its own point p%1: write \"at\"").arg(number));
}

void FileReader::readAxis(const Element &element, const char *axis, AxisDeclaration &declared, int number)
{
    const QByteArray letter(axis);
    if (const Attribute *range = shapeAttribute(element, "range-" + letter)) {
        declared.isLimited = take(m_compiler.range(range->value), declared.range, *range);
        if (declared.isLimited) {
            checkOwnPoint(*range, declared.range.low, number);
            checkOwnPoint(*range, declared.range.high, number);
        }
    }
    if (const Attribute *step = shapeAttribute(element, "step-" + letter))
        take(m_compiler.expression(step->value, Type::Number), declared.step, *step);
    readFollowing(element, letter, declared);
}

void FileReader::readFollowing(const Element &element, const QByteArray &axis, AxisDeclaration &declared)
{
    int rule = 0;
    if (readChoice(shapeAttribute(element, "follow-" + axis), followRules, rule, "C33"))
        declared.follow = followRules.at(rule);
    const Attribute *offset = shapeAttribute(element, "offset-" + axis);
    if (!offset)
        return;
    bool isRead = false;
    const QVector<double> distances = numbers(offset->value, isRead);
    if (!isRead || distances.isEmpty() || distances.size() > 2) {
        error("C33", *offset, QStringLiteral("an offset is one number, or two"));
        return;
    }
    declared.startOffset = distances.first();
    declared.endOffset = distances.last();
}

void FileReader::readTrack(const Element &element, TrackDeclaration &track, int number)
{
    const Attribute *along = shapeAttribute(element, "along");
    const Attribute *step = shapeAttribute(element, "step");
    if (step && !along)
        error("C31", *step,
              QStringLiteral("a step along a track needs \"along\"; else it is \"step-x\" or \"step-y\""));
    CallExpression call;
    if (!along || !take(m_compiler.call(along->value), call, *along))
        return;
    const auto form = std::find_if(std::begin(trackForms), std::end(trackForms), [&](const TrackForm &candidate) {
        return call.name == QLatin1String(candidate.name);
    });
    if (form == std::end(trackForms)) {
        error("C30", *along,
              QStringLiteral("there is no track \"%1\"%2").arg(call.name, suggestion(call.name, trackNames())));
        return;
    }
    if (!fits(*form, call.arguments)) {
        error("C22", *along, QStringLiteral("the track \"%1\" takes other values").arg(call.name));
        return;
    }
    track.kind = form->kind;
    track.arguments = call.arguments;
    for (const Expression &argument : qAsConst(track.arguments))
        checkOwnPoint(*along, argument, number);
    if (step)
        take(m_compiler.expression(step->value, Type::Number), track.step, *step);
}

void FileReader::readMirror(const Element &element, PointDeclaration &point, int number)
{
    const Attribute *mirrors = shapeAttribute(element, "mirrors");
    if (!mirrors)
        return;
    static const QRegularExpression form(QStringLiteral("\\A\\s*p([0-9]+)\\s+(x|y|xy)\\s*\\z"));
    const QRegularExpressionMatch match = form.match(mirrors->value);
    const int partner = match.captured(1).toInt();
    if (!match.hasMatch() || partner < 1 || partner > m_points.size() || partner == number) {
        error("C32", *mirrors, QStringLiteral("a point mirrors another one: \"p1 x\", \"p1 y\" or \"p1 xy\""));
        return;
    }
    point.mirrored = partner;
    point.mirrorsX = match.captured(2).contains(QLatin1Char('x'));
    point.mirrorsY = match.captured(2).contains(QLatin1Char('y'));
}

void FileReader::checkMirror(const Element &element, const PointDeclaration &point)
{
    if (point.mirrored > 0 && m_shape.points.at(point.mirrored - 1).mirrored > 0)
        error("C32", *shapeAttribute(element, "mirrors"),
              QStringLiteral("p%1 is a mirrored point itself").arg(point.mirrored));
}

/// Ranges, a track, a place and a mirror exclude each other.
void FileReader::checkLimits(const Element &element)
{
    const Attribute *second = nullptr;
    int kinds = 0;
    const auto count = [&](const Attribute *attribute) {
        if (!attribute)
            return;
        second = attribute;
        ++kinds;
    };
    const Attribute *x = shapeAttribute(element, "range-x");
    count(x ? x : shapeAttribute(element, "range-y"));
    count(shapeAttribute(element, "along"));
    count(shapeAttribute(element, "place"));
    count(shapeAttribute(element, "mirrors"));
    if (kinds > 1)
        error("C31", *second, QStringLiteral("a point has ranges, or a track, or a place, or a mirror"));
}

/// The template has the look that control points of all shapes have, and what the kit reads of it.
void FileReader::writePoint(int index, const PointDeclaration &point)
{
    const auto text = [](double number) { return numberText(number); };
    TemplateElement written;
    written.dropped = QStringList{QStringLiteral("style"), QStringLiteral("class")};
    const double half = 4;
    written.attributes = {{QStringLiteral("x"), text(point.centre.x() - half)},
                          {QStringLiteral("y"), text(point.centre.y() - half)},
                          {QStringLiteral("width"), text(2 * half)},
                          {QStringLiteral("height"), text(2 * half)},
                          {QStringLiteral("rx"), text(half)},
                          {QStringLiteral("ry"), text(half)},
                          {QStringLiteral("fill"), QStringLiteral("#ffffff")},
                          {QStringLiteral("stroke"), QStringLiteral("#e8710a")},
                          {QStringLiteral("stroke-width"), QStringLiteral("1.5")}};
    const auto addAxis = [&](const QString &axis, const AxisDeclaration &declared) {
        // One value instead of a range leaves nothing to drag along.
        if (declared.isLimited && declared.range.low.step == declared.range.high.step)
            written.attributes.append({axis + QStringLiteral("_move"), QStringLiteral("0")});
        written.attributes.append({axis + QStringLiteral("_follows"), declared.follow});
        written.attributes.append({axis + QStringLiteral("_offset"),
                                   text(declared.startOffset) + QLatin1Char(' ') + text(declared.endOffset)});
    };
    addAxis(QStringLiteral("x"), point.x);
    addAxis(QStringLiteral("y"), point.y);
    m_written.insert(index, written);
}

} // namespace declared
