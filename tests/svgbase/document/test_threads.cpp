#include "svgbase/svgdrawing.h"

#include <QtTest>

#include <thread>
#include <vector>

// Documents share what their texts have in common, also between threads; each is used by one thread at a time.
class TestThreads : public QObject
{
    Q_OBJECT

private slots:
    void documentsOfOneTextInManyThreads();
    void aDocumentMayMoveBetweenThreads();
};

namespace {

const QString content = QStringLiteral(
    "<linearGradient id='g'><stop stop-color='red'/><stop offset='1' stop-color='blue'/></linearGradient>"
    "<g opacity='.5'><rect id='r' width='50' height='80' fill='url(#g)' stroke='black' stroke-dasharray='4 2'/>"
    "<path d='M10 10C90 10 90 90 10 90z' fill='lime'/></g><text x='5' y='95' font-size='20'>Text</text>"
    "<rect id='control_1' width='8' height='8'/>");

QImage drawnChanged(QZeSvgTinyDocument &document, int step)
{
    document.namedNode("r")->setNumericAttribute("x", step);
    document.setAllStrokeWidth(1 + step % 3);
    document.setSelectionState(1);
    return drawn(document, QSize(90, 60), true);
}

} // namespace

void TestThreads::documentsOfOneTextInManyThreads()
{
    constexpr int rounds = 25;
    QVector<QImage> expected;
    for (int i = 0; i < rounds; ++i)
        expected.append(drawnChanged(*loadContent(content), i));
    std::atomic<int> different{0};
    const auto work = [&] {
        for (int i = 0; i < rounds; ++i) {
            // A text of its own for every round, so that threads also meet while it is resolved.
            const DocumentPointer document = loadContent(content + QStringLiteral("<!--%1-->").arg(i));
            if (drawnChanged(*document, i) != expected.at(i))
                ++different;
        }
    };
    constexpr int threadCount = 4;
    std::vector<std::thread> threads;
    threads.reserve(threadCount);
    for (int i = 0; i < threadCount; ++i)
        threads.emplace_back(work);
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(different.load(), 0);
}

void TestThreads::aDocumentMayMoveBetweenThreads()
{
    const DocumentPointer document = loadContent(content);
    const QImage expected = drawnChanged(*document, 3);
    QImage found;
    std::thread([&] { found = drawnChanged(*document, 3); }).join();
    QCOMPARE(found, expected);
}

QTEST_MAIN(TestThreads)
#include "test_threads.moc"
