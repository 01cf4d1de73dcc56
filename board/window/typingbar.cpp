#include "window/typingbar.h"

#include "core/commands.h"
#include "core/workspace.h"
#include "look/accessiblerole.h"
#include "look/icons.h"
#include "look/sizedbuttons.h"
#include "look/sizes.h"
#include "look/surface.h"
#include "look/surfaceshadow.h"
#include "look/theme.h"
#include "page/labeleditor.h"
#include "page/labelwriting.h"
#include "page/pageview.h"
#include "panels/colorbutton.h"
#include "panels/settings/ownsettings.h"
#include "window/fontmenu.h"
#include "window/menufield.h"
#include "window/stylebarplace.h"

#include <pagehost/page.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <QtGui/QGuiApplication>
#include <QtGui/QKeyEvent>
#include <QtGui/QPainter>
#include <QtWidgets/QApplication>
#include <QtWidgets/QHBoxLayout>
#include <QtWidgets/QMenu>
#include <QtWidgets/QToolButton>

#include <algorithm>

namespace board {

namespace {

/// @name Roles of controls
/// @{
const QString boldRole = QStringLiteral("bold");
const QString italicRole = QStringLiteral("italic");
const QString underlinedRole = QStringLiteral("underlined");
const QString alignmentRole = QStringLiteral("alignment");
/// Lines become items in the editor, which has the letters.
const QString listRole = QStringLiteral("list");
/// @}
constexpr int offeredSizes[] = {12, 14, 16, 18, 20, 24, 28, 32, 40, 48, 64, 96};
constexpr Icon alignmentIcons[] = {Icon::TextLeft, Icon::TextMiddle, Icon::TextRight};
/// Between the bar and the edges of the view.
constexpr int roomMargin = 4;
constexpr int sizeWidth = 60;
constexpr int fontWidth = 120;

bool isOn(const QVector<SettingControl> &controls, const QString &role)
{
    return std::any_of(controls.begin(), controls.end(), [&](const SettingControl &control) {
        return control.role == role && control.kind == SettingControl::Switch && control.value.toBool();
    });
}

QString familyIn(const QVector<SettingControl> &controls)
{
    const auto font = std::find_if(controls.begin(), controls.end(), [](const SettingControl &control) {
        return control.kind == SettingControl::Font;
    });
    return font == controls.end() ? QString() : font->value.toString();
}

bool isNumber(const SettingControl &control)
{
    return control.kind == SettingControl::Number || control.kind == SettingControl::Slider;
}

QFont letterFont(const QToolButton &button, const QString &role)
{
    QFont font = button.font();
    font.setBold(role == boldRole);
    font.setItalic(role == italicRole);
    font.setUnderline(role == underlinedRole);
    return font;
}

} // namespace

TypingBar::TypingBar(const Workspace *workspace, const Commands *commands, PageView *view)
    : QWidget(view)
    , m_workspace(workspace)
    , m_commands(commands)
    , m_view(view)
    , m_row(new QHBoxLayout(this))
{
    setObjectName(QStringLiteral("typingBar"));
    setLayoutDirection(QGuiApplication::layoutDirection());
    setAccessibleRole(this, QAccessible::ToolBar);
    setAccessibleName(workspace->text("IDS_TOOL_TEXT"));
    m_row->setContentsMargins(smallGap, 0, smallGap, 0);
    new SurfaceShadow(this, view);
    connect(view->writing(), &LabelWriting::begun, this, &TypingBar::begin);
    connect(view->writing(), &LabelWriting::ended, this, &TypingBar::end);
    hide();
}

LabelEditor *TypingBar::editor() const
{
    return m_editor;
}

/// Of the letters alone.
QVector<SettingControl> TypingBar::controls() const
{
    QString json;
    if (!editor() || !editor()->object() || !editor()->object()->GetSettingJson(json))
        return {};
    QVector<SettingControl> found = parseSettings(json);
    found.erase(std::remove_if(found.begin(), found.end(),
                               [](const SettingControl &control) { return !isOfLetters(control); }),
                found.end());
    return found;
}

void TypingBar::begin()
{
    m_editor = m_view->writing()->editor();
    // The next text may have begun before the editor of this one is deleted.
    connect(m_editor, &QObject::destroyed, this, [this, gone = m_editor] {
        if (m_editor == gone)
            m_editor = nullptr;
    });
    m_controls = controls();
    build();
    if (m_updates.isEmpty())
        return;
    editor()->installEventFilter(this);
    leaveFocus();
    showValues();
    // While it is hidden, it doesn't stay where the text before was.
    place();
    show();
    raise();
}

/// A press on the bar would give the view the focus, unless its proxy has it: the text or the address of a link.
void TypingBar::leaveFocus()
{
    QWidget *present = QApplication::focusWidget();
    if (present && present->parentWidget() == m_editor->parentWidget())
        setFocusProxy(present);
}

void TypingBar::end()
{
    m_editor = nullptr;
    hide();
}

void TypingBar::build()
{
    // One of its buttons may have ended the writing.
    if (m_content) {
        m_content->hide();
        m_content->deleteLater();
    }
    m_updates.clear();
    m_content = new QWidget(this);
    auto *row = new QHBoxLayout(m_content);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(smallGap);
    const auto addAll = [this](const auto &isWanted, const auto &add) {
        for (int i = 0; i < m_controls.size(); ++i)
            if (isWanted(m_controls.at(i)))
                add(i);
    };
    const auto isOfKind = [](SettingControl::Kind kind) {
        return [kind](const SettingControl &control) { return control.kind == kind && control.role != listRole; };
    };
    addAll(isOfKind(SettingControl::Font), [this](int index) { addFont(index); });
    // The first one is the size; the other is the width of lines, which is dragged.
    const auto size = std::find_if(m_controls.constBegin(), m_controls.constEnd(), isNumber);
    if (size != m_controls.constEnd())
        addSize(int(size - m_controls.constBegin()));
    addAll(isOfKind(SettingControl::Switch), [this](int index) { addSwitch(index); });
    addTextCommands();
    addAll(isOfKind(SettingControl::Choice), [this](int index) { addChoice(index); });
    addAll(isOfKind(SettingControl::Color), [this](int index) { addColor(index); });
    if (!m_updates.isEmpty())
        addMore();
    m_row->addWidget(m_content);
    m_content->show();
}

QToolButton *TypingBar::addButton(const QString &name)
{
    auto *button = new QToolButton(m_content);
    sizeAsStyleButton(button);
    nameControl(button, name);
    return button;
}

MenuField *TypingBar::addField(const QString &name, int width)
{
    auto *field = new MenuField(m_content);
    followSizes(field, [=] { field->setFixedSize(qMax(width, sizes().styleButton), sizes().field); });
    nameControl(field, name);
    return field;
}

void TypingBar::nameControl(QToolButton *control, const QString &name)
{
    // The text keeps the focus, else it would be done.
    control->setFocusPolicy(Qt::NoFocus);
    control->setToolTip(name);
    control->setAccessibleName(name);
    m_content->layout()->addWidget(control);
}

void TypingBar::addFont(int index)
{
    MenuField *field = addField(m_workspace->text(m_controls.at(index).titleKey), fontWidth);
    auto *menu = new FontMenu(m_workspace, field);
    field->setMenu(menu);
    connect(menu, &FontMenu::familyPicked, this, [=](const QString &family) { apply(index, family); });
    m_updates.append([=] {
        const QString family = m_controls.at(index).value.toString();
        menu->setFamily(family);
        field->setValue(menu->nameOf(family));
    });
}

void TypingBar::addSize(int index)
{
    const SettingControl control = m_controls.at(index);
    MenuField *field = addField(m_workspace->text(control.titleKey), sizeWidth);
    field->setMenu(new QMenu(field));
    for (const int size : offeredSizes)
        if (size >= control.range.minimum && size <= control.range.maximum)
            field->menu()->addAction(QString::number(size), this, [=] { apply(index, double(size)); });
    m_updates.append([=] { field->setValue(QString::number(qRound(m_controls.at(index).value.toDouble()))); });
}

/// The first letter of its name, in its own look.
void TypingBar::addSwitch(int index)
{
    const SettingControl control = m_controls.at(index);
    QToolButton *button = addButton(m_workspace->text(control.titleKey));
    button->setText(button->toolTip().mid(0, 1).toUpper());
    button->setFont(letterFont(*button, control.role));
    button->setCheckable(true);
    connect(button, &QToolButton::clicked, this, [=](bool on) { apply(index, on); });
    m_updates.append([this, button, index] { button->setChecked(m_controls.at(index).value.toBool()); });
}

void TypingBar::addColor(int index)
{
    auto *button = new ColorButton(m_workspace, m_workspace->text(m_controls.at(index).titleKey), m_content);
    button->setFocusPolicy(Qt::NoFocus);
    followSizes(button, [button] { button->setMinimumHeight(sizes().styleButton); });
    m_content->layout()->addWidget(button);
    connect(button, &ColorButton::colorPicked, this, [=](const QColor &color) { apply(index, color); });
    m_updates.append([this, button, index] { button->setColor(m_controls.at(index).value.value<QColor>()); });
}

/// Its picture is that of the present entry, where there are pictures of the entries.
void TypingBar::addChoice(int index)
{
    const SettingControl control = m_controls.at(index);
    QToolButton *button = addButton(m_workspace->text(control.titleKey));
    button->setPopupMode(QToolButton::InstantPopup);
    button->setMenu(new QMenu(button));
    const bool isAlignment =
        control.role == alignmentRole && control.entryCount() == int(std::size(alignmentIcons));
    for (int i = 0; i < control.texts.size(); ++i) {
        const QString text = m_workspace->text(control.texts.at(i));
        const QIcon picture = isAlignment ? icon(alignmentIcons[i]) : QIcon();
        button->menu()->addAction(picture, text, this, [=] { apply(index, i); });
    }
    m_updates.append([=] {
        const int present = m_controls.at(index).value.toInt();
        button->setIcon(isAlignment && present >= 0 ? icon(alignmentIcons[present]) : icon(Icon::More));
    });
}

void TypingBar::addTextCommands()
{
    const auto list = std::find_if(m_controls.constBegin(), m_controls.constEnd(),
                                   [](const SettingControl &control) { return control.role == listRole; });
    if (list != m_controls.constEnd() && editor()->mayHaveLists()) {
        QToolButton *button = addButton(m_workspace->text(list->titleKey));
        button->setIcon(icon(Icon::List));
        connect(button, &QToolButton::clicked, editor(), &LabelEditor::toggleList);
    }
    if (!editor()->mayHaveLinks())
        return;
    QToolButton *button = addButton(m_workspace->text("IDS_BOARD_LINK"));
    button->setIcon(icon(Icon::Link));
    connect(button, &QToolButton::clicked, editor(), &LabelEditor::askForLink);
}

/// Whatever else belongs to the text.
void TypingBar::addMore()
{
    QToolButton *button = addButton(m_workspace->text("IDS_BOARD_MORE"));
    button->setIcon(icon(Icon::More));
    button->setPopupMode(QToolButton::InstantPopup);
    auto *menu = new QMenu(button);
    button->setMenu(menu);
    const QString keys = QKeySequence(Qt::CTRL + Qt::SHIFT + Qt::Key_V).toString(QKeySequence::NativeText);
    QAction *paste = menu->addAction(m_workspace->text("IDS_BOARD_PASTE_PLAIN") + QLatin1Char('\t') + keys,
                                     editor(), &LabelEditor::pastePlain);
    connect(menu, &QMenu::aboutToShow, paste,
            [this, paste] { paste->setEnabled(editor() && editor()->canPaste()); });
    menu->addSeparator();
    menu->addAction(m_commands->action(Command::FindText));
    menu->addAction(m_commands->action(Command::ReplaceText));
    menu->addSeparator();
    menu->addAction(m_workspace->text("IDS_BOARD_TEXT_SETTINGS"), this, &TypingBar::settingsRequested);
}

/// Changes of a new text belong to the step that has added it.
void TypingBar::apply(int index, const QVariant &value)
{
    CBaseObject *object = editor() ? editor()->object() : nullptr;
    if (!object)
        return;
    const SettingControl control = m_controls.at(index);
    const bool isOwnStep = !editor()->isOfNewObject();
    if (isOwnStep)
        GetFramework()->beginUndoGroup(control.titleKey);
    object->SetSettingJson(settingAnswer(control, value), true, isOwnStep);
    if (isOwnStep)
        GetFramework()->endUndoGroup();
    showValues();
}

void TypingBar::showValues()
{
    const QVector<SettingControl> present = controls();
    // Settings come and go with others; the bar is built once for a text.
    for (SettingControl &control : m_controls) {
        const auto same = std::find_if(present.begin(), present.end(), [&control](const SettingControl &candidate) {
            return candidate.id == control.id && candidate.kind == control.kind;
        });
        if (same != present.end())
            control.value = same->value;
    }
    for (const auto &update : qAsConst(m_updates))
        update();
    editor()->followLook({isOn(present, italicRole), isOn(present, underlinedRole), familyIn(present)});
}

/// It stays where it is while the text grows beside it.
void TypingBar::place()
{
    const CBaseObject *object = editor() ? editor()->object() : nullptr;
    if (!object || !m_view->page())
        return;
    const QPoint corner = m_view->viewport()->pos();
    // Without room for grips, which a text that is written has not.
    const auto boxOf = [&](const CBaseObject *drawn) {
        const QPolygonF outline = drawn->mapToScene(drawn->getClientRect());
        return m_view->mapFromScene(outline).boundingRect().translated(corner);
    };
    StyleBarSurroundings around;
    around.room = m_view->viewport()->geometry().adjusted(roomMargin, roomMargin, -roomMargin, -roomMargin);
    around.frame = boxOf(object) | editor()->geometry().translated(corner);
    around.selection = {around.frame};
    layout()->activate();
    const QSize size(sizeHint().width(), sizes().styleBar);
    const bool mayStay = this->size() == size && around.room.contains(geometry()) && isVisible();
    if (mayStay && !geometry().intersects(around.frame.adjusted(-largeGap, -largeGap, largeGap, largeGap)))
        return;
    const QVector<CBaseObject *> objects = m_view->page()->objects();
    for (const CBaseObject *other : objects)
        if (other != object)
            around.others.append(boxOf(other));
    setGeometry(styleBarPlace(size, around));
}

/// Ctrl and the letter that text programs use.
bool TypingBar::useKey(int key)
{
    const QString role = key == Qt::Key_B   ? boldRole
                         : key == Qt::Key_I ? italicRole
                         : key == Qt::Key_U ? underlinedRole
                                            : QString();
    for (int i = 0; !role.isEmpty() && i < m_controls.size(); ++i) {
        const SettingControl &control = m_controls.at(i);
        if (control.kind != SettingControl::Switch || control.role != role)
            continue;
        apply(i, !control.value.toBool());
        return true;
    }
    return false;
}

bool TypingBar::eventFilter(QObject *watched, QEvent *event)
{
    if (watched != editor())
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::Move)
        place();
    if (event->type() == QEvent::FocusIn || event->type() == QEvent::FocusOut)
        leaveFocus();
    if (event->type() != QEvent::KeyPress && event->type() != QEvent::ShortcutOverride)
        return QWidget::eventFilter(watched, event);
    const auto *key = static_cast<QKeyEvent *>(event);
    const bool isOurs = key->modifiers() == Qt::ControlModifier &&
                        (key->key() == Qt::Key_B || key->key() == Qt::Key_I || key->key() == Qt::Key_U);
    if (!isOurs)
        return QWidget::eventFilter(watched, event);
    if (event->type() == QEvent::KeyPress)
        return useKey(key->key());
    event->accept();
    return true;
}

void TypingBar::paintEvent(QPaintEvent *)
{
    QPainter painter(this);
    paintSurface(&painter, *this);
}

} // namespace board
