#pragma once

namespace pagehost {

/// Special property of objects between whose lines nothing may be filled.
enum OutlineHits {
    /// Read only: whether (bool) the region of the object is that of its lines and labels alone, since nothing is
    /// filled at present. Presses near it are meant for the object, too. Objects that don't answer are hit where
    /// their
    /// region is.
    HitAtOutline = 2919
};

} // namespace pagehost
