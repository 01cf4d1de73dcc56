#include <declared/plugin/declaredplugin.h>

#include <declared/core/declaredshape.h>
#include <declared/core/iconpicture.h>
#include <declared/core/shapekind.h>
#include <declared/plugin/shapefolders.h>

#include <shapekit/shapeobject.h>
#include <shapekit/styledshape.h>

namespace shapekit {

/// Shapes have kinds of their own here; texts of this name would be those of the plug-in itself.
const Kind &kind()
{
    static const Kind plugin = [] {
        Kind kind;
        kind.name = QStringLiteral("declared");
        return kind;
    }();
    return plugin;
}

} // namespace shapekit

namespace declared {

DeclaredPlugin::DeclaredPlugin()
{
    QStringList problems;
    m_kinds = readFolders(shapeFolders(), problems);
    for (const QString &problem : qAsConst(problems))
        qWarning("%s", qPrintable(problem));
}

DeclaredPlugin::~DeclaredPlugin() = default;

QVector<pagehost::ObjectKind> DeclaredPlugin::objectKinds() const
{
    QVector<pagehost::ObjectKind> kinds;
    for (const auto &shape : m_kinds)
        kinds.append({shape->kind().id(), shape->kind().nameKey(), shape->groupKey()});
    return kinds;
}

CBaseObject *DeclaredPlugin::createObject(const QString &kindId) const
{
    for (const auto &shape : m_kinds)
        if (shape->kind().id() == kindId)
            return new shapekit::ShapeObject(shape->kind());
    return nullptr;
}

pagehost::TextTable DeclaredPlugin::texts(const QString &language) const
{
    pagehost::TextTable table;
    for (const auto &shape : m_kinds) {
        const QMap<QString, QString> texts = shape->texts(language);
        for (auto text = texts.begin(); text != texts.end(); ++text)
            table.insert(text.key(), text.value());
    }
    return table;
}

QByteArray DeclaredPlugin::dataOf(CBaseObject *object, const QString &mimeType) const
{
    auto *shape = dynamic_cast<shapekit::ShapeObject *>(object);
    auto *core = shape ? dynamic_cast<DeclaredShape *>(shape->core()) : nullptr;
    if (!core)
        return {};
    if (mimeType == QLatin1String(pagehost::iconType))
        return iconPicture(core->icon());
    return mimeType == QLatin1String("image/svg+xml") ? core->toSvg() : QByteArray();
}

} // namespace declared
