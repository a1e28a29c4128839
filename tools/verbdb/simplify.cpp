// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/simplify.h"

#include "verbdb/senses.h"

#include <unicode/normalizer2.h>
#include <unicode/uchar.h>
#include <unicode/unistr.h>

#include <stdexcept>

namespace lumora::verbdb {

namespace {

std::string folded(std::string_view text)
{
    UErrorCode error = U_ZERO_ERROR;
    const auto* nfd = icu::Normalizer2::getNFDInstance(error);
    const auto whole = icu::UnicodeString::fromUTF8(
        icu::StringPiece(text.data(), static_cast<int32_t>(text.size())));
    // Full case folding, not lower case: it opens ß to ss as well.
    const auto decomposed = nfd->normalize(icu::UnicodeString(whole).foldCase(), error);
    if (U_FAILURE(error)) {
        throw std::runtime_error(u_errorName(error));
    }

    icu::UnicodeString plain;
    for (int32_t at = 0; at < decomposed.length(); at = decomposed.moveIndex32(at, 1)) {
        const auto c = decomposed.char32At(at);
        if (c == U'œ') {
            plain.append(u"oe", 2);
        } else if (c == U'æ') {
            plain.append(u"ae", 2);
        } else if (u_charType(c) != U_NON_SPACING_MARK) {
            plain.append(c);
        }
    }
    std::string result;
    plain.toUTF8String(result);
    return result;
}

} // namespace

std::string simplified(std::string_view text)
{
    std::string result;
    for (const auto& sense : sensesOf(text)) {
        result += (result.empty() ? "" : ", ") + folded(withoutBrackets(sense));
    }
    return result;
}

} // namespace lumora::verbdb
