// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/deep_link.h"

#include "text/text.h"

#include <algorithm>
#include <charconv>
#include <cstddef>

namespace lumora::app {

namespace {

constexpr std::string_view kScheme = "lumora:";
constexpr std::string_view kVerbPath = "lumora://verb/";

bool startsWithAnyCase(std::string_view text, std::string_view lowerCaseStart)
{
    const auto lower = [](char c) {
        return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c;
    };
    return text.size() >= lowerCaseStart.size() &&
           std::equal(lowerCaseStart.begin(), lowerCaseStart.end(), text.begin(),
                      [&](char expected, char c) { return lower(c) == expected; });
}

std::optional<std::string> percentDecoded(std::string_view text)
{
    std::string decoded;
    for (std::size_t at = 0; at < text.size(); ++at) {
        if (text[at] != '%') {
            decoded += text[at];
            continue;
        }
        const auto digits = text.substr(at + 1, 2);
        unsigned char byte = 0;
        const auto read = std::from_chars(digits.data(), digits.data() + digits.size(), byte, 16);
        if (digits.size() != 2 || read.ptr != digits.data() + digits.size()) {
            return std::nullopt;
        }
        decoded += static_cast<char>(byte);
        at += 2;
    }
    return decoded;
}

bool hasControlCharacter(std::string_view text)
{
    return std::any_of(text.begin(), text.end(), [](char c) {
        const auto byte = static_cast<unsigned char>(c);
        return byte < 0x20 || byte == 0x7f;
    });
}

} // namespace

std::optional<DeepLink> DeepLink::parse(std::string_view link)
{
    if (!startsWithAnyCase(link, kVerbPath)) {
        return std::nullopt;
    }
    auto name = link.substr(kVerbPath.size());
    name = name.substr(0, name.find_first_of("?#"));
    if (name.ends_with('/')) {
        name.remove_suffix(1);
    }
    if (name.find('/') != std::string_view::npos) {
        return std::nullopt;
    }
    const auto decoded = percentDecoded(name);
    if (!decoded || decoded->find_first_not_of(' ') == std::string::npos ||
        hasControlCharacter(*decoded) || text::wellFormed(*decoded) != *decoded) {
        return std::nullopt;
    }
    return DeepLink{text::composed(*decoded)};
}

bool isDeepLink(std::string_view text)
{
    return startsWithAnyCase(text, kScheme);
}

} // namespace lumora::app
