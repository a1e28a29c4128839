# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later

# Writes the facts that a running program states about itself.
#
# The version carries the database's fingerprint: an installed copy is replaced
# exactly when this text changes, so corrected content reaches everyone.
file(SHA256 ${DATABASE} fingerprint)
string(SUBSTRING ${fingerprint} 0 8 fingerprint)
file(WRITE ${OUTPUT} "{
  \"CFBundleIdentifier\": \"com.brindle.lumora\",
  \"CFBundleShortVersionString\": \"${VERSION}-${fingerprint}\",
  \"CFBundleVersion\": \"1\"
}
")
