// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/database_writer.h"

#include "lookup/catalogue.h"
#include "platform/storage/database_queue.h"
#include "verbdb/simplify.h"
#include "verbdb/verb_facts.h"

#include <sqlite3.h>

#include <map>
#include <memory>
#include <optional>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>
#include <unordered_set>

namespace lumora::verbdb {

namespace {

// Fixed pages and rows written in the order of their keys make the file a
// function of the tables. Without a rowid a verb's forms lie together and the
// text is not kept a second time in an index; a number of a row's own would be
// 3 MB that nothing else follows from, so it is computed. What a search looks at lies at the
// head of a verb's row, for SQLite counts its way through to a column. A verb is
// a favourite once, however often it is made one. An index on verbid alone, unique
// or not, would answer for the small table and hand its rows out by verb: with _id
// in it the table is the shorter way and the rows come as they were made.
constexpr auto kSchema = R"(
PRAGMA page_size = 8192;
PRAGMA encoding = 'UTF-8';
PRAGMA auto_vacuum = NONE;
PRAGMA journal_mode = OFF;
PRAGMA synchronous = OFF;
BEGIN;
CREATE TABLE verb (
    _id INTEGER PRIMARY KEY,
    french TEXT NOT NULL,
    simplified_french TEXT NOT NULL,
    english TEXT NOT NULL,
    german TEXT NOT NULL,
    simplified_german TEXT NOT NULL,
    dutch TEXT NOT NULL,
    simplified_dutch TEXT NOT NULL,
    spanish TEXT NOT NULL,
    simplified_spanish TEXT NOT NULL,
    italian TEXT NOT NULL,
    simplified_italian TEXT NOT NULL,
    portuguese TEXT NOT NULL,
    simplified_portuguese TEXT NOT NULL
);
CREATE TABLE conjugation (
    _id INTEGER NOT NULL GENERATED ALWAYS AS (verbid * 1000 + conj_order) VIRTUAL,
    verbid INTEGER NOT NULL REFERENCES verb (_id),
    pronoun TEXT NOT NULL,
    verb TEXT NOT NULL,
    type TEXT NOT NULL,
    conj_order INTEGER NOT NULL,
    display INTEGER NOT NULL,
    PRIMARY KEY (verbid, conj_order)
) WITHOUT ROWID;
CREATE TABLE packed_forms (verbid INTEGER PRIMARY KEY, forms BLOB NOT NULL);
CREATE TABLE verb_facts (
    verbid INTEGER PRIMARY KEY REFERENCES verb (_id),
    verb_group INTEGER NOT NULL,
    model TEXT NOT NULL,
    like_verbid INTEGER REFERENCES verb (_id),
    auxiliary TEXT NOT NULL,
    traits TEXT NOT NULL,
    participle TEXT NOT NULL,
    use_class INTEGER NOT NULL,
    divisionsid INTEGER NOT NULL REFERENCES form_divisions (_id)
);
CREATE TABLE form_divisions (_id INTEGER PRIMARY KEY, divisions BLOB NOT NULL);
CREATE TABLE word_index (_id INTEGER PRIMARY KEY, words BLOB NOT NULL);
CREATE TABLE favourite (_id INTEGER PRIMARY KEY, verbid INTEGER);
CREATE TABLE history (_id INTEGER PRIMARY KEY, verbid INTEGER, timestamp REAL);
CREATE INDEX favourite_verbid ON favourite (verbid, _id);
CREATE INDEX history_verbid ON history (verbid);
CREATE TRIGGER favourite_once BEFORE INSERT ON favourite
WHEN EXISTS (SELECT 1 FROM favourite WHERE verbid = new.verbid)
BEGIN
    SELECT RAISE(IGNORE);
END;
)";

/// Of a verb, so that the numbers of its rows are its own.
constexpr std::int64_t kMostRows = 999;

constexpr auto kInsertVerb =
    "INSERT INTO verb VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14)";
constexpr auto kInsertForm = "INSERT INTO conjugation VALUES (?1, ?2, ?3, ?4, ?5, ?6)";
// Bound as text, whose NULs SQLite keeps.
constexpr auto kInsertPacked = "INSERT INTO packed_forms VALUES (?1, CAST(?2 AS BLOB))";
constexpr auto kInsertFacts = "INSERT INTO verb_facts VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9)";
constexpr auto kInsertWords = "INSERT INTO word_index VALUES (?, CAST(? AS BLOB))";
constexpr auto kInsertDivisions = "INSERT INTO form_divisions VALUES (?1, CAST(?2 AS BLOB))";

struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
    void operator()(sqlite3_stmt* statement) const { sqlite3_finalize(statement); }
};

class Output {
public:
    explicit Output(const std::filesystem::path& path)
    {
        sqlite3* opened = nullptr;
        const int code = sqlite3_open(path.c_str(), &opened);
        database_.reset(opened);
        check(code);
    }

    void run(const char* sql)
    {
        check(sqlite3_exec(database_.get(), sql, nullptr, nullptr, nullptr));
    }

    void check(int code)
    {
        if (code != SQLITE_OK && code != SQLITE_DONE) {
            throw std::runtime_error(sqlite3_errmsg(database_.get()));
        }
    }

    sqlite3* get() { return database_.get(); }

private:
    std::unique_ptr<sqlite3, Closer> database_;
};

/// An INSERT run once a row; bound texts must live until run().
class Insertion {
public:
    Insertion(Output& output, const char* sql) : output_(output)
    {
        sqlite3_stmt* prepared = nullptr;
        output.check(sqlite3_prepare_v2(output.get(), sql, -1, &prepared, nullptr));
        statement_.reset(prepared);
    }

    Insertion& operator<<(std::int64_t number)
    {
        output_.check(sqlite3_bind_int64(statement_.get(), ++bound_, number));
        return *this;
    }

    Insertion& operator<<(std::string_view text)
    {
        output_.check(sqlite3_bind_text(statement_.get(), ++bound_, text.data(),
                                        static_cast<int>(text.size()), SQLITE_STATIC));
        return *this;
    }

    /// None is NULL.
    Insertion& operator<<(std::optional<std::int64_t> number)
    {
        if (number) {
            return *this << *number;
        }
        output_.check(sqlite3_bind_null(statement_.get(), ++bound_));
        return *this;
    }

    void run()
    {
        output_.check(sqlite3_step(statement_.get()));
        output_.check(sqlite3_reset(statement_.get()));
        bound_ = 0;
    }

private:
    Output& output_;
    std::unique_ptr<sqlite3_stmt, Closer> statement_;
    int bound_ = 0;
};

/// A verb's distinct forms as the search reads them: NUL form NUL form NUL, with
/// the case folded that LIKE does not tell apart, which is ASCII's alone.
class PackedForms {
public:
    void add(std::string_view form)
    {
        std::string folded(form);
        for (char& byte : folded) {
            if (byte >= 'A' && byte <= 'Z') {
                byte = static_cast<char>(byte - 'A' + 'a');
            }
        }
        if (seen_.insert(folded).second) {
            packed_ += folded;
            packed_ += '\0';
        }
    }

    std::string_view text() const { return packed_; }

private:
    std::string packed_ = std::string(1, '\0');
    std::unordered_set<std::string> seen_;
};

/// Writes the helper tables. Most verbs of a model divide alike and share a row.
class FactsWriter {
public:
    FactsWriter(const Content& content, Output& output)
        : content_(content),
          namesakes_(content),
          insertFacts_(output, kInsertFacts),
          insertDivisions_(output, kInsertDivisions)
    {}

    void write(const Verb& verb, const std::vector<conjugator::Row>& rows)
    {
        const auto packed = packedDivisions(rows);
        const auto [found, fresh] = idOfDivisions_.emplace(packed, idOfDivisions_.size() + 1);
        const auto divisions = static_cast<std::int64_t>(found->second);
        if (fresh) {
            insertDivisions_ << divisions << std::string_view(packed);
            insertDivisions_.run();
        }
        const auto& entry = verb.entry;
        const auto traits = namesOf(entry, kTraits);
        const auto participle = namesOf(entry, kParticipleKinds);
        insertFacts_ << verb.id << std::int64_t{content_.conjugator.group(entry)}
                     << std::string_view(entry.model) << namesakes_.of(verb)
                     << kAuxiliaries[static_cast<std::size_t>(entry.auxiliary)]
                     << std::string_view(traits) << std::string_view(participle)
                     << std::int64_t{verb.use} << divisions;
        insertFacts_.run();
    }

private:
    const Content& content_;
    Namesakes namesakes_;
    Insertion insertFacts_;
    Insertion insertDivisions_;
    std::map<std::string, std::size_t> idOfDivisions_;
};

void writeRows(const Content& content, Output& output)
{
    Insertion insertVerb(output, kInsertVerb);
    Insertion insertForm(output, kInsertForm);
    Insertion insertPacked(output, kInsertPacked);
    FactsWriter facts(content, output);
    for (const auto& verb : content.verbs) {
        const auto headword = content.conjugator.headword(verb.entry);
        const auto simplifiedHeadword = simplified(headword);
        std::array<std::string, kLanguages.size()> simplifiedTranslations;
        insertVerb << verb.id << std::string_view(headword) << std::string_view(simplifiedHeadword);
        for (std::size_t language = 0; language < kLanguages.size(); ++language) {
            insertVerb << std::string_view(verb.translations[language]);
            // English has no simplified column.
            if (language > 0) {
                simplifiedTranslations[language] = simplified(verb.translations[language]);
                insertVerb << std::string_view(simplifiedTranslations[language]);
            }
        }
        insertVerb.run();

        std::int64_t order = 0;
        PackedForms packed;
        const auto rows = content.conjugator.rows(verb.entry);
        for (const auto& row : rows) {
            insertForm << verb.id << std::string_view(row.pronoun) << std::string_view(row.verb)
                       << conjugator::name(row.tense) << ++order << std::int64_t{row.shown};
            insertForm.run();
            packed.add(row.verb);
            if (order >= kMostRows) {
                throw std::runtime_error(headword + " has too many forms");
            }
        }
        insertPacked << verb.id << packed.text();
        insertPacked.run();
        facts.write(verb, rows);
    }
}

/// Keeps the words that the look-up finds verbs by and how they sound, which it
/// would make of all forms else.
void writeWords(const std::filesystem::path& path)
{
    const auto queue = platform::DatabaseQueue::open(platform::existingFileUrl(path));
    if (!queue) {
        throw std::runtime_error("the database cannot be opened");
    }
    platform::Result<void> written;
    queue->inDatabase([&](platform::Database& database) {
        written = lookup::Catalogue::read(database).and_then([&](lookup::Catalogue catalogue) {
            const auto sounds = lookup::packedSounds(catalogue.sounds(database));
            return database
                .executeUpdate(kInsertWords, {lookup::kStoredWords, catalogue.words().packed()})
                .and_then([&] {
                    return database.executeUpdate(kInsertWords, {lookup::kStoredSounds, sounds});
                });
        });
    });
    if (!written) {
        throw std::runtime_error(written.error().message);
    }
}

} // namespace

void writeDatabase(const Content& content, const std::filesystem::path& path)
{
    auto temporary = path;
    temporary += ".part";
    std::error_code ignored;
    std::filesystem::remove(temporary, ignored);
    try {
        {
            Output output(temporary);
            output.run(kSchema);
            writeRows(content, output);
            output.run("COMMIT");
        }
        writeWords(temporary);
        {
            Output output(temporary);
            // Growing in key order leaves the pages of a table without a rowid
            // an eighth empty.
            output.run("VACUUM");
        }
        std::filesystem::rename(temporary, path);
    } catch (const std::exception& error) {
        std::filesystem::remove(temporary, ignored);
        throw std::runtime_error(path.string() + ": " + error.what());
    }
}

} // namespace lumora::verbdb
