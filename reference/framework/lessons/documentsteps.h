#pragma once

#include <pagehost/lesson.h>

#include <functional>

class CBaseObject;

namespace pagehost {

class Document;
class Page;

using ObjectNumbering = std::function<quint32(CBaseObject *)>;

/// The object in its present state, as a file holds it.
QByteArray recordOf(CBaseObject *object);
/// The step that put the object, in its present state, where it stands on its page.
ObjectAppeared appearanceOf(CBaseObject *object, quint32 number, int pageIndex, int place);
/// The steps that make a page with its objects at this place in the document.
QVector<LessonStep> appearanceOf(const Page &page, int pageIndex, const ObjectNumbering &numberOf);
/// The steps that make the document, as it is, out of one without pages.
QVector<LessonStep> appearanceOf(const Document &document, const ObjectNumbering &numberOf);

} // namespace pagehost
