#pragma once

#include <pagehost/pagechange.h>
#include <pagehost/pagetool.h>

#include <framework/framework_global.h>

#include <QtCore/QPointF>
#include <QtCore/QPointer>
#include <QtCore/QVector>

#include <functional>
#include <optional>

class CBaseObject;

namespace pagehost {

class ObjectRegistry;
class Page;

/// A page that tools work on.
class FRAMEWORK_EXPORT ToolSession : public ToolPage
{
public:
    /// A change that a tool has made an undo step, or the text that it leaves to the user.
    struct Result
    {
        QVector<CBaseObject *> objects;     ///< those that were added
        Afterwards afterwards = Stay;       ///< how the change is followed up
        std::optional<QPointF> writtenText; ///< writeAt()'s position; nothing after a commit
    };
    /// Whether the user can write a text that an object already has at a position, scene coordinates.
    using TextTest = std::function<bool(const QPointF &pos)>;

    /// The registry must outlive the session. Without `hasTextAt` there are no such texts.
    ToolSession(Page *page, const ObjectRegistry *registry, TextTest hasTextAt = {});

    /// The last commit or text since the last call; nothing without one.
    std::optional<Result> takeResult();

    CBaseObject *createObject(const QString &kindId) override;
    void add(CBaseObject *object, const CBaseObject *below = nullptr) override;
    void remove(CBaseObject *object) override;
    QVector<CBaseObject *> objectsIn(const QRectF &area) const override;
    void commit(const QString &textKey, Afterwards afterwards) override;
    bool writeAt(const QPointF &pos) override;
    void revert() override;
    Connection connectionAt(const ToolPointer &pointer) const override;
    quint32 numberOf(CBaseObject *object) override;
    void highlight(CBaseObject *object) override;

private:
    QPointer<Page> m_page;
    const ObjectRegistry *m_registry;
    TextTest m_hasTextAt;
    PageChange m_change;
    QVector<QPointer<CBaseObject>> m_numbered; ///< since the last commit
    std::optional<Result> m_result;
};

} // namespace pagehost
