# What a Debian package has otherwise: a game lies in usr/games, completions in a folder of their own, the licence in the
# copyright file; manual pages and the changelog are compressed, without a time of their own; lintian is told why one of
# its rules does not hold. A package of the sources is left as it is.
if(NOT CPACK_GENERATOR STREQUAL "DEB")
  return()
endif()
set(staged "${CPACK_TEMPORARY_DIRECTORY}/usr")
file(MAKE_DIRECTORY "${staged}/games")
file(RENAME "${staged}/bin/tessaly" "${staged}/games/tessaly")
file(RENAME "${staged}/share/zsh/site-functions" "${staged}/share/zsh/vendor-completions")
file(REMOVE "${staged}/share/doc/tessaly/LICENSE")
file(COPY "@CMAKE_CURRENT_SOURCE_DIR@/debian/copyright" "@CMAKE_CURRENT_BINARY_DIR@/debian/changelog"
     DESTINATION "${staged}/share/doc/tessaly")
file(GLOB_RECURSE pages "${staged}/share/man/*.[16]" "${staged}/share/doc/tessaly/changelog")
foreach(page IN LISTS pages)
  execute_process(COMMAND gzip -9nf "${page}" COMMAND_ERROR_IS_FATAL ANY)
endforeach()
configure_file("@CMAKE_CURRENT_SOURCE_DIR@/debian/lintian-overrides" "${staged}/share/lintian/overrides/tessaly"
               FILE_PERMISSIONS OWNER_READ OWNER_WRITE GROUP_READ WORLD_READ COPYONLY)
# Made under any umask, the package is the same.
file(GLOB_RECURSE entries LIST_DIRECTORIES true "${CPACK_TEMPORARY_DIRECTORY}/*")
foreach(entry IN LISTS entries)
  if(IS_DIRECTORY "${entry}")
    file(CHMOD "${entry}" PERMISSIONS OWNER_READ OWNER_WRITE OWNER_EXECUTE GROUP_READ GROUP_EXECUTE WORLD_READ
                                      WORLD_EXECUTE)
  endif()
endforeach()
