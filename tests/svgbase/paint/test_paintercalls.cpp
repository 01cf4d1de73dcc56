#include "document/documentprivate.h"
#include "grammar/inputlimits.h"
#include "paint/displaylistcache.h"
#include "svgbase/svgdrawing.h"

#include <QtGui/QPaintEngine>
#include <QtTest>

// Calls of a painter by drawing: no more than the visible parts need.
class TestPainterCalls : public QObject
{
    Q_OBJECT

private slots:
    void neighboursOfTheSamePaintChangeItOnce();
    void neighboursOfOtherPaintChangeIt();
    void paintIsSetAgainBehindAViewport();
    void nothingOutsideOfTheTargetIsPainted();
    void nothingOutsideOfTheClipIsPainted();
    void keptDrawingsAreBounded();
};

namespace {

struct Calls
{
    int brushes = 0;
    int pens = 0;
    QVector<QRectF> paths;
    QVector<QColor> fills;
};

/// An engine that paints nothing and counts.
class CountingEngine : public QPaintEngine
{
public:
    explicit CountingEngine(Calls *calls)
        : QPaintEngine(AllFeatures)
        , m_calls(calls)
    {
    }
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    Type type() const override { return User; }
    void updateState(const QPaintEngineState &state) override
    {
        m_calls->brushes += state.state().testFlag(DirtyBrush);
        m_calls->pens += state.state().testFlag(DirtyPen);
        if (state.state().testFlag(DirtyBrush))
            m_brush = state.brush();
    }
    void drawPath(const QPainterPath &path) override
    {
        m_calls->paths.append(path.boundingRect());
        m_calls->fills.append(m_brush.color());
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}

private:
    Calls *m_calls;
    QBrush m_brush;
};

class CountingDevice : public QPaintDevice
{
public:
    CountingDevice()
        : m_engine(&calls)
    {
    }
    QPaintEngine *paintEngine() const override { return &m_engine; }
    Calls calls;

protected:
    int metric(PaintDeviceMetric metric) const override
    {
        switch (metric) {
        case PdmWidth:
        case PdmHeight:
            return 100;
        case PdmDpiX:
        case PdmDpiY:
        case PdmPhysicalDpiX:
        case PdmPhysicalDpiY:
            return 96;
        case PdmDevicePixelRatio:
            return 1;
        case PdmDevicePixelRatioScaled:
            return int(devicePixelRatioFScale());
        default:
            return 0;
        }
    }

private:
    mutable CountingEngine m_engine;
};

Calls callsOf(const QString &content, const QRect &clip = QRect())
{
    const DocumentPointer document = loadContent(content);
    CountingDevice device;
    QPainter painter(&device);
    if (clip.isValid())
        painter.setClipRect(clip);
    document->draw(&painter, QRectF(0, 0, 100, 100), 1, false);
    return device.calls;
}

constexpr int pictureSide = 256;

void drawUntilKept(QZeSvgTinyDocument &document)
{
    for (int i = 0; i < 3; ++i)
        drawn(document, QSize(pictureSide, pictureSide));
}

int keptBytes(QZeSvgTinyDocument &document)
{
    const void *owner = DocumentPrivate::of(&document);
    std::unique_ptr<Svg::DisplayList> list = Svg::DisplayListCache::take(owner);
    const int bytes = list->weight();
    Svg::DisplayListCache::keep(owner, std::move(list));
    return bytes;
}

} // namespace

void TestPainterCalls::neighboursOfTheSamePaintChangeItOnce()
{
    const QString path = QStringLiteral("<path d='M10 10v50h2' fill='red' stroke='blue'/>");
    const Calls one = callsOf(path);
    const Calls twenty = callsOf(path.repeated(20));
    QCOMPARE(one.paths.size(), 1);
    QCOMPARE(twenty.paths.size(), 20);
    QCOMPARE(twenty.brushes, one.brushes);
    QCOMPARE(twenty.pens, one.pens);
}

void TestPainterCalls::neighboursOfOtherPaintChangeIt()
{
    const QString red = QStringLiteral("<path d='M1 1h5v5' fill='red'/>");
    const Calls one = callsOf(red);
    const Calls three = callsOf(red + "<path d='M9 9h5v5' fill='blue'/>"
                                      "<path d='M20 20h5v5' fill='blue' stroke='lime'/>");
    QCOMPARE(three.fills, (QVector<QColor>{QColor("red"), QColor("blue"), QColor("blue")}));
    QCOMPARE(three.brushes, one.brushes + 1);
    QCOMPARE(three.pens, one.pens + 1);
}

void TestPainterCalls::paintIsSetAgainBehindAViewport()
{
    const Calls calls = callsOf("<path d='M1 1h5v5' fill='red'/><svg x='10' y='10' width='20' height='20'>"
                                "<path d='M1 1h50v5' fill='blue'/></svg><path d='M50 50h5v5' fill='blue'/>");
    QCOMPARE(calls.fills, (QVector<QColor>{QColor("red"), QColor("blue"), QColor("blue")}));
}

void TestPainterCalls::nothingOutsideOfTheTargetIsPainted()
{
    const Calls calls = callsOf("<rect x='-50' width='20' height='20'/><rect x='40' y='40' width='20' height='20'/>"
                                "<rect y='200' width='20' height='20'/>");
    QCOMPARE(calls.paths, QVector<QRectF>{QRectF(40, 40, 20, 20)});
}

void TestPainterCalls::nothingOutsideOfTheClipIsPainted()
{
    const QString content = QStringLiteral("<rect x='10' y='10' width='20' height='20'/>"
                                           "<rect x='60' y='60' width='20' height='20'/>");
    QCOMPARE(callsOf(content).paths.size(), 2);
    QCOMPARE(callsOf(content, QRect(50, 50, 50, 50)).paths, QVector<QRectF>{QRectF(60, 60, 20, 20)});
    QCOMPARE(callsOf(content, QRect(40, 0, 10, 100)).paths, QVector<QRectF>());
}

void TestPainterCalls::keptDrawingsAreBounded()
{
    constexpr int pictureBytes = pictureSide * pictureSide * 4;
    constexpr int tooMany = Svg::Limits::displayListBytes / pictureBytes + 1;
    std::vector<DocumentPointer> documents;
    for (int i = 0; i < tooMany; ++i) {
        documents.push_back(
            loadContent(QStringLiteral("<rect width='100' height='100' fill='#%1'/>").arg(0x100000 + i, 6, 16)));
        drawUntilKept(*documents.back());
        if (i == 0)
            QVERIFY(keptBytes(*documents.front()) >= pictureBytes);
    }
    QVERIFY(keptBytes(*documents.back()) >= pictureBytes);
    QVERIFY(keptBytes(*documents.front()) < pictureBytes);
    qint64 all = 0;
    for (const DocumentPointer &document : documents)
        all += keptBytes(*document);
    QVERIFY(all <= Svg::Limits::displayListBytes + tooMany * qint64(sizeof(Svg::DisplayList)));
}

QTEST_MAIN(TestPainterCalls)
#include "test_paintercalls.moc"
