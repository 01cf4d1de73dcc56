#pragma once

#include <QtGui/QColor>
#include <QtWidgets/QToolButton>

namespace board {

class ColorPopup;
class Workspace;

/// Shows a colour with its transparency; a click opens the colours to choose from.
class ColorButton : public QToolButton
{
    Q_OBJECT

public:
    /// `name` is what screen readers and the tool tip call the colour.
    ColorButton(const Workspace *workspace, const QString &name, QWidget *parent = nullptr);

    QColor color() const { return m_color; }
    /// Shows a colour without telling anybody.
    void setColor(const QColor &color);
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user chose.
    void colorPicked(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color = Qt::black;
    ColorPopup *m_popup;
};

} // namespace board
