#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Prints the usual table, then ratios: benchmarks are named "figure/who/case", and for each figure the CPU time of
/// everybody is set against the one called "peer" in the same case. The geometric mean over the cases is the
/// figure.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    /// The smallest CPU time (nanoseconds) or size (bytes) of the repetitions, by figure, case and who.
    std::map<std::string, std::map<std::string, std::map<std::string, double>>> m_best;
};
