#pragma once

#include <benchmark/benchmark.h>

#include <map>
#include <string>
#include <vector>

/// Prints the usual table, then ratios: benchmarks are named "figure/who/case", and each CPU time is divided by
/// that of "peer" for the same figure and case. A figure's ratio is the geometric mean over its cases.
class RatioReporter : public benchmark::ConsoleReporter
{
public:
    void ReportRuns(const std::vector<Run> &runs) override;
    void Finalize() override;

private:
    /// The smallest CPU time (nanoseconds) or size (bytes) of the repetitions, by figure, case and who.
    std::map<std::string, std::map<std::string, std::map<std::string, double>>> m_best;
};
