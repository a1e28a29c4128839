// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/output.h"

#include "text/text.h"

#include <algorithm>
#include <charconv>
#include <cstdlib>
#include <iostream>

#include <sys/ioctl.h>
#include <unistd.h>

namespace lumora::terminal {

namespace {

constexpr std::size_t kMargin = 2;
constexpr std::size_t kBlockGap = 3;
constexpr std::size_t kUsualWidth = 80;

std::string padded(const std::string& text, std::size_t columns)
{
    return text + std::string(columns - std::min(columns, text::columns(text)), ' ');
}

/// What the user says in COLUMNS, 0 for nothing.
std::size_t wantedWidth()
{
    std::size_t width = 0;
    if (const char* const columns = std::getenv("COLUMNS")) {
        const std::string_view text{columns};
        std::from_chars(text.data(), text.data() + text.size(), width);
    }
    return width;
}

} // namespace

void tell(const std::string& message, std::ostream& errors)
{
    std::string line;
    for (const char byte : text::wellFormed(message)) {
        const auto code = static_cast<unsigned char>(byte);
        line += code < 0x20 || code == 0x7f ? std::string{"\uFFFD"} : std::string{byte};
    }
    errors << "lumora-cli: " << line << '\n';
}

std::string inQuotes(std::string_view typed)
{
    constexpr std::size_t kMost = 60;

    std::size_t count = 0;
    const auto* const cut = std::find_if(typed.begin(), typed.end(), [&](char byte) {
        const bool begins = (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
        return begins && ++count > kMost;
    });
    const auto length = static_cast<std::size_t>(cut - typed.begin());
    return "\"" + std::string{typed.substr(0, length)} +
           (length < typed.size() ? "\u2026\"" : "\"");
}

Output standardOutput()
{
    if (isatty(STDOUT_FILENO) == 0) {
        return {std::cout, std::cerr, 0};
    }
    if (const auto wanted = wantedWidth(); wanted > 0) {
        return {std::cout, std::cerr, wanted};
    }
    winsize size{};
    const bool known = ioctl(STDOUT_FILENO, TIOCGWINSZ, &size) == 0 && size.ws_col > 0;
    return {std::cout, std::cerr, known ? size.ws_col : kUsualWidth};
}

void printBlocks(const std::vector<TextBlock>& blocks, const Output& output)
{
    std::size_t blockWidth = 1;
    for (const auto& block : blocks) {
        for (const auto& line : block) {
            blockWidth = std::max(blockWidth, text::columns(line));
        }
    }
    const auto room = std::max(output.width, kMargin + blockWidth) - kMargin + kBlockGap;
    const auto across = std::max<std::size_t>(1, room / (blockWidth + kBlockGap));
    for (std::size_t first = 0; first < blocks.size(); first += across) {
        const auto end = std::min(first + across, blocks.size());
        std::size_t height = 0;
        for (auto block = first; block < end; ++block) {
            height = std::max(height, blocks[block].size());
        }
        for (std::size_t line = 0; line < height; ++line) {
            std::string text;
            for (auto block = first; block < end; ++block) {
                const bool filled = line < blocks[block].size();
                text +=
                    padded(filled ? blocks[block][line] : std::string{}, blockWidth + kBlockGap);
            }
            const auto last = text.find_last_not_of(' ');
            output.stream << std::string(kMargin, ' ') << text.substr(0, last + 1) << '\n';
        }
        output.stream << '\n';
    }
}

} // namespace lumora::terminal
