#pragma once

#include <QtCore/QByteArray>

#include <optional>

namespace Svg {

/// Whether bytes start as a gzip file does (RFC 1952 §2.3.1).
bool isGzip(const QByteArray &bytes);
/// What a gzip file holds. Nothing when it is damaged, ends early or holds more than `limit` bytes.
std::optional<QByteArray> gunzip(const QByteArray &bytes, int limit);

} // namespace Svg
