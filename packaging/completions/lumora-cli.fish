# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

function __lumora_cli_verbs
    set -l word (commandline -ct)
    test -n "$word"; and lumora-cli search -- $word 2>/dev/null | string replace -r ' \(.*?\)' ''
end

complete -c lumora-cli -f
set -l commands conjugate about lookup search export backup restore help version
complete -c lumora-cli -n __fish_use_subcommand -a conjugate -d 'Print every mood and tense'
complete -c lumora-cli -n __fish_use_subcommand -a about -d 'Print group, model and auxiliary'
complete -c lumora-cli -n __fish_use_subcommand -a lookup -d 'Print what a text may mean'
complete -c lumora-cli -n __fish_use_subcommand -a search -d 'Print the verbs that begin with a text'
complete -c lumora-cli -n __fish_use_subcommand -a export -d 'Print the conjugations as a document'
complete -c lumora-cli -n __fish_use_subcommand -a backup -d 'Save favourites and history to a file'
complete -c lumora-cli -n __fish_use_subcommand -a restore -d 'Add what a file holds'
complete -c lumora-cli -n __fish_use_subcommand -a help -d 'Say which commands or options there are'
complete -c lumora-cli -n __fish_use_subcommand -a version -d 'Print the version'
complete -c lumora-cli -n '__fish_seen_subcommand_from help' -a "$commands"
complete -c lumora-cli -n '__fish_seen_subcommand_from conjugate about export' -a '(__lumora_cli_verbs)'
complete -c lumora-cli -n '__fish_seen_subcommand_from backup restore' -F
complete -c lumora-cli -n '__fish_seen_subcommand_from conjugate' -l stems -d 'Mark where endings begin'
complete -c lumora-cli -n '__fish_seen_subcommand_from conjugate' -l ipa -d 'Add how each row is said'
complete -c lumora-cli -n '__fish_seen_subcommand_from search' -l anywhere -d 'Anywhere in the verb'
complete -c lumora-cli -n '__fish_seen_subcommand_from search' -l conjugations -d 'Search the forms too'
complete -c lumora-cli -n '__fish_seen_subcommand_from search' -l translations -d 'Search the translations too'
complete -c lumora-cli -n '__fish_seen_subcommand_from export' -l html -d 'A page to print or to show'
complete -c lumora-cli -n '__fish_seen_subcommand_from export' -l text -d 'Plain text for an e-mail'
complete -c lumora-cli -n '__fish_seen_subcommand_from export' -l number -x -d 'Which of the verbs of the name'
complete -c lumora-cli -n '__fish_seen_subcommand_from conjugate about lookup search export' \
    -l language -x -a 'en fr de es pt it nl' -d 'Translate into'
complete -c lumora-cli -s h -l help -d 'Print the options'
complete -c lumora-cli -n __fish_use_subcommand -s v -l version -d 'Print the version'
