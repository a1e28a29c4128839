// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/helper_filling.h"

#include "platform/machine/crash_reporter.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/transaction.h"
#include "verbdb/database_writer.h"
#include "verbdb/helper_tables.h"
#include "verbdb/sql_output.h"
#include "web/content_source.h"

#include <exception>
#include <string>

namespace lumora::web {

namespace {

constexpr std::size_t kVerbsAStep = 200;

platform::Result<void> writeTables(platform::Database& database, const verbdb::HelperTables& tables)
{
    auto transaction = platform::Transaction::begin(database);
    if (!transaction) {
        return tl::unexpected(transaction.error());
    }
    try {
        verbdb::Output output{database.handle()};
        tables.write(output);
    } catch (const std::exception& error) {
        return tl::unexpected(platform::Error{error.what(), 1});
    }
    return verbdb::writeWords(database).and_then([&] { return transaction->commit(); });
}

} // namespace

HelperFilling::HelperFilling(ContentSource& source, platform::DatabaseQueue* queue,
                             platform::CrashReporter& crashReporter)
    : source_{source}, queue_{queue}, crashReporter_{crashReporter}, done_{isFilled()}
{}

HelperFilling::~HelperFilling() = default;

bool HelperFilling::isFilled() const
{
    bool filled = queue_ == nullptr;
    if (queue_ != nullptr) {
        queue_->inDatabase([&](platform::Database& database) {
            auto rows = database.executeQuery("SELECT 1 FROM word_index LIMIT 1", {});
            filled = !rows || rows->next() || rows->failed();
        });
    }
    return filled;
}

void HelperFilling::step()
{
    const auto* content = done_ ? nullptr : source_.get();
    if (content == nullptr) {
        done_ = true;
        return;
    }
    if (!tables_) {
        tables_ = std::make_unique<verbdb::HelperTables>(*content);
    }
    for (std::size_t left = kVerbsAStep; left > 0 && next_ < content->verbs.size(); --left) {
        const auto& verb = content->verbs[next_++];
        tables_->add(verb, content->conjugator.rows(verb.entry));
    }
    if (next_ == content->verbs.size()) {
        write();
    }
}

void HelperFilling::write()
{
    queue_->inDatabase([&](platform::Database& database) {
        // Without the tables the answers are the same, but slower.
        if (const auto written = writeTables(database, *tables_); !written) {
            crashReporter_.logWithFormat("Unable to fill the helper tables: %@ (%d)",
                                         {written.error().message, written.error().code});
        }
    });
    tables_.reset();
    done_ = true;
}

void HelperFilling::finish()
{
    while (!done_) {
        step();
    }
}

} // namespace lumora::web
