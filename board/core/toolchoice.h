#pragma once

#include <QtCore/QObject>
#include <QtCore/QSet>

namespace board {

/// Meaning of a press on the page.
enum class Tool { Select, Pen, Highlighter, Eraser, Text, Line, Connector, Shape, Laser };

inline uint qHash(Tool tool, uint seed = 0)
{
    return ::qHash(int(tool), seed);
}

/// The tool in use. Selecting is always offered; whoever can run another tool offers it.
class ToolChoice : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    Tool tool() const { return m_tool; }
    /// Whether the tool stays in use after it has made something.
    bool isKept() const { return m_kept; }
    bool isOffered(Tool tool) const { return m_offered.contains(tool); }

    /// Makes `tool` known as one that can be chosen.
    void offer(Tool tool);
    /// Puts `tool` into use, not kept. Ignored unless it is offered.
    void choose(Tool tool);
    /// Keeps the present tool, or not. Selecting is never kept: it stays anyway.
    void keep(bool kept);
    /// To be called when the tool has made something: goes back to selecting unless the tool is kept.
    void finish();

Q_SIGNALS:
    /// The tool in use has changed, or whether it is kept.
    void changed();
    void offersChanged();

private:
    void set(Tool tool, bool kept);

    QSet<Tool> m_offered{Tool::Select};
    Tool m_tool = Tool::Select;
    bool m_kept = false;
};

} // namespace board
