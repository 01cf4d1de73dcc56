#pragma once

#include <QtCore/QTimer>
#include <QtCore/QVector>
#include <QtWidgets/QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace board {

class LessonController;
class LessonMenu;
class MomentCard;
class MomentPainter;
class TimeLine;
class Workspace;

/// The strip below the page: record, pause and stop, play, the time line, and the document's lessons.
class LessonBar : public QWidget
{
    Q_OBJECT

public:
    /// All must outlive the bar.
    LessonBar(const Workspace *workspace, LessonController *lessons, const LessonMenu *menu,
              QWidget *parent = nullptr);

    TimeLine *timeLine() const { return m_timeLine; }
    QComboBox *list() const { return m_list; }
    QComboBox *speed() const { return m_speed; }
    /// In place of the list while the chosen lesson or a chapter gets a name; Return takes it, Escape does not.
    QLineEdit *name() const { return m_name; }
    /// Shows the moment of the time line that the mouse points at; null before the first.
    MomentCard *card() const { return m_card; }
    /// Lists the chapters; choosing one goes there.
    QToolButton *chapters() const { return m_chapters; }
    /// "0:12 / 1:04".
    QLabel *time() const { return m_time; }
    QLabel *message() const { return m_message; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    /// Owner of the name in the field.
    enum class Named { Lesson, Chapter };

    void showState();
    void showLessons();
    void showTime();
    QString recordingText(const QString &now) const;
    void layOut();
    void makeSpeeds();
    void makeName();
    void makeChapters(const LessonMenu &menu);
    void listChapters(const LessonMenu &menu);
    void connectParts(const LessonMenu &menu);
    void connectNames(const LessonMenu &menu);
    void showMoment(qint64 time, int x);
    void hideMoment();
    QString captionOf(qint64 time) const;
    void beginChapter();
    void renameChapter();
    void beginNaming(Named what, const QString &name);
    void endNaming(bool takeName);

    const Workspace *m_workspace;
    LessonController *m_lessons;
    TimeLine *m_timeLine;
    QLabel *m_time;
    QLabel *m_message; ///< in place of the time line while there is nothing to play
    QComboBox *m_list;
    QLineEdit *m_name;
    Named m_named = Named::Lesson;
    qint64 m_namedStart = 0; ///< of the chapter that gets a name, milliseconds
    QComboBox *m_speed;
    QVector<QToolButton *> m_recordingParts;
    QVector<QToolButton *> m_playingParts;
    QToolButton *m_chapters;
    QToolButton *m_play;
    QPushButton *m_takeOver;
    QToolButton *m_close;
    MomentPainter *m_moments;
    MomentCard *m_card = nullptr;
    bool m_paintsChosen = false; ///< whether m_moments has the chosen lesson
    QTimer m_clock;              ///< while recording
    bool m_toldRecording = false;
};

} // namespace board
