#pragma once

class CBaseObject;

/// Says that the object plays what moves in it, or does so no longer. While it plays, new pictures of it are no
/// changes of the page.
void setPlayed(CBaseObject &object, bool played);
