#pragma once

#include <QtCore/QObject>
#include <QtCore/QVector>

class QAction;
class QHBoxLayout;
class QLabel;
class QToolButton;

namespace board {

class Commands;
class Stage;
class Workspace;

/// The buttons of a presentation: pages, pens, laser pointer, curtain, end.
class PresentingBar : public QObject
{
    Q_OBJECT

public:
    /// Appends them to `row`, to whose widget this belongs.
    PresentingBar(const Workspace *workspace, const Commands &commands, Stage *stage, QHBoxLayout *row,
                  int buttonSide);

    /// Of all its buttons, logical pixels.
    void setButtonSide(int side);
    QLabel *pageNumber() const { return m_pageNumber; }

private:
    void addButton(QHBoxLayout *row, QAction *action);
    void showPage();

    Stage *m_stage;
    QLabel *m_pageNumber;
    QVector<QToolButton *> m_buttons;
};

} // namespace board
