// The reference and the guide for authors list what the reader of files takes, and nothing else.

#include "shapefile.h"

#include <declared/expressions/functions.h>
#include <declared/reader/vocabulary.h>

#include <QtCore/QDirIterator>
#include <QtCore/QRegularExpression>
#include <QtTest/QtTest>

#include <algorithm>
#include <iterator>

using namespace declared;

class TestReference : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void shapeOfTheGuideIsAShape();
    void attributesOfDeclarationsAreListed();
    void namesAreListed_data();
    void namesAreListed();
    void functionsAreListed();
    void codesAreListed_data();
    void codesAreListed();
};

namespace {

QString documentText(const char *name)
{
    QFile file(QStringLiteral(DOCUMENT_FOLDER "/%1").arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// Cells of the tables in a section of the reference, row by row.
QVector<QStringList> rowsOf(const QString &section)
{
    const QString text = documentText("shape-reference.md")
                             .section(QStringLiteral("\n## %1\n").arg(section), 1)
                             .section(QStringLiteral("\n## "), 0, 0);
    QVector<QStringList> rows;
    const QStringList lines = text.split(QLatin1Char('\n'));
    for (const QString &line : lines)
        if (line.startsWith(QLatin1String("| ")))
            rows.append(line.split(QStringLiteral("|")).mid(1));
    return rows;
}

/// Texts between backticks.
QStringList quotedIn(const QString &cell)
{
    static const QRegularExpression form(QStringLiteral("`([^`]+)`"));
    QStringList names;
    for (auto match = form.globalMatch(cell); match.hasNext();)
        names.append(match.next().captured(1));
    return names;
}

/// Names in the first cells of a section's rows; elements that have them stand behind "of".
QStringList namesIn(const QString &section)
{
    QStringList names;
    const QVector<QStringList> rows = rowsOf(section);
    for (const QStringList &row : rows)
        names += quotedIn(row.first().section(QStringLiteral(", of "), 0, 0));
    return names;
}

QStringList sorted(QStringList names)
{
    names.removeDuplicates();
    names.sort();
    return names;
}

} // namespace

void TestReference::shapeOfTheGuideIsAShape()
{
    const QString guide = documentText("shape-author.md");
    const QString snippet = guide.section(QStringLiteral("```xml\n"), 1, 1).section(QStringLiteral("```"), 0, 0);
    QVector<Message> messages;
    const SharedDeclaration shape = declaredtest::readOf(snippet.toUtf8(), &messages);
    QVERIFY(shape);
    QVERIFY(messages.isEmpty());
    QCOMPARE(shape->name.value(QStringLiteral("en")), QStringLiteral("Price tag"));
    QCOMPARE(shape->elements.size(), 2);
}

void TestReference::attributesOfDeclarationsAreListed()
{
    QMap<QString, QStringList> listed;
    QString element;
    const QVector<QStringList> rows = rowsOf(QStringLiteral("Elements")).mid(1);
    for (const QStringList &row : rows) {
        element = quotedIn(row.at(0)).value(0, element);
        listed[element] += quotedIn(row.at(1));
    }
    QMap<QString, QStringList> known;
    const QStringList elements = declarations();
    for (const QString &name : elements)
        known[QStringLiteral("shape:") + name] = attributesOf(name);
    QCOMPARE(known.size(), 5);
    QCOMPARE(listed, known);
}

void TestReference::namesAreListed_data()
{
    QTest::addColumn<QStringList>("listed");
    QTest::addColumn<QStringList>("known");
    const QStringList properties = namesIn(QStringLiteral("Properties"));
    QTest::newRow("types of properties") << QStringList(properties.mid(1)) << propertyTypes();
    QTest::newRow("attributes of control points") << namesIn(QStringLiteral("Control points")) << pointAttributes();
    QTest::newRow("attributes of the figure")
        << namesIn(QStringLiteral("The figure")) + namesIn(QStringLiteral("Labels")) << figureAttributes();
    QStringList tracks;
    QStringList names;
    const QVector<QStringList> pointRows = rowsOf(QStringLiteral("Control points"));
    for (const QStringList &row : pointRows)
        if (quotedIn(row.at(0)) == QStringList{QStringLiteral("along")})
            tracks = quotedIn(row.at(1));
    tracks.replaceInStrings(QRegularExpression(QStringLiteral("\\(.*")), QString());
    QTest::newRow("tracks") << tracks << trackNames();
    const QVector<QStringList> expressionRows = rowsOf(QStringLiteral("Expressions"));
    const QStringList ofPoints{QStringLiteral("p1"), QStringLiteral("p[k]"), QStringLiteral("at")};
    for (const QStringList &row : expressionRows) {
        const QStringList quoted = quotedIn(row.at(0));
        std::copy_if(quoted.begin(), quoted.end(), std::back_inserter(names), [&](const QString &name) {
            return !name.contains(QLatin1Char('(')) && !ofPoints.contains(name);
        });
    }
    QTest::newRow("names") << names << fixedNames();
}

void TestReference::namesAreListed()
{
    QFETCH(QStringList, listed);
    QFETCH(QStringList, known);
    QVERIFY(known.size() >= 5);
    QCOMPARE(sorted(listed), sorted(known));
}

void TestReference::functionsAreListed()
{
    QStringList listed;
    const QVector<QStringList> rows = rowsOf(QStringLiteral("Expressions"));
    for (const QStringList &row : rows) {
        const QStringList quoted = quotedIn(row.at(0));
        for (const QString &name : quoted)
            if (name.contains(QLatin1Char('(')))
                listed.append(name.section(QLatin1Char('('), 0, 0));
    }
    QVERIFY(listed.size() > 30);
    QCOMPARE(sorted(listed), sorted(builtinNames()));
}

void TestReference::codesAreListed_data()
{
    QTest::addColumn<QString>("folder");
    QTest::addColumn<QString>("document");
    QTest::addColumn<int>("count");
    QTest::newRow("declared") << "shapes/declared"
                              << "shape-reference.md" << 52;
    QTest::newRow("kit") << "kit/src"
                         << "shape-author.md" << 11;
}

void TestReference::codesAreListed()
{
    QFETCH(QString, folder);
    QFETCH(QString, document);
    static const QRegularExpression code(QStringLiteral("\"([CK]\\d\\d)\""));
    QStringList known;
    QDirIterator files(QStringLiteral(DOCUMENT_FOLDER "/../") + folder, {QStringLiteral("*.cpp")}, QDir::Files,
                       QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        QVERIFY(file.open(QIODevice::ReadOnly));
        for (auto found = code.globalMatch(QString::fromUtf8(file.readAll())); found.hasNext();)
            known.append(found.next().captured(1));
    }
    static const QRegularExpression row(QStringLiteral("\n\\| ([CK]\\d\\d) \\| "));
    QStringList listed;
    for (auto found = row.globalMatch(documentText(qPrintable(document))); found.hasNext();)
        listed.append(found.next().captured(1));
    QTEST(listed.size(), "count");
    QCOMPARE(listed, sorted(known));
}

QTEST_GUILESS_MAIN(TestReference)
#include "test_reference.moc"
