// Warnings about files that are shapes, but probably not as they were meant, and faults of drawing.

#include "shapefile.h"

#include <declared/core/declaredlook.h>
#include <declared/core/review.h>

#include <shapekit/shapeobject.h>

#include <QtTest/QtTest>

using namespace declared;

class TestReview : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void warningsStandWhereTheyAre_data();
    void warningsStandWhereTheyAre();
    void faultsOfDrawingStandWhereTheyAre_data();
    void faultsOfDrawingStandWhereTheyAre();
    void onlyTheFaultyElementIsLeftOut();
    void faultIsToldOnce();
    void examplesAndInstalledFilesAreFine_data();
    void examplesAndInstalledFilesAreFine();
    void fileGetsItsDeclaredLook_data();
    void fileGetsItsDeclaredLook();
    void soundFilesStayAsTheyAre_data() { examplesAndInstalledFilesAreFine_data(); }
    void soundFilesStayAsTheyAre();
};

namespace {

const QByteArray figure = "<path id='figure' stroke='#000' stroke-width='2' fill='#fff' d='M1 1H119V79H1Z'/>\n";

QStringList textsOf(const QVector<Message> &messages)
{
    QStringList texts;
    for (const Message &message : messages)
        texts.append(QStringLiteral("%1:%2 %3").arg(message.line).arg(message.column).arg(message.code));
    return texts;
}

/// All messages about a file: those of its reader, then those of the review.
QStringList saidAbout(const QByteArray &file)
{
    QVector<Message> messages;
    const SharedDeclaration shape = declaredtest::readOf(file, &messages);
    if (!shape)
        return {QStringLiteral("refused")};
    const ShapeKind kind(shape);
    return textsOf(messages + reviewed(kind, file));
}

QByteArray point(const char *attributes)
{
    return QByteArray("<rect id='control_1' x='56' y='36' width='8' height='8' ") + attributes + "/>";
}

} // namespace

void TestReview::warningsStandWhereTheyAre_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QStringList>("said");
    const auto row = [](const QByteArray &content, const char *said) {
        const QString text = QString::fromLatin1(said);
        QTest::newRow(content.constData())
            << QByteArray(figure + content) << (text.isEmpty() ? QStringList() : text.split(QLatin1String(", ")));
    };
    row("", "");
    row(point("shape:range-x='8 .. w - 8' shape:range-y='h / 2'"), "");
    row(point("shape:range-x='70 .. w' shape:range-y='h / 2'"), "4:1 C34");
    row(point("shape:place='point(w / 4, at.y)'"), "4:1 C34");
    row(point("shape:range-x='60 .. 50' shape:range-y='h / 2'"), "4:1 C34, 4:72 C36");
    row(point("shape:place='at + point(1, 0)'"), "4:1 C34, 4:1 C49");
    row("<path fill='none' stroke='#000' d='M3 3H50' shape:d='M3 3H{w / 2}'/>", "4:1 C35");
    row("<path fill='none' stroke='#000' d='M3 3H60' shape:d='M{w / 2} 3H3'/>", "");
    row("<path d='M3 3H60V9' shape:visible='w &lt; 100'/>", "4:1 C35");
    row("<circle cx='60' cy='40' r='9' shape:r='{w / 12}'/>", "4:1 C35");
    row("<text x='30' y='40' shape:text='{w}'>100</text>", "4:1 C35");
    row("<text x='30' y='40' shape:text='{w}'>120</text>", "");
    row("<text x='30' y='40' shape:x='{w / 2}' shape:text='{w}'>120</text>", "4:1 C35");
    row("<g shape:repeat='i in 0..2'><path d='M3 3H9V9' shape:d='M3 {3 + i}H9V9'/></g>", "4:18 C35");
    row("<g shape:repeat='i in 0..1'><path d='M3 3H9V9' shape:d='M3 {3 + i}H9V9'/><path d='M3 4H9V9'/></g>", "");
    row("<g shape:repeat='i in 0..1'><path d='M3 3H9V9' shape:d='M3 {3 + i}H9V9'/><path d='M3 7H9V9'/></g>",
        "4:29 C35");
    row("<shape:let name='half' value='w / 2'/>", "4:18 C46");
    row("<shape:let name='twice(v)' value='v * 2'/>", "4:18 C46");
    row("<shape:property name='hole' type='switch' value='no'/>", "4:23 C46");
    row("<shape:property name='hole' type='switch' value='no' title.de='Loch'/><shape:let name='a' value='hole'/>"
        "<path d='M3 3H60V9' shape:d='M3 3H{60 + a}V9'/>",
        "4:64 C48");
    row("<path d='M3 3H130V9Z' shape:d='M3 3H{w + 10}V9Z'/>", "4:1 C50");
    row("<rect id='control_1' x='126' y='36' width='8' height='8' shape:range-x='0 .. 2 * w'/>", "4:1 C50");
    row("<path d='M3 3Hx'/>", "4:15 C37");
    row("<polygon points='3 3 9'/>", "4:18 C37");
    row("<path d='M3 3H9' stroke-width='wide'/>", "4:32 C37");
    row("<style>@import 'other.css';</style>", "4:8 C37");
    row("<image href='picture.png' width='9' height='9'/>", "4:14 C45");
    row("<use href='other.svg#a'/>", "4:12 C45");
    row("<path d='M3 3H9' fill='url(other.svg#a)'/>", "4:24 C45");
    row("<path d='M3 3H9' style='fill:url(\"http://example.com/#a\")'/>", "4:25 C45");
    row("<image href='data:image/png;base64,iVBORw0KGgo=' width='9' height='9'/>", "4:14 C37");
    row("<linearGradient id='a'/><path d='M3 3H9' fill='url( \"#a\" )'/>", "");
    row("<g onclick='x()'/>", "4:13 C45");
    row("<script/><foreignObject/>", "4:1 C45, 4:10 C45");
}

void TestReview::warningsStandWhereTheyAre()
{
    QFETCH(QByteArray, content);
    QFETCH(QStringList, said);
    QCOMPARE(saidAbout(declaredtest::fileOf(content)), said);
    // A warning doesn't keep a shape away.
    QCOMPARE(saidAbout(declaredtest::fileOf("<path d='M0 0'/>")), QStringList({QStringLiteral("1:1 C52")}));
}

void TestReview::faultsOfDrawingStandWhereTheyAre_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("fault");
    const auto row = [](const QByteArray &content, const char *fault) {
        QTest::newRow(content.constData()) << QByteArray(figure + content) << QString::fromLatin1(fault);
    };
    row("<path shape:d='L{w} 3'/>", "4:16 C37");
    row("<path shape:d='M{w} 3 4'/>", "4:16 C37");
    row("<path shape:d='M3 3A5 5 0 2 1 {w} 9'/>", "4:16 C37");
    row("<path shape:d='M3 3J{w}'/>", "4:16 C37");
    row("<polygon points='1,1 2,2 3,1' shape:points='1 1 {w}'/>", "4:45 C37");
    row("<circle cx='60' cy='40' r='10' shape:r='{w}r'/>", "4:41 C37");
    row("<path d='M3 3H9V9' shape:fill='{w}'/>", "4:32 C37");
    row("<text shape:x='a{w}' shape:text='b'/>", "4:16 C37");
    row("<path shape:d='M{1 / (w - 120)} 3'/>", "4:16 C40");
    row("<path d='M3 3' shape:visible='sqrt(-w) &lt; 1'/>", "4:31 C40");
    row("<path shape:d='M{p[3].x} 3'/>", "4:16 C40");
    row(point("shape:range-x='8 .. w / (h - 80)' shape:range-y='h / 2'"), "4:72 C40");
    row("<path shape:d='M3 3{for i in 1..w * 100}H{i}{end}'/>", "4:16 C41");
    row("<g shape:repeat='i in 1..w * 10'><path d='M3 3'/></g>", "4:18 C41");
}

void TestReview::faultsOfDrawingStandWhereTheyAre()
{
    QFETCH(QByteArray, content);
    QFETCH(QString, fault);
    const QStringList said = saidAbout(declaredtest::fileOf(content));
    QCOMPARE(said.count(fault), 1);
    const QString code = fault.section(QLatin1Char(' '), 1);
    QCOMPARE(said.filter(code).size(), 1);
}

void TestReview::onlyTheFaultyElementIsLeftOut()
{
    const ShapeKind kind(declaredtest::readOf(declaredtest::fileOf(
        "<path id='bad' d='M3 3' shape:d='M{w}'/><path id='good' d='M3 3' shape:d='M{w} 4'/>")));
    shapekit::ShapeObject object(kind.kind());
    const QByteArray drawn = object.core()->toSvg();
    QVERIFY(drawn.contains("d=\"M120 4\""));
    QVERIFY(drawn.contains("id=\"bad\" d=\"M3 3\" keeps=\"stroke\" display=\"none\""));
    QCOMPARE(drawn.count("display=\"none\""), 1);
}

void TestReview::faultIsToldOnce()
{
    ShapeKind kind(declaredtest::readOf(declaredtest::fileOf("<path shape:d='M{w}'/>")));
    QStringList told;
    kind.setListener([&](const Message &message) { told.append(message.told(QStringLiteral("nut.shape.svg"))); });
    for (int i = 0; i < 2; ++i) {
        shapekit::ShapeObject object(kind.kind());
        object.core()->settleDrawing();
        object.setSize(QSizeF(200, 100), false, true);
        object.core()->settleDrawing();
    }
    QCOMPARE(told, QStringList({QStringLiteral("nut.shape.svg:3:16: warning C37: \"M120\" is no value of \"d\"")}));
}

void TestReview::examplesAndInstalledFilesAreFine_data()
{
    QTest::addColumn<QString>("path");
    for (const char *folder : {EXAMPLE_FOLDER, INSTALLED_FOLDER}) {
        const QFileInfoList files =
            QDir(QString::fromUtf8(folder)).entryInfoList({QStringLiteral("*.shape.svg")}, QDir::Files);
        QVERIFY(!files.isEmpty());
        for (const QFileInfo &file : files)
            QTest::newRow(qPrintable(file.filePath())) << file.filePath();
    }
}

void TestReview::examplesAndInstalledFilesAreFine()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    QVector<Message> messages;
    const SharedDeclaration shape = declaredtest::readOf(bytes, &messages);
    QVERIFY(shape);
    const ShapeKind kind(shape);
    QStringList told;
    const QVector<Message> all = messages + reviewed(kind, bytes);
    for (const Message &message : all)
        told.append(message.told(QFileInfo(path).fileName()));
    QVERIFY2(told.isEmpty(), qPrintable(told.join(QLatin1Char('\n'))));
}

void TestReview::fileGetsItsDeclaredLook_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("look");
    const auto row = [](const QByteArray &content, const QByteArray &look) {
        QTest::newRow(content.constData()) << content << look;
    };
    row("<path fill='none' stroke='#000' d='M0 0' shape:d='M3 3H{w / 2}'/> <!-- kept -->",
        "<path fill='none' stroke='#000' d='M3 3H60' shape:d='M3 3H{w / 2}'/> <!-- kept -->");
    row("<circle shape:r='{w / 12}' cx='60' cy='40'/>", "<circle r=\"10\" shape:r='{w / 12}' cx='60' cy='40'/>");
    row("<text x='9' y='40' shape:x='{w / 2}' shape:text='{w} &lt;'>100</text>",
        "<text x='60' y='40' shape:x='{w / 2}' shape:text='{w} &lt;'>120 &lt;</text>");
    row("<rect id='control_1' x='1' y='36' width='8' height='8' shape:range-x='w / 2' shape:range-y='h / 2'/>",
        "<rect id='control_1' x='56' y='36' width='8' height='8' shape:range-x='w / 2' shape:range-y='h / 2'/>");
    row("<g shape:repeat='i in 0..2'>\n  <path d='M3 3H9' stroke='#000' shape:d='M3 {3 + i}H9'/>\n</g>",
        "<g shape:repeat='i in 0..2'>\n  <path d='M3 3H9' stroke='#000' shape:d='M3 {3 + i}H9'/>\n"
        "  <path d='M3 4H9' stroke='#000'/>\n  <path d='M3 5H9' stroke='#000'/>\n</g>");
    row("<g shape:repeat='i in 0..0'><text x='9' y='40' shape:text='{i}'>5</text><text>6</text></g>",
        "<g shape:repeat='i in 0..0'><text x='9' y='40' shape:text='{i}'>0</text></g>");
    row("<g shape:repeat='i in 0..1'>\n <g id='one'><path\n  shape:d='M3 {i}H9' stroke='#000'/><text shape:x='{i}' "
        "x='7' "
        "shape:text='{i + 5}'>?</text></g>\n</g>",
        "<g shape:repeat='i in 0..1'>\n <g id='one'><path d=\"M3 0H9\"\n  shape:d='M3 {i}H9' stroke='#000'/><text "
        "shape:x='{i}' x='0' shape:text='{i + 5}'>5</text></g>\n"
        " <g><path d=\"M3 1H9\" stroke='#000'/><text x='1'>6</text></g>\n</g>");
}

void TestReview::fileGetsItsDeclaredLook()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, look);
    const QByteArray file = declaredtest::fileOf(figure + content);
    const ShapeKind kind(declaredtest::readOf(file));
    const QByteArray written = withDeclaredLook(kind, file);
    QCOMPARE(written, declaredtest::fileOf(figure + look));
    QCOMPARE(withDeclaredLook(kind, written), written);
}

void TestReview::soundFilesStayAsTheyAre()
{
    QFETCH(QString, path);
    QFile file(path);
    QVERIFY(file.open(QIODevice::ReadOnly));
    const QByteArray bytes = file.readAll();
    const ShapeKind kind(readShape(bytes, QFileInfo(path).baseName()));
    QCOMPARE(withDeclaredLook(kind, bytes), bytes);
}

QTEST_MAIN(TestReview)
#include "test_review.moc"
