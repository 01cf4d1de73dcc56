#pragma once

#include <framework/cbaseobject.h>

#include <pagehost/document.h>
#include <pagehost/lesson.h>

#include <QtCore/QHash>
#include <QtCore/QPointer>

#include <memory>

namespace pagehost {

class ObjectRegistry;
struct ObjectRecord;
class Page;

/// Replays a lesson on a document of its own, which nobody edits, without undo and recording.
///
/// Steps that name missing pages or objects do nothing: data of lessons may be damaged.
class LessonStage
{
public:
    /// Initially without pages. The registry must outlive the stage.
    explicit LessonStage(const ObjectRegistry *registry);
    ~LessonStage();

    Document *document() const { return m_document.get(); }
    /// The object with this number; null when it is on no page.
    CBaseObject *object(quint32 number) const { return m_objects.value(number); }
    /// Applies a step. Returns the object that it changed; null for none.
    CBaseObject *perform(const LessonStep &step);

private:
    CBaseObject *perform(const ObjectActed &step);
    CBaseObject *perform(const ObjectAppeared &step);
    CBaseObject *perform(const ObjectVanished &step);
    CBaseObject *perform(const ObjectSettled &step);
    CBaseObject *perform(const PageRestacked &step);
    CBaseObject *perform(const PageAppeared &step);
    CBaseObject *perform(const PageVanished &step);
    CBaseObject *perform(const PageMoved &step);
    CBaseObject *perform(const PageResized &step);
    CBaseObject *perform(const PageBackgroundChanged &step);
    CBaseObject *perform(const PageGrouped &step);
    CBaseObject *perform(const PageTurned &step);
    CBaseObject *perform(const ZoomChanged &step);
    static CBaseObject *perform(const ChapterBegan &) { return nullptr; }

    /// Never null; a placeholder for an object that cannot be made.
    CBaseObject *makeObject(ObjectRecord record, Page *page) const;
    void put(CBaseObject *object, quint32 number, Page &page, int place);
    void forgetObjectsOf(const Page &page);

    const ObjectRegistry *m_registry;
    std::unique_ptr<Document> m_document;
    QHash<quint32, QPointer<CBaseObject>> m_objects;
};

} // namespace pagehost
