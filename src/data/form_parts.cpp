// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "data/form_parts.h"

#include "platform/storage/database.h"

#include <cstddef>
#include <utility>

namespace lumora::data {

namespace {

constexpr std::string_view kSelectParts =
    "SELECT divisions FROM verb_facts JOIN form_divisions ON form_divisions._id = divisionsid "
    "WHERE verbid = ?";

constexpr unsigned kCompound = 1;
constexpr unsigned kFirstEnding = 4;

bool isContinuation(char byte)
{
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

FormParts divided(std::string text, unsigned code)
{
    if (code == kCompound) {
        const auto blank = text.rfind(' ');
        if (blank != std::string::npos) {
            return {FormParts::Kind::Compound, text.substr(0, blank), text.substr(blank + 1)};
        }
    }
    const std::size_t length = code < kFirstEnding ? 0 : (code - kFirstEnding) / 2;
    // A damaged file must not make the cut fall inside a UTF-8 character.
    const bool fits = code >= kFirstEnding && length <= text.size() &&
                      (length == 0 || !isContinuation(text[text.size() - length]));
    if (!fits) {
        return {FormParts::Kind::Irregular, std::move(text), {}};
    }
    const auto stem = text.size() - length;
    return {(code - kFirstEnding) % 2 == 0 ? FormParts::Kind::Regular
                                           : FormParts::Kind::ChangedStem,
            text.substr(0, stem), text.substr(stem)};
}

} // namespace

std::string FormParts::text() const
{
    return stem + (kind == Kind::Compound ? " " : "") + ending;
}

FormDivisions::FormDivisions(std::string_view packed)
{
    while (!packed.empty()) {
        const auto end = packed.find('\0');
        rows_.emplace_back(packed.substr(0, end));
        packed.remove_prefix(end == std::string_view::npos ? packed.size() : end + 1);
    }
}

std::vector<FormParts> FormDivisions::parts(const Conjugation& row) const
{
    const bool known = row.order >= 1 && static_cast<std::uint64_t>(row.order) <= rows_.size();
    const auto codes = known ? rows_[static_cast<std::size_t>(row.order) - 1] : std::string{};
    std::vector<FormParts> result;
    for (auto& spelling : spellingsOf(row.verb)) {
        const auto at = result.size();
        const unsigned code = at < codes.size() ? static_cast<unsigned char>(codes[at]) : 0;
        result.push_back(divided(std::move(spelling), code));
    }
    return result;
}

platform::Result<FormDivisions> readFormDivisions(platform::Database& database, std::int64_t verbId)
{
    auto rows = database.executeQuery(kSelectParts, {verbId});
    if (!rows) {
        return tl::unexpected(rows.error());
    }
    if (!rows->next()) {
        if (rows->failed()) {
            return tl::unexpected(database.lastError());
        }
        return FormDivisions{};
    }
    return FormDivisions{rows->stringForColumn(rows->columnIndex("divisions"))};
}

std::vector<std::string> spellingsOf(std::string_view form)
{
    constexpr std::string_view kBetween = ", ";

    std::vector<std::string> spellings;
    for (;;) {
        const auto end = form.find(kBetween);
        spellings.emplace_back(form.substr(0, end));
        if (end == std::string_view::npos) {
            return spellings;
        }
        form.remove_prefix(end + kBetween.size());
    }
}

} // namespace lumora::data
