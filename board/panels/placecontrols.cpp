#include "panels/placecontrols.h"

#include "core/workspace.h"
#include "look/theme.h"

#include <QtWidgets/QDoubleSpinBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include <cmath>

namespace board {

namespace {

constexpr double farthest = 99999;
constexpr double smallestSide = 1;
const QString mixedSign = QStringLiteral("—");

/// Shows whole numbers without a decimal.
class PlaceBox : public QDoubleSpinBox
{
public:
    using QDoubleSpinBox::QDoubleSpinBox;

    QString textFromValue(double value) const override
    {
        QString text = QDoubleSpinBox::textFromValue(value);
        const QString nothing = locale().decimalPoint() + QLatin1Char('0');
        if (text.endsWith(nothing))
            text.chop(nothing.size());
        return text;
    }
};

void showQuietly(QDoubleSpinBox *box, double value)
{
    const QSignalBlocker quiet(box);
    box->setValue(value);
}

/// 0 to just below 360.
double normalizedDegrees(double degrees)
{
    const double rest = std::fmod(degrees, 360);
    return rest < 0 ? rest + 360 : rest;
}

} // namespace

PlaceControls::PlaceControls(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(mediumGap);
    m_x = addBox(grid, 0, 0, QStringLiteral("X"), workspace->text("IDS_BOARD_LEFT"));
    m_y = addBox(grid, 0, 2, QStringLiteral("Y"), workspace->text("IDS_BOARD_TOP"));
    m_width = addBox(grid, 1, 0, workspace->text("IDS_BOARD_WIDTH_LETTER"), workspace->text("IDS_BOARD_WIDTH"));
    m_height = addBox(grid, 1, 2, workspace->text("IDS_BOARD_HEIGHT_LETTER"), workspace->text("IDS_BOARD_HEIGHT"));
    m_rotation = addBox(grid, 2, 0, QStringLiteral("∠"), workspace->text("IDS_BOARD_ROTATION"));
    m_width->setMinimum(smallestSide);
    m_height->setMinimum(smallestSide);
    m_rotation->setRange(0, 359.9);
    m_rotation->setWrapping(true);
    m_rotation->setSingleStep(15);
    m_rotation->setSuffix(QStringLiteral("°"));
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    const auto changed = QOverload<double>::of(&QDoubleSpinBox::valueChanged);
    connect(m_x, changed, this, [this](double x) { Q_EMIT movePicked({x - m_pos.x(), 0}); });
    connect(m_y, changed, this, [this](double y) { Q_EMIT movePicked({0, y - m_pos.y()}); });
    const auto pickSize = [this] { Q_EMIT sizePicked({m_width->value(), m_height->value()}); };
    connect(m_width, changed, this, pickSize);
    connect(m_height, changed, this, pickSize);
    connect(m_rotation, changed, this, &PlaceControls::rotationPicked);
}

QDoubleSpinBox *PlaceControls::addBox(QGridLayout *grid, int row, int column, const QString &label,
                                      const QString &name)
{
    auto *caption = new QLabel(label, this);
    auto *box = new PlaceBox(this);
    box->setDecimals(1);
    box->setRange(-farthest, farthest);
    box->setKeyboardTracking(false);
    box->setButtonSymbols(QAbstractSpinBox::NoButtons);
    box->setAccessibleName(name);
    box->setToolTip(name);
    caption->setBuddy(box);
    caption->setToolTip(name);
    grid->addWidget(caption, row, column);
    grid->addWidget(box, row, column + 1);
    return box;
}

void PlaceControls::showPos(const QPointF &pos)
{
    m_pos = pos;
    showQuietly(m_x, pos.x());
    showQuietly(m_y, pos.y());
}

void PlaceControls::showForm(const QSizeF &size, double rotation)
{
    for (QDoubleSpinBox *box : {m_width, m_height, m_rotation}) {
        box->setEnabled(true);
        box->setSpecialValueText({});
    }
    showQuietly(m_width, size.width());
    showQuietly(m_height, size.height());
    showQuietly(m_rotation, normalizedDegrees(rotation));
}

void PlaceControls::showNoForm()
{
    for (QDoubleSpinBox *box : {m_width, m_height, m_rotation}) {
        box->setEnabled(false);
        box->setSpecialValueText(mixedSign);
        showQuietly(box, box->minimum());
    }
}

} // namespace board
