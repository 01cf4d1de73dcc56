#include <board/readerdriver.h>

#include <QtCore/QCoreApplication>
#include <QtCore/QMap>
#include <QtWidgets/QWidget>

#include <private/qguiapplication_p.h>
#include <qpa/qplatformaccessibility.h>
#include <qpa/qplatformintegration.h>

#include <utility>

namespace boardtest {

namespace {

QStringList lines;
QAccessible::Id focused = 0;

QPlatformAccessibility *platform()
{
    return QGuiApplicationPrivate::platformIntegration()->accessibility();
}

QString roleName(QAccessible::Role role)
{
    static const QMap<QAccessible::Role, QString> names{
        {QAccessible::Graphic, "graphic"},    {QAccessible::Slider, "slider"},
        {QAccessible::Grip, "grip"},          {QAccessible::Canvas, "page"},
        {QAccessible::EditableText, "field"}, {QAccessible::PushButton, "button"},
        {QAccessible::CheckBox, "check box"}, {QAccessible::ButtonMenu, "menu button"},
        {QAccessible::AlertMessage, "alert"}, {QAccessible::ToolBar, "tool bar"},
        {QAccessible::Pane, "pane"}};
    return names.value(role, QString::number(int(role)));
}

/// Readers keep silent about other windows.
bool isInActiveWindow(const QAccessibleInterface &interface)
{
    const auto *widget = qobject_cast<const QWidget *>(interface.object());
    return widget && widget->isActiveWindow();
}

void append(const QString &line)
{
    lines.append(line);
}

void listen(QAccessibleEvent *event)
{
    QAccessibleInterface *interface = event->accessibleInterface();
    if (!interface || !interface->isValid())
        return;
    switch (event->type()) {
    case QAccessible::Focus:
        // Qt tells of rows of its own lists that don't have the focus.
        if (interface->role() == QAccessible::ListItem)
            return;
        focused = QAccessible::uniqueId(interface);
        return append("focus: " + ReaderDriver::wordsFor(interface));
    case QAccessible::ValueChanged:
        if (QAccessible::uniqueId(interface) == focused)
            append("value: " + static_cast<QAccessibleValueChangeEvent *>(event)->value().toString());
        return;
    case QAccessible::Alert:
        return append("alert: " + interface->text(QAccessible::Name));
    case QAccessible::DescriptionChanged:
        // Of widgets, only when they get the focus.
        if (interface->role() == QAccessible::Graphic || interface->role() == QAccessible::Grip)
            append("now: " + interface->text(QAccessible::Description));
        return;
    case QAccessible::NameChanged:
        if (interface->role() == QAccessible::Canvas && isInActiveWindow(*interface))
            append("page: " + interface->text(QAccessible::Name));
        return;
    default:
        return;
    }
}

} // namespace

ReaderDriver::ReaderDriver()
{
    lines.clear();
    // The tests' platform has nobody to switch it on.
    platform()->setActive(true);
    QAccessible::installUpdateHandler(listen);
}

ReaderDriver::~ReaderDriver()
{
    QAccessible::installUpdateHandler(nullptr);
    platform()->setActive(false);
}

QStringList ReaderDriver::said()
{
    QCoreApplication::processEvents();
    return std::exchange(lines, {});
}

QString ReaderDriver::wordsFor(QAccessibleInterface *interface)
{
    QStringList words{interface->text(QAccessible::Name), roleName(interface->role())};
    if (auto *value = interface->valueInterface())
        words.append(value->currentValue().toString());
    else if (interface->role() == QAccessible::Graphic || interface->role() == QAccessible::Grip)
        words.append(interface->text(QAccessible::Description));
    return words.join(", ");
}

} // namespace boardtest
