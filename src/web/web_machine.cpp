// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/web_machine.h"

#include "platform/files/atomic_file.h"
#include "platform/screens/split_view_controller.h"

#include <algorithm>
#include <chrono>
#include <utility>

namespace lumora::web {

namespace {

class WebScriptContext final : public platform::JavaScriptContext {
public:
    explicit WebScriptContext(ScriptEngine& engine) : engine_{engine}, number_{engine.makeContext()}
    {}
    ~WebScriptContext() override { engine_.dropContext(number_); }
    WebScriptContext(const WebScriptContext&) = delete;
    WebScriptContext& operator=(const WebScriptContext&) = delete;

    void setExceptionHandler(ExceptionHandler handler) override { handler_ = std::move(handler); }

    std::string evaluateScript(std::string_view script) override
    {
        auto value = engine_.evaluate(number_, script);
        if (!value.thrown) {
            return std::move(value.text);
        }
        if (handler_) {
            handler_(value.text);
        }
        return "undefined";
    }

private:
    ScriptEngine& engine_;
    int number_;
    ExceptionHandler handler_;
};

/// "DE" of "de-DE" or "de-Latn-DE".
std::string regionOf(const std::string& tag)
{
    const auto at = tag.rfind('-');
    auto region = at == std::string::npos ? std::string{} : tag.substr(at + 1);
    const bool letters = std::all_of(region.begin(), region.end(),
                                     [](char letter) { return letter >= 'A' && letter <= 'Z'; });
    return region.size() == 2 && letters ? region : std::string{};
}

} // namespace

WebBundle::WebBundle(std::filesystem::path folder, DatabaseMaker makeDatabase)
    : folder_{std::move(folder)},
      makeDatabase_{std::move(makeDatabase)},
      info_{read("bundle.json")},
      texts_{read("texts.json")}
{}

WebBundle::Values WebBundle::read(const char* file) const
{
    Values values;
    const auto text = platform::readFile(folder_ / file);
    const auto parsed = text ? Json::parse(*text, nullptr, false) : Json{};
    for (const auto& [key, value] : parsed.items()) {
        if (value.is_string()) {
            values.emplace(key, value.get<std::string>());
        }
    }
    return values;
}

std::optional<std::filesystem::path> WebBundle::pathForResource(std::string_view name,
                                                                std::string_view extension) const
{
    std::filesystem::path file;
    if (name == "verbs" && extension == "db") {
        file = makeDatabase_();
    } else {
        file = folder_ / std::string{name}.append(extension.empty() ? "" : ".").append(extension);
    }
    std::error_code error;
    return std::filesystem::is_regular_file(file, error) ? std::optional{file} : std::nullopt;
}

std::optional<std::string> WebBundle::infoValue(std::string_view key) const
{
    const auto found = info_.find(key);
    return found == info_.end() ? std::nullopt : std::optional{found->second};
}

std::optional<std::string> WebBundle::textForKey(std::string_view key) const
{
    const auto found = texts_.find(key);
    return found == texts_.end() ? std::nullopt : std::optional{found->second};
}

WebDevice::WebDevice(const Json& facts)
    : languages_{facts.value("languages", std::vector<std::string>{})},
      system_{facts.value("system", "")},
      width_{facts.value("width", 0.0)}
{
    if (languages_.empty()) {
        languages_.emplace_back("en");
    }
    region_ = regionOf(languages_.front());
}

bool WebDevice::isTablet() const
{
    return width_ >= platform::kTwoPaneWidth;
}

double WebClock::secondsSince1970() const
{
    return std::chrono::duration<double>(std::chrono::system_clock::now().time_since_epoch())
        .count();
}

void WebClock::runLater(std::chrono::milliseconds delay, std::function<void()> work)
{
    waiting_.emplace(++last_, std::move(work));
    outbox_.add({{"do", "timer"}, {"timer", last_}, {"milliseconds", delay.count()}});
}

void WebClock::fire(int timer)
{
    if (auto found = waiting_.extract(timer)) {
        found.mapped()();
    }
}

std::unique_ptr<platform::JavaScriptContext> WebScripts::makeJavaScriptContext()
{
    return std::make_unique<WebScriptContext>(engine_);
}

bool WebUrlOpener::canOpen(std::string_view url) const
{
    return url.starts_with("https:") || url.starts_with("mailto:");
}

bool WebUrlOpener::open(std::string_view url)
{
    if (!canOpen(url)) {
        return false;
    }
    outbox_.add({{"do", "open"}, {"url", url}});
    return true;
}

void WebShareSheet::present(platform::ViewController& /*on*/, platform::ShareItems items,
                            std::string_view anchor)
{
    outbox_.add({{"do", "share"},
                 {"title", items.title},
                 {"text", items.text},
                 {"html", items.html},
                 {"anchor", anchor}});
}

void WebFileChooser::choose(const platform::FileQuestion& question,
                            std::function<void(const std::filesystem::path&)> chosen)
{
    if (question.purpose == platform::FileQuestion::Purpose::Open) {
        chosen_ = std::move(chosen);
        outbox_.add({{"do", "pick"}, {"extension", question.extension}});
        return;
    }
    const auto file = folder_ / "saved";
    chosen(file);
    if (const auto content = platform::readFile(file)) {
        outbox_.add({{"do", "save"},
                     {"name", question.suggestedName + "." + question.extension},
                     {"content", *content}});
    }
    static_cast<void>(platform::removeDurably(file));
}

void WebFileChooser::picked(std::string_view content)
{
    const auto chosen = std::exchange(chosen_, nullptr);
    const auto file = folder_ / "picked";
    if (chosen && platform::writeFileAtomically(file, content)) {
        chosen(file);
        static_cast<void>(platform::removeDurably(file));
    }
}

} // namespace lumora::web
