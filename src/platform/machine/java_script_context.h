// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace lumora::platform {

/// A script engine with its global object: what one script defines, the next
/// one sees. Texts are UTF-8.
class JavaScriptContext {
public:
    /// Gets the textual form of a value that a script threw and did not catch.
    using ExceptionHandler = std::function<void(const std::string& thrown)>;

    virtual ~JavaScriptContext() = default;
    virtual void setExceptionHandler(ExceptionHandler handler) = 0;
    /// The textual form of the script's value. A script that throws is the
    /// handler's business and evaluates to undefined: "undefined".
    virtual std::string evaluateScript(std::string_view script) = 0;
};

class JavaScriptContextFactory {
public:
    virtual ~JavaScriptContextFactory() = default;
    /// A fresh context, which shares nothing with any other.
    virtual std::unique_ptr<JavaScriptContext> makeJavaScriptContext() = 0;
};

} // namespace lumora::platform
