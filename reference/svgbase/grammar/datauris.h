#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringView>

#include <optional>

namespace Svg {

/// The bytes of a "data:" URI (RFC 2397), percent-encoded or in base 64, ignoring white space. No value for other
/// references and malformed data.
std::optional<QByteArray> parseDataUri(QStringView text);

} // namespace Svg
