#pragma once

class CBaseObject;
class CPSRootObject;
class IDocument;

namespace pagehost {
class Page;
class PageScene;
} // namespace pagehost

/// The page of an object and notification of its changes.

/// The page that is notified of the object's changes.
pagehost::Page *pageOf(const CPSRootObject &object);
/// The scene that shows the object, if it is a page's.
pagehost::PageScene *pageSceneOf(const CPSRootObject &object);
/// The document of the object's page, else the current one; null without either.
IDocument *documentOf(const CPSRootObject &object);
bool isEditingBlocked(const CPSRootObject &object);
/// Selects the object and nothing else of its scene, on a page with the group that a click takes.
void selectAlone(CBaseObject &object);
/// Adds the object, on a page with its group, to the selection of its scene, or takes it out.
void toggleSelected(CBaseObject &object);

/// Notifies the page of a visible change.
void noteChange(CPSRootObject &object);
/// Notifies the page of a change that is saved but not visible.
void noteInvisibleChange(CPSRootObject &object);
