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
    using Listener = std::function<void(const pagehost::PluginMessage &)>;

    /// Ignored when the same has been reported.
    void report(const pagehost::PluginMessage &message);
    bool has(const QString &code, const QString &element) const;
    const QVector<pagehost::PluginMessage> &messages() const { return m_messages; }
    /// Hears of the messages that follow.
    void setListener(const Listener &listener) { m_listener = listener; }

private:
    QVector<pagehost::PluginMessage> m_messages;
    Listener m_listener;
};

} // namespace shapekit
