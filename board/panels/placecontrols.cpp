#include "panels/placecontrols.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "panels/fields/letteredfield.h"
#include "panels/fields/numberfield.h"

#include <QtWidgets/QGridLayout>

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
{
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(mediumGap);
    const NumberRange place{-farthest, farthest, 1, 1};
    const NumberRange side{smallestSide, farthest, 1, 1};
    const NumberRange angle{0, 360 - tenth, 15, 1};
    const auto addField = [&](int row, int column, const FieldLetter &name, const NumberRange &range) {
        return addLetteredField(workspace, grid, {row, column}, name, range);
    };
    m_x = addField(0, 0, {QStringLiteral("X"), "IDS_BOARD_LEFT"}, place);
    m_y = addField(0, 2, {QStringLiteral("Y"), "IDS_BOARD_TOP"}, place);
    m_width = addField(1, 0, {workspace->text("IDS_BOARD_WIDTH_LETTER"), "IDS_BOARD_WIDTH"}, side);
    m_height = addField(1, 2, {workspace->text("IDS_BOARD_HEIGHT_LETTER"), "IDS_BOARD_HEIGHT"}, side);
    m_rotation =
        addLetteredField(workspace, grid, {2, 0}, {QStringLiteral("∠"), "IDS_BOARD_ROTATION"}, angle, degreeSign);
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
