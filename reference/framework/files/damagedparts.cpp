#include <files/damagedparts.h>

#include <files/documentcodec.h>
#include <files/jsonnames.h>

#include <algorithm>

namespace pagehost {

namespace {

/// Of one document. More would make a file that can no longer be saved.
constexpr qint64 mostBytes = 64 << 20;

const QLatin1String damagedKey(jsonnames::damagedName);

bool isAllZero(const QByteArray &bytes)
{
    return std::all_of(bytes.begin(), bytes.end(), [](char byte) { return byte == '\0'; });
}

} // namespace

FileMessage DamagedParts::keep(const QByteArray &bytes)
{
    const QStringList count{QString::number(bytes.size())};
    if (!bytes.isEmpty() && isAllZero(bytes))
        return warning(QStringLiteral("IDS_FILE_ZEROS"), count);
    if (bytes.size() > mostBytes - m_size)
        return warning(QStringLiteral("IDS_FILE_DAMAGED_TOO_MUCH"), count);
    m_size += bytes.size();
    m_parts.append(QString::fromLatin1(bytes.toBase64()));
    return warning(QStringLiteral("IDS_FILE_DAMAGED_PART"), count);
}

void DamagedParts::moveTo(ExtraData &extra)
{
    if (m_parts.isEmpty())
        return;
    const QJsonValue before = extra.members.value(damagedKey);
    QJsonArray parts = before.isArray() || before.isUndefined() ? before.toArray() : QJsonArray{before};
    for (const QJsonValue &part : qAsConst(m_parts))
        parts.append(part);
    extra.members.insert(damagedKey, parts);
    m_parts = {};
}

} // namespace pagehost
