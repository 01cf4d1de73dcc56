#pragma once

#include <shapekit/shapekit_global.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QVector>

#include <functional>

namespace shapekit {

/// Faults of one shape, each of them once.
class SHAPEKIT_EXPORT MessageLog
{
public:
    /// Hears of faults.
    using Listener = std::function<void(const pagehost::PluginMessage &)>;

    /// Ignored when the same has been reported.
    void report(const pagehost::PluginMessage &message);
    /// Whether a fault of that code has been reported of the element with that id.
    bool has(const QString &code, const QString &element) const;
    /// In the order in which they were reported.
    const QVector<pagehost::PluginMessage> &messages() const { return m_messages; }
    /// Hears of the messages that follow.
    void setListener(const Listener &listener) { m_listener = listener; }

private:
    QVector<pagehost::PluginMessage> m_messages;
    Listener m_listener;
};

} // namespace shapekit
