#pragma once

#include <QtCore/QPointF>
#include <QtCore/QSizeF>
#include <QtCore/QVector>

namespace board {

/// A finger, or a palm, on the glass.
struct Contact
{
    int id = 0;
    QPointF pos;        ///< viewport coordinates
    QSizeF millimetres; ///< of the area that it covers; empty where the screen doesn't tell
};

/// Decides what the contacts on the page may do. Pens go before fingers: while one is near, and a moment longer,
/// contacts do nothing, and for some minutes after it was seen a finger moves the view instead of drawing.
///
/// Times are milliseconds of a clock that never goes back.
class TouchJudge
{
public:
    enum class Use {
        Nothing,
        Tool, ///< the finger is a mouse with its button held
        View  ///< all fingers together move the view
    };

    /// Fingers use the tool even where there is a pen.
    void setFingersDraw(bool draw) { m_fingersDraw = draw; }
    /// The pen has done something.
    void seePen(qint64 now);
    void setPenNear(bool isNear, qint64 now);
    bool isPenNear(qint64 now) const;

    /// The common use of those that are on the glass now. It goes on until the last one has left, but a
    /// second finger ends the use of the tool.
    Use judge(const QVector<Contact> &down, qint64 now);
    /// Those that are on the glass do nothing any more.
    void drop();
    Use use() const { return m_use; }
    /// Those that are on the glass, without palms; the one that uses the tool is the first.
    const QVector<Contact> &fingers() const { return m_fingers; }

private:
    void sortOut(const QVector<Contact> &down);
    bool isFingerForTool(qint64 now) const;

    bool m_fingersDraw = false;
    bool m_penIsNear = false;
    bool m_hasSeenPen = false;
    qint64 m_penSeen = 0;
    QVector<Contact> m_fingers;
    QVector<int> m_palms;
    int m_toolFinger = 0; ///< while the tool is used
    bool m_isDropped = false;
    Use m_use = Use::Nothing;
};

} // namespace board
