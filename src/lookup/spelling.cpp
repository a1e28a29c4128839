// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookup/spelling.h"

#include "text/text.h"

#include <array>
#include <cstddef>
#include <utility>

namespace lumora::lookup {

namespace {

/// The letters from U+00E0 to U+00FF without their accents; 0 where text::folded must
/// decide.
constexpr std::array<char, 32> kPlain{'a', 'a', 'a', 'a', 'a', 'a', 0,   'c', 'e', 'e', 'e',
                                      'e', 'i', 'i', 'i', 'i', 0,   'n', 'o', 'o', 'o', 'o',
                                      'o', 0,   0,   'u', 'u', 'u', 'u', 'y', 0,   'y'};

constexpr unsigned kFirstPlain = 0xA0;

bool isAscii(char byte)
{
    return static_cast<unsigned char>(byte) < 0x80;
}

bool isUpper(char byte)
{
    return byte >= 'A' && byte <= 'Z';
}

constexpr std::pair<std::string_view, std::string_view> kSameSigns[] = {
    {"\u2019", "'"}, {"\u2018", "'"}, {"\u02BC", "'"}, {"\u00B4", "'"}, {"`", "'"},
    {"\u2010", "-"}, {"\u2011", "-"}, {"\u2012", "-"}, {"\u2013", "-"}, {"\u2014", "-"},
    {"\u2212", "-"}, {"\u00A0", " "}, {"\u202F", " "}, {"\u2009", " "}, {"\u00AB", " "},
    {"\u00BB", " "}, {"\u201C", " "}, {"\u201D", " "}, {"\u2026", " "}, {"\u00AD", ""},
    {"\u200B", ""},  {"\t", " "},     {"\n", " "},     {"\r", " "},
};

std::string withOneBlank(std::string_view text)
{
    std::string result;
    for (const char c : text) {
        if (c != ' ' || (!result.empty() && result.back() != ' ')) {
            result += c;
        }
    }
    return result;
}

} // namespace

std::string tidied(std::string_view text)
{
    auto tidy = text::lowerCased(text::composed(text));
    for (const auto& [sign, plain] : kSameSigns) {
        if (tidy.find(sign) != std::string::npos) {
            tidy = text::replaced(std::move(tidy), sign, plain);
        }
    }
    tidy = withOneBlank(tidy);
    constexpr auto kOutside = " .,;:!?\"-";
    const auto begin = tidy.find_first_not_of(kOutside);
    if (begin == std::string::npos) {
        return {};
    }
    return tidy.substr(begin, tidy.find_last_not_of(kOutside) + 1 - begin);
}

std::string foldedWord(std::string_view tidy)
{
    std::string result;
    result.reserve(tidy.size());
    for (std::size_t i = 0; i < tidy.size(); ++i) {
        if (isAscii(tidy[i])) {
            if (isUpper(tidy[i])) {
                return text::folded(tidy);
            }
            result += tidy[i];
            continue;
        }
        const unsigned next = i + 1 < tidy.size() ? static_cast<unsigned char>(tidy[i + 1]) : 0;
        const char plain = tidy[i] == '\xC3' && next >= kFirstPlain && next < kFirstPlain + 32
                               ? kPlain[next - kFirstPlain]
                               : '\0';
        if (plain == '\0') {
            return text::folded(tidy);
        }
        result += plain;
        ++i;
    }
    return result;
}

std::string withoutAgreement(std::string_view form)
{
    std::string result;
    while (!form.empty()) {
        const auto open = form.find('(');
        result += form.substr(0, open);
        const auto close = form.find(')', open == std::string_view::npos ? form.size() : open);
        form.remove_prefix(close == std::string_view::npos ? form.size() : close + 1);
    }
    return result;
}

std::string withoutPronouns(std::string_view form)
{
    for (const std::string_view lead : {"s'en ", "se ", "s'"}) {
        if (form.size() > lead.size() && form.substr(0, lead.size()) == lead) {
            form.remove_prefix(lead.size());
            break;
        }
    }
    for (const std::string_view tail :
         {"-t'en", "-nous-en", "-vous-en", "-toi", "-nous", "-vous"}) {
        if (form.size() > tail.size() && form.substr(form.size() - tail.size()) == tail) {
            form.remove_suffix(tail.size());
            break;
        }
    }
    return std::string{form};
}

} // namespace lumora::lookup
