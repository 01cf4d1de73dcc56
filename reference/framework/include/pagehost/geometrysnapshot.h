#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {

/// Position, size, rotation and mirroring of an object, exactly restorable.
class FRAMEWORK_EXPORT GeometrySnapshot
{
public:
    enum Content {
        PlaceOnly,  ///< for changes that leave the size alone
        WithContent ///< with the object's own state, which a change of size may rewrite
    };

    GeometrySnapshot() = default;
    GeometrySnapshot(CBaseObject *object, Content content);

    CBaseObject *object() const { return m_object; }
    QPointF pos() const { return m_pos; }  ///< scene coordinates
    QSizeF size() const { return m_size; } ///< item units
    bool hasContent() const { return m_hasContent; }
    double rotation() const { return m_rotation; } ///< degrees
    bool isMirrored() const { return m_mirrored; }
    bool isFlipped() const { return m_flipped; }

    /// Restores the snapshot to the last bit: sizes go through the object's virtual setSize(), and what the object
    /// made of it (a kept aspect ratio, control points moved in proportion) is corrected afterwards.
    void restore() const;
    /// Same position, size, rotation and mirroring; contents are not compared.
    bool hasSameGeometry(const GeometrySnapshot &other) const;

private:
    void restoreSize() const;

    CBaseObject *m_object = nullptr;
    QPointF m_pos;
    QSizeF m_size;
    double m_rotation = 0;
    bool m_mirrored = false;
    bool m_flipped = false;
    bool m_hasContent = false;
    QByteArray m_content;
};

/// Snapshots of several objects.
FRAMEWORK_EXPORT QVector<GeometrySnapshot> takeSnapshots(const QVector<CBaseObject *> &objects,
                                                         GeometrySnapshot::Content content);

} // namespace pagehost
