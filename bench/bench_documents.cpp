// Saving and opening pages of many shapes in both formats. The peers write and read records of the same fields with
// QDataStream and QJsonDocument alone, without any objects.

#include "pageobjects.h"

#include <pagehost/application.h>
#include <pagehost/documentfile.h>
#include <pagehost/objectregistry.h>
#include <pagehost/page.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonArray>
#include <QtCore/QJsonDocument>
#include <QtGui/QColor>

#include <benchmark/benchmark.h>

#include <malloc.h>

#include <fstream>
#include <string>

using namespace pagehost;

namespace {

const QSizeF objectSize(32, 32);
constexpr int columns = 300;
constexpr double spacing = 40;
constexpr int largestCount = 100000; ///< measured once because it takes long
constexpr int pointCount = 3;        ///< control points of a shape, on average

/// Contents of a file for a typical shape.
struct Record
{
    QString kind, name;
    qint32 numbers[8];
    double values[9 + 2 * pointCount];
    bool flags[11];
    quint32 colors[3];
    QColor pen;
};

QDataStream &operator<<(QDataStream &out, const Record &record)
{
    out << record.kind << record.name << record.pen;
    for (const qint32 number : record.numbers)
        out << number;
    for (const double value : record.values)
        out << value;
    for (const bool flag : record.flags)
        out << flag;
    for (const quint32 color : record.colors)
        out << color;
    return out;
}

QDataStream &operator>>(QDataStream &in, Record &record)
{
    in >> record.kind >> record.name >> record.pen;
    for (qint32 &number : record.numbers)
        in >> number;
    for (double &value : record.values)
        in >> value;
    for (bool &flag : record.flags)
        in >> flag;
    for (quint32 &color : record.colors)
        in >> color;
    return in;
}

Record recordOf(int index)
{
    Record record{};
    record.kind = QStringLiteral("shapes.polygon");
    record.pen = QColor(Qt::red);
    int place = index;
    for (double &value : record.values)
        value = ++place * 0.7;
    return record;
}

double heapBytes()
{
    const auto info = mallinfo2();
    return double(info.uordblks) + double(info.hblkhd);
}

std::unique_ptr<Document> documentOf(int count)
{
    auto document = std::make_unique<Document>();
    setCurrentDocument(document.get());
    Page *page = document->appendPage(QSizeF(20000, 20000));
    const QStringList kinds = shapeKinds();
    QVector<CBaseObject *> objects;
    for (int i = 0; i < count; ++i) {
        CBaseObject *object = makeShape(kinds[i % kinds.size()], objectSize).release();
        object->setPos(QPointF((i % columns) * spacing, (i / columns) * spacing), false);
        objects.append(object);
    }
    page->appendObjects(objects);
    return document;
}

/// The document of the last requested size, kept because creating it takes longer than the measured work.
std::unique_ptr<Document> &sharedDocument(int count)
{
    static std::unique_ptr<Document> document;
    static int present = 0;
    if (present != count || !document) {
        document.reset();
        document = documentOf(count);
        present = count;
    }
    return document;
}

/// The document of that size as a file. The document itself is released: small machines can't hold two of the
/// largest size.
QByteArray fileOf(int count, DocumentFormat format)
{
    std::unique_ptr<Document> &document = sharedDocument(count);
    QByteArray bytes = encodeDocument(*document, format);
    document.reset();
    return bytes;
}

/// A line of /proc/self/status, bytes; 0 where there is no such file.
double processStatus(const std::string &name)
{
    std::ifstream status("/proc/self/status");
    std::string line;
    while (std::getline(status, line))
        if (line.compare(0, name.size(), name) == 0)
            return std::stod(line.substr(name.size() + 1)) * 1024;
    return 0;
}

/// Resets "VmHWM", the peak memory of the process.
void forgetPeak()
{
    std::ofstream("/proc/self/clear_refs") << "5";
}

void tellSize(benchmark::State &state, const QByteArray &bytes, int count)
{
    state.counters["bytes each"] = double(bytes.size()) / count;
    state.counters["MB"] = double(bytes.size()) / 1e6;
    state.SetBytesProcessed(state.iterations() * bytes.size());
    state.SetItemsProcessed(state.iterations() * count);
}

void save(benchmark::State &state, int count, DocumentFormat format)
{
    Document &document = *sharedDocument(count);
    QByteArray bytes;
    for (auto _ : state)
        bytes = encodeDocument(document, format);
    tellSize(state, bytes, count);
}

void open(benchmark::State &state, int count, DocumentFormat format)
{
    const QByteArray bytes = fileOf(count, format);
    malloc_trim(0);
    for (auto _ : state) {
        const double before = heapBytes();
        forgetPeak();
        const double resident = processStatus("VmRSS");
        OpenResult opened = decodeDocument(bytes, shapeRegistry());
        const double pictures = count * objectSize.width() * objectSize.height() * 4;
        state.counters["KB each"] = (heapBytes() - before - pictures) / count / 1024;
        state.counters["peak KB each"] = (processStatus("VmHWM") - resident - pictures) / count / 1024;
        state.PauseTiming();
        opened.document.reset();
        state.ResumeTiming();
    }
    tellSize(state, bytes, count);
}

QByteArray streamOf(int count)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    for (int i = 0; i < count; ++i)
        out << recordOf(i);
    return bytes;
}

void saveStreamPeer(benchmark::State &state, int count)
{
    QByteArray bytes;
    for (auto _ : state)
        bytes = streamOf(count);
    tellSize(state, bytes, count);
}

void openStreamPeer(benchmark::State &state, int count)
{
    const QByteArray bytes = streamOf(count);
    for (auto _ : state) {
        QDataStream in(bytes);
        std::vector<Record> records{std::size_t(count)};
        for (Record &record : records)
            in >> record;
        benchmark::DoNotOptimize(records.data());
    }
    tellSize(state, bytes, count);
}

using Members = QVector<QPair<QString, QJsonValue>>;

/// The members written by real shapes, one entry per kind.
QVector<Members> memberLists()
{
    QVector<Members> lists;
    const QStringList kinds = shapeKinds();
    for (const QString &kind : kinds) {
        QJsonObject object;
        makeShape(kind, objectSize)->saveJson(object);
        Members members;
        for (auto member = object.begin(); member != object.end(); ++member)
            members.append({member.key(), member.value()});
        lists.append(members);
    }
    return lists;
}

QByteArray jsonOf(int count)
{
    static const QVector<Members> lists = memberLists();
    QJsonArray array;
    for (int i = 0; i < count; ++i) {
        QJsonObject data;
        for (const auto &member : lists[i % lists.size()])
            data.insert(member.first, member.second);
        array.append(QJsonObject{{QStringLiteral("kind"), QStringLiteral("shapes.polygon")},
                                 {QStringLiteral("data"), data}});
    }
    return QJsonDocument(array).toJson();
}

void saveJsonPeer(benchmark::State &state, int count)
{
    QByteArray bytes;
    for (auto _ : state)
        bytes = jsonOf(count);
    tellSize(state, bytes, count);
}

void openJsonPeer(benchmark::State &state, int count)
{
    const QByteArray bytes = jsonOf(count);
    for (auto _ : state) {
        const QJsonArray array = QJsonDocument::fromJson(bytes).array();
        double sum = 0;
        for (const QJsonValue &value : array) {
            const QJsonObject data = value.toObject().value(QLatin1String("data")).toObject();
            for (auto member = data.begin(); member != data.end(); ++member)
                sum += member.value().toDouble();
        }
        benchmark::DoNotOptimize(sum);
    }
    tellSize(state, bytes, count);
}

} // namespace

void registerDocumentBenchmarks()
{
    const auto add = [](const char *figure, auto peer, auto own) {
        for (const int count : {1000, 10000, largestCount}) {
            const std::string number = std::to_string(count);
            for (benchmark::internal::Benchmark *line :
                 {benchmark::RegisterBenchmark((figure + ("/peer/" + number)).c_str(), peer, count),
                  benchmark::RegisterBenchmark((figure + ("/gliololok/" + number)).c_str(), own, count)}) {
                line->Unit(benchmark::kMillisecond);
                if (count == largestCount)
                    line->Iterations(1);
            }
        }
    };
    const auto saveAs = [](DocumentFormat format) {
        return [format](benchmark::State &state, int count) { save(state, count, format); };
    };
    const auto openAs = [](DocumentFormat format) {
        return [format](benchmark::State &state, int count) { open(state, count, format); };
    };
    add("save-binary", saveStreamPeer, saveAs(DocumentFormat::Binary));
    add("save-json", saveJsonPeer, saveAs(DocumentFormat::Json));
    add("open-binary", openStreamPeer, openAs(DocumentFormat::Binary));
    add("open-json", openJsonPeer, openAs(DocumentFormat::Json));
}
