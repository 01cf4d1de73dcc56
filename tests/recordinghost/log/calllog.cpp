#include <recordinghost/log/calllog.h>

#include <QtCore/QMutex>

namespace recording {

namespace {

QMutex mutex; // pictures are copied by other threads
QVector<Call> record;

QString nameOf(const Call &call)
{
    return call.object + QLatin1Char('.') + call.operation;
}

template<typename Condition> QVector<Call> callsWhere(Condition condition)
{
    const QMutexLocker locker(&mutex);
    QVector<Call> found;
    std::copy_if(record.cbegin(), record.cend(), std::back_inserter(found), condition);
    return found;
}

QVariantList argumentsOfLast(const QVector<Call> &calls)
{
    return calls.isEmpty() ? QVariantList() : calls.last().arguments;
}

} // namespace

void log(const QString &object, const char *operation, const QVariantList &arguments)
{
    const QMutexLocker locker(&mutex);
    record.append({object, QString::fromLatin1(operation), arguments});
}

void clear()
{
    const QMutexLocker locker(&mutex);
    record.clear();
}

QVector<Call> calls()
{
    return callsWhere([](const Call &) { return true; });
}

QVector<Call> calls(const QStringList &operations)
{
    return callsWhere([&](const Call &call) { return operations.contains(call.operation); });
}

QVector<Call> calls(const QString &object, const QString &operation)
{
    return callsWhere([&](const Call &call) { return call.object == object && call.operation == operation; });
}

int count(const QString &operation)
{
    return calls(QStringList(operation)).size();
}

int count(const QString &object, const QString &operation)
{
    return calls(object, operation).size();
}

QVariantList lastArguments(const QString &operation)
{
    return argumentsOfLast(calls(QStringList(operation)));
}

QVariantList lastArguments(const QString &object, const QString &operation)
{
    return argumentsOfLast(calls(object, operation));
}

QStringList names(const QStringList &operations)
{
    QStringList found;
    const QVector<Call> listed = operations.isEmpty() ? calls() : calls(operations);
    for (const Call &call : listed)
        found.append(nameOf(call));
    return found;
}

} // namespace recording
