// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/verb_detail_screen.h"

#include "qt/base/color_conversion.h"
#include "qt/base/text_conversion.h"

#include <QClipboard>
#include <QGuiApplication>

#include <utility>

namespace lumora::qt {

VerbDetailScreen::VerbDetailScreen(
    std::shared_ptr<detail::VerbDetailTableViewController> controller)
    : TableScreen{controller, *controller->tableView, QStringLiteral("VerbDetailPage")},
      detail_{std::move(controller)}
{
    detail_->setOutletListener([this] { emit outletsChanged(); });
    detail_->setSpeechListener([this] { emit speechChanged(); });
    detail_->setWordsListener([this] {
        card_.reset();
        emit wordsChanged();
    });
}

VerbDetailScreen::~VerbDetailScreen()
{
    detail_->setOutletListener({});
    detail_->setSpeechListener({});
    detail_->setWordsListener({});
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
        for (const auto& text : {cell.text, cell.lineStyle.hint, cell.lineStyle.caption}) {
            texts += toQString(text);
        }
    }
    return texts;
}

QStringList VerbDetailScreen::formsOf(int tense) const
{
    QStringList forms;
    for (const auto& form : detail_->page().formsOfTense(tense)) {
        forms += toQString(form->verb);
    }
    return forms;
}

QString VerbDetailScreen::summary() const
{
    return detail_->selectedVerb ? toQString(detail_->page().guide().summary()) : QString{};
}

QVariantList VerbDetailScreen::card() const
{
    if (!card_) {
        card_ = readCard();
    }
    return *card_;
}

QVariantList VerbDetailScreen::readCard() const
{
    QVariantList lines;
    if (!detail_->selectedVerb) {
        return lines;
    }
    for (const auto& line : detail_->page().guide().card()) {
        VerbCardLineValue value{toQString(line.label), toQString(line.text), {}};
        for (const auto& link : line.links) {
            value.links.append(QVariant::fromValue(
                VerbLinkValue{static_cast<int>(link.id), toQString(link.title)}));
        }
        lines.append(QVariant::fromValue(value));
    }
    return lines;
}

QString VerbDetailScreen::nameAway(int places) const
{
    const auto verb = detail_->sequence.neighbour(places);
    return verb ? toQString(verb->french) : QString{};
}

FormSheetValue VerbDetailScreen::formSheet(int tense, int line) const
{
    const auto sheet = detail_->selectedVerb
                           ? detail_->page().guide().sheet({selectedMood(), tense, line})
                           : std::nullopt;
    if (!sheet) {
        return {};
    }
    FormSheetValue value{toQString(sheet->row),
                         toQString(sheet->form),
                         toQString(sheet->ipa),
                         toQString(sheet->tense.title),
                         toQString(sheet->tense.otherTitle),
                         toQString(sheet->person),
                         {},
                         tense,
                         line};
    for (const auto& [place, row, title] : sheet->others) {
        value.others.append(QVariant::fromValue(FormLinkValue{
            toQString(row), toQString(title), place.segment, place.tense, place.row}));
    }
    return value;
}

TenseNoteValue VerbDetailScreen::tenseNote(int tense) const
{
    const auto note =
        detail_->selectedVerb ? detail_->page().guide().note(selectedMood(), tense) : std::nullopt;
    if (!note) {
        return {};
    }
    return {toQString(note->tense.title), toQString(note->tense.otherTitle), toQString(note->use),
            toQString(note->example), toQString(note->translation)};
}

void VerbDetailScreen::saySlowly(int tense, int line, bool fromCollection)
{
    detail_->page().saySlowly({selectedMood(), tense, line}, fromCollection);
}

void VerbDetailScreen::copy(const QString& text) const
{
    QGuiApplication::clipboard()->setText(text);
}

} // namespace lumora::qt
