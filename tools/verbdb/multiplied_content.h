// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "verbdb/content.h"

namespace lumora::verbdb {

/// The content with each verb `times` times (1 to kMostTimes): itself, and as
/// many made-up verbs that conjugate like it, "contremanger" beside "manger".
/// To see how the program behaves with more verbs than the language has.
Content multipliedContent(Content content, int times);

extern const int kMostTimes;

} // namespace lumora::verbdb
