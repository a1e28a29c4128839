// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <memory>

namespace lumora::platform {
class CrashReporter;
class DatabaseQueue;
} // namespace lumora::platform

namespace lumora::verbdb {
class HelperTables;
}

namespace lumora::web {

class ContentSource;

/// Fills the helper tables of a database that was made here, after the first list is
/// shown: in small steps, so that the person need not wait. They are written at the end,
/// all together.
class HelperFilling {
public:
    /// What is passed must outlive the object; the queue may be null.
    HelperFilling(ContentSource& source, platform::DatabaseQueue* queue,
                  platform::CrashReporter& crashReporter);
    ~HelperFilling();

    bool isDone() const { return done_; }
    /// A few verbs more, and after the last of them the writing.
    void step();
    /// Does all that is left at once, for whoever needs the tables now.
    void finish();

private:
    bool isFilled() const;
    void write();

    ContentSource& source_;
    platform::DatabaseQueue* queue_;
    platform::CrashReporter& crashReporter_;
    std::unique_ptr<verbdb::HelperTables> tables_;
    std::size_t next_ = 0;
    bool done_;
};

} // namespace lumora::web
