// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include <QCoreApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv)
{
    // Whatever this machine has: no sound until a test makes its own.
    qputenv("PULSE_SERVER", "unix:/nonexistent/native");
    testing::InitGoogleTest(&argc, argv);
    const QCoreApplication toolkit{argc, argv};
    return RUN_ALL_TESTS();
}
