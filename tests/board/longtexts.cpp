#include <board/longtexts.h>

#include <core/mnemonics.h>
#include <core/texts.h>
#include <core/workspace.h>
#include <panels/palettebutton.h>

#include <pagehost/localizer.h>
#include <pagehost/objectplugin.h>

#include <QtCore/QDir>
#include <QtCore/QFile>
#include <QtCore/QPluginLoader>
#include <QtCore/QRegularExpression>
#include <QtWidgets/QAbstractSpinBox>
#include <QtWidgets/QAction>
#include <QtWidgets/QCheckBox>
#include <QtWidgets/QComboBox>
#include <QtWidgets/QKeySequenceEdit>
#include <QtWidgets/QLabel>
#include <QtWidgets/QLineEdit>
#include <QtWidgets/QMenu>
#include <QtWidgets/QMenuBar>
#include <QtWidgets/QScrollArea>
#include <QtWidgets/QSlider>
#include <QtWidgets/QStyleOptionComboBox>
#include <QtWidgets/QToolButton>

#include <algorithm>
#include <cmath>

namespace boardtest {

namespace {

/// Of a script that runs to the left.
constexpr QChar mark(0x05d0);
constexpr double share = 0.4; ///< of letters that are added
constexpr int longestWord = 6;

/// Menu keys and places for values stay.
QString lengthened(const QString &text)
{
    QString filler;
    const int count = qMax(1, int(std::ceil(text.size() * share)) - 2); // beside the mark and the space
    for (int i = 0; i < count; ++i)
        filler += i % (longestWord + 1) == longestWord ? QChar(u' ') : mark;
    if (text.size() == 1)
        return mark + text + mark;
    return mark + text + QChar(u' ') + filler.trimmed();
}

pagehost::TextTable lengthened(const pagehost::TextTable &texts)
{
    pagehost::TextTable longer;
    for (auto text = texts.begin(); text != texts.end(); ++text)
        longer.insert(text.key(), lengthened(text.value()));
    return longer;
}

pagehost::TextTable textsOfHost()
{
    QFile source(QStringLiteral(PROJECT_DIR "/reference/framework/host/hosttexts.cpp"));
    if (!source.open(QIODevice::ReadOnly))
        qFatal("the host's texts can't be read");
    const QString code = QString::fromUtf8(source.readAll());
    static const QRegularExpression key(QStringLiteral("\"(IDS_\\w+)\""));
    pagehost::TextTable texts;
    for (auto match = key.globalMatch(code); match.hasNext();) {
        const QString found = match.next().captured(1);
        texts.insert(found, pagehost::Localizer().text(found));
    }
    return texts;
}

/// Of plug-ins that have been loaded.
pagehost::TextTable textsOfShapes()
{
    pagehost::TextTable texts;
    const QFileInfoList files = QDir(QStringLiteral(SHAPE_FOLDER)).entryInfoList(QDir::Files);
    for (const QFileInfo &file : files)
        if (const auto *plugin =
                qobject_cast<pagehost::ObjectPlugin *>(QPluginLoader(file.absoluteFilePath()).instance()))
            texts.insert(plugin->texts(QStringLiteral("en")));
    return texts;
}

/// Offers no kind of its own, but may say so since kinds could come later.
class LongTexts : public pagehost::ObjectPlugin, public pagehost::KindSource
{
public:
    QVector<pagehost::ObjectKind> objectKinds() const override { return {}; }
    CBaseObject *createObject(const QString &) const override { return nullptr; }
    pagehost::TextTable texts(const QString &language) const override
    {
        return language == QLatin1String("en") ? all : pagehost::TextTable();
    }
    QString kindFamily() const override { return QStringLiteral("longtexts."); }
    void setKindsListener(const Listener &) override {}
    QStringList faults() const override { return {}; }
    void addFolders(const QStringList &) override {}
    QString kindOfFile(const QString &) const override { return {}; }

    pagehost::TextTable all;
};

/// Numbers with their units, and letters that are the same everywhere.
bool needsNoTranslation(const QString &text)
{
    static const QRegularExpression number(QStringLiteral("^[-−]?[\\d.,]+ ?(px|%|°|×)?$"));
    static const QStringList letters{QStringLiteral("X"), QStringLiteral("Y"), QStringLiteral("https://")};
    const bool hasLetters = std::any_of(text.begin(), text.end(), [](QChar one) { return one.isLetter(); });
    return !hasLetters || letters.contains(text) || number.match(text).hasMatch();
}

bool isTranslated(const QString &shown)
{
    QString text = board::withoutMnemonic(shown.section(QLatin1Char('\t'), 0, 0)).trimmed();
    // Keys stand behind names.
    static const QRegularExpression keys(QStringLiteral(" \\([^()]+\\)$"));
    text.remove(keys);
    if (needsNoTranslation(text))
        return true;
    return text.startsWith(mark) && text.endsWith(mark);
}

QString nameOf(const QWidget &widget, const QString &text)
{
    return QStringLiteral("%1 \"%2\"").arg(QLatin1String(widget.metaObject()->className()), text);
}

bool showsText(const QAbstractButton &button)
{
    const auto *tool = qobject_cast<const QToolButton *>(&button);
    const bool isPicture = tool && tool->toolButtonStyle() == Qt::ToolButtonIconOnly && !tool->icon().isNull();
    return !button.text().isEmpty() && !isPicture;
}

/// The name has two lines or, of large letters, as many as there is room for.
bool holdsName(const board::PaletteButton &button)
{
    const int room = button.height() - button.iconSize().height() - 3 * 5;
    const QRect name = QFontMetrics(button.nameFont())
                           .boundingRect(QRect(0, 0, button.width() - 2 * 5, QWIDGETSIZE_MAX),
                                         Qt::AlignHCenter | Qt::TextWordWrap | Qt::TextWrapAnywhere, button.text());
    return name.height() <= room;
}

/// Heights are fixed, with more air than letters need.
bool holdsText(const QAbstractButton &button)
{
    return button.sizeHint().width() <= button.width() && button.fontMetrics().height() <= button.height();
}

bool holdsText(const QComboBox &box)
{
    QStyleOptionComboBox option;
    option.initFrom(&box);
    const QRect room =
        box.style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, &box);
    return box.fontMetrics().horizontalAdvance(box.currentText()) <= room.width();
}

bool holdsText(const QLabel &label)
{
    const bool isWide = label.wordWrap() || label.sizeHint().width() <= label.width();
    return isWide &&
           (label.wordWrap() ? label.heightForWidth(label.width()) : label.sizeHint().height()) <= label.height();
}

bool holdsTitles(const QMenuBar &bar)
{
    const QList<QAction *> actions = bar.actions();
    return std::all_of(actions.begin(), actions.end(),
                       [&bar](QAction *action) { return bar.rect().contains(bar.actionGeometry(action)); });
}

/// The text of a control; empty for one without a text of the program.
QString textOf(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return label->text();
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return showsText(*button) ? button->text() : QString();
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return box->currentText();
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return field->placeholderText();
    return {};
}

bool holdsText(const QWidget &widget)
{
    if (const auto *label = qobject_cast<const QLabel *>(&widget))
        return holdsText(*label);
    if (const auto *shape = qobject_cast<const board::PaletteButton *>(&widget))
        return holdsName(*shape);
    if (const auto *button = qobject_cast<const QAbstractButton *>(&widget))
        return !showsText(*button) || holdsText(*button);
    if (const auto *box = qobject_cast<const QComboBox *>(&widget))
        return holdsText(*box);
    if (const auto *field = qobject_cast<const QLineEdit *>(&widget))
        return field->fontMetrics().horizontalAdvance(field->placeholderText()) <= field->contentsRect().width();
    return true;
}

bool isControl(const QWidget &widget)
{
    return qobject_cast<const QLabel *>(&widget) || qobject_cast<const QAbstractButton *>(&widget) ||
           qobject_cast<const QComboBox *>(&widget) || qobject_cast<const QLineEdit *>(&widget) ||
           qobject_cast<const QAbstractSpinBox *>(&widget) || qobject_cast<const QSlider *>(&widget);
}

/// Within whatever scrolls it up and down, or the part.
bool isInside(const QWidget &widget, const QWidget &part)
{
    const QWidget *area = widget.parentWidget();
    while (area != &part && !qobject_cast<const QAbstractScrollArea *>(area->parentWidget()))
        area = area->parentWidget();
    const QRect place(widget.mapTo(area, QPoint()), widget.size());
    const bool isAcross = place.left() >= 0 && place.right() < area->width();
    return isAcross && (area != &part || area->rect().contains(place));
}

/// Fields for keys say it in Qt's words.
QVector<const QWidget *> controlsOf(const QWidget &part)
{
    QVector<const QWidget *> controls;
    const QList<QWidget *> all = part.findChildren<QWidget *>();
    for (const QWidget *widget : all)
        if (widget->isVisible() && widget->window() == part.window() && isControl(*widget) &&
            !isControl(*widget->parentWidget()) && !qobject_cast<const QKeySequenceEdit *>(widget->parentWidget()))
            controls.append(widget);
    return controls;
}

QStringList overlapsOf(const QVector<const QWidget *> &controls)
{
    QStringList overlaps;
    for (const QWidget *one : controls)
        for (const QWidget *other : controls)
            if (one < other && one->parentWidget() == other->parentWidget() &&
                one->geometry().intersects(other->geometry()))
                overlaps.append(nameOf(*one, textOf(*one)) + QStringLiteral(" overlaps ") +
                                nameOf(*other, textOf(*other)));
    return overlaps;
}

QString joined(QStringList faults)
{
    faults.removeDuplicates();
    return faults.join(QLatin1Char('\n'));
}

QStringList untranslatedOf(const QWidget &control)
{
    QStringList faults;
    for (const QString &said : {textOf(control), control.toolTip(), control.accessibleName()})
        if (!isTranslated(said))
            faults.append(nameOf(control, said) + QStringLiteral(" is not translated"));
    return faults;
}

QStringList crampedOf(const QWidget &control, const QWidget &part)
{
    QStringList faults;
    const QString text = textOf(control);
    if (!text.isEmpty() && !holdsText(control))
        faults.append(nameOf(control, text) + QStringLiteral(" is cut off"));
    if (!isInside(control, part))
        faults.append(nameOf(control, text) + QStringLiteral(" stands outside"));
    return faults;
}

} // namespace

void lengthenTexts(board::Workspace &workspace)
{
    static LongTexts plugin;
    pagehost::TextTable board;
    const QVector<board::TextEntry> entries = board::textEntries();
    for (const board::TextEntry &entry : entries)
        board.insert(QLatin1String(entry.key), QString::fromUtf8(entry.english));
    plugin.all = lengthened(textsOfHost());
    plugin.all.insert(lengthened(textsOfShapes()));
    plugin.all.insert(lengthened(board));
    workspace.registry().addPlugin(&plugin, QStringLiteral("longtexts"));
}

QString untranslatedTexts(const QWidget &part)
{
    QStringList faults;
    const QVector<const QWidget *> controls = controlsOf(part);
    for (const QWidget *control : controls)
        faults += untranslatedOf(*control);
    const QList<QMenu *> menus = part.findChildren<QMenu *>();
    for (const QMenu *menu : menus) {
        const QList<QAction *> actions = menu->actions();
        for (const QAction *action : actions)
            if (!isTranslated(action->text()))
                faults.append(action->text());
    }
    return joined(faults);
}

QString crampedTexts(const QWidget &part)
{
    const QVector<const QWidget *> controls = controlsOf(part);
    QStringList faults = overlapsOf(controls);
    for (const QWidget *control : controls)
        faults += crampedOf(*control, part);
    const QList<QMenuBar *> bars = part.findChildren<QMenuBar *>();
    for (const QMenuBar *bar : bars)
        if (bar->isVisible() && !holdsTitles(*bar))
            faults.append(QStringLiteral("titles of menus are cut off"));
    return joined(faults);
}

} // namespace boardtest
