#pragma once

#include <pagehost/pagetool.h>

#include <framework/framework_global.h>

#include <QtCore/QObject>
#include <QtCore/QPointF>
#include <QtCore/QString>

#include <memory>

class CBaseObject;

namespace pagehost {

class CreationCourse;
class ObjectRegistry;
class PageScene;

/// Draws one new object with the mouse.
///
/// The object sees one press at its own (0, 0), moves, and one release, and always grows to the right and down: the
/// tool moves the item so that the corner where the drag began stays put, whatever direction the user drags. A
/// click makes an object of its default size with its top-left corner at the click. Shift keeps the drag square,
/// Ctrl draws about the start, and the start moves along where the pointer says so. Start and end snap as the scene
/// does. The result is one undo step, and the new object is the selection.
class FRAMEWORK_EXPORT CreationTool : public QObject, public PageTool
{
    Q_OBJECT

public:
    /// The registry must outlive the tool.
    explicit CreationTool(const ObjectRegistry *registry, QObject *parent = nullptr);
    /// Cancels.
    ~CreationTool() override;

    /// Waits for a press on `scene` to draw an object of this kind. False, and nothing waits, when the registry
    /// does not know the kind. What was waiting before is cancelled.
    bool begin(PageScene *scene, const QString &kindId);
    /// Waiting for a press, or drawing.
    bool isActive() const { return m_scene != nullptr; }
    /// The kind being drawn or waited for; empty when not active.
    QString kindId() const { return m_kindId; }
    /// Removes the unfinished object without a trace and stops waiting; false when not active.
    bool cancel() override;
    bool isDrawing() const override { return m_object != nullptr; }
    void press(const ToolPointer &pointer) override;
    void move(const ToolPointer &pointer) override;
    void release(const ToolPointer &pointer) override;

    /// Makes an object of the kind at its default size with its top-left at `scenePos` as one undo step, as a click
    /// would; null when the kind is unknown. For keyboards and drops from a palette.
    CBaseObject *createAt(PageScene *scene, const QString &kindId, const QPointF &scenePos);

Q_SIGNALS:
    /// The object is finished. What is changed of it now belongs to the step that is about to be made.
    void finishing(CBaseObject *object);
    /// The object stands on the page and its undo step on the stack; the tool waits no longer.
    void created(CBaseObject *object);
    /// The tool waits no longer, and nothing is left of the object.
    void cancelled();

private:
    void sendToObject(int eventType);
    void sizeFinishedObject(int eventType);
    void keepStart();
    void stop();

    const ObjectRegistry *m_registry;
    PageScene *m_scene = nullptr;
    QString m_kindId;
    CBaseObject *m_object = nullptr;
    std::unique_ptr<CreationCourse> m_course; ///< of m_object
};

} // namespace pagehost
