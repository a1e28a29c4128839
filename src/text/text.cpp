// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "text/text.h"

#include <fmt/format.h>
#include <unicode/locid.h>
#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>
#include <unicode/ustring.h>

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

namespace lumora::text {

namespace {

bool isAscii(std::string_view text)
{
    return std::all_of(text.begin(), text.end(),
                       [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
}

/// Of ASCII alone, which is most of what the tables hold.
std::string asciiLowerCased(std::string_view text)
{
    std::string result(text);
    for (char& byte : result) {
        if (byte >= 'A' && byte <= 'Z') {
            byte = static_cast<char>(byte - 'A' + 'a');
        }
    }
    return result;
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

std::size_t columnsOf(UChar32 character)
{
    const auto category = u_charType(character);
    if (category == U_NON_SPACING_MARK || category == U_ENCLOSING_MARK ||
        category == U_FORMAT_CHAR) {
        return 0;
    }
    const int width = u_getIntPropertyValue(character, UCHAR_EAST_ASIAN_WIDTH);
    return width == U_EA_WIDE || width == U_EA_FULLWIDTH ? 2 : 1;
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

std::string lowerCased(std::string_view text)
{
    if (isAscii(text)) {
        return asciiLowerCased(text);
    }
    return encoded(decoded(text).toLower(icu::Locale::getRoot()));
}

std::string withoutLigatures(std::string text)
{
    return replaced(replaced(std::move(text), "œ", "oe"), "æ", "ae");
}

std::string folded(std::string_view text)
{
    if (isAscii(text)) {
        return asciiLowerCased(text);
    }
    // Full case folding, not lower case: it opens ß to ss as well.
    auto whole = decoded(text).foldCase();
    UErrorCode status = U_ZERO_ERROR;
    const auto* const normalizer = icu::Normalizer2::getNFDInstance(status);
    if (U_SUCCESS(status) != 0) {
        whole = normalizer->normalize(icu::UnicodeString(whole), status);
    }
    icu::UnicodeString plain;
    for (std::int32_t at = 0; at < whole.length(); at = whole.moveIndex32(at, 1)) {
        const auto character = whole.char32At(at);
        if (u_charType(character) != U_NON_SPACING_MARK) {
            plain.append(character);
        }
    }
    return withoutLigatures(encoded(plain));
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

bool isWellFormed(std::string_view text)
{
    UErrorCode status = U_ZERO_ERROR;
    u_strFromUTF8(nullptr, 0, nullptr, text.data(), static_cast<std::int32_t>(text.size()),
                  &status);
    return status != U_INVALID_CHAR_FOUND;
}

bool isComposed(std::string_view text)
{
    UErrorCode status = U_ZERO_ERROR;
    const auto* const normalizer = icu::Normalizer2::getNFCInstance(status);
    return U_SUCCESS(status) != 0 &&
           normalizer->isNormalizedUTF8({text.data(), static_cast<std::int32_t>(text.size())},
                                        status) != 0;
}

std::u32string characters(std::string_view text)
{
    const auto whole = decoded(text);
    std::u32string result;
    for (std::int32_t at = 0; at < whole.length(); at = whole.moveIndex32(at, 1)) {
        result += static_cast<char32_t>(whole.char32At(at));
    }
    return result;
}

std::size_t columns(std::string_view text)
{
    std::size_t sum = 0;
    for (const auto character : characters(text)) {
        sum += columnsOf(static_cast<UChar32>(character));
    }
    return sum;
}

std::string trimmed(std::string_view text)
{
    return encoded(decoded(text).trim());
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

} // namespace lumora::text
