#pragma once

#include "resolve/facts.h"
#include "tree/message.h"
#include "tree/tree.h"

#include <memory>
#include <mutex>

namespace Svg {

/// The parsed form of a text. It is immutable, so documents in any thread start as copies of it and share their
/// unchanged parts.
class Prototype
{
public:
    /// The elements with all their resolved facts.
    struct Settled
    {
        Tree tree;
        /// By node index.
        QVector<FactsPointer> facts;
        QVector<Message> messages;
        /// Whether facts of some element depend on its content.
        bool measuresContent = false;
    };

    Prototype(const Tree &tree, const Messages &messages);

    /// The elements as read, before their styling flags are resolved.
    const Tree &tree() const { return m_tree; }
    /// The view box that the text gives; null without one.
    const QRectF &viewBox() const { return m_viewBox; }
    /// Resolved on first use.
    const Settled &settled() const;

private:
    Tree m_tree;
    QRectF m_viewBox;
    Messages m_messages;
    mutable std::once_flag m_once;
    mutable Settled m_settled;
};

using PrototypePointer = std::shared_ptr<const Prototype>;

/// Parses a text. Null when it can't be loaded; `messages` then ends with the reason.
PrototypePointer makePrototype(const QByteArray &text, Messages *messages);

} // namespace Svg
