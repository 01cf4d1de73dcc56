#pragma once

#include <QtWidgets/QMenuBar>

namespace board {

/// A menu bar that knows how much room its titles need in either direction of reading.
class MenuRow : public QMenuBar
{
    Q_OBJECT

public:
    using QMenuBar::QMenuBar;

    QSize sizeHint() const override;
};

} // namespace board
