# Rules of `cmake --install` for headers, the CMake package and the pkg-config file. Targets have their own rules where
# they are defined, in the export set "gliololok". Components: runtime, development, shapes, board, tools.

include(CMakePackageConfigHelpers)

set(GLIOLOLOK_CMAKE_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/gliololok")
configure_package_config_file("${CMAKE_CURRENT_SOURCE_DIR}/cmake/gliololokConfig.cmake.in"
                              "${CMAKE_CURRENT_BINARY_DIR}/gliololokConfig.cmake"
                              INSTALL_DESTINATION "${GLIOLOLOK_CMAKE_DIR}"
                              PATH_VARS GLIOLOLOK_PLUGIN_INSTALL_DIR)
write_basic_package_version_file("${CMAKE_CURRENT_BINARY_DIR}/gliololokConfigVersion.cmake"
                                 COMPATIBILITY SameMajorVersion)
install(FILES "${CMAKE_CURRENT_BINARY_DIR}/gliololokConfig.cmake"
              "${CMAKE_CURRENT_BINARY_DIR}/gliololokConfigVersion.cmake"
        DESTINATION "${GLIOLOLOK_CMAKE_DIR}" COMPONENT development)
install(EXPORT gliololok FILE gliololokTargets.cmake NAMESPACE gliololok:: DESTINATION "${GLIOLOLOK_CMAKE_DIR}"
        COMPONENT development)
if(GLIOLOLOK_REFERENCE_HOST)
    install(EXPORT gliololok_kit FILE gliololokKitTargets.cmake NAMESPACE gliololok::
            DESTINATION "${GLIOLOLOK_CMAKE_DIR}" COMPONENT development)
    install(FILES cmake/GliololokShape.cmake kit/plugin/shapeplugin.cpp DESTINATION "${GLIOLOLOK_CMAKE_DIR}"
            COMPONENT development)
endif()

# Documents and examples, in folders that keep the links between them. The index leads to files of the repository, too.
if(GLIOLOLOK_REFERENCE_HOST)
    install(DIRECTORY docs examples DESTINATION "${CMAKE_INSTALL_DOCDIR}" COMPONENT tools
            PATTERN README.md EXCLUDE PATTERN refresh EXCLUDE PATTERN abi.txt EXCLUDE)
endif()

# The file derives its prefix from its own location, so that an installation can be moved.
if(GLIOLOLOK_REFERENCE_HOST)
    set(GLIOLOLOK_PC_HOST_LIBRARIES
        "-L\${privatelibdir} -lframework -lsvgbase -Wl,-rpath,\${privatelibdir}")
endif()
file(RELATIVE_PATH GLIOLOLOK_PC_TO_PREFIX "/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/")
set(packages gliololok)
if(GLIOLOLOK_REFERENCE_HOST)
    list(APPEND packages gliololok-shapekit)
endif()
foreach(package IN LISTS packages)
    configure_file("${CMAKE_CURRENT_SOURCE_DIR}/packaging/${package}.pc.in" "${CMAKE_CURRENT_BINARY_DIR}/${package}.pc"
                   @ONLY)
    install(FILES "${CMAKE_CURRENT_BINARY_DIR}/${package}.pc" DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
            COMPONENT development)
endforeach()
