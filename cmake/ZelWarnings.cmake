# The warnings every target of the project is built with; ZEL_WARNINGS_AS_ERRORS (set by
# CI) turns them into errors.
function(zel_target_warnings target)
    target_compile_options(${target} PRIVATE -Wall -Wextra -Wshadow -Woverloaded-virtual)
    if(ZEL_WARNINGS_AS_ERRORS)
        target_compile_options(${target} PRIVATE -Werror)
    endif()
endfunction()
