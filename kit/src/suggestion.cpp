#include <shapekit/suggestion.h>

#include <QtCore/QVector>

#include <algorithm>
#include <numeric>

namespace shapekit {

namespace {

/// Longer names are compared up to here: the cost grows with the square.
constexpr int comparedLength = 40;

int editDistance(const QString &from, const QString &to)
{
    QVector<int> previous(to.size() + 1);
    std::iota(previous.begin(), previous.end(), 0);
    for (int row = 1; row <= from.size(); ++row) {
        QVector<int> present(to.size() + 1, row);
        for (int column = 1; column <= to.size(); ++column) {
            const int replaced = previous[column - 1] + (from[row - 1] == to[column - 1] ? 0 : 1);
            present[column] = std::min({replaced, previous[column] + 1, present[column - 1] + 1});
        }
        previous = present;
    }
    return previous.last();
}

} // namespace

QString nearestName(const QString &name, const QStringList &names)
{
    const QString wanted = name.left(comparedLength).toLower();
    int nearest = std::max(1, wanted.size() / 3) + 1;
    QString found;
    for (const QString &candidate : names) {
        const int distance = editDistance(wanted, candidate.left(comparedLength).toLower());
        if (distance < nearest && distance < candidate.size()) {
            nearest = distance;
            found = candidate;
        }
    }
    return found;
}

QString suggestion(const QString &name, const QStringList &names)
{
    const QString found = nearestName(name, names);
    return found.isEmpty() ? QString() : QStringLiteral(" (did you mean \"%1\"?)").arg(found);
}

} // namespace shapekit
