// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

namespace lumora::qt {

/// The same voice at the same pitch, made about `length` samples long.
std::vector<std::int16_t> stretched(const std::vector<std::int16_t>& samples, int sampleRate,
                                    std::size_t length);

} // namespace lumora::qt
