#include "panels/pagesizecontrols.h"

#include "core/workspace.h"
#include "look/theme.h"
#include "panels/fields/letteredfield.h"
#include "panels/fields/numberfield.h"

#include <QtWidgets/QComboBox>
#include <QtWidgets/QGridLayout>

namespace board {

namespace {

/// Sheets of paper have 96 units to an inch, as drawings and worksheets have.
constexpr struct
{
    const char *nameKey;
    int width;
    int height;
} usualSizes[] = {
    {"IDS_BOARD_SIZE_WIDE_SCREEN", 1280, 720},     {"IDS_BOARD_SIZE_SCREEN", 960, 720},
    {"IDS_BOARD_SIZE_A4_PORTRAIT", 794, 1123},     {"IDS_BOARD_SIZE_A4_LANDSCAPE", 1123, 794},
    {"IDS_BOARD_SIZE_LETTER_PORTRAIT", 816, 1056}, {"IDS_BOARD_SIZE_LETTER_LANDSCAPE", 1056, 816},
};
/// Smaller pages can't be written on, larger ones take their time everywhere.
constexpr double smallestSide = 50;
constexpr double largestSide = 10000;

} // namespace

PageSizeControls::PageSizeControls(const Workspace *workspace, QWidget *parent)
    : QWidget(parent)
    , m_names(new QComboBox(this))
{
    for (const auto &usual : usualSizes)
        m_names->addItem(workspace->text(usual.nameKey), QSizeF(usual.width, usual.height));
    m_names->addItem(workspace->text("IDS_BOARD_SIZE_OTHER"));
    m_names->setAccessibleName(workspace->text("IDS_BOARD_PAGE_SIZE"));
    auto *grid = new QGridLayout(this);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setSpacing(mediumGap);
    grid->addWidget(m_names, 0, 0, 1, 4);
    const NumberRange side{smallestSide, largestSide, 10, 1};
    m_width = addLetteredField(workspace, grid, {1, 0},
                               {workspace->text("IDS_BOARD_WIDTH_LETTER"), "IDS_BOARD_PAGE_WIDTH"}, side);
    m_height = addLetteredField(workspace, grid, {1, 2},
                                {workspace->text("IDS_BOARD_HEIGHT_LETTER"), "IDS_BOARD_PAGE_HEIGHT"}, side);
    grid->setColumnStretch(1, 1);
    grid->setColumnStretch(3, 1);
    connect(m_names, QOverload<int>::of(&QComboBox::activated), this, [this](int entry) {
        const QSizeF size = m_names->itemData(entry).toSizeF();
        // The last one stands for what the fields say.
        size.isValid() ? Q_EMIT sizePicked(size) : m_width->setFocus();
    });
    const auto pick = [this] { Q_EMIT sizePicked({m_width->value(), m_height->value()}); };
    connect(m_width, &NumberField::numberPicked, this, pick);
    connect(m_height, &NumberField::numberPicked, this, pick);
}

void PageSizeControls::showSize(const QSizeF &size)
{
    const int entry = m_names->findData(size);
    m_names->setCurrentIndex(entry < 0 ? m_names->count() - 1 : entry);
    m_width->showNumber(size.width());
    m_height->showNumber(size.height());
}

} // namespace board
