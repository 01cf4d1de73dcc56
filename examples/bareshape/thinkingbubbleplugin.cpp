#include "thinkingbubbleplugin.h"

#include "thinkingbubbleobject.h"

namespace {

const QString kindId = QStringLiteral("example.thinkingbubble");
const QString nameKey = QStringLiteral("IDS_EXAMPLE_THINKINGBUBBLE");
const QString groupKey = QStringLiteral("IDS_EXAMPLE_GROUP");
const QString thoughtKey = QStringLiteral("IDS_EXAMPLE_THOUGHT");

} // namespace

QVector<pagehost::ObjectKind> ThinkingBubblePlugin::objectKinds() const
{
    return {{kindId, nameKey, groupKey}};
}

CBaseObject *ThinkingBubblePlugin::createObject(const QString &id) const
{
    return id == kindId ? new ThinkingBubbleObject : nullptr;
}

pagehost::TextTable ThinkingBubblePlugin::texts(const QString &language) const
{
    if (language == QLatin1String("en"))
        return {{nameKey, QStringLiteral("Thinking bubble")},
                {groupKey, QStringLiteral("Examples")},
                {thoughtKey, QStringLiteral("Thought")}};
    if (language == QLatin1String("de"))
        return {{nameKey, QStringLiteral("Denkblase")},
                {groupKey, QStringLiteral("Beispiele")},
                {thoughtKey, QStringLiteral("Gedanke")}};
    return {};
}
