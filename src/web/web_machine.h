// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/audio_session.h"
#include "platform/machine/bundle.h"
#include "platform/machine/clock.h"
#include "platform/machine/device.h"
#include "platform/machine/file_chooser.h"
#include "platform/machine/java_script_context.h"
#include "platform/machine/review_prompter.h"
#include "platform/machine/url_opener.h"
#include "platform/screens/share_sheet.h"
#include "web/outbox.h"

#include <filesystem>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

/// The machine that a browser is, for the logic: what it cannot do itself goes
/// into the outbox.
namespace lumora::web {

/// Resources in one folder; the texts of the chosen language in "texts.json".
class WebBundle final : public platform::Bundle {
public:
    /// Makes the verb database when it is first asked for; an empty path where
    /// that fails.
    using DatabaseMaker = std::function<std::filesystem::path()>;

    WebBundle(std::filesystem::path folder, DatabaseMaker makeDatabase);

    std::optional<std::filesystem::path> pathForResource(std::string_view name,
                                                         std::string_view extension) const override;
    std::optional<std::string> infoValue(std::string_view key) const override;
    std::optional<std::string> textForKey(std::string_view key) const override;

private:
    using Values = std::map<std::string, std::string, std::less<>>;

    Values read(const char* file) const;

    std::filesystem::path folder_;
    DatabaseMaker makeDatabase_;
    Values info_;
    Values texts_;
};

/// What the page says of the browser: "languages", "width", "system", "region".
class WebDevice final : public platform::Device {
public:
    explicit WebDevice(const Json& facts);

    void setWidth(double points) { width_ = points; }
    void setActive(bool active) { active_ = active; }

    std::vector<std::string> preferredLanguages() const override { return languages_; }
    bool isTablet() const override;
    bool hasActiveScene() const override { return active_; }
    std::vector<std::string> launchArguments() const override { return {}; }
    std::string modelName() const override { return "Browser"; }
    std::optional<std::string> machineIdentifier() const override { return std::nullopt; }
    std::string systemVersion() const override { return system_; }
    std::string regionCode() const override { return region_; }

private:
    std::vector<std::string> languages_;
    std::string system_;
    std::string region_;
    double width_;
    bool active_ = true;
};

class WebClock final : public platform::Clock {
public:
    explicit WebClock(Outbox& outbox) : outbox_{outbox} {}

    double secondsSince1970() const override;
    void runLater(std::chrono::milliseconds delay, std::function<void()> work) override;
    /// The time of a piece of work has come.
    void fire(int timer);

private:
    Outbox& outbox_;
    int last_ = 0;
    std::map<int, std::function<void()>> waiting_;
};

/// The worker's own script engine.
class ScriptEngine {
public:
    struct Value {
        std::string text;
        bool thrown = false;
    };

    virtual ~ScriptEngine() = default;
    virtual int makeContext() = 0;
    virtual Value evaluate(int context, std::string_view script) = 0;
    virtual void dropContext(int context) = 0;
};

class WebScripts final : public platform::JavaScriptContextFactory {
public:
    explicit WebScripts(ScriptEngine& engine) : engine_{engine} {}
    std::unique_ptr<platform::JavaScriptContext> makeJavaScriptContext() override;

private:
    ScriptEngine& engine_;
};

class WebUrlOpener final : public platform::UrlOpener {
public:
    explicit WebUrlOpener(Outbox& outbox) : outbox_{outbox} {}
    bool canOpen(std::string_view url) const override;
    bool open(std::string_view url) override;

private:
    Outbox& outbox_;
};

/// The page shows the offers.
class WebShareSheet final : public platform::ShareSheet {
public:
    explicit WebShareSheet(Outbox& outbox) : outbox_{outbox} {}
    void present(platform::ViewController& on, platform::ShareItems items,
                 std::string_view anchor) override;

private:
    Outbox& outbox_;
};

/// A file to save is written beside the others and handed to the page, which
/// downloads it; one to open comes from the page as its text.
class WebFileChooser final : public platform::FileChooser {
public:
    WebFileChooser(Outbox& outbox, std::filesystem::path folder)
        : outbox_{outbox}, folder_{std::move(folder)}
    {}

    void choose(const platform::FileQuestion& question,
                std::function<void(const std::filesystem::path&)> chosen) override;
    void picked(std::string_view content);

private:
    Outbox& outbox_;
    std::filesystem::path folder_;
    std::function<void(const std::filesystem::path&)> chosen_;
};

/// A page hears nothing of the machine's volume.
class WebAudioSession final : public platform::AudioSession {
public:
    float outputVolume() const override { return 1; }
    platform::Result<void> setCategoryPlayback() override { return {}; }
    platform::Result<void> activate() override { return {}; }
};

/// There is no store to review it in.
class WebReviewPrompter final : public platform::ReviewPrompter {
public:
    void requestReview() override {}
};

} // namespace lumora::web
