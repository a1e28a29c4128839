// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <utility>
#include <vector>

#include <nlohmann/json.hpp>

namespace lumora::web {

using Json = nlohmann::json;

/// What the worker and the page are to do, in order: objects whose "do" says what.
/// They are handed over with the answer to an event.
class Outbox {
public:
    void add(Json message) { messages_.push_back(std::move(message)); }
    std::vector<Json> take() { return std::exchange(messages_, {}); }

private:
    std::vector<Json> messages_;
};

} // namespace lumora::web
