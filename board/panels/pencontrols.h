#pragma once

#include <pagehost/style.h>

#include <QtWidgets/QWidget>

class QComboBox;
class QSpinBox;

namespace board {

class ColorButton;
class Workspace;

/// Colour, width and style of the outline.
class PenControls : public QWidget
{
    Q_OBJECT

public:
    explicit PenControls(const Workspace *workspace, QWidget *parent = nullptr);

    /// Shows these values; what the object does not have is disabled.
    void showStyle(const pagehost::ObjectStyle &style);

Q_SIGNALS:
    void colorPicked(const QColor &color);
    void widthPicked(int width);
    void stylePicked(Qt::PenStyle style);

protected:
    void changeEvent(QEvent *event) override;

private:
    void makeStyleIcons();

    ColorButton *m_color;
    QSpinBox *m_width;
    QComboBox *m_style;
};

} // namespace board
