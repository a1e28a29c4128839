# Writes one script after another. The line between them ends whatever the
# first leaves open.
file(READ ${LIBRARY} library)
file(READ ${ADDITION} addition)
file(WRITE ${OUTPUT} "${library};\n${addition}")
