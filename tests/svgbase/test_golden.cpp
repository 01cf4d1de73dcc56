// Runs the cases of the folder "golden": each is an SVG file, drawn as a viewer shows it, with expectations beside
// it. golden/README.md describes them.

#include "svgbase/goldencases.h"
#include "svgbase/svgdrawing.h"

#include <support/listed.h>

#include <QtCore/QDir>
#include <QtCore/QRegularExpression>
#include <QtTest>

#include <optional>

namespace {

using Messages = QVector<QZeSvgTinyDocument::Message>;

struct Probe
{
    int line = 0;
    QPoint place;
    QColor color;
};

/// Contents of an ".expect" file.
struct Expectations
{
    QSize size{100, 100};
    int tolerance = 0;
    bool refused = false;
    /// Moment of the animation that is drawn, seconds.
    std::optional<double> time;
    QVector<Probe> probes;
    QStringList messages;
    QStringList problems;
};

// #rrggbb, #rrggbbaa or "none"; alpha is last, as in SVG and unlike in QColor.
QColor probeColor(const QString &text)
{
    if (text == QLatin1String("none"))
        return QColor(0, 0, 0, 0);
    static const QRegularExpression pattern(QStringLiteral("^#([0-9a-f]{6})([0-9a-f]{2})?$"));
    const QRegularExpressionMatch match = pattern.match(text);
    if (!match.hasMatch())
        return QColor();
    QColor color(QLatin1Char('#') + match.captured(1));
    if (!match.captured(2).isEmpty())
        color.setAlpha(match.captured(2).toInt(nullptr, 16));
    return color;
}

bool readProbe(const QStringList &words, int line, Expectations *expected)
{
    bool okX = false;
    bool okY = false;
    const Probe probe{line, QPoint(words.value(0).toInt(&okX), words.value(1).toInt(&okY)),
                      probeColor(words.value(2))};
    const bool complete = words.size() == 3 || words.value(3) == QLatin1String("//");
    if (!okX || !okY || !probe.color.isValid() || !complete)
        return false;
    expected->probes.append(probe);
    return true;
}

bool readLine(const QString &text, int line, Expectations *expected)
{
    const QStringList words = text.simplified().split(QLatin1Char(' '));
    if (text.trimmed().isEmpty() || words.first() == QLatin1String("//"))
        return true;
    if (words.first() == QLatin1String("size"))
        expected->size = QSize(words.value(1).toInt(), words.value(2).toInt());
    else if (words.first() == QLatin1String("tolerance"))
        expected->tolerance = words.value(1).toInt();
    else if (words.first() == QLatin1String("time"))
        expected->time = words.value(1).toDouble();
    else if (words.first() == QLatin1String("message"))
        expected->messages.append(text.simplified().mid(8));
    else if (words.first() == QLatin1String("refused"))
        expected->refused = true;
    else
        return readProbe(words, line, expected);
    return true;
}

Expectations readExpectations(const QString &name)
{
    Expectations expected;
    const QStringList lines = QString::fromUtf8(goldencases::contents(name)).split(QLatin1Char('\n'));
    for (int i = 0; i < lines.size(); ++i)
        if (!readLine(lines.at(i), i + 1, &expected))
            expected.problems.append(QStringLiteral("line %1 is not understood: %2").arg(i + 1).arg(lines.at(i)));
    return expected;
}

QImage fittedPicture(QZeSvgTinyDocument &document, const QSize &size)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    document.drawFitted(&painter, image.rect());
    return image;
}

QString hex(const QColor &color)
{
    if (color.alpha() == 0)
        return QStringLiteral("none");
    return color.name() + QStringLiteral("%1").arg(color.alpha(), 2, 16, QLatin1Char('0'));
}

bool isClose(const QColor &a, const QColor &b, int tolerance)
{
    if (a.alpha() == 0 && b.alpha() == 0)
        return true;
    return qAbs(a.red() - b.red()) <= tolerance && qAbs(a.green() - b.green()) <= tolerance &&
           qAbs(a.blue() - b.blue()) <= tolerance && qAbs(a.alpha() - b.alpha()) <= tolerance;
}

QStringList wrongProbes(const QImage &image, const Expectations &expected)
{
    QStringList wrong;
    for (const Probe &probe : expected.probes) {
        const QColor found = image.valid(probe.place) ? image.pixelColor(probe.place) : QColor();
        if (!isClose(found, probe.color, expected.tolerance))
            wrong.append(QStringLiteral("line %1: (%2, %3) is %4, expected %5")
                             .arg(probe.line)
                             .arg(probe.place.x())
                             .arg(probe.place.y())
                             .arg(hex(found), hex(probe.color)));
    }
    return wrong;
}

// A message is expected as "line:column severity text", the text as a part of it.
bool isThere(const Messages &messages, const QString &expected)
{
    return std::any_of(messages.begin(), messages.end(), [&](const QZeSvgTinyDocument::Message &message) {
        const bool error = message.severity == QZeSvgTinyDocument::Message::Error;
        const QString place = QStringLiteral("%1:%2 %3 ")
                                  .arg(message.line)
                                  .arg(message.column)
                                  .arg(error ? QLatin1String("error") : QLatin1String("warning"));
        return expected.startsWith(place) && message.text.contains(expected.mid(place.size()));
    });
}

QString described(const Messages &messages)
{
    QString text;
    for (const QZeSvgTinyDocument::Message &message : messages)
        text += QStringLiteral("\n  %1:%2 %3").arg(message.line).arg(message.column).arg(message.text);
    return text;
}

bool isBlank(const QImage &image)
{
    QImage blank(image.size(), image.format());
    blank.fill(Qt::transparent);
    return image == blank;
}

/// The largest difference of any channel of any pixel.
int difference(const QImage &a, const QImage &b)
{
    int largest = 0;
    for (int y = 0; y < a.height(); ++y) {
        for (int x = 0; x < a.width(); ++x) {
            const QRgb p = a.pixel(x, y);
            const QRgb q = b.pixel(x, y);
            largest = qMax(largest, qAbs(qRed(p) - qRed(q)));
            largest = qMax(largest, qAbs(qGreen(p) - qGreen(q)));
            largest = qMax(largest, qAbs(qBlue(p) - qBlue(q)));
            largest = qMax(largest, qAbs(qAlpha(p) - qAlpha(q)));
        }
    }
    return largest;
}

// Pictures of failed cases can be looked at afterwards.
QString kept(const QImage &image, const QString &name)
{
    QDir().mkpath(QStringLiteral(FAILURE_DIR));
    QString path = QStringLiteral(FAILURE_DIR "/") + name + QStringLiteral(".png");
    image.save(path);
    return path;
}

} // namespace

class TestGolden : public QObject
{
    Q_OBJECT

private slots:
    void looksAsExpected_data();
    void looksAsExpected();
    void looksTheSame_data();
    void looksTheSame();
    void momentsLookTheSameHoweverTheyAreReached_data();
    void momentsLookTheSameHoweverTheyAreReached();
    void everyCaseExpectsSomething_data();
    void everyCaseExpectsSomething();
    void everyCaseHasANameOfItsOwn();
};

void TestGolden::looksAsExpected_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &file : support::listed(goldencases::namesWith(QStringLiteral(".expect")))) {
        const QString name = goldencases::caseOf(file);
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestGolden::looksAsExpected()
{
    QFETCH(QString, name);
    const Expectations expected = readExpectations(name + QStringLiteral(".expect"));
    QVERIFY2(expected.problems.isEmpty(), qPrintable(expected.problems.join(QLatin1Char('\n'))));
    Messages messages;
    const DocumentPointer document(
        QZeSvgTinyDocument::load(goldencases::contents(name + QStringLiteral(".svg")), &messages));
    QVERIFY2(bool(document) != expected.refused, qPrintable(described(messages)));
    for (const QString &message : expected.messages)
        QVERIFY2(isThere(messages, message), qPrintable(message + described(messages)));
    if (expected.refused)
        return;
    if (expected.time)
        document->setAnimationTime(*expected.time);
    const QImage image = fittedPicture(*document, expected.size);
    const QStringList wrong = wrongProbes(image, expected);
    if (!wrong.isEmpty())
        QFAIL(qPrintable(wrong.join(QLatin1Char('\n')) + QLatin1Char('\n') + kept(image, name)));
}

void TestGolden::looksTheSame_data()
{
    QTest::addColumn<QString>("name");
    for (const QString &file : support::listed(goldencases::namesWith(QStringLiteral(".same.svg")))) {
        const QString name = goldencases::caseOf(file);
        QTest::newRow(qPrintable(name)) << name;
    }
}

void TestGolden::looksTheSame()
{
    QFETCH(QString, name);
    const Expectations expected = readExpectations(name + QStringLiteral(".expect"));
    const DocumentPointer first(QZeSvgTinyDocument::load(goldencases::contents(name + QStringLiteral(".svg"))));
    const DocumentPointer second(
        QZeSvgTinyDocument::load(goldencases::contents(name + QStringLiteral(".same.svg"))));
    QVERIFY(first && second);
    if (expected.time)
        first->setAnimationTime(*expected.time);
    const QImage a = fittedPicture(*first, expected.size);
    const QImage b = fittedPicture(*second, expected.size);
    QVERIFY(!isBlank(b));
    const int found = difference(a, b);
    if (found > expected.tolerance)
        QFAIL(qPrintable(QStringLiteral("The pictures differ by %1:\n%2\n%3")
                             .arg(found)
                             .arg(kept(a, name), kept(b, name + QStringLiteral(".same")))));
}

void TestGolden::momentsLookTheSameHoweverTheyAreReached_data()
{
    QTest::addColumn<QString>("name");
    QTest::addColumn<double>("time");
    for (const QString &file : support::listed(goldencases::namesWith(QStringLiteral(".expect")))) {
        const std::optional<double> time = readExpectations(file).time;
        const QString name = goldencases::caseOf(file);
        if (time)
            QTest::newRow(qPrintable(name)) << name << *time;
    }
}

void TestGolden::momentsLookTheSameHoweverTheyAreReached()
{
    QFETCH(QString, name);
    QFETCH(double, time);
    const QByteArray text = goldencases::contents(name + QStringLiteral(".svg"));
    const QSize size(100, 100);
    const DocumentPointer direct(QZeSvgTinyDocument::load(text));
    direct->setAnimationTime(time);
    const QImage expected = fittedPicture(*direct, size);
    const DocumentPointer wandering(QZeSvgTinyDocument::load(text));
    for (const double moment : {0.0, time * 3, time / 3, time * 0.9, time * 40, time}) {
        wandering->setAnimationTime(moment);
        fittedPicture(*wandering, size);
    }
    QCOMPARE(fittedPicture(*wandering, size), expected);
    // A change that is taken back makes it all be worked out anew.
    wandering->setAttribute(QStringLiteral("opacity"), QStringLiteral("0.5"));
    fittedPicture(*wandering, size);
    wandering->setAttribute(QStringLiteral("opacity"), QString());
    QCOMPARE(fittedPicture(*wandering, size), expected);
    const DocumentPointer copy(static_cast<QZeSvgTinyDocument *>(wandering->clone()));
    copy->setAnimationTime(time);
    QCOMPARE(fittedPicture(*copy, size), expected);
}

void TestGolden::everyCaseExpectsSomething_data()
{
    QTest::addColumn<QString>("name");
    const QStringList names = goldencases::all();
    QVERIFY(!names.isEmpty());
    for (const QString &name : names)
        QTest::newRow(qPrintable(name)) << name;
}

void TestGolden::everyCaseExpectsSomething()
{
    QFETCH(QString, name);
    const Expectations expected = readExpectations(name + QStringLiteral(".expect"));
    const bool paired = goldencases::exists(name + QStringLiteral(".same.svg"));
    QVERIFY(paired || expected.refused || !expected.probes.isEmpty());
}

void TestGolden::everyCaseHasANameOfItsOwn()
{
    QCOMPARE(goldencases::namesInSeveralFolders(), QStringList());
}

QTEST_MAIN(TestGolden)
#include "test_golden.moc"
