#pragma once

#include "resolve/facts.h"
#include "tree/message.h"
#include "tree/tree.h"

#include <optional>

namespace Svg {

/// What a text amounts to: elements and their facts. Documents start as copies, which share both until they change.
struct Prototype
{
    Tree tree;
    /// By node index.
    QVector<FactsPointer> facts;
    QVector<Message> messages;
    /// Null when the text gives none.
    QRectF viewBox;
};

/// Parses and resolves a text. Nothing when it can't be loaded; `messages` then ends with the reason.
std::optional<Prototype> makePrototype(const QByteArray &text, Messages *messages);

} // namespace Svg
