#pragma once

namespace support {

/// A list to loop over: one of Qt's that isn't constant copies its elements before the loop if it shares them.
template<class List> const List listed(List list)
{
    return list;
}

} // namespace support
