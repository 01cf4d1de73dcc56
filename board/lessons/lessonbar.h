#pragma once

#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QToolButton;

namespace board {

class LessonController;
class LessonMenu;
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
    /// In place of the list while the chosen lesson gets another name; Return takes it, Escape does not.
    QLineEdit *name() const { return m_name; }
    /// "0:12 / 1:04".
    QLabel *time() const { return m_time; }
    QLabel *message() const { return m_message; }

    bool eventFilter(QObject *watched, QEvent *event) override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    void showState();
    void showLessons();
    void showTime();
    void layOut(const LessonMenu &menu);
    void makeSpeeds();
    void makeName();
    void connectParts(const LessonMenu &menu);
    void beginRenaming();
    void endRenaming(bool takeName);

    const Workspace *m_workspace;
    LessonController *m_lessons;
    TimeLine *m_timeLine;
    QLabel *m_time;
    QLabel *m_message; ///< in place of the time line while there is nothing to play
    QComboBox *m_list;
    QLineEdit *m_name;
    QComboBox *m_speed;
    QToolButton *m_pauseRecording;
    QToolButton *m_play;
    QToolButton *m_remove;
    QPushButton *m_close;
    QTimer m_clock; ///< while recording
    bool m_toldRecording = false;
};

} // namespace board
