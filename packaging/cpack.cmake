# Read by cpack once for each package, before it installs into it.
if(CPACK_GENERATOR STREQUAL TGZ)
  string(REPLACE ";ALL;" ";archive;" CPACK_INSTALL_CMAKE_PROJECTS
                 "${CPACK_INSTALL_CMAKE_PROJECTS}")
endif()
