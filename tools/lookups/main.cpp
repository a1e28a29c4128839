// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "lookups/lookup_check.h"
#include "platform/storage/database_queue.h"

#include <chrono>
#include <cstdlib>
#include <exception>
#include <fstream>
#include <iostream>
#include <stdexcept>
#include <string>

#include <unistd.h>

namespace {

using namespace lumora;

constexpr std::size_t kTypos = 10000;
constexpr double kTyposFound = 0.95;

bool tell(const char* what, const lookups::Outcome& outcome, double part)
{
    for (const auto& failure : outcome.failures) {
        std::cout << "  " << failure << '\n';
    }
    const auto right = outcome.asked - outcome.wrong;
    const bool good = static_cast<double>(right) >= part * static_cast<double>(outcome.asked);
    std::cout << what << ": " << right << " of " << outcome.asked << (good ? "" : ", too few")
              << std::endl;
    return good;
}

/// Of this process alone, in memory; 0 where the system does not tell.
double residentMegabytes()
{
    constexpr double kMegabyte = 1024.0 * 1024.0;

    double all = 0;
    double resident = 0;
    double shared = 0;
    std::ifstream{"/proc/self/statm"} >> all >> resident >> shared;
    return (resident - shared) * static_cast<double>(sysconf(_SC_PAGESIZE)) / kMegabyte;
}

bool check(platform::Database& database, std::size_t stride, std::uint32_t seed)
{
    // What the search alone takes from the file is not the index's.
    database.executeQuery("SELECT count(english) FROM verb", {}).value().next();
    const auto before = residentMegabytes();
    const auto begin = std::chrono::steady_clock::now();
    lookup::Lookup lookup;
    if (const auto ready = lookup.prepare(database); !ready) {
        throw std::runtime_error(ready.error().message);
    }
    std::cout << "the index: "
              << std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count()
              << " s, " << residentMegabytes() - before << " MB" << std::endl;
    bool good = tell("other texts", lookups::checkOthers(database, lookup), 1);
    good &= tell("typos", lookups::checkTypos(database, lookup, kTypos, seed), kTyposFound);
    good &= tell("rows", lookups::checkRows(database, lookup, stride), 1);
    return good;
}

} // namespace

int main(int argc, char** argv)
{
    if (argc < 2 || argc > 4) {
        std::cerr << "usage: check-lookup DATABASE [STRIDE [SEED]]\n\n"
                     "Types every row of every verb, of each STRIDE-th verb if one is given, and\n"
                     "10,000 typos, and holds what they are taken for against the database.\n";
        return 2;
    }
    try {
        const auto stride = argc > 2 ? std::stoul(argv[2]) : 1;
        const auto seed = argc > 3 ? std::stoul(argv[3]) : 1;
        const auto queue = platform::DatabaseQueue::open(argv[1]);
        if (!queue || stride == 0) {
            std::cerr << "check-lookup: the database cannot be opened\n";
            return 2;
        }
        bool good = false;
        queue->inDatabase([&](platform::Database& database) {
            good = check(database, stride, static_cast<std::uint32_t>(seed));
        });
        return good ? 0 : 1;
    } catch (const std::exception& error) {
        std::cerr << "check-lookup: " << error.what() << '\n';
        return 1;
    }
}
