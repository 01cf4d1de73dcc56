# gliololok_add_shape(<name> [TARGET <target>] [OWN_PLUGIN] [<template>.svg ...] [<source>.cpp ...]): a plug-in of shapes, <name>.so;
# its target is <name> unless told otherwise.
#
# Without arguments it consists of template.svg and <name>.cpp. The file template.svg is the template of the shape <name>;
# in a plug-in of several shapes that of the shape "nut" is nut.svg. The sources define the kinds by SHAPEKIT_PLUGIN or
# shapekit::pluginKinds(). With OWN_PLUGIN they also define the root object, a class derived from shapekit::ShapePlugin, as
# plug-ins with tools do.
function(gliololok_add_shape name)
    cmake_parse_arguments(ARG "OWN_PLUGIN" "TARGET" "" ${ARGN})
    set(target ${name})
    if(ARG_TARGET)
        set(target ${ARG_TARGET})
    endif()
    set(files ${ARG_UNPARSED_ARGUMENTS})
    if(NOT files)
        set(files template.svg ${name}.cpp)
    endif()
    set(templates ${files})
    list(FILTER templates INCLUDE REGEX "\\.svg$")
    set(sources ${files})
    list(FILTER sources EXCLUDE REGEX "\\.svg$")
    set(entries "")
    foreach(template IN LISTS templates)
        get_filename_component(path "${template}" ABSOLUTE)
        get_filename_component(shape "${template}" NAME_WE)
        if(shape STREQUAL "template")
            set(shape ${name})
        endif()
        string(APPEND entries "<file alias=\"${shape}/template.svg\">${path}</file>")
    endforeach()
    set(resources "${CMAKE_CURRENT_BINARY_DIR}/${name}.qrc")
    file(CONFIGURE OUTPUT "${resources}" @ONLY
         CONTENT "<RCC><qresource prefix=\"/gliololok\">@entries@</qresource></RCC>\n")
    if(NOT ARG_OWN_PLUGIN)
        list(APPEND sources ${gliololok_SHAPE_PLUGIN})
    endif()
    add_library(${target} MODULE ${sources} "${resources}")
    set_target_properties(${target} PROPERTIES PREFIX "" OUTPUT_NAME ${name} AUTOMOC ON AUTORCC ON)
    target_compile_features(${target} PRIVATE cxx_std_17)
    target_compile_definitions(${target} PRIVATE SHAPEKIT_NAME="${name}")
    target_link_libraries(${target} PRIVATE gliololok::shapekit)
endfunction()
