// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/verb_detail_screen.h"

#include "qt/base/color_conversion.h"
#include "qt/base/text_conversion.h"

#include <utility>

namespace lumora::qt {

VerbDetailScreen::VerbDetailScreen(
    std::shared_ptr<detail::VerbDetailTableViewController> controller)
    : TableScreen{controller, *controller->tableView, QStringLiteral("VerbDetailPage")},
      detail_{std::move(controller)}
{
    detail_->setOutletListener([this] { emit outletsChanged(); });
    detail_->setSpeechListener([this] { emit speechChanged(); });
}

VerbDetailScreen::~VerbDetailScreen()
{
    detail_->setOutletListener({});
    detail_->setSpeechListener({});
}

CollectionItemModel* VerbDetailScreen::collection() const
{
    return dynamic_cast<QtCollectionView&>(*detail_->collectionView).model();
}

QStringList VerbDetailScreen::moods() const
{
    return toQStringList(detail_->verbTypeSegmentedControl.titles);
}

int VerbDetailScreen::openedTense() const
{
    // The table's first section is not a tense.
    const auto path = detail_->openedPath();
    return path ? path->section - 1 : -1;
}

int VerbDetailScreen::openedLine() const
{
    const auto path = detail_->openedPath();
    return path ? path->row : -1;
}

void VerbDetailScreen::setTopTense(int tense)
{
    if (tense != topTense()) {
        topTense_ = tense;
        emit topTenseChanged();
    }
}

QString VerbDetailScreen::selectText() const
{
    return toQString(detail_->selectVerbLabel.text);
}

QColor VerbDetailScreen::selectBackground() const
{
    return toQColor(detail_->selectVerbLabel.backgroundColor);
}

QColor VerbDetailScreen::selectBorder() const
{
    return toQColor(detail_->selectVerbLabel.borderColor);
}

QString VerbDetailScreen::spokenText() const
{
    return toQString(detail_->spokenText()).trimmed();
}

QStringList VerbDetailScreen::leadingTextsOf(int tense) const
{
    QStringList texts;
    const int rows = detail_->numberOfRowsInSection(tense + 1);
    for (int row = 0; row < rows; ++row) {
        const auto cell = detail_->cellForRow({tense + 1, row});
        for (const auto& text : {cell.text, cell.setting.hint, cell.setting.caption}) {
            texts += toQString(text);
        }
    }
    return texts;
}

QStringList VerbDetailScreen::formsOf(int tense) const
{
    QStringList forms;
    for (const auto& form : detail_->formsOfTense(tense)) {
        forms += toQString(form->verb);
    }
    return forms;
}

} // namespace lumora::qt
