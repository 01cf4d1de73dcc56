#pragma once

#include <pagehost/pagechange.h>
#include <pagehost/pagetool.h>

#include <framework/framework_global.h>

#include <QtCore/QPointer>
#include <QtCore/QVector>

#include <optional>

class CBaseObject;

namespace pagehost {

class ObjectRegistry;
class Page;

/// A page that tools work on.
class FRAMEWORK_EXPORT ToolSession : public ToolPage
{
public:
    /// A change that a tool has made an undo step.
    struct Result
    {
        QVector<CBaseObject *> objects; ///< those that were added
        Afterwards afterwards = Stay;   ///< how the change is followed up
    };

    /// The registry must outlive the session.
    ToolSession(Page *page, const ObjectRegistry *registry);

    /// The last commit since the last call; nothing without one.
    std::optional<Result> takeResult();

    CBaseObject *createObject(const QString &kindId) override;
    void add(CBaseObject *object, const CBaseObject *below = nullptr) override;
    void remove(CBaseObject *object) override;
    QVector<CBaseObject *> objectsIn(const QRectF &area) const override;
    void commit(const QString &textKey, Afterwards afterwards) override;
    void revert() override;
    Connection connectionAt(const ToolPointer &pointer) const override;
    quint32 numberOf(CBaseObject *object) override;
    void highlight(CBaseObject *object) override;

private:
    QPointer<Page> m_page;
    const ObjectRegistry *m_registry;
    PageChange m_change;
    QVector<QPointer<CBaseObject>> m_numbered; ///< since the last commit
    std::optional<Result> m_result;
};

} // namespace pagehost
