// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string_view>

/// The fuzzing engine calls it with one input after another.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size);

namespace lumora::fuzz {

inline std::string_view textOf(const std::uint8_t* data, std::size_t size)
{
    return {reinterpret_cast<const char*>(data), size};
}

/// Ends the run: the input that led here is kept.
inline void require(bool holds, const char* what)
{
    if (!holds) {
        std::cerr << "Does not hold: " << what << std::endl;
        std::abort();
    }
}

} // namespace lumora::fuzz
