#pragma once

#include <QtWidgets/QToolButton>

namespace board {

/// One kind of shape in the palette: its picture and its name. It stays down while the kind waits to be drawn, and
/// can be dragged to the page.
class PaletteButton : public QToolButton
{
    Q_OBJECT

public:
    PaletteButton(const QString &kindId, const QString &name, QWidget *parent = nullptr);

    QString kindId() const { return m_kindId; }
    void setSearchWords(const QString &words) { m_searchWords = words; }
    /// Whether every word of a text is in the search words.
    bool isFoundBy(const QString &searched) const;
    QSize sizeHint() const override;
    /// For the name, below the picture; logical pixels.
    QSize nameRoom() const;
    /// The button's font, smaller where the longest word of the name needs it.
    QFont nameFont() const;

Q_SIGNALS:
    /// A double click or the Return key: the user wants one without drawing.
    void placeRequested();

protected:
    void paintEvent(QPaintEvent *event) override;
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;

private:
    void dragOut();

    QString m_kindId;
    QString m_searchWords;
    QPoint m_pressPos;
};

} // namespace board
