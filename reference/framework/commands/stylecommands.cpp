#include <pagehost/style.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <commands/pagecommand.h>
#include <pagehost/page.h>

#include <QtCore/QDataStream>

#include <algorithm>
#include <iterator>
#include <memory>

namespace pagehost {

namespace {

/// Keys of the map that belong to the object, not to its look.
const QString ownKeys[] = {QStringLiteral("name"),    QStringLiteral("locked"), QStringLiteral("x"),
                           QStringLiteral("y"),       QStringLiteral("width"),  QStringLiteral("height"),
                           QStringLiteral("rotation")};

/// Maps may have a brush in place of a colour; no brush is a transparent colour.
QVariant asTaken(const QVariant &value)
{
    if (value.userType() != QMetaType::QBrush)
        return value;
    const auto brush = value.value<QBrush>();
    return brush.style() == Qt::NoBrush ? QColor(Qt::transparent) : brush.color();
}

QByteArray stateOf(CBaseObject *object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object->SavePropertyForPlayback(out);
    return bytes;
}

/// Keep the states before and after, since maps cannot tell a gradient from a colour.
class StyleCommand : public AppliedCommand
{
public:
    explicit StyleCommand(const QString &textKey)
        : AppliedCommand(textKey, true)
    {
    }

    void add(CBaseObject *object, const QByteArray &before)
    {
        m_objects.append(object);
        m_before.append(before);
        m_after.append(stateOf(object));
    }
    bool isEmpty() const { return m_objects.isEmpty(); }

    void undo() override { bring(m_before); }

protected:
    void apply() override { bring(m_after); }

private:
    void bring(const QVector<QByteArray> &states)
    {
        for (int i = 0; i < m_objects.size(); ++i) {
            QDataStream in(states[i]);
            m_objects[i]->LoadPropertyForPlayback(in);
        }
    }

    QVector<CBaseObject *> m_objects;
    QVector<QByteArray> m_before;
    QVector<QByteArray> m_after;
};

} // namespace

StyleMap styleMapOf(CBaseObject *object)
{
    QMap<QString, QVariant> all;
    object->getAllAttributes(all);
    StyleMap style;
    for (auto entry = all.cbegin(); entry != all.cend(); ++entry)
        if (std::find(std::begin(ownKeys), std::end(ownKeys), entry.key()) == std::end(ownKeys))
            style.insert(entry.key(), asTaken(entry.value()));
    return style;
}

bool setStyleMap(const QVector<CBaseObject *> &objects, const StyleMap &style)
{
    auto command = std::make_unique<StyleCommand>(QStringLiteral("IDS_UNDO_STYLE"));
    for (CBaseObject *object : objects) {
        const QByteArray before = stateOf(object);
        if (object->setAllAttributes(style, true) && stateOf(object) != before)
            command->add(object, before);
    }
    if (command->isEmpty())
        return false;
    CUndoRedo::GetInstance()->push(command.release());
    return true;
}

} // namespace pagehost
