// Draws the golden cases with Qt's SVG module, too, and writes a page of all that look different, with the rule
// that decides: comparison/index.html in the build folder. comparisonrules.txt has the rules.

#include "svgbase/comparisonpage.h"
#include "svgbase/comparisonrules.h"
#include "svgbase/goldencases.h"

#include <svgbase/qzesvgtinydocument.h>

#include <QtCore/QFile>
#include <QtGui/QPainter>
#include <QtSvg/QSvgRenderer>
#include <QtTest>

#include <memory>

namespace {

const QSize size(100, 100);

/// Channels that differ less are a matter of antialiasing, and so are a few pixels.
constexpr int smallDifference = 64;
constexpr int fewPixels = 8;
constexpr int framesPerSecond = 1000;

QImage blank()
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// The moment that a case is drawn at, seconds.
double momentOf(const QString &name)
{
    const QStringList lines =
        QString::fromUtf8(goldencases::contents(name + QStringLiteral(".expect"))).split(QLatin1Char('\n'));
    for (const QString &line : lines)
        if (line.startsWith(QLatin1String("time ")))
            return line.midRef(5).toDouble();
    return 0;
}

QImage ownPicture(const QByteArray &text, double moment)
{
    QImage image = blank();
    const std::unique_ptr<QZeSvgTinyDocument> document(QZeSvgTinyDocument::load(text));
    if (!document)
        return image;
    if (moment > 0)
        document->setAnimationTime(moment);
    QPainter painter(&image);
    document->drawFitted(&painter, image.rect());
    return image;
}

QImage peerPicture(const QByteArray &text, double moment)
{
    QImage image = blank();
    QSvgRenderer renderer(text);
    if (!renderer.isValid())
        return image;
    renderer.setAspectRatioMode(Qt::KeepAspectRatio);
    renderer.setFramesPerSecond(framesPerSecond);
    renderer.setCurrentFrame(int(moment * framesPerSecond));
    QPainter painter(&image);
    renderer.render(&painter, image.rect());
    return image;
}

bool differ(QRgb a, QRgb b)
{
    return qAbs(qRed(a) - qRed(b)) > smallDifference || qAbs(qGreen(a) - qGreen(b)) > smallDifference ||
           qAbs(qBlue(a) - qBlue(b)) > smallDifference || qAbs(qAlpha(a) - qAlpha(b)) > smallDifference;
}

bool looksDifferent(const QImage &a, const QImage &b)
{
    int count = 0;
    for (int y = 0; y < a.height(); ++y)
        for (int x = 0; x < a.width(); ++x)
            count += differ(a.pixel(x, y), b.pixel(x, y));
    return count > fewPixels;
}

} // namespace

class TestComparison : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void differenceHasItsRule_data();
    void differenceHasItsRule();
    void everyRuleDecidesSomething();
    void cleanupTestCase();

private:
    ComparisonRules m_rules;
    ComparisonPage m_page{QStringLiteral(PAGE_DIR)};
};

void TestComparison::initTestCase()
{
    m_rules = readComparisonRules(QStringLiteral(RULES_FILE));
    QVERIFY2(m_rules.problems().isEmpty(), qPrintable(m_rules.problems().join(QLatin1Char('\n'))));
}

void TestComparison::differenceHasItsRule_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = goldencases::all();
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void TestComparison::differenceHasItsRule()
{
    QFETCH(QString, name);
    const QByteArray text = goldencases::contents(name + QStringLiteral(".svg"));
    const double moment = momentOf(name);
    const QImage own = ownPicture(text, moment);
    const QImage peer = peerPicture(text, moment);
    if (!looksDifferent(own, peer))
        return;
    const ComparisonRule *rule = m_rules.take(name);
    QVERIFY2(rule, "The pictures differ, and no rule says which is right");
    QVERIFY(m_page.add(name, own, peer, *rule));
}

void TestComparison::everyRuleDecidesSomething()
{
    QCOMPARE(m_rules.unused(), QStringList());
}

void TestComparison::cleanupTestCase()
{
    QVERIFY(m_page.count() > 0);
    QVERIFY(m_page.write());
    QVERIFY(QFile::exists(QStringLiteral(PAGE_DIR "/index.html")));
}

QTEST_MAIN(TestComparison)
#include "test_comparison.moc"
