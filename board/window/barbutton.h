#pragma once

#include <QtWidgets/QToolButton>

namespace board {

/// A button of the bar at the top: a picture and a text beside it, in the middle, with room between them.
class BarButton : public QToolButton
{
    Q_OBJECT

public:
    using QToolButton::QToolButton;

    /// Filled with the accent colour.
    void setPrimary(bool primary);
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    bool showsText() const;

    bool m_isPrimary = false;
};

} // namespace board
