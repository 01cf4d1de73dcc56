#pragma once

#include <pagehost/style.h>

#include <QtWidgets/QWidget>

class QComboBox;

namespace board {

class ColorButton;
class NumberField;
class Workspace;

/// Colour, width and style of the outline.
class PenControls : public QWidget
{
    Q_OBJECT

public:
    explicit PenControls(const Workspace *workspace, QWidget *parent = nullptr);

    /// Shows the values of these objects, a dash where they differ; what none of them has is disabled.
    void showStyles(const QVector<pagehost::ObjectStyle> &styles);

Q_SIGNALS:
    void colorPicked(const QColor &color);
    void widthPicked(int width);
    void stylePicked(Qt::PenStyle style);

protected:
    void changeEvent(QEvent *event) override;

private:
    void makeStyleIcons();
    void showColor(const QVector<QColor> &colors);
    void showWidth(const QVector<int> &widths, int largest);
    void showPenStyle(const QVector<Qt::PenStyle> &styles);

    ColorButton *m_color;
    NumberField *m_width;
    QComboBox *m_style;
};

} // namespace board
