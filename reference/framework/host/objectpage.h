#pragma once

class CBaseObject;
class CPSRootObject;
class IDocument;

namespace pagehost {
class Page;
class PageScene;
} // namespace pagehost

/// Where an object stands, and who is told of its changes.

/// The page to tell of the object's changes.
pagehost::Page *pageOf(const CPSRootObject &object);
/// The scene that shows the object when it is a page's.
pagehost::PageScene *pageSceneOf(const CPSRootObject &object);
/// The document of the object's page, else the current one; null when there is none at all.
IDocument *documentOf(const CPSRootObject &object);
bool isEditingBlocked(const CPSRootObject &object);
/// Makes the object the only selected one of the scene that it is in.
void selectAlone(CBaseObject &object);

/// Tells the page of a change of what it shows.
void noteChange(CPSRootObject &object);
/// Of what is saved, but not shown.
void noteInvisibleChange(CPSRootObject &object);
