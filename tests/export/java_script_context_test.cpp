// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/qt_java_script_context.h"

#include <gtest/gtest.h>

namespace lumora::qt {
namespace {

TEST(QtJavaScriptContext, TellsAThrownValueFromAResult)
{
    struct {
        const char* script;
        const char* result;
        const char* thrown;
    } cases[] = {
        {"'a' + 1", "a1", nullptr},
        {"undefined", "undefined", nullptr},
        {"'été \\u{1F600}'", "été 😀", nullptr},
        {"new Error('kept')", "Error: kept", nullptr},
        {"throw new Error('x')", "undefined", "Error: x"},
        {"throw 5", "undefined", "5"},
        {"throw undefined", "undefined", "undefined"},
        {"throw ''", "undefined", ""},
        {"missing()", "undefined", "ReferenceError: missing is not defined"},
        {"(function f() { f(); })()", "undefined", "RangeError: Maximum call stack size exceeded."},
        {"try { throw 5 } catch (e) { 'caught' }", "caught", nullptr},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.script);
        std::optional<std::string> thrown;
        QtJavaScriptContextFactory contexts;
        const auto context = contexts.makeJavaScriptContext();
        context->setExceptionHandler([&](const std::string& value) { thrown = value; });

        EXPECT_EQ(context->evaluateScript(c.script), c.result);

        EXPECT_EQ(thrown.has_value(), c.thrown != nullptr);
        if (c.thrown != nullptr) {
            EXPECT_EQ(thrown, c.thrown);
        }
    }
}

} // namespace
} // namespace lumora::qt
