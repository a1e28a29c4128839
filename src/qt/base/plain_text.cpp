// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/base/plain_text.h"

#include <QTextBlock>
#include <QTextDocument>

namespace lumora::qt {

namespace {

constexpr int kRuleLength = 20;

QString linesOf(const QTextBlock& block)
{
    if (block.blockFormat().hasProperty(QTextFormat::BlockTrailingHorizontalRulerWidth)) {
        return QString{kRuleLength, QLatin1Char('-')};
    }
    QString text = block.text();
    // A break at the end of a paragraph shows no empty line.
    if (text.endsWith(QChar::LineSeparator)) {
        text.chop(1);
    }
    return text.replace(QChar::LineSeparator, QLatin1Char('\n'))
        .replace(QChar::Nbsp, QLatin1Char(' '));
}

} // namespace

QString plainTextOf(const QString& html)
{
    QTextDocument document;
    document.setHtml(html);
    QStringList lines;
    for (auto block = document.begin(); block.isValid(); block = block.next()) {
        lines.append(linesOf(block));
    }
    return lines.join(QLatin1Char('\n'));
}

} // namespace lumora::qt
