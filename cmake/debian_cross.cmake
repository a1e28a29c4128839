# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Toolchain for another of Debian's architectures: its cross compiler, and libraries
# installed beside one's own. dpkg-architecture says which one in the environment.
set(CMAKE_SYSTEM_NAME Linux)
set(CMAKE_SYSTEM_PROCESSOR $ENV{DEB_HOST_GNU_CPU})
set(CMAKE_CXX_COMPILER $ENV{DEB_HOST_GNU_TYPE}-g++)
set(CMAKE_LIBRARY_ARCHITECTURE $ENV{DEB_HOST_MULTIARCH})
set(ENV{PKG_CONFIG_LIBDIR} /usr/lib/$ENV{DEB_HOST_MULTIARCH}/pkgconfig:/usr/share/pkgconfig)
set(CPACK_DEBIAN_PACKAGE_ARCHITECTURE $ENV{DEB_HOST_ARCH})
