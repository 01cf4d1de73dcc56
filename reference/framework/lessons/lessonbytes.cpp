#include <pagehost/lesson.h>

#include <lessons/lessonfields.h>
#include <lessons/lessonparts.h>

#include <QtCore/QDataStream>
#include <QtCore/QIODevice>

#include <cmath>

namespace pagehost {

namespace {

constexpr quint32 magic = 0x474c4c31; ///< "GLL1"
constexpr quint16 currentVersion = 1;
/// Kind and length.
constexpr qint64 smallestStep = 1 + 4;
constexpr qint64 smallestEvent = 8 + smallestStep;

void prepare(QDataStream &stream)
{
    stream.setVersion(QDataStream::Qt_5_15);
    stream.setByteOrder(QDataStream::BigEndian);
    stream.setFloatingPointPrecision(QDataStream::DoublePrecision);
}

/// Reads a count of elements of at least this many bytes each; false when the remaining bytes cannot contain them.
bool readCount(QDataStream &in, qint64 bytesEach, quint32 &count)
{
    in >> count;
    return in.status() == QDataStream::Ok && qint64(count) * bytesEach <= in.device()->bytesAvailable();
}

QString presentText(const QString &text)
{
    return text.isNull() ? QString(QLatin1String("")) : text;
}

class Writer
{
public:
    explicit Writer(QDataStream &out)
        : m_out(out)
    {
    }
    template<typename Value> void operator()(const char *, const Value &value) { m_out << value; }
    /// Null and empty data are written alike, as are texts.
    void operator()(const char *, const QByteArray &bytes) { m_out << (bytes.isNull() ? QByteArray("") : bytes); }
    void operator()(const char *, const QString &text) { m_out << presentText(text); }
    void operator()(const char *, const QVector<quint32> &values)
    {
        m_out << quint32(values.size());
        for (const quint32 value : values)
            m_out << value;
    }

private:
    QDataStream &m_out;
};

class Reader
{
public:
    explicit Reader(QDataStream &in)
        : m_in(in)
    {
    }
    template<typename Value> void operator()(const char *, Value &value) { m_in >> value; }
    void operator()(const char *, double &value)
    {
        m_in >> value;
        refuseUnless(std::isfinite(value));
    }
    void operator()(const char *, QSizeF &size)
    {
        m_in >> size;
        refuseUnless(std::isfinite(size.width()) && std::isfinite(size.height()));
    }
    void operator()(const char *, QVector<quint32> &values)
    {
        quint32 count = 0;
        if (!readCount(m_in, sizeof(quint32), count)) {
            refuseUnless(false);
            return;
        }
        values.resize(int(count));
        for (quint32 &value : values)
            m_in >> value;
    }

private:
    void refuseUnless(bool good)
    {
        if (!good)
            m_in.setStatus(QDataStream::ReadCorruptData);
    }

    QDataStream &m_in;
};

QByteArray fieldsOf(LessonStep step)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    prepare(out);
    Writer writer(out);
    std::visit([&](auto &kind) { lessonfields::visit(writer, kind); }, step);
    return bytes;
}

void write(QDataStream &out, const LessonStep &step)
{
    out << quint8(step.index()) << fieldsOf(step);
}

bool read(QDataStream &in, LessonStep &step)
{
    quint8 kind = 0;
    QByteArray bytes;
    in >> kind >> bytes;
    if (in.status() != QDataStream::Ok || !lessonfields::makeStep(kind, step))
        return false;
    QDataStream fields(bytes);
    prepare(fields);
    Reader reader(fields);
    std::visit([&](auto &fieldsOfKind) { lessonfields::visit(reader, fieldsOfKind); }, step);
    return fields.status() == QDataStream::Ok && fields.atEnd();
}

bool readSteps(QDataStream &in, QVector<LessonStep> &steps)
{
    quint32 count = 0;
    if (!readCount(in, smallestStep, count))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        LessonStep step;
        if (!read(in, step))
            return false;
        steps.append(step);
    }
    return true;
}

bool readEvents(QDataStream &in, QVector<LessonEvent> &events)
{
    quint32 count = 0;
    if (!readCount(in, smallestEvent, count))
        return false;
    for (quint32 i = 0; i < count; ++i) {
        LessonEvent event;
        in >> event.time;
        if (!read(in, event.step))
            return false;
        events.append(event);
    }
    return true;
}

bool readHead(QDataStream &in, Lesson &lesson)
{
    quint32 foundMagic = 0;
    quint16 version = 0;
    in >> foundMagic >> version;
    if (foundMagic != magic || version != currentVersion)
        return false;
    in >> lesson.title >> lesson.duration;
    return in.status() == QDataStream::Ok;
}

} // namespace

QByteArray Lesson::toBytes() const
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    prepare(out);
    out << magic << currentVersion << presentText(title) << duration << quint32(start.size());
    for (const LessonStep &step : start)
        write(out, step);
    out << quint32(events.size());
    for (const LessonEvent &event : events) {
        out << event.time;
        write(out, event.step);
    }
    return bytes;
}

LessonExtent lessonparts::readBytes(const QByteArray &bytes, Lesson &lesson)
{
    QDataStream in(bytes);
    prepare(in);
    if (!readHead(in, lesson))
        return LessonExtent::Nothing;
    const bool isWhole = readSteps(in, lesson.start) && readEvents(in, lesson.events) && in.atEnd();
    return endAtDamage(lesson, isWhole);
}

bool Lesson::fromBytes(const QByteArray &bytes)
{
    Lesson read;
    if (lessonparts::readBytes(bytes, read) != LessonExtent::Whole)
        return false;
    *this = read;
    return true;
}

} // namespace pagehost
