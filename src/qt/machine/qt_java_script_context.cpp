// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/machine/qt_java_script_context.h"

#include "qt/base/text_conversion.h"

#include <QJSEngine>

#include <utility>

namespace lumora::qt {

namespace {

/// Characters of a text that is only kept alive; why is said below.
constexpr qsizetype kLivingTextLength = 500'000;

class QtJavaScriptContext final : public platform::JavaScriptContext {
public:
    QtJavaScriptContext()
    {
        // The engine collects garbage whenever its texts have grown by the size of those
        // alive. A script that splits a long text would cause hundreds of collections;
        // a large living text makes them rare.
        livingText_.setProperty(QStringLiteral("text"), QString{kLivingTextLength, u' '});
    }

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
    /// Out of the reach of scripts.
    QJSValue livingText_ = engine_.newObject();
    ExceptionHandler handler_;
};

} // namespace

std::unique_ptr<platform::JavaScriptContext> QtJavaScriptContextFactory::makeJavaScriptContext()
{
    return std::make_unique<QtJavaScriptContext>();
}

} // namespace lumora::qt
