#pragma once

#include "panels/editors/numbereditor.h"

class QSlider;

namespace board {

/// A number on a slider with a field beside it. Moving the slider previews; letting it go is the choice.
class SliderEditor : public ValueEditor
{
    Q_OBJECT

public:
    /// `range` must have a minimum below its maximum.
    SliderEditor(const Workspace *workspace, const NumberRange &range, const QString &unit,
                 QWidget *parent = nullptr);

    void showValue(const QVariant &value) override;
    void showMixed() override;
    void setName(const QString &name) override;

private:
    double numberAt(int position) const;
    int positionOf(double number) const;
    void move(int position);
    void release();

    NumberRange m_range;
    double m_perPosition = 1; ///< what the number grows by from one position of the slider to the next
    QSlider *m_slider;
    NumberField *m_field;
    int m_startPosition = 0; ///< where the slider was pressed
    bool m_mixed = false;
};

} // namespace board
