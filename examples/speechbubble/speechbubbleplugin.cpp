#include "speechbubbleplugin.h"

#include "speechbubbleobject.h"

namespace {

const QString kindId = QStringLiteral("example.speechbubble");
const QString nameKey = QStringLiteral("IDS_EXAMPLE_SPEECHBUBBLE");
const QString groupKey = QStringLiteral("IDS_EXAMPLE_GROUP");
const QString thoughtKey = QStringLiteral("IDS_EXAMPLE_THOUGHT");

} // namespace

QVector<pagehost::ObjectKind> SpeechBubblePlugin::objectKinds() const
{
    return {{kindId, nameKey, groupKey}};
}

CBaseObject *SpeechBubblePlugin::createObject(const QString &id) const
{
    return id == kindId ? new SpeechBubbleObject : nullptr;
}

pagehost::TextTable SpeechBubblePlugin::texts(const QString &language) const
{
    if (language == QLatin1String("en"))
        return {{nameKey, QStringLiteral("Speech bubble")},
                {groupKey, QStringLiteral("Examples")},
                {thoughtKey, QStringLiteral("Thought")}};
    if (language == QLatin1String("de"))
        return {{nameKey, QStringLiteral("Sprechblase")},
                {groupKey, QStringLiteral("Beispiele")},
                {thoughtKey, QStringLiteral("Gedanke")}};
    return {};
}
