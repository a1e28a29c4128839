// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "report.h"

#include <filesystem>
#include <string>

namespace lumora::bench {

// Each measures one matter and adds its lines to the report. `database` is a
// copy of the shipped one, `program` this program.

/// How long the database takes to build, and how large it is.
void measureDatabase(Report& report, const std::filesystem::path& database);

/// The list of all verbs against the same statement in a bare SQLite loop.
Figure listFigure(const std::filesystem::path& database, int rounds);
void measureList(Report& report, const std::filesystem::path& database);

/// Every text of a fixed list, from the start and anywhere, against the same
/// statement by SQLite's own plan. A stride leaves texts of the list out.
struct SearchFigures {
    Figure withConjugations;
    /// Texts with a wildcard that was typed.
    Figure withWildcards;
    Figure fewVerbs;
    Figure allVerbs;
};
SearchFigures searchFigures(const std::filesystem::path& database, int rounds, std::size_t stride);
void measureSearch(Report& report, const std::filesystem::path& database);

/// What a typed text may mean, against the search for the same text.
void measureLookup(Report& report, const std::filesystem::path& database);

/// Reading a verb's forms against the same statement in a bare SQLite loop.
Figure formsFigure(const std::filesystem::path& database, int verbs);
/// From the tap on a row to the frame with the grid, in the real window,
/// against a tap that pushes an empty page.
void measureOpening(Report& report, const std::filesystem::path& database);

/// Both renderings of a verb against the same templates, compiled already.
void measureExport(Report& report, const std::filesystem::path& database);

/// From the tap on a play control to the first samples.
void measureSpeech(Report& report);

/// From the start of the process to its first frame, and to the first with the
/// list, against an empty window of the toolkit.
void measureFirstFrame(Report& report, const std::string& program);

/// Peak memory of the application after the whole list went by and two hundred
/// verbs were opened, against an empty window.
void measureMemory(Report& report, const std::string& program);

/// List, search and opening with 1, 2, 4 and 8 times the verbs.
void measureGrowth(Report& report);

/// When this process was started for one of the figures, does its part and
/// returns its exit status; -1 when it was not.
int runAsChild(int argc, char** argv);

} // namespace lumora::bench
