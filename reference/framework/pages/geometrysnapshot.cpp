#include <pagehost/geometrysnapshot.h>

#include <framework/cbaseobject.h>

#include <host/objectplace.h>

#include <QtCore/QDataStream>

namespace pagehost {

namespace {

/// Compare exactly; the operators of QPointF and QSizeF allow small differences.
bool identical(const QPointF &one, const QPointF &other)
{
    return one.x() == other.x() && one.y() == other.y();
}

bool identical(const QSizeF &one, const QSizeF &other)
{
    return one.width() == other.width() && one.height() == other.height();
}

QByteArray contentOf(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    object.SavePropertyForPlayback(out);
    return bytes;
}

} // namespace

GeometrySnapshot::GeometrySnapshot(CBaseObject *object, Content content)
    : m_object(object)
    , m_pos(object->getPos())
    , m_size(object->getClientRect().size())
    , m_rotation(object->rotation())
    , m_mirrored(object->isMirrored())
    , m_flipped(object->isFlipped())
    , m_hasContent(content == WithContent)
{
    if (m_hasContent)
        m_content = contentOf(*object);
}

void GeometrySnapshot::restore() const
{
    if (!m_object)
        return;
    restoreSize();
    if (m_object->isMirrored() != m_mirrored || m_object->isFlipped() != m_flipped)
        m_object->setMirror(m_mirrored, m_flipped, false);
    m_object->setRotation(m_rotation);
    m_object->CPSRootObject::setPos(m_pos, false);
}

void GeometrySnapshot::restoreSize() const
{
    const bool hasSize = identical(m_object->getClientRect().size(), m_size);
    if (hasSize && (!m_hasContent || contentOf(*m_object) == m_content))
        return;
    m_object->setSize(m_size, false, false);
    if (m_hasContent) {
        QDataStream in(m_content);
        m_object->LoadPropertyForPlayback(in);
        // Setting the same size again makes the object update outline and picture from the restored content.
        m_object->setSize(m_size, false, true);
    }
    if (!identical(m_object->getClientRect().size(), m_size)) {
        assignClientSize(*m_object, m_size);
        m_object->OnQPainterDraw(nullptr);
    }
    m_object->updateAfterObjRectChanged(m_object->GetGraphicsItemPtr(), true);
}

bool GeometrySnapshot::hasSameGeometry(const GeometrySnapshot &other) const
{
    return m_object == other.m_object && identical(m_pos, other.m_pos) && identical(m_size, other.m_size) &&
           m_rotation == other.m_rotation && m_mirrored == other.m_mirrored && m_flipped == other.m_flipped;
}

QVector<GeometrySnapshot> takeSnapshots(const QVector<CBaseObject *> &objects, GeometrySnapshot::Content content)
{
    QVector<GeometrySnapshot> snapshots;
    snapshots.reserve(objects.size());
    for (CBaseObject *object : objects)
        snapshots.append({object, content});
    return snapshots;
}

} // namespace pagehost
