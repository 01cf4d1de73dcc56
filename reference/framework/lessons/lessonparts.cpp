#include <lessons/lessonparts.h>

#include <files/jsoncursor.h>

#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>

namespace pagehost {

namespace {

/// The signature of the binary form, "GLL1".
constexpr char magic[] = "GLL1";

/// The elements before the first broken one; undefined when no array begins here.
QJsonValue takeElements(JsonCursor &cursor)
{
    QJsonArray elements;
    if (!cursor.take('['))
        return QJsonValue(QJsonValue::Undefined);
    QByteArray text;
    while (cursor.takeValue(text)) {
        JsonProblem problem;
        const QJsonValue element = parseJson(text, problem);
        if (problem.isThere)
            break;
        elements.append(element);
        if (!cursor.take(','))
            break;
    }
    return elements;
}

QJsonValue takePlain(JsonCursor &cursor)
{
    QByteArray text;
    JsonProblem problem;
    return cursor.takeValue(text) ? parseJson(text, problem) : QJsonValue(QJsonValue::Undefined);
}

/// The value after the first `"name":` of a text that is broken somewhere. Quotes inside strings are escaped, so a
/// string never looks like a name.
QJsonValue findMember(const QByteArray &text, const char *name, QJsonValue (*takeValue)(JsonCursor &))
{
    const QByteArray key = '"' + QByteArray(name) + '"';
    JsonCursor cursor(text);
    const int place = text.indexOf(key);
    cursor.setOffset(place + key.size());
    return place >= 0 && cursor.take(':') ? takeValue(cursor) : QJsonValue(QJsonValue::Undefined);
}

QJsonObject membersOf(const QByteArray &text)
{
    const QJsonDocument whole = QJsonDocument::fromJson(text);
    if (whole.isObject())
        return whole.object();
    QJsonObject members;
    for (const char *name : {"title", "duration"})
        members.insert(QLatin1String(name), findMember(text, name, takePlain));
    for (const char *name : {"start", "events"})
        members.insert(QLatin1String(name), findMember(text, name, takeElements));
    return members;
}

} // namespace

LessonExtent lessonparts::endAtDamage(Lesson &lesson, bool isWhole)
{
    int good = 0;
    qint64 last = 0;
    while (good < lesson.events.size() && lesson.events[good].time >= last &&
           lesson.events[good].time <= lesson.duration)
        last = lesson.events[good++].time;
    if (isWhole && good == lesson.events.size() && lesson.duration >= last)
        return LessonExtent::Whole;
    lesson.events.resize(good);
    lesson.duration = last;
    return LessonExtent::Part;
}

bool Lesson::fromData(const QByteArray &data)
{
    return data.startsWith('{') ? fromJson(QJsonDocument::fromJson(data).object()) : fromBytes(data);
}

LessonExtent Lesson::fromDamagedData(const QByteArray &data)
{
    Lesson read;
    LessonExtent extent = LessonExtent::Nothing;
    if (data.startsWith('{')) {
        extent = lessonparts::readJson(membersOf(data), read);
    } else {
        // Damage may have inserted bytes before the lesson.
        const int start = data.indexOf(magic);
        extent = start >= 0 ? lessonparts::readBytes(data.mid(start), read) : LessonExtent::Nothing;
        if (start > 0 && extent == LessonExtent::Whole)
            extent = lessonparts::endAtDamage(read, false);
    }
    if (extent != LessonExtent::Nothing)
        *this = read;
    return extent;
}

} // namespace pagehost
