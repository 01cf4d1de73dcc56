#pragma once

#include <QtCore/qglobal.h>

class CSVGObj;

/// Prevents recursion of cache rendering: code called while an object renders its off-screen picture may request
/// another rendering. The mutex is not recursive, so such a request returns at once, and one more rendering follows
/// after the running one has finished and unlocked.
///
///     CacheRendering rendering(object);
///     while (rendering.next()) { lock; render; unlock; }
class CacheRendering
{
public:
    explicit CacheRendering(const CSVGObj *object);
    ~CacheRendering();
    Q_DISABLE_COPY(CacheRendering)

    /// Whether to render (again). Drops requests made during the repetition, so that the loop ends.
    bool next();

private:
    const CSVGObj *m_object;
    CacheRendering *m_outer; ///< the enclosing rendering on this thread, of any object
    bool m_nested = false;
    bool m_requested = false;
    int m_rounds = 0;
};
