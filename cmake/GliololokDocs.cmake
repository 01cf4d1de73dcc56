# The class reference: the target "docs" writes it, where doxygen is installed.
if(NOT PROJECT_IS_TOP_LEVEL)
    return()
endif()
find_package(Doxygen QUIET)
if(NOT DOXYGEN_FOUND)
    return()
endif()

set(GLIOLOLOK_DOCS_DIR "${PROJECT_BINARY_DIR}/docs")
file(MAKE_DIRECTORY "${GLIOLOLOK_DOCS_DIR}")
configure_file("${CMAKE_CURRENT_LIST_DIR}/Doxyfile.in" "${GLIOLOLOK_DOCS_DIR}/Doxyfile" @ONLY)
add_custom_target(docs COMMAND Doxygen::doxygen "${GLIOLOLOK_DOCS_DIR}/Doxyfile"
                  COMMENT "Writing the class reference to ${GLIOLOLOK_DOCS_DIR}/html" VERBATIM)
