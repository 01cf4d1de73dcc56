// Whether what the theme and its controls paint can be told from what is behind it.

#include <look/controlstyle.h>
#include <look/icons.h>
#include <look/theme.h>

#include <support/listed.h>

#include <QtGui/QPainter>
#include <QtGui/QScreen>
#include <QtTest/QtTest>
#include <QtWidgets/QAbstractItemView>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QSpinBox>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleOption>

#include <cmath>
#include <memory>

using board::Theme;
using board::ThemeColors;

namespace {

constexpr double leastOfText = 4.5;
constexpr double leastOfEdges = 3;

double linear(double channel)
{
    return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double luminance(const QColor &color)
{
    return 0.2126 * linear(color.redF()) + 0.7152 * linear(color.greenF()) + 0.0722 * linear(color.blueF());
}

/// As the Web Content Accessibility Guidelines define it, 1 to 21.
double contrast(const QColor &one, const QColor &other)
{
    const double first = luminance(one) + 0.05;
    const double second = luminance(other) + 0.05;
    return qMax(first, second) / qMin(first, second);
}

struct NamedColor
{
    const char *name;
    QColor ThemeColors::*color;
};

const NamedColor grounds[] = {{"bar", &ThemeColors::bar},   {"surface", &ThemeColors::surface},
                              {"desk", &ThemeColors::desk}, {"field", &ThemeColors::field},
                              {"soft", &ThemeColors::soft}, {"hover", &ThemeColors::hover}};
const NamedColor letters[] = {{"text", &ThemeColors::text},     {"faint", &ThemeColors::faint},
                              {"accent", &ThemeColors::accent}, {"bad", &ThemeColors::bad},
                              {"good", &ThemeColors::good},     {"warn", &ThemeColors::warn},
                              {"record", &ThemeColors::record}};

/// Pairs that are used nowhere.
bool isLeftOut(Theme theme, const QString &letter, const QString &ground)
{
    if (letter == "good" && ground == "desk")
        return true;
    return theme == Theme::Dark && letter == "record" && (ground == "soft" || ground == "hover");
}

const char *nameOf(Theme theme)
{
    return theme == Theme::Dark ? "dark" : "light";
}

using Maker = QWidget *(*)(QWidget *parent);

template<typename Control> QWidget *make(QWidget *parent)
{
    return new Control(parent);
}

QWidget *makeSlider(QWidget *parent)
{
    return new QSlider(Qt::Horizontal, parent);
}

struct NamedMaker
{
    const char *name;
    Maker make;
};

const NamedMaker makers[] = {{"check box", make<QCheckBox>}, {"radio button", make<QRadioButton>},
                             {"combo", make<QComboBox>},     {"spin box", make<QSpinBox>},
                             {"field", make<QLineEdit>},     {"push button", make<QPushButton>},
                             {"slider", makeSlider}};

/// A control in the middle of a part with this background.
struct Shown
{
    Shown(Maker makeControl, const QColor &background)
    {
        QPalette palette = part.palette();
        palette.setColor(QPalette::Window, background);
        part.setPalette(palette);
        part.resize(160, 60);
        control = makeControl(&part);
        control->setGeometry(20, 15, 120, 30);
        control->ensurePolished();
    }
    /// The strongest contrast with the background on the way into the control from its left.
    double edge()
    {
        const QImage picture = part.grab().toImage();
        double strongest = 1;
        for (int x = 0; x < 40; ++x)
            strongest = qMax(strongest, contrast(picture.pixelColor(x, 30), picture.pixelColor(2, 2)));
        return strongest;
    }

    QWidget part;
    QWidget *control;
};

/// Whether the left end of a row, where its picture is, has pixels of this colour.
bool hasInPicture(const QMenu &menu, const QImage &drawn, const QColor &color)
{
    const QRect row = menu.actionGeometry(menu.actions().constFirst());
    for (int y = row.top(); y <= row.bottom(); ++y)
        for (int x = row.left(); x < row.left() + row.height(); ++x)
            if (drawn.pixelColor(x, y) == color)
                return true;
    return false;
}

} // namespace

class TestControlStyle : public QObject
{
    Q_OBJECT

private Q_SLOTS:
    void cleanup() { board::applyTheme(Theme::Light); }
    void lettersCanBeReadOnEveryGround_data();
    void lettersCanBeReadOnEveryGround();
    void edgesOfControlsStandOutOnBarsAndSurfaces_data();
    void edgesOfControlsStandOutOnBarsAndSurfaces();
    void focusedFieldHasAnEdgeOfTwoPixelsInTheAccent();
    void checkedBoxIsFilledWithTheAccentAndItsTickStandsOut();
    void sliderIsFilledUpToItsKnob();
    void fieldsAreAtLeastSoHigh();
    void menusThatAreTooLongScroll();
    void everyLineBetweenEntriesOfAMenuIsDrawn();
    void thePictureOfAHighlightedEntryStandsOut();
    void theListOfAComboBoxHasAnEdge();
};

void TestControlStyle::lettersCanBeReadOnEveryGround_data()
{
    QTest::addColumn<int>("theme");
    QTest::newRow("light") << int(Theme::Light);
    QTest::newRow("dark") << int(Theme::Dark);
}

void TestControlStyle::lettersCanBeReadOnEveryGround()
{
    QFETCH(int, theme);
    board::applyTheme(Theme(theme));
    const ThemeColors colors = board::themeColors();
    QStringList weak;
    for (const NamedColor &letter : letters)
        for (const NamedColor &ground : grounds)
            if (!isLeftOut(Theme(theme), letter.name, ground.name) &&
                contrast(colors.*letter.color, colors.*ground.color) < leastOfText)
                weak.append(QStringLiteral("%1 on %2").arg(letter.name, ground.name));
    if (contrast(colors.onAccent, colors.accent) < leastOfText)
        weak.append("on accent");
    for (const QColor &ground : {colors.bar, colors.surface, colors.field})
        if (contrast(colors.control, ground) < leastOfEdges)
            weak.append("edges on " + ground.name());
    QCOMPARE(weak.join(", "), QString());
}

void TestControlStyle::edgesOfControlsStandOutOnBarsAndSurfaces_data()
{
    QTest::addColumn<int>("theme");
    QTest::addColumn<int>("maker");
    for (const Theme theme : {Theme::Light, Theme::Dark})
        for (int i = 0; i < int(std::size(makers)); ++i)
            QTest::addRow("%s %s", nameOf(theme), makers[i].name) << int(theme) << i;
}

void TestControlStyle::edgesOfControlsStandOutOnBarsAndSurfaces()
{
    QFETCH(int, theme);
    QFETCH(int, maker);
    board::applyTheme(Theme(theme));
    for (const QColor &background : {board::themeColors().bar, board::themeColors().surface}) {
        Shown shown(makers[maker].make, background);
        QVERIFY2(shown.edge() >= leastOfEdges, qPrintable(QString::number(shown.edge())));
    }
}

void TestControlStyle::focusedFieldHasAnEdgeOfTwoPixelsInTheAccent()
{
    board::applyTheme(Theme::Light);
    QStyleOptionSpinBox option;
    option.rect = QRect(0, 0, 60, 28);
    option.state = QStyle::State_Enabled | QStyle::State_HasFocus;
    option.buttonSymbols = QAbstractSpinBox::NoButtons;
    QImage picture(60, 28, QImage::Format_RGB32);
    picture.fill(Qt::white);
    {
        QPainter painter(&picture);
        board::ControlStyle().drawComplexControl(QStyle::CC_SpinBox, &option, &painter);
    }
    const QColor accent = board::themeColors().accent;
    QCOMPARE(picture.pixelColor(0, 14), accent);
    QCOMPARE(picture.pixelColor(1, 14), accent);
    QCOMPARE(picture.pixelColor(2, 14), board::themeColors().field);
}

void TestControlStyle::checkedBoxIsFilledWithTheAccentAndItsTickStandsOut()
{
    for (const Theme theme : {Theme::Light, Theme::Dark}) {
        board::applyTheme(theme);
        QStyleOptionButton option;
        option.rect = QRect(0, 0, 16, 16);
        option.state = QStyle::State_Enabled | QStyle::State_On;
        QImage picture(16, 16, QImage::Format_RGB32);
        {
            QPainter painter(&picture);
            board::ControlStyle().drawPrimitive(QStyle::PE_IndicatorCheckBox, &option, &painter);
        }
        QCOMPARE(picture.pixelColor(8, 3), board::themeColors().accent);
        // Where both strokes of the tick meet.
        QVERIFY(contrast(picture.pixelColor(6, 10), board::themeColors().accent) >= leastOfEdges);
    }
}

void TestControlStyle::sliderIsFilledUpToItsKnob()
{
    board::applyTheme(Theme::Dark);
    QSlider slider(Qt::Horizontal);
    slider.setRange(0, 100);
    slider.setValue(50);
    slider.resize(200, 30);
    const QImage picture = slider.grab().toImage();
    QCOMPARE(picture.pixelColor(40, 15), board::themeColors().accent);
    QCOMPARE(picture.pixelColor(160, 15), board::themeColors().control);
    slider.setLayoutDirection(Qt::RightToLeft);
    const QImage mirrored = slider.grab().toImage();
    QCOMPARE(mirrored.pixelColor(40, 15), board::themeColors().control);
    QCOMPARE(mirrored.pixelColor(160, 15), board::themeColors().accent);
}

void TestControlStyle::fieldsAreAtLeastSoHigh()
{
    board::applyTheme(Theme::Light);
    for (const NamedMaker &maker : makers) {
        if (maker.make != make<QComboBox> && maker.make != make<QPushButton>)
            continue;
        const std::unique_ptr<QWidget> control(maker.make(nullptr));
        QFont font = control->font();
        font.setPixelSize(8);
        control->setFont(font);
        QVERIFY2(control->sizeHint().height() == 28, maker.name);
    }
}

void TestControlStyle::menusThatAreTooLongScroll()
{
    board::applyTheme(Theme::Light);
    QMenu menu;
    const int screen = QGuiApplication::primaryScreen()->geometry().height();
    for (int height = 0; height < 2 * screen; height += 10)
        menu.addAction(QStringLiteral("DejaVu Sans"));
    menu.popup(QPoint());
    QVERIFY(menu.height() <= screen);
    // In columns it would be wider.
    QMenu one;
    one.addAction(QStringLiteral("DejaVu Sans"));
    QCOMPARE(menu.width(), one.sizeHint().width());
    menu.hide();
}

void TestControlStyle::everyLineBetweenEntriesOfAMenuIsDrawn()
{
    board::applyTheme(Theme::Light);
    QPixmap picture(16, 16);
    picture.fill(Qt::red);
    QMenu menu;
    menu.addAction(QStringLiteral("Delete"))->setIcon(picture);
    menu.addSeparator();
    menu.addAction(QStringLiteral("Copy look"));
    menu.addSeparator();
    menu.addAction(QStringLiteral("Grid"))->setCheckable(true);
    menu.addSeparator();
    menu.addMenu(QStringLiteral("Order"));
    menu.addSeparator();
    menu.addAction(QStringLiteral("Select all"));
    const QImage drawn = menu.grab().toImage();
    for (QAction *action : support::listed(menu.actions())) {
        if (!action->isSeparator())
            continue;
        const QRect place = menu.actionGeometry(action);
        QCOMPARE(drawn.pixelColor(place.center()), board::themeColors().border);
        QCOMPARE(drawn.pixelColor(place.center() - QPoint(0, 1)), board::themeColors().surface);
        QCOMPARE(drawn.pixelColor(place.center() + QPoint(0, 1)), board::themeColors().surface);
    }
}

void TestControlStyle::thePictureOfAHighlightedEntryStandsOut()
{
    board::applyTheme(Theme::Light);
    QMenu menu;
    QAction *entry = menu.addAction(QStringLiteral("Play the lesson"));
    entry->setIcon(board::icon(board::Icon::Play));
    const ThemeColors &colors = board::themeColors();
    QVERIFY(hasInPicture(menu, menu.grab().toImage(), colors.text));
    menu.setActiveAction(entry);
    const QImage highlighted = menu.grab().toImage();
    QVERIFY(hasInPicture(menu, highlighted, colors.onAccent));
    QVERIFY(!hasInPicture(menu, highlighted, colors.text));
}

void TestControlStyle::theListOfAComboBoxHasAnEdge()
{
    board::applyTheme(Theme::Light);
    QComboBox combo;
    combo.addItems({"None", "Arrow head", "Dot"});
    combo.show();
    combo.showPopup();
    // Its arrows are hidden when they have nothing to scroll.
    QCoreApplication::processEvents();
    QWidget *list = combo.view()->parentWidget();
    const QImage drawn = list->grab().toImage();
    const QPoint middle = drawn.rect().center();
    for (const QPoint &edge : {QPoint(0, middle.y()), QPoint(drawn.width() - 1, middle.y()), QPoint(middle.x(), 0),
                               QPoint(middle.x(), drawn.height() - 1)})
        QCOMPARE(drawn.pixelColor(edge), board::themeColors().control);
    QVERIFY(drawn.pixelColor(middle.x(), middle.y()) != board::themeColors().control);
    combo.hidePopup();
}

QTEST_MAIN(TestControlStyle)
#include "test_controlstyle.moc"
