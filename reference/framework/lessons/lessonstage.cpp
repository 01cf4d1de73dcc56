#include <lessons/lessonstage.h>

#include <framework/cbaseobject.h>

#include <pagehost/page.h>
#include <pagehost/recorder.h>

#include <files/groupcodec.h>
#include <files/objectrecordstream.h>
#include <host/objectpage.h>
#include <lessons/documentzoom.h>
#include <lessons/exactloading.h>
#include <lessons/replaying.h>

#include <QtCore/QDataStream>

namespace pagehost {

namespace {

/// Objects do not paint editing aids while the document is in this state.
constexpr int playingState = 1;
/// A page takes a few bytes of a lesson and many more in memory; damaged data must not exhaust it.
constexpr int mostPages = 10000;

/// Only the order of stacking numbers matters, but they are saved, so an object gets its former number back where
/// it fits the order.
void restoreStackingNumber(const Page &page, CBaseObject &object, double number)
{
    const QVector<CBaseObject *> objects = page.objects();
    const int place = objects.indexOf(&object);
    const bool isAbove = place == 0 || objects[place - 1]->zValue() < number;
    const bool isBelow = place + 1 == objects.size() || number < objects[place + 1]->zValue();
    if (isAbove && isBelow)
        object.setZValue(number);
}

CPageBgProp backgroundOf(const Page &page, const QByteArray &data)
{
    CPageBgProp background(page.background());
    QDataStream in(data);
    background.load(in);
    return background;
}

} // namespace

LessonStage::LessonStage(const ObjectRegistry *registry)
    : m_registry(registry)
    , m_document(std::make_unique<Document>())
{
    m_document->setUndoable(false);
    m_document->setDocumentState(playingState);
    m_document->setEditingBlocked(1);
    m_document->setZoomFixed(true);
}

LessonStage::~LessonStage() = default;

CBaseObject *LessonStage::perform(const LessonStep &step)
{
    const CurrentDocument current(m_document.get());
    return std::visit([this](const auto &kind) { return this->perform(kind); }, step);
}

CBaseObject *LessonStage::perform(const ObjectActed &step)
{
    CBaseObject *acting = object(step.object);
    const std::optional<QByteArray> payload = replayedPayload(step.actionId, step.payload);
    if (!acting || !payload)
        return nullptr;
    replayAction(acting, step.actionId, *payload);
    return acting;
}

CBaseObject *LessonStage::perform(const ObjectAppeared &step)
{
    Page *page = m_document->page(step.page);
    ObjectRecord record;
    if (!page || object(step.object) || !readRecord(step.data, record))
        return nullptr;
    CBaseObject *made = makeObject(record, page);
    put(made, step.object, *page, step.place);
    return made;
}

void LessonStage::put(CBaseObject *object, quint32 number, Page &page, int place)
{
    const double stackingNumber = object->zValue();
    page.addObject(object, place);
    restoreStackingNumber(page, *object, stackingNumber);
    m_objects.insert(number, object);
}

CBaseObject *LessonStage::makeObject(ObjectRecord record, Page *page) const
{
    // The lesson may be deleted before the object.
    record.data = QByteArray(record.data.constData(), record.data.size());
    FileMessage message;
    CBaseObject *made = ObjectFactory(*m_registry).make(record, page, message);
    if (record.encoding != ObjectRecord::Stream || isPlaceholder(made) || loadExactly(*made, record.data))
        return made;
    delete made;
    return ObjectFactory(*m_registry).make(record, page, message);
}

CBaseObject *LessonStage::perform(const ObjectVanished &step)
{
    CBaseObject *vanishing = object(step.object);
    if (vanishing) {
        pageOf(*vanishing)->removeObject(vanishing);
        // At once: a lesson played as fast as possible would accumulate objects until control returns to the event
        // loop.
        delete vanishing;
    }
    m_objects.remove(step.object);
    return nullptr;
}

CBaseObject *LessonStage::perform(const ObjectSettled &step)
{
    CBaseObject *former = object(step.object);
    ObjectRecord record;
    if (!former || !readRecord(step.data, record))
        return nullptr;
    // Load into a new object: a used one may keep some of its past.
    Page *page = pageOf(*former);
    CBaseObject *settled = makeObject(record, page);
    const int place = page->removeObject(former);
    delete former;
    put(settled, step.object, *page, place);
    return settled;
}

CBaseObject *LessonStage::perform(const PageRestacked &step)
{
    Page *page = m_document->page(step.page);
    QVector<CBaseObject *> order;
    for (const quint32 number : step.objects)
        order.append(object(number));
    if (page)
        page->setStackingOrder(order);
    return nullptr;
}

void LessonStage::forgetObjectsOf(const Page &page)
{
    for (auto object = m_objects.begin(); object != m_objects.end();)
        object = page.contains(object.value()) ? m_objects.erase(object) : std::next(object);
}

CBaseObject *LessonStage::perform(const PageAppeared &step)
{
    if (m_document->pageCount() >= mostPages)
        return nullptr;
    Page *page = m_document->createPage(step.size);
    page->setBackground(backgroundOf(*page, step.background));
    m_document->insertPage(step.page, page);
    return nullptr;
}

CBaseObject *LessonStage::perform(const PageVanished &step)
{
    if (const Page *page = m_document->page(step.page)) {
        // Views may still show the page, so it is deleted from the event loop; its objects are deleted now.
        forgetObjectsOf(*page);
        m_document->takePage(step.page);
    }
    return nullptr;
}

CBaseObject *LessonStage::perform(const PageMoved &step)
{
    m_document->movePage(step.from, step.to);
    return nullptr;
}

CBaseObject *LessonStage::perform(const PageResized &step)
{
    if (Page *page = m_document->page(step.page))
        page->setSize(step.size);
    return nullptr;
}

CBaseObject *LessonStage::perform(const PageBackgroundChanged &step)
{
    if (Page *page = m_document->page(step.page))
        page->setBackground(backgroundOf(*page, step.background));
    return nullptr;
}

CBaseObject *LessonStage::perform(const PageGrouped &step)
{
    if (Page *page = m_document->page(step.page))
        page->setGroups(readGroups(step.groups));
    return nullptr;
}

CBaseObject *LessonStage::perform(const PageTurned &step)
{
    m_document->setCurrentIndex(step.page);
    return nullptr;
}

CBaseObject *LessonStage::perform(const ZoomChanged &step)
{
    m_document->setZoomFixed(false);
    m_document->setZoomRate(step.rate);
    m_document->setZoomFixed(true);
    followZoom(*m_document);
    return nullptr;
}

} // namespace pagehost
