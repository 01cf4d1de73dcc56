// Faults of a shape's template, told with the line and column of the attribute.

#include <shapekit/templatecheck.h>

#include <QtTest/QtTest>

namespace {

/// The messages about a template whose root has a view box and that content, from line 2 on.
QStringList faultsIn(const QString &content)
{
    QStringList told;
    const QVector<pagehost::PluginMessage> faults = shapekit::templateFaults(
        QStringLiteral("<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 40 40'>\n%1\n</svg>").arg(content),
        QStringLiteral("t.svg"));
    for (const pagehost::PluginMessage &fault : faults)
        told.append(fault.told());
    return told;
}

} // namespace

class TestTemplates : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void goodTemplateHasNoFaults();
    void faultIsToldWithItsPlace_data();
    void faultIsToldWithItsPlace();
    void missingTemplateIsAFault();
    void unreadableTemplateIsToldWithItsLine();
    void templateNeedsAViewBox();
    void thirtyTwoPointsAreTheMost();
    void faultsStandInTheOrderOfTheLines();
};

void TestTemplates::goodTemplateHasNoFaults()
{
    QCOMPARE(faultsIn(QStringLiteral(
                 "<g keeps='fill stroke' fill-rule='evenodd' data-x='1' xml:space='preserve'><path id='figure' "
                 "d='M0 0'/></g>"
                 "<rect id='control_1' x='4' y='4' width='8' height='8' x_from='0' x_to='4' x_follows='-shorter' "
                 "y_offset='4 8' y_move='0'/><path stroke_follows='pen' d='M0 0L1 1'/>")),
             QStringList());
}

void TestTemplates::faultIsToldWithItsPlace_data()
{
    QTest::addColumn<QString>("content");
    QTest::addColumn<QString>("told");
    const auto row = [](const char *name, const char *content, const char *told) {
        QTest::newRow(name) << QString::fromUtf8(content) << QString::fromUtf8(told);
    };
    row("misspelled rule", "<rect id='control_1' x_folows='end'/>",
        "t.svg:2:32: warning K03: there is no attribute \"x_folows\" (did you mean \"x_follows\"?)");
    row("misspelled attribute of SVG", "<path strok='red'/>",
        "t.svg:2:14: warning K03: there is no attribute \"strok\" (did you mean \"stroke\"?)");
    row("unknown name", "<path zzzzzzzzzz='red'/>",
        "t.svg:2:19: warning K03: there is no attribute \"zzzzzzzzzz\"");
    row("second point without a first", "<rect id='control_2'/>",
        "t.svg:2:11: error K05: there is no \"control_1\"; this point is not found");
    row("gap in the numbers", "<rect id='control_1'/><rect id='control_3'/>",
        "t.svg:2:33: error K05: there is no \"control_2\"; this point is not found");
    row("point without a number", "<rect id='control_one'/>",
        "t.svg:2:11: error K05: control points are numbered from 1: \"control_1\", \"control_2\"");
    row("limit that is no number", "<rect id='control_1' x='3' x_from='left'/>",
        "t.svg:2:36: error K07: \"x_from\" is a number, not \"left\"");
    row("limit above the start", "<rect id='control_1' y='3' y_from='4'/>",
        "t.svg:2:36: error K07: the limits exclude the point's own \"y\", which is 3");
    row("limit below the start", "<rect id='control_1' y='3' y_to='2'/>",
        "t.svg:2:34: error K07: the limits exclude the point's own \"y\", which is 3");
    row("unknown rule", "<rect id='control_1' y_follows='midle'/>",
        "t.svg:2:33: error K09: \"y_follows\" takes side, start, end, middle, shorter, -shorter, not \"midle\" "
        "(did you mean \"middle\"?)");
    row("offset that is no number", "<rect id='control_1' x_offset='4 b'/>",
        "t.svg:2:32: error K09: \"x_offset\" takes one or two numbers");
    row("keeps something else", "<path keeps='colour'/>",
        "t.svg:2:14: error K09: \"keeps\" takes \"fill\", \"stroke\" or both, not \"colour\"");
    row("follows something else", "<path\n  fill_follows='brush'/>",
        "t.svg:3:17: error K09: \"fill_follows\" takes \"pen\", not \"brush\"");
    row("path data", "<g>\n<path id='p' d='M1 1L2 x 3'/></g>",
        "t.svg:3:22: warning K02: The path data ends at an error in character 6.");
    row("points", "<polygon\n points='1 2 x'/>",
        "t.svg:3:10: warning K02: The list of points ends at its first error.");
    row("transform", "<path\n d='M0 0L1 1'\n transform='turn(3)'/>",
        "t.svg:4:13: warning K02: The transform \"turn(3)\" is not understood.");
    row("colour", "<path d='M0 0L1 1' stroke='rad'/>",
        "t.svg:2:28: warning K02: A property does not take the value \"rad\".");
    row("id twice", "<path id='a'/><path id='a'/>", "t.svg:2:25: warning K11: another element has the id \"a\"");
}

void TestTemplates::faultIsToldWithItsPlace()
{
    QFETCH(QString, content);
    QFETCH(QString, told);
    QCOMPARE(faultsIn(content), QStringList{told});
}

void TestTemplates::missingTemplateIsAFault()
{
    const QVector<pagehost::PluginMessage> faults = shapekit::templateFaults(QString(), QStringLiteral("t.svg"));
    QCOMPARE(faults.size(), 1);
    QCOMPARE(faults.first().told(), QStringLiteral("t.svg: error K01: there is no template, or it is empty"));
}

void TestTemplates::unreadableTemplateIsToldWithItsLine()
{
    const QVector<pagehost::PluginMessage> faults =
        shapekit::templateFaults(QStringLiteral("<svg viewBox='0 0 4 4'>\n<g>\n</svg>"), QStringLiteral("t.svg"));
    QCOMPARE(faults.size(), 1);
    QCOMPARE(faults.first().code, QStringLiteral("K01"));
    QCOMPARE(faults.first().severity, pagehost::PluginMessage::Error);
    QCOMPARE(faults.first().line, 3);
}

void TestTemplates::templateNeedsAViewBox()
{
    for (const char *root : {"<svg xmlns='http://www.w3.org/2000/svg'/>",
                             "<svg xmlns='http://www.w3.org/2000/svg' viewBox='0 0 9 0'/>"}) {
        const QVector<pagehost::PluginMessage> faults =
            shapekit::templateFaults(QString::fromLatin1(root), QStringLiteral("t.svg"));
        QCOMPARE(faults.size(), 1);
        QCOMPARE(faults.first().code, QStringLiteral("K08"));
    }
}

void TestTemplates::thirtyTwoPointsAreTheMost()
{
    QString points;
    for (int number = 1; number <= 32; ++number)
        points += QStringLiteral("<rect id='control_%1'/>\n").arg(number);
    QCOMPARE(faultsIn(points), QStringList());
    points += QStringLiteral("<rect id='control_33'/>");
    QCOMPARE(faultsIn(points),
             QStringList{QStringLiteral("t.svg:34:11: error K06: a shape has at most 32 control points")});
}

void TestTemplates::faultsStandInTheOrderOfTheLines()
{
    QCOMPARE(faultsIn(QStringLiteral("<rect id='control_2'/>\n<path strok=''/>")).size(), 2);
    QVERIFY(faultsIn(QStringLiteral("<rect id='control_2'/>\n<path strok=''/>"))
                .first()
                .startsWith(QLatin1String("t.svg:2")));
}

QTEST_GUILESS_MAIN(TestTemplates)
#include "test_templates.moc"
