#pragma once

#include <QtCore/qglobal.h>

class CSVGObj;

/// Keeps cache rendering from entering itself: something called while an object renders its off-screen picture may
/// ask for just that. The mutex is not recursive, so such a request returns at once, and one more rendering follows
/// when the running one is done and has unlocked.
///
///     CacheRendering rendering(object);
///     while (rendering.next()) { lock; render; unlock; }
class CacheRendering
{
public:
    explicit CacheRendering(const CSVGObj *object);
    ~CacheRendering();
    Q_DISABLE_COPY(CacheRendering)

    /// Whether to render (again). A request made during the repetition is dropped, so that this ends.
    bool next();

private:
    const CSVGObj *m_object;
    CacheRendering *m_outer; ///< the rendering that was running on this thread before, of whatever object
    bool m_nested = false;
    bool m_requested = false;
    int m_rounds = 0;
};
