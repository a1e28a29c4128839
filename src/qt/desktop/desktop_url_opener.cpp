// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/desktop/desktop_url_opener.h"

#include "qt/base/library_files.h"
#include "qt/base/text_conversion.h"

#include <QProcess>
#include <QUrl>

#include <optional>
#include <utility>

namespace lumora::qt {

namespace {

const QString kOpenPortal = QStringLiteral("org.freedesktop.portal.OpenURI");

/// None for what is never opened: another scheme, nothing behind it.
std::optional<QUrl> openable(std::string_view text)
{
    QUrl url{toQString(text), QUrl::StrictMode};
    const auto scheme = url.scheme();
    const bool isPage = scheme == QLatin1String("https");
    const bool isOther = scheme == QLatin1String("mailto") || scheme == QLatin1String("appstream");
    if (!url.isValid() || !(isPage || isOther) ||
        (isPage ? url.host() : url.host() + url.path()).isEmpty()) {
        return std::nullopt;
    }
    return url;
}

/// The portal does not open the others.
bool isForPortal(const QUrl& url)
{
    return url.scheme() != QLatin1String("appstream");
}

bool openInHandler(const QString& url)
{
    QProcess program;
    program.setProgram(QStringLiteral("xdg-open"));
    program.setArguments({url});
    program.setProcessEnvironment(environmentForOthers());
    return program.startDetached();
}

} // namespace

DesktopUrlOpener::DesktopUrlOpener(Desktop desktop)
    : desktop_{std::move(desktop)}, portal_{desktop_.bus, kOpenPortal}
{}

bool DesktopUrlOpener::canOpen(std::string_view url) const
{
    const auto address = openable(url);
    // A portal may be there without a program for the address. In a sandbox, which sees
    // no programs, the portal alone has to do.
    return address && (desktop_.hasUrlHandler(toUtf8(address->scheme())) ||
                       (desktop_.sandboxed && isForPortal(*address) && portal_.exists()));
}

bool DesktopUrlOpener::open(std::string_view url)
{
    const auto address = openable(url);
    if (!address || !canOpen(url)) {
        return false;
    }
    const auto encoded = QString::fromLatin1(address->toEncoded());
    const bool handled = desktop_.hasUrlHandler(toUtf8(address->scheme()));
    if (!isForPortal(*address) || !portal_.exists()) {
        return openInHandler(encoded);
    }
    const QString noParentWindow;
    portal::Request::send(
        desktop_.bus, kOpenPortal, QStringLiteral("OpenURI"), {noParentWindow, encoded}, {},
        [encoded, handled](portal::Answer answer, const QVariantMap& /*results*/) {
            if (answer == portal::Answer::Failed && handled) {
                openInHandler(encoded);
            }
        },
        this);
    return true;
}

} // namespace lumora::qt
