// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "support/world.h"
#include "terminal/installed_program.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace lumora::terminal {

/// The installed program with a small database, to which a few verbs are added.
class TerminalTest : public testing::Test {
protected:
    TerminalTest()
    {
        const auto queue = platform::DatabaseQueue::open(platform::fileUrl(database()));
        for (const char* sql : {
                 "INSERT INTO verb(_id, french, simplified_french, english) VALUES"
                 "(7, 'pêcher', 'pecher', 'fish'), (8, 'pécher', 'pecher', 'sin'),"
                 "(9, 'ressortir', 'ressortir', 'go out'), (10, 'ressortir', 'ressortir', 'fall'),"
                 "(11, 'œuvrer', 'oeuvrer', 'work'), (12, 'méfier (se)', 'mefier', 'distrust'),"
                 "(13, 'aimer', 'aimer', 'love'), (14, 'pe\u0301ter', 'peter', 'burst')",
                 "INSERT INTO conjugation(verbid, pronoun, verb, type, conj_order, display) VALUES"
                 "(9, 'je', 'ressors', 'indicatifPresent', 1, 1),"
                 "(10, 'je', 'ressortis', 'indicatifPresent', 1, 1),"
                 "(13, 'j''', 'aime', 'indicatifPresent', 1, 1),"
                 "(13, 'nous', 'aimons', 'indicatifPresent', 2, 1),"
                 "(13, 'nous', 'aimions', 'indicatifImparfait', 3, 1)",
                 "INSERT INTO conjugation(verbid, pronoun, verb, type, conj_order, display) "
                 "SELECT _id, '', 'form of ' || french, 'participe', 9, 1 FROM verb",
             }) {
            support::executeOn(*queue, sql);
        }
    }

    std::filesystem::path database() const { return program.share() / "verbs.db"; }

    InstalledProgram program;
};

} // namespace lumora::terminal
