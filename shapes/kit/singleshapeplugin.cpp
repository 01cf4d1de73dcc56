#include <kit/singleshapeplugin.h>

namespace shapekit {

namespace {

const QString groupKey = QStringLiteral("IDS_SHAPEGROUP_BASIC");

} // namespace

SingleShapePlugin::SingleShapePlugin(const QString &id, const ShapeNames &names, CoreFactory makeCore,
                                     const QColor &fill)
    : m_kind{QStringLiteral("shapes.") + id, QStringLiteral("IDS_SHAPE_") + id.toUpper(), groupKey}
    , m_names(names)
    , m_makeCore(makeCore)
    , m_fill(fill)
{
}

QVector<pagehost::ObjectKind> SingleShapePlugin::objectKinds() const
{
    return {m_kind};
}

CBaseObject *SingleShapePlugin::createObject(const QString &kindId) const
{
    if (kindId != m_kind.id)
        return nullptr;
    return new ShapeObject(m_kind.nameKey, m_makeCore, m_fill);
}

pagehost::TextTable SingleShapePlugin::texts(const QString &language) const
{
    if (language == QLatin1String("en"))
        return {{m_kind.nameKey, m_names.english}, {groupKey, QStringLiteral("Basic shapes")}};
    if (language == QLatin1String("de"))
        return {{m_kind.nameKey, m_names.german}, {groupKey, QStringLiteral("Grundformen")}};
    return {};
}

} // namespace shapekit
