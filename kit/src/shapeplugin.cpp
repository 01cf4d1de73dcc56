#include <shapekit/shapeplugin.h>

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
    case Group::Basic:
        break;
    }
    return {pagehost::basicGroup, "Basic shapes", "Grundformen"};
}

} // namespace

QVector<pagehost::ObjectKind> ShapePlugin::objectKinds() const
{
    return {{kind().id(), kind().nameKey(), QString::fromLatin1(textsOf(kind().group).key)}};
}

CBaseObject *ShapePlugin::createObject(const QString &kindId) const
{
    return kindId == kind().id() ? new ShapeObject(kind()) : nullptr;
}

pagehost::TextTable ShapePlugin::texts(const QString &language) const
{
    const GroupTexts group = textsOf(kind().group);
    pagehost::TextTable texts = Text::all(language);
    if (language == QLatin1String("en")) {
        texts.insert(kind().nameKey(), kind().english);
        texts.insert(QString::fromLatin1(group.key), QString::fromLatin1(group.english));
    } else if (language == QLatin1String("de")) {
        texts.insert(kind().nameKey(), kind().german);
        texts.insert(QString::fromLatin1(group.key), QString::fromLatin1(group.german));
    }
    return texts;
}

QStringList ShapePlugin::dataTypes() const
{
    return kind().takesPictures ? pictureTypes() : QStringList();
}

CBaseObject *ShapePlugin::createFromData(const QString &mimeType, const QByteArray &data, QString &kindId) const
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

QByteArray ShapePlugin::dataOf(CBaseObject *object, const QString &mimeType) const
{
    auto *shape = dynamic_cast<ShapeObject *>(object);
    if (!shape || !shape->core() || mimeType != QLatin1String("image/svg+xml"))
        return {};
    return shape->core()->toSvg();
}

} // namespace shapekit
