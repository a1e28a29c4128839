# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Writes one script after another. The line between them ends whatever the
# first leaves open.
file(READ ${LIBRARY} library)
file(READ ${ADDITION} addition)
file(WRITE ${OUTPUT} "${library};\n${addition}")
