// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/text_table.h"

#include "text/text.h"

#include <fstream>
#include <iterator>

namespace lumora::conjugator {

namespace {

std::string listed(const std::vector<std::string>& names)
{
    std::string text;
    for (const auto& name : names) {
        text += (text.empty() ? "" : ", ") + name;
    }
    return text;
}

} // namespace

TableError::TableError(const std::string& file, std::size_t line, const std::string& reason)
    : std::runtime_error(file + ":" + std::to_string(line) + ": " + reason)
{}

TextTable TextTable::read(const std::filesystem::path& path, const std::vector<std::string>& header)
{
    std::ifstream stream(path, std::ios::binary);
    if (!stream) {
        throw TableError(path.string(), 1, "the file cannot be read");
    }
    const std::string text{std::istreambuf_iterator<char>(stream), {}};
    return parse(text, path.string(), header);
}

TextTable TextTable::parse(std::string_view text, const std::string& file,
                           const std::vector<std::string>& header)
{
    TextTable table;
    table.file_ = file;
    if (text.empty()) {
        throw TableError(file, 1, "the file is empty");
    }
    if (text.back() == '\n') {
        text.remove_suffix(1);
    }

    bool headerSeen = false;
    std::size_t number = 0;
    for (const auto& line : split(text, "\n")) {
        ++number;
        if (!text::isWellFormed(line)) {
            throw TableError(file, number, "not valid UTF-8");
        }
        if (!text::isComposed(line)) {
            throw TableError(file, number, "not composed Unicode (NFC)");
        }
        if (line.find("\u2019") != std::string::npos) {
            throw TableError(file, number, "typographic apostrophe");
        }
        if (line.starts_with('#')) {
            continue;
        }
        Record record{number, split(line, "\t")};
        if (!headerSeen) {
            if (record.fields != header) {
                throw TableError(file, number, "the header must be " + listed(header));
            }
            headerSeen = true;
            continue;
        }
        if (record.fields.size() != header.size()) {
            table.refuse(record, "expected " + std::to_string(header.size()) + " columns, found " +
                                     std::to_string(record.fields.size()));
        }
        table.records_.push_back(std::move(record));
    }
    if (!headerSeen) {
        throw TableError(file, number, "the header must be " + listed(header));
    }
    return table;
}

void TextTable::refuse(const Record& record, const std::string& reason) const
{
    throw TableError(file_, record.line, reason);
}

std::vector<std::string> split(std::string_view text, std::string_view separator)
{
    std::vector<std::string> pieces;
    for (;;) {
        const auto at = text.find(separator);
        pieces.emplace_back(text.substr(0, at));
        if (at == std::string_view::npos) {
            return pieces;
        }
        text.remove_prefix(at + separator.size());
    }
}

} // namespace lumora::conjugator
