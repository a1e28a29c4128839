// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/presenter.h"
#include "platform/screens/storyboard.h"

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace lumora::support {

/// Writes down what it is asked for. With a storyboard it makes the step as
/// well, short of showing the screen.
class FakePresenter final : public platform::Presenter {
public:
    struct PerformedSegue {
        std::string identifier;
        /// Null without a storyboard, and when the source refused.
        std::shared_ptr<platform::ViewController> destination;
    };
    struct PresentedAlert {
        platform::ViewController* on = nullptr;
        platform::Alert alert;
    };
    struct PresentedSheet {
        platform::ActionSheet sheet;
        platform::IndexPath anchor;
    };

    struct PresentedScreen {
        platform::ViewController* on = nullptr;
        std::shared_ptr<platform::ViewController> screen;
    };

    explicit FakePresenter(platform::Storyboard* storyboard = nullptr) : storyboard_(storyboard) {}

    void performSegue(platform::ViewController& source, std::string_view identifier,
                      std::optional<platform::IndexPath> sender) override
    {
        take(source, identifier, sender);
    }
    void previewSegue(platform::ViewController& source, std::string_view identifier,
                      std::optional<platform::IndexPath> sender) override
    {
        take(source, identifier, sender);
    }
    void present(platform::ViewController& on,
                 std::shared_ptr<platform::ViewController> shown) override
    {
        presentedScreens.push_back({&on, std::move(shown)});
    }
    void presentAlert(platform::ViewController& on, const platform::Alert& alert) override
    {
        alerts.push_back({&on, alert});
    }
    void presentActionSheet(platform::ViewController& /*on*/, const platform::ActionSheet& sheet,
                            platform::IndexPath anchor) override
    {
        sheets.push_back({sheet, anchor});
    }
    void dismiss(platform::ViewController& presented, std::function<void()> completed) override
    {
        dismissed.push_back(&presented);
        dismissals_.push_back(std::move(completed));
        if (!holdsDismissals) {
            finishDismissals();
        }
    }
    void finishDismissals()
    {
        for (const auto& completed : std::exchange(dismissals_, {})) {
            if (completed) {
                completed();
            }
        }
    }

    std::vector<PerformedSegue> segues;
    std::vector<PresentedScreen> presentedScreens;
    std::vector<PresentedAlert> alerts;
    std::vector<PresentedSheet> sheets;
    std::vector<platform::ViewController*> dismissed;
    /// Whether screens take their time to go, until finishDismissals().
    bool holdsDismissals = false;

private:
    void take(platform::ViewController& source, std::string_view identifier,
              std::optional<platform::IndexPath> sender)
    {
        std::shared_ptr<platform::ViewController> destination;
        if (storyboard_ != nullptr && source.shouldPerformSegue(identifier)) {
            destination = storyboard_->instantiateDestination(identifier);
            source.prepareForSegue({std::string(identifier), *destination, sender});
        }
        segues.push_back({std::string(identifier), std::move(destination)});
    }

    platform::Storyboard* storyboard_;
    std::vector<std::function<void()>> dismissals_;
};

} // namespace lumora::support
