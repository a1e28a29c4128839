// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/models/line_style_value.h"

#include "qt/base/text_conversion.h"

namespace lumora::qt {

namespace {

struct Tags {
    const char* before;
    const char* after;
};

Tags tagsOf(platform::RunStyle style)
{
    using platform::RunStyle;
    switch (style) {
    case RunStyle::Light:
        return {"<font color=\"light\">", "</font>"};
    case RunStyle::Strong:
        return {"<b>", "</b>"};
    case RunStyle::Accent:
        return {"<font color=\"accent\"><b>", "</b></font>"};
    case RunStyle::Underlined:
        return {"<u>", "</u>"};
    case RunStyle::Plain:
        break;
    }
    return {"", ""};
}

/// A long form with a space goes on below there only: not at a hyphen, nor
/// between the brackets of "allé(e)(s)".
QString withBreaks(const std::string& part, bool atSpaces)
{
    auto text = toQString(part);
    return !atSpaces ? text
                     : text.replace(u'-', QChar{0x2011})
                           .replace(QStringLiteral(")("), QStringLiteral(")\u2060("));
}

} // namespace

LineStyleValue toValue(const platform::LineStyle& lineStyle, const std::string& text)
{
    LineStyleValue value{{},
                         toQString(lineStyle.hint),
                         toQString(lineStyle.caption),
                         toQString(lineStyle.accessibilityHint),
                         lineStyle.joined};
    const bool atSpaces = text.find(' ') != std::string::npos;
    for (const auto& run : lineStyle.runs) {
        const auto [before, after] = tagsOf(run.style);
        value.markup += QLatin1String{before} + withBreaks(run.text, atSpaces).toHtmlEscaped() +
                        QLatin1String{after};
    }
    if (lineStyle.runs.empty()) {
        value.markup = withBreaks(text, atSpaces).toHtmlEscaped();
    }
    return value;
}

} // namespace lumora::qt
