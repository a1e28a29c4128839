# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

_lumora() {
    local current=${COMP_WORDS[COMP_CWORD]} shortcut=com.brindle.shortcut
    case ${COMP_WORDS[COMP_CWORD - 1]} in
        --shortcut)
            set -- "$shortcut.search" "$shortcut.favourite" "$shortcut.history" "$shortcut.list"
            ;;
        --tour)
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -d -- "$current")
            return
            ;;
        --look-up) return ;;
        *) set -- --look-up --service --shortcut --tour --help --version ;;
    esac
    mapfile -t COMPREPLY < <(compgen -W "$*" -- "$current")
}

complete -F _lumora lumora
