#include "ratioreporter.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <numeric>
#include <sstream>
#include <vector>

namespace {

const std::string peer = "peer";
/// Set by benchmarks of memory; compared instead of the time.
const std::string bytesCounter = "bytes";

double figureOf(const benchmark::BenchmarkReporter::Run &run)
{
    const auto bytes = run.counters.find(bytesCounter);
    if (bytes != run.counters.end())
        return bytes->second.value;
    return run.cpu_accumulated_time / double(run.iterations) * 1e9;
}

std::vector<std::string> split(const std::string &name)
{
    std::vector<std::string> parts;
    std::istringstream stream(name);
    for (std::string part; std::getline(stream, part, '/');)
        parts.push_back(part);
    return parts;
}

double arithmeticMean(const std::vector<double> &ratios)
{
    return std::accumulate(ratios.begin(), ratios.end(), 0.0) / double(ratios.size());
}

double geometricMean(const std::vector<double> &ratios)
{
    const double logs = std::accumulate(ratios.begin(), ratios.end(), 0.0,
                                        [](double sum, double ratio) { return sum + std::log(ratio); });
    return std::exp(logs / double(ratios.size()));
}

} // namespace

void RatioReporter::ReportRuns(const std::vector<Run> &runs)
{
    ConsoleReporter::ReportRuns(runs);
    for (const Run &run : runs) {
        const std::vector<std::string> parts = split(run.run_name.function_name);
        if (run.run_type != Run::RT_Iteration || run.error_occurred || parts.size() < 3)
            continue;
        const double value = figureOf(run);
        double &best = m_best[parts[0]][parts[2]][parts[1]];
        best = best == 0 ? value : std::min(best, value);
    }
}

void RatioReporter::Finalize()
{
    std::cout << "\nRatios of CPU time (of heap bytes for memory), peer = 1.00, best repetition each\n";
    for (const auto &[figure, cases] : m_best) {
        std::map<std::string, std::vector<double>> ratios;
        std::cout << figure << "\n";
        for (const auto &[name, values] : cases) {
            const auto base = values.find(peer);
            if (base == values.end())
                continue;
            for (const auto &[who, value] : values) {
                if (who == peer)
                    continue;
                const double ratio = value / base->second;
                ratios[who].push_back(ratio);
                std::printf("    %-18s %-14s %8.3f\n", name.c_str(), who.c_str(), ratio);
            }
        }
        for (const auto &[who, all] : ratios) {
            std::printf("  = %-18s %-14s %8.3f\n", "geometric mean", who.c_str(), geometricMean(all));
            std::printf("  = %-18s %-14s %8.3f\n", "arithmetic mean", who.c_str(), arithmeticMean(all));
            std::printf("  = %-18s %-14s %8.3f\n", "largest", who.c_str(),
                        *std::max_element(all.begin(), all.end()));
        }
    }
    std::cout.flush();
}
