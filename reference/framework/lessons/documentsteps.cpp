#include <lessons/documentsteps.h>

#include <framework/cbaseobject.h>

#include <pagehost/document.h>
#include <pagehost/page.h>

#include <files/groupcodec.h>
#include <files/objectrecordstream.h>
#include <host/saveddata.h>

#include <QtCore/QDataStream>

namespace pagehost {

QByteArray recordOf(CBaseObject *object)
{
    QByteArray data;
    QDataStream out(&data, QIODevice::WriteOnly);
    writeObject(out, object);
    return data;
}

ObjectAppeared appearanceOf(CBaseObject *object, quint32 number, int pageIndex, int place)
{
    return {number, pageIndex, place, recordOf(object)};
}

QVector<LessonStep> appearanceOf(const Page &page, int pageIndex, const ObjectNumbering &numberOf)
{
    QVector<LessonStep> steps;
    steps.append(PageAppeared{pageIndex, page.size(), savedData(page.background())});
    int place = 0;
    const QVector<CBaseObject *> objects = page.objects();
    for (CBaseObject *object : objects)
        steps.append(appearanceOf(object, numberOf(object), pageIndex, place++));
    if (!page.groups().isEmpty())
        steps.append(PageGrouped{pageIndex, streamed(page.groups())});
    return steps;
}

QVector<LessonStep> appearanceOf(const Document &document, const ObjectNumbering &numberOf)
{
    // Set the zoom first: objects are made for it.
    QVector<LessonStep> steps{ZoomChanged{document.zoomRate()}};
    for (int index = 0; index < document.pageCount(); ++index)
        steps += appearanceOf(*document.page(index), index, numberOf);
    steps.append(PageTurned{document.currentIndex()});
    return steps;
}

} // namespace pagehost
