#include <shapekit/shapeplugin.h>

#include <shapekit/picturedata.h>
#include <shapekit/shapeobject.h>
#include <shapekit/styledshape.h>
#include <shapekit/templatecheck.h>

namespace shapekit {

namespace {

const QString svgType = QStringLiteral("image/svg+xml");

} // namespace

ShapePlugin::ShapePlugin(const QVector<Kind> &kinds)
    : m_kinds(kinds)
{
}

ShapePlugin::~ShapePlugin() = default;

QVector<pagehost::ObjectKind> ShapePlugin::objectKinds() const
{
    QVector<pagehost::ObjectKind> kinds;
    for (const Kind &kind : m_kinds)
        kinds.append({kind.id(), kind.nameKey(), kind.group.key, kind.rank});
    return kinds;
}

CBaseObject *ShapePlugin::createObject(const QString &kindId) const
{
    for (const Kind &kind : m_kinds)
        if (kind.id() == kindId)
            return new ShapeObject(kind);
    return nullptr;
}

pagehost::TextTable ShapePlugin::texts(const QString &language) const
{
    lookAtKinds();
    return m_texts.value(language);
}

void ShapePlugin::lookAtKinds() const
{
    if (m_lookedAt)
        return;
    m_lookedAt = true;
    for (const Kind &kind : m_kinds) {
        checkTemplate(kind);
        addTexts(kind.title, kind.nameKey());
        addTexts(kind.group.title, kind.group.key);
        ShapeObject object(kind);
        object.core()->settleDrawing();
        addTexts(object.core()->texts(), kind);
    }
    addTexts(furtherTexts(), m_kinds.first());
}

void ShapePlugin::addTexts(const QVector<const Text *> &texts, const Kind &kind) const
{
    for (const Text *text : texts)
        addTexts(text->words(), text->key(&kind));
}

void ShapePlugin::addTexts(const Words &words, const QString &key) const
{
    for (auto text = words.begin(); text != words.end(); ++text)
        m_texts[text.key()].insert(key, text.value());
}

QStringList ShapePlugin::dataTypes() const
{
    for (const Kind &kind : m_kinds)
        if (kind.takesPictures)
            return pictureTypes();
    return {};
}

CBaseObject *ShapePlugin::createFromData(const QString &mimeType, const QByteArray &data, QString &kindId) const
{
    if (!dataTypes().contains(mimeType))
        return nullptr;
    const QByteArray svg = svgOfPicture(mimeType, data);
    if (svg.isEmpty())
        return nullptr;
    for (const Kind &kind : m_kinds) {
        if (!kind.takesPictures)
            continue;
        auto *object = new ShapeObject(kind);
        object->core()->takePicture(svg);
        kindId = kind.id();
        return object;
    }
    return nullptr;
}

QByteArray ShapePlugin::dataOf(CBaseObject *object, const QString &mimeType) const
{
    auto *shape = dynamic_cast<ShapeObject *>(object);
    if (!shape || !shape->core() || mimeType != svgType)
        return {};
    return shape->core()->toSvg();
}

QVector<pagehost::PluginMessage> ShapePlugin::messages() const
{
    lookAtKinds();
    QVector<pagehost::PluginMessage> messages;
    for (const Kind &kind : m_kinds)
        messages += kind.log->messages();
    return messages;
}

void ShapePlugin::setMessageListener(const pagehost::MessageListener &listener)
{
    for (const Kind &kind : m_kinds)
        kind.log->setListener(listener);
}

} // namespace shapekit
