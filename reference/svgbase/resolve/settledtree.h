#pragma once

#include "images/images.h"
#include "resolve/resolver.h"
#include "resolve/styleoverride.h"

#include <memory>

namespace Svg {

/// A tree whose facts are kept up to date: everything that drawing and measuring know of a document.
class SettledTree
{
public:
    SettledTree() = default;
    virtual ~SettledTree() = default;

    /// The elements. Their styling flags are valid once settle() was called.
    virtual const Tree &tree() const = 0;
    /// Makes facts available. Call this before measuring, drawing or changing anything.
    virtual void settle() = 0;
    /// Increases with every change that may be visible.
    virtual quint32 revision() const = 0;
    /// The current facts of a node; changes since the last call are resolved first.
    virtual FactsPointer facts(NodeIndex index) = 0;
    /// The same for a child of a node whose facts are given.
    virtual FactsPointer factsBelow(NodeIndex child, const FactsPointer &above) = 0;
    /// Resolves elements at other places than their own.
    virtual Resolver resolver() = 0;
    /// Document-wide styling of a node; null for none.
    virtual StyleOverridePointer stylePointer(NodeIndex index) const = 0;
    /// The document that an image shows, resolved for a window of the given size.
    virtual std::unique_ptr<SettledTree> imageDocument(const ImageContent &image, const QSizeF &window) const = 0;

protected:
    SettledTree(const SettledTree &) = default;
    SettledTree &operator=(const SettledTree &) = default;
};

} // namespace Svg
