#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace Svg {

/// Whether bytes start like a gzip file (RFC 1952 §2.3.1).
bool isGzip(const QByteArray &bytes);
/// Contents of all members of a gzip file, one after the other (RFC 1952 §2.2). No value if one of them is damaged
/// or ends early, or if all together exceed `limit` bytes.
std::optional<QByteArray> gunzip(const QByteArray &bytes, int limit);

} // namespace Svg
