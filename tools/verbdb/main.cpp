// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "verbdb/verbdb.h"

#include <iostream>

int main(int argc, char** argv)
{
    return lumora::verbdb::run({argv + 1, argv + argc}, std::cout, std::cerr);
}
