#pragma once

#include <QtCore/QElapsedTimer>
#include <QtCore/QTimer>
#include <QtWidgets/QWidget>

class QAction;
class QLabel;

namespace board {

class Commands;
class PagePictures;
class PresentingBar;
class Stage;
class Workspace;

/// "24:10", from an hour on "1:24:10".
QString elapsedText(qint64 milliseconds);

/// The window of who presents, while the audience looks at another screen: the page to draw on, the next one, the
/// time, and all pages. It is dark, so that it doesn't shine into a dim room.
class PresenterWindow : public QWidget
{
    Q_OBJECT

public:
    /// Takes the stage into it. All others must outlive this.
    PresenterWindow(const Workspace *workspace, const Commands &commands, Stage *stage, QWidget *parent);

    PagePictures *pictures() const { return m_pictures; }
    QLabel *elapsed() const { return m_elapsed; }

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    QWidget *makeTop(const Workspace *workspace, Stage *stage);
    QAction *makePagesSwitch(const Commands &commands);
    void fitBar();
    void showDesk(Stage *stage);
    QWidget *makeTimes(const Workspace *workspace);
    void showTime();

    QLabel *m_elapsed;
    QLabel *m_timeOfDay;
    PagePictures *m_pictures = nullptr;
    PresentingBar *m_bar = nullptr;
    QWidget *m_barArea = nullptr;
    QElapsedTimer m_sinceStart;
    QTimer m_seconds;
};

} // namespace board
