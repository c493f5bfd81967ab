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
    set(CPACK_COMPONENTS_ALL runtime development)
    if(TARGET OrvikMediaAssetsJson)
        list(APPEND CPACK_COMPONENTS_ALL json)
    endif()
    set(CPACK_DEBIAN_FILE_NAME DEB-DEFAULT)
    set(CPACK_DEBIAN_PACKAGE_SECTION "libs")
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_NAME "liborvikmediaassets${PROJECT_VERSION_MAJOR}")
    set(CPACK_DEBIAN_RUNTIME_PACKAGE_SHLIBDEPS ON)
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_NAME "liborvikmediaassets-dev")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_SECTION "libdevel")
    set(CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
    # The JSON library is a runtime package of its own; its headers, CMake component and pkg-config
    # file are part of the -dev package, which then depends on it.
    if(TARGET OrvikMediaAssetsJson)
        set(CPACK_DEBIAN_JSON_PACKAGE_NAME "liborvikmediaassetsjson${PROJECT_VERSION_MAJOR}")
        set(CPACK_DEBIAN_JSON_PACKAGE_DEPENDS
            "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), libsimdjson14")
        set(CPACK_COMPONENT_JSON_DESCRIPTION "In-memory data model of media assets: JSON form, shared library")
        string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
            ", liborvikmediaassetsjson${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
    endif()
    # The media probe likewise, on FFmpeg's shared libraries (found by dpkg-shlibdeps).
    if(TARGET OrvikMediaAssetsProbe)
        list(APPEND CPACK_COMPONENTS_ALL probe)
        set(CPACK_DEBIAN_PROBE_PACKAGE_NAME "liborvikmediaassetsprobe${PROJECT_VERSION_MAJOR}")
        set(CPACK_DEBIAN_PROBE_PACKAGE_SHLIBDEPS ON)
        set(CPACK_DEBIAN_PROBE_PACKAGE_DEPENDS "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
        set(CPACK_COMPONENT_PROBE_DESCRIPTION "In-memory data model of media assets: media probe, shared library")
        string(APPEND CPACK_DEBIAN_DEVELOPMENT_PACKAGE_DEPENDS
            ", liborvikmediaassetsprobe${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
    endif()
    set(CPACK_COMPONENT_RUNTIME_DESCRIPTION "In-memory data model of media assets: shared library")
    set(CPACK_COMPONENT_DEVELOPMENT_DESCRIPTION "In-memory data model of media assets: headers, CMake package and pkg-config file")
    # The orvik-asset tool: a package of its own, which needs the shared libraries of the same version.
    if(ORVIK_BUILD_TOOLS)
        list(APPEND CPACK_COMPONENTS_ALL tools)
        set(CPACK_DEBIAN_TOOLS_PACKAGE_NAME "orvik-asset")
        set(CPACK_DEBIAN_TOOLS_PACKAGE_SECTION "utils")
        set(CPACK_DEBIAN_TOOLS_PACKAGE_SHLIBDEPS ON)
        # The project's own shared objects are found in the build tree, and depended on by name.
        set(CPACK_DEBIAN_PACKAGE_SHLIBDEPS_PRIVATE_DIRS "${PROJECT_BINARY_DIR}"
            "${PROJECT_BINARY_DIR}/BusinessEntityModel/MediaAssets/Json" "${PROJECT_BINARY_DIR}/BusinessEntityModel/MediaAssets/Probe")
        set(CPACK_DEBIAN_TOOLS_PACKAGE_DEPENDS "liborvikmediaassets${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), liborvikmediaassetsjson${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION}), liborvikmediaassetsprobe${PROJECT_VERSION_MAJOR} (= ${PROJECT_VERSION})")
        set(CPACK_COMPONENT_TOOLS_DESCRIPTION "In-memory data model of media assets: the orvik-asset command-line tool")
    endif()
    if(ORVIK_BUILD_PYTHON)
        # The Python module, for the interpreter it was built against, on the library of the same version.
        math(EXPR ORVIK_PYTHON_NEXT_MINOR "${Python3_VERSION_MINOR} + 1")
        list(APPEND CPACK_COMPONENTS_ALL python)
        set(CPACK_DEBIAN_PYTHON_PACKAGE_NAME "python3-orvik-media-assets")
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
