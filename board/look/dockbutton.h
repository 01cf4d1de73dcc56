#pragma once

#include "look/icons.h"

#include <QtWidgets/QToolButton>

namespace board {

/// A button of the dock: accent while its tool is in use, with marks for options and for a tool that is kept.
class DockButton : public QToolButton
{
    Q_OBJECT

public:
    /// Where the dock is short, for the mouse; logical pixels.
    static constexpr int smallestSide = 36;

    explicit DockButton(QWidget *parent = nullptr);

    void setPicture(Icon picture) { m_picture = picture; }
    /// Side of the picture, logical pixels.
    void setPictureSide(int side);
    /// Shows by a mark in the corner that the button opens something.
    void setOpensMore(bool opens);
    /// Paler while it is on than a tool that is chosen.
    void setSwitch(bool isSwitch) { m_isSwitch = isSwitch; }
    bool isSwitch() const { return m_isSwitch; }
    /// Grey as if it were disabled, but it can be pressed.
    void setGrey(bool grey);
    bool isGrey() const { return m_grey || !isEnabled(); }
    void setKept(bool kept);
    bool isKept() const { return m_kept; }
    QSize sizeHint() const override;
    QSize minimumSizeHint() const override { return {smallestSide, smallestSide}; }

protected:
    /// Enter and Return press it, as the space bar does.
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;

private:
    void paintMarks(QPainter *painter, QPalette::ColorRole role) const;

    Icon m_picture = Icon::More;
    int m_pictureSide = 22;
    bool m_opensMore = false;
    bool m_grey = false;
    bool m_kept = false;
    bool m_isSwitch = false;
};

} // namespace board
