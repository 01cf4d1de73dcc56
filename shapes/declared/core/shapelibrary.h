#pragma once

#include <declared/core/shapekind.h>

#include <QtCore/QHash>
#include <QtCore/QVector>

#include <functional>
#include <memory>
#include <vector>

namespace declared {

class DeclaredObject;

/// All shapes that are known: those on offer, earlier versions of them, and those that documents have brought. A
/// kind that is known once stays, since objects and undo steps are made of it.
class ShapeLibrary
{
public:
    using Kinds = QVector<const ShapeKind *>;

    ShapeLibrary();
    ShapeLibrary(const ShapeLibrary &) = delete;
    ShapeLibrary &operator=(const ShapeLibrary &) = delete;

    /// Puts these on offer in place of those before.
    void offer(std::vector<std::unique_ptr<ShapeKind>> kinds);
    const Kinds &offered() const { return m_offered; }
    /// Null when no such kind is on offer.
    const ShapeKind *offered(const QString &kindId) const;
    /// The kind that a text declares; null when nobody has brought it.
    const ShapeKind *withText(const QString &hash) const { return m_byText.value(hash); }
    /// Gets to know the text of a document. Null for one that declares no shape. `name` is the id of a shape whose
    /// text has none.
    const ShapeKind *remember(const QByteArray &text, const QString &name = {});
    /// Those that documents have brought, in the order in which it came.
    const Kinds &remembered() const { return m_remembered; }
    /// Stands in for a kind that isn't known yet.
    const ShapeKind &blank() const { return *m_blank; }
    /// @name Living objects, for a library that changes what they are made of
    /// @{
    void add(DeclaredObject *object) { m_objects.append(object); }
    void remove(DeclaredObject *object) { m_objects.removeOne(object); }
    const QVector<DeclaredObject *> &objects() const { return m_objects; }
    /// @}
    /// Called when remember() has learnt another text.
    void setListener(const std::function<void()> &listener) { m_listener = listener; }

private:
    const ShapeKind *add(std::unique_ptr<ShapeKind> kind);

    std::vector<std::unique_ptr<ShapeKind>> m_kinds;
    std::unique_ptr<ShapeKind> m_blank;
    QVector<DeclaredObject *> m_objects;
    Kinds m_offered;
    Kinds m_remembered;
    QHash<QString, const ShapeKind *> m_byText;
    std::function<void()> m_listener;
};

} // namespace declared
