#include "panels/fields/numberfield.h"

#include "core/workspace.h"
#include "look/linestart.h"
#include "look/sizes.h"
#include "panels/fields/expression.h"

#include <QtGui/QKeyEvent>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QToolTip>

#include <cmath>

namespace board {

namespace {

const QString mixedSign = QStringLiteral("—");
const QString degreeSign = QStringLiteral("°");
constexpr double fullTurn = 360;
/// Steps that the arrow keys make with Shift.
constexpr int manySteps = 10;

double withinTurn(double degrees)
{
    const double rest = std::fmod(degrees, fullTurn);
    return rest < 0 ? rest + fullTurn : rest;
}

} // namespace

NumberField::NumberField(const Workspace *workspace, const NumberRange &range, const QString &unit, QWidget *parent)
    : QDoubleSpinBox(parent)
    , m_workspace(workspace)
    , m_unit(unit)
{
    setLocale(QLocale(workspace->localizer().language()));
    setDecimals(range.decimals);
    setRange(range.minimum, range.maximum);
    setSingleStep(range.step);
    setKeyboardTracking(false);
    setAlignment(lineStart());
    setFocusPolicy(Qt::StrongFocus);
    if (!unit.isEmpty())
        setSuffix(unit == degreeSign ? unit : QLatin1Char(' ') + unit);
    connect(this, QOverload<double>::of(&QDoubleSpinBox::valueChanged), this, [this](double number) {
        m_mixed = false;
        Q_EMIT numberPicked(number);
    });
}

void NumberField::takeAngles()
{
    m_isAngle = true;
    setWrapping(true);
}

void NumberField::showNumber(double number)
{
    const QSignalBlocker quiet(this);
    m_mixed = false;
    setValue(number);
}

void NumberField::showMixed()
{
    const QSignalBlocker quiet(this);
    m_mixed = true;
    // Refreshes the text even when the number below it stays.
    setValue(minimum());
    lineEdit()->setText(shownText());
}

/// As high as other fields.
QSize NumberField::sizeHint() const
{
    return QDoubleSpinBox::sizeHint().expandedTo({0, sizes().field});
}

QString NumberField::textFromValue(double number) const
{
    return m_mixed ? mixedSign : numberText(number);
}

QString NumberField::numberText(double number) const
{
    QString text = QDoubleSpinBox::textFromValue(number);
    if (!text.contains(locale().decimalPoint()))
        return text;
    while (text.endsWith(locale().zeroDigit()))
        text.chop(1);
    if (text.endsWith(locale().decimalPoint()))
        text.chop(1);
    return text;
}

QString NumberField::shownText() const
{
    return prefix() + textFromValue(value()) + suffix();
}

/// The suffix stays behind what is typed over the number alone.
QString NumberField::withoutSuffix(const QString &text) const
{
    return text.endsWith(suffix()) ? text.chopped(suffix().size()) : text;
}

std::optional<double> NumberField::typedNumber(const QString &text) const
{
    ExpressionContext context;
    context.unit = m_unit;
    if (!m_mixed)
        context.present = value();
    const std::optional<double> number = expressionValue(withoutSuffix(text), context);
    return number && m_isAngle ? withinTurn(*number) : number;
}

std::optional<double> NumberField::acceptedNumber(const QString &text) const
{
    const std::optional<double> number = typedNumber(text);
    return number && *number >= minimum() && *number <= maximum() ? number : std::nullopt;
}

double NumberField::valueFromText(const QString &text) const
{
    return acceptedNumber(text).value_or(value());
}

QValidator::State NumberField::validate(QString &text, int &) const
{
    const bool isMixedText = m_mixed && text.contains(mixedSign);
    return isMixedText || acceptedNumber(text) ? QValidator::Acceptable : QValidator::Intermediate;
}

bool NumberField::isAcceptable() const
{
    const QString typed = text();
    return typed == shownText() || acceptedNumber(typed);
}

void NumberField::stepBy(int steps)
{
    if (text() != shownText())
        interpretText();
    m_mixed = false;
    QDoubleSpinBox::stepBy(steps);
}

void NumberField::putBack()
{
    lineEdit()->setText(shownText());
    selectAll();
}

void NumberField::tellProblem()
{
    const QString typed = text();
    const QString problem =
        typedNumber(typed)
            ? m_workspace->text("IDS_BOARD_OUT_OF_RANGE").arg(numberText(minimum()), numberText(maximum()))
            : m_workspace->text("IDS_BOARD_NO_NUMBER").arg(withoutSuffix(typed));
    QToolTip::showText(mapToGlobal(rect().bottomLeft()), problem.toHtmlEscaped(), this);
}

void NumberField::keyPressEvent(QKeyEvent *event)
{
    const int key = event->key();
    if (key == Qt::Key_Escape && text() != shownText())
        return putBack();
    if ((key == Qt::Key_Return || key == Qt::Key_Enter) && !isAcceptable())
        return tellProblem();
    const bool isShifted = event->modifiers() & Qt::ShiftModifier;
    if (isShifted && key == Qt::Key_Up)
        return stepBy(manySteps);
    if (isShifted && key == Qt::Key_Down)
        return stepBy(-manySteps);
    QDoubleSpinBox::keyPressEvent(event);
}

void NumberField::focusOutEvent(QFocusEvent *event)
{
    if (isVisible() && !isAcceptable())
        tellProblem();
    QDoubleSpinBox::focusOutEvent(event);
}

} // namespace board
