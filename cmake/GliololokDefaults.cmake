# Settings shared by all targets of the project.

if(PROJECT_IS_TOP_LEVEL AND NOT CMAKE_BUILD_TYPE AND NOT CMAKE_CONFIGURATION_TYPES)
    set(CMAKE_BUILD_TYPE RelWithDebInfo CACHE STRING "Kind of build" FORCE)
endif()

include(GNUInstallDirs)

set(CMAKE_CXX_STANDARD 17)
set(CMAKE_CXX_STANDARD_REQUIRED ON)
set(CMAKE_CXX_EXTENSIONS OFF)
set(CMAKE_CXX_VISIBILITY_PRESET hidden)
set(CMAKE_VISIBILITY_INLINES_HIDDEN ON)
set(CMAKE_POSITION_INDEPENDENT_CODE ON)
set(CMAKE_AUTOMOC ON)
set(CMAKE_EXPORT_COMPILE_COMMANDS ON)

# All programs and libraries in one place, so that the board finds its plug-ins in the build tree.
set(CMAKE_RUNTIME_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/bin")
set(CMAKE_LIBRARY_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib")
set(GLIOLOLOK_PLUGIN_OUTPUT_DIRECTORY "${CMAKE_BINARY_DIR}/lib/gliololok/shapes")
set(GLIOLOLOK_PLUGIN_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/gliololok/shapes")

# The reference host's libraries have names that other packages may have, too.
set(GLIOLOLOK_PRIVATE_LIBRARY_DIR "${CMAKE_INSTALL_LIBDIR}/gliololok")

# Installed programs and libraries find each other wherever the prefix is.
set(CMAKE_INSTALL_RPATH "$ORIGIN" "$ORIGIN/gliololok")
set(GLIOLOLOK_PROGRAM_RPATH "$ORIGIN/../${CMAKE_INSTALL_LIBDIR}" "$ORIGIN/../${GLIOLOLOK_PRIVATE_LIBRARY_DIR}")
set(GLIOLOLOK_PLUGIN_RPATH "$ORIGIN/.." "$ORIGIN/../..")

find_program(CCACHE_PROGRAM ccache)
if(CCACHE_PROGRAM)
    # Paths relative to the source tree let builds of different names share objects.
    set(CMAKE_CXX_COMPILER_LAUNCHER "${CMAKE_COMMAND}" -E env CCACHE_SLOPPINESS=pch_defines,time_macros
                                    "CCACHE_BASEDIR=${PROJECT_SOURCE_DIR}" "${CCACHE_PROGRAM}")
endif()

if(GLIOLOLOK_SANITIZE)
    # Reports need line numbers alone: full debug information would double the size of the build.
    add_compile_options(-fsanitize=${GLIOLOLOK_SANITIZE} -fno-sanitize-recover=all -fno-omit-frame-pointer -g1)
    add_link_options(-fsanitize=${GLIOLOLOK_SANITIZE})
endif()

# gliololok_symbol_versions(<target> <NAME>): exported symbols get the version NAME_<major>, so that a program that was
# linked to this library never takes those of another one of another major version.
function(gliololok_symbol_versions target name)
    set(script "${CMAKE_CURRENT_BINARY_DIR}/${target}.map")
    file(CONFIGURE OUTPUT "${script}" CONTENT "${name}_${PROJECT_VERSION_MAJOR} {\n    global: *;\n};\n")
    target_link_options(${target} PRIVATE "LINKER:--version-script=${script}")
    set_target_properties(${target} PROPERTIES LINK_DEPENDS "${script}")
endfunction()

# gliololok_own_code(<target> [PCH_FROM <other> | PCH_FOR_OTHERS]): our warnings for our own code, and a precompiled header,
# its own or that of another target of the same kind. Compiling one takes longer than a few of our files, and 150 MB: small
# targets that lend it to no others have none.
set(GLIOLOLOK_FEWEST_SOURCES_FOR_PCH 5)
function(gliololok_own_code target)
    cmake_parse_arguments(ARG "PCH_FOR_OTHERS" "PCH_FROM" "" ${ARGN})
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic -Wnon-virtual-dtor -Wcast-align
                                             -Wno-overloaded-virtual)
    if(GLIOLOLOK_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
    target_compile_definitions(${target} PRIVATE QT_NO_CAST_TO_ASCII QT_NO_URL_CAST_FROM_STRING
                                                 QT_DEPRECATED_WARNINGS)
    if(CMAKE_CXX_COMPILER_ID STREQUAL "GNU")
        # ccache needs this to reuse objects built with a precompiled header.
        target_compile_options(${target} PRIVATE -fpch-preprocess)
    endif()
    if(ARG_PCH_FROM)
        target_precompile_headers(${target} REUSE_FROM ${ARG_PCH_FROM})
        return()
    endif()
    get_target_property(sources ${target} SOURCES)
    list(LENGTH sources count)
    if(ARG_PCH_FOR_OTHERS OR count GREATER_EQUAL GLIOLOLOK_FEWEST_SOURCES_FOR_PCH)
        target_precompile_headers(${target} PRIVATE <QtCore/QtCore> <QtGui/QPainter> <QtGui/QPainterPath>
                                                    <QtWidgets/QGraphicsItem>)
    endif()
endfunction()
