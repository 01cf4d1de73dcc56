#pragma once

#include <QtCore/QByteArray>
#include <QtCore/QStringView>

#include <optional>

namespace Svg {

/// The bytes of a "data:" URI (RFC 2397), percent-encoded or in base 64, white space aside. Nothing for any other
/// reference and for data that is not well formed.
std::optional<QByteArray> parseDataUri(QStringView text);

} // namespace Svg
