#pragma once

#include <kit/shapeobject.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QObject>

namespace shapekit {

/// What the user reads about a shape, by language.
struct ShapeNames
{
    QString english;
    QString german;
};

/// A plug-in that offers one shape. A shape derives and adds nothing but its plug-in metadata.
class SingleShapePlugin : public QObject, public pagehost::ObjectPlugin
{
    Q_OBJECT
    Q_INTERFACES(pagehost::ObjectPlugin)

public:
    QVector<pagehost::ObjectKind> objectKinds() const override;
    CBaseObject *createObject(const QString &kindId) const override;
    pagehost::TextTable texts(const QString &language) const override;

protected:
    /// `id` is the kind's id without its "shapes." prefix; `fill` is the colour of a new object.
    SingleShapePlugin(const QString &id, const ShapeNames &names, CoreFactory makeCore, const QColor &fill);

private:
    pagehost::ObjectKind m_kind;
    ShapeNames m_names;
    CoreFactory m_makeCore;
    QColor m_fill;
};

} // namespace shapekit
