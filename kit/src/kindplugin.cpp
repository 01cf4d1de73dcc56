#include <shapekit/kindplugin.h>

#include <shapekit/kind.h>
#include <shapekit/picturedata.h>
#include <shapekit/shapeobject.h>
#include <shapekit/styledshape.h>
#include <shapekit/text.h>

namespace shapekit {

namespace {

struct GroupTexts
{
    const char *key;
    const char *english;
    const char *german;
};

GroupTexts textsOf(Group group)
{
    switch (group) {
    case Group::Mathematics:
        return {"IDS_SHAPEGROUP_MATHEMATICS", "Mathematics", "Mathematik"};
    case Group::Science:
        return {"IDS_SHAPEGROUP_SCIENCE", "Science", "Naturwissenschaft"};
    case Group::None:
        return {"", "", ""};
    case Group::Basic:
        break;
    }
    return {pagehost::basicGroup, "Basic shapes", "Grundformen"};
}

} // namespace

QVector<pagehost::ObjectKind> KindPlugin::objectKinds() const
{
    return {{kind().id(), kind().nameKey(), QString::fromLatin1(textsOf(kind().group).key)}};
}

CBaseObject *KindPlugin::createObject(const QString &kindId) const
{
    return kindId == kind().id() ? new ShapeObject(kind()) : nullptr;
}

pagehost::TextTable KindPlugin::texts(const QString &language) const
{
    const GroupTexts group = textsOf(kind().group);
    pagehost::TextTable texts = Text::all(language);
    const bool isEnglish = language == QLatin1String("en");
    if (!isEnglish && language != QLatin1String("de"))
        return texts;
    texts.insert(kind().nameKey(), isEnglish ? kind().english : kind().german);
    if (kind().group != Group::None)
        texts.insert(QString::fromLatin1(group.key), QString::fromLatin1(isEnglish ? group.english : group.german));
    return texts;
}

QStringList KindPlugin::dataTypes() const
{
    return kind().takesPictures ? pictureTypes() : QStringList();
}

CBaseObject *KindPlugin::createFromData(const QString &mimeType, const QByteArray &data, QString &kindId) const
{
    if (!dataTypes().contains(mimeType))
        return nullptr;
    const QByteArray svg = svgOfPicture(mimeType, data);
    if (svg.isEmpty())
        return nullptr;
    auto *object = new ShapeObject(kind());
    object->core()->takePicture(svg);
    kindId = kind().id();
    return object;
}

QByteArray KindPlugin::dataOf(CBaseObject *object, const QString &mimeType) const
{
    auto *shape = dynamic_cast<ShapeObject *>(object);
    if (!shape || !shape->core() || mimeType != QLatin1String("image/svg+xml"))
        return {};
    return shape->core()->toSvg();
}

} // namespace shapekit
