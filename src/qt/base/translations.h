// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <QStringList>
#include <QTranslator>

#include <memory>

namespace lumora::qt {

/// The program's texts in the first language of the desktop that we have,
/// English beneath for whatever is missing. Installed while this lives.
class Translations {
public:
    /// Language tags, the most wanted first.
    explicit Translations(const QStringList& languages);
    ~Translations();
    Translations(const Translations&) = delete;
    Translations& operator=(const Translations&) = delete;

private:
    QTranslator english_;
    QTranslator wanted_;
};

} // namespace lumora::qt
