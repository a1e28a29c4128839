// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/machine/url_opener.h"
#include "qt/desktop/desktop.h"
#include "qt/desktop/portal.h"

#include <QObject>

namespace lumora::qt {

/// Opens addresses through the desktop's portal, or else in the program that
/// the desktop's lists name.
class DesktopUrlOpener final : public QObject, public platform::UrlOpener {
public:
    explicit DesktopUrlOpener(Desktop desktop);

    bool canOpen(std::string_view url) const override;
    bool open(std::string_view url) override;

private:
    Desktop desktop_;
    portal::Version portal_;
};

} // namespace lumora::qt
