# Debian's rules for the packages that cpack -G DEB makes, written once for every component:
#
#   orvik_debian_package(<component> <package> [LIBRARY <target>])
#
# packs the component as <package>, with the copyright file and the changelog in
# /usr/share/doc/<package>, its binaries stripped and the packages that they need (libc, the C++
# runtime, ...) found by dpkg-shlibdeps. A LIBRARY package, the shared object <target>, also gets
# a shlibs file (so that what is built on it depends on it through dpkg-shlibdeps), the ldconfig
# trigger and the lintian overrides of library packages; the build directory of <target> is where
# dpkg-shlibdeps finds the library for the packages that link it. The files live in cmake/debian/.

set(ORVIK_DEBIAN_DIR "${CMAKE_CURRENT_LIST_DIR}/debian")

# The version being packed must be the changelog's latest entry.
file(STRINGS "${ORVIK_DEBIAN_DIR}/changelog" ORVIK_DEBIAN_LATEST LIMIT_COUNT 1)
if(NOT ORVIK_DEBIAN_LATEST MATCHES "^[a-z0-9-]+ \\(${PROJECT_VERSION}\\) ")
    message(FATAL_ERROR "cmake/debian/changelog: the latest entry is not version ${PROJECT_VERSION}: ${ORVIK_DEBIAN_LATEST}")
endif()
# Compressed as Debian ships it: the most, and without a name or time stamp in the header. The
# version is native (no Debian revision), so the file is changelog.gz.
set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS "${ORVIK_DEBIAN_DIR}/changelog")
file(MAKE_DIRECTORY "${PROJECT_BINARY_DIR}/debian")
execute_process(COMMAND gzip -9n --stdout "${ORVIK_DEBIAN_DIR}/changelog"
    OUTPUT_FILE "${PROJECT_BINARY_DIR}/debian/changelog.gz"
    COMMAND_ERROR_IS_FATAL ANY)

set(CPACK_STRIP_FILES ON)

function(orvik_debian_package component package)
    cmake_parse_arguments(PARSE_ARGV 2 arg "" "LIBRARY" "")
    string(TOUPPER "${component}" upper)
    set(CPACK_COMPONENTS_ALL ${CPACK_COMPONENTS_ALL} ${component} PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_NAME "${package}" PARENT_SCOPE)
    set(CPACK_DEBIAN_${upper}_PACKAGE_SHLIBDEPS ON PARENT_SCOPE)
    # Only in the package: a plain cmake --install leaves Debian's files out.
    install(FILES "${ORVIK_DEBIAN_DIR}/copyright" "${PROJECT_BINARY_DIR}/debian/changelog.gz"
        DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/doc/${package}"
        COMPONENT ${component} EXCLUDE_FROM_ALL)
    if(arg_LIBRARY)
        # CPack's own shlibs switch holds for every package at once; this one is per package. Any
        # later version of the same SONAME will do.
        get_target_property(name ${arg_LIBRARY} OUTPUT_NAME)
        if(NOT name)
            set(name ${arg_LIBRARY})
        endif()
        get_target_property(soversion ${arg_LIBRARY} SOVERSION)
        set(shlibs "${PROJECT_BINARY_DIR}/debian/${package}/shlibs")
        file(WRITE "${shlibs}" "lib${name} ${soversion} ${package} (>= ${PROJECT_VERSION})\n")
        set(CPACK_DEBIAN_${upper}_PACKAGE_CONTROL_EXTRA "${shlibs}" "${ORVIK_DEBIAN_DIR}/triggers" PARENT_SCOPE)
        install(FILES "${ORVIK_DEBIAN_DIR}/library.lintian-overrides"
            DESTINATION "${CMAKE_INSTALL_DATAROOTDIR}/lintian/overrides" RENAME "${package}"
            COMPONENT ${component} EXCLUDE_FROM_ALL)
        get_target_property(directory ${arg_LIBRARY} BINARY_DIR)
        set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS ${CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS} "${directory}"
            PARENT_SCOPE)
    endif()
endfunction()
