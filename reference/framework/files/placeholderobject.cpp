#include <files/placeholderobject.h>

#include <pagehost/objectid.h>
#include <pagehost/objectregistry.h>

#include <files/chunks.h>
#include <files/documentcodec.h>
#include <host/objectplace.h>

#include <QtCore/QDataStream>
#include <QtCore/QJsonDocument>
#include <QtGui/QPainter>

namespace pagehost {

namespace {

/// The host's number for placeholders among page objects.
constexpr int placeholderKind = 1;
// Where data give no position, scene units.
constexpr QPointF plainPos(40, 40);
constexpr QSizeF plainSize(160, 100);
/// Smallest box that can be seen and grabbed, item units.
constexpr double smallestSide = 16;

constexpr QRgb lineColor = 0xff8a8f98;
constexpr QRgb areaColor = 0x18808890;
constexpr double labelMargin = 6; ///< item units

/// Whether a page could show something there. Damaged data may give any position.
bool isWithinReach(const QRectF &sceneRect)
{
    const QRectF reach(-largestPageSide, -largestPageSide, 3 * largestPageSide, 3 * largestPageSide);
    return reach.contains(sceneRect.topLeft()) && reach.contains(sceneRect.bottomRight());
}

} // namespace

PlaceholderObject::PlaceholderObject(const ObjectRecord &record)
    : CBaseObject(placeholderKind, true, nullptr, nullptr)
    , m_record(record)
{
    // The bytes of a file may be freed before the object.
    m_record.data = QByteArray(record.data.constData(), record.data.size());
    setKindId(this, record.kindId);
    takePlace();
}

void PlaceholderObject::takePlace()
{
    bool isKnown = false;
    if (m_record.encoding == ObjectRecord::Stream) {
        QDataStream in(m_record.data);
        in.setVersion(chunks::streamVersion);
        isKnown = CBaseObject::load(in);
    } else if (m_record.encoding != ObjectRecord::Payload) {
        QJsonObject json = QJsonDocument::fromJson(m_record.data).object();
        isKnown = CBaseObject::loadJson(json);
    }
    if (!isKnown || !isWithinReach(mapRectToScene(clientRect))) {
        assignClientRect(*this, QRectF(QPointF(), plainSize));
        CPSRootObject::setPos(plainPos, false);
        CBaseObject::setSize(plainSize, false, false);
    }
    const QSizeF size = getClientRect().size().expandedTo(QSizeF(smallestSide, smallestSide));
    CBaseObject::setSize(size, false, false);
    show();
    m_placeInData = {pos(), isLocked()};
    if (m_record.place) {
        CPSRootObject::setPos(m_record.place->pos, false);
        setLocked(m_record.place->locked);
    }
}

ObjectRecord PlaceholderObject::record() const
{
    ObjectRecord record = m_record;
    record.id = objectId(this);
    record.place.reset();
    if (pos() != m_placeInData.pos || isLocked() != m_placeInData.locked)
        record.place = ObjectRecord::Place{pos(), isLocked()};
    return record;
}

QString PlaceholderObject::kindName() const
{
    return QStringLiteral("IDS_PLACEHOLDER_OBJECT");
}

bool PlaceholderObject::canDo(OperationType operation)
{
    const bool changesLook =
        operation == OperationResize || operation == OperationRotate || operation == OperationMirror;
    return !changesLook && CBaseObject::canDo(operation);
}

void PlaceholderObject::OnQPainterDraw(QPainter *painter)
{
    if (!painter)
        return;
    painter->save();
    painter->setPen(QPen(QColor::fromRgba(lineColor), 0, Qt::DashLine));
    painter->setBrush(QColor::fromRgba(areaColor));
    painter->drawRect(clientRect);
    const QRectF label = clientRect.adjusted(labelMargin, labelMargin, -labelMargin, -labelMargin);
    painter->setClipRect(clientRect, Qt::IntersectClip);
    painter->drawText(label, Qt::AlignCenter | Qt::TextWordWrap, m_record.kindId);
    painter->restore();
}

bool PlaceholderObject::save(QDataStream &out)
{
    return out.writeRawData(m_record.data.constData(), m_record.data.size()) == m_record.data.size();
}

bool PlaceholderObject::saveJson(QJsonObject &object)
{
    object = QJsonDocument::fromJson(m_record.data).object();
    return m_record.encoding == ObjectRecord::Json;
}

} // namespace pagehost
