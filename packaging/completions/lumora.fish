# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

complete -c lumora -f -a lumora://verb/ -d 'A verb'
complete -c lumora -l look-up -x -d 'Open what a text means'
complete -c lumora -l service -d 'Answer the search of the desktop'
complete -c lumora -l shortcut -x -d 'Open what a shortcut names' \
    -a 'com.brindle.shortcut.search com.brindle.shortcut.favourite com.brindle.shortcut.history com.brindle.shortcut.list'
complete -c lumora -l tour -x -a '(__fish_complete_directories)' -d 'Write a picture of every screen'
complete -c lumora -s h -l help -d 'Print the options'
complete -c lumora -s v -l version -d 'Print the version'
