// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "web/web_application.h"

#include <emscripten.h>

#include <memory>
#include <string>

// What the worker calls, and what is called of it. Texts are JSON in UTF-8; one
// that is handed out stays until the next call.

// clang-format off
EM_JS(int, lumora_make_context, (), { return Module.scripts.make(); });
EM_JS(void, lumora_drop_context, (int context), { Module.scripts.drop(context); });
// A JSON text of "text" and "thrown", to be freed.
EM_JS(char*, lumora_evaluate, (int context, const char* script), {
    return allocateUTF8(Module.scripts.evaluate(context, UTF8ToString(script)));
});
// clang-format on

namespace {

using namespace lumora::web;

class WorkerScripts final : public ScriptEngine {
public:
    int makeContext() override { return lumora_make_context(); }
    void dropContext(int context) override { lumora_drop_context(context); }
    Value evaluate(int context, std::string_view script) override
    {
        char* const answer = lumora_evaluate(context, std::string{script}.c_str());
        const auto value = Json::parse(answer, nullptr, false);
        std::free(answer);
        return value.is_object() ? Value{value.value("text", ""), value.value("thrown", false)}
                                 : Value{"undefined", true};
    }
};

/// The one program of the worker.
struct Program {
    explicit Program(const Json& facts)
        : application{{"/share", "/tmp/lumora", "/kept/data", "/kept/config", "/kept/state"},
                      facts,
                      scripts}
    {}

    WorkerScripts scripts;
    WebApplication application;
};

std::unique_ptr<Program>& program()
{
    static std::unique_ptr<Program> only;
    return only;
}

const char* keep(std::string text)
{
    static std::string kept;
    kept = std::move(text);
    return kept.c_str();
}

/// A text that is no UTF-8 must not end the program.
std::string toText(const Json& json)
{
    return json.dump(-1, ' ', false, Json::error_handler_t::replace);
}

} // namespace

extern "C" {

EMSCRIPTEN_KEEPALIVE const char* lumora_start(const char* facts)
{
    program() = std::make_unique<Program>(Json::parse(facts));
    program()->application.launch();
    return keep(toText(program()->application.handle({{"event", "start"}})));
}

EMSCRIPTEN_KEEPALIVE const char* lumora_handle(const char* event)
{
    return keep(toText(program()->application.handle(Json::parse(event))));
}

EMSCRIPTEN_KEEPALIVE int lumora_prepare_more()
{
    return program()->application.prepareMore() ? 1 : 0;
}

EMSCRIPTEN_KEEPALIVE const char* lumora_user_rows()
{
    return keep(program()->application.userRows());
}

EMSCRIPTEN_KEEPALIVE void lumora_stop()
{
    program().reset();
}
}
