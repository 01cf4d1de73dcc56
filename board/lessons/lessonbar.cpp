#include "lessons/lessonbar.h"

#include "core/workspace.h"
#include "lessons/lessoncontroller.h"
#include "lessons/lessonmenu.h"
#include "lessons/momentcard.h"
#include "lessons/momentpainter.h"
#include "lessons/timeline.h"
#include "look/accessiblerole.h"
#include "look/icons.h"
#include "look/sizedbuttons.h"
#include "look/sizes.h"
#include "look/theme.h"

#include <QtCore/QSignalBlocker>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QAction>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QToolButton>

namespace board {

namespace {

constexpr int clockMilliseconds = 200;
constexpr int secondsInMinute = 60;
constexpr int listLength = 18; ///< letters
constexpr int longestName = 200;
constexpr int playSide = 44;

QString timeText(qint64 milliseconds)
{
    const qint64 seconds = milliseconds / 1000;
    return QStringLiteral("%1:%2")
        .arg(seconds / secondsInMinute)
        .arg(seconds % secondsInMinute, 2, 10, QLatin1Char('0'));
}

QToolButton *buttonOf(QAction *action)
{
    auto *button = new QToolButton;
    button->setDefaultAction(action);
    sizeAsBarButton(button);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

} // namespace

LessonBar::LessonBar(const Workspace *workspace, LessonController *lessons, const LessonMenu *menu, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_lessons(lessons)
    , m_timeLine(new TimeLine)
    , m_time(new QLabel)
    , m_message(new QLabel)
    , m_list(new QComboBox)
    , m_name(new QLineEdit)
    , m_speed(new QComboBox)
    , m_recordingParts({buttonOf(menu->record), buttonOf(menu->pauseRecording), buttonOf(menu->beginChapter)})
    , m_playingParts({buttonOf(menu->gestureBack), buttonOf(menu->gestureForward)})
    , m_chapters(new QToolButton)
    , m_play(buttonOf(menu->play))
    , m_takeOver(new QPushButton(menu->takeOver->icon(), menu->takeOver->iconText()))
    , m_close(buttonOf(menu->close))
    , m_moments(new MomentPainter(&workspace->registry(), this))
{
    setObjectName(QStringLiteral("lessonBar"));
    setAccessibleRole(this, QAccessible::ToolBar);
    setAccessibleName(workspace->text("IDS_LESSON_BAR"));
    m_timeLine->setAccessibleName(workspace->text("IDS_LESSON_TIMELINE"));
    m_list->setAccessibleName(workspace->text("IDS_LESSON_CHOOSE"));
    m_list->setToolTip(m_list->accessibleName());
    m_list->setMinimumContentsLength(listLength);
    m_list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
    m_time->setMinimumWidth(m_time->fontMetrics().horizontalAdvance(QStringLiteral("00:00 / 00:00")));
    m_time->setAlignment(Qt::AlignCenter);
    m_time->setLayoutDirection(Qt::LeftToRight);
    setAccessibleRole(m_message, QAccessible::AlertMessage);
    makeSpeeds();
    makeName();
    makeChapters(*menu);
    layOut();
    connectParts(*menu);
    connectNames(*menu);
    showLessons();
}

void LessonBar::makeSpeeds()
{
    m_speed->setAccessibleName(m_workspace->text("IDS_LESSON_SPEED"));
    m_speed->setToolTip(m_speed->accessibleName());
    const QVector<double> speeds = LessonController::speeds();
    for (const double speed : speeds)
        m_speed->addItem(QStringLiteral("%1 ×").arg(QLocale(m_workspace->localizer().language()).toString(speed)),
                         speed);
}

void LessonBar::makeName()
{
    m_name->setMaxLength(longestName);
    m_name->installEventFilter(this);
    m_name->hide();
}

void LessonBar::makeChapters(const LessonMenu &menu)
{
    m_chapters->setIcon(icon(Icon::Chapter));
    m_chapters->setAccessibleName(m_workspace->text("IDS_LESSON_CHAPTERS"));
    m_chapters->setToolTip(m_chapters->accessibleName());
    m_chapters->setPopupMode(QToolButton::InstantPopup);
    m_chapters->setAutoRaise(true);
    m_chapters->setFocusPolicy(Qt::TabFocus);
    sizeAsBarButton(m_chapters);
    m_chapters->setMenu(new QMenu(m_chapters));
    connect(m_chapters->menu(), &QMenu::aboutToShow, this, [this, &menu] { listChapters(menu); });
}

void LessonBar::listChapters(const LessonMenu &menu)
{
    QMenu *list = m_chapters->menu();
    list->clear();
    const QVector<Chapter> chapters = m_lessons->chapters();
    for (const Chapter &chapter : chapters) {
        QString name = chapter.name;
        const QString text = m_workspace->text("IDS_LESSON_CHAPTER_ENTRY");
        list->addAction(text.arg(name.replace(QLatin1Char('&'), QStringLiteral("&&")), timeText(chapter.start)),
                        m_lessons, [this, start = chapter.start] { m_lessons->seek(start); });
    }
    list->addSeparator();
    list->addActions({menu.beginChapter, menu.renameChapter});
}

void LessonBar::layOut()
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(mediumGap, smallGap, mediumGap, smallGap);
    row->setSpacing(smallGap);
    for (QToolButton *part : qAsConst(m_recordingParts))
        row->addWidget(part);
    // A long message may be cut off before it keeps the window from becoming smaller.
    m_message->setMinimumWidth(1);
    row->addWidget(m_message, 1);
    row->addWidget(m_playingParts.first());
    row->addWidget(m_play);
    row->addWidget(m_playingParts.last());
    row->addWidget(m_timeLine, 1);
    const QVector<QWidget *> others{m_time, m_chapters, m_speed, m_list, m_name, m_takeOver, m_close};
    for (QWidget *part : others)
        row->addWidget(part);
    followSizes(this, [this] { setMinimumHeight(sizes().lessonBar); });
    m_play->setProperty("isRound", true);
    followSizes(m_play, [this] { m_play->setFixedSize(playSide, playSide); });
    sizeAsTextButton(m_takeOver);
}

void LessonBar::connectParts(const LessonMenu &menu)
{
    m_clock.setInterval(clockMilliseconds);
    connect(&m_clock, &QTimer::timeout, this, &LessonBar::showTime);
    connect(m_lessons, &LessonController::stateChanged, this, &LessonBar::showState);
    connect(m_lessons, &LessonController::lessonsChanged, this, &LessonBar::showLessons);
    connect(m_lessons, &LessonController::positionChanged, this, &LessonBar::showTime);
    connect(m_takeOver, &QPushButton::clicked, menu.takeOver, &QAction::trigger);
    connect(m_timeLine, &TimeLine::momentWanted, m_lessons, &LessonController::seek);
    connect(m_timeLine, &TimeLine::pointedAt, this, &LessonBar::showMoment);
    connect(m_timeLine, &TimeLine::left, this, &LessonBar::hideMoment);
    connect(m_list, QOverload<int>::of(&QComboBox::activated), m_lessons, &LessonController::choose);
    connect(m_speed, QOverload<int>::of(&QComboBox::activated), this,
            [this](int index) { m_lessons->setSpeed(m_speed->itemData(index).toDouble()); });
    // A change of the action brings the action's picture back.
    const auto showPlay = [this] {
        m_play->setIcon(icon(m_lessons->isPlaying() ? Icon::Pause : Icon::Play, QPalette::HighlightedText));
    };
    connect(menu.play, &QAction::changed, m_play, showPlay);
    showPlay();
}

void LessonBar::connectNames(const LessonMenu &menu)
{
    addAction(menu.rename);
    connect(menu.rename, &QAction::triggered, this,
            [this] { beginNaming(Named::Lesson, m_lessons->names().value(m_lessons->chosen())); });
    connect(menu.beginChapter, &QAction::triggered, this, &LessonBar::beginChapter);
    connect(menu.renameChapter, &QAction::triggered, this, &LessonBar::renameChapter);
    connect(m_name, &QLineEdit::editingFinished, this, [this] { endNaming(true); });
    connect(m_lessons, &LessonController::chapterBegun, this, [this](const QString &name) {
        announce(m_message, m_workspace->text("IDS_LESSON_CHAPTER_BEGUN").arg(name));
        showTime();
    });
}

/// At the moment that is shown, which waits for the name. While recording it has a number.
void LessonBar::beginChapter()
{
    if (!m_lessons->isShowing())
        return;
    if (m_lessons->isPlaying())
        m_lessons->playOrPause();
    m_namedStart = m_lessons->position();
    beginNaming(Named::Chapter, m_lessons->nextChapterName());
}

void LessonBar::renameChapter()
{
    const Chapter chapter = m_lessons->chapters().value(m_lessons->chapter());
    m_namedStart = chapter.start;
    beginNaming(Named::Chapter, chapter.name);
}

/// The picture follows as soon as the lesson has been played up to there.
void LessonBar::showMoment(qint64 time, int x)
{
    if (!m_card) {
        m_card = new MomentCard(window());
        connect(m_moments, &MomentPainter::ready, m_card, &MomentCard::setPicture);
    }
    if (!m_paintsChosen)
        m_moments->setLesson(m_lessons->chosenLesson(), m_workspace->document()->assets());
    m_paintsChosen = true;
    m_moments->request(time, m_card->pictureSize());
    m_card->showAt({m_timeLine->mapTo(window(), QPoint(x, 0)).x(), mapTo(window(), QPoint()).y()}, captionOf(time));
}

void LessonBar::hideMoment()
{
    m_moments->cancel();
    if (m_card)
        m_card->hide();
}

/// "Roots · 1:48".
QString LessonBar::captionOf(qint64 time) const
{
    const QVector<Chapter> chapters = m_lessons->chapters();
    const QString name = chapters.value(chapterAt(chapters, time)).name;
    return name.isEmpty() ? timeText(time)
                          : m_workspace->text("IDS_LESSON_CHAPTER_ENTRY").arg(name, timeText(time));
}

void LessonBar::beginNaming(Named what, const QString &name)
{
    m_named = what;
    m_name->setAccessibleName(
        m_workspace->text(what == Named::Lesson ? "IDS_LESSON_NEW_NAME" : "IDS_LESSON_CHAPTER_NAME"));
    m_name->setFixedWidth(m_list->width());
    m_name->setText(name);
    m_name->selectAll();
    m_list->hide();
    m_name->show();
    m_name->setFocus();
}

void LessonBar::endNaming(bool takeName)
{
    if (!m_name->isVisibleTo(this))
        return;
    m_name->hide();
    if (takeName && m_named == Named::Lesson)
        m_lessons->renameChosen(m_name->text());
    else if (takeName)
        m_lessons->setChapter(m_namedStart, m_name->text());
    showState();
}

bool LessonBar::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::KeyPress || static_cast<QKeyEvent *>(event)->key() != Qt::Key_Escape)
        return QWidget::eventFilter(watched, event);
    endNaming(false);
    return true;
}

void LessonBar::showLessons()
{
    const QSignalBlocker quiet(m_list);
    m_list->clear();
    const QStringList names = m_lessons->names();
    for (int i = 0; i < names.size(); ++i)
        m_list->addItem(
            m_workspace->text("IDS_LESSON_ENTRY").arg(names[i], timeText(m_lessons->durations().value(i))));
    m_list->setCurrentIndex(m_lessons->chosen());
    m_timeLine->setDuration(m_lessons->duration());
    m_timeLine->setGestures(m_lessons->gestures());
    m_timeLine->setChapters(m_lessons->chapters());
    m_paintsChosen = false;
    hideMoment();
    showState();
}

void LessonBar::showState()
{
    const bool recording = m_lessons->isRecording();
    const bool playable = m_lessons->chosen() >= 0 && !recording;
    const QList<QWidget *> parts = {m_play, m_timeLine, m_time, m_chapters, m_speed};
    for (QWidget *part : parts)
        part->setVisible(playable);
    for (QToolButton *part : qAsConst(m_playingParts))
        part->setVisible(playable);
    for (QToolButton *part : qAsConst(m_recordingParts))
        part->setVisible(recording);
    m_speed->setCurrentIndex(m_speed->findData(m_lessons->speed()));
    m_name->setVisible(playable && m_name->isVisibleTo(this));
    m_list->setVisible(playable && !m_name->isVisibleTo(this));
    m_message->setVisible(!playable);
    m_message->setForegroundRole(recording ? QPalette::WindowText : QPalette::PlaceholderText);
    m_takeOver->setVisible(m_lessons->isShowing());
    m_close->setVisible(m_lessons->isShowing());
    // Not with every second.
    if (recording != m_toldRecording)
        announce(m_message, m_workspace->text(recording ? "IDS_LESSON_BEGUN" : "IDS_LESSON_ENDED"));
    m_toldRecording = recording;
    if (recording)
        m_clock.start();
    else
        m_clock.stop();
    showTime();
    update();
}

QString LessonBar::recordingText(const QString &now) const
{
    if (!m_lessons->isRecording())
        return {};
    const bool isPaused = m_lessons->state() == LessonController::RecordingPaused;
    const QString text =
        m_workspace->text(isPaused ? "IDS_LESSON_RECORDING_PAUSED" : "IDS_LESSON_RECORDING").arg(now);
    const QString chapter = m_lessons->begunChapter();
    return chapter.isEmpty() ? text : m_workspace->text("IDS_LESSON_CHAPTER_ENTRY").arg(text, chapter);
}

void LessonBar::showTime()
{
    const QString now = timeText(m_lessons->position());
    m_message->setText(recordingText(now));
    m_time->setText(m_workspace->text("IDS_LESSON_TIME").arg(now, timeText(m_lessons->duration())));
    m_timeLine->setPosition(m_lessons->isRecording() ? 0 : m_lessons->position());
}

/// A line above the bar, red while a lesson is being recorded.
void LessonBar::paintEvent(QPaintEvent *)
{
    const bool live = m_lessons->state() == LessonController::Recording;
    QPainter painter(this);
    painter.fillRect(QRect(0, 0, width(), live ? 2 : 1), live ? themeColors().record : themeColors().border);
}

} // namespace board
