# Where things are installed. Programs find each other by relative paths, so an installation may be
# moved, or made with `cmake --install --prefix`.

include_guard(GLOBAL)
include(GNUInstallDirs)

set(TONQUIL_LIBEXECDIR "${CMAKE_INSTALL_LIBEXECDIR}/tonquil")
file(RELATIVE_PATH TONQUIL_LAUNCHER_FROM_PROGRAM "${CMAKE_INSTALL_FULL_BINDIR}"
     "${CMAKE_INSTALL_FULL_LIBEXECDIR}/tonquil/tonquil-launcher")
file(RELATIVE_PATH TONQUIL_PROGRAM_FROM_LAUNCHER "${CMAKE_INSTALL_FULL_LIBEXECDIR}/tonquil"
     "${CMAKE_INSTALL_FULL_BINDIR}/tonquil")
