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
    /// How much of the object the snapshot holds.
    enum Content {
        PlaceOnly,  ///< for changes that leave the size alone
        WithContent ///< with the object's own state, which a change of size may rewrite
    };

    GeometrySnapshot() = default;
    /// Takes the present state of an object, which must outlive the snapshot.
    GeometrySnapshot(CBaseObject *object, Content content);

    /// Null for a default one.
    CBaseObject *object() const { return m_object; }
    QPointF pos() const { return m_pos; }  ///< scene coordinates
    QSizeF size() const { return m_size; } ///< item units
    /// Taken WithContent.
    bool hasContent() const { return m_hasContent; }
    double rotation() const { return m_rotation; } ///< degrees
    /// Left to right.
    bool isMirrored() const { return m_mirrored; }
    /// Top to bottom.
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
