#include <pagehost/commands.h>

#include <framework/cbaseobject.h>
#include <framework/iframework.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QDataStream>

#include <algorithm>

namespace pagehost {

namespace {

void makePresentVersion(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    out << true;
    QDataStream in(bytes);
    object.SetSpecialProperty(IsPresentVersion, in, true);
}

} // namespace

bool isPresentVersion(CBaseObject &object)
{
    QByteArray bytes;
    QDataStream out(&bytes, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(IsPresentVersion, out))
        return true;
    bool isPresent = true;
    QDataStream in(bytes);
    in >> isPresent;
    return isPresent;
}

bool updateVersion(const QVector<CBaseObject *> &objects)
{
    QVector<CBaseObject *> earlier;
    std::copy_if(objects.begin(), objects.end(), std::back_inserter(earlier),
                 [](CBaseObject *object) { return !isPresentVersion(*object); });
    if (earlier.isEmpty())
        return false;
    GetFramework()->beginUndoGroup(QStringLiteral("IDS_UNDO_SHAPE_VERSION"));
    for (CBaseObject *object : qAsConst(earlier))
        makePresentVersion(*object);
    GetFramework()->endUndoGroup();
    return true;
}

} // namespace pagehost
