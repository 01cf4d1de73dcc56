#include "document/prototypecache.h"

#include "grammar/inputlimits.h"

#include <QtCore/QCache>

#include <mutex>

namespace Svg {

namespace {

class PrototypeCache
{
public:
    PrototypeCache()
        : m_prototypes(Limits::knownTextBytes)
    {
    }

    PrototypePointer find(const QByteArray &text)
    {
        const std::lock_guard lock(m_mutex);
        const PrototypePointer *known = m_prototypes.object(text);
        return known ? *known : PrototypePointer();
    }

    void insert(const QByteArray &text, const PrototypePointer &prototype)
    {
        const std::lock_guard lock(m_mutex);
        m_prototypes.insert(text, new PrototypePointer(prototype), qMax(1, text.size()));
    }

private:
    std::mutex m_mutex;
    QCache<QByteArray, PrototypePointer> m_prototypes;
};

} // namespace

PrototypePointer knownPrototype(const QByteArray &text, Messages *messages)
{
    static PrototypeCache cache;
    if (PrototypePointer known = cache.find(text))
        return known;
    PrototypePointer fresh = makePrototype(text, messages);
    if (!fresh)
        return nullptr;
    // A copy of the bytes: the text may be data of a plug-in that is unloaded later.
    if (text.size() <= Limits::knownTextBytes / 8)
        cache.insert(QByteArray(text.constData(), text.size()), fresh);
    return fresh;
}

} // namespace Svg
