// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/java_script_context.h"

#include <cstddef>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

namespace lumora::support {

/// Writes down the scripts of all its contexts, one list a context. The nth
/// script of a context evaluates to "result n".
class FakeJavaScriptContextFactory final : public platform::JavaScriptContextFactory {
public:
    std::unique_ptr<platform::JavaScriptContext> makeJavaScriptContext() override
    {
        scripts.emplace_back();
        return std::make_unique<Context>(*this, scripts.size() - 1);
    }

    std::vector<std::vector<std::string>> scripts;

private:
    class Context final : public platform::JavaScriptContext {
    public:
        Context(FakeJavaScriptContextFactory& factory, std::size_t number)
            : factory_(factory), number_(number)
        {}
        void setExceptionHandler(ExceptionHandler /*handler*/) override {}
        std::string evaluateScript(std::string_view script) override
        {
            auto& own = factory_.scripts[number_];
            own.emplace_back(script);
            return "result " + std::to_string(own.size());
        }

    private:
        FakeJavaScriptContextFactory& factory_;
        std::size_t number_;
    };
};

} // namespace lumora::support
