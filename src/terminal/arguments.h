// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/base/error.h"

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

namespace lumora::terminal {

enum class Command { Conjugate, About, Lookup, Search, Export, Backup, Restore, Help, Version };
enum class Format { Html, Text };

/// What the user asked for, understood.
struct Arguments {
    Command command = Command::Help;
    /// The verb, the text to search for, or the file, byte for byte.
    std::string text;
    /// Read the verbs or texts from standard input, one a line, instead.
    bool verbsFromInput = false;
    bool stems = false;
    bool ipa = false;
    bool anywhere = false;
    bool conjugations = false;
    bool translations = false;
    std::optional<std::string> language;
    std::optional<Format> format;
    /// Which of the verbs that share the name, counted from 1; none for the
    /// commonest.
    std::optional<std::size_t> number;
    /// Which command Help is about; none for all of them.
    std::optional<Command> topic;
};

/// Without the program's name. The error's message is for the user.
platform::Result<Arguments> parseArguments(const std::vector<std::string>& words);

/// What --help prints.
std::string helpText(std::optional<Command> topic);

} // namespace lumora::terminal
