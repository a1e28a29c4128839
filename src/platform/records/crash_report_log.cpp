// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/records/crash_report_log.h"

#include "platform/files/atomic_file.h"
#include "platform/records/crash_handler.h"
#include "text/text.h"

#include <fmt/format.h>

#include <utility>

namespace lumora::platform {

namespace {

constexpr unsigned char kDelete = 0x7F;

/// One line of well-formed text, cut to what an entry may have.
std::string entry(std::string_view text)
{
    std::string line;
    for (const char byte : text::wellFormed(text)) {
        const auto value = static_cast<unsigned char>(byte);
        const bool startsCharacter = (value & 0xC0U) != 0x80;
        if (startsCharacter && line.size() + 4 > CrashReportLog::kMaximumEntryBytes) {
            break;
        }
        if (byte == '\n') {
            line += "\\n";
        } else if (value < ' ' || value == kDelete) {
            line += fmt::format("\\x{:02x}", value);
        } else {
            line += byte;
        }
    }
    return line;
}

std::string valueText(const CustomValue& value)
{
    if (const bool* const flag = std::get_if<bool>(&value)) {
        return *flag ? "true" : "false";
    }
    return std::get<std::string>(value);
}

} // namespace

CrashReportLog::CrashReportLog(std::filesystem::path folder) : folder_(std::move(folder))
{
    static_cast<void>(makePrivateFolder(folder_));
}

CrashReportLog::~CrashReportLog() = default;

void CrashReportLog::logWithFormat(std::string_view format,
                                   const std::vector<LogArgument>& arguments)
{
    static_cast<void>(appendLine(folder_ / "log.txt", entry(text::formatted(format, arguments)),
                                 kMaximumLogBytes));
}

void CrashReportLog::setCustomValue(const CustomValue& value, std::string_view key)
{
    if (const auto found = customValues_.find(key);
        found != customValues_.end() && found->second == value) {
        return;
    }
    customValues_.insert_or_assign(std::string(key), value);
    const std::string text = renderedValues();
    if (handlesCrashes_) {
        setCrashReportValues(text);
    }
    static_cast<void>(writeFileAtomically(folder_ / "values.txt", text));
}

void CrashReportLog::installCrashHandler()
{
    handlesCrashes_ = platform::installCrashHandler(folder_, folder_ / "log.txt");
    if (handlesCrashes_) {
        setCrashReportValues(renderedValues());
    }
}

std::string CrashReportLog::renderedValues() const
{
    std::string text;
    for (const auto& [key, value] : customValues_) {
        text += entry(key + ": " + valueText(value)) + '\n';
    }
    return text;
}

} // namespace lumora::platform
