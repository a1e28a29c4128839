# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# The verbs that begin like the word. They are found without their accents too,
# but a word that is already right is not to lose letters.
_lumora_cli_verbs() {
    local verbs exact common
    verbs=$(lumora-cli search -- "$1" 2> /dev/null | sed 's/\t.*//; s/ (.*//')
    exact=$(compgen -W "$verbs" -- "$1")
    common=$(sed '$!{N;s/^\(.*\).*\n\1.*$/\1\n\1/;D}' <<< "$verbs")
    [[ -n $exact && -n $common && ${#common} -lt ${#1} ]] && verbs=$exact
    mapfile -t COMPREPLY < <(printf '%s' "$verbs")
}

_lumora_cli() {
    local current=${COMP_WORDS[COMP_CWORD]} words=
    COMPREPLY=()
    case "$COMP_CWORD ${COMP_WORDS[1]} ${COMP_WORDS[COMP_CWORD - 1]}" in
        1\ *) words="conjugate about lookup search export backup restore help version --help --version" ;;
        2\ help\ *) words="conjugate about lookup search export backup restore help version" ;;
        *\ --language) words="en fr de es pt it nl" ;;
        *\ conjugate\ *) words="--stems --ipa --language --help" ;;
        *\ about\ * | *\ lookup\ *) words="--language --help" ;;
        *\ search\ *) words="--anywhere --conjugations --translations --language --help" ;;
        *\ export\ *) words="--html --text --number --language --help" ;;
        *\ backup\ * | *\ restore\ *) words="--help" ;;
    esac
    case "${COMP_WORDS[1]} $current" in
        conjugate\ [!-]* | about\ [!-]* | export\ [!-]*) _lumora_cli_verbs "$current" ;;
        backup\ [!-]* | restore\ [!-]* | backup\  | restore\ )
            compopt -o filenames
            mapfile -t COMPREPLY < <(compgen -f -- "$current")
            ;;
        *) mapfile -t COMPREPLY < <(compgen -W "$words" -- "$current") ;;
    esac
}

complete -F _lumora_cli lumora-cli
