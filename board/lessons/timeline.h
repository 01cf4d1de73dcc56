#pragma once

#include "lessons/lessonoutline.h"

#include <QtWidgets/QSlider>

namespace board {

/// A lesson from its start to its end, in chapters: where playing is, where something happens, and a click or a key
/// goes elsewhere.
class TimeLine : public QSlider
{
    Q_OBJECT

public:
    explicit TimeLine(QWidget *parent = nullptr);

    /// Milliseconds.
    void setDuration(qint64 duration);
    /// Does not count as the user's wish.
    void setPosition(qint64 time);
    /// Each has a mark where it begins.
    void setGestures(const QVector<Gesture> &gestures);
    /// Each is a piece of the line with its name above; without any the line is one piece.
    void setChapters(const QVector<Chapter> &chapters);
    /// The pieces from the left to the right, widget coordinates.
    QVector<QRectF> pieces() const;

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user wants to see this moment, milliseconds.
    void momentWanted(qint64 time);
    /// The mouse rests over or moves along this moment, milliseconds, at `x` (widget coordinates).
    void pointedAt(qint64 time, int x);
    /// The mouse has left the line.
    void left();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void leaveEvent(QEvent *event) override;

private:
    QRectF groove() const;
    double xOf(qint64 time) const;
    int timeAt(int x) const;
    QVector<qint64> bounds() const;
    void want(int x);
    int namesHeight() const;
    void paintPieces(QPainter &painter, const QColor &accent) const;
    void paintMarks(QPainter &painter, const QColor &accent) const;
    void paintNames(QPainter &painter) const;
    void paintKnob(QPainter &painter, const QColor &accent) const;

    QVector<Gesture> m_gestures;
    QVector<Chapter> m_chapters;
};

} // namespace board
