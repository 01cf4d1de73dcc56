#pragma once

#include <QtCore/QObject>

class QHBoxLayout;
class QLabel;

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

    QLabel *pageNumber() const { return m_pageNumber; }

private:
    void showPage();

    Stage *m_stage;
    QLabel *m_pageNumber;
};

} // namespace board
