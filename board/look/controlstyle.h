#pragma once

#include <QtWidgets/QProxyStyle>

class QStyleOptionSlider;
class QStyleOptionSpinBox;

namespace board {

/// Draws boxes, fields, push buttons and sliders with edges of the theme. Those that the Fusion style derives from
/// the colour of a dark window can't be seen. So do lines in menus, and lists of combo boxes have an edge.
class ControlStyle : public QProxyStyle
{
    Q_OBJECT

public:
    ControlStyle();

    using QProxyStyle::polish;
    void polish(QWidget *widget) override;
    void drawPrimitive(PrimitiveElement element, const QStyleOption *option, QPainter *painter,
                       const QWidget *widget = nullptr) const override;
    void drawControl(ControlElement element, const QStyleOption *option, QPainter *painter,
                     const QWidget *widget = nullptr) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex *option, QPainter *painter,
                            const QWidget *widget = nullptr) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption *option = nullptr,
                    const QWidget *widget = nullptr) const override;
    int styleHint(StyleHint hint, const QStyleOption *option = nullptr, const QWidget *widget = nullptr,
                  QStyleHintReturn *returned = nullptr) const override;
    QSize sizeFromContents(ContentsType type, const QStyleOption *option, const QSize &size,
                           const QWidget *widget = nullptr) const override;
    QRect subElementRect(SubElement element, const QStyleOption *option,
                         const QWidget *widget = nullptr) const override;

private:
    void paintCombo(const QStyleOptionComplex &option, QPainter *painter, const QWidget *widget) const;
    void paintSpinBox(const QStyleOptionSpinBox &option, QPainter *painter, const QWidget *widget) const;
    void paintSlider(const QStyleOptionSlider &option, QPainter *painter, const QWidget *widget) const;
};

} // namespace board
