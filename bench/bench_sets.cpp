// Sets of documents, compared with Qt's SVG module: two hundred icons of a public icon set, downloaded when this
// runs, and our own templates. Each figure covers all documents of a set together.

#include "templates.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QProcess>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <cstdio>
#include <memory>
#include <vector>

namespace {

constexpr int iconCount = 200;
constexpr int smallSide = 256;
constexpr int largeSide = 1024;
constexpr int fetchMilliseconds = 120000;

using Texts = QVector<QByteArray>;
using Own = std::unique_ptr<QZeSvgTinyDocument>;
using Peer = std::unique_ptr<QSvgRenderer>;

/// The text made unique, so that no cache knows it.
QByteArray fresh(const QByteArray &text)
{
    static quint64 number = 0;
    return text + "<!-- set " + QByteArray::number(++number) + " -->";
}

template<typename Document> Document loaded(const QByteArray &text);

template<> Own loaded<Own>(const QByteArray &text)
{
    return Own(QZeSvgTinyDocument::load(text));
}

template<> Peer loaded<Peer>(const QByteArray &text)
{
    return std::make_unique<QSvgRenderer>(text);
}

template<typename Document> std::vector<Document> loadedAll(const Texts &texts)
{
    std::vector<Document> documents;
    documents.reserve(std::size_t(texts.size()));
    for (const QByteArray &text : texts)
        documents.push_back(loaded<Document>(text));
    return documents;
}

void draw(const Own &document, QPainter *painter, const QRectF &target)
{
    document->draw(painter, target, 1, false);
}

void draw(const Peer &document, QPainter *painter, const QRectF &target)
{
    document->render(painter, target);
}

template<typename Document> void drawInto(QImage *image, const Document &document)
{
    image->fill(Qt::transparent);
    QPainter painter(image);
    draw(document, &painter, QRectF(image->rect()));
}

QImage canvas(int side)
{
    return QImage(side, side, QImage::Format_ARGB32_Premultiplied);
}

template<typename Document> void load(benchmark::State &state, const Texts &texts)
{
    for (auto _ : state)
        for (const QByteArray &text : texts)
            benchmark::DoNotOptimize(loaded<Document>(fresh(text)));
}

/// Documents that were never drawn.
template<typename Document> void drawFirst(benchmark::State &state, const Texts &texts, int side)
{
    QImage image = canvas(side);
    for (auto _ : state) {
        state.PauseTiming();
        std::vector<Document> documents = loadedAll<Document>(texts);
        state.ResumeTiming();
        for (const Document &document : documents)
            drawInto(&image, document);
        state.PauseTiming();
        documents.clear();
        state.ResumeTiming();
    }
}

/// Draws one document after the other, so that caches serve each in turn.
template<typename Document> void drawAgain(benchmark::State &state, const Texts &texts)
{
    const std::vector<Document> documents = loadedAll<Document>(texts);
    QImage image = canvas(smallSide);
    constexpr int warmUps = 2;
    constexpr int draws = 10;
    for (auto _ : state) {
        for (const Document &document : documents) {
            state.PauseTiming();
            for (int i = 0; i < warmUps; ++i)
                drawInto(&image, document);
            state.ResumeTiming();
            for (int i = 0; i < draws; ++i)
                drawInto(&image, document);
        }
    }
}

/// Changes the colour of the first drawn child.
void changeAndDraw(benchmark::State &state, const Texts &texts)
{
    const std::vector<Own> documents = loadedAll<Own>(texts);
    QImage image = canvas(smallSide);
    bool other = false;
    for (auto _ : state) {
        other = !other;
        for (const Own &document : documents) {
            const QList<QZeSvgNode *> children = document->children();
            if (!children.isEmpty())
                children.first()->setAttribute(QStringLiteral("fill"), other ? "#102030" : "#203040");
            drawInto(&image, document);
        }
    }
}

/// The peer needs a new text for a change.
void changeAndDrawPeer(benchmark::State &state, const Texts &texts)
{
    QImage image = canvas(smallSide);
    for (auto _ : state)
        for (const QByteArray &text : texts)
            drawInto(&image, loaded<Peer>(fresh(text)));
}

template<typename Document> void memory(benchmark::State &state, const Texts &texts)
{
    Texts unknown;
    for (const QByteArray &text : texts)
        unknown.append(fresh(text));
    for (auto _ : state) {
        const auto before = mallinfo2().uordblks;
        const std::vector<Document> documents = loadedAll<Document>(unknown);
        state.counters["bytes"] = double(mallinfo2().uordblks - before) / double(documents.size());
    }
}

/// Picks files at equal distances, to cover the whole alphabet.
Texts readIcons(const QString &folder)
{
    const QFileInfoList files = QDir(folder).entryInfoList({QStringLiteral("*.svg")}, QDir::Files, QDir::Name);
    Texts texts;
    for (int i = 0; i < iconCount && files.size() >= iconCount; ++i) {
        QFile file(files.at(i * (files.size() / iconCount)).filePath());
        if (file.open(QIODevice::ReadOnly))
            texts.append(file.readAll());
    }
    return texts;
}

Texts fetchedIcons()
{
    const QString folder = QStringLiteral(GLIOLOLOK_ICONS);
    QProcess fetch;
    fetch.start(QStringLiteral(GLIOLOLOK_FETCH_ICONS), {folder});
    if (!fetch.waitForFinished(fetchMilliseconds) || fetch.exitCode() != 0) {
        std::fprintf(stderr, "Icons are NOT measured: %s\n", fetch.readAllStandardError().trimmed().constData());
        return {};
    }
    return readIcons(folder + QStringLiteral("/package/icons"));
}

void registerSet(const std::string &name, const Texts &texts)
{
    const auto add = [&](const std::string &figure, auto peer, auto own) {
        const auto one = [&](const std::string &who, auto function) {
            return benchmark::RegisterBenchmark(
                       (figure + "/" + who + "/" + name).c_str(),
                       [texts, function](benchmark::State &state) { function(state, texts); })
                ->Unit(benchmark::kMillisecond);
        };
        return std::make_pair(one("peer", peer), one("gliololok", own));
    };
    const auto first = [](auto function, int side) {
        return [function, side](benchmark::State &state, const Texts &all) { function(state, all, side); };
    };
    add("set-load", load<Peer>, load<Own>);
    add("set-draw-256", first(drawFirst<Peer>, smallSide), first(drawFirst<Own>, smallSide));
    add("set-draw-1024", first(drawFirst<Peer>, largeSide), first(drawFirst<Own>, largeSide));
    add("set-draw-again", drawAgain<Peer>, drawAgain<Own>);
    add("set-change-draw", changeAndDrawPeer, changeAndDraw);
    const auto [peer, own] = add("set-memory", memory<Peer>, memory<Own>);
    peer->Iterations(1);
    own->Iterations(1);
}

} // namespace

void registerSetBenchmarks()
{
    Texts templates;
    for (const BenchTemplate &source : benchTemplates())
        templates.append(source.text);
    registerSet("templates", templates);
    const Texts icons = fetchedIcons();
    if (!icons.isEmpty())
        registerSet("icons", icons);
}
