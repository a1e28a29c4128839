// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include <iosfwd>

namespace lumora::platform {
class AudioSession;
class Bundle;
class Clock;
class Presenter;
class SettingsStore;
class ViewController;
} // namespace lumora::platform

namespace lumora::detail {

/// Tells the user at most once a day that the volume is too low to hear the
/// voice. What the constructor takes must outlive the object.
class VolumeWarning {
public:
    VolumeWarning(const platform::AudioSession& audioSession, const platform::Clock& clock,
                  platform::SettingsStore& settings, const platform::Bundle& bundle,
                  platform::Presenter& presenter, std::ostream& console);

    /// Over `screen`, when it is due. The day of the warning is stored at once;
    /// the console is told where that fails.
    void showIfDue(platform::ViewController& screen) const;

private:
    const platform::AudioSession& audioSession_;
    const platform::Clock& clock_;
    platform::SettingsStore& settings_;
    const platform::Bundle& bundle_;
    platform::Presenter& presenter_;
    std::ostream& console_;
};

} // namespace lumora::detail
