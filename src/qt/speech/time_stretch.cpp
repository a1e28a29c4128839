// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/speech/time_stretch.h"

#include <sonic.h>

#include <memory>
#include <type_traits>

namespace lumora::qt {

namespace {

struct StreamDeleter {
    void operator()(sonicStream stream) const { sonicDestroyStream(stream); }
};
using Stream = std::unique_ptr<std::remove_pointer_t<sonicStream>, StreamDeleter>;

} // namespace

std::vector<std::int16_t> stretched(const std::vector<std::int16_t>& samples, int sampleRate,
                                    std::size_t length)
{
    const Stream stream{sonicCreateStream(sampleRate, 1)};
    if (!stream || samples.empty() || length == 0) {
        return samples;
    }
    sonicSetSpeed(stream.get(), static_cast<float>(samples.size()) / static_cast<float>(length));
    // It reads only; the C interface does not say so.
    auto* input = const_cast<std::int16_t*>(samples.data());
    if (sonicWriteShortToStream(stream.get(), input, static_cast<int>(samples.size())) == 0 ||
        sonicFlushStream(stream.get()) == 0) {
        return samples;
    }
    std::vector<std::int16_t> changed(
        static_cast<std::size_t>(sonicSamplesAvailable(stream.get())));
    const int count =
        sonicReadShortFromStream(stream.get(), changed.data(), static_cast<int>(changed.size()));
    changed.resize(static_cast<std::size_t>(count));
    return changed;
}

} // namespace lumora::qt
