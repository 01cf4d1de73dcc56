#pragma once

#include <shape/pathcomparison.h>

#include <random>

/// Random texts that look like number lists and path data, with everything mixed in that such texts may be damaged
/// by. The same start value gives the same texts everywhere.
class RandomText
{
public:
    explicit RandomText(unsigned startValue)
        : m_engine(startValue)
    {
    }

    QString next();
    comparison::Edit nextEdit(const QString &path);

private:
    /// From 0 up to, but not including, `end`.
    int below(int end) { return int(m_engine() % unsigned(end)); }
    QString digits(int most);
    QString number();
    QString piece();
    double delta();

    std::mt19937 m_engine;
};
