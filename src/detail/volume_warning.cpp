// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/volume_warning.h"

#include "detail/audio_utils.h"
#include "platform/machine/audio_session.h"
#include "platform/machine/bundle.h"
#include "platform/machine/clock.h"
#include "platform/screens/alert.h"
#include "platform/screens/presenter.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"

#include <optional>
#include <ostream>

namespace lumora::detail {

VolumeWarning::VolumeWarning(const platform::AudioSession& audioSession,
                             const platform::Clock& clock, platform::SettingsStore& settings,
                             const platform::Bundle& bundle, platform::Presenter& presenter,
                             std::ostream& console)
    : audioSession_{audioSession},
      clock_{clock},
      settings_{settings},
      bundle_{bundle},
      presenter_{presenter},
      console_{console}
{}

void VolumeWarning::showIfDue(platform::ViewController& screen) const
{
    const double now = clock_.secondsSince1970();
    if (!AudioUtils::isVolumeWarningDue(audioSession_.outputVolume(), now, settings_)) {
        return;
    }
    presenter_.presentAlert(screen, platform::notice(std::nullopt,
                                                     localizedString(bundle_, "volume.low.warning"),
                                                     localizedString(bundle_, "common.ok")));
    settings_.setValue(now, settings::kTimeAudioWarning);
    if (const auto written = settings_.synchronize(); !written) {
        console_ << "Unable to write the settings: " << written.error().message << std::endl;
    }
}

} // namespace lumora::detail
