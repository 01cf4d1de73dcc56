// Loading a template, new and known.

#include "templates.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtSvg/QSvgRenderer>

#include <benchmark/benchmark.h>

#include <malloc.h>
#include <memory>
#include <vector>

namespace {

void loadNew(benchmark::State &state, const BenchTemplate &source)
{
    for (auto _ : state)
        delete QZeSvgTinyDocument::load(neverSeen(source));
}

void loadNewPeer(benchmark::State &state, const BenchTemplate &source)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(QSvgRenderer(neverSeen(source)).isValid());
}

void loadKnown(benchmark::State &state, const BenchTemplate &source)
{
    for (auto _ : state)
        delete QZeSvgTinyDocument::load(source.text);
}

void loadKnownPeer(benchmark::State &state, const BenchTemplate &source)
{
    for (auto _ : state)
        benchmark::DoNotOptimize(QSvgRenderer(source.text).isValid());
}

/// Heap bytes per loaded document of a known template.
void documentMemory(benchmark::State &state, const BenchTemplate &source)
{
    constexpr int count = 1000;
    const std::unique_ptr<QZeSvgTinyDocument> known(QZeSvgTinyDocument::load(source.text));
    for (auto _ : state) {
        const auto before = mallinfo2().uordblks;
        std::vector<std::unique_ptr<QZeSvgTinyDocument>> documents;
        documents.reserve(count);
        for (int i = 0; i < count; ++i)
            documents.emplace_back(QZeSvgTinyDocument::load(source.text));
        state.counters["bytes"] = double(mallinfo2().uordblks - before) / count;
    }
}

void documentMemoryPeer(benchmark::State &state, const BenchTemplate &source)
{
    constexpr int count = 1000;
    for (auto _ : state) {
        const auto before = mallinfo2().uordblks;
        std::vector<std::unique_ptr<QSvgRenderer>> documents;
        documents.reserve(count);
        for (int i = 0; i < count; ++i)
            documents.emplace_back(std::make_unique<QSvgRenderer>(source.text));
        state.counters["bytes"] = double(mallinfo2().uordblks - before) / count;
    }
}

} // namespace

void registerLoadBenchmarks()
{
    using Function = void (*)(benchmark::State &, const BenchTemplate &);
    const auto add = [](const char *name, const BenchTemplate &source, Function function) {
        const std::string full = std::string(name) + "/" + source.name.toStdString();
        return benchmark::RegisterBenchmark(full.c_str(), function, source);
    };
    for (const BenchTemplate &source : benchTemplates()) {
        add("load-new/peer", source, loadNewPeer);
        add("load-new/gliololok", source, loadNew);
        add("load-known/peer", source, loadKnownPeer);
        add("load-known/gliololok", source, loadKnown);
        add("document-memory/peer", source, documentMemoryPeer)->Iterations(1);
        add("document-memory/gliololok", source, documentMemory)->Iterations(1);
    }
}
