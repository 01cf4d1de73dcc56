#pragma once

#include <QtWidgets/QToolButton>

namespace board {

class Workspace;

/// Offers a few widths of lines in a menu.
class WidthButton : public QToolButton
{
    Q_OBJECT

public:
    explicit WidthButton(const Workspace *workspace, QWidget *parent = nullptr);

    /// Marks a width in the menu, none for 0, and offers none above `largest`.
    void showWidth(int width, int largest);

Q_SIGNALS:
    void widthPicked(int width);
};

} // namespace board
