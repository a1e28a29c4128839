# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Does to the packages that cpack made what cpack cannot be asked for: the database
# gains by a dictionary as large as itself, and serves programs of any architecture.
foreach(package IN LISTS CPACK_PACKAGE_FILES)
    set(unpacked ${package}.unpacked)
    execute_process(COMMAND dpkg-deb -R ${package} ${unpacked} COMMAND_ERROR_IS_FATAL ANY)
    file(READ ${unpacked}/DEBIAN/control control)
    string(REPLACE "Architecture: all\n" "Architecture: all\nMulti-Arch: foreign\n"
        control "${control}")
    file(WRITE ${unpacked}/DEBIAN/control "${control}")
    execute_process(
        COMMAND dpkg-deb --root-owner-group -Zxz -z9 -b ${unpacked} ${package}
        COMMAND_ERROR_IS_FATAL ANY)
    file(REMOVE_RECURSE ${unpacked})
endforeach()
