// Pen, fill and place through the panel, each with undo and redo.

#include <board/boarddriver.h>

#include <support/listed.h>
#include <support/virtualtime.h>

#include <core/commands.h>
#include <page/pageview.h>
#include <panels/colorbutton.h>
#include <panels/fillcontrols.h>
#include <panels/pencontrols.h>
#include <panels/placecontrols.h>
#include <panels/stylepanel.h>
#include <window/mainwindow.h>

#include <pagehost/commands.h>
#include <pagehost/page.h>
#include <pagehost/pagepainter.h>
#include <pagehost/style.h>

#include <framework/cbaseobject.h>

#include <QtCore/QSettings>
#include <QtCore/QTimer>
#include <QtTest/QtTest>
#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

/// One selected shape, 200 × 120 at (500, 300), and the panel.
struct StyledShape
{
    explicit StyledShape(const QString &kind = rectangle)
        : shape(board.draw(kind, {500, 300}, {700, 420}))
        , steps(board.history().count())
    {
    }

    template<typename Control> Control *control(const QString &accessibleName) const
    {
        // The panel follows in the next turn of the event loop.
        QCoreApplication::processEvents();
        for (Control *candidate : panel->findChildren<Control *>())
            if (candidate->accessibleName() == accessibleName && candidate->isVisibleTo(panel))
                return candidate;
        return nullptr;
    }
    pagehost::ObjectStyle style() const { return pagehost::styleOf(shape); }
    int newSteps() const { return board.history().count() - steps; }
    void undo() { board.key(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    QColor pixelAt(const QPoint &pos) { return pagehost::pageImage(&board.page(), 1).pixelColor(pos); }

    BoardDriver board;
    CBaseObject *shape;
    int steps;
    board::StylePanel *panel = board.window().findChild<board::StylePanel *>();
};

class TestLook : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void penColor();
    void penWidth();
    void penStyle();
    void fillColorWithAlpha_data();
    void fillColorWithAlpha();
    void fillTypes_data();
    void fillTypes();
    void arrowKeyAfterTheChoiceOfAColourMovesTheShape();
    void gradientBackToTheSameColour();
    void pictureFillsTheShape();
    void panelShowsTheSelectedShape();
    void panelShowsThePageWithoutASelection();
    void pageBackground();
    void pageGetsAUsualSize();
    void pageGetsATypedSize();
    void sizeOfThePageFollowsUndoAndOtherPages();
    void gridIsSwitchedWhereThePageIs();
    void placeAsNumbers();
    void severalShapesAreOneStep();
    void valuesThatDifferAreShownAsADash();
    void valuesThatAgreeAreShown();
    void choosingAValueForADashGivesItToAll();
    void opacityForSeveralLeavesTheirColours();
    void newShapesHaveTheirOwnLookUntilOneIsChosen();
    void lookUsedForNewOnesIsPartOfTheStepThatDrawsThem();
    void lookForNewOnesIsGivenUpAtANewShape();
    void lookForNewOnesIsNotCheckedAtAShapeThatLooksOtherwise();
    void turnMirrorAndLockStandBesideThePosition();
    void foldedSectionStaysFolded();
};

void TestLook::penColor()
{
    StyledShape t;
    const QColor before = t.style().penColor;
    Q_EMIT t.control<board::ColorButton>("Outline colour")->colorPicked(QColor(200, 10, 20));
    QCOMPARE(t.style().penColor, QColor(200, 10, 20));
    QCOMPARE(t.newSteps(), 1);
    t.undo();
    QCOMPARE(t.style().penColor, before);
    t.redo();
    QCOMPARE(t.style().penColor, QColor(200, 10, 20));
    support::deliverEvents();
    QCOMPARE(t.control<board::ColorButton>("Outline colour")->color(), QColor(200, 10, 20));
}

void TestLook::penWidth()
{
    StyledShape t;
    const int before = t.style().penWidth;
    auto *box = t.control<QDoubleSpinBox>("Outline width");
    QCOMPARE(box->value(), before);
    box->setValue(6);
    QCOMPARE(t.style().penWidth, 6);
    QCOMPARE(t.newSteps(), 1);
    t.undo();
    QCOMPARE(t.style().penWidth, before);
    t.redo();
    QCOMPARE(t.style().penWidth, 6);
}

void TestLook::penStyle()
{
    StyledShape t;
    auto *box = t.control<QComboBox>("Outline style");
    const int dashed = box->findData(int(Qt::DashLine));
    box->setCurrentIndex(dashed);
    Q_EMIT box->activated(dashed);
    QCOMPARE(t.style().penStyle, Qt::DashLine);
    QCOMPARE(t.newSteps(), 1);
    t.undo();
    QCOMPARE(t.style().penStyle, Qt::SolidLine);
    t.redo();
    QCOMPARE(t.style().penStyle, Qt::DashLine);
}

void TestLook::fillColorWithAlpha_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("host fill") << rectangle;
    QTest::newRow("template fill") << flask;
}

void TestLook::fillColorWithAlpha()
{
    QFETCH(QString, kind);
    StyledShape t(kind);
    const QColor before = t.style().fill.color();
    Q_EMIT t.control<board::ColorButton>("Fill colour")->colorPicked(QColor(0, 200, 0, 128));
    QCOMPARE(t.style().fill.color(), QColor(0, 200, 0, 128));
    QCOMPARE(t.newSteps(), 1);
    t.undo();
    QCOMPARE(t.style().fill.color(), before);
    t.redo();
    QCOMPARE(t.style().fill.color(), QColor(0, 200, 0, 128));
}

void TestLook::fillTypes_data()
{
    QTest::addColumn<QString>("button");
    QTest::addColumn<int>("type");
    QTest::newRow("none") << "No fill" << int(CPageBgProp::NoFill);
    QTest::newRow("gradient") << "Gradient" << int(CPageBgProp::GradientFill);
    QTest::newRow("pattern") << "Pattern" << int(CPageBgProp::PatternFill);
}

void TestLook::fillTypes()
{
    QFETCH(QString, button);
    QFETCH(int, type);
    StyledShape t;
    const CPageBgProp before = *t.shape->getFillProp();
    const QImage picture = pagehost::pageImage(&t.board.page(), 1);
    QTest::mouseClick(t.control<QToolButton>(button), Qt::LeftButton);
    const CPageBgProp *fill = t.shape->getFillProp();
    QCOMPARE(fill->isFillEnable(), type != CPageBgProp::NoFill);
    if (fill->isFillEnable())
        QCOMPARE(fill->fillType(), type);
    QVERIFY(pagehost::pageImage(&t.board.page(), 1) != picture);
    QCOMPARE(t.newSteps(), 1);
    t.undo();
    QCOMPARE(*t.shape->getFillProp(), before);
    QCOMPARE(pagehost::pageImage(&t.board.page(), 1), picture);
    t.redo();
    QVERIFY(pagehost::pageImage(&t.board.page(), 1) != picture);
}

void TestLook::gradientBackToTheSameColour()
{
    StyledShape t;
    const QColor color = t.pixelAt({600, 360});
    QTest::mouseClick(t.control<QToolButton>("Gradient"), Qt::LeftButton);
    QVERIFY(t.pixelAt({600, 360}) != color);
    QTest::mouseClick(t.control<QToolButton>("Colour"), Qt::LeftButton);
    QCOMPARE(t.shape->getFillProp()->fillType(), int(CPageBgProp::SolidFill));
    QCOMPARE(t.pixelAt({600, 360}), color);
}

void TestLook::pictureFillsTheShape()
{
    StyledShape t;
    QPixmap picture(64, 64);
    picture.fill(QColor(20, 160, 90));
    CPageBgProp fill = *t.shape->getFillProp();
    fill.setFillType(CPageBgProp::PictureFill);
    fill.setPixmap(picture);
    const QColor before = t.pixelAt({600, 360});
    QCoreApplication::processEvents();
    // That of the page's background is hidden.
    const QList<board::FillControls *> both = t.panel->findChildren<board::FillControls *>();
    for (auto *controls : both)
        if (controls->isVisibleTo(t.panel))
            Q_EMIT controls->fillPicked(fill);
    QCOMPARE(t.shape->getFillProp()->fillType(), int(CPageBgProp::PictureFill));
    QCOMPARE(t.pixelAt({600, 360}), QColor(20, 160, 90));
    t.undo();
    QCOMPARE(t.pixelAt({600, 360}), before);
    t.redo();
    QCOMPARE(t.pixelAt({600, 360}), QColor(20, 160, 90));
}

void TestLook::panelShowsTheSelectedShape()
{
    StyledShape t;
    CBaseObject *other = t.board.draw(arrow, {800, 300}, {900, 400});
    pagehost::setPenWidth({other}, 5);
    pagehost::setFill({other}, QColor(1, 2, 3));
    t.board.page().select({t.shape});
    t.board.page().select({other});
    QCOMPARE(t.control<QDoubleSpinBox>("Outline width")->value(), 5);
    QCOMPARE(t.control<board::ColorButton>("Fill colour")->color(), QColor(1, 2, 3));
    QCOMPARE(t.control<QDoubleSpinBox>("Left edge")->value(), 800.0);
    QCOMPARE(t.control<QDoubleSpinBox>("Width")->value(), 100.0);
}

void TestLook::panelShowsThePageWithoutASelection()
{
    StyledShape t;
    t.board.page().select({});
    QVERIFY(!t.control<QDoubleSpinBox>("Outline width"));
    QCOMPARE(t.control<board::ColorButton>("Fill colour")->color(), QColor(Qt::white));
}

void TestLook::pageBackground()
{
    StyledShape t;
    t.board.page().select({});
    Q_EMIT t.control<board::ColorButton>("Fill colour")->colorPicked(QColor(10, 20, 30));
    QCOMPARE(t.pixelAt({5, 5}), QColor(10, 20, 30));
    QCOMPARE(t.newSteps(), 1);
    t.undo();
    QCOMPARE(t.pixelAt({5, 5}), QColor(Qt::white));
    t.redo();
    QCOMPARE(t.pixelAt({5, 5}), QColor(10, 20, 30));
}

void TestLook::pageGetsAUsualSize()
{
    StyledShape t;
    t.board.page().select({});
    t.board.view().fitPage();
    auto *names = t.control<QComboBox>("Page size");
    QCOMPARE(names->currentText(), QString("Screen 16 : 9"));
    const int portrait = names->findText("A4 portrait");
    names->setCurrentIndex(portrait);
    Q_EMIT names->activated(portrait);
    QCOMPARE(t.board.page().size(), QSizeF(794, 1123));
    QCOMPARE(t.newSteps(), 1);
    support::deliverEvents();
    QCOMPARE(t.control<QDoubleSpinBox>("Width of the page")->value(), 794.0);
    QCOMPARE(t.control<QDoubleSpinBox>("Height of the page")->value(), 1123.0);
    // The whole page is still shown.
    const QRect shown = t.board.view().mapFromScene(t.board.page().rect()).boundingRect();
    QVERIFY(t.board.view().viewport()->rect().contains(shown));
    QCOMPARE(t.board.history().undoText(), QString("IDS_UNDO_PAGE_SIZE"));
}

void TestLook::pageGetsATypedSize()
{
    StyledShape t;
    t.board.page().select({});
    t.control<QDoubleSpinBox>("Width of the page")->setValue(640);
    QCOMPARE(t.board.page().size(), QSizeF(640, 720));
    support::deliverEvents();
    QCOMPARE(t.control<QComboBox>("Page size")->currentText(), QString("Other"));
    t.control<QDoubleSpinBox>("Height of the page")->setValue(400);
    QCOMPARE(t.board.page().size(), QSizeF(640, 400));
    QCOMPARE(t.newSteps(), 2);
    // Out of reach.
    t.control<QDoubleSpinBox>("Height of the page")->setValue(20000);
    QCOMPARE(t.board.page().size(), QSizeF(640, 10000));
    t.control<QDoubleSpinBox>("Height of the page")->setValue(1);
    QCOMPARE(t.board.page().size(), QSizeF(640, 50));
}

void TestLook::sizeOfThePageFollowsUndoAndOtherPages()
{
    StyledShape t;
    t.board.page().select({});
    t.control<QDoubleSpinBox>("Width of the page")->setValue(640);
    t.undo();
    QCOMPARE(t.board.page().size(), QSizeF(1280, 720));
    support::deliverEvents();
    QCOMPARE(t.control<QComboBox>("Page size")->currentText(), QString("Screen 16 : 9"));
    t.redo();
    t.board.window().commands()->action(board::Command::AddPage)->trigger();
    pagehost::setPageSize(&t.board.page(), {1056, 816});
    support::deliverEvents();
    QCOMPARE(t.control<QComboBox>("Page size")->currentText(), QString("Letter landscape"));
    t.board.window().commands()->action(board::Command::PreviousPage)->trigger();
    support::deliverEvents();
    QCOMPARE(t.control<QDoubleSpinBox>("Width of the page")->value(), 640.0);
}

void TestLook::gridIsSwitchedWhereThePageIs()
{
    StyledShape t;
    t.board.page().select({});
    QAction *grid = t.board.window().commands()->action(board::Command::Grid);
    QCoreApplication::processEvents();
    QCheckBox *box = nullptr;
    for (QCheckBox *candidate : support::listed(t.panel->findChildren<QCheckBox *>()))
        if (candidate->text() == QString("Grid") && candidate->isVisibleTo(t.panel))
            box = candidate;
    QVERIFY(box);
    QVERIFY(!box->isChecked());
    box->click();
    QVERIFY(grid->isChecked() && box->isChecked());
    grid->trigger();
    QVERIFY(!box->isChecked());
}

void TestLook::placeAsNumbers()
{
    StyledShape t;
    QCOMPARE(t.control<QDoubleSpinBox>("Left edge")->text(), QString("500 px"));
    t.control<QDoubleSpinBox>("Left edge")->setValue(450);
    t.control<QDoubleSpinBox>("Top edge")->setValue(320);
    QCOMPARE(t.board.placeOf(t.shape), QRectF(450, 320, 200, 120));
    t.control<QDoubleSpinBox>("Width")->setValue(150);
    t.control<QDoubleSpinBox>("Height")->setValue(90);
    QCOMPARE(t.board.placeOf(t.shape), QRectF(450, 320, 150, 90));
    t.control<QDoubleSpinBox>("Rotation")->setValue(30);
    QCOMPARE(t.shape->rotation(), 30.0);
    QCOMPARE(t.newSteps(), 5);
    for (int i = 0; i < 5; ++i)
        t.undo();
    QCOMPARE(t.board.placeOf(t.shape), QRectF(500, 300, 200, 120));
    QCOMPARE(t.shape->rotation(), 0.0);
}

void TestLook::severalShapesAreOneStep()
{
    StyledShape t;
    CBaseObject *other = t.board.draw(arrow, {800, 300}, {900, 400});
    const QColor before = pagehost::styleOf(other).penColor;
    t.board.key(Qt::Key_A, Qt::ControlModifier);
    const int steps = t.board.history().count();
    Q_EMIT t.control<board::ColorButton>("Outline colour")->colorPicked(QColor(200, 10, 20));
    QCOMPARE(t.board.history().count(), steps + 1);
    QCOMPARE(t.style().penColor, QColor(200, 10, 20));
    QCOMPARE(pagehost::styleOf(other).penColor, QColor(200, 10, 20));
    t.undo();
    QCOMPARE(pagehost::styleOf(other).penColor, before);
}

/// The panel doesn't scroll instead.
void TestLook::arrowKeyAfterTheChoiceOfAColourMovesTheShape()
{
    StyledShape t;
    t.board.view().setFocus();
    auto *button = t.control<board::ColorButton>("Outline colour");
    QTimer::singleShot(0, button, [] {
        QTest::mouseClick(QApplication::activePopupWidget()->findChild<QToolButton *>(), Qt::LeftButton);
    });
    QTest::mouseClick(button, Qt::LeftButton);
    QCOMPARE(t.style().penColor, QColor(Qt::black));
    QTest::keyClick(t.board.window().focusWidget(), Qt::Key_Right);
    QCOMPARE(t.board.placeOf(t.shape), QRectF(508, 300, 200, 120));
}

/// Two more shapes beside it that look otherwise, all three selected.
struct ThreeShapes : StyledShape
{
    ThreeShapes()
        : second(board.draw(rectangle, {100, 100}, {200, 160}))
        , third(board.draw(flask, {300, 100}, {380, 200}))
    {
        pagehost::setPenWidth({second}, 5);
        pagehost::setPenColor({second}, Qt::red);
        pagehost::setPenStyle({second}, Qt::DotLine);
        pagehost::setFill({second}, QColor(10, 20, 30));
        CPageBgProp gradient(nullptr);
        gradient.setFillEnable(true);
        gradient.setFillType(CPageBgProp::GradientFill);
        gradient.setFillColor(QColor(200, 0, 0));
        pagehost::setObjectsFill({shape}, gradient);
        board.page().select({shape, second, third});
        steps = board.history().count();
        QCoreApplication::processEvents();
    }
    QToolButton *type(const QString &name) const { return control<QToolButton>(name); }

    CBaseObject *second;
    CBaseObject *third;
};

void TestLook::valuesThatDifferAreShownAsADash()
{
    ThreeShapes t;
    const QString dash = QStringLiteral("—");
    QVERIFY(t.control<board::ColorButton>("Outline colour")->isMixed());
    QCOMPARE(t.control<QDoubleSpinBox>("Outline width")->text(), dash + " px");
    QCOMPARE(t.control<QComboBox>("Outline style")->currentIndex(), -1);
    QCOMPARE(t.control<QComboBox>("Outline style")->placeholderText(), dash);
    for (const char *name : {"No fill", "Colour", "Gradient", "Pattern", "Picture"})
        QVERIFY2(!t.type(name)->isChecked(), name);
    QVERIFY(t.control<board::ColorButton>("Fill colour")->isMixed());
    QCOMPARE(t.control<QDoubleSpinBox>("Width")->text(), dash + " px");
    QCOMPARE(t.control<QDoubleSpinBox>("Rotation")->text(), dash + "°");
    QCOMPARE(t.newSteps(), 0);
}

void TestLook::valuesThatAgreeAreShown()
{
    ThreeShapes t;
    t.board.page().select({t.second});
    support::deliverEvents();
    QCOMPARE(t.control<QDoubleSpinBox>("Outline width")->value(), 5);
    QVERIFY(!t.control<board::ColorButton>("Outline colour")->isMixed());
    QCOMPARE(t.control<QComboBox>("Outline style")->currentText(), QStringLiteral("Dotted"));
    QVERIFY(t.type("Colour")->isChecked());
    QCOMPARE(t.control<QDoubleSpinBox>("Width")->value(), 100.0);
    pagehost::setPenWidth({t.shape}, 5);
    t.board.page().select({t.shape, t.second});
    support::deliverEvents();
    QCOMPARE(t.control<QDoubleSpinBox>("Outline width")->text(), QStringLiteral("5 px"));
}

void TestLook::choosingAValueForADashGivesItToAll()
{
    ThreeShapes t;
    t.control<QDoubleSpinBox>("Outline width")->setValue(3);
    QCOMPARE(t.newSteps(), 1);
    for (CBaseObject *object : {t.shape, t.second, t.third})
        QCOMPARE(pagehost::styleOf(object).penWidth, 3);
    support::deliverEvents();
    QCOMPARE(t.control<QDoubleSpinBox>("Outline width")->text(), QStringLiteral("3 px"));
    Q_EMIT t.control<board::ColorButton>("Outline colour")->colorPicked(QColor(1, 2, 3));
    QCOMPARE(t.newSteps(), 2);
    for (CBaseObject *object : {t.shape, t.second, t.third})
        QCOMPARE(pagehost::styleOf(object).penColor, QColor(1, 2, 3));
    QTest::mouseClick(t.type("Colour"), Qt::LeftButton);
    QCOMPARE(t.newSteps(), 3);
    for (CBaseObject *object : {t.shape, t.second, t.third}) {
        QCOMPARE(object->getFillProp()->fillType(), int(CPageBgProp::SolidFill));
        QCOMPARE(object->getFillProp()->fillColor(), QColor(200, 0, 0));
    }
}

void TestLook::opacityForSeveralLeavesTheirColours()
{
    ThreeShapes t;
    const QColor flaskColor = pagehost::styleOf(t.third).fill.color();
    t.control<QSlider>("Opacity")->setValue(100);
    QCOMPARE(t.newSteps(), 1);
    QCOMPARE(t.shape->getFillProp()->fillType(), int(CPageBgProp::GradientFill));
    QCOMPARE(t.shape->getFillProp()->opacity(), 100);
    QCOMPARE(t.second->getFillProp()->fillColor(), QColor(10, 20, 30));
    QCOMPARE(t.second->getFillProp()->opacity(), 100);
    QColor paler = flaskColor;
    paler.setAlpha(100);
    QCOMPARE(pagehost::styleOf(t.third).fill.color(), paler);
    t.undo();
    QCOMPARE(t.second->getFillProp()->opacity(), 255);
    QCOMPARE(pagehost::styleOf(t.third).fill.color(), flaskColor);
}

/// The shape has a red outline of 6; everything else is the kind's own.
static void makeRed(StyledShape &t)
{
    Q_EMIT t.control<board::ColorButton>("Outline colour")->colorPicked(QColor(200, 10, 20));
    t.control<QDoubleSpinBox>("Outline width")->setValue(6);
    support::deliverEvents();
}

static QCheckBox *forNewOnes(const StyledShape &t)
{
    support::deliverEvents();
    for (auto *box : support::listed(t.panel->findChildren<QCheckBox *>()))
        if (box->text() == "Use for new ones" && box->isVisibleTo(t.panel))
            return box;
    return nullptr;
}

void TestLook::newShapesHaveTheirOwnLookUntilOneIsChosen()
{
    StyledShape t;
    const pagehost::ObjectStyle own = t.style();
    makeRed(t);
    CBaseObject *plain = t.board.draw(rectangle, {800, 300}, {900, 400});
    QCOMPARE(pagehost::styleOf(plain).penColor, own.penColor);
    QCOMPARE(pagehost::styleOf(plain).penWidth, own.penWidth);
    t.board.click({600, 360});
    QVERIFY(!forNewOnes(t)->isChecked());
    QTest::mouseClick(forNewOnes(t), Qt::LeftButton, {}, QPoint(8, forNewOnes(t)->height() / 2));
    CBaseObject *red = t.board.draw(rectangle, {800, 500}, {900, 600});
    QCOMPARE(pagehost::styleOf(red).penColor, QColor(200, 10, 20));
    QCOMPARE(pagehost::styleOf(red).penWidth, 6);
    QCOMPARE(pagehost::styleOf(red).fill.color(), own.fill.color());
}

void TestLook::lookUsedForNewOnesIsPartOfTheStepThatDrawsThem()
{
    StyledShape t;
    makeRed(t);
    QTest::mouseClick(forNewOnes(t), Qt::LeftButton, {}, QPoint(8, forNewOnes(t)->height() / 2));
    const int steps = t.board.history().count();
    CBaseObject *other = t.board.draw(flask, {800, 500}, {900, 600});
    QCOMPARE(t.board.history().count(), steps + 1);
    QCOMPARE(pagehost::styleOf(other).penColor, QColor(200, 10, 20));
    t.undo();
    QCOMPARE(t.board.page().objectCount(), 1);
    t.redo();
    QCOMPARE(pagehost::styleOf(t.board.page().objects().last()).penColor, QColor(200, 10, 20));
}

void TestLook::lookForNewOnesIsGivenUpAtANewShape()
{
    StyledShape t;
    const QColor own = t.style().penColor;
    makeRed(t);
    QTest::mouseClick(forNewOnes(t), Qt::LeftButton, {}, QPoint(8, forNewOnes(t)->height() / 2));
    t.board.draw(rectangle, {800, 500}, {900, 600});
    QVERIFY(forNewOnes(t)->isChecked());
    QTest::mouseClick(forNewOnes(t), Qt::LeftButton, {}, QPoint(8, forNewOnes(t)->height() / 2));
    QCOMPARE(pagehost::styleOf(t.board.draw(rectangle, {800, 300}, {900, 400})).penColor, own);
}

void TestLook::lookForNewOnesIsNotCheckedAtAShapeThatLooksOtherwise()
{
    StyledShape t;
    makeRed(t);
    QTest::mouseClick(forNewOnes(t), Qt::LeftButton, {}, QPoint(8, forNewOnes(t)->height() / 2));
    QVERIFY(forNewOnes(t)->isChecked());
    Q_EMIT t.control<board::ColorButton>("Outline colour")->colorPicked(QColor(0, 0, 200));
    QVERIFY(!forNewOnes(t)->isChecked());
}

void TestLook::turnMirrorAndLockStandBesideThePosition()
{
    StyledShape t;
    const auto press = [&](const QString &text) {
        for (auto *button : support::listed(t.panel->findChildren<QToolButton *>()))
            if (button->defaultAction() && button->defaultAction()->text().remove('&') == text)
                QTest::mouseClick(button, Qt::LeftButton);
    };
    press("Rotate right");
    QCOMPARE(t.shape->rotation(), 90.0);
    press("Mirror left to right");
    QCOMPARE(t.newSteps(), 2);
    press("Lock");
    QVERIFY(t.shape->isLocked());
    QCOMPARE(t.newSteps(), 3);
}

void TestLook::foldedSectionStaysFolded()
{
    const auto sectionOf = [](const StyledShape &t) {
        support::deliverEvents();
        return t.panel->findChild<board::PlaceControls *>()->isVisibleTo(t.panel);
    };
    {
        StyledShape t;
        QVERIFY(sectionOf(t));
        for (auto *title : support::listed(t.panel->findChildren<QToolButton *>()))
            if (title->text() == "Position and size")
                QTest::mouseClick(title, Qt::LeftButton);
        QVERIFY(!sectionOf(t));
    }
    StyledShape again;
    QVERIFY(!sectionOf(again));
    QSettings().clear();
}

QTEST_MAIN(TestLook)
#include "test_look.moc"
