// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "support/temporary_folder.h"
#include "verbdb/content.h"
#include "verbdb/database_writer.h"

#include <QProcess>

#include <stdexcept>

namespace lumora::bench {

namespace {

constexpr double kBytesInMegabyte = 1e6;

double megabytesUnderXz(const std::filesystem::path& file)
{
    QProcess xz;
    xz.start(QStringLiteral("xz"), {"--stdout", QString::fromStdString(file.string())});
    if (!xz.waitForFinished(-1) || xz.exitCode() != 0) {
        throw std::runtime_error("xz does not work here");
    }
    return static_cast<double>(xz.readAllStandardOutput().size()) / kBytesInMegabyte;
}

Figure sizeFigure(const char* what, double megabytes, double limit)
{
    Figure figure{what, {}, {}, {}, std::to_string(static_cast<int>(limit)) + " MB", {}, "MB"};
    figure.own.add(megabytes);
    figure.holds = megabytes <= limit;
    return figure;
}

} // namespace

void measureDatabase(Report& report, const std::filesystem::path& database)
{
    constexpr int kRounds = 5;
    const support::TemporaryFolder folder;
    Figure build{"built from its tables", {}, {}, {}, "10 s", {}, "s"};
    for (int round = 0; round < kRounds; ++round) {
        const auto file = folder / "verbs.db";
        build.own.add(millisecondsOf([&] {
                          verbdb::writeDatabase(verbdb::readContent(LUMORA_CONTENT_DIR), file);
                      }) /
                      1000);
        std::filesystem::remove(file);
    }
    build.holds = build.own.p95() <= 10;
    report.add(build);
    const auto size = static_cast<double>(std::filesystem::file_size(database));
    report.add(sizeFigure("on the disk", size / kBytesInMegabyte, 60));
    report.add(sizeFigure("under xz", megabytesUnderXz(database), 8));
}

} // namespace lumora::bench
