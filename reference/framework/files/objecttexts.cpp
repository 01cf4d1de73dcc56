#include <files/objecttexts.h>

#include <framework/cbaseobject.h>

#include <pagehost/objectplugin.h>

#include <QtCore/QDataStream>

namespace pagehost {

QMap<QByteArray, QByteArray> textsOf(CBaseObject &object)
{
    QByteArray answer;
    QDataStream out(&answer, QIODevice::WriteOnly);
    if (!object.GetSpecialProperty(NeededTexts, out))
        return {};
    QMap<QByteArray, QByteArray> texts;
    QDataStream in(answer);
    in >> texts;
    return texts;
}

QSet<QByteArray> keepTextsOf(CBaseObject &object, AssetStore &store)
{
    const QMap<QByteArray, QByteArray> texts = textsOf(object);
    for (auto text = texts.constBegin(); text != texts.constEnd(); ++text)
        store.add(text.key(), *text);
    const QList<QByteArray> keys = texts.keys();
    return {keys.begin(), keys.end()};
}

} // namespace pagehost
