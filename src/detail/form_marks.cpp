// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/form_marks.h"

#include "settings/view_memory.h"

#include <ostream>
#include <utility>

namespace lumora::detail {

FormMarks::FormMarks(platform::SettingsStore& viewMemory, std::ostream& console)
    : viewMemory_{viewMemory}, console_{console}
{}

void FormMarks::load()
{
    on_ = settings::ViewMemory{viewMemory_}.marksForms();
}

void FormMarks::set(bool on)
{
    on_ = on;
    settings::reportIfNotSaved(settings::ViewMemory{viewMemory_}.setMarksForms(on), "the marks",
                               console_);
}

void FormMarks::read(platform::Database& database, std::int64_t verbId)
{
    if (auto divisions = data::readFormDivisions(database, verbId)) {
        divisions_ = std::move(*divisions);
    } else {
        console_ << "Unable to read how the forms divide: " << divisions.error().message
                 << std::endl;
    }
}

} // namespace lumora::detail
