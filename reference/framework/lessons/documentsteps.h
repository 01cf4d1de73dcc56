#pragma once

#include <pagehost/lesson.h>

#include <functional>

class CBaseObject;

namespace pagehost {

class Document;
class Page;

using ObjectNumbering = std::function<quint32(CBaseObject *)>;

/// The object in its present state, as in a file.
QByteArray recordOf(CBaseObject *object);
/// The step that puts the object, in its present state, at its place on its page.
ObjectAppeared appearanceOf(CBaseObject *object, quint32 number, int pageIndex, int place);
/// The steps that make a page with its objects at this index of the document.
QVector<LessonStep> appearanceOf(const Page &page, int pageIndex, const ObjectNumbering &numberOf);
/// The steps that make the document, in its present state, from one without pages.
QVector<LessonStep> appearanceOf(const Document &document, const ObjectNumbering &numberOf);

} // namespace pagehost
