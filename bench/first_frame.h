// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::bench {

/// When this process was asked for a first frame, shows it, prints nothing and
/// returns its exit status; -1 when it was asked for something else.
int showFirstFrame(int argc, char** argv);

/// Times whole processes from their start to their first frame: Lumora's
/// window against an empty one of the same toolkit, in turns.
void registerFirstFrameBenchmarks(const char* program);

} // namespace lumora::bench
