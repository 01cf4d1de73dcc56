#include <lessons/lessonrecording.h>

#include <framework/cbaseobject.h>
#include <framework/cundoredo.h>

#include <pagehost/lessonclock.h>
#include <pagehost/objectid.h>
#include <pagehost/page.h>
#include <pagehost/pagescene.h>

#include <files/groupcodec.h>
#include <files/objecttexts.h>
#include <host/baseobject.h>
#include <host/objectpage.h>
#include <host/payload.h>
#include <host/saveddata.h>
#include <lessons/documentsteps.h>
#include <lessons/documentzoom.h>

#include <QtWidgets/QUndoStack>

#include <algorithm>

namespace pagehost {

namespace {

/// Events that a gesture causes. Others, such as zooming, may happen during one and stay.
bool isOfObjects(const LessonEvent &event)
{
    const LessonStep &step = event.step;
    return std::holds_alternative<ObjectActed>(step) || std::holds_alternative<ObjectAppeared>(step) ||
           std::holds_alternative<ObjectVanished>(step) || std::holds_alternative<ObjectSettled>(step) ||
           std::holds_alternative<PageRestacked>(step);
}

} // namespace

LessonRecording::LessonRecording(Document *document, const ObjectRegistry *registry, const LessonClock &clock)
    : m_document(document)
    , m_clock(clock)
    , m_nextSink(setActionSink(this))
    , m_rehearsal(registry)
    , m_zoom(document->zoomRate())
{
    m_turn.setSingleShot(true);
    connect(&m_turn, &QTimer::timeout, this, &LessonRecording::settleIdle);
    followZoom(*document);
    m_lesson.start = appearanceOf(*document, [this](CBaseObject *object) { return numberOf(object); });
    m_rehearsal.document()->assets() = document->assets();
    for (const LessonStep &step : qAsConst(m_lesson.start))
        m_rehearsal.perform(step);
    const QVector<Page *> pages = document->pages();
    for (Page *page : pages)
        watch(page);
    connect(document, &Document::pageInserted, this, &LessonRecording::notePage);
    connect(document, &Document::pageRemoved, this, [this](int index) { append(PageVanished{index}); });
    connect(document, &Document::pageMoved, this, [this](int from, int to) { append(PageMoved{from, to}); });
    connect(document, &Document::currentPageChanged, this, [this](int index) { append(PageTurned{index}); });
    connect(CUndoRedo::GetInstance()->stack(), &QUndoStack::indexChanged, this, &LessonRecording::settle);
}

LessonRecording::~LessonRecording()
{
    if (actionSink() == this)
        setActionSink(m_nextSink);
}

void LessonRecording::watch(Page *page)
{
    const auto ifShown = [this, page](const std::function<void(int)> &note) {
        const int index = m_document ? m_document->indexOf(page) : -1;
        if (index >= 0)
            note(index);
    };
    disconnect(page, nullptr, this, nullptr);
    disconnect(page->scene(), nullptr, this, nullptr);
    connect(page->scene(), &PageScene::gestureStarted, this, &LessonRecording::beginGesture);
    connect(page->scene(), &PageScene::gestureCancelled, this, &LessonRecording::withdrawGesture);
    connect(page, &Page::objectAdded, this,
            [=](CBaseObject *object) { ifShown([=](int) { noteObject(*page, object); }); });
    connect(page, &Page::objectRemoved, this,
            [=](CBaseObject *object) { ifShown([=](int) { noteRemoval(object); }); });
    connect(page, &Page::objectChanged, this, &LessonRecording::noteChange);
    connect(page, &Page::stackingChanged, this, [=] { ifShown([=](int) { noteOrder(*page); }); });
    connect(page, &Page::groupsChanged, this, [=] { ifShown([=](int) { noteGroups(*page); }); });
    connect(page, &Page::backgroundChanged, this, [=] {
        ifShown([=](int index) { append(PageBackgroundChanged{index, savedData(page->background())}); });
    });
    connect(page, &Page::sizeChanged, this, [=](const QSizeF &size) {
        ifShown([=](int index) { append(PageResized{index, size}); });
    });
}

void LessonRecording::actionRecorded(CPSRootObject *object, int actionId, const QByteArray &payload)
{
    if (m_nextSink)
        m_nextSink->actionRecorded(object, actionId, payload);
    CBaseObject *acting = baseObject(*object);
    const quint32 number = acting ? knownNumberOf(acting) : 0;
    if (number == 0 || pageIndexOf(*acting) < 0)
        return;
    noteChange(acting);
    if (m_clock.isRunning())
        append(ObjectActed{number, actionId, payload});
}

void LessonRecording::notePage(int index)
{
    Page *page = m_document->page(index);
    watch(page);
    const auto steps = appearanceOf(*page, index, [this](CBaseObject *object) { return numberOf(object); });
    for (const LessonStep &step : steps)
        append(step);
}

void LessonRecording::noteObject(const Page &page, CBaseObject *object)
{
    append(appearanceOf(object, numberOf(object), m_document->indexOf(&page), page.indexOf(object)));
}

void LessonRecording::noteRemoval(CBaseObject *object)
{
    append(ObjectVanished{numberOf(object)});
}

void LessonRecording::noteOrder(const Page &page)
{
    PageRestacked step{m_document->indexOf(&page), {}};
    const QVector<CBaseObject *> objects = page.objects();
    for (CBaseObject *object : objects)
        step.objects.append(numberOf(object));
    append(step);
}

/// Objects get their numbers when they are first grouped, which is no action of theirs.
void LessonRecording::noteGroups(const Page &page)
{
    catchUp();
    const QVector<CBaseObject *> objects = page.objects();
    for (CBaseObject *object : objects)
        if (objectId(object) != objectId(m_rehearsal.object(numberOf(object))))
            append(ObjectActed{numberOf(object), ActionNumbered, payloadOf(objectId(object))});
    append(PageGrouped{m_document->indexOf(&page), streamed(page.groups())});
}

void LessonRecording::noteChange(CBaseObject *object)
{
    if (const quint32 number = object ? knownNumberOf(object) : 0) {
        m_changed.insert(number, object);
        if (!m_turn.isActive())
            m_turn.start(0);
    }
}

void LessonRecording::beginGesture()
{
    settle();
    m_gesture = m_lesson.events.size();
}

/// The rehearsal goes there and back; the lesson forgets both ways.
void LessonRecording::withdrawGesture()
{
    if (!m_gesture)
        return;
    settle();
    QVector<LessonEvent> &events = m_lesson.events;
    events.erase(std::remove_if(events.begin() + *m_gesture, events.end(), isOfObjects), events.end());
    m_gesture.reset();
    m_rehearsed = events.size();
}

/// Compare once per turn of the event loop. In the middle of a drag the recorded actions suffice.
void LessonRecording::settleIdle()
{
    const Page *page = m_document ? m_document->currentPage() : nullptr;
    if (page && page->scene()->isBusy()) {
        catchUp();
        return;
    }
    settle();
}

void LessonRecording::settle()
{
    if (!m_document || m_changed.isEmpty()) {
        catchUp();
        return;
    }
    prepareComparison();
    const auto changed = m_changed;
    m_changed.clear();
    for (auto object = changed.begin(); object != changed.end(); ++object)
        compare(object.key(), object.value());
}

Lesson LessonRecording::settled()
{
    if (m_document) {
        prepareComparison();
        const QVector<Page *> pages = m_document->pages();
        for (const Page *page : pages) {
            const QVector<CBaseObject *> objects = page->objects();
            for (CBaseObject *object : objects)
                compare(numberOf(object), object);
        }
    }
    m_lesson.duration = m_lesson.events.isEmpty() ? 0 : m_lesson.events.last().time;
    m_lesson.duration = qMax(m_lesson.duration, m_clock.time());
    return m_lesson;
}

void LessonRecording::beginChapter(const QString &name)
{
    // Changes until now belong to the chapter before.
    settle();
    append(ChapterBegan{name});
}

void LessonRecording::append(const LessonStep &step)
{
    noteZoom();
    noteTime(step);
}

void LessonRecording::noteTime(const LessonStep &step)
{
    const qint64 last = m_lesson.events.isEmpty() ? 0 : m_lesson.events.last().time;
    m_lesson.events.append({qMax(last, m_clock.time()), step});
}

void LessonRecording::noteZoom()
{
    if (!m_document || m_document->zoomRate() == m_zoom)
        return;
    m_zoom = m_document->zoomRate();
    // Objects of the rehearsal follow the zoom when they are painted, at the latest when they are compared: one may
    // be in the middle of a change now.
    m_mustFollowZoom = true;
    noteTime(ZoomChanged{m_zoom});
}

void LessonRecording::catchUp()
{
    if (m_document)
        m_rehearsal.document()->assets() = m_document->assets();
    for (; m_rehearsed < m_lesson.events.size(); ++m_rehearsed)
        m_rehearsal.perform(m_lesson.events[m_rehearsed].step);
}

void LessonRecording::prepareComparison()
{
    noteZoom();
    if (m_mustFollowZoom) {
        m_mustFollowZoom = false;
        followZoom(*m_document);
    }
    catchUp();
}

void LessonRecording::compare(quint32 number, CBaseObject *object)
{
    CBaseObject *rehearsed = m_rehearsal.object(number);
    if (!object || !rehearsed || pageIndexOf(*object) < 0)
        return;
    if (savedData(*rehearsed) != savedData(*object)) {
        keepTextsOf(*object, m_document->assets());
        append(ObjectSettled{number, recordOf(object)});
        catchUp();
    }
}

quint32 LessonRecording::numberOf(CBaseObject *object)
{
    Numbered &entry = m_numbers[object];
    if (entry.object != object) {
        entry = {object, ++m_lastNumber};
        keepTextsOf(*object, m_document->assets());
    }
    return entry.number;
}

quint32 LessonRecording::knownNumberOf(CBaseObject *object) const
{
    const Numbered entry = m_numbers.value(object);
    return entry.object == object ? entry.number : 0;
}

int LessonRecording::pageIndexOf(const CBaseObject &object) const
{
    const Page *page = pageOf(object);
    return m_document && page && page->contains(&object) ? m_document->indexOf(page) : -1;
}

} // namespace pagehost
