#pragma once

/// The member names of the JSON format.
namespace pagehost::jsonnames {

constexpr char formatName[] = "format";
constexpr char formatText[] = "gliololok board";
constexpr char versionName[] = "version";
constexpr char pageCountName[] = "pageCount";
constexpr char lessonCountName[] = "lessonCount";
constexpr char assetsName[] = "assets";
constexpr char lessonsName[] = "lessons";
constexpr char pagesName[] = "pages";

constexpr char pageName[] = "page";
constexpr char widthName[] = "width";
constexpr char heightName[] = "height";
constexpr char backgroundName[] = "background";
constexpr char objectCountName[] = "objectCount";
constexpr char objectsName[] = "objects";
constexpr char groupsName[] = "groups";
constexpr char groupName[] = "group";
constexpr char parentName[] = "parent";
constexpr char membersName[] = "members";

constexpr char kindName[] = "kind";
constexpr char idName[] = "id";
constexpr char zoomName[] = "zoom";
constexpr char placeName[] = "place";
constexpr char xName[] = "x";
constexpr char yName[] = "y";
constexpr char lockedName[] = "locked";
constexpr char damagedName[] = "damaged";
constexpr char dataName[] = "data";
constexpr char streamName[] = "stream";
constexpr char textName[] = "text";
constexpr char payloadName[] = "payload";

constexpr char nameName[] = "name";
constexpr char chunksName[] = "chunks";
constexpr char tagName[] = "tag";
constexpr char bytesName[] = "bytes";

} // namespace pagehost::jsonnames
