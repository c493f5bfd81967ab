# Installation: headers, the shared object with its SONAME links, a CMake package
# (find_package(OrvikMediaAssets)), a pkg-config file, and a Debian package split into the
# runtime library and the development files.

include(GNUInstallDirs)
include(CMakePackageConfigHelpers)

set(ORVIK_CMAKE_INSTALL_DIR "${CMAKE_INSTALL_LIBDIR}/cmake/OrvikMediaAssets")

target_include_directories(OrvikMediaAssets PUBLIC "$<INSTALL_INTERFACE:${CMAKE_INSTALL_INCLUDEDIR}>")

install(TARGETS OrvikMediaAssets
    EXPORT OrvikMediaAssetsTargets
    LIBRARY DESTINATION "${CMAKE_INSTALL_LIBDIR}" COMPONENT runtime NAMELINK_COMPONENT development)

foreach(root IN ITEMS
        "${PROJECT_SOURCE_DIR}/BusinessEntityModel/BaseTypes/Includes/"
        "${PROJECT_SOURCE_DIR}/include/"
        "${PROJECT_SOURCE_DIR}/BusinessEntityModel/MediaAssets/Core/Includes/")
    install(DIRECTORY "${root}" DESTINATION "${CMAKE_INSTALL_INCLUDEDIR}" COMPONENT development
        FILES_MATCHING PATTERN "*.h")
endforeach()

install(EXPORT OrvikMediaAssetsTargets
    NAMESPACE Orvik::
    DESTINATION "${ORVIK_CMAKE_INSTALL_DIR}"
    COMPONENT development)

configure_package_config_file(cmake/OrvikMediaAssetsConfig.cmake.in
    "${PROJECT_BINARY_DIR}/OrvikMediaAssetsConfig.cmake"
    INSTALL_DESTINATION "${ORVIK_CMAKE_INSTALL_DIR}")
write_basic_package_version_file("${PROJECT_BINARY_DIR}/OrvikMediaAssetsConfigVersion.cmake"
    COMPATIBILITY SameMajorVersion)
install(FILES
        "${PROJECT_BINARY_DIR}/OrvikMediaAssetsConfig.cmake"
        "${PROJECT_BINARY_DIR}/OrvikMediaAssetsConfigVersion.cmake"
    DESTINATION "${ORVIK_CMAKE_INSTALL_DIR}"
    COMPONENT development)

# The pkg-config file finds the prefix from its own place, so the installed tree can be moved.
file(RELATIVE_PATH ORVIK_PC_TO_PREFIX "/prefix/${CMAKE_INSTALL_LIBDIR}/pkgconfig" "/prefix")
string(REGEX REPLACE "/$" "" ORVIK_PC_TO_PREFIX "${ORVIK_PC_TO_PREFIX}")
configure_file(cmake/orvik-media-assets.pc.in "${PROJECT_BINARY_DIR}/orvik-media-assets.pc" @ONLY)
install(FILES "${PROJECT_BINARY_DIR}/orvik-media-assets.pc"
    DESTINATION "${CMAKE_INSTALL_LIBDIR}/pkgconfig"
    COMPONENT development)

# Packaging belongs to the top-level project; a parent that adds this one packages itself.
if(PROJECT_IS_TOP_LEVEL)
    set(CPACK_PACKAGE_NAME "liborvik-media-assets")
    set(CPACK_PACKAGE_VENDOR "Orvik")
    set(CPACK_PACKAGE_CONTACT "Orvik media asset model maintainers <media-assets@orvik.invalid>")
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
    set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
    set(CPACK_GENERATOR "DEB")
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    set(CPACK_COMPONENTS_ALL runtime development)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SECTION "libs")
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "liborvikmediaassets${PROJECT_VERSION_MAJOR}")
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "liborvikmediaassets-dev")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION "libdevel")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
    set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "In-memory data model of media assets: shared library")
    set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "In-memory data model of media assets: headers, CMake package and pkg-config file")
    if(ORVIK_BUILD_PYTHON)
        # The Python module, for the interpreter it was built against, on the library of the same version.
        math(EXPR ORVIK_PYTHON_NEXT_MINOR "${Python3_VERSION_MINOR} + 1")
        list(APPEND CPACK_COMPONENTS_ALL python)
        set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME "python3-orvik-media-assets")
        set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION "python")
        set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
            "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), python3 (>= ${Python3_VERSION_MAJOR}.${Python3_VERSION_MINOR}), python3 (<< ${Python3_VERSION_MAJOR}.${ORVIK_PYTHON_NEXT_MINOR})")
        set(CPACK_COMPONENT_PYTHON_DESCRIPTION "In-memory data model of media assets: Python module orvik_media_assets")
    endif()
    include(CPack)
endif()
