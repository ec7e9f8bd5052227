# Runs between installing into the package's tree and packing it: what Debian wants to be different from other systems.
# Two packages of one commit are equal byte for byte.
if(NOT DEFINED ENV{SOURCE_DATE_EPOCH})
    execute_process(COMMAND git -C "${CMAKE_CURRENT_LIST_DIR}" log -1 --format=%ct
        OUTPUT_VARIABLE committed OUTPUT_STRIP_TRAILING_WHITESPACE ERROR_QUIET RESULT_VARIABLE failed)
    if(NOT failed)
        set(ENV{SOURCE_DATE_EPOCH} "${committed}")
    endif()
endif()
set(usr "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr")
set(doc "${usr}/share/doc/veilaway")
file(REMOVE "${doc}/LICENSE") # every Debian system has its text
set(debian "${CMAKE_CURRENT_LIST_DIR}/../debian")
file(COPY_FILE "${debian}/changelog" "${doc}/changelog")
execute_process(COMMAND gzip -9n "${doc}/changelog" "${usr}/share/man/man1/veilaway.1" COMMAND_ERROR_IS_FATAL ANY)
file(RENAME "${usr}/share/zsh/site-functions" "${usr}/share/zsh/vendor-completions")
file(MAKE_DIRECTORY "${usr}/share/lintian/overrides")
file(COPY_FILE "${debian}/veilaway.lintian-overrides" "${usr}/share/lintian/overrides/veilaway")
execute_process(COMMAND strip --strip-debug --remove-section=.comment --enable-deterministic-archives "${usr}/lib/libNimbraImage.a" COMMAND_ERROR_IS_FATAL ANY)
# Independent of the umask that the clone was made with.
file(CHMOD "${doc}/changelog.gz" "${usr}/share/lintian/overrides/veilaway" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
