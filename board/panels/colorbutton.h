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
    /// Shows that there are several colours; choosing begins at the last one shown.
    void setMixed();
    bool isMixed() const { return m_mixed; }
    /// Shows the colour as that of an outline.
    void showAsOutline();
    QSize sizeHint() const override;

Q_SIGNALS:
    /// The user chose.
    void colorPicked(const QColor &color);

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QColor m_color = Qt::black;
    bool m_mixed = false;
    bool m_isOutline = false;
    ColorPopup *m_popup;
};

} // namespace board
