// Shapes that became files are held against the same shapes in C++, which tests/shapes/coded keeps: whatever is
// done to both, they save the same bytes and look the same.

#include <shapes/shapedriver.h>

#include <checklist/randomedits.h>
#include <checklist/states.h>

#include <svgobj/csvgbase.h>
#include <svgobj/csvgobj.h>

#include <svgbase/qzesvgtinydocument.h>

#include <support/listed.h>

#include <QtCore/QDataStream>
#include <QtCore/QDir>
#include <QtCore/QPluginLoader>
#include <QtTest/QtTest>
#include <QtWidgets/QUndoStack>

#include <algorithm>
#include <cmath>

using checklist::RandomEdits;
using checklist::savedBytes;
using checklist::savedJson;
using shapetest::ShapeDriver;

class TestTwins : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void mostShapesAreFiles();
    void newTwinsAreTheSame_data() { addTwinRows(); }
    void newTwinsAreTheSame();
    void draggedTwinsAreTheSame_data() { addTwinRows(); }
    void draggedTwinsAreTheSame();
    void twinsOfOtherSizesAreTheSame_data() { addTwinRows(); }
    void twinsOfOtherSizesAreTheSame();
    void editedTwinsAreTheSame_data() { addTwinRows(); }
    void editedTwinsAreTheSame();
    void twinsUndoTheSame_data() { addTwinRows(); }
    void twinsUndoTheSame();
    void fileOpensWhatTheCodedShapeSaved_data() { addTwinRows(); }
    void fileOpensWhatTheCodedShapeSaved();
    void savedPolygonKeepsItsNumberOfCorners_data();
    void savedPolygonKeepsItsNumberOfCorners();
    void twinsMoveAlike_data();
    void twinsMoveAlike();
    void figuresOfTheClockStandWhereTheyDid_data();
    void figuresOfTheClockStandWhereTheyDid();
    void numbersOfTheLineStandWhereTheyDid();

private:
    static QStringList twinNames();
    void addTwinRows();
};

namespace {

constexpr unsigned seeds = 3;
constexpr int editsOfSeed = 30;

CBaseObject *codedObject(const QString &name)
{
    QPluginLoader loader(QStringLiteral(CODED_TWINS "/%1.so").arg(name));
    auto *plugin = qobject_cast<pagehost::ObjectPlugin *>(loader.instance());
    return plugin ? plugin->createObject(shapetest::kindOf(name)) : nullptr;
}

/// Figures of clock and number line are texts of the coded shapes, and labels of the files.
const char *const figureNodes[] = {"digits", "roman", "labels", "numbers"};

QImage paintedWithoutFigures(const ShapeDriver &shape)
{
    shape.painted(); // settles the drawing
    QVector<QPair<QZeSvgNode *, QString>> hidden;
    for (const char *id : figureNodes) {
        if (QZeSvgNode *node = shape.document().namedNode(QLatin1String(id))) {
            hidden.append({node, node->attribute(QStringLiteral("display"))});
            node->setAttribute(QStringLiteral("display"), QStringLiteral("none"));
        }
    }
    QImage picture = shape.painted();
    for (const auto &[node, display] : hidden)
        node->setAttribute(QStringLiteral("display"), display);
    return picture;
}

/// Coded shapes have no letters that users set.
const QString lettersSection = QStringLiteral("text");
constexpr int firstIdOfLetters = 1048569;

QList<int> attributesWithoutLetters(const ShapeDriver &shape)
{
    QList<int> ids = shape.object().getAttributeIds();
    ids.erase(std::remove_if(ids.begin(), ids.end(), [](int id) { return id >= firstIdOfLetters; }), ids.end());
    return ids;
}

/// A declared shape and its predecessor, in the same hands.
class Twins
{
public:
    explicit Twins(const QString &name)
        : declared(name)
        , coded(name)
    {
        coded.takeObject(codedObject(name));
    }

    template<class Action> void both(Action action)
    {
        action(declared);
        action(coded);
    }

    /// Empty where both are alike, else what differs.
    QString difference()
    {
        if (savedBytes(declared) != savedBytes(coded))
            return QStringLiteral("bytes");
        if (savedJson(declared) != savedJson(coded))
            return QString::fromUtf8(savedJson(declared) + savedJson(coded));
        if (declared.object().boundingRect() != coded.object().boundingRect())
            return QStringLiteral("bounding rectangle");
        if (paintedWithoutFigures(declared) != paintedWithoutFigures(coded))
            return QStringLiteral("picture");
        return {};
    }

    ShapeDriver declared;
    ShapeDriver coded;
};

#define COMPARE_TWINS(twins)                                                                                       \
    do {                                                                                                           \
        const QString difference = (twins).difference();                                                           \
        QVERIFY2(difference.isEmpty(), qPrintable(difference));                                                    \
    } while (false)

} // namespace

QStringList TestTwins::twinNames()
{
    QStringList names = QDir(QStringLiteral(CODED_TWINS)).entryList({QStringLiteral("*.so")}, QDir::Files);
    for (QString &name : names)
        name.chop(3);
    return names;
}

void TestTwins::addTwinRows()
{
    QTest::addColumn<QString>("name");
    for (const QString &name : support::listed(twinNames()))
        QTest::newRow(qPrintable(name)) << name;
}

void TestTwins::mostShapesAreFiles()
{
    QCOMPARE(twinNames().size(), 17);
    for (const QString &name : support::listed(twinNames()))
        QVERIFY2(QFile::exists(QFileInfo(shapetest::pluginFile(name)).path() + QLatin1Char('/') + name +
                               QStringLiteral(".shape.svg")),
                 qPrintable(name));
}

void TestTwins::newTwinsAreTheSame()
{
    QFETCH(QString, name);
    Twins twins(name);
    twins.both([](ShapeDriver &shape) { shape.createByClick(); });
    COMPARE_TWINS(twins);
    QCOMPARE(twins.declared.core().getSVGType(), twins.coded.core().getSVGType());
    QCOMPARE(twins.declared.object().kindName(), twins.coded.object().kindName());
    QCOMPARE(attributesWithoutLetters(twins.declared), twins.coded.object().getAttributeIds());
}

void TestTwins::draggedTwinsAreTheSame()
{
    QFETCH(QString, name);
    Twins twins(name);
    twins.both([](ShapeDriver &shape) {
        shape.createByDrag({183.5, 147.25});
        shape.select();
    });
    const QPointF ways[] = {{7.3, -4.1}, {-300, -300}, {300, 250}, {-90, 30}, {40, -170}, {0.1, 60}};
    for (int number = 1; number <= twins.coded.controlPointCount(); ++number) {
        for (const QPointF way : ways) {
            twins.both([&](ShapeDriver &shape) { shape.dragControlPoint(number, way); });
            COMPARE_TWINS(twins);
        }
    }
}

void TestTwins::twinsOfOtherSizesAreTheSame()
{
    QFETCH(QString, name);
    Twins twins(name);
    twins.both([](ShapeDriver &shape) {
        shape.createByClick();
        shape.select();
    });
    for (const QSizeF size : {QSizeF(300, 70), QSizeF(70, 300), QSizeF(1, 1), QSizeF(420.5, 333.25)}) {
        for (const int penWidth : {1, 8}) {
            twins.both([&](ShapeDriver &shape) {
                shape.object().setSize(size, false, true);
                shape.core().setPenWidth(penWidth, false);
                shape.core().invalidate();
            });
            COMPARE_TWINS(twins);
        }
    }
}

void TestTwins::editedTwinsAreTheSame()
{
    QFETCH(QString, name);
    for (unsigned seed = 1; seed <= seeds; ++seed) {
        Twins twins(name);
        twins.both([](ShapeDriver &shape) {
            shape.createByDrag({183.5, 147.25});
            shape.select();
        });
        RandomEdits edits(twins.declared, seed);
        RandomEdits same(twins.coded, seed);
        edits.leaveOut(lettersSection);
        for (int i = 0; i < editsOfSeed; ++i) {
            edits.edit();
            same.edit();
            COMPARE_TWINS(twins);
        }
    }
}

void TestTwins::twinsUndoTheSame()
{
    QFETCH(QString, name);
    Twins twins(name);
    twins.both([](ShapeDriver &shape) {
        shape.createByDrag({183.5, 147.25});
        shape.select();
    });
    QUndoStack &stack = twins.declared.undoStack();
    stack.clear();
    twins.both([](ShapeDriver &shape) {
        RandomEdits edits(shape, seeds);
        edits.leaveOut(lettersSection);
        edits.edit(editsOfSeed);
    });
    COMPARE_TWINS(twins);
    while (stack.canUndo())
        stack.undo();
    COMPARE_TWINS(twins);
    while (stack.canRedo())
        stack.redo();
    COMPARE_TWINS(twins);
}

void TestTwins::fileOpensWhatTheCodedShapeSaved()
{
    QFETCH(QString, name);
    Twins twins(name);
    twins.coded.createByDrag({183.5, 147.25});
    twins.coded.select();
    RandomEdits(twins.coded, seeds).edit(editsOfSeed);
    twins.coded.object().setSelected(false);
    const QByteArray saved = savedBytes(twins.coded);
    QDataStream in(saved);
    QVERIFY(twins.declared.object().load(in));
    QVERIFY(in.atEnd());
    COMPARE_TWINS(twins);
}

void TestTwins::savedPolygonKeepsItsNumberOfCorners_data()
{
    QTest::addColumn<int>("corners");
    QTest::newRow("three") << 3;
    QTest::newRow("eight") << 8;
}

void TestTwins::savedPolygonKeepsItsNumberOfCorners()
{
    QFETCH(int, corners);
    Twins twins(QStringLiteral("polygon"));
    QJsonObject saved;
    twins.coded.object().saveJson(saved);
    saved[QStringLiteral("SVG_ControlCount")] = corners;
    for (int number = 1; number <= corners; ++number) {
        const double angle = 2 * M_PI * number / corners;
        saved[QStringLiteral("SVG_PosX_%1").arg(number)] = 56 + 40 * std::cos(angle);
        saved[QStringLiteral("SVG_PosY_%1").arg(number)] = 53 + 40 * std::sin(angle);
    }
    twins.both([&](ShapeDriver &shape) {
        QJsonObject copy = saved;
        QVERIFY(shape.object().loadJson(copy));
        shape.painted();
    });
    COMPARE_TWINS(twins);
    QCOMPARE(twins.declared.document().namedNode(QStringLiteral("figure"))->polygon().size(), corners);
    twins.both([&](ShapeDriver &shape) {
        shape.select();
        shape.dragControlPoint(corners, {-7, 5});
    });
    COMPARE_TWINS(twins);
}

void TestTwins::twinsMoveAlike_data()
{
    QTest::addColumn<QStringList>("nodes");
    QTest::newRow("gears") << QStringList{QStringLiteral("driving_turn"), QStringLiteral("driven_turn")};
    QTest::newRow("pendulum") << QStringList{QStringLiteral("swing")};
}

/// The numbers of an attribute.
QVector<double> numbersOf(const ShapeDriver &shape, const QString &node, const char *attribute)
{
    QString text = shape.document().namedNode(node)->attribute(QLatin1String(attribute));
    QVector<double> numbers;
    const QStringList parts = text.replace(QLatin1Char(';'), QLatin1Char(' ')).remove(QLatin1Char('s')).split(' ');
    for (const QString &part : parts)
        numbers.append(part.toDouble());
    return numbers;
}

void TestTwins::twinsMoveAlike()
{
    QFETCH(QStringList, nodes);
    Twins twins(QString::fromLatin1(QTest::currentDataTag()));
    twins.both([](ShapeDriver &shape) {
        shape.createByClick();
        shape.select();
        RandomEdits(shape, 1).edit(editsOfSeed);
        shape.painted();
    });
    for (const QString &node : nodes) {
        for (const char *attribute : {"from", "to", "values", "dur"}) {
            const QVector<double> declared = numbersOf(twins.declared, node, attribute);
            const QVector<double> coded = numbersOf(twins.coded, node, attribute);
            QCOMPARE(declared.size(), coded.size());
            // Six digits of the coded shapes.
            for (int i = 0; i < coded.size(); ++i)
                QVERIFY2(qAbs(declared.at(i) - coded.at(i)) < 1e-3, attribute);
        }
    }
}

void TestTwins::figuresOfTheClockStandWhereTheyDid_data()
{
    QTest::addColumn<int>("face");
    QTest::newRow("digits") << 0;
    QTest::newRow("roman") << 1;
}

void TestTwins::figuresOfTheClockStandWhereTheyDid()
{
    QFETCH(int, face);
    Twins twins(QStringLiteral("clock"));
    twins.both([&](ShapeDriver &shape) {
        shape.createByClick();
        checklist::answer(shape, {{QStringLiteral("idFace"), QString::number(face)}});
        shape.painted();
    });
    const auto figuresOf = [](const ShapeDriver &shape) {
        const QZeSvgNode *group = shape.document().namedNode(QLatin1String(QTest::currentDataTag()));
        return static_cast<const QZeSvgStructureNode *>(group)->children();
    };
    const QList<QZeSvgNode *> declared = figuresOf(twins.declared);
    const QList<QZeSvgNode *> coded = figuresOf(twins.coded);
    QCOMPARE(declared.size(), 12);
    QCOMPARE(coded.size(), 12);
    // The box of a text has room for ascenders and descenders, that of letters has none.
    for (int i = 0; i < 12; ++i) {
        const QRectF text = coded.at(i)->boundingRect();
        const QRectF letters = declared.at(i)->boundingRect();
        QVERIFY2(qAbs(text.center().x() - letters.center().x()) < 0.8, qPrintable(QString::number(i + 1)));
        QVERIFY2(text.contains(letters.adjusted(0.5, 0.5, -0.5, -0.5)), qPrintable(QString::number(i + 1)));
    }
}

void TestTwins::numbersOfTheLineStandWhereTheyDid()
{
    Twins twins(QStringLiteral("numberline"));
    twins.both([](ShapeDriver &shape) { shape.createByClick(); });
    for (const QSizeF size : {QSizeF(300, 52), QSizeF(420.5, 80), QSizeF(150, 52), QSizeF(80, 52)}) {
        twins.both([&](ShapeDriver &shape) {
            shape.object().setSize(size, false, true);
            shape.painted();
        });
        const QRectF coded = twins.coded.document().namedNode(QStringLiteral("labels"))->boundingRect();
        const QRectF declared = twins.declared.document().namedNode(QStringLiteral("numbers"))->boundingRect();
        // Numbers fit their room, and are a bit larger in narrow lines.
        QVERIFY2(qAbs(coded.left() - declared.left()) < 2, qPrintable(QString::number(declared.left())));
        QVERIFY2(qAbs(coded.right() - declared.right()) < 2, qPrintable(QString::number(declared.right())));
        QVERIFY2(qAbs(coded.center().y() - declared.center().y()) < 0.5,
                 qPrintable(QString::number(declared.center().y())));
    }
}

QTEST_MAIN(TestTwins)
#include "test_twins.moc"
