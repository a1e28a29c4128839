// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "platform/screens/navigation_controller.h"
#include "platform/screens/split_view_controller.h"
#include "platform/screens/visibility_tracker.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <utility>
#include <vector>

namespace lumora::platform {

namespace {

class Screen final : public ViewController {
public:
    Screen(std::string name, std::string& diary) : name_(std::move(name)), diary_(diary) {}

    void viewWillAppear() override { note("will"); }
    void viewDidAppear() override { note("did"); }
    void viewDidDisappear() override { note("gone"); }

    /// What happens at an event.
    std::map<std::string, std::function<void()>> then;

protected:
    void viewDidLoad() override { note("load"); }

private:
    void note(const std::string& event)
    {
        diary_ += name_ + ":" + event + " ";
        if (const auto found = then.find(event); found != then.end()) {
            found->second();
        }
    }

    std::string name_;
    std::string& diary_;
};

class Screens : public testing::Test {
protected:
    std::shared_ptr<Screen> screen(const char* name)
    {
        return std::make_shared<Screen>(name, diary);
    }
    std::string taken() { return std::exchange(diary, {}); }

    std::string diary;
};

struct Answer final : SplitViewControllerDelegate {
    explicit Answer(bool dropSecondary) : drop(dropSecondary) {}
    bool collapseSecondaryViewControllerOntoPrimary(ViewController& secondary,
                                                    ViewController& primary) override
    {
        asked.emplace_back(&secondary, &primary);
        return drop;
    }
    bool drop;
    std::vector<std::pair<ViewController*, ViewController*>> asked;
};

class SplitView : public Screens {
protected:
    std::shared_ptr<Screen> list = screen("list");
    std::shared_ptr<NavigationController> primary = std::make_shared<NavigationController>(list);
    std::shared_ptr<Screen> placeholder = screen("placeholder");
    SplitViewController split{primary, placeholder};
    std::shared_ptr<Screen> verb = screen("verb");
    std::shared_ptr<NavigationController> detail = std::make_shared<NavigationController>(verb);
};

using Panes = std::vector<ViewController*>;

} // namespace

TEST_F(Screens, TellsOnlyScreensThatComeOrGo)
{
    VisibilityTracker tracker;
    const auto list = screen("list");
    const auto verb = screen("verb");

    tracker.setVisible({list});
    EXPECT_EQ(taken(), "list:load list:will list:did ");
    tracker.setVisible({list, verb});
    EXPECT_EQ(taken(), "verb:load verb:will verb:did ");
    tracker.setVisible({verb, list});
    EXPECT_EQ(taken(), "") << "only the places changed";
    tracker.setVisible({verb});
    EXPECT_EQ(taken(), "list:gone ");
    tracker.setVisible({list, nullptr});
    EXPECT_EQ(taken(), "verb:gone list:will list:did ") << "loaded once";
}

TEST_F(Screens, AScreenMayDieOrChangeTheViewWhileItIsTold)
{
    VisibilityTracker tracker;
    auto list = screen("list");
    auto verb = screen("verb");
    const auto settings = screen("settings");
    verb->then["will"] = [&] { tracker.setVisible({settings}); };
    list->then["gone"] = [&] { list.reset(); };

    tracker.setVisible({list});
    tracker.setVisible({verb});
    EXPECT_EQ(taken(), "list:load list:will list:did list:gone verb:load verb:will verb:did "
                       "verb:gone settings:load settings:will settings:did ");

    tracker.setVisible({verb = screen("other")});
    taken();
    verb.reset();
    tracker.setVisible({});
    EXPECT_EQ(taken(), "") << "it died unasked";
}

TEST_F(Screens, AStackLoadsWhatIsPushedAndTellsOfEveryChange)
{
    const auto list = screen("list");
    const auto verb = screen("verb");
    NavigationController stack(list);
    int changes = 0;
    stack.setStackListener([&] { ++changes; });

    EXPECT_EQ(stack.popViewController(), nullptr);
    stack.popToRootViewController();
    EXPECT_EQ(changes, 0);
    stack.pushViewController(verb);
    EXPECT_EQ(taken(), "verb:load ");
    EXPECT_EQ(stack.topViewController(), verb.get());
    EXPECT_EQ(stack.popViewController(), verb);
    stack.pushViewController(verb);
    stack.pushViewController(screen("third"));
    stack.popToRootViewController();
    EXPECT_EQ(stack.viewControllers().size(), 1U);
    EXPECT_EQ(stack.topViewController(), list.get());
    EXPECT_EQ(changes, 5);
    stack.setViewControllers({});
    EXPECT_EQ(stack.topViewController(), nullptr);
}

TEST_F(SplitView, EveryScreenKnowsTheSplitViewAroundIt)
{
    primary->pushViewController(verb);
    EXPECT_EQ(list->splitViewController(), &split);
    EXPECT_EQ(verb->splitViewController(), &split);
    primary->popViewController();
    EXPECT_EQ(verb->splitViewController(), nullptr);

    split.showDetailViewController(detail);
    EXPECT_EQ(verb->splitViewController(), &split);
    split.setCollapsed(true);
    EXPECT_EQ(verb->splitViewController(), &split);
    split.setCollapsed(false);
    EXPECT_EQ(verb->splitViewController(), &split);
    split.showDetailViewController(screen("other"));
    EXPECT_EQ(verb->splitViewController(), nullptr);
}

TEST_F(SplitView, ACollapseAsksAndDropsTheDetail)
{
    Answer drop(true);
    split.setDelegate(&drop);
    split.showDetailViewController(detail);
    EXPECT_EQ(split.viewControllers(), (Panes{primary.get(), detail.get()}));

    split.setCollapsed(true);
    split.setCollapsed(true);

    ASSERT_EQ(drop.asked.size(), 1U);
    EXPECT_EQ(drop.asked.front(),
              (std::pair<ViewController*, ViewController*>{detail.get(), primary.get()}));
    EXPECT_EQ(split.viewControllers(), (Panes{primary.get()}));
    EXPECT_EQ(primary->topViewController(), list.get());
    split.setCollapsed(false);
    EXPECT_EQ(split.viewControllers(), (Panes{primary.get(), placeholder.get()}));
}

TEST_F(SplitView, AnOpenVerbTravelsBetweenThePanesWhole)
{
    Answer keep(false);
    split.setDelegate(&keep);
    split.showDetailViewController(detail);
    split.setCollapsed(true);
    EXPECT_EQ(primary->topViewController(), detail.get());

    // Opened from a link over the first; the list must not keep a verb.
    const auto newer = std::make_shared<NavigationController>(screen("newer"));
    split.showDetailViewController(newer);
    EXPECT_EQ(primary->topViewController(), newer.get());
    primary->setStackListener([&] {
        EXPECT_EQ(split.viewControllers(), (Panes{primary.get(), newer.get()}));
    });
    split.setCollapsed(false);

    EXPECT_EQ(split.viewControllers(), (Panes{primary.get(), newer.get()}));
    EXPECT_EQ(primary->topViewController(), list.get());
}

TEST_F(SplitView, ThePlaceholderComesBackWhenAPlainScreenIsOnTop)
{
    split.setDelegate(nullptr);
    Answer drop(true);
    split.setDelegate(&drop);
    split.setCollapsed(true);
    primary->pushViewController(screen("settings"));

    split.setCollapsed(false);

    EXPECT_EQ(split.viewControllers().back(), placeholder.get());
    EXPECT_EQ(primary->viewControllers().size(), 2U);
    EXPECT_EQ(placeholder->splitViewController(), &split);
}

TEST_F(SplitView, TheDisplayModeButtonHidesTheListOnlyBesideADetail)
{
    int changes = 0;
    split.setPaneListener([&] { ++changes; });
    const BarButton button = split.displayModeButtonItem();

    button.action();
    EXPECT_TRUE(split.isPrimaryHidden());
    button.action();
    EXPECT_FALSE(split.isPrimaryHidden());
    EXPECT_EQ(changes, 2);
    split.setCollapsed(true);
    button.action();
    EXPECT_FALSE(split.isPrimaryHidden());
    EXPECT_EQ(changes, 3);
}

} // namespace lumora::platform
