# What a Debian package has otherwise: a game lies in usr/games; manual pages and the changelog are compressed, without
# a time of their own; lintian is told why one of its rules does not hold.
set(staged "${CPACK_TEMPORARY_DIRECTORY}/usr")
file(MAKE_DIRECTORY "${staged}/games")
file(RENAME "${staged}/bin/tessaly" "${staged}/games/tessaly")
file(GLOB_RECURSE pages "${staged}/share/man/*.[16]" "${staged}/share/doc/tessaly/changelog")
foreach(page IN LISTS pages)
  execute_process(COMMAND gzip -9nf "${page}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
file(MAKE_DIRECTORY "${staged}/share/lintian/overrides")
file(COPY_FILE "${CMAKE_CURRENT_LIST_DIR}/lintian-overrides"
     "${staged}/share/lintian/overrides/tessaly")
