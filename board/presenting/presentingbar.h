#pragma once

#include "look/icons.h"

#include <QtCore/QObject>
#include <QtCore/QVector>

class QAction;
class QHBoxLayout;
class QLabel;
class QWidget;

namespace board {

class Commands;
class DockButton;
class Stage;
class Workspace;

/// The buttons of a presentation: pages, pens, laser pointer, curtain, whole page, and what is appended.
class PresentingBar : public QObject
{
    Q_OBJECT

public:
    /// Sides of a button and of the picture on it, logical pixels.
    struct ButtonSizes
    {
        int button;
        int picture;
    };
    /// Appends them to `row`, to whose widget this belongs.
    PresentingBar(const Workspace *workspace, const Commands &commands, Stage *stage, QHBoxLayout *row,
                  const ButtonSizes &sizes);

    DockButton *addButton(QAction *action, Icon picture);
    void addEnd(const Workspace *workspace);
    void setButtonSizes(const ButtonSizes &sizes);
    QLabel *pageNumber() const { return m_pageNumber; }

private:
    void addCurtain(const Workspace *workspace);
    void addLine();
    void showPage();

    Stage *m_stage;
    QHBoxLayout *m_row;
    ButtonSizes m_sizes;
    QLabel *m_pageNumber;
    QVector<DockButton *> m_buttons;
    QVector<QWidget *> m_lines;
};

} // namespace board
