#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Holds the rows that the web edition makes, on stdin, against those of verbs.db."""

import sqlite3
import sys

database = sqlite3.connect(f"file:{sys.argv[1]}?mode=ro", uri=True)
count = 0
for row in database.execute("SELECT _id, verbid, pronoun, verb, type, conj_order, display "
                            "FROM conjugation ORDER BY verbid, conj_order"):
    made = sys.stdin.readline()
    count += 1
    if made != "\t".join(map(str, row)) + "\n":
        sys.exit(f"row {count}: {made.strip()} is not {row}")
rest = sys.stdin.readline()
if rest or count < 100000:
    sys.exit(f"after {count} rows: {rest.strip()}")
print(count, "rows are the same")
