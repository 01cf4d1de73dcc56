#include <pagehost/style.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <QtCore/QBuffer>
#include <QtCore/QDataStream>

#include <functional>

namespace pagehost {

namespace {

using Writer = std::function<void(QDataStream &)>;

/// Answer of GetAttribute(): property id, code of the editor, name, whether it may be changed, then the value.
class Description
{
public:
    Description(CBaseObject *object, int id)
    {
        QDataStream out(&m_bytes, QIODevice::WriteOnly);
        const bool known = object->GetAttribute(id, out);
        QDataStream in(m_bytes);
        qint32 foundId = 0;
        qint32 editor = 0;
        bool enabled = false;
        in >> foundId >> editor >> m_name >> enabled;
        m_isList = editor == listEditor;
        m_isValid = known && in.status() == QDataStream::Ok && foundId == id;
        m_valueAt = int(in.device()->pos());
    }

    /// The localisation key of the property's name; empty when the object does not have the property.
    QString name() const { return m_isValid ? m_name : QString(); }

    /// False, with `value` untouched, when the object does not have the property.
    template<typename Value> bool read(Value &value) const
    {
        if (!m_isValid) {
            return false;
        }
        QDataStream in(m_bytes.mid(m_valueAt));
        Value read{};
        in >> read;
        if (in.status() != QDataStream::Ok) {
            return false;
        }
        value = read;
        return true;
    }

    /// A list gives the number of its entries before the number of the chosen one.
    bool readChoice(qint32 &count, qint32 &chosen) const
    {
        if (!m_isValid || !m_isList) {
            return false;
        }
        QDataStream in(m_bytes.mid(m_valueAt));
        in >> count >> chosen;
        return in.status() == QDataStream::Ok;
    }

private:
    static constexpr qint32 listEditor = 1;
    QByteArray m_bytes;
    QString m_name;
    int m_valueAt = 0;
    bool m_isList = false;
    bool m_isValid = false;
};

/// The name of the property at the first object that has it.
QString nameOf(const QVector<CBaseObject *> &objects, int id)
{
    for (CBaseObject *object : objects) {
        const QString name = Description(object, id).name();
        if (!name.isEmpty()) {
            return name;
        }
    }
    return QStringLiteral("IDS_ITEM_SET_ATTRIBUTE");
}

/// Objects may write their answer into the stream that brings the value.
bool setAttribute(CBaseObject *object, int id, const Writer &write)
{
    QBuffer buffer;
    buffer.open(QIODevice::ReadWrite);
    QDataStream stream(&buffer);
    write(stream);
    buffer.seek(0);
    return object->SetAttribute(id, stream, true);
}

bool setAttributes(const QVector<CBaseObject *> &objects, int id, const Writer &write)
{
    bool taken = false;
    GetFramework()->beginUndoGroup(nameOf(objects, id));
    for (CBaseObject *object : objects) {
        taken |= setAttribute(object, id, write);
    }
    GetFramework()->endUndoGroup();
    return taken;
}

bool isPenStyle(qint32 style)
{
    return style >= Qt::NoPen && style <= Qt::DashDotDotLine;
}

} // namespace

bool setPenColor(const QVector<CBaseObject *> &objects, const QColor &color)
{
    return setAttributes(objects, PenColorProperty, [&](QDataStream &stream) { stream << color; });
}

bool setPenStyle(const QVector<CBaseObject *> &objects, Qt::PenStyle style)
{
    return setAttributes(objects, PenStyleProperty, [&](QDataStream &stream) { stream << qint32(style); });
}

bool setPenWidth(const QVector<CBaseObject *> &objects, int width)
{
    // Panels send the number of the entry in the list of widths, which begins at 1.
    return width >= 1 &&
           setAttributes(objects, PenWidthProperty, [&](QDataStream &stream) { stream << qint32(width - 1); });
}

bool setFill(const QVector<CBaseObject *> &objects, const QColor &color)
{
    return setAttributes(objects, FillProperty, [&](QDataStream &stream) { stream << QBrush(color); });
}

ObjectStyle styleOf(CBaseObject *object)
{
    ObjectStyle style;
    qint32 count = 0;
    qint32 chosen = 0;
    style.hasPenColor = Description(object, PenColorProperty).read(style.penColor);
    style.hasFill = Description(object, FillProperty).read(style.fill);
    style.hasPenStyle = Description(object, PenStyleProperty).readChoice(count, chosen) && isPenStyle(chosen);
    style.penStyle = style.hasPenStyle ? Qt::PenStyle(chosen) : style.penStyle;
    style.hasPenWidth = Description(object, PenWidthProperty).readChoice(count, chosen);
    if (style.hasPenWidth) {
        style.penWidth = chosen + 1;
        style.maxPenWidth = count;
    }
    return style;
}

} // namespace pagehost
