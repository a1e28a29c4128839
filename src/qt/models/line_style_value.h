// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "platform/screens/line_style.h"

#include <QMetaType>
#include <QString>
#include <QtQml/qqmlregistration.h>

namespace lumora::qt {

/// How the texts of a line are set, as QML sees it.
struct LineStyleValue {
    Q_GADGET
    QML_VALUE_TYPE(lineStyle)
    /// The line's second text in the toolkit's small mark-up. The colours are
    /// called "accent" and "light"; the theme says which colours these are.
    Q_PROPERTY(QString markup MEMBER markup FINAL)
    Q_PROPERTY(QString hint MEMBER hint FINAL)
    Q_PROPERTY(QString caption MEMBER caption FINAL)
    Q_PROPERTY(QString description MEMBER description FINAL)
    /// The second text follows the first without a blank.
    Q_PROPERTY(bool joined MEMBER joined FINAL)

public:
    QString markup;
    QString hint;
    QString caption;
    QString description;
    bool joined = false;

    bool operator==(const LineStyleValue&) const = default;
};

/// `text` is the second text as a whole, for a line without parts.
LineStyleValue toValue(const platform::LineStyle& lineStyle, const std::string& text);

} // namespace lumora::qt
