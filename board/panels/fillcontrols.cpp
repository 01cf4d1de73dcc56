#include "panels/fillcontrols.h"

#include "core/workspace.h"
#include "look/icons.h"
#include "look/sizedbuttons.h"
#include "look/theme.h"
#include "panels/colorbutton.h"
#include "panels/fields/captionedrow.h"
#include "panels/fields/numberfield.h"

#include <pagehost/paper.h>

#include <QtGui/QImageReader>
#include <QtGui/QPainter>
#include <QtWidgets/QButtonGroup>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QFileDialog>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QLabel>
#include <QtWidgets/QMessageBox>
#include <QtWidgets/QPushButton>
#include <QtWidgets/QSlider>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <array>

namespace board {

namespace {

struct TypeEntry
{
    int type;
    Icon icon;
    const char *nameKey;
};

constexpr std::array<TypeEntry, 5> fillTypes{
    {{CPageBgProp::NoFill, Icon::FillNone, "IDS_BOARD_FILL_NONE"},
     {CPageBgProp::SolidFill, Icon::FillSolid, "IDS_BOARD_FILL_SOLID"},
     {CPageBgProp::GradientFill, Icon::FillGradient, "IDS_BOARD_FILL_GRADIENT"},
     {CPageBgProp::PatternFill, Icon::FillPattern, "IDS_BOARD_FILL_PATTERN"},
     {CPageBgProp::PictureFill, Icon::FillPicture, "IDS_BOARD_FILL_PICTURE"}}};

constexpr std::array<Qt::BrushStyle, 12> patterns{Qt::BDiagPattern,  Qt::FDiagPattern,  Qt::DiagCrossPattern,
                                                  Qt::HorPattern,    Qt::VerPattern,    Qt::CrossPattern,
                                                  Qt::Dense2Pattern, Qt::Dense3Pattern, Qt::Dense4Pattern,
                                                  Qt::Dense5Pattern, Qt::Dense6Pattern, Qt::Dense7Pattern};

constexpr QSize patternIconSize(56, 16);
/// Pictures are scaled down to this side, since a fill is kept with every object that has it.
constexpr int largestPictureSide = 2048;

const QString mixedSign = QStringLiteral("—");

QIcon patternIcon(Qt::BrushStyle pattern)
{
    QPixmap picture(patternIconSize);
    picture.fill(Qt::white);
    QPainter(&picture).fillRect(picture.rect(), QBrush(QColor(0xff34495e), pattern));
    return QIcon(picture);
}

/// Paper is a plain fill with lines.
int shownType(const CPageBgProp &fill)
{
    if (pagehost::paperOf(fill) != pagehost::Paper::Blank)
        return CPageBgProp::SolidFill;
    return fill.isFillEnable() ? fill.fillType() : static_cast<int>(CPageBgProp::NoFill);
}

QImage readPicture(const QString &file, QString *problem)
{
    QImageReader reader(file);
    reader.setAutoTransform(true);
    QSize size = reader.size();
    if (size.width() > largestPictureSide || size.height() > largestPictureSide)
        reader.setScaledSize(size.scaled(largestPictureSide, largestPictureSide, Qt::KeepAspectRatio));
    QImage picture = reader.read();
    *problem = reader.errorString();
    return picture;
}

} // namespace

FillControls::FillControls(const Workspace *workspace, const char *captionKey, QWidget *parent)
    : QWidget(parent)
    , m_workspace(workspace)
    , m_fill(nullptr)
    , m_types(new QButtonGroup(this))
    , m_color(new ColorButton(workspace, workspace->text("IDS_BOARD_FILL_COLOR"), this))
    , m_secondColor(new ColorButton(workspace, workspace->text("IDS_BOARD_FILL_SECOND_COLOR"), this))
    , m_angle(new NumberField(workspace, {0, 359, 15, 0}, QStringLiteral("°"), this))
    , m_pattern(new QComboBox(this))
    , m_picture(new QPushButton(workspace->text("IDS_BOARD_CHOOSE_PICTURE"), this))
    , m_opacity(new QSlider(Qt::Horizontal, this))
    , m_opacityText(new QLabel(this))
{
    m_angle->takeAngles();
    m_angle->setAccessibleName(workspace->text("IDS_BOARD_FILL_ANGLE"));
    m_angle->setToolTip(m_angle->accessibleName());
    m_opacity->setRange(0, 255);
    m_opacity->setTracking(false);
    m_opacity->setAccessibleName(workspace->text("IDS_BOARD_OPACITY"));
    m_opacity->setToolTip(m_opacity->accessibleName());
    makePatterns();
    layOut(captionKey);
    connectControls();
    refresh();
}

QHBoxLayout *FillControls::makeTypeButtons()
{
    auto *row = new QHBoxLayout;
    row->setSpacing(smallGap);
    for (const TypeEntry &entry : fillTypes) {
        auto *button = new QToolButton(this);
        button->setCheckable(true);
        button->setIcon(icon(entry.icon));
        sizeAsBarButton(button);
        button->setToolTip(m_workspace->text(entry.nameKey));
        button->setAccessibleName(button->toolTip());
        m_types->addButton(button, entry.type);
        row->addWidget(button);
    }
    row->addStretch();
    return row;
}

void FillControls::makePatterns()
{
    m_pattern->setIconSize(patternIconSize);
    m_pattern->setAccessibleName(m_workspace->text("IDS_BOARD_FILL_PATTERN"));
    m_pattern->setToolTip(m_pattern->accessibleName());
    for (const Qt::BrushStyle pattern : patterns)
        m_pattern->addItem(patternIcon(pattern), QString(), static_cast<int>(pattern));
}

void FillControls::layOut(const char *captionKey)
{
    auto *values = new QHBoxLayout;
    values->setSpacing(mediumGap);
    values->addWidget(m_color);
    values->addWidget(m_secondColor);
    values->addWidget(m_angle, 1);
    values->addWidget(m_pattern, 1);
    values->addWidget(m_picture, 1);
    values->addStretch();
    auto *fill = new QWidget(this);
    auto *lines = new QVBoxLayout(fill);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(smallGap);
    lines->addLayout(makeTypeButtons());
    lines->addLayout(values);
    auto *opacityField = new QWidget(this);
    auto *opacity = new QHBoxLayout(opacityField);
    opacity->setContentsMargins(0, 0, 0, 0);
    opacity->setSpacing(mediumGap);
    opacity->addWidget(m_opacity, 1);
    opacity->addWidget(m_opacityText);
    m_opacityText->setMinimumWidth(m_opacityText->fontMetrics().horizontalAdvance(QStringLiteral("100 %")));
    m_opacityText->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
    m_opacityRow = new CaptionedRow(m_workspace->text("IDS_BOARD_OPACITY"), opacityField, this);
    auto *column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(mediumGap);
    column->addWidget(new CaptionedRow(m_workspace->text(captionKey), fill, this));
    column->addWidget(m_opacityRow);
}

void FillControls::connectControls()
{
    connect(m_types, QOverload<int>::of(&QButtonGroup::idClicked), this, &FillControls::setType);
    connect(m_color, &ColorButton::colorPicked, this, &FillControls::setColor);
    connect(m_picture, &QPushButton::clicked, this, &FillControls::choosePicture);
    connect(m_secondColor, &ColorButton::colorPicked, this, [this](const QColor &color) {
        m_fill.setGradientColor(color);
        Q_EMIT fillPicked(m_fill);
    });
    connect(m_angle, &NumberField::numberPicked, this, [this](double degrees) {
        m_fill.setGradientAngle(degrees);
        Q_EMIT fillPicked(m_fill);
    });
    connect(m_pattern, QOverload<int>::of(&QComboBox::activated), this, [this](int index) {
        m_fill.setPattern(static_cast<Qt::BrushStyle>(m_pattern->itemData(index).toInt()));
        Q_EMIT fillPicked(m_fill);
    });
    connect(m_opacity, &QSlider::valueChanged, this, [this](int opacity) {
        m_fill.setOpacity(opacity);
        Q_EMIT opacityPicked(opacity);
    });
}

void FillControls::showFills(const QVector<CPageBgProp> &fills)
{
    m_fill = fills.first();
    refresh();
    showDifferences(fills);
}

void FillControls::showDifferences(const QVector<CPageBgProp> &fills)
{
    const auto differ = [&](auto valueOf) {
        return std::any_of(fills.begin(), fills.end(),
                           [&](const CPageBgProp &fill) { return valueOf(fill) != valueOf(fills.first()); });
    };
    const auto opacityOf = [](const CPageBgProp &fill) { return fill.opacity(); };
    if (differ(shownType))
        checkType(-1);
    if (differ([](const CPageBgProp &fill) { return fill.fillColor(); }) || differ(opacityOf))
        m_color->setMixed();
    if (differ([](const CPageBgProp &fill) { return fill.gradientColor(); }))
        m_secondColor->setMixed();
    if (differ(opacityOf))
        m_opacityText->setText(mixedSign);
}

/// -1 for none of them.
void FillControls::checkType(int type)
{
    m_types->setExclusive(false);
    const QList<QAbstractButton *> types = m_types->buttons();
    for (QAbstractButton *button : types)
        button->setChecked(m_types->id(button) == type);
    m_types->setExclusive(true);
}

void FillControls::refresh()
{
    const QSignalBlocker quietOpacity(m_opacity);
    const int type = shownType(m_fill);
    checkType(type);
    QColor color = m_fill.fillColor();
    color.setAlpha(m_fill.opacity());
    m_color->setColor(color);
    m_secondColor->setColor(m_fill.gradientColor());
    m_angle->showNumber(m_fill.gradientAngle());
    m_pattern->setCurrentIndex(m_pattern->findData(static_cast<int>(m_fill.pattern())));
    m_opacity->setValue(m_fill.opacity());
    m_color->setVisible(type != CPageBgProp::NoFill && type != CPageBgProp::PictureFill);
    m_secondColor->setVisible(type == CPageBgProp::GradientFill);
    m_angle->setVisible(type == CPageBgProp::GradientFill);
    m_pattern->setVisible(type == CPageBgProp::PatternFill);
    m_picture->setVisible(type == CPageBgProp::PictureFill);
    m_opacityText->setText(QStringLiteral("%1 %").arg(qRound(m_fill.opacity() / 2.55)));
    m_opacityRow->setVisible(type != CPageBgProp::NoFill);
}

void FillControls::setType(int type)
{
    if (type == CPageBgProp::PictureFill && m_fill.pixmap().isNull()) {
        choosePicture();
        return;
    }
    m_fill.setFillEnable(type != CPageBgProp::NoFill);
    if (type != CPageBgProp::NoFill)
        m_fill.setFillType(type);
    if (pagehost::isPaperPattern(m_fill.pattern()))
        m_fill.setPattern(patterns.front());
    refresh();
    Q_EMIT fillPicked(m_fill);
}

void FillControls::setColor(const QColor &color)
{
    m_fill.setFillColor(color);
    m_fill.setOpacity(color.alpha());
    refresh();
    Q_EMIT fillPicked(m_fill);
}

void FillControls::choosePicture()
{
    const QString file =
        QFileDialog::getOpenFileName(this, m_workspace->text("IDS_BOARD_CHOOSE_PICTURE"), QString(),
                                     m_workspace->text("IDS_BOARD_PICTURES") + " (*.png *.jpg *.jpeg *.gif *.bmp)");
    QString problem;
    const QImage picture = file.isEmpty() ? QImage() : readPicture(file, &problem);
    if (picture.isNull()) {
        if (!file.isEmpty())
            QMessageBox::warning(this, m_workspace->text("IDS_BOARD_NO_PICTURE"), file + "\n" + problem);
        refresh();
        return;
    }
    m_fill.setPixmap(QPixmap::fromImage(picture));
    m_fill.setFillType(CPageBgProp::PictureFill);
    m_fill.setFillEnable(true);
    refresh();
    Q_EMIT fillPicked(m_fill);
}

} // namespace board
