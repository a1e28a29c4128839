// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "fuzz/fuzz.h"
#include "support/temporary_folder.h"

#include <algorithm>
#include <iterator>
#include <random>
#include <string>
#include <vector>

/// A target may have its own way to change an input.
extern "C" __attribute__((weak)) std::size_t
LLVMFuzzerCustomMutator(std::uint8_t* data, std::size_t size, std::size_t maximum, unsigned seed);

namespace {

constexpr std::size_t kMaximumBytes = std::size_t{1} << 18;

/// Bytes changed, doubled or left out, without the guidance of the real engine.
std::size_t change(std::uint8_t* data, std::size_t size, std::size_t maximum, unsigned seed)
{
    std::minstd_rand random{seed};
    std::vector<std::uint8_t> bytes{data, data + size};
    for (auto changes = 1 + random() % 8; changes > 0; --changes) {
        const auto at = random() % (bytes.size() + 1);
        const auto end = std::min<std::size_t>(bytes.size(), at + 1 + random() % 16);
        const auto begin = bytes.begin() + static_cast<std::ptrdiff_t>(at);
        const std::vector<std::uint8_t> piece{begin,
                                              bytes.begin() + static_cast<std::ptrdiff_t>(end)};
        switch (random() % 4) {
        case 0:
            bytes.erase(begin, begin + static_cast<std::ptrdiff_t>(piece.size()));
            break;
        case 1:
            bytes.insert(begin, piece.begin(), piece.end());
            break;
        case 2:
            bytes.insert(begin, static_cast<std::uint8_t>(random()));
            break;
        default:
            if (!piece.empty()) {
                *begin = static_cast<std::uint8_t>(random());
            }
        }
    }
    size = std::min(bytes.size(), maximum);
    std::copy_n(bytes.begin(), size, data);
    return size;
}

void feed(const std::string& what, const std::uint8_t* data, std::size_t size)
{
    // Printed before the work, so that a crash can be found.
    std::cout << what << std::endl;
    LLVMFuzzerTestOneInput(data, size);
}

} // namespace

/// For mutators that fall back on the engine's.
extern "C" std::size_t LLVMFuzzerMutate(std::uint8_t* data, std::size_t size, std::size_t maximum)
{
    return change(data, size, maximum, static_cast<unsigned>(size));
}

/// Usage: PROGRAM CORPUS CHANGES: every input of the folder, and so many
/// changes of each.
int main(int, char** argv)
{
    std::vector<std::string> inputs{""};
    const std::filesystem::path corpus{argv[1]};
    if (std::filesystem::exists(corpus)) {
        for (const auto& file : std::filesystem::directory_iterator{corpus}) {
            inputs.push_back(lumora::support::contentOf(file.path()));
        }
    }
    std::sort(inputs.begin(), inputs.end());
    const auto changes = std::stoul(argv[2]);
    std::vector<std::uint8_t> buffer(kMaximumBytes);
    for (std::size_t input = 0; input < inputs.size(); ++input) {
        const auto name = "input " + std::to_string(input);
        auto size = std::min(inputs[input].size(), kMaximumBytes);
        const auto refill = [&] { std::copy_n(inputs[input].begin(), size, buffer.begin()); };
        refill();
        feed(name, buffer.data(), size);
        for (unsigned seed = 1; seed <= changes; ++seed) {
            refill();
            const auto mutate =
                LLVMFuzzerCustomMutator != nullptr ? LLVMFuzzerCustomMutator : change;
            const auto changed = mutate(buffer.data(), size, kMaximumBytes, seed);
            // A buffer of its own: what reads past its end is noticed.
            const std::vector<std::uint8_t> own{
                buffer.begin(), buffer.begin() + static_cast<std::ptrdiff_t>(changed)};
            feed(name + ", change " + std::to_string(seed), own.data(), own.size());
        }
    }
    return 0;
}
