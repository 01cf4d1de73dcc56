#pragma once

#include "grammar/inputlimits.h"
#include "scene/buildcontext.h"

namespace Svg {

/// Marks a definition as being built during its lifetime.
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

    /// Whether a definition occurs in its own content.
    static bool isOpen(const BuildContext &context, NodeIndex node) { return context.open.contains(node); }
    /// Whether it is nested in as many others as the limit allows, which is reported.
    static bool isTooDeep(BuildContext &context, NodeIndex node)
    {
        if (context.open.size() < Limits::effectDepth)
            return false;
        context.report.add(Message::EffectsTooDeep,
                           QStringLiteral("Clip paths, masks, markers and patterns more than %1 deep in each other "
                                          "are left out.")
                               .arg(Limits::effectDepth),
                           node);
        return true;
    }
    static bool isAllowed(BuildContext &context, NodeIndex node)
    {
        return !isTooDeep(context, node) && !isOpen(context, node);
    }

private:
    BuildContext &m_context;
};

} // namespace Svg
