#pragma once

#include <framework/framework_global.h>

#include <QtCore/QByteArray>
#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QVector>

class CBaseObject;

namespace pagehost {

/// Where an object is, how large, how turned and mirrored: enough to bring exactly that back.
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

    /// Brings the object back to the snapshot, to the last bit: sizes go through the object's virtual setSize(),
    /// and what an object made of it (a kept aspect ratio, control points moved in proportion) is put right
    /// afterwards.
    void restore() const;
    /// Same place, size, rotation and mirroring; contents are not compared.
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
