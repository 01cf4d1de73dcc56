#include <pagehost/lesson.h>

#include <lessons/lessonfields.h>
#include <lessons/lessonparts.h>

#include <QtCore/QJsonArray>

#include <algorithm>
#include <cmath>
#include <limits>

namespace pagehost {

namespace {

constexpr int currentVersion = 1;
const QLatin1String versionKey("version");
const QLatin1String titleKey("title");
const QLatin1String durationKey("duration");
const QLatin1String startKey("start");
const QLatin1String eventsKey("events");
const QLatin1String kindKey("kind");
const QLatin1String timeKey("time");
/// Above it, JSON numbers do not represent every whole number.
constexpr double largestWholeNumber = 9007199254740991.0;

class Writer
{
public:
    explicit Writer(QJsonObject &object)
        : m_object(object)
    {
    }
    template<typename Number> void operator()(const char *name, const Number &value) { put(name, double(value)); }
    void operator()(const char *name, const QString &text) { put(name, text); }
    void operator()(const char *name, const QByteArray &bytes) { put(name, QString::fromLatin1(bytes.toBase64())); }
    void operator()(const char *name, const QSizeF &size) { put(name, QJsonArray{size.width(), size.height()}); }
    void operator()(const char *name, const QVector<quint32> &values)
    {
        QJsonArray array;
        for (const quint32 value : values)
            array.append(double(value));
        put(name, array);
    }

private:
    void put(const char *name, const QJsonValue &value) { m_object.insert(QLatin1String(name), value); }

    QJsonObject &m_object;
};

/// Accepts whole numbers within the type's range only.
template<typename Number> bool readWhole(const QJsonValue &value, Number &number, double largest)
{
    const double read = value.toDouble(-1.5);
    const bool fits = std::floor(read) == read && std::abs(read) <= largest &&
                      (std::numeric_limits<Number>::is_signed || read >= 0);
    if (fits)
        number = Number(read);
    return fits;
}

template<typename Number> bool readWhole(const QJsonValue &value, Number &number)
{
    return readWhole(value, number, double(std::numeric_limits<Number>::max()));
}

class Reader
{
public:
    explicit Reader(const QJsonObject &object)
        : m_object(object)
    {
    }
    bool isGood() const { return m_good; }

    void operator()(const char *name, quint32 &number) { require(readWhole(value(name), number)); }
    void operator()(const char *name, qint32 &number) { require(readWhole(value(name), number)); }
    void operator()(const char *name, double &number)
    {
        require(value(name).isDouble());
        number = value(name).toDouble();
    }
    void operator()(const char *name, QString &text)
    {
        require(value(name).isString());
        text = value(name).toString();
    }
    void operator()(const char *name, QByteArray &bytes)
    {
        const auto read = QByteArray::fromBase64Encoding(value(name).toString().toLatin1(),
                                                         QByteArray::AbortOnBase64DecodingErrors);
        require(value(name).isString() && read);
        bytes = *read;
    }
    void operator()(const char *name, QSizeF &size)
    {
        const QJsonArray sides = value(name).toArray();
        require(sides.size() == 2 && sides[0].isDouble() && sides[1].isDouble());
        size = m_good ? QSizeF(sides[0].toDouble(), sides[1].toDouble()) : QSizeF();
    }
    void operator()(const char *name, QVector<quint32> &values)
    {
        const QJsonArray array = value(name).toArray();
        require(value(name).isArray());
        for (const QJsonValue &entry : array) {
            quint32 number = 0;
            require(readWhole(entry, number));
            values.append(number);
        }
    }

private:
    QJsonValue value(const char *name) const { return m_object.value(QLatin1String(name)); }
    void require(bool good) { m_good = m_good && good; }

    const QJsonObject &m_object;
    bool m_good = true;
};

QJsonObject written(LessonStep step)
{
    QJsonObject object{{kindKey, lessonfields::kindNames.at(step.index())}};
    Writer writer(object);
    std::visit([&](auto &kind) { lessonfields::visit(writer, kind); }, step);
    return object;
}

bool read(const QJsonValue &value, LessonStep &step)
{
    const QJsonObject object = value.toObject();
    const auto &names = lessonfields::kindNames;
    const auto name = std::find(names.begin(), names.end(), object.value(kindKey).toString());
    if (!lessonfields::makeStep(std::size_t(name - names.begin()), step))
        return false;
    Reader reader(object);
    std::visit([&](auto &kind) { lessonfields::visit(reader, kind); }, step);
    return reader.isGood();
}

bool read(const QJsonValue &value, LessonEvent &event)
{
    return readWhole(value.toObject().value(timeKey), event.time, largestWholeNumber) && read(value, event.step);
}

template<typename Element> bool readAll(const QJsonValue &value, QVector<Element> &elements)
{
    const QJsonArray array = value.toArray();
    for (const QJsonValue &entry : array) {
        Element element;
        if (!read(entry, element))
            return false;
        elements.append(element);
    }
    return value.isArray();
}

} // namespace

QJsonObject Lesson::toJson() const
{
    QJsonArray startSteps;
    for (const LessonStep &step : start)
        startSteps.append(written(step));
    QJsonArray timedSteps;
    for (const LessonEvent &event : events) {
        QJsonObject object = written(event.step);
        object.insert(timeKey, double(event.time));
        timedSteps.append(object);
    }
    return {{versionKey, currentVersion},
            {titleKey, title},
            {durationKey, double(duration)},
            {startKey, startSteps},
            {eventsKey, timedSteps}};
}

LessonExtent lessonparts::readJson(const QJsonObject &object, Lesson &lesson)
{
    const QJsonValue version = object.value(versionKey);
    if ((!version.isUndefined() && version != currentVersion) ||
        !(object.value(startKey).isArray() || object.value(eventsKey).isArray()))
        return LessonExtent::Nothing;
    const bool hasHead = version == currentVersion && object.value(titleKey).isString();
    lesson.title = object.value(titleKey).toString();
    const bool hasDuration = readWhole(object.value(durationKey), lesson.duration, largestWholeNumber);
    if (!hasDuration)
        lesson.duration = std::numeric_limits<qint64>::max();
    const bool hasStart = readAll(object.value(startKey), lesson.start);
    // Without a part of the start, events would apply to other objects and pages.
    const bool hasEvents = hasStart && readAll(object.value(eventsKey), lesson.events);
    return endAtDamage(lesson, hasHead && hasDuration && hasEvents);
}

bool Lesson::fromJson(const QJsonObject &object)
{
    Lesson read;
    if (lessonparts::readJson(object, read) != LessonExtent::Whole)
        return false;
    *this = read;
    return true;
}

} // namespace pagehost
