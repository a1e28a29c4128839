// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <ctime>
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

/// An input is done with in two seconds of the processor's time: how busy the
/// machine is says nothing of the input.
class TimeLimit {
public:
    TimeLimit() = default;
    ~TimeLimit()
    {
        require(std::clock() - begin_ < kMostSeconds * CLOCKS_PER_SEC,
                "an input is done with in two seconds");
    }
    TimeLimit(const TimeLimit&) = delete;
    TimeLimit& operator=(const TimeLimit&) = delete;

private:
    static constexpr std::clock_t kMostSeconds = 2;

    std::clock_t begin_ = std::clock();
};

} // namespace lumora::fuzz
