// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

namespace lumora::web {

class ContentSource;

/// Stands in for the table `conjugation` on every connection that is opened while
/// this lives, with the same rows as the shipped file has: a verb's are made when
/// they are asked for, which is quicker than to fetch and store them all. One at a
/// time.
class ConjugationTable {
public:
    /// The source must outlive the connections. Without content every statement on
    /// the table fails.
    explicit ConjugationTable(ContentSource& source);
    ~ConjugationTable();
    ConjugationTable(const ConjugationTable&) = delete;
    ConjugationTable& operator=(const ConjugationTable&) = delete;
};

} // namespace lumora::web
