#pragma once

#include <framework/cbaseobject.h>

#include <pagehost/lesson.h>
#include <pagehost/recorder.h>

#include <lessons/lessonstage.h>

#include <QtCore/QHash>
#include <QtCore/QMap>
#include <QtCore/QObject>
#include <QtCore/QPointer>
#include <QtCore/QTimer>

#include <optional>

namespace pagehost {

class Document;
class LessonClock;
class ObjectRegistry;
class Page;

/// One running recording.
class LessonRecording : public QObject, private ActionSink
{
    Q_OBJECT

public:
    /// Starts with the document's present state. While the clock is stopped, actions of objects are not recorded.
    /// The clock and the registry must outlive the recording; the document may be deleted.
    LessonRecording(Document *document, const ObjectRegistry *registry, const LessonClock &clock);
    ~LessonRecording() override;

    /// Records the states of changed objects that the lesson does not lead to.
    void settle();
    /// The same for all objects of the document; returns the lesson so far.
    Lesson settled();
    void beginChapter(const QString &name);

private:
    void actionRecorded(CPSRootObject *object, int actionId, const QByteArray &payload) override;

    void watch(Page *page);
    void notePage(int index);
    void noteObject(const Page &page, CBaseObject *object);
    void noteRemoval(CBaseObject *object);
    void noteOrder(const Page &page);
    void noteGroups(const Page &page);
    void noteChange(CBaseObject *object);
    void beginGesture();
    void withdrawGesture();
    void settleIdle();

    void append(const LessonStep &step);
    void noteTime(const LessonStep &step);
    void noteZoom();
    /// Plays the events that the rehearsal has not played yet.
    void catchUp();
    void prepareComparison();
    void compare(quint32 number, CBaseObject *object);

    /// A new number for an object seen for the first time.
    quint32 numberOf(CBaseObject *object);
    /// 0 for an object that the lesson does not know.
    quint32 knownNumberOf(CBaseObject *object) const;
    int pageIndexOf(const CBaseObject &object) const;

    struct Numbered
    {
        QPointer<CBaseObject> object; ///< null once it is deleted; its address may then be another object's
        quint32 number = 0;
    };

    QPointer<Document> m_document;
    const LessonClock &m_clock;
    ActionSink *m_nextSink;
    LessonStage m_rehearsal;
    int m_rehearsed = 0; ///< events that the rehearsal has played
    Lesson m_lesson;
    std::optional<int> m_gesture; ///< events before the present drag or drawing began
    QHash<CBaseObject *, Numbered> m_numbers;
    quint32 m_lastNumber = 0;
    QMap<quint32, QPointer<CBaseObject>> m_changed; ///< since the last comparison
    QTimer m_turn;                                  ///< until control returns to the event loop
    double m_zoom = 1;
    bool m_mustFollowZoom = false;
};

} // namespace pagehost
