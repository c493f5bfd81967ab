# Debian packages of the library and of the components built beside it (cpack -G DEB in a build
# tree). Included last, once every component's target and install rules exist.

# Packaging belongs to the top-level project; a parent that adds this one packages itself.
if(PROJECT_IS_TOP_LEVEL)
    set(CPACK_PACKAGE_NAME "liborvik-media-assets")
    set(CPACK_PACKAGE_VENDOR "Orvik")
    set(CPACK_PACKAGE_CONTACT "Orvik media asset model maintainers <media-assets@orvik.invalid>")
    set(CPACK_PACKAGE_DESCRIPTION_SUMMARY "${PROJECT_DESCRIPTION}")
    set(CPACK_PACKAGE_VERSION "${PROJECT_VERSION}")
    set(CPACK_GENERATOR "DEB")
    set(CPACK_DEB_COMPONENT_INSTALL ON)
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SECTION "libs")
    # Each package by Debian's rules: one orvik_debian_package() line per component.
    include(cmake/DebianPackage.cmake)
    orvik_debian_package(runtime "liborvikmediaassets${PROJECT_VERSION_MAJOR}" LIBRARY OrvikMediaAssets)
    orvik_debian_package(development "liborvikmediaassets-dev")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION "libdevel")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
    # The JSON library is a runtime package of its own; its headers, CMake component and pkg-config
    # file are part of the -dev package, which then depends on it.
    if(TARGET OrvikMediaAssetsJson)
        orvik_debian_package(json "liborvikmediaassetsjson${PROJECT_VERSION_MAJOR}" LIBRARY OrvikMediaAssetsJson)
        set(CPACK_DEBIAN_JSON_PACKAGE_DEPENDS "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
        set(CPACK_COMPONENT_JSON_DESCRIPTION "In-memory data model of media assets: JSON form, shared library")
        string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
            ", liborvikmediaassetsjson${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
    endif()
    # The media probe likewise, on FFmpeg's shared libraries (found by dpkg-shlibdeps).
    if(TARGET OrvikMediaAssetsProbe)
        orvik_debian_package(probe "liborvikmediaassetsprobe${PROJECT_VERSION_MAJOR}" LIBRARY OrvikMediaAssetsProbe)
        set(CPACK_DEBIAN_PROBE_PACKAGE_DEPENDS "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
        set(CPACK_COMPONENT_PROBE_DESCRIPTION "In-memory data model of media assets: media probe, shared library")
        string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
            ", liborvikmediaassetsprobe${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
    endif()
    set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "In-memory data model of media assets: shared library")
    set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "Headers, CMake package and pkg-config files of the media asset libraries")
    # The orvik-asset tool: a package of its own, which needs the shared libraries of the same version.
    if(ORVIK_BUILD_TOOLS)
        orvik_debian_package(tools "orvik-asset")
        set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION "utils")
        set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), liborvikmediaassetsjson${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), liborvikmediaassetsprobe${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
        set(CPACK_COMPONENT_TOOLS_DESCRIPTION "In-memory data model of media assets: the orvik-asset command-line tool")
    endif()
    if(ORVIK_BUILD_PYTHON)
        # The Python module, for the interpreter it was built against, on the library of the same version.
        math(EXPR ORVIK_PYTHON_NEXT_MINOR "${Python3_VERSION_MINOR} + 1")
        orvik_debian_package(python "python3-orvik-media-assets")
        set(CPACK_DEBIAN_PYTHON_PACKAGE_SECTION "python")
        set(CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
            "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), python3 (>= ${Python3_VERSION_MAJOR}.${Python3_VERSION_MINOR}), python3 (<< ${Python3_VERSION_MAJOR}.${ORVIK_PYTHON_NEXT_MINOR})")
        if(TARGET OrvikMediaAssetsJson)
            string(APPEND CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
                ", liborvikmediaassetsjson${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
        endif()
        if(TARGET OrvikMediaAssetsProbe)
            string(APPEND CPACK_DEBIAN_PYTHON_PACKAGE_DEPENDS
                ", liborvikmediaassetsprobe${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
        endif()
        set(CPACK_COMPONENT_PYTHON_DESCRIPTION "In-memory data model of media assets: Python module orvik_media_assets")
    endif()
    include(CPack)
endif()
