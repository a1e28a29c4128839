// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/form_search/quick_like.h"

#include "platform/form_search/packed_pattern.h"
#include "platform/form_search/resident_table.h"

#include <sqlite3.h>

#include <new>
#include <string_view>

namespace lumora::platform {

namespace {

/// Whether it is a blob, and SQLite made so that no blob is like anything.
bool isUnlikeAll(int type)
{
    return type == SQLITE_BLOB && sqlite3_compileoption_used("LIKE_DOESNT_MATCH_BLOBS") != 0;
}

/// LIKE looks no further than the first NUL.
std::string_view textOf(sqlite3_value* value)
{
    const auto* const text = reinterpret_cast<const char*>(sqlite3_value_text(value));
    if (text == nullptr) {
        throw std::bad_alloc();
    }
    return text;
}

/// The first argument; null after an answer that depends on nothing else.
const PackedPattern* patternOf(sqlite3_context* context, sqlite3_value* value)
{
    // SQLite keeps it for as long as the pattern stays the same.
    if (const void* kept = sqlite3_get_auxdata(context, 0)) {
        return static_cast<const PackedPattern*>(kept);
    }
    if (isUnlikeAll(sqlite3_value_type(value))) {
        sqlite3_result_int(context, 0);
        return nullptr;
    }
    if (sqlite3_value_bytes(value) >
        sqlite3_limit(sqlite3_context_db_handle(context), SQLITE_LIMIT_LIKE_PATTERN_LENGTH, -1)) {
        sqlite3_result_error(context, "LIKE or GLOB pattern too complex", -1);
        return nullptr;
    }
    if (sqlite3_value_type(value) == SQLITE_NULL) {
        return nullptr;
    }
    auto* const made = new PackedPattern(textOf(value));
    sqlite3_set_auxdata(context, 0, made,
                        [](void* pattern) { delete static_cast<PackedPattern*>(pattern); });
    // Gone already if there was no memory to keep it.
    const void* const kept = sqlite3_get_auxdata(context, 0);
    if (kept == nullptr) {
        throw std::bad_alloc();
    }
    return static_cast<const PackedPattern*>(kept);
}

void like(sqlite3_context* context, int /*count*/, sqlite3_value** values)
{
    const int type = sqlite3_value_type(values[1]);
    if (isUnlikeAll(type)) {
        sqlite3_result_int(context, 0);
        return;
    }
    try {
        const PackedPattern* const pattern = patternOf(context, values[0]);
        if (pattern == nullptr) {
            return;
        }
        if (type != SQLITE_NULL) {
            sqlite3_result_int(context, pattern->matches(textOf(values[1])) ? 1 : 0);
        } else if (const auto* const packed = pointedCell(values[1])) {
            sqlite3_result_int(context, pattern->matchesAny(*packed) ? 1 : 0);
        }
    } catch (const std::bad_alloc&) {
        sqlite3_result_error_nomem(context);
    }
}

} // namespace

void registerQuickLike(sqlite3* connection)
{
    sqlite3_create_function_v2(connection, "like", 2, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                               like, nullptr, nullptr, nullptr);
}

} // namespace lumora::platform
