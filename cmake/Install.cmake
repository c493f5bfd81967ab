# Installation: headers, the shared object with its SONAME links, a CMake package
# (find_package(OrvikMediaAssets)) and a pkg-config file. The Debian packages are made by
# Packaging.cmake.

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
