#include "exporting/exportdialog.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "panels/fields/numberfield.h"

#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QDialogButtonBox>
#include <QtWidgets/QGridLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QRadioButton>

#include <cmath>

namespace board {

namespace {

constexpr double smallestPercent = 5;
constexpr double largestPercent = 1600;
constexpr double largestSide = 32767; ///< pixels, of pictures
constexpr double percentOfOne = 100;
constexpr double percentStep = 25;

} // namespace

ExportDialog::ExportDialog(const Workspace *workspace, const QSizeF &page, const QSizeF &selection, QWidget *window)
    : QDialog(window)
    , m_workspace(workspace)
    , m_page(page)
    , m_selection(selection)
{
    QString title = workspace->text("IDS_BOARD_EXPORT");
    setWindowTitle(title.remove(QChar(0x2026)));
    auto *grid = new QGridLayout(this);
    grid->setHorizontalSpacing(largeGap);
    grid->setVerticalSpacing(mediumGap);
    // In the order of the enumerations.
    m_scope = addChoices(grid, "IDS_BOARD_EXPORT_WHAT",
                         {"IDS_BOARD_EXPORT_PAGE", "IDS_BOARD_EXPORT_ALL", "IDS_BOARD_EXPORT_SELECTION"});
    m_format = addChoices(grid, "IDS_BOARD_EXPORT_AS",
                          {"IDS_BOARD_EXPORT_PNG", "IDS_BOARD_EXPORT_SVG", "IDS_BOARD_EXPORT_PDF"});
    addSize(grid);
    QAbstractButton *selected = m_scope->button(int(ExportScope::Selection));
    selected->setEnabled(!selection.isEmpty());
    m_scope->button(int(selection.isEmpty() ? ExportScope::CurrentPage : ExportScope::Selection))->setChecked(true);
    m_format->button(int(PageFormat::Png))->setChecked(true);

    auto *buttons = new QDialogButtonBox(this);
    buttons->addButton(workspace->text("IDS_BOARD_EXPORT_GO"), QDialogButtonBox::AcceptRole)->setDefault(true);
    buttons->addButton(workspace->text("IDS_BOARD_KEEP_CANCEL"), QDialogButtonBox::RejectRole);
    grid->addWidget(buttons, grid->rowCount(), 0, 1, 2);
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(this, &QDialog::accepted, this, [this] { Q_EMIT chosen(choice()); });
    connect(m_scope, &QButtonGroup::idClicked, this, &ExportDialog::showSize);
    connect(m_format, &QButtonGroup::idClicked, this, &ExportDialog::showSize);
    showSize();
}

ExportChoice ExportDialog::choice() const
{
    return {ExportScope(m_scope->checkedId()), {PageFormat(m_format->checkedId()), m_scale}};
}

QButtonGroup *ExportDialog::addChoices(QGridLayout *grid, const char *nameKey,
                                       const QVector<const char *> &choiceKeys)
{
    const int row = grid->rowCount();
    const QString name = m_workspace->text(nameKey);
    grid->addWidget(new QLabel(name, this), row, 0);
    auto *group = new QButtonGroup(this);
    for (int i = 0; i < choiceKeys.size(); ++i) {
        auto *button = new QRadioButton(m_workspace->text(choiceKeys[i]), this);
        button->setAccessibleDescription(name);
        group->addButton(button, i);
        grid->addWidget(button, row + i, 1);
    }
    return group;
}

void ExportDialog::addSize(QGridLayout *grid)
{
    m_width = addNumber(grid, "IDS_BOARD_EXPORT_WIDTH", largestSide, QStringLiteral("px"));
    m_percent = addNumber(grid, "IDS_BOARD_EXPORT_SIZE", largestPercent, QStringLiteral("%"));
    m_pixels = new QLabel(this);
    m_pixels->setObjectName(QStringLiteral("exportPixels"));
    grid->addWidget(m_pixels, grid->rowCount(), 1);
    connect(m_width, &NumberField::numberPicked, this, &ExportDialog::takeWidth);
    connect(m_percent, &NumberField::numberPicked, this, &ExportDialog::takePercent);
}

NumberField *ExportDialog::addNumber(QGridLayout *grid, const char *nameKey, double largest, const QString &unit)
{
    const int row = grid->rowCount();
    const QString name = m_workspace->text(nameKey);
    auto *label = new QLabel(name, this);
    auto *field = new NumberField(m_workspace, {1, largest, percentStep, 0}, unit, this);
    field->setAccessibleName(name);
    field->setObjectName(QLatin1String(nameKey));
    label->setBuddy(field);
    grid->addWidget(label, row, 0);
    grid->addWidget(field, row, 1);
    return field;
}

QSizeF ExportDialog::shownSize() const
{
    return ExportScope(m_scope->checkedId()) == ExportScope::Selection ? m_selection : m_page;
}

void ExportDialog::takeWidth(double pixels)
{
    takePercent(percentOfOne * pixels / shownSize().width());
}

void ExportDialog::takePercent(double percent)
{
    const double side = qMax(shownSize().width(), shownSize().height());
    const double largest = qMin(largestPercent, percentOfOne * largestSide / side);
    m_scale = qBound(smallestPercent, percent, largest) / percentOfOne;
    showSize();
}

/// Drawings have no pixels.
void ExportDialog::showSize()
{
    const bool isPicture = choice().format.format == PageFormat::Png;
    for (QWidget *part :
         {static_cast<QWidget *>(m_width), static_cast<QWidget *>(m_percent), static_cast<QWidget *>(m_pixels)})
        part->setEnabled(isPicture);
    const QSizeF size = shownSize() * m_scale;
    m_width->showNumber(std::ceil(size.width()));
    m_percent->showNumber(m_scale * percentOfOne);
    m_pixels->setText(isPicture ? m_workspace->text("IDS_BOARD_EXPORT_PIXELS")
                                      .arg(std::ceil(size.width()))
                                      .arg(std::ceil(size.height()))
                                : m_workspace->text("IDS_BOARD_EXPORT_NO_PIXELS"));
}

} // namespace board
