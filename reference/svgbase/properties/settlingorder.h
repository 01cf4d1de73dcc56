#pragma once

#include <QtCore/QHash>
#include <QtCore/QString>
#include <QtCore/QVector>

namespace Svg {

/// Beginning of a reference to a custom property.
const QLatin1String variableStart("var(");
/// Most references that one value is made of.
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

/// In which order the values of one element can be settled, each once: behind those that it refers to. Finds
/// circles by Tarjan's way along all references, without recursion.
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
        /// When it was met, counted from 1, and the earliest that is reached from it and still open.
        int met = 0;
        int earliest = 0;
        bool isOpen = false;
    };

    void meet(int place);
    bool followNext(int place);
    void leave(int place);
    void close(int place);

    QVector<Entry> m_entries;
    /// Entries whose references are being followed, and those whose circle is not closed yet.
    QVector<int> m_followed;
    QVector<int> m_open;
    int m_met = 0;
    QVector<Settling> m_order;
};

} // namespace Svg
