# Warning flags shared by every target of the project, the project's shared libraries, and the
# optional sanitizers.

function(orvik_set_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
    if(ORVIK_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

# One of the project's shared libraries: target <target>, alias Orvik::<export name>, versioned
# with the project (SONAME from the major version), with the project's warnings.
function(orvik_add_shared_library target exportName)
    add_library(${target} SHARED ${ARGN})
    add_library(Orvik::${exportName} ALIAS ${target})
    set_target_properties(${target} PROPERTIES
        VERSION ${PROJECT_VERSION}
        SOVERSION ${PROJECT_VERSION_MAJOR}
        EXPORT_NAME ${exportName})
    orvik_set_warnings(${target})
endfunction()

if(ORVIK_SANITIZERS)
    add_compile_options(-fsanitize=${ORVIK_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ORVIK_SANITIZERS})
endif()
