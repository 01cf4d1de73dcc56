#pragma once

#include <QtWidgets/QLabel>

namespace board {

/// A hint at the foot of the page: how the waiting tool is used.
class HintPill : public QLabel
{
    Q_OBJECT

public:
    /// Lies over `view`, which gets all presses on it.
    explicit HintPill(QWidget *view);

    /// Hides for an empty text.
    void showHint(const QString &text);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void place();
};

} // namespace board
