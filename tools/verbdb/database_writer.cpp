// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/database_writer.h"

#include "lookup/catalogue.h"
#include "platform/storage/database_queue.h"
#include "verbdb/helper_tables.h"
#include "verbdb/simplify.h"
#include "verbdb/sql_output.h"

#include <sqlite3.h>

#include <memory>
#include <stdexcept>
#include <string>
#include <string_view>
#include <system_error>

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
constexpr auto kUnsafeButFast = R"(
PRAGMA page_size = 8192;
PRAGMA encoding = 'UTF-8';
PRAGMA auto_vacuum = NONE;
PRAGMA journal_mode = OFF;
PRAGMA synchronous = OFF;
)";
constexpr auto kSchema = R"(
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
constexpr auto kFormsTable = R"(
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
)";

/// Of a verb, so that the numbers of its rows are its own.
constexpr std::int64_t kMostRows = 999;

constexpr auto kInsertVerb =
    "INSERT INTO verb VALUES (?1, ?2, ?3, ?4, ?5, ?6, ?7, ?8, ?9, ?10, ?11, ?12, ?13, ?14)";
constexpr auto kInsertForm = "INSERT INTO conjugation VALUES (?1, ?2, ?3, ?4, ?5, ?6)";
constexpr auto kInsertWords = "INSERT INTO word_index VALUES (?, CAST(? AS BLOB))";

struct Closer {
    void operator()(sqlite3* database) const { sqlite3_close(database); }
};

/// Hands a connection to the file to `write`.
template <typename Write>
void withFile(const std::filesystem::path& path, const Write& write)
{
    sqlite3* opened = nullptr;
    const int code = sqlite3_open(path.c_str(), &opened);
    const std::unique_ptr<sqlite3, Closer> connection(opened);
    Output output(opened);
    output.check(code);
    write(output);
}

void writeVerb(const Content& content, const Verb& verb, Insertion& insertVerb)
{
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
}

void writeForms(const Content& content, Output& output)
{
    output.run(kFormsTable);
    HelperTables helpers(content);
    {
        Insertion insertForm(output, kInsertForm);
        for (const auto& verb : content.verbs) {
            std::int64_t order = 0;
            const auto rows = content.conjugator.rows(verb.entry);
            for (const auto& row : rows) {
                insertForm << verb.id << std::string_view(row.pronoun) << std::string_view(row.verb)
                           << conjugator::name(row.tense) << ++order << std::int64_t{row.shown};
                insertForm.run();
                if (order >= kMostRows) {
                    throw std::runtime_error(content.conjugator.headword(verb.entry) +
                                             " has too many forms");
                }
            }
            helpers.add(verb, rows);
        }
    }
    helpers.write(output);
}

void writeVerbs(const Content& content, Output& output)
{
    output.run(kSchema);
    Insertion insertVerb(output, kInsertVerb);
    for (const auto& verb : content.verbs) {
        writeVerb(content, verb, insertVerb);
    }
}

} // namespace

platform::Result<void> writeWords(platform::Database& database)
{
    return lookup::Catalogue::read(database).and_then([&](lookup::Catalogue catalogue) {
        const auto sounds = lookup::packedSounds(catalogue.sounds(database));
        return database
            .executeUpdate(kInsertWords, {lookup::kStoredWords, catalogue.words().packed()})
            .and_then([&] {
                return database.executeUpdate(kInsertWords, {lookup::kStoredSounds, sounds});
            });
    });
}

namespace {

void writeWordsInto(const std::filesystem::path& path)
{
    const auto queue = platform::DatabaseQueue::open(platform::existingFileUrl(path));
    if (!queue) {
        throw std::runtime_error("the database cannot be opened");
    }
    platform::Result<void> written;
    queue->inDatabase([&](platform::Database& database) { written = writeWords(database); });
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
        withFile(temporary, [&](Output& output) {
            output.run(kUnsafeButFast);
            output.run("BEGIN");
            writeVerbs(content, output);
            writeForms(content, output);
            output.run("COMMIT");
        });
        writeWordsInto(temporary);
        // Growing in key order leaves the pages of a table without a rowid
        // an eighth empty.
        withFile(temporary, [](Output& output) { output.run("VACUUM"); });
        std::filesystem::rename(temporary, path);
    } catch (const std::exception& error) {
        std::filesystem::remove(temporary, ignored);
        throw std::runtime_error(path.string() + ": " + error.what());
    }
}

void writeDatabaseWithoutForms(const Content& content, const std::filesystem::path& path)
{
    std::error_code ignored;
    std::filesystem::remove(path, ignored);
    withFile(path, [&](Output& output) {
        output.run(kUnsafeButFast);
        output.run("BEGIN");
        writeVerbs(content, output);
        output.run("COMMIT");
    });
}

} // namespace lumora::verbdb
