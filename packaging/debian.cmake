# Runs between installing into the package's tree and packing it: what Debian wants to be different from other systems.
set(usr "${CPACK_TEMPORARY_INSTALL_DIRECTORY}/usr")
set(doc "${usr}/share/doc/veilaway")
file(REMOVE "${doc}/LICENSE") # every Debian system has its text
file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/changelog" "${doc}/changelog")
execute_process(COMMAND gzip -9n "${doc}/changelog" "${usr}/share/man/man1/veilaway.1" COMMAND_ERROR_IS_FATAL ANY)
file(RENAME "${usr}/share/zsh/site-functions" "${usr}/share/zsh/vendor-completions")
file(MAKE_DIRECTORY "${usr}/share/lintian/overrides")
file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/lintian-overrides" "${usr}/share/lintian/overrides/veilaway")
execute_process(COMMAND strip --strip-debug --remove-section=.comment --enable-deterministic-archives "${usr}/lib/libNimbraImage.a" COMMAND_ERROR_IS_FATAL ANY)
# Independent of the umask that the clone was made with.
file(CHMOD "${doc}/changelog.gz" "${usr}/share/lintian/overrides/veilaway" PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ)
