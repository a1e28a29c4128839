// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "qt/app/application.h"
#include "support/temporary_folder.h"

#include <QGuiApplication>
#include <QQuickWindow>

#include <algorithm>
#include <exception>
#include <functional>
#include <iostream>
#include <vector>

namespace {

using namespace lumora;

struct Section {
    const char* name;
    const char* title;
    std::function<void(bench::Report&)> measure;
};

void printUsage(std::ostream& output, const std::vector<Section>& sections)
{
    output << "usage: lumora-bench [SECTION...]\n\n"
              "Measures the program against references of the same run; fails when a figure\n"
              "misses what is asked of it. Sections:";
    for (const auto& section : sections) {
        output << ' ' << section.name;
    }
    output << '\n';
}

int run(const std::string& program, const std::vector<std::string>& asked)
{
    const support::TemporaryFolder folder;
    const auto database = folder / "verbs.db";
    std::filesystem::copy_file(LUMORA_SHARE_DIR "/verbs.db", database);
    const std::vector<Section> sections{
        {"list", "Verb list", [&](auto& report) { measureList(report, database); }},
        {"search", "Search", [&](auto& report) { measureSearch(report, database); }},
        {"lookup", "Reading a text", [&](auto& report) { measureLookup(report, database); }},
        {"open", "Opening a verb", [&](auto& report) { measureOpening(report, database); }},
        {"export", "Export", [&](auto& report) { measureExport(report, database); }},
        {"speech", "Pronunciation", [&](auto& report) { bench::measureSpeech(report); }},
        {"start", "Start", [&](auto& report) { measureFirstFrame(report, program); }},
        {"memory", "Memory", [&](auto& report) { measureMemory(report, program); }},
        {"growth", "Growth", [&](auto& report) { bench::measureGrowth(report); }},
        {"database", "Verb database", [&](auto& report) { measureDatabase(report, database); }},
    };
    for (const auto& name : asked) {
        const auto known = std::any_of(sections.begin(), sections.end(),
                                       [&](const auto& section) { return section.name == name; });
        if (!known) {
            const bool help = name == "--help";
            printUsage(help ? std::cout : std::cerr, sections);
            return help ? 0 : 2;
        }
    }
    bench::Report report{std::cout};
    for (const auto& section : sections) {
        if (asked.empty() || std::find(asked.begin(), asked.end(), section.name) != asked.end()) {
            report.section(section.title);
            section.measure(report);
        }
    }
    return report.holds() ? 0 : 1;
}

} // namespace

int main(int argc, char** argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    // No sound, whatever this machine has.
    qputenv("PULSE_SERVER", "unix:/nonexistent/native");
    QQuickWindow::setGraphicsApi(QSGRendererInterface::Software);
    QGuiApplication toolkit{argc, argv};
    qt::registerInterface();
    try {
        const int status = bench::runAsChild(argc, argv);
        return status >= 0
                   ? status
                   : run(std::filesystem::absolute(argv[0]).string(), {argv + 1, argv + argc});
    } catch (const std::exception& error) {
        std::cerr << "lumora-bench: " << error.what() << '\n';
        return 1;
    }
}
