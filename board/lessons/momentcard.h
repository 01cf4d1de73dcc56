#pragma once

#include <QtWidgets/QFrame>

class QImage;
class QLabel;

namespace board {

/// Shows a moment of a lesson above the time line: its picture, when it is there, and below a caption.
class MomentCard : public QFrame
{
public:
    /// Floats in this window.
    explicit MomentCard(QWidget *window);

    /// Pixels.
    QSize pictureSize() const;
    /// Shows the card with its lower edge in the middle above `tip` (coordinates of the window), inside the window.
    void showAt(const QPoint &tip, const QString &caption);
    void setPicture(const QImage &picture);

    QLabel *picture() const { return m_picture; }
    QLabel *caption() const { return m_caption; }

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QRect framedRect() const;

    QLabel *m_picture;
    QLabel *m_caption;
};

} // namespace board
