#pragma once

class CBaseObject;

/// Tells whether the object plays its animation. While it does, new pictures of it are not changes of the page.
void setPlayed(CBaseObject &object, bool played);
