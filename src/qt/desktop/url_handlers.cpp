// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/url_handlers.h"

#include <gio/gio.h>

#include <cstdlib>
#include <filesystem>
#include <memory>
#include <system_error>

namespace lumora::qt {

bool hasUrlHandler(const std::string& scheme)
{
    const std::unique_ptr<GAppInfo, decltype(&g_object_unref)> handler{
        g_app_info_get_default_for_uri_scheme(scheme.c_str()), g_object_unref};
    return handler != nullptr;
}

bool isSandboxed()
{
    std::error_code unknown;
    return std::filesystem::exists("/.flatpak-info", unknown) || std::getenv("SNAP") != nullptr;
}

} // namespace lumora::qt
