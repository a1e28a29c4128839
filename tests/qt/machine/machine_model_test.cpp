// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/machine_model.h"

#include "support/temporary_folder.h"

#include <gtest/gtest.h>

#include <string>

namespace lumora::qt {
namespace {

TEST(MachineModel, IsWhatTheFirmwareSaysUnlessItSaysNothing)
{
    using namespace std::string_literals;
    struct Case {
        std::string product;
        std::string deviceTree;
        std::optional<std::string> model;
    };
    const Case cases[] = {
        {"Slate 10  \n", "", "Slate 10"},
        {"", "Pine Phone 1.2\0"s, "Pine Phone 1.2"},
        {"To Be Filled By O.E.M.\n", "Board\0"s, "Board"},
        {"System Product Name\n", "", std::nullopt},
        {" \n", "", std::nullopt},
        {"", "", std::nullopt},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.product + "/" + c.deviceTree);
        const support::TemporaryFolder sys;
        const auto put = [&](const char* name, const std::string& content) {
            if (!content.empty()) {
                const auto file = sys / name;
                std::filesystem::create_directories(file.parent_path());
                support::writeContent(file, content);
            }
        };
        put("devices/virtual/dmi/id/product_name", c.product);
        put("firmware/devicetree/base/model", c.deviceTree);

        EXPECT_EQ(machineModel(sys.path()), c.model);
    }
}

} // namespace
} // namespace lumora::qt
