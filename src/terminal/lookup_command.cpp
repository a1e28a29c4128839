// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/lookup_command.h"

#include "data/tense_table.h"
#include "data/translation_table.h"
#include "platform/machine/bundle.h"
#include "platform/storage/database_queue.h"
#include "terminal/arguments.h"
#include "terminal/commands.h"
#include "terminal/output.h"
#include "terminal/session.h"
#include "text/text.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <iostream>

namespace lumora::terminal {

namespace {

using Fields = std::vector<std::string>;

/// The titles of mood and tense as conjugate prints them; empty for the
/// infinitive, which has none.
std::pair<std::string, std::string> titlesOf(std::string_view tense, Session& session)
{
    const auto position = data::positionOfTense(tense);
    if (!position) {
        return {};
    }
    const auto& services = session.services();
    const auto moodKey = data::kMoodTitleKeys.at(static_cast<std::size_t>(position->segment));
    const auto& block = data::blocksOfSegment(position->segment)[position->block];
    return {platform::localizedString(services.bundle, moodKey),
            data::tenseTitle(block.titleKey, services.bundle, services.settings)};
}

/// A line a place, one for a reading without.
std::vector<Fields> linesOf(const std::vector<lookup::Reading>& readings, Session& session)
{
    std::vector<Fields> lines;
    for (const auto& reading : readings) {
        const std::string kind{lookup::nameOf(reading.kind)};
        if (reading.places.empty()) {
            lines.push_back({reading.headword, reading.form, {}, {}, {}, kind});
        }
        for (const auto& place : reading.places) {
            const auto [mood, tense] = titlesOf(place.tense, session);
            lines.push_back({reading.headword, reading.form, mood, tense, place.pronoun, kind});
        }
    }
    return lines;
}

void printLines(const std::vector<Fields>& lines, const Output& output)
{
    constexpr std::size_t kGap = 2;

    std::vector<std::size_t> widths;
    for (const auto& line : lines) {
        widths.resize(line.size());
        for (std::size_t field = 0; field < line.size(); ++field) {
            widths[field] = std::max(widths[field], text::columns(line[field]));
        }
    }
    for (const auto& line : lines) {
        std::string printed;
        for (std::size_t field = 0; field < line.size(); ++field) {
            printed += line[field];
            if (field + 1 == line.size()) {
                continue;
            }
            printed += output.isTerminal()
                           ? std::string(widths[field] - text::columns(line[field]) + kGap, ' ')
                           : std::string{'\t'};
        }
        output.stream << printed << '\n';
    }
}

/// A text a line; each is printed before what it may mean.
platform::Result<void> lookUpLines(std::istream& input, TextReader& reader, Session& session,
                                   const Output& output)
{
    for (std::string line; std::getline(input, line);) {
        if (!line.empty() && line.back() == '\r') {
            line.pop_back();
        }
        const auto readings = reader.read(line);
        if (!readings) {
            return tl::unexpected(readings.error());
        }
        auto lines = linesOf(*readings, session);
        for (auto& fields : lines) {
            fields.insert(fields.begin(), line);
        }
        printLines(lines, output);
    }
    if (input.bad()) {
        return tl::unexpected(platform::Error{"standard input cannot be read", EIO});
    }
    return {};
}

} // namespace

namespace {

/// The verb without its pronoun: a form of aller is one of s'en aller too, and
/// counts as one verb.
std::string_view verbOf(std::string_view headword)
{
    return headword.substr(0, headword.find(" (s"));
}

/// An infinitive names its verb. "se" before a verb that is not pronominal names none:
/// the verb without "se" is not meant.
bool isName(const lookup::Reading& reading)
{
    return reading.form.find(' ') == std::string::npos &&
           (reading.places.empty() || reading.places.front().tense == "infinitif");
}

} // namespace

TextReader::TextReader(Session& session)
    : session_{session},
      language_{data::listLanguage(session.services().settings, session.services().device).code}
{}

platform::Result<std::vector<lookup::Reading>> TextReader::read(std::string_view text,
                                                                lookup::Guesses guesses)
{
    platform::Result<std::vector<lookup::Reading>> readings;
    session_.queue().inDatabase([&](platform::Database& database) {
        readings = lookup_.read(database, text, language_, guesses);
    });
    return readings;
}

platform::Result<std::vector<std::int64_t>> TextReader::verbsNamed(std::string_view name)
{
    platform::Result<std::vector<std::int64_t>> named;
    session_.queue().inDatabase(
        [&](platform::Database& database) { named = lookup_.verbsNamed(database, name); });
    return named;
}

platform::Result<std::vector<std::string>> TextReader::namesNear(std::string_view name)
{
    constexpr std::size_t kMostNames = 3;

    return read(name).map([](const std::vector<lookup::Reading>& readings) {
        std::vector<std::string> names;
        for (const auto& reading : readings) {
            const bool known =
                std::find(names.begin(), names.end(), reading.headword) != names.end();
            // "s'aller" for aller.
            const bool near = reading.kind == lookup::MatchKind::Typo ||
                              (reading.kind <= lookup::MatchKind::Phrase && isName(reading));
            if (near && !known && names.size() < kMostNames) {
                names.push_back(reading.headword);
            }
        }
        return names;
    });
}

platform::Result<std::vector<lookup::Reading>> TextReader::verbsOfForm(std::string_view text)
{
    return read(text, lookup::Guesses::None).map([](std::vector<lookup::Reading> readings) {
        std::vector<lookup::Reading> verbs;
        for (auto& reading : readings) {
            const bool known =
                std::any_of(verbs.begin(), verbs.end(), [&](const lookup::Reading& other) {
                    return verbOf(other.headword) == verbOf(reading.headword);
                });
            if (!known && reading.kind <= lookup::MatchKind::Phrase && !isName(reading)) {
                verbs.push_back(std::move(reading));
            }
        }
        return verbs;
    });
}

std::string namesOf(const std::vector<lookup::Reading>& readings)
{
    std::string names;
    for (std::size_t i = 0; i < readings.size(); ++i) {
        names += i == 0 ? "" : i + 1 == readings.size() ? " and " : ", ";
        names += readings[i].headword;
    }
    return names;
}

platform::Result<void> lookUp(Session& session, const Arguments& arguments, const Output& output)
{
    TextReader reader{session};
    if (arguments.verbsFromInput) {
        return lookUpLines(std::cin, reader, session, output);
    }
    return reader.read(arguments.text)
        .and_then([&](const std::vector<lookup::Reading>& readings) -> platform::Result<void> {
            if (readings.empty()) {
                return tl::unexpected(
                    platform::Error{inQuotes(arguments.text) + " is no form of a verb", ENOENT});
            }
            printLines(linesOf(readings, session), output);
            return {};
        });
}

} // namespace lumora::terminal
