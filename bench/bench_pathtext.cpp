// Numbers in text: the library's scanner beside QString::toDouble (the peer) and std::from_chars, and the writer
// and the path edits. Speeds are characters per second, independent of the character size.

#include <svgobj/csvgbase.h>

#include <benchmark/benchmark.h>

#include <charconv>
#include <random>
#include <string>

namespace {

constexpr int numberCount = 20000;
constexpr unsigned startValue = 42;

/// A concrete shape for these operations.
class Shape : public CSVGBase
{
public:
    Shape()
        : CSVGBase(nullptr)
    {
    }
    int getSVGType() override { return 1; }
};

/// Typical numbers as text, separated by commas.
struct NumberTexts
{
    std::string name;
    QString text;
    std::string latin1;
    QVector<double> values;
};

NumberTexts makeTexts(const std::string &name, double range, char format, int digits)
{
    std::mt19937 engine(startValue);
    NumberTexts texts{name, {}, {}, {}};
    for (int i = 0; i < numberCount; ++i) {
        const double value = (double(engine()) / double(std::mt19937::max()) - 0.5) * 2 * range;
        texts.text += QString::number(value, format, digits) + QLatin1Char(',');
        texts.values.append(value);
    }
    texts.latin1 = texts.text.toStdString();
    return texts;
}

void setCharacters(benchmark::State &state, int charactersPerRun)
{
    state.SetBytesProcessed(state.iterations() * charactersPerRun);
}

void readPeer(benchmark::State &state, const NumberTexts &texts)
{
    for (auto _ : state) {
        double sum = 0;
        for (int begin = 0; begin < texts.text.size();) {
            const int end = texts.text.indexOf(QLatin1Char(','), begin);
            sum +=
                texts.text.mid(begin, end - begin).toDouble(); // QString's is the peer. clazy:exclude=qstring-ref
            begin = end + 1;
        }
        benchmark::DoNotOptimize(sum);
    }
    setCharacters(state, texts.text.size());
}

void readFromChars(benchmark::State &state, const NumberTexts &texts)
{
    for (auto _ : state) {
        double sum = 0;
        const char *end = texts.latin1.data() + texts.latin1.size();
        for (const char *at = texts.latin1.data(); at < end; ++at) {
            double value = 0;
            at = std::from_chars(at, end, value).ptr;
            sum += value;
        }
        benchmark::DoNotOptimize(sum);
    }
    setCharacters(state, texts.text.size());
}

void readToDouble(benchmark::State &state, const NumberTexts &texts)
{
    for (auto _ : state) {
        double sum = 0;
        for (const QChar *at = texts.text.constData(); !at->isNull(); ++at)
            sum += toDouble(at);
        benchmark::DoNotOptimize(sum);
    }
    setCharacters(state, texts.text.size());
}

void readList(benchmark::State &state, const NumberTexts &texts)
{
    Shape shape;
    for (auto _ : state) {
        const QChar *at = texts.text.constData();
        benchmark::DoNotOptimize(shape.parseNumbersList(at));
    }
    setCharacters(state, texts.text.size());
}

void writePeer(benchmark::State &state, const NumberTexts &texts)
{
    int size = 0;
    for (auto _ : state) {
        QString text;
        for (const double value : texts.values)
            text += QStringLiteral(",%1").arg(value, 0, 'g', -1);
        size = text.size();
    }
    setCharacters(state, size);
}

void writeList(benchmark::State &state, const NumberTexts &texts)
{
    Shape shape;
    int size = 0;
    for (auto _ : state)
        size = shape.numbersToString(texts.values).size();
    setCharacters(state, size);
}

const QString stretchedPiece = QStringLiteral("h12.5v-7l3,4z");
constexpr int lengthBegin = 1;
constexpr int lengthEnd = 5;

QString pathOf(int pieces)
{
    return QLatin1String("M0,0") + stretchedPiece.repeated(pieces);
}

/// Lower bound: reads the lengths at known positions by QString::toDouble and writes them by QString::number.
void stretchPeer(benchmark::State &state, int pieces)
{
    const QString path = pathOf(pieces);
    for (auto _ : state) {
        QString result = path.left(4);
        for (int begin = 4; begin < path.size(); begin += stretchedPiece.size()) {
            const double length = path.midRef(begin + lengthBegin, lengthEnd - lengthBegin).toDouble();
            result += path.midRef(begin, lengthBegin);
            result += QString::number(length + 2, 'g', 6);
            result += path.midRef(begin + lengthEnd, stretchedPiece.size() - lengthEnd);
        }
        benchmark::DoNotOptimize(result);
    }
    setCharacters(state, path.size());
}

/// Stretches all widths of the path.
void stretch(benchmark::State &state, int pieces)
{
    const QString path = pathOf(pieces);
    Shape shape;
    for (auto _ : state)
        benchmark::DoNotOptimize(shape.changePathWidth(path, 2, 0));
    setCharacters(state, path.size());
}

} // namespace

void registerPathTextBenchmarks()
{
    static const NumberTexts cases[] = {makeTexts("short", 100, 'f', 1), makeTexts("six-digits", 1000, 'g', 6),
                                        makeTexts("long", 1000, 'g', 15)};
    for (const NumberTexts &texts : cases) {
        const auto add = [&texts](const std::string &name,
                                  void (*function)(benchmark::State &, const NumberTexts &)) {
            benchmark::RegisterBenchmark((name + "/" + texts.name).c_str(), function, texts);
        };
        add("number-text/peer", readPeer);
        add("number-text/from_chars", readFromChars);
        add("number-text/toDouble", readToDouble);
        add("number-text/list", readList);
        add("number-writing/peer", writePeer);
        add("number-writing/list", writeList);
    }
    for (const int pieces : {100, 10000}) {
        const std::string name = "/" + std::to_string(pieces) + "-pieces";
        benchmark::RegisterBenchmark(("path-stretching/peer" + name).c_str(), stretchPeer, pieces);
        benchmark::RegisterBenchmark(("path-stretching/gliololok" + name).c_str(), stretch, pieces);
    }
}
