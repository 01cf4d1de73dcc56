#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace Svg {

/// Start of a reference to a custom property.
const QLatin1String variableStart("var(");
/// Most references in one value.
constexpr int mostReferences = 64;

/// Whether a value refers to custom properties.
bool hasVariables(QStringView value);

/// A custom property that refers to others.
struct Settling
{
    QString name;
    /// Whether it refers back to itself, fallbacks included (CSS Custom Properties 1 §2.3).
    bool isCircular = false;
};

/// The order in which the values of one element are resolved, each once and after those that it refers to. Finds
/// cycles by Tarjan's algorithm, without recursion.
class SettlingOrder
{
public:
    explicit SettlingOrder(const QHash<QString, QString> &values);

    QVector<Settling> find();

private:
    struct Entry
    {
        QString name;
        QVector<int> references;
        int nextReference = 0;
        /// When it was reached, counted from 1, and the earliest open entry reachable from it.
        int met = 0;
        int earliest = 0;
        bool isOpen = false;
    };

    void meet(int place);
    bool followNext(int place);
    void leave(int place);
    void close(int place);

    QVector<Entry> m_entries;
    /// Entries whose references are being followed, and those whose cycle is not closed yet.
    QVector<int> m_followed;
    QVector<int> m_open;
    int m_met = 0;
    QVector<Settling> m_order;
};

} // namespace Svg
