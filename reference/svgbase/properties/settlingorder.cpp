#include "properties/settlingorder.h"

#include <algorithm>

namespace Svg {

namespace {

// Names that a value refers to, including those in fallbacks. References beyond the limit have no effect.
QVector<QString> referencedNames(QStringView value)
{
    QVector<QString> names;
    qsizetype from = 0;
    while (names.size() <= mostReferences) {
        const qsizetype start = value.indexOf(variableStart, from, Qt::CaseInsensitive);
        if (start < 0)
            break;
        from = start + variableStart.size();
        const auto ends = [](QChar c) { return c == QLatin1Char(',') || c == QLatin1Char(')'); };
        const QChar *end = std::find_if(value.begin() + from, value.end(), ends);
        names.append(QStringView(value.begin() + from, end).trimmed().toString());
    }
    return names;
}

} // namespace

bool hasVariables(QStringView value)
{
    // Few values have brackets, and looking for one is quick.
    return value.contains(QLatin1Char('(')) && value.contains(variableStart, Qt::CaseInsensitive);
}

SettlingOrder::SettlingOrder(const QHash<QString, QString> &values)
{
    QHash<QString, int> places;
    for (auto at = values.constBegin(); at != values.constEnd(); ++at) {
        if (!hasVariables(*at))
            continue;
        places.insert(at.key(), m_entries.size());
        m_entries.append({at.key(), {}});
    }
    for (Entry &entry : m_entries) {
        const auto names = referencedNames(values.value(entry.name));
        for (const QString &name : names) {
            const auto place = places.constFind(name);
            if (place != places.constEnd())
                entry.references.append(*place);
        }
    }
}

QVector<Settling> SettlingOrder::find()
{
    for (int start = 0; start < m_entries.size(); ++start) {
        if (m_entries.at(start).met == 0)
            meet(start);
        while (!m_followed.isEmpty())
            if (!followNext(m_followed.constLast()))
                leave(m_followed.takeLast());
    }
    return m_order;
}

void SettlingOrder::meet(int place)
{
    Entry &entry = m_entries[place];
    entry.met = entry.earliest = ++m_met;
    entry.isOpen = true;
    m_followed.append(place);
    m_open.append(place);
}

// False when all references were followed.
bool SettlingOrder::followNext(int place)
{
    Entry &entry = m_entries[place];
    if (entry.nextReference == entry.references.size())
        return false;
    const int next = entry.references.at(entry.nextReference++);
    const Entry &referenced = m_entries.at(next);
    if (referenced.met == 0)
        meet(next);
    else if (referenced.isOpen)
        entry.earliest = qMin(entry.earliest, referenced.met);
    return true;
}

void SettlingOrder::leave(int place)
{
    const Entry &entry = m_entries.at(place);
    if (!m_followed.isEmpty()) {
        Entry &before = m_entries[m_followed.constLast()];
        before.earliest = qMin(before.earliest, entry.earliest);
    }
    if (entry.earliest == entry.met)
        close(place);
}

// The cycle that an entry began, or the entry alone.
void SettlingOrder::close(int place)
{
    const bool isAlone = m_open.constLast() == place && !m_entries.at(place).references.contains(place);
    int closed = 0;
    do {
        closed = m_open.takeLast();
        m_entries[closed].isOpen = false;
        m_order.append({m_entries.at(closed).name, !isAlone});
    } while (closed != place);
}

} // namespace Svg
