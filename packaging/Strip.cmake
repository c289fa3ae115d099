# Strips what goes into a package, also of the sections that only the compiler wrote for itself: no package needs them.
find_program(STRIP strip REQUIRED)
file(GLOB_RECURSE files "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*")
foreach(file IN LISTS files)
    file(READ "${file}" head LIMIT 4 HEX)
    if(head STREQUAL 7f454c46)
        execute_process(COMMAND ${STRIP} --strip-unneeded --remove-section=.comment --remove-section=.note "${file}"
            COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()
