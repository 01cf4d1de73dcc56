#pragma once

#include "draw/buildcontext.h"
#include "inputlimits.h"

namespace Svg {

/// Marks a definition as being built, for as long as this lives.
class OpenReference
{
public:
    OpenReference(BuildContext &context, NodeIndex node)
        : m_context(context)
    {
        m_context.open.append(node);
    }
    ~OpenReference() { m_context.open.removeLast(); }
    OpenReference(const OpenReference &) = delete;
    OpenReference &operator=(const OpenReference &) = delete;

    /// False for a definition that stands in its own content, and for one too deep in others.
    static bool isAllowed(const BuildContext &context, NodeIndex node)
    {
        return !context.open.contains(node) && context.open.size() < Limits::effectDepth;
    }

private:
    BuildContext &m_context;
};

} // namespace Svg
