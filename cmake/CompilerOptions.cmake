# Warning flags shared by every target of the project, and the optional sanitizers.

function(orvik_set_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wpedantic)
    if(ORVIK_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()

if(ORVIK_SANITIZERS)
    add_compile_options(-fsanitize=${ORVIK_SANITIZERS} -fno-sanitize-recover=all -fno-omit-frame-pointer)
    add_link_options(-fsanitize=${ORVIK_SANITIZERS})
endif()
