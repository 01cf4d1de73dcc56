#include "render/cacherendering.h"

namespace {

thread_local CacheRendering *innermost = nullptr;
constexpr int maxRounds = 2;

} // namespace

CacheRendering::CacheRendering(const CSVGObj *object)
    : m_object(object)
    , m_outer(innermost)
{
    for (CacheRendering *running = innermost; running; running = running->m_outer) {
        if (running->m_object == object) {
            running->m_requested = true;
            m_nested = true;
        }
    }
    innermost = this;
}

CacheRendering::~CacheRendering()
{
    innermost = m_outer;
}

bool CacheRendering::next()
{
    if (m_nested || m_rounds == maxRounds || (m_rounds > 0 && !m_requested))
        return false;
    m_requested = false;
    ++m_rounds;
    return true;
}
