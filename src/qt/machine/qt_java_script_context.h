// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/java_script_context.h"

namespace lumora::qt {

/// Makes contexts with Qt's script engine. Needs a QCoreApplication; its
/// contexts belong to the thread that made them.
class QtJavaScriptContextFactory final : public platform::JavaScriptContextFactory {
public:
    std::unique_ptr<platform::JavaScriptContext> makeJavaScriptContext() override;
};

} // namespace lumora::qt
