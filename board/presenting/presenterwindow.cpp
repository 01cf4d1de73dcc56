#include "presenting/presenterwindow.h"

#include "core/commands.h"
#include "core/workspace.h"
#include "look/dockbutton.h"
#include "look/surface.h"
#include "look/theme.h"
#include "page/pageview.h"
#include "presenting/pagepictures.h"
#include "presenting/presentingbar.h"
#include "presenting/stage.h"
#include "presenting/twinaction.h"

#include <QtCore/QTime>
#include <QtGui/QPainter>
#include <QtWidgets/QAction>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace board {

namespace {

constexpr int headHeight = 40;
constexpr int barHeight = 72;
/// Of the bar's buttons, the largest that fit.
constexpr PresentingBar::ButtonSizes buttonSizes[] = {{56, 26}, {48, 24}, {40, 22}, {36, 22}};
constexpr int timePixels = 40;
constexpr int secondsPerHour = 3600;
constexpr int milliseconds = 1000;

/// Looks like what floats over the page elsewhere.
class BarArea : public QWidget
{
public:
    explicit BarArea(QWidget *parent)
        : QWidget(parent)
    {
        setFixedHeight(barHeight);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        QPainter painter(this);
        paintSurface(&painter, *this);
    }
};

/// With a line towards what is below.
class Head : public QWidget
{
public:
    explicit Head(QWidget *parent)
        : QWidget(parent)
    {
        setFixedHeight(headHeight);
    }

protected:
    void paintEvent(QPaintEvent *) override
    {
        const ThemeColors colors = themeColors(this);
        QPainter painter(this);
        painter.fillRect(rect(), colors.bar);
        painter.fillRect(QRect(0, height() - edgeWidth(), width(), edgeWidth()), colors.border);
    }
};

QLabel *makeTime(QWidget *parent)
{
    auto *label = new QLabel(parent);
    QFont font = label->font();
    font.setPixelSize(timePixels);
    label->setFont(font);
    return label;
}

void makeBold(QLabel *label)
{
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
}

QLabel *makeCaption(const QString &text, QWidget *parent)
{
    auto *label = new QLabel(text, parent);
    label->setForegroundRole(QPalette::PlaceholderText);
    return label;
}

} // namespace

QString elapsedText(qint64 time)
{
    const int seconds = int(time / milliseconds);
    const QTime clock = QTime(0, 0).addSecs(seconds % secondsPerHour);
    if (seconds < secondsPerHour)
        return clock.toString(QStringLiteral("mm:ss"));
    return QStringLiteral("%1:%2").arg(seconds / secondsPerHour).arg(clock.toString(QStringLiteral("mm:ss")));
}

PresenterWindow::PresenterWindow(const Workspace *workspace, const Commands &commands, Stage *stage,
                                 QWidget *parent)
    : QWidget(parent, Qt::Window | Qt::FramelessWindowHint)
    , m_elapsed(makeTime(this))
    , m_timeOfDay(makeTime(this))
{
    makeBold(m_elapsed);
    m_barArea = new BarArea(this);
    auto *row = new QHBoxLayout(m_barArea);
    row->setSpacing(smallGap);
    row->setContentsMargins(smallGap, 0, smallGap, 0);
    m_bar = new PresentingBar(workspace, commands, stage, row, buttonSizes[0]);
    m_bar->addButton(makePagesSwitch(commands), Icon::Pages)->setSwitch(true);
    row->addStretch();
    m_pictures = new PagePictures(workspace, stage, makeTimes(workspace), this);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    column->addWidget(makeTop(workspace, stage));
    auto *grid = new QGridLayout;
    grid->setContentsMargins(2 * mediumGap, 2 * mediumGap, mediumGap, 2 * mediumGap);
    grid->setSpacing(mediumGap);
    grid->addWidget(stage, 0, 0);
    grid->addWidget(m_barArea, 1, 0);
    grid->addWidget(m_pictures, 0, 1, 2, 1);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(0, 1);
    column->addLayout(grid, 1);
    // A screen may be smaller than the parts are at first.
    column->setSizeConstraint(QLayout::SetNoConstraint);
    keepDark(this);
    showDesk(stage);
    m_sinceStart.start();
    m_seconds.setTimerType(Qt::PreciseTimer);
    m_seconds.start(milliseconds);
    connect(&m_seconds, &QTimer::timeout, this, &PresenterWindow::showTime);
    showTime();
}

/// Around the page, too.
void PresenterWindow::showDesk(Stage *stage)
{
    QPalette colors = palette();
    colors.setColor(QPalette::Window, themeColors(this).desk);
    setPalette(colors);
    setAutoFillBackground(true);
    stage->view()->setBareColor(themeColors(this).desk);
}

void PresenterWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    fitBar();
}

/// With the largest buttons that have room beside the pages.
void PresenterWindow::fitBar()
{
    const int room = width() - 4 * mediumGap - (m_pictures->isHidden() ? 0 : m_pictures->width());
    for (const PresentingBar::ButtonSizes &sizes : buttonSizes) {
        m_bar->setButtonSizes(sizes);
        m_barArea->layout()->invalidate();
        if (m_barArea->layout()->minimumSize().width() <= room)
            return;
    }
}

/// Gives the page the room of the pages, the next one and the time.
QAction *PresenterWindow::makePagesSwitch(const Commands &commands)
{
    QAction *action = makeTwin(*commands.action(Command::PageStrip), this);
    action->setCheckable(true);
    action->setChecked(true);
    addAction(action);
    connect(action, &QAction::toggled, this, [this](bool shown) {
        m_pictures->setVisible(shown);
        fitBar();
    });
    return action;
}

QWidget *PresenterWindow::makeTop(const Workspace *workspace, Stage *stage)
{
    auto *top = new Head(this);
    auto *row = new QHBoxLayout(top);
    row->setContentsMargins(2 * mediumGap, 0, mediumGap, 0);
    auto *title = new QLabel(workspace->text("IDS_BOARD_ON_OTHER_SCREEN"), top);
    makeBold(title);
    row->addWidget(title);
    row->addStretch();
    auto *end = new QPushButton(workspace->text("IDS_BOARD_END_WITH_KEY"), top);
    end->setFocusPolicy(Qt::TabFocus);
    connect(end, &QPushButton::clicked, stage, &Stage::endRequested);
    row->addWidget(end);
    return top;
}

QWidget *PresenterWindow::makeTimes(const Workspace *workspace)
{
    auto *times = new QWidget(this);
    auto *grid = new QGridLayout(times);
    grid->setContentsMargins(0, mediumGap, 0, mediumGap);
    grid->addWidget(m_elapsed, 0, 0);
    grid->addWidget(m_timeOfDay, 0, 1);
    grid->addWidget(makeCaption(workspace->text("IDS_BOARD_SINCE_START"), times), 1, 0);
    grid->addWidget(makeCaption(workspace->text("IDS_BOARD_TIME_OF_DAY"), times), 1, 1);
    m_timeOfDay->setForegroundRole(QPalette::PlaceholderText);
    return times;
}

void PresenterWindow::showTime()
{
    m_elapsed->setText(elapsedText(m_sinceStart.elapsed()));
    m_timeOfDay->setText(QTime::currentTime().toString(QStringLiteral("HH:mm")));
}

} // namespace board
