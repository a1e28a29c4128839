// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "backup/backup.h"

#include "backup/backup_document.h"
#include "data/history_record.h"
#include "platform/files/atomic_file.h"
#include "platform/machine/clock.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/transaction.h"
#include "text/text.h"

#include <algorithm>
#include <cmath>
#include <map>
#include <optional>
#include <set>
#include <system_error>
#include <utility>
#include <vector>

namespace lumora::backup {

namespace {

using platform::Database;
using platform::ResultSet;

/// Three times what a backup takes in which every verb is a favourite.
constexpr std::uintmax_t kLargestFile = std::uintmax_t{4} * 1024 * 1024;
/// Times are written in milliseconds; a smaller difference does not count.
constexpr double kTimeTolerance = 0.001;

Failure databaseFailure(const platform::Error& error)
{
    return {Problem::Database, error.message};
}

/// Runs the statement and hands `take` each row.
template <typename Take>
platform::Result<void> forEachRow(Database& database, std::string_view sql, Take take)
{
    auto rows = database.executeQuery(sql, {});
    if (!rows) {
        return tl::unexpected(rows.error());
    }
    while (rows->next()) {
        take(*rows);
    }
    if (rows->failed()) {
        return tl::unexpected(database.lastError());
    }
    return {};
}

platform::Result<BackupDocument> readDocument(Database& database)
{
    BackupDocument document;
    const auto verbOf = [](const ResultSet& row) {
        return SavedVerb{row.longForColumn(0), row.stringForColumn(1)};
    };
    return forEachRow(database,
                      "SELECT verb._id, french FROM favourite INNER JOIN verb "
                      "ON favourite.verbid = verb._id GROUP BY verb._id ORDER BY favourite._id",
                      [&](const ResultSet& row) { document.favourites.push_back(verbOf(row)); })
        .and_then([&] {
            return forEachRow(
                database,
                "SELECT verb._id, french, MAX(timestamp) AS latest FROM history "
                "INNER JOIN verb ON history.verbid = verb._id GROUP BY verb._id "
                "ORDER BY latest DESC",
                [&](const ResultSet& row) {
                    document.history.push_back(
                        {verbOf(row), row.doubleForColumn(2) + platform::kReferenceDate});
                });
        })
        .map([&] { return std::move(document); });
}

/// The database's verbs, as a backup names them.
class VerbIndex {
public:
    static platform::Result<VerbIndex> read(Database& database)
    {
        VerbIndex index;
        return forEachRow(database, "SELECT _id, french FROM verb ORDER BY _id",
                          [&](const ResultSet& row) {
                              const auto id = row.longForColumn(0);
                              auto french = text::composed(row.stringForColumn(1));
                              // Of two homographs the first: one has to be it.
                              index.byFrench_.emplace(french, id);
                              index.frenchOf_.emplace(id, std::move(french));
                          })
            .map([&] { return std::move(index); });
    }

    std::optional<std::int64_t> find(const SavedVerb& verb) const
    {
        const auto french = text::composed(verb.french);
        if (verb.id) {
            const auto known = frenchOf_.find(*verb.id);
            if (known != frenchOf_.end() && known->second == french) {
                return verb.id;
            }
        }
        const auto found = byFrench_.find(french);
        return found == byFrench_.end() ? std::nullopt : std::optional{found->second};
    }

private:
    std::map<std::int64_t, std::string> frenchOf_;
    std::map<std::string, std::int64_t> byFrench_;
};

/// Puts a document into the database, within a transaction of the caller's.
class Merge {
public:
    Merge(Database& database, const BackupDocument& document, double now)
        : database_{database}, document_{document}, now_{now - platform::kReferenceDate}
    {
        counts_.unknown = document.unreadable;
    }

    platform::Result<RestoredCounts> run()
    {
        return VerbIndex::read(database_)
            .and_then([this](const VerbIndex& verbs) {
                return addFavourites(verbs).and_then([&] { return addViews(verbs); });
            })
            .and_then([this] { return data::trimHistory(database_); })
            .and_then([this] { return countViews(); })
            .map([this] { return counts_; });
    }

private:
    struct View {
        double time = 0;
        /// The time lay in the future, so the clock was wrong: the true time of
        /// the view is not known.
        bool isAhead = false;
    };

    platform::Result<void> addFavourites(const VerbIndex& verbs)
    {
        std::set<std::int64_t> known;
        auto done = forEachRow(database_, "SELECT verbid FROM favourite",
                               [&](const ResultSet& row) { known.insert(row.longForColumn(0)); });
        for (const auto& favourite : document_.favourites) {
            if (!done) {
                break;
            }
            const auto id = verbs.find(favourite);
            if (!id) {
                ++counts_.unknown;
            } else if (known.insert(*id).second) {
                done = database_.executeUpdate("INSERT INTO favourite(verbid) VALUES(?)", {*id});
                counts_.favourites.push_back(*id);
            }
        }
        return done;
    }

    platform::Result<void> addViews(const VerbIndex& verbs)
    {
        collectViews(verbs);
        setTimesApart();
        auto done = forEachRow(
            database_, "SELECT verbid, timestamp FROM history", [this](const ResultSet& row) {
                const auto view = views_.find(row.longForColumn(0));
                if (view != views_.end() &&
                    (view->second.isAhead ||
                     view->second.time <= row.doubleForColumn(1) + kTimeTolerance)) {
                    views_.erase(view);
                }
            });
        for (const auto& [verb, view] : views_) {
            if (done) {
                done = database_.executeUpdate("DELETE FROM history WHERE verbid=?", {verb});
            }
            if (done) {
                done = database_.executeUpdate(
                    "INSERT INTO history(verbid, timestamp) VALUES(?, ?)", {verb, view.time});
            }
        }
        return done;
    }

    void collectViews(const VerbIndex& verbs)
    {
        for (const auto& [verb, viewed] : document_.history) {
            if (const auto id = verbs.find(verb)) {
                const double time = viewed - platform::kReferenceDate;
                const auto [view, isFirst] = views_.emplace(*id, View{time});
                view->second.time = std::max(view->second.time, time);
            } else {
                ++counts_.unknown;
            }
        }
    }

    /// Gives every view a time of its own, none in the future. The history is
    /// cut at a time: rows of one time would all go together, and an update
    /// rounds times to whole seconds. A time in the future would keep its verb
    /// on top.
    void setTimesApart()
    {
        std::vector<View*> newestFirst;
        newestFirst.reserve(views_.size());
        for (auto& [verb, view] : views_) {
            newestFirst.push_back(&view);
        }
        std::sort(newestFirst.begin(), newestFirst.end(),
                  [](const View* left, const View* right) { return left->time > right->time; });
        bool isAhead = true;
        double latest = now_;
        for (View* view : newestFirst) {
            isAhead = isAhead && view->time > latest;
            view->isAhead = isAhead;
            view->time = std::min(view->time, latest);
            latest = std::floor(view->time) - kTimeTolerance;
        }
    }

    /// Counts the views that are still there after the history was cut.
    platform::Result<void> countViews()
    {
        return forEachRow(database_, "SELECT verbid FROM history", [this](const ResultSet& row) {
            counts_.history += static_cast<int>(views_.contains(row.longForColumn(0)));
        });
    }

    Database& database_;
    const BackupDocument& document_;
    /// Seconds since 2001-01-01 00:00:00 UTC, as the history counts.
    double now_;
    RestoredCounts counts_;
    /// By verb, the views that the history lacks.
    std::map<std::int64_t, View> views_;
};

platform::Result<RestoredCounts> merge(Database& database, const BackupDocument& document,
                                       double now)
{
    auto transaction = platform::Transaction::begin(database);
    if (!transaction) {
        return tl::unexpected(transaction.error());
    }
    auto counts = Merge{database, document, now}.run();
    if (!counts) {
        return counts;
    }
    return transaction->commit().map([&] { return *counts; });
}

/// A device or a pipe must not be replaced by a file.
bool mayBeReplaced(const std::filesystem::path& file)
{
    std::error_code error;
    const auto status = std::filesystem::status(file, error);
    return !std::filesystem::exists(status) || std::filesystem::is_regular_file(status);
}

} // namespace

tl::expected<SavedCounts, Failure> saveBackup(platform::DatabaseQueue& queue,
                                              const std::filesystem::path& file, double now)
{
    if (!mayBeReplaced(file)) {
        return tl::unexpected(Failure{Problem::FileNotWritten, file.string() + ": not a file"});
    }
    platform::Result<BackupDocument> document;
    queue.inDatabase([&](Database& database) { document = readDocument(database); });
    if (!document) {
        return tl::unexpected(databaseFailure(document.error()));
    }
    // What a link leads to is replaced, not the link.
    std::error_code isNew;
    const auto target = std::filesystem::canonical(file, isNew);
    const auto written =
        platform::writeFileAtomically(isNew ? file : target, textOf(*document, now));
    if (!written) {
        return tl::unexpected(Failure{Problem::FileNotWritten, written.error().message});
    }
    return SavedCounts{static_cast<int>(document->favourites.size()),
                       static_cast<int>(document->history.size())};
}

tl::expected<RestoredCounts, Failure> restoreBackup(platform::DatabaseQueue& queue,
                                                    const std::filesystem::path& file, double now)
{
    const auto text = platform::readFile(file, kLargestFile);
    if (!text) {
        return tl::unexpected(Failure{Problem::FileNotRead, text.error().message});
    }
    const auto document = parseDocument(*text);
    if (!document) {
        return tl::unexpected(Failure{document.error() == DocumentProblem::FromNewerVersion
                                          ? Problem::FromNewerVersion
                                          : Problem::NotABackup,
                                      {}});
    }
    platform::Result<RestoredCounts> counts;
    queue.inDatabase([&](Database& database) { counts = merge(database, *document, now); });
    return counts.map_error(databaseFailure);
}

} // namespace lumora::backup
