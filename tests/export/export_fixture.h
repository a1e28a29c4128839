// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "export/verb_export.h"

#include "qt/machine/qt_java_script_context.h"
#include "support/shipped_templates.h"
#include "support/world.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumora::exporting {

inline std::shared_ptr<const data::Conjugation> form(std::string pronoun, std::string verb)
{
    return std::make_shared<const data::Conjugation>(
        data::Conjugation{std::move(pronoun), std::move(verb), "", 0});
}

/// A verb, and what it is exported with.
struct ExportFixture : testing::Test {
    ExportFixture()
    {
        verb.french = "aimer";
        verb.english = "love";
    }

    void addResource(const std::string& name, std::string_view content)
    {
        support::writeContent(world.folder / name, content);
        world.bundle.resources[name] = world.folder / name;
    }

    auto exportVerb()
    {
        const auto& services = world.services();
        return VerbExport{}.exportVerb(verb, services.bundle, services.settings, services.device,
                                       services.scripts, services.console);
    }

    support::World world;
    data::Verb verb;
};

/// With the real engine and the real library.
struct RenderingFixture : ExportFixture {
    RenderingFixture()
    {
        world.setScriptEngine(contexts);
        for (const char* name : support::kTemplates) {
            world.bundle.resources[name] = share / name;
        }
    }

    VerbRenderings render()
    {
        auto renderings = exportVerb();
        EXPECT_TRUE(renderings && *renderings) << world.console.str();
        return renderings && *renderings ? **renderings : VerbRenderings{};
    }

    const std::filesystem::path share{LUMORA_SHARE_DIR};
    qt::QtJavaScriptContextFactory contexts;
};

} // namespace lumora::exporting
