#pragma once

#include <QtCore/QVector>
#include <QtWidgets/QSlider>

namespace board {

/// A lesson from its start to its end: where playing is, where something happens, and a click or a key goes
/// elsewhere.
class TimeLine : public QSlider
{
    Q_OBJECT

public:
    explicit TimeLine(QWidget *parent = nullptr);

    /// Milliseconds.
    void setDuration(qint64 duration);
    /// Does not count as the user's wish.
    void setPosition(qint64 time);
    /// Where something happens, milliseconds.
    void setMoments(const QVector<qint64> &moments);

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

Q_SIGNALS:
    /// The user wants to see this moment, milliseconds.
    void momentWanted(qint64 time);

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;

private:
    QRectF groove() const;
    double xOf(qint64 time) const;
    void want(int x);

    QVector<qint64> m_moments;
};

} // namespace board
