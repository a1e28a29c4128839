// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::conjugator {

/// A mistake in a table; the message is "file:line: reason".
class TableError : public std::runtime_error {
public:
    TableError(const std::string& file, std::size_t line, const std::string& reason);
};

/// A text table as a person writes it: a header, one record a line, columns
/// divided by tabs, lines beginning with # for the reader alone.
///
/// Reading refuses text that would spoil the database: what is not UTF-8, not
/// composed, or has a typographic apostrophe.
class TextTable {
public:
    struct Record {
        std::size_t line = 0;
        std::vector<std::string> fields;
    };

    static TextTable read(const std::filesystem::path& path,
                          const std::vector<std::string>& header);
    static TextTable parse(std::string_view text, const std::string& file,
                           const std::vector<std::string>& header);

    const std::string& file() const { return file_; }
    const std::vector<Record>& records() const { return records_; }

    [[noreturn]] void refuse(const Record& record, const std::string& reason) const;

private:
    std::string file_;
    std::vector<Record> records_;
};

/// "a,b" at "," is {"a", "b"}; empty pieces are kept.
std::vector<std::string> split(std::string_view text, std::string_view separator);

} // namespace lumora::conjugator
