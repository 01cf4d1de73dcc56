// Fields for numbers, as they are typed into.

#include <board/boarddriver.h>

#include <page/pageview.h>
#include <panels/fields/numberfield.h>
#include <window/mainwindow.h>

#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <support/listed.h>

#include <QtTest/QtTest>
#include <QtWidgets/QToolTip>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

/// One selected rectangle, 200 × 120 at (500, 300), and the panel.
struct MeasuredShape
{
    explicit MeasuredShape(const QString &language = QStringLiteral("en"))
        : board(language)
        , shape(board.draw(rectangle, {500, 300}, {700, 420}))
    {
        QCoreApplication::processEvents();
        board.window().activateWindow();
    }

    board::NumberField *field(const QString &name) const
    {
        for (board::NumberField *candidate : support::listed(board.window().findChildren<board::NumberField *>()))
            if (candidate->accessibleName() == name && candidate->isVisible())
                return candidate;
        return nullptr;
    }
    /// Over the number that the field shows.
    void type(const QString &name, const QString &text) const
    {
        field(name)->setFocus();
        field(name)->selectAll();
        QTest::keyClicks(field(name), text);
    }
    void enter(const QString &name, const QString &text) const
    {
        type(name, text);
        QTest::keyClick(field(name), Qt::Key_Return);
        QCoreApplication::processEvents();
    }
    QSizeF size() const { return shape->getClientRect().size(); }

    BoardDriver board;
    CBaseObject *shape;
};

class TestNumberField : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFieldOfSmallLettersIsAsHighAsOthers();
    void expressionsSetTheWidth_data();
    void expressionsSetTheWidth();
    void leadingSignChangesTheWidth();
    void anyAngleTurnsTheShape();
    void wholeNumbersAreShownWithoutDecimals();
    void numbersAreShownInTheLanguageOfTheBoard();
    void escapePutsTheOldNumberBack();
    void wordInAFieldIsToldOfAndStaysThere();
    void numberBeyondTheRangeIsToldOf();
    void leavingAFieldWithAWordKeepsTheOldNumber();
    void shiftAndTheArrowKeysMakeTenSteps();
    void signOfDifferentNumbersHasNoHalf();
};

void TestNumberField::aFieldOfSmallLettersIsAsHighAsOthers()
{
    MeasuredShape t;
    QFont font = t.field("Width")->font();
    font.setPixelSize(8);
    t.field("Width")->setFont(font);
    QCOMPARE(t.field("Width")->sizeHint().height(), 28);
}

void TestNumberField::expressionsSetTheWidth_data()
{
    QTest::addColumn<QString>("typed");
    QTest::addColumn<double>("width");
    QTest::newRow("a third") << "120/3" << 40.0;
    QTest::newRow("inches") << "2 in" << 192.0;
    QTest::newRow("half of it") << "50 %" << 100.0;
}

void TestNumberField::expressionsSetTheWidth()
{
    QFETCH(QString, typed);
    MeasuredShape t;
    t.enter("Width", typed);
    QTEST(t.size().width(), "width");
    QCOMPARE(t.board.history().count(), 2);
}

void TestNumberField::leadingSignChangesTheWidth()
{
    MeasuredShape t;
    t.enter("Width", "+10");
    QCOMPARE(t.size().width(), 210.0);
    QCOMPARE(t.field("Width")->text(), QString("210 px"));
    t.board.view().setFocus();
    QCoreApplication::processEvents();
    QCOMPARE(t.size().width(), 210.0);
}

void TestNumberField::anyAngleTurnsTheShape()
{
    MeasuredShape t;
    t.enter("Rotation", "-90");
    QCOMPARE(t.shape->rotation(), 270.0);
    QCOMPARE(t.field("Rotation")->text(), QString("270°"));
}

void TestNumberField::wholeNumbersAreShownWithoutDecimals()
{
    MeasuredShape t;
    QCOMPARE(t.field("Width")->text(), QString("200 px"));
    t.enter("Width", "100.5");
    QCOMPARE(t.field("Width")->text(), QString("100.5 px"));
}

void TestNumberField::numbersAreShownInTheLanguageOfTheBoard()
{
    MeasuredShape t(QStringLiteral("de"));
    t.enter("Breite", "100,5");
    QCOMPARE(t.size().width(), 100.5);
    QCOMPARE(t.field("Breite")->text(), QString("100,5 px"));
}

void TestNumberField::escapePutsTheOldNumberBack()
{
    MeasuredShape t;
    t.type("Width", "77");
    QTest::keyClick(t.field("Width"), Qt::Key_Escape);
    QCOMPARE(t.field("Width")->text(), QString("200 px"));
    t.board.view().setFocus();
    QCOMPARE(t.size().width(), 200.0);
    QCOMPARE(t.board.history().count(), 1);
}

void TestNumberField::wordInAFieldIsToldOfAndStaysThere()
{
    MeasuredShape t;
    t.enter("Width", "2 wide");
    QCOMPARE(QToolTip::text(), QString("“2 wide” is no number. Type one such as 40, 120/3 or +10."));
    QCOMPARE(t.field("Width")->text(), QString("2 wide px"));
    QCOMPARE(t.size().width(), 200.0);
}

void TestNumberField::numberBeyondTheRangeIsToldOf()
{
    MeasuredShape t;
    t.enter("Width", "0");
    QCOMPARE(QToolTip::text(), QString("Numbers from 1 to 99999 can be set here."));
    QCOMPARE(t.size().width(), 200.0);
}

void TestNumberField::leavingAFieldWithAWordKeepsTheOldNumber()
{
    MeasuredShape t;
    t.type("Width", "wide");
    t.board.view().setFocus();
    QCOMPARE(t.field("Width")->text(), QString("200 px"));
    QCOMPARE(t.size().width(), 200.0);
    QCOMPARE(t.board.history().count(), 1);
}

void TestNumberField::shiftAndTheArrowKeysMakeTenSteps()
{
    MeasuredShape t;
    t.field("Width")->setFocus();
    QTest::keyClick(t.field("Width"), Qt::Key_Up);
    QCOMPARE(t.size().width(), 201.0);
    QTest::keyClick(t.field("Width"), Qt::Key_Up, Qt::ShiftModifier);
    QCOMPARE(t.size().width(), 211.0);
    QTest::keyClick(t.field("Width"), Qt::Key_Down, Qt::ShiftModifier);
    QCOMPARE(t.size().width(), 201.0);
}

/// Where the numbers differ there is none that "50 %" could refer to.
void TestNumberField::signOfDifferentNumbersHasNoHalf()
{
    MeasuredShape t;
    pagehost::setPenWidth({t.shape}, 6);
    CBaseObject *other = t.board.draw(rectangle, {800, 300}, {900, 400});
    t.board.click({600, 360}, Qt::ShiftModifier);
    QCoreApplication::processEvents();
    QVERIFY(t.field("Outline width")->isMixed());
    const int before = pagehost::styleOf(other).penWidth;
    t.enter("Outline width", "50 %");
    QCOMPARE(pagehost::styleOf(t.shape).penWidth, 6);
    QCOMPARE(pagehost::styleOf(other).penWidth, before);
    t.enter("Outline width", "2+3");
    QCOMPARE(pagehost::styleOf(t.shape).penWidth, 5);
    QCOMPARE(pagehost::styleOf(other).penWidth, 5);
}

QTEST_MAIN(TestNumberField)
#include "test_numberfield.moc"
