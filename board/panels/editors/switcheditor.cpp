#include "panels/editors/switcheditor.h"

#include "look/sizes.h"

#include <QtGui/QPainter>
#include <QtWidgets/QHBoxLayout>

namespace board {

namespace {

constexpr QSize switchSize(38, 22);
constexpr double knobInset = 3;

} // namespace

ToggleSwitch::ToggleSwitch(QWidget *parent)
    : QAbstractButton(parent)
{
    setCheckable(true);
    setFocusPolicy(Qt::StrongFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(this, &QAbstractButton::toggled, this, [this] { setMixed(false); });
    followSizes(this, [this] { updateGeometry(); });
}

void ToggleSwitch::setMixed(bool mixed)
{
    m_mixed = mixed;
    update();
}

/// With room for fingers around it.
QSize ToggleSwitch::sizeHint() const
{
    return switchSize.expandedTo({sizes().field, sizes().field});
}

bool ToggleSwitch::hitButton(const QPoint &pos) const
{
    return rect().contains(pos);
}

void ToggleSwitch::paintEvent(QPaintEvent *)
{
    const bool isOn = isChecked() && !m_mixed;
    const QPalette::ColorGroup group = isEnabled() ? QPalette::Active : QPalette::Disabled;
    QRectF groove(QPointF(0, 0), switchSize);
    groove.moveCenter(QRectF(rect()).center());
    groove.adjust(1, 1, -1, -1);
    const double side = groove.height() - 2 * knobInset;
    const double way = groove.width() - 2 * knobInset - side;
    const double part = m_mixed ? 0.5 : (isOn ? 1 : 0);
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QColor edge =
        palette().color(group, isOn || hasFocus() ? QPalette::Highlight : QPalette::PlaceholderText);
    painter.setPen(QPen(edge, hasFocus() ? 1.6 : 1));
    painter.setBrush(isOn ? palette().color(group, QPalette::Highlight) : palette().color(QPalette::Base));
    painter.drawRoundedRect(groove, groove.height() / 2, groove.height() / 2);
    painter.setPen(Qt::NoPen);
    painter.setBrush(isOn ? palette().color(QPalette::HighlightedText)
                          : palette().color(group, QPalette::PlaceholderText));
    painter.drawEllipse(QRectF(groove.left() + knobInset + way * part, groove.top() + knobInset, side, side));
}

SwitchEditor::SwitchEditor(QWidget *parent)
    : ValueEditor(parent)
    , m_switch(new ToggleSwitch(this))
{
    auto *row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->addStretch();
    row->addWidget(m_switch);
    connect(m_switch, &ToggleSwitch::clicked, this, [this](bool on) { Q_EMIT picked(on); });
}

void SwitchEditor::showValue(const QVariant &value)
{
    m_switch->setChecked(value.toBool());
    m_switch->setMixed(false);
}

void SwitchEditor::showMixed()
{
    // So that a click switches all of them on.
    m_switch->setChecked(false);
    m_switch->setMixed(true);
}

void SwitchEditor::setName(const QString &name)
{
    m_switch->setAccessibleName(name);
    m_switch->setToolTip(name);
}

} // namespace board
