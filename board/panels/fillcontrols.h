#pragma once

#include <framework/cpagebgprop.h>

#include <QtWidgets/QWidget>

class QButtonGroup;
class QComboBox;
class QHBoxLayout;
class QLabel;
class QPushButton;
class QSlider;

namespace board {

class ColorButton;
class NumberField;
class Workspace;

/// How an area is filled: not at all, or with a colour, a gradient, a pattern or a picture.
class FillControls : public QWidget
{
    Q_OBJECT

public:
    /// The caption stands beside the first row.
    FillControls(const Workspace *workspace, const char *captionKey, QWidget *parent = nullptr);

    /// Shows these values without telling anybody.
    void showFill(const CPageBgProp &fill) { showFills({fill}); }
    /// Several fills, at least one: a dash, and no type chosen, where they differ.
    void showFills(const QVector<CPageBgProp> &fills);
    CPageBgProp fill() const { return m_fill; }

Q_SIGNALS:
    /// The user changed something other than the opacity; all of the fill as it is now.
    void fillPicked(const CPageBgProp &fill);
    /// 0 (transparent) to 255 (opaque).
    void opacityPicked(int opacity);

private:
    QHBoxLayout *makeTypeButtons();
    void makePatterns();
    void layOut(const char *captionKey);
    void connectControls();
    void refresh();
    void checkType(int type);
    void showDifferences(const QVector<CPageBgProp> &fills);
    void setType(int type);
    void setColor(const QColor &color);
    void choosePicture();

    const Workspace *m_workspace;
    CPageBgProp m_fill;
    QButtonGroup *m_types;
    ColorButton *m_color;
    ColorButton *m_secondColor;
    NumberField *m_angle;
    QComboBox *m_pattern;
    QPushButton *m_picture;
    QWidget *m_opacityRow = nullptr;
    QSlider *m_opacity;
    QLabel *m_opacityText;
};

} // namespace board
