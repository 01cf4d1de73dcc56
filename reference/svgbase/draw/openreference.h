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
    static bool isAllowed(BuildContext &context, NodeIndex node)
    {
        if (context.open.size() < Limits::effectDepth)
            return !context.open.contains(node);
        context.report.add(Message::EffectsTooDeep,
                           QStringLiteral("Clip paths, masks, markers and patterns more than %1 deep in each other "
                                          "are left out.")
                               .arg(Limits::effectDepth),
                           node);
        return false;
    }

private:
    BuildContext &m_context;
};

} // namespace Svg
