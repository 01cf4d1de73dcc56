#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace Svg {

/// Whether bytes start as a gzip file does (RFC 1952 §2.3.1).
bool isGzip(const QByteArray &bytes);
/// Contents of all members of a gzip file, one after the other (RFC 1952 §2.2). Nothing when one of them is damaged
/// or ends early, or when all hold more than `limit` bytes together.
std::optional<QByteArray> gunzip(const QByteArray &bytes, int limit);

} // namespace Svg
