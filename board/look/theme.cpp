#include "look/theme.h"

#include <QtGui/QPalette>
#include <QtWidgets/QApplication>
#include <QtWidgets/QStyle>
#include <QtWidgets/QStyleFactory>

namespace board {

namespace {

Theme theCurrentTheme = Theme::Light;

/// The colours that a palette is made of.
struct Tones
{
    QRgb window, base, button, text, placeholder, disabledText, accent, accentText, mid, tip;
};

constexpr Tones lightTones{0xfff6f7f9, 0xffffffff, 0xffffffff, 0xff20262e, 0xff7a8491,
                           0xffa9b1bb, 0xff2f6fde, 0xffffffff, 0xffd8dde3, 0xff2a3038};
constexpr Tones darkTones{0xff24282e, 0xff1b1e23, 0xff2d323a, 0xffe4e8ec, 0xff8d97a3,
                          0xff626b76, 0xff5b93f5, 0xff10141a, 0xff3a404a, 0xff3b424c};

QPalette paletteOf(const Tones &tones)
{
    QPalette palette(QColor(tones.text), QColor(tones.button), QColor(tones.button).lighter(), QColor(tones.mid),
                     QColor(tones.mid), QColor(tones.text), QColor(tones.accentText), QColor(tones.base),
                     QColor(tones.window));
    palette.setColor(QPalette::AlternateBase, QColor(tones.window));
    palette.setColor(QPalette::ButtonText, QColor(tones.text));
    palette.setColor(QPalette::Highlight, QColor(tones.accent));
    palette.setColor(QPalette::HighlightedText, QColor(tones.accentText));
    palette.setColor(QPalette::Link, QColor(tones.accent));
    palette.setColor(QPalette::PlaceholderText, QColor(tones.placeholder));
    palette.setColor(QPalette::ToolTipBase, QColor(tones.tip));
    palette.setColor(QPalette::ToolTipText, QColor(0xfff2f4f6));
    for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
        palette.setColor(QPalette::Disabled, role, QColor(tones.disabledText));
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(tones.mid));
    return palette;
}

QString rgbaText(const QColor &color)
{
    return QStringLiteral("rgba(%1, %2, %3, %4)")
        .arg(color.red())
        .arg(color.green())
        .arg(color.blue())
        .arg(color.alpha());
}

/// Only what the Fusion style can't be told through the palette.
QString styleSheet()
{
    static const QString pattern = QStringLiteral(R"(
QMainWindow::separator { background: %border; width: 1px; height: 1px; }
QMainWindow::separator:hover { background: %accent; }
QToolBar { border: none; border-bottom: 1px solid %border; padding: 4px 8px; spacing: 2px; background: %window; }
QToolBar::separator { background: %border; width: 1px; margin: 6px 6px; }
QToolButton { border: 1px solid transparent; border-radius: 6px; padding: 5px; }
QToolButton:hover { background: %hover; }
QToolButton:pressed { background: %border; }
QToolButton:checked { background: %tint; border-color: %accent; }
QToolButton:focus { border-color: %accent; }
QToolButton::menu-indicator { image: none; }
QMenuBar { background: %window; border-bottom: 1px solid %border; }
QStatusBar { background: %window; border-top: 1px solid %border; }
QStatusBar::item { border: none; }
QDockWidget { titlebar-close-icon: none; titlebar-normal-icon: none; }
QDockWidget::title { background: %window; padding: 10px 12px 6px 8px; }
QMainWindow > QTabBar { background: %window; qproperty-drawBase: 0; }
QMainWindow > QTabBar::tab { background: %window; border: none; border-bottom: 2px solid transparent;
                             padding: 9px 9px 7px 9px; color: %faint; }
QMainWindow > QTabBar::tab:hover { color: %text; }
QMainWindow > QTabBar::tab:selected { color: %text; border-bottom-color: %accent; }
QGraphicsView, QScrollArea, QListView, QUndoView { border: none; }
QListView { background: %window; }
QUndoView::item { padding: 4px 6px; border-radius: 5px; color: %text; }
QUndoView::item:selected { background: %tint; color: %text; }
QUndoView::item:hover { background: %hover; }
QLineEdit { border: 1px solid %border; border-radius: 6px; padding: 5px 6px; background: %base; }
QLineEdit:focus { border-color: %accent; }
QAbstractSpinBox QLineEdit, QComboBox QLineEdit { border: none; padding: 0; }
QScrollBar:vertical { background: transparent; width: 12px; margin: 0; }
QScrollBar:horizontal { background: transparent; height: 12px; margin: 0; }
QScrollBar::handle { background: %handle; border-radius: 3px; margin: 3px; min-width: 32px; min-height: 32px; }
QScrollBar::handle:hover { background: %accent; }
QScrollBar::add-line, QScrollBar::sub-line { width: 0; height: 0; }
QScrollBar::add-page, QScrollBar::sub-page { background: transparent; }
QAbstractScrollArea::corner { background: transparent; }
QToolTip { border: none; padding: 4px 6px; }
)");
    const QPalette palette = QApplication::palette();
    const ThemeColors colors = themeColors();
    QColor tint = palette.color(QPalette::Highlight);
    tint.setAlpha(38);
    QString sheet = pattern;
    sheet.replace("%border", rgbaText(colors.border));
    sheet.replace("%faint", rgbaText(colors.faintText));
    sheet.replace("%accent", rgbaText(palette.color(QPalette::Highlight)));
    sheet.replace("%window", rgbaText(palette.color(QPalette::Window)));
    sheet.replace("%text", rgbaText(palette.color(QPalette::Text)));
    sheet.replace("%base", rgbaText(palette.color(QPalette::Base)));
    sheet.replace("%handle", rgbaText(colors.pageEdge));
    sheet.replace("%hover", rgbaText(colors.hover));
    sheet.replace("%tint", rgbaText(tint));
    return sheet;
}

} // namespace

void applyTheme(Theme theme)
{
    theCurrentTheme = theme;
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication::setPalette(paletteOf(theme == Theme::Dark ? darkTones : lightTones));
    qApp->setStyleSheet(styleSheet());
}

Theme currentTheme()
{
    return theCurrentTheme;
}

ThemeColors themeColors()
{
    if (theCurrentTheme == Theme::Dark)
        return {QColor(0xff16181c), QColor(0xff3a404a),        QColor(0, 0, 0, 110), QColor(0xff353b44),
                QColor(0xff8d97a3), QColor(255, 255, 255, 20), QColor(0xffc9d1da)};
    return {QColor(0xffe6e9ee), QColor(0xffcfd5dc),     QColor(30, 40, 60, 40), QColor(0xffdfe3e8),
            QColor(0xff6f7985), QColor(20, 40, 80, 16), QColor(0xff34495e)};
}

} // namespace board
