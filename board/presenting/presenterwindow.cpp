#include "presenting/presenterwindow.h"

#include "core/workspace.h"
#include "look/surface.h"
#include "look/theme.h"
#include "presenting/pagepictures.h"
#include "presenting/presentingbar.h"
#include "presenting/stage.h"

#include <QtCore/QTime>
#include <QtGui/QPainter>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>

namespace board {

namespace {

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
        paintSurface(&painter, rect());
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
    setAutoFillBackground(true);
    m_barArea = new BarArea(this);
    auto *row = new QHBoxLayout(m_barArea);
    row->setSpacing(smallGap);
    row->setContentsMargins(smallGap, 0, smallGap, 0);
    m_bar = new PresentingBar(workspace, commands, stage, row, buttonSizes[0]);
    row->addStretch();
    m_pictures = new PagePictures(workspace, stage, makeTimes(workspace), this);
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(2 * mediumGap, mediumGap, mediumGap, mediumGap);
    grid->setSpacing(mediumGap);
    grid->addWidget(makeTop(workspace, stage), 0, 0, 1, 2);
    grid->addWidget(stage, 1, 0);
    grid->addWidget(m_barArea, 2, 0);
    // A screen may be smaller than the parts are at first.
    grid->setSizeConstraint(QLayout::SetNoConstraint);
    grid->addWidget(m_pictures, 1, 1, 2, 1);
    grid->setColumnStretch(0, 1);
    grid->setRowStretch(1, 1);
    m_sinceStart.start();
    m_seconds.setTimerType(Qt::PreciseTimer);
    m_seconds.start(milliseconds);
    connect(&m_seconds, &QTimer::timeout, this, &PresenterWindow::showTime);
    showTime();
}

void PresenterWindow::resizeEvent(QResizeEvent *event)
{
    QWidget::resizeEvent(event);
    const QMargins margins = layout()->contentsMargins();
    const int room = width() - margins.left() - margins.right() - m_pictures->width() - mediumGap;
    for (const PresentingBar::ButtonSizes &sizes : buttonSizes) {
        m_bar->setButtonSizes(sizes);
        m_barArea->layout()->invalidate();
        if (m_barArea->layout()->minimumSize().width() <= room)
            return;
    }
}

QWidget *PresenterWindow::makeTop(const Workspace *workspace, Stage *stage)
{
    auto *top = new QWidget(this);
    auto *row = new QHBoxLayout(top);
    row->setContentsMargins(0, 0, 0, 0);
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
