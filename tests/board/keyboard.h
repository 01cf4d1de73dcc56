#pragma once

#include <QtCore/Qt>

#include <cstdint>

namespace boardtest {

/// The X Window System's number of a key ("keysym": its protocol, appendix A).
std::uint32_t keySymbol(Qt::Key key);

} // namespace boardtest
