// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/text.h"

#include <fmt/format.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/unistr.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>

namespace lumora::platform {

namespace {

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// Well-formed and below U+0300, where the combining marks begin: composed as
/// it stands. Nearly every French text.
bool isPlainLatin(std::string_view text)
{
    for (std::size_t place = 0; place < text.size(); ++place) {
        const auto lead = static_cast<unsigned char>(text[place]);
        if (lead < 0x80) {
            continue;
        }
        if (lead < 0xC2 || lead > 0xCB || ++place == text.size() ||
            (static_cast<unsigned char>(text[place]) & 0xC0U) != 0x80) {
            return false;
        }
    }
    return true;
}

icu::UnicodeString decoded(std::string_view text)
{
    return icu::UnicodeString::fromUTF8(
        icu::StringPiece(text.data(), static_cast<std::int32_t>(text.size())));
}

std::string encoded(const icu::UnicodeString& text)
{
    std::string result;
    text.toUTF8String(result);
    return result;
}

} // namespace

std::string upperCased(std::string_view text)
{
    if (isAscii(text)) {
        std::string result(text);
        for (char& byte : result) {
            if (byte >= 'a' && byte <= 'z') {
                byte = static_cast<char>(byte - 'a' + 'A');
            }
        }
        return result;
    }
    return encoded(decoded(text).toUpper(icu::Locale::getRoot()));
}

std::string composed(std::string_view text)
{
    if (isPlainLatin(text)) {
        return std::string(text);
    }
    UErrorCode status = U_ZERO_ERROR;
    const icu::Normalizer2* const normalizer = icu::Normalizer2::getNFCInstance(status);
    if (U_FAILURE(status)) {
        return wellFormed(text);
    }
    const icu::UnicodeString source = decoded(text);
    icu::UnicodeString result = normalizer->normalize(source, status);
    return encoded(U_FAILURE(status) ? source : result);
}

bool scalarLess(std::string_view left, std::string_view right)
{
    // The order of UTF-8 bytes is the order of scalar values.
    if (isPlainLatin(left) && isPlainLatin(right)) {
        return left < right;
    }
    return composed(left) < composed(right);
}

std::size_t characterCount(std::string_view text)
{
    return static_cast<std::size_t>(std::count_if(text.begin(), text.end(), [](char byte) {
        return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80;
    }));
}

std::string wellFormed(std::string_view text)
{
    return isPlainLatin(text) ? std::string(text) : encoded(decoded(text));
}

std::string replaced(std::string text, std::string_view what, std::string_view by)
{
    for (auto at = text.find(what); at != std::string::npos; at = text.find(what, at + by.size())) {
        text.replace(at, what.size(), by);
    }
    return text;
}

std::string formatted(std::string_view format, const std::vector<FormatArgument>& arguments)
{
    std::string line;
    auto argument = arguments.begin();
    for (std::size_t place = 0; place < format.size(); ++place) {
        const std::string_view placeholder = format.substr(place, 2);
        if (argument != arguments.end() && (placeholder == "%@" || placeholder == "%d")) {
            std::visit([&line](const auto& value) { line += fmt::format("{}", value); },
                       *argument++);
            ++place;
        } else {
            line += format[place];
        }
    }
    return line;
}

} // namespace lumora::platform
