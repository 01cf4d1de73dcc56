#include "panels/placecontrols.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "panels/fields/numberfield.h"

#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>

#include <cmath>

namespace board {

namespace {

constexpr double farthest = 99999;
constexpr double smallestSide = 1;
const QString degreeSign = QStringLiteral("°");
constexpr double tenth = 0.1;

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
    const NumberRange place{-farthest, farthest, 1, 1};
    const NumberRange side{smallestSide, farthest, 1, 1};
    const NumberRange angle{0, 360 - tenth, 15, 1};
    m_x = addField(grid, 0, 0, {QStringLiteral("X"), "IDS_BOARD_LEFT"}, place);
    m_y = addField(grid, 0, 2, {QStringLiteral("Y"), "IDS_BOARD_TOP"}, place);
    m_width = addField(grid, 1, 0, {workspace->text("IDS_BOARD_WIDTH_LETTER"), "IDS_BOARD_WIDTH"}, side);
    m_height = addField(grid, 1, 2, {workspace->text("IDS_BOARD_HEIGHT_LETTER"), "IDS_BOARD_HEIGHT"}, side);
    m_rotation = addField(grid, 2, 0, {QStringLiteral("∠"), "IDS_BOARD_ROTATION"}, angle, degreeSign);
    m_rotation->takeAngles();
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);

    connect(m_x, &NumberField::numberPicked, this, [this](double x) { Q_EMIT movePicked({x - m_pos.x(), 0}); });
    connect(m_y, &NumberField::numberPicked, this, [this](double y) { Q_EMIT movePicked({0, y - m_pos.y()}); });
    const auto pickSize = [this] { Q_EMIT sizePicked({m_width->value(), m_height->value()}); };
    connect(m_width, &NumberField::numberPicked, this, pickSize);
    connect(m_height, &NumberField::numberPicked, this, pickSize);
    connect(m_rotation, &NumberField::numberPicked, this, &PlaceControls::rotationPicked);
}

NumberField *PlaceControls::addField(QGridLayout *grid, int row, int column, const Label &label,
                                     const NumberRange &range, const QString &unit)
{
    const QString name = m_workspace->text(label.nameKey);
    auto *caption = new QLabel(label.letter, this);
    auto *field = new NumberField(m_workspace, range, unit, this);
    field->setButtonSymbols(QAbstractSpinBox::NoButtons);
    field->setAccessibleName(name);
    field->setToolTip(name);
    caption->setBuddy(field);
    caption->setToolTip(name);
    grid->addWidget(caption, row, column);
    grid->addWidget(field, row, column + 1);
    return field;
}

void PlaceControls::showPos(const QPointF &pos)
{
    m_pos = pos;
    m_x->showNumber(pos.x());
    m_y->showNumber(pos.y());
}

void PlaceControls::showForm(const QSizeF &size, double rotation)
{
    for (NumberField *field : {m_width, m_height, m_rotation})
        field->setEnabled(true);
    m_width->showNumber(size.width());
    m_height->showNumber(size.height());
    m_rotation->showNumber(normalizedDegrees(rotation));
}

void PlaceControls::showNoForm()
{
    for (NumberField *field : {m_width, m_height, m_rotation}) {
        field->setEnabled(false);
        field->showMixed();
    }
}

} // namespace board
