// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "app/deep_link.h"

#include "app/app_delegate.h"
#include "detail/verb_detail_table_view_controller.h"
#include "platform/navigation_controller.h"
#include "support/world.h"

#include <gtest/gtest.h>

namespace lumora::app {
namespace {

TEST(DeepLink, NamesAVerbOrNothing)
{
    struct Case {
        const char* link;
        std::optional<std::string> infinitive;
        const char* why;
    };
    const Case cases[] = {
        {"lumora://verb/aller", "aller", "plain"},
        {"LUMORA://Verb/aller", "aller", "scheme and host in any case"},
        {"lumora://verb/%C3%AAtre", "être", "encoded"},
        {"lumora://verb/%c3%aatre/", "être", "small digits, closing slash"},
        {"lumora://verb/e%CC%82tre", "être", "decomposed"},
        {"lumora://verb/être?from=web#top", "être", "not encoded, and more behind it"},
        {"lumora://verb/%C3%A9vanouir%20(s')", "évanouir (s')", "with a space"},
        {"lumora://verb/", std::nullopt, "no name"},
        {"lumora://verb/%20", std::nullopt, "a blank name"},
        {"lumora://verb/aller/now", std::nullopt, "two names"},
        {"lumora://verbs/aller", std::nullopt, "another host"},
        {"lumora:verb/aller", std::nullopt, "no host"},
        {"https://verb/aller", std::nullopt, "another scheme"},
        {"lumora://verb/%C3", std::nullopt, "half a letter"},
        {"lumora://verb/all%e", std::nullopt, "half an escape"},
        {"lumora://verb/all%-1er", std::nullopt, "no hexadecimal digits"},
        {"lumora://verb/al%00ler", std::nullopt, "a control character"},
        {"", std::nullopt, "nothing"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.why);
        const auto link = DeepLink::parse(c.link);
        EXPECT_EQ(link ? std::optional{link->infinitive} : std::nullopt, c.infinitive);
    }
}

TEST(DeepLink, OpensTheVerbOverTheListOrSaysThatThereIsNone)
{
    support::World world;
    std::filesystem::create_directory(world.folder / "documents");
    world.bundle.resources["verbs.db"] = world.folder / "small.db";
    world.bundle.info["CFBundleShortVersionString"] = "1";
    AppDelegate delegate{
        world.services(), {world.folder / "documents", std::nullopt}, {0, 0, 1, 1}};
    delegate.window.rootViewController = world.storyboard.instantiateInitialViewController();
    delegate.didFinishLaunching({});
    auto& split = dynamic_cast<platform::SplitViewController&>(*delegate.window.rootViewController);
    auto& stack = dynamic_cast<platform::NavigationController&>(*split.viewControllers().front());
    split.showDetailViewController(world.storyboard.instantiateDestination("showDetail"));

    delegate.openLink("lumora://verb/%C3%A9vanouir");

    EXPECT_EQ(stack.viewControllers().size(), 1U) << "what was open has gone";
    ASSERT_NE(world.shownDetail(), nullptr);
    EXPECT_EQ(world.shownDetail()->selectedVerb->french, "évanouir (s')");
    EXPECT_EQ(world.shownDetail()->queue, delegate.queue.get());

    delegate.openLink("lumora://verb/alller");
    delegate.openLink("lumora://aller");
    ASSERT_EQ(world.presenter.alerts.size(), 2U);
    EXPECT_EQ(world.presenter.alerts[0].alert.message, "link.unknown");
    EXPECT_EQ(world.presenter.alerts[1].alert.message, "link.malformed");
    EXPECT_EQ(world.presenter.segues.size(), 1U);
}

} // namespace
} // namespace lumora::app
