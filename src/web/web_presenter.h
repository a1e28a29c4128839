// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/alert.h"
#include "platform/screens/presenter.h"
#include "platform/screens/storyboard.h"
#include "web/outbox.h"

#include <deque>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lumora::detail {
class VerbDetailTableViewController;
}

namespace lumora::platform {
class MailComposer;
class SplitViewController;
} // namespace lumora::platform

namespace lumora::web {

/// A screen, or a stack of them, over the others.
struct Modal {
    std::shared_ptr<platform::ViewController> controller;
    bool sideMenu = false;
};

/// A verb shown small over its list until it is opened or closed.
struct Preview {
    std::shared_ptr<platform::ViewController> destination;
    std::shared_ptr<detail::VerbDetailTableViewController> verb;
    platform::SplitViewController* split = nullptr;
    /// Where the verb was held, and its row there now; none where it has left.
    int table = 0;
    std::function<std::optional<platform::IndexPath>()> path;
};

/// Takes the steps between screens, keeps those that lie over the others, and holds
/// the questions, which are asked one at a time.
class WebPresenter final : public platform::Presenter {
public:
    /// `changed` is called when other screens are on show. The storyboard is used
    /// only once it is whole.
    WebPresenter(platform::Storyboard& storyboard, std::function<void()> changed)
        : storyboard_{storyboard}, changed_{std::move(changed)}
    {}

    void performSegue(platform::ViewController& source, std::string_view identifier,
                      std::optional<platform::IndexPath> sender) override;
    void previewSegue(platform::ViewController& source, std::string_view identifier,
                      std::optional<platform::IndexPath> sender) override;
    void present(platform::ViewController& on,
                 std::shared_ptr<platform::ViewController> screen) override;
    void presentAlert(platform::ViewController& on, const platform::Alert& alert) override;
    void presentActionSheet(platform::ViewController& on, const platform::ActionSheet& sheet,
                            platform::IndexPath anchor) override;
    void dismiss(platform::ViewController& presented, std::function<void()> completed) override;

    const std::vector<Modal>& modals() const { return modals_; }
    const std::optional<Preview>& preview() const { return preview_; }
    /// The question that is asked now; null for none.
    Json question() const;

    void answer(int index);
    /// Leaves the question, where it may be left.
    void cancel();
    /// As the person would leave the topmost modal; false where there is none.
    bool closeTopModal();
    void openPreview();
    void closePreview();

private:
    struct Question {
        std::optional<std::string> title;
        std::string message;
        std::vector<platform::AlertAction> actions;
        bool sheet = false;

        bool isNotice() const { return !sheet && actions.size() == 1 && !actions.front().handler; }
        int cancelIndex() const;
    };

    void ask(Question question);

    platform::Storyboard& storyboard_;
    std::function<void()> changed_;
    std::vector<Modal> modals_;
    std::optional<Preview> preview_;
    std::deque<Question> questions_;
};

} // namespace lumora::web
