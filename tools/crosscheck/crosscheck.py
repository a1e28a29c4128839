#!/usr/bin/env python3
# SPDX-FileCopyrightText: The Lumora authors
# SPDX-License-Identifier: GPL-3.0-or-later
"""Compares the simple forms of a verbs.db with two open lexicons.

The lexicons are a check at development time, not an input of the build:

    npm pack french-verbs-lefff         package/dist/conjugations.json in it
    apt-get download hunspell-fr-comprehensive; dpkg-deb -x FILE.deb .
                                        usr/share/hunspell/fr.aff and fr.dic

A difference that content/disagreements.tsv explains is counted, every other one
printed; the exit code is 1 if there is one. In that table infinitive, tense,
person, ours and theirs may be patterns ("*").
"""

import argparse
import collections
import fnmatch
import json
import re
import sqlite3
import sys

# Our tense, the lexicon's key.
TENSES = {
    "indicatifPresent": "P",
    "subjonctifPresent": "S",
    "indicatifImparfait": "I",
    "indicatifPasseSimple": "J",
    "subjonctifImparfait": "T",
    "indicatifFuturSimple": "F",
    "conditionnelPresent": "C",
}
PERSONS = ["je", "tu", "il", "nous", "vous", "ils"]

Difference = collections.namedtuple("Difference", "infinitive tense person ours theirs")


def person_of(pronoun):
    subject = re.sub(r"^qu(e |')", "", pronoun)
    for index, person in ((3, "nous"), (4, "vous"), (5, "ils"), (2, "il"), (1, "tu"), (0, "j")):
        if subject.startswith(person):
            return PERSONS[index]
    raise ValueError(pronoun)


def shown(forms):
    return ", ".join(sorted(forms)) or "-"


class Ours:
    """The simple forms of one infinitive; homographs are taken together."""

    def __init__(self):
        self.forms = collections.defaultdict(set)
        self.impersonal = False

    def of(self, tense, person):
        return self.forms.get((tense, person), set())


def read_ours(database):
    verbs = collections.defaultdict(Ours)
    rows = sqlite3.connect(f"file:{database}?mode=ro", uri=True).execute(
        "SELECT french, pronoun, conjugation.verb, type FROM verb JOIN conjugation"
        " ON verbid = verb._id WHERE display = 1 ORDER BY verbid, conj_order")
    for headword, pronoun, text, tense in rows:
        infinitive = re.sub(r" \(.*\)$", "", headword)
        verb = verbs[infinitive]
        variants = [re.sub(r"^s('en |e |')", "", form) for form in text.split(", ")]
        if tense in TENSES:
            verb.forms[tense, person_of(pronoun)].update(variants)
            verb.impersonal |= pronoun == "il"
        elif " " in variants[0]:
            continue  # compound
        elif tense == "imperatif":
            for form in variants:
                form = re.sub(r"-(t'en|nous-en|vous-en|toi|nous|vous)$", "", form)
                verb.forms[tense, "*"].add(form)
        else:
            verb.forms[tense, "*"].update(variants)
    return verbs


def lexicon_differences(verbs, lexicon):
    for infinitive, ours in verbs.items():
        theirs = lexicon.get(infinitive)
        if theirs is None:
            continue

        def differences(tense, person, form):
            mine = ours.of(tense, person)
            form = "" if form in (None, "NA") else form
            if mine and not form or form and form not in mine:
                yield Difference(infinitive, tense, person, shown(mine), form or "-")

        for tense, key in TENSES.items():
            for person, form in zip(PERSONS, theirs.get(key, [None] * 6)):
                if not (ours.impersonal and person != "il"):
                    yield from differences(tense, person, form)

        # Imperatives and participles have no pronoun: only what is missing shows.
        participles = theirs.get("K", [])
        if len(ours.of("participe", "*")) <= 2:
            participles = participles[:1]  # ours is invariable
        loose = [("participe", theirs.get("G", [])), ("participe", participles)]
        if not ours.impersonal:
            loose.append(("imperatif", theirs.get("Y", [])))
        for tense, forms in loose:
            for form in dict.fromkeys(forms):
                if form not in (None, "NA") and form not in ours.of(tense, "*"):
                    yield Difference(infinitive, tense, "*", shown(ours.of(tense, "*")), form)


def read_suffixes(path):
    """Suffix rules by their two-letter flag."""
    rules = collections.defaultdict(list)
    with open(path, encoding="utf-8") as lines:
        for line in lines:
            parts = line.split()
            if len(parts) >= 5 and parts[0] == "SFX":
                strip, added, condition = parts[2:5]
                added = added.split("/")[0]
                rules[parts[1]].append(("" if strip == "0" else strip,
                                        "" if added == "0" else added,
                                        re.compile(condition + "$")))
    return rules


def read_dictionary(aff, dic):
    """Every form that the spelling dictionary knows, and each verb's codes."""
    rules = read_suffixes(aff)
    known = set()
    codes = collections.defaultdict(list)
    with open(dic, encoding="utf-8") as lines:
        for line in lines:
            entry, *fields = line.split()
            word, _, flags = entry.partition("/")
            known.add(word)
            for flag in re.findall("..", flags):
                for strip, added, condition in rules[flag]:
                    if word.endswith(strip) and condition.search(word):
                        known.add(word[:len(word) - len(strip)] + added)
            for field in fields:
                if match := re.fullmatch(r"po:v([0-3])[a-z_]*(..)", field):
                    codes[word].append(match.groups())
    return known, codes


def dictionary_differences(verbs, known, codes):
    for infinitive, ours in verbs.items():
        if infinitive not in codes:
            continue
        unknown = [(tense, person, form) for (tense, person), forms in ours.forms.items()
                   for form in sorted(forms - known)]
        # Of some verbs it has the infinitive or a few forms alone, which says
        # nothing about the others.
        if 2 * len(unknown) > sum(map(len, ours.forms.values())):
            unknown = []
        if unknown and all(tense == "participe" for tense, _, _ in unknown):
            unknown = []
            yield Difference(infinitive, "participe", "*", "variable", "invariable")
        for tense, person, form in unknown:
            yield Difference(infinitive, tense, person, form, "not in the dictionary")
        gerunds = [form for form in ours.of("participe", "*") if form.endswith("ant")]
        group = ("1" if infinitive.endswith("er") else
                 "2" if infinitive.endswith(("ir", "ïr"))
                 and any(form.endswith(("issant", "ïssant")) for form in gerunds) else "3")
        theirs = {group for group, _ in codes[infinitive]} - {"0"}
        if theirs and group not in theirs and gerunds:
            yield Difference(infinitive, "group", "*", group, "".join(sorted(theirs)))


def auxiliary_differences(table, codes):
    with open(table, encoding="utf-8") as lines:
        entries = [line.rstrip("\n").split("\t") for line in lines if not line.startswith("#")]
    auxiliaries = collections.defaultdict(set)
    for fields in entries[1:]:
        auxiliaries[fields[1]].update(fields[3].split("+"))
    for infinitive, ours in auxiliaries.items():
        theirs = set()
        for _, auxiliary in codes.get(infinitive, []):
            # "zz" stands for one nobody has looked at.
            theirs |= {name for letter, name in zip("ea", ("être", "avoir")) if letter in auxiliary}
        if theirs and theirs != ours:
            yield Difference(infinitive, "auxiliary", "*", "+".join(sorted(ours)),
                             "+".join(sorted(theirs)))


def read_explained(path):
    if path is None:
        return []
    with open(path, encoding="utf-8") as lines:
        records = [line.rstrip("\n").split("\t") for line in lines if not line.startswith("#")]
    return [record[:5] for record in records[1:]]


def main():
    parser = argparse.ArgumentParser(
        description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("database")
    parser.add_argument("--lexicon", help="conjugations.json")
    parser.add_argument("--dictionary", help="fr.dic; fr.aff lies beside it")
    parser.add_argument("--verbs", help="verbs.tsv, to compare the auxiliaries as well")
    parser.add_argument("--explained", help="disagreements.tsv")
    arguments = parser.parse_args()

    verbs = read_ours(arguments.database)
    differences = []
    if arguments.lexicon:
        with open(arguments.lexicon, encoding="utf-8") as text:
            lexicon = json.load(text)
        print(f"{sum(v in lexicon for v in verbs)} of {len(verbs)} verbs are in the lexicon")
        differences += lexicon_differences(verbs, lexicon)
    if arguments.dictionary:
        known, codes = read_dictionary(arguments.dictionary[:-3] + "aff", arguments.dictionary)
        print(f"{sum(v in codes for v in verbs)} of {len(verbs)} verbs are in the dictionary")
        differences += dictionary_differences(verbs, known, codes)
        if arguments.verbs:
            differences += auxiliary_differences(arguments.verbs, codes)

    explained = read_explained(arguments.explained)
    used = collections.Counter()
    left = []
    for difference in differences:
        for number, patterns in enumerate(explained):
            if all(map(fnmatch.fnmatchcase, difference, patterns)):
                used[number] += 1
                break
        else:
            left.append(difference)
    for difference in left:
        print("\t".join(difference))
    for number, patterns in enumerate(explained):
        if not used[number]:
            print("explains nothing:", "\t".join(patterns))
    print(f"{len(differences)} differences, {len(differences) - len(left)} explained,"
          f" {len(left)} left", file=sys.stderr)
    return 1 if left else 0


if __name__ == "__main__":
    sys.exit(main())
