#include "grammar/datauris.h"

#include "grammar/cursor.h"

#include <algorithm>

namespace Svg {

namespace {

const QLatin1String scheme("data:");
const QLatin1String base64Mark(";base64");

QByteArray withoutSpace(QByteArray bytes)
{
    const auto end = std::remove_if(bytes.begin(), bytes.end(), isSpace);
    bytes.truncate(int(end - bytes.begin()));
    return bytes;
}

bool isHexDigit(char c)
{
    return isDigit(c) || (c >= 'a' && c <= 'f') || (c >= 'A' && c <= 'F');
}

// A percent sign that starts no escape is literal, as in browsers.
QByteArray percentDecoded(const QByteArray &bytes)
{
    QByteArray result;
    result.reserve(bytes.size());
    for (int i = 0; i < bytes.size(); ++i) {
        const bool escape = bytes.at(i) == '%' && i + 2 < bytes.size() && isHexDigit(bytes.at(i + 1)) &&
                            isHexDigit(bytes.at(i + 2));
        if (!escape) {
            result.append(bytes.at(i));
            continue;
        }
        result.append(char(bytes.mid(i + 1, 2).toInt(nullptr, 16)));
        i += 2;
    }
    return result;
}

} // namespace

std::optional<QByteArray> parseDataUri(QStringView text)
{
    const QStringView trimmed = text.trimmed();
    if (!trimmed.startsWith(scheme, Qt::CaseInsensitive))
        return std::nullopt;
    const qsizetype comma = trimmed.indexOf(QLatin1Char(','));
    if (comma < 0)
        return std::nullopt;
    const bool isBase64 = trimmed.left(comma).trimmed().endsWith(base64Mark, Qt::CaseInsensitive);
    const QByteArray data = percentDecoded(trimmed.mid(comma + 1).toUtf8());
    if (!isBase64)
        return data;
    const auto decoded =
        QByteArray::fromBase64Encoding(withoutSpace(data), QByteArray::AbortOnBase64DecodingErrors);
    if (!decoded)
        return std::nullopt;
    return *decoded;
}

} // namespace Svg
