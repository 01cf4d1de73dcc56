#include "look/theme.h"

#include "look/contrast.h"
#include "look/controlstyle.h"
#include "look/sizes.h"

#include <QtGui/QFont>
#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QWidget>

namespace board {

namespace {

Theme theCurrentTheme = Theme::Light;
bool isThemed = false;
ThemeColors theHighContrast;

const ThemeColors lightColors{QColor(0xfff7f8fa), QColor(0xffffffff),  QColor(0xffe4e8ee),  QColor(0xffffffff),
                              QColor(0xff1f2630), QColor(0xff566070),  QColor(0xff8f98a4),  QColor(0xff2563cf),
                              QColor(0xffffffff), QColor(0xffe3ecfb),  QColor(0xffd5dbe2),  QColor(0xff7d8896),
                              QColor(0xffeceff4), QColor(0xffb3261e),  QColor(0xff1c7a43),  QColor(0xff8a5a00),
                              QColor(0xffc9252d), QColor(0, 0, 0, 41), QColor(0, 0, 0, 56), QColor(0xff34495e)};
const ThemeColors darkColors{QColor(0xff22262d), QColor(0xff2a2f37),   QColor(0xff16191e),   QColor(0xff1c2026),
                             QColor(0xffe6eaf0), QColor(0xffa7b1be),   QColor(0xff6d7683),   QColor(0xff7aa9ff),
                             QColor(0xff0f1725), QColor(0xff29395a),   QColor(0xff3c434e),   QColor(0xff7f8a99),
                             QColor(0xff333943), QColor(0xffff8f87),   QColor(0xff6fd39a),   QColor(0xfff0c05a),
                             QColor(0xffff6b6b), QColor(0, 0, 0, 128), QColor(0, 0, 0, 110), QColor(0xffc9d1da)};
/// Bubbles are dark in light and dark themes.
constexpr QRgb bubbleColor = 0xff1f2630;
constexpr QRgb bubbleText = 0xfff2f4f6;

QPalette paletteOf(const ThemeColors &colors)
{
    QPalette palette(colors.text, colors.surface, colors.surface.lighter(), colors.border, colors.border,
                     colors.text, colors.onAccent, colors.field, colors.bar);
    palette.setColor(QPalette::AlternateBase, colors.bar);
    palette.setColor(QPalette::ButtonText, colors.text);
    palette.setColor(QPalette::Highlight, colors.accent);
    palette.setColor(QPalette::HighlightedText, colors.onAccent);
    palette.setColor(QPalette::Link, colors.accent);
    palette.setColor(QPalette::PlaceholderText, colors.faint);
    const bool isHigh = theCurrentTheme == Theme::HighContrast;
    palette.setColor(QPalette::ToolTipBase, isHigh ? colors.text : QColor(bubbleColor));
    palette.setColor(QPalette::ToolTipText, isHigh ? colors.bar : QColor(bubbleText));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, colors.disabled);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, colors.border);
    return palette;
}

/// Border and padding of a field, above and below its text.
constexpr int edgesOfField = 10;

QString rgbaText(const QColor &color)
{
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

/// All backgrounds are the same: edges tell what is chosen, and which control has the focus.
const QString highContrastRules = QStringLiteral(R"(
QToolButton:hover, QToolButton:checked { border: 2px solid %text; padding: 4px; }
QToolButton:focus { border: 2px dashed %accent; padding: 4px; }
QMenuBar::item:selected, QMenuBar::item:pressed { border: 2px solid %text; padding: 5px 8px; }
board--HistoryList::item:selected { border: 2px solid %text; }
)");

/// Set for a window that is dark in every theme.
constexpr char keepsDark[] = "keepsDark";

/// Only what the Fusion style can't be told through the palette.
QString styleSheet(const ThemeColors &colors)
{
    static const QString pattern = QStringLiteral(R"(
QToolButton { border: %edge solid transparent; border-radius: 8px; padding: 5px; }
QToolButton:hover { background: %hover; }
QToolButton:pressed { background: %border; }
QToolButton:checked { background: %soft; color: %accent; }
QToolButton[isPrimary="true"] { background: %accent; color: %onAccent; font-weight: bold; }
QToolButton[isRound="true"] { background: %accent; border-radius: 22px; }
QToolButton:focus { border: 2px solid %accent; padding: 4px; }
QToolButton::menu-indicator { image: none; }
QMenuBar { background: %bar; border: none; }
QMenuBar::item { background: transparent; padding: 7px 10px; border-radius: 8px; }
QMenuBar::item:selected { background: %hover; }
QMenuBar::item:pressed { background: %soft; color: %accent; }
QMenuBar::item:disabled { color: %disabled; }
QGraphicsView, QScrollArea, QListView, QTreeView { border: none; }
QListView, QTreeView { background: %bar; }
board--HistoryList::item { padding: 4px 6px; border-radius: 4px; color: %text; }
board--HistoryList::item:selected { background: %soft; color: %text; }
board--HistoryList::item:hover { background: %hover; }
QLineEdit { border: %edge solid %control; border-radius: 4px; padding: 4px 6px; background: %field;
            min-height: %linepx; }
QLineEdit:focus { border-color: %accent; }
QAbstractSpinBox QLineEdit, QComboBox QLineEdit { border: none; padding: 0; min-height: 0; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; }
QScrollBar::handle { background: %control; border-radius: 3px; margin: 3px; min-width: 32px; min-height: 32px; }
QScrollBar::handle:hover { background: %accent; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QAbstractScrollArea::corner { background: transparent; }
QToolTip { border: none; padding: 4px 6px; }
)");
    QString sheet = theCurrentTheme == Theme::HighContrast ? pattern + highContrastRules : pattern;
    sheet.replace("%line", QString::number(sizes().field - edgesOfField));
    sheet.replace("%edge", QStringLiteral("%1px").arg(edgeWidth()));
    sheet.replace("%border", rgbaText(colors.border));
    sheet.replace("%faint", rgbaText(colors.faint));
    sheet.replace("%disabled", rgbaText(colors.disabled));
    sheet.replace("%onAccent", rgbaText(colors.onAccent));
    sheet.replace("%accent", rgbaText(colors.accent));
    sheet.replace("%bar", rgbaText(colors.bar));
    sheet.replace("%text", rgbaText(colors.text));
    sheet.replace("%field", rgbaText(colors.field));
    sheet.replace("%control", rgbaText(colors.control));
    sheet.replace("%hover", rgbaText(colors.hover));
    sheet.replace("%soft", rgbaText(colors.soft));
    return sheet;
}

} // namespace

void applyTheme(Theme theme)
{
    // Before the first palette of our own.
    static const QPalette desktop = QGuiApplication::palette();
    theCurrentTheme = theme;
    isThemed = true;
    theHighContrast = highContrastColors(desktop);
    QApplication::setStyle(new ControlStyle);
    QApplication::setPalette(paletteOf(themeColors()));
    qApp->setStyleSheet(styleSheet(themeColors()));
}

Theme currentTheme()
{
    return theCurrentTheme;
}

void applyLargeSizes(bool large)
{
    static const QFont usualFont = QApplication::font();
    if (large == areSizesLarge())
        return;
    setLargeSizes(large);
    QFont font = usualFont;
    if (sizes().letters > 0)
        font.setPixelSize(sizes().letters);
    QApplication::setFont(font);
    // Else widgets keep the sizes that the style gave them.
    if (isThemed)
        applyTheme(theCurrentTheme);
    applySizes();
}

void keepDark(QWidget *window)
{
    if (theCurrentTheme == Theme::HighContrast)
        return;
    window->setProperty(keepsDark, true);
    window->setStyleSheet(styleSheet(darkColors));
    const QPalette palette = paletteOf(darkColors);
    window->setPalette(palette);
    // Widgets with style sheets don't take over the palette of their parents.
    const QList<QWidget *> parts = window->findChildren<QWidget *>();
    for (QWidget *part : parts)
        part->setPalette(palette);
}

ThemeColors themeColors(const QWidget *widget)
{
    if (theCurrentTheme == Theme::HighContrast)
        return theHighContrast;
    const bool isDark =
        theCurrentTheme == Theme::Dark || (widget && widget->window()->property(keepsDark).toBool());
    return isDark ? darkColors : lightColors;
}

int edgeWidth()
{
    return theCurrentTheme == Theme::HighContrast ? 2 : 1;
}

} // namespace board
