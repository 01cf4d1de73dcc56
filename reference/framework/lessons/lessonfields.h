#pragma once

#include <pagehost/lesson.h>

#include <QtCore/QLatin1String>

#include <array>
#include <utility>

/// The fields of every kind of step, listed once for both stored forms: an archive is called with each field's JSON
/// name and the field.
namespace pagehost::lessonfields {

template<typename Archive> void visit(Archive &archive, ObjectActed &step)
{
    archive("object", step.object);
    archive("action", step.actionId);
    archive("payload", step.payload);
}

template<typename Archive> void visit(Archive &archive, ObjectAppeared &step)
{
    archive("object", step.object);
    archive("page", step.page);
    archive("place", step.place);
    archive("data", step.data);
}

template<typename Archive> void visit(Archive &archive, ObjectVanished &step)
{
    archive("object", step.object);
}

template<typename Archive> void visit(Archive &archive, ObjectSettled &step)
{
    archive("object", step.object);
    archive("data", step.data);
}

template<typename Archive> void visit(Archive &archive, PageRestacked &step)
{
    archive("page", step.page);
    archive("objects", step.objects);
}

template<typename Archive> void visit(Archive &archive, PageAppeared &step)
{
    archive("page", step.page);
    archive("size", step.size);
    archive("background", step.background);
}

template<typename Archive> void visit(Archive &archive, PageVanished &step)
{
    archive("page", step.page);
}

template<typename Archive> void visit(Archive &archive, PageMoved &step)
{
    archive("from", step.from);
    archive("to", step.to);
}

template<typename Archive> void visit(Archive &archive, PageResized &step)
{
    archive("page", step.page);
    archive("size", step.size);
}

template<typename Archive> void visit(Archive &archive, PageBackgroundChanged &step)
{
    archive("page", step.page);
    archive("background", step.background);
}

template<typename Archive> void visit(Archive &archive, PageTurned &step)
{
    archive("page", step.page);
}

template<typename Archive> void visit(Archive &archive, ZoomChanged &step)
{
    archive("rate", step.rate);
}

template<typename Archive> void visit(Archive &archive, PageGrouped &step)
{
    archive("page", step.page);
    archive("groups", step.groups);
}

template<typename Archive> void visit(Archive &archive, ChapterBegan &step)
{
    archive("name", step.name);
}

/// The name of each kind in JSON, in the order of LessonStep.
const std::array<QLatin1String, std::variant_size_v<LessonStep>> kindNames{
    {QLatin1String("acted"), QLatin1String("appeared"), QLatin1String("vanished"), QLatin1String("settled"),
     QLatin1String("restacked"), QLatin1String("pageAppeared"), QLatin1String("pageVanished"),
     QLatin1String("pageMoved"), QLatin1String("pageResized"), QLatin1String("backgroundChanged"),
     QLatin1String("pageTurned"), QLatin1String("zoomed"), QLatin1String("grouped"), QLatin1String("chapter")}};

template<std::size_t... Indices>
bool makeStep(std::size_t kind, LessonStep &step, std::index_sequence<Indices...> /*all*/)
{
    return ((kind == Indices && (step = LessonStep(std::in_place_index<Indices>), true)) || ...);
}

/// An empty step of the kind with this index; false without one.
inline bool makeStep(std::size_t kind, LessonStep &step)
{
    return makeStep(kind, step, std::make_index_sequence<std::variant_size_v<LessonStep>>());
}

} // namespace pagehost::lessonfields
