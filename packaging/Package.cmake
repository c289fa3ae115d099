# The last touches to what goes into a package. Stripped also of the sections that only the compiler wrote for itself: no
# package needs them.
find_program(STRIP strip REQUIRED)
file(GLOB_RECURSE files "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/*")
foreach(file IN LISTS files)
    file(READ "${file}" head LIMIT 4 HEX)
    if(head STREQUAL 7f454c46)
        execute_process(COMMAND ${STRIP} --strip-unneeded --remove-section=.comment --remove-section=.note "${file}"
            COMMAND_ERROR_IS_FATAL ANY)
    endif()
endforeach()

# What the package's examiner would say of it without reason. An installation from the sources has no use for that.
file(MAKE_DIRECTORY "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/lintian/overrides")
file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/debian/lintian-overrides"
    "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr/share/lintian/overrides/tarnival")
