# Sets the paths by which an installed program finds the shared libraries that were installed with it.

include(GNUInstallDirs)
file(RELATIVE_PATH tgx_libdir_from_bindir ${CMAKE_INSTALL_FULL_BINDIR} ${CMAKE_INSTALL_FULL_LIBDIR})
set(CMAKE_INSTALL_RPATH "$ORIGIN" "$ORIGIN/${tgx_libdir_from_bindir}")
