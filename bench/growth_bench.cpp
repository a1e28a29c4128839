// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "benches.h"
#include "support/temporary_folder.h"
#include "verbdb/content.h"
#include "verbdb/database_writer.h"
#include "verbdb/multiplied_content.h"

#include <fmt/format.h>

namespace lumora::bench {

void measureGrowth(Report& report)
{
    const support::TemporaryFolder folder;
    std::vector<Figure> figures[3];
    for (const int times : {1, 2, 4, 8}) {
        const auto content =
            verbdb::multipliedContent(verbdb::readContent(LUMORA_CONTENT_DIR), times);
        const auto verbs = content.verbs.size();
        const auto file = folder / fmt::format("verbs-{}.db", times);
        verbdb::writeDatabase(content, file);

        std::size_t matter = 0;
        for (auto figure : {listFigure(file, 10), searchFigures(file, 1, 10).withConjugations,
                            formsFigure(file, 500)}) {
            figure.what = fmt::format("{}, {} verbs", figure.what, verbs);
            figures[matter++].push_back(std::move(figure));
        }
        std::filesystem::remove(file);
    }
    for (const auto& matter : figures) {
        for (const auto& figure : matter) {
            report.add(figure);
        }
    }
}

} // namespace lumora::bench
