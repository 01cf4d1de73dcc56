// Settings and property panels, driven by the mouse and the keys on their widgets.

#include <board/boarddriver.h>

#include <board/panelobject.h>
#include <support/listed.h>
#include <support/virtualtime.h>

#include <panels/colorbutton.h>
#include <panels/editors/switcheditor.h>
#include <panels/properties/propertypanel.h>
#include <panels/settings/settingspanel.h>
#include <window/mainwindow.h>

#include <pagehost/page.h>
#include <pagehost/style.h>

#include <QtTest/QtTest>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOptionSlider>
#include <QtWidgets/QUndoStack>

using namespace boardtest;

/// Two selected objects with a control of every kind, and a panel that shows them.
struct PanelDesk
{
    enum Which { Settings, Properties };

    explicit PanelDesk(Which which, int count = 1)
    {
        board.workspace().registry().addPlugin(&plugin, "test");
        if (which == Settings)
            panel = board.window().settings();
        else
            panel = board.window().properties();
        board.window().raisePanel(panel);
        QVector<CBaseObject *> all;
        for (int i = 0; i < count; ++i) {
            auto *object = static_cast<PanelObject *>(board.workspace().registry().createObject("test.panel"));
            board.page().addObject(object);
            objects.append(object);
            all.append(object);
        }
        board.page().select(all);
        settle();
    }
    /// The panel follows in the next turn of the event loop.
    void settle() { QCoreApplication::processEvents(); }

    template<typename Widget> Widget *widget(const QString &name) const
    {
        for (Widget *candidate : panel->findChildren<Widget *>())
            if (candidate->accessibleName() == name && candidate->isVisible())
                return candidate;
        return nullptr;
    }
    PanelObject &first() const { return *objects.first(); }
    QUndoStack &history() { return board.history(); }
    void undo() { board.key(Qt::Key_Z, Qt::ControlModifier); }
    void redo() { board.key(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier); }
    QStringList captions() const
    {
        QStringList texts;
        for (const QLabel *label : support::listed(panel->findChildren<QLabel *>()))
            if (label->isVisible())
                texts.append(label->text());
        return texts;
    }

    PanelPlugin plugin;
    BoardDriver board;
    board::SelectionPanel *panel = nullptr;
    QVector<PanelObject *> objects;
};

/// The slider's knob under the mouse.
class Knob
{
public:
    explicit Knob(QSlider *slider)
        : m_slider(slider)
    {
    }
    void press() { QTest::mousePress(m_slider, Qt::LeftButton, Qt::NoModifier, at(m_slider->value())); }
    void moveTo(int value)
    {
        QMouseEvent event(QEvent::MouseMove, at(value), m_slider->mapToGlobal(at(value)), Qt::NoButton,
                          Qt::LeftButton, Qt::NoModifier);
        QApplication::sendEvent(m_slider, &event);
    }
    void release() { QTest::mouseRelease(m_slider, Qt::LeftButton, Qt::NoModifier, at(m_slider->value())); }

private:
    QPoint at(int value) const
    {
        QStyleOptionSlider option;
        option.initFrom(m_slider);
        option.orientation = Qt::Horizontal;
        option.minimum = m_slider->minimum();
        option.maximum = m_slider->maximum();
        option.sliderPosition = value;
        option.sliderValue = value;
        return m_slider->style()
            ->subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, m_slider)
            .center();
    }

    QSlider *m_slider;
};

class TestPanels : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void aFormulaThatCantBeReadIsTold();
    void everySettingHasItsWidget();
    void choosingAnEntry();
    void pickingAColour();
    void typingText();
    void leavingTextUnchangedIsNoAnswer();
    void flippingASwitch();
    void pressingACommand();
    void movingASliderShowsAndReleasingIsOneStep();
    void releasingASliderWhereItWasLeavesNoTrace();
    void movingASliderWithKeys();
    void typingASlidersNumber();
    void severalObjectsAreOneStep();
    void differentValuesAreShownAsSuch();
    void onlyWhatAllHaveIsShown();
    void nothingSelectedShowsNoSettings();
    void selectingElsewhereTakesALookBack();
    void undoWhileASliderMovesTakesTheLookBackFirst();
    void everyPropertyHasItsWidget();
    void propertiesAreSetByTheirEditors();
    void propertyThatCantBeChangedIsDisabled();
    void propertySliderIsOneStep();
    void mixedPropertyTakesOneValue();
    void lookIsNoSettingOfItsOwn();
    void lineStyleOfAShapeThroughTheList();
    void lineWidthOfAShapeThroughTheList();
    void cornersOfAStarFollowTheSlider();
    void historyNamesWhatWasSet();
    void panelsInGerman();
};

void TestPanels::everySettingHasItsWidget()
{
    PanelDesk t(PanelDesk::Settings);
    QCOMPARE(t.captions(), (QStringList{"Choice", "Colour", "Name", "On", "Size"}));
    QCOMPARE(t.widget<QComboBox>("Choice")->currentText(), QString("First"));
    QCOMPARE(t.widget<board::ColorButton>("Colour")->color(), QColor(Qt::blue));
    QCOMPARE(t.widget<QLineEdit>("Name")->text(), QString("old"));
    QVERIFY(!t.widget<board::ToggleSwitch>("On")->isChecked());
    QCOMPARE(t.widget<QSlider>("Size")->value(), 40);
    QCOMPARE(t.widget<QDoubleSpinBox>("Size")->text(), QString("40 cm"));
    QCOMPARE(t.widget<QPushButton>("Go")->text(), QString("Go"));
}

void TestPanels::choosingAnEntry()
{
    PanelDesk t(PanelDesk::Settings);
    auto *box = t.widget<QComboBox>("Choice");
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(t.first().settings["choice"], QString("1"));
    QCOMPARE(t.history().count(), 1);
    t.undo();
    t.settle();
    QCOMPARE(t.first().settings["choice"], QString("0"));
    QCOMPARE(box->currentIndex(), 0);
}

void TestPanels::pickingAColour()
{
    PanelDesk t(PanelDesk::Settings);
    Q_EMIT t.widget<board::ColorButton>("Colour")->colorPicked(QColor(1, 2, 3, 128));
    QCOMPARE(t.first().settings["color"], QString("#80010203"));
    QCOMPARE(t.history().count(), 1);
}

void TestPanels::typingText()
{
    PanelDesk t(PanelDesk::Settings);
    auto *line = t.widget<QLineEdit>("Name");
    line->setFocus();
    line->selectAll();
    QTest::keyClicks(line, "new");
    QCOMPARE(t.first().settings["name"], QString("old"));
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(t.first().settings["name"], QString("new"));
    QCOMPARE(t.history().count(), 1);
    t.undo();
    t.settle();
    QCOMPARE(t.widget<QLineEdit>("Name")->text(), QString("old"));
}

void TestPanels::leavingTextUnchangedIsNoAnswer()
{
    PanelDesk t(PanelDesk::Settings);
    auto *line = t.widget<QLineEdit>("Name");
    line->setFocus();
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(t.history().count(), 0);
    QCOMPARE(t.first().changes, 0);
}

void TestPanels::flippingASwitch()
{
    PanelDesk t(PanelDesk::Settings);
    QTest::mouseClick(t.widget<board::ToggleSwitch>("On"), Qt::LeftButton);
    QCOMPARE(t.first().settings["on"], QString("true"));
    QCOMPARE(t.history().count(), 1);
    QTest::keyClick(t.widget<board::ToggleSwitch>("On"), Qt::Key_Space);
    QCOMPARE(t.first().settings["on"], QString("false"));
}

void TestPanels::pressingACommand()
{
    PanelDesk t(PanelDesk::Settings);
    QTest::mouseClick(t.widget<QPushButton>("Go"), Qt::LeftButton);
    QCOMPARE(t.first().settings["go"], QString("start"));
    QCOMPARE(t.history().count(), 1);
}

void TestPanels::movingASliderShowsAndReleasingIsOneStep()
{
    PanelDesk t(PanelDesk::Settings);
    Knob knob(t.widget<QSlider>("Size"));
    knob.press();
    knob.moveTo(60);
    t.settle();
    QCOMPARE(t.first().settings["size"], QString("60"));
    QCOMPARE(t.widget<QDoubleSpinBox>("Size")->value(), 60.0);
    QCOMPARE(t.history().count(), 0);
    QCOMPARE(t.first().recorded, 0);
    knob.moveTo(75);
    QCOMPARE(t.first().settings["size"], QString("75"));
    knob.release();
    QCOMPARE(t.first().settings["size"], QString("75"));
    QCOMPARE(t.history().count(), 1);
    QCOMPARE(t.first().recorded, 1);
    t.undo();
    QCOMPARE(t.first().settings["size"], QString("40"));
    t.redo();
    QCOMPARE(t.first().settings["size"], QString("75"));
}

void TestPanels::releasingASliderWhereItWasLeavesNoTrace()
{
    PanelDesk t(PanelDesk::Settings);
    Knob knob(t.widget<QSlider>("Size"));
    knob.press();
    knob.moveTo(60);
    knob.moveTo(40);
    knob.release();
    QCOMPARE(t.first().settings["size"], QString("40"));
    QCOMPARE(t.history().count(), 0);
    QCOMPARE(t.first().recorded, 0);
}

void TestPanels::movingASliderWithKeys()
{
    PanelDesk t(PanelDesk::Settings);
    auto *slider = t.widget<QSlider>("Size");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Right);
    QCOMPARE(t.first().settings["size"], QString("41"));
    QCOMPARE(t.history().count(), 1);
}

void TestPanels::typingASlidersNumber()
{
    PanelDesk t(PanelDesk::Settings);
    auto *field = t.widget<QDoubleSpinBox>("Size");
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "55");
    QCOMPARE(t.history().count(), 0);
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(t.first().settings["size"], QString("55"));
    QCOMPARE(t.history().count(), 1);
}

void TestPanels::severalObjectsAreOneStep()
{
    PanelDesk t(PanelDesk::Settings, 3);
    QTest::mouseClick(t.widget<board::ToggleSwitch>("On"), Qt::LeftButton);
    for (const PanelObject *object : support::listed(t.objects))
        QCOMPARE(object->settings["on"], QString("true"));
    QCOMPARE(t.history().count(), 1);
    t.undo();
    for (const PanelObject *object : support::listed(t.objects))
        QCOMPARE(object->settings["on"], QString("false"));
}

void TestPanels::differentValuesAreShownAsSuch()
{
    PanelDesk t(PanelDesk::Settings, 2);
    t.objects.at(1)->SetSettingJson(R"({"choice":"1","color":"#ff00ff00","name":"x","on":"true","size":"70"})",
                                    false, false);
    support::deliverEvents();
    QVERIFY(t.widget<board::ToggleSwitch>("On")->isMixed());
    QCOMPARE(t.widget<QComboBox>("Choice")->currentIndex(), -1);
    QVERIFY(t.widget<board::ColorButton>("Colour")->isMixed());
    QCOMPARE(t.widget<QLineEdit>("Name")->text(), QString());
    QCOMPARE(t.widget<QLineEdit>("Name")->placeholderText(), QString("—"));
    QCOMPARE(t.widget<QDoubleSpinBox>("Size")->text(), QString("— cm"));
    QTest::mouseClick(t.widget<board::ToggleSwitch>("On"), Qt::LeftButton);
    QCOMPARE(t.objects.at(0)->settings["on"], QString("true"));
    QVERIFY(!t.widget<board::ToggleSwitch>("On")->isMixed());
    // The others are still what they were.
    QVERIFY(t.widget<board::ColorButton>("Colour")->isMixed());
    QCOMPARE(t.objects.at(1)->settings["size"], QString("70"));
}

void TestPanels::onlyWhatAllHaveIsShown()
{
    PanelDesk t(PanelDesk::Settings);
    CBaseObject *star = t.board.draw(QStringLiteral("shapes.star"), {500, 300}, {700, 500});
    t.settle();
    QVERIFY(t.widget<QSlider>("Corners"));
    t.board.page().select({star, t.objects.first()});
    t.settle();
    QVERIFY(!t.widget<QSlider>("Corners"));
    QVERIFY(t.captions().contains("There is nothing to set here that all of them have."));
}

void TestPanels::nothingSelectedShowsNoSettings()
{
    PanelDesk t(PanelDesk::Settings);
    t.board.page().select({});
    t.settle();
    QCOMPARE(t.captions(), QStringList());
    QVERIFY(!t.panel->isVisible());
}

void TestPanels::selectingElsewhereTakesALookBack()
{
    PanelDesk t(PanelDesk::Settings);
    Knob knob(t.widget<QSlider>("Size"));
    knob.press();
    knob.moveTo(60);
    t.board.page().select({});
    QCOMPARE(t.first().settings["size"], QString("40"));
    QCOMPARE(t.history().count(), 0);
}

void TestPanels::undoWhileASliderMovesTakesTheLookBackFirst()
{
    PanelDesk t(PanelDesk::Settings);
    auto *slider = t.widget<QSlider>("Size");
    slider->setFocus();
    QTest::keyClick(slider, Qt::Key_Right);
    QCOMPARE(t.first().settings["size"], QString("41"));
    t.settle();
    Knob knob(slider);
    knob.press();
    knob.moveTo(60);
    t.undo();
    QCOMPARE(t.first().settings["size"], QString("40"));
    QVERIFY(t.history().canRedo());
    t.redo();
    QCOMPARE(t.first().settings["size"], QString("41"));
}

void TestPanels::everyPropertyHasItsWidget()
{
    PanelDesk t(PanelDesk::Properties);
    QCOMPARE(t.captions(), (QStringList{"Whole", "Real", "Switch", "Text", "Paint", "Locked"}));
    QCOMPARE(t.widget<QSlider>("Whole")->value(), 3);
    QCOMPARE(t.widget<QDoubleSpinBox>("Real")->value(), 1.5);
    QVERIFY(!t.widget<board::ToggleSwitch>("Switch")->isChecked());
    QCOMPARE(t.widget<QLineEdit>("Text")->text(), QString("old"));
    QCOMPARE(t.widget<board::ColorButton>("Paint")->color(), QColor(Qt::blue));
}

void TestPanels::propertiesAreSetByTheirEditors()
{
    PanelDesk t(PanelDesk::Properties);
    QTest::mouseClick(t.widget<board::ToggleSwitch>("Switch"), Qt::LeftButton);
    QVERIFY(t.first().on);
    auto *line = t.widget<QLineEdit>("Text");
    line->setFocus();
    QTest::keyClicks(line, "er");
    QTest::keyClick(line, Qt::Key_Return);
    QCOMPARE(t.first().text, QString("older"));
    auto *real = t.widget<QDoubleSpinBox>("Real");
    real->setFocus();
    QTest::keyClick(real, Qt::Key_Up);
    QCOMPARE(t.first().real, 2.5);
    Q_EMIT t.widget<board::ColorButton>("Paint")->colorPicked(QColor(1, 2, 3, 128));
    QCOMPARE(t.first().color, QColor(1, 2, 3, 128));
    QCOMPARE(t.history().count(), 4);
    QCOMPARE(t.first().recorded, 4);
    for (int i = 0; i < 4; ++i)
        t.undo();
    QCOMPARE(t.first().text, QString("old"));
    QCOMPARE(t.first().real, 1.5);
    QVERIFY(!t.first().on);
}

void TestPanels::propertyThatCantBeChangedIsDisabled()
{
    PanelDesk t(PanelDesk::Properties);
    QVERIFY(!t.widget<board::ToggleSwitch>("Locked")->isEnabled());
    QVERIFY(t.widget<board::ToggleSwitch>("Switch")->isEnabled());
}

void TestPanels::propertySliderIsOneStep()
{
    PanelDesk t(PanelDesk::Properties, 2);
    Knob knob(t.widget<QSlider>("Whole"));
    knob.press();
    knob.moveTo(5);
    knob.moveTo(8);
    QCOMPARE(t.objects.at(1)->whole, 8);
    QCOMPARE(t.history().count(), 0);
    knob.release();
    QCOMPARE(t.objects.at(0)->whole, 8);
    QCOMPARE(t.history().count(), 1);
    QCOMPARE(t.first().recorded, 1);
    t.undo();
    QCOMPARE(t.objects.at(0)->whole, 3);
    QCOMPARE(t.objects.at(1)->whole, 3);
}

void TestPanels::mixedPropertyTakesOneValue()
{
    PanelDesk t(PanelDesk::Properties, 2);
    t.objects.at(1)->real = 9;
    t.board.page().select({});
    t.board.page().select({t.objects.at(0), t.objects.at(1)});
    t.settle();
    auto *field = t.widget<QDoubleSpinBox>("Real");
    QCOMPARE(field->text(), QString("—"));
    field->setFocus();
    field->selectAll();
    QTest::keyClicks(field, "4");
    QTest::keyClick(field, Qt::Key_Return);
    QCOMPARE(t.objects.at(0)->real, 4.0);
    QCOMPARE(t.objects.at(1)->real, 4.0);
    QCOMPARE(t.history().count(), 1);
}

/// Colour and line stand under one name in one place.
void TestPanels::lookIsNoSettingOfItsOwn()
{
    PanelDesk t(PanelDesk::Settings);
    t.board.draw(QStringLiteral("shapes.star"), {500, 300}, {700, 500});
    t.settle();
    QVERIFY(t.widget<QSlider>("Corners"));
    QVERIFY(!t.widget<QComboBox>("Line style"));
    QVERIFY(!t.widget<board::ColorButton>("Outline colour"));
    QVERIFY(!t.widget<board::ColorButton>("Fill colour"));
}

void TestPanels::lineStyleOfAShapeThroughTheList()
{
    PanelDesk t(PanelDesk::Properties);
    CBaseObject *shape = t.board.draw(rectangle, {500, 300}, {700, 420});
    pagehost::setPenStyle({shape}, Qt::DashLine);
    t.settle();
    auto *box = t.widget<QComboBox>("Line style");
    // With "no pen" before them.
    QCOMPARE(box->count(), 6);
    QVERIFY(!box->itemIcon(1).isNull());
    box->setFocus();
    QCOMPARE(box->currentIndex(), int(Qt::DashLine));
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(pagehost::styleOf(shape).penStyle, Qt::DotLine);
}

void TestPanels::lineWidthOfAShapeThroughTheList()
{
    PanelDesk t(PanelDesk::Properties);
    CBaseObject *shape = t.board.draw(rectangle, {500, 300}, {700, 420});
    pagehost::setPenWidth({shape}, 3);
    t.settle();
    auto *box = t.widget<QComboBox>("Line width");
    QCOMPARE(box->currentText(), QString("3"));
    box->setFocus();
    QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(pagehost::styleOf(shape).penWidth, 4);
}

static QByteArray savedBytes(CBaseObject *object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object->save(out);
    return bytes;
}

void TestPanels::cornersOfAStarFollowTheSlider()
{
    PanelDesk t(PanelDesk::Settings);
    CBaseObject *star = t.board.draw(QStringLiteral("shapes.star"), {500, 300}, {700, 500});
    t.settle();
    const QByteArray before = savedBytes(star);
    const int steps = t.history().count();
    auto *slider = t.widget<QSlider>("Corners");
    QVERIFY(slider);
    Knob knob(slider);
    knob.press();
    knob.moveTo(slider->value() + 3);
    QVERIFY(savedBytes(star) != before);
    QCOMPARE(t.history().count(), steps);
    knob.release();
    const QByteArray after = savedBytes(star);
    QVERIFY(after != before);
    QCOMPARE(t.history().count(), steps + 1);
    t.undo();
    QCOMPARE(savedBytes(star), before);
    t.redo();
    QCOMPARE(savedBytes(star), after);
}

void TestPanels::historyNamesWhatWasSet()
{
    PanelDesk t(PanelDesk::Settings);
    QTest::mouseClick(t.widget<board::ToggleSwitch>("On"), Qt::LeftButton);
    QCOMPARE(t.history().text(0), QString("IDS_TEST_ON"));
    t.board.draw(rectangle, {500, 300}, {700, 420});
    pagehost::setPenColor(t.board.selection(), Qt::red);
    QCOMPARE(t.history().text(t.history().count() - 1), QString("IDS_SVG_PENCOLOR"));
    t.board.draw(QStringLiteral("shapes.star"), {500, 300}, {700, 500});
    t.settle();
    auto *corners = t.widget<QSlider>("Corners");
    QCOMPARE(t.widget<QDoubleSpinBox>("Corners")->value(), 5.0);
    corners->setFocus();
    QTest::keyClick(corners, Qt::Key_Right);
    QCOMPARE(t.history().text(t.history().count() - 1), QString("Star: Corners 6"));
}

void TestPanels::panelsInGerman()
{
    BoardDriver board(QStringLiteral("de"));
    board.draw(rectangle, {500, 300}, {700, 420});
    board.window().raisePanel(board.window().properties());
    QCoreApplication::processEvents();
    QStringList texts;
    for (const QLabel *label : support::listed(board.window().properties()->findChildren<QLabel *>()))
        texts.append(label->text());
    QVERIFY2(texts.contains("Linienbreite"), qPrintable(texts.join(' ')));
    QVERIFY(texts.contains("Füllfarbe"));
}

void TestPanels::aFormulaThatCantBeReadIsTold()
{
    BoardDriver board;
    CBaseObject *curve = board.draw(QStringLiteral("shapes.curve"), {100, 300}, {400, 500});
    board.page().select({curve});
    curve->SetSettingJson(QStringLiteral("{\"idFunction\": \"1\"}"), true, true);
    board::SelectionPanel *panel = board.window().settings();
    board.window().raisePanel(panel);
    panel->refresh();
    const auto field = [panel]() -> QLineEdit * {
        for (QLineEdit *line : support::listed(panel->findChildren<QLineEdit *>()))
            if (line->accessibleName() == QLatin1String("Formula"))
                return line;
        return nullptr;
    };
    const auto write = [&](const char *text) {
        field()->selectAll();
        QTest::keyClicks(field(), QLatin1String(text));
        QTest::keyClick(field(), Qt::Key_Return);
        panel->refresh();
    };
    const auto note = [&] { return field()->parentWidget()->findChild<QLabel *>(); };
    QVERIFY(field());
    QVERIFY(note()->isHidden());
    write("x + qq");
    QCOMPARE(note()->text(), QStringLiteral("There is no “qq” (character 5)."));
    QVERIFY(!note()->isHidden());
    QCOMPARE(field()->accessibleDescription(), note()->text());
    QCOMPARE(field()->text(), QStringLiteral("x + qq"));
    write("x + 1");
    QVERIFY(note()->isHidden());
}

QTEST_MAIN(TestPanels)
#include "test_panels.moc"
