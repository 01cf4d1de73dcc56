#pragma once

#include <pagehost/recorder.h>

#include <QtCore/QPair>
#include <QtCore/QVector>

namespace checklist {

/// Writes down what objects record while it lives.
class RecordedActions : public pagehost::ActionSink
{
public:
    RecordedActions()
        : m_before(pagehost::setActionSink(this))
    {
    }
    ~RecordedActions() override { pagehost::setActionSink(m_before); }
    void actionRecorded(CPSRootObject *, int actionId, const QByteArray &payload) override
    {
        actions.append({actionId, payload});
    }

    QVector<QPair<int, QByteArray>> actions;

private:
    pagehost::ActionSink *m_before;
};

} // namespace checklist
