#include "panels/editors/slidereditor.h"

#include "look/theme.h"
#include "panels/fields/numberfield.h"

#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QSlider>

#include <cmath>

namespace board {

namespace {

/// A slider is no finer than this.
constexpr double mostPositions = 10000;
constexpr int fieldWidth = 80;

int positionsOf(const NumberRange &range)
{
    const double steps = range.step > 0 ? (range.maximum - range.minimum) / range.step : mostPositions;
    return int(qBound(1.0, std::floor(steps + 1e-6), mostPositions));
}

} // namespace

SliderEditor::SliderEditor(const Workspace *workspace, const NumberRange &range, const QString &unit,
                           QWidget *parent)
    : ValueEditor(parent)
    , m_range(range)
    , m_slider(new QSlider(Qt::Horizontal, this))
    , m_field(new NumberField(workspace, range, unit, this))
{
    const int positions = positionsOf(range);
    const bool isTooFine = range.step <= 0 || positions >= int(mostPositions);
    m_perPosition = isTooFine ? (range.maximum - range.minimum) / positions : range.step;
    m_slider->setRange(0, positions);
    m_slider->setPageStep(qMax(1, m_slider->maximum() / 10));
    m_slider->setFocusPolicy(Qt::StrongFocus);
    m_field->setFixedWidth(fieldWidth);
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(mediumGap);
    row->addWidget(m_slider, 1);
    row->addWidget(m_field);
    connect(m_slider, &QSlider::sliderPressed, this, [this] { m_startPosition = m_slider->value(); });
    connect(m_slider, &QSlider::valueChanged, this, &SliderEditor::move);
    connect(m_slider, &QSlider::sliderReleased, this, &SliderEditor::release);
    connect(m_field, &NumberField::numberPicked, this, [this](double number) { Q_EMIT picked(number); });
}

double SliderEditor::numberAt(int position) const
{
    return qMin(m_range.minimum + position * m_perPosition, m_range.maximum);
}

int SliderEditor::positionOf(double number) const
{
    const double part = (number - m_range.minimum) / m_perPosition;
    return int(qBound(0.0, std::round(part), double(m_slider->maximum())));
}

void SliderEditor::move(int position)
{
    const double number = numberAt(position);
    m_field->showNumber(number);
    if (m_slider->isSliderDown())
        Q_EMIT previewed(number);
    else
        Q_EMIT picked(number);
}

void SliderEditor::release()
{
    if (m_slider->value() == m_startPosition && !m_mixed)
        Q_EMIT abandoned();
    else
        Q_EMIT picked(numberAt(m_slider->value()));
}

void SliderEditor::showValue(const QVariant &value)
{
    if (m_slider->isSliderDown())
        return;
    const QSignalBlocker quiet(m_slider);
    m_mixed = false;
    m_slider->setValue(positionOf(value.toDouble()));
    m_field->showNumber(value.toDouble());
}

void SliderEditor::showMixed()
{
    if (m_slider->isSliderDown())
        return;
    const QSignalBlocker quiet(m_slider);
    m_mixed = true;
    m_slider->setValue(0);
    m_field->showMixed();
}

void SliderEditor::setName(const QString &name)
{
    m_slider->setAccessibleName(name);
    m_slider->setToolTip(name);
    m_field->setAccessibleName(name);
    m_field->setToolTip(name);
}

} // namespace board
