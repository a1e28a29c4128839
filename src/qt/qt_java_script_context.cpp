// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/qt_java_script_context.h"

#include "qt/text_conversion.h"

#include <QJSEngine>

#include <utility>

namespace lumora::qt {

namespace {

class QtJavaScriptContext final : public platform::JavaScriptContext {
public:
    void setExceptionHandler(ExceptionHandler handler) override { handler_ = std::move(handler); }

    std::string evaluateScript(std::string_view script) override
    {
        // What was thrown comes back like a result, and anything can be thrown:
        // only the trace tells the two apart.
        QStringList trace;
        const auto value = engine_.evaluate(toQString(script), QString{}, 1, &trace);
        if (trace.isEmpty()) {
            return toUtf8(value.toString());
        }
        if (handler_) {
            handler_(toUtf8(value.toString()));
        }
        return "undefined";
    }

private:
    QJSEngine engine_;
    ExceptionHandler handler_;
};

} // namespace

std::unique_ptr<platform::JavaScriptContext> QtJavaScriptContextFactory::makeJavaScriptContext()
{
    return std::make_unique<QtJavaScriptContext>();
}

} // namespace lumora::qt
