// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_detail_table_view_controller.h"

#include "data/favourite_statements.h"
#include "data/tense_table.h"
#include "data/verb_reader.h"
#include "detail/audio_utils.h"
#include "detail/row_sounds.h"
#include "detail/verb_page.h"
#include "export/verb_export.h"
#include "platform/machine/analytics.h"
#include "platform/machine/bundle.h"
#include "platform/machine/crash_reporter.h"
#include "platform/machine/device.h"
#include "platform/screens/presenter.h"
#include "platform/screens/share_sheet.h"
#include "platform/screens/split_view_controller.h"
#include "platform/screens/view_factory.h"
#include "platform/storage/database_queue.h"
#include "settings/view_memory.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <deque>
#include <ostream>
#include <utility>

namespace lumora::detail {

VerbDetailTableViewController::VerbDetailTableViewController(const platform::Services& services)
    : playback_{services.speech, services.audioSession, services.console},
      tableView{services.views.makeTableView(*this)},
      collectionView{services.views.makeCollectionView(*this)},
      services_{services},
      grid_{services.bundle, services.settings, services.device, services.crashReporter},
      record_{services.settings, services.device, services.clock, services.reviewPrompter},
      volumeWarning_{services.audioSession, services.clock,     services.settings,
                     services.bundle,       services.presenter, services.console},
      marks_{services.viewMemory, services.console}
{}

VerbDetailTableViewController::~VerbDetailTableViewController() = default;

void VerbDetailTableViewController::setOutletListener(std::function<void()> listener)
{
    outletListener_ = std::move(listener);
}

void VerbDetailTableViewController::setWordsListener(std::function<void()> listener)
{
    wordsListener_ = std::move(listener);
}

void VerbDetailTableViewController::outletsChanged()
{
    if (outletListener_) {
        outletListener_();
    }
}

void VerbDetailTableViewController::offerDisplayModeButton(platform::SplitViewController* splitView)
{
    if (splitView == nullptr) {
        return;
    }
    auto item = navigationItem();
    item.leftBarButton = splitView->displayModeButtonItem();
    item.leftItemsSupplementBackButton = true;
    setNavigationItem(std::move(item));
}

void VerbDetailTableViewController::viewDidLoad()
{
    if (services_.device.isTablet()) {
        auto item = navigationItem();
        if (item.leftBarButton) {
            item.leftBarButton->title = localizedString(services_.bundle, "verb.list");
            setNavigationItem(std::move(item));
        }
    }
    exportBarButton.identifier = "export";
    exportBarButton.image = "export";
    exportBarButton.action = [this] { exportOptions(); };
    favouriteBarButton.identifier = "favourite";
    favouriteBarButton.action = [this] { toggleFavourite(); };
    updateNavigationItem();
    updateFavouriteIcon();

    verbTypeSegmentedControl.titles.clear();
    for (const auto key : data::kMoodTitleKeys) {
        verbTypeSegmentedControl.titles.push_back(localizedString(services_.bundle, key));
    }
    verbTypeSegmentedControl.selected =
        firstMood.value_or(settings::ViewMemory{services_.viewMemory}.mood());
    selectVerbLabel.text = localizedString(services_.bundle, "select");
    defaultToolbarHeight = toolbarHeightConstaint;

    if (const auto opened = openedForm ? data::positionOfTense(openedForm->tense) : std::nullopt) {
        verbTypeSegmentedControl.selected = opened->segment;
    }
    marks_.load();
    showVerb();

    refresh_ = data::observe<data::RefreshConjugations>(services_.notifications,
                                                        [this](const auto& /*news*/) {
                                                            refreshConjugations();
                                                            if (wordsListener_) {
                                                                wordsListener_();
                                                            }
                                                        });
    favouriteToggled_ = data::observe<data::VerbFavouriteToggled>(
        services_.notifications, [this](const auto& news) { verbFavouriteToggled(news); });
    outletsChanged();
}

void VerbDetailTableViewController::updateNavigationItem()
{
    auto item = navigationItem();
    item.title = selectedVerb ? selectedVerb->french : std::string{};
    exportBarButton.enabled = buttonsEnabled_;
    favouriteBarButton.enabled = buttonsEnabled_;
    item.rightBarButtons = {exportBarButton, favouriteBarButton};
    setNavigationItem(std::move(item));
}

void VerbDetailTableViewController::updateFavouriteIcon()
{
    favouriteBarButton.image = selectedVerb && selectedVerb->isFavourite
                                   ? "ic_favorite_toolbar"
                                   : "ic_favorite_toolbar_border";
    updateNavigationItem();
}

void VerbDetailTableViewController::viewWillAppear()
{
    toolbarHeightConstaint = isPeeking ? 0 : defaultToolbarHeight.value_or(0);
    verbTypeSegmentedControl.hidden = isPeeking;
    toolbar.hidden = isPeeking;
    tableView->reloadData();
    buttonsEnabled_ = selectedVerb != nullptr;
    updateNavigationItem();
    outletsChanged();
}

void VerbDetailTableViewController::viewDidAppear()
{
    if (selectedVerb) {
        services_.analytics.logEvent(
            "select_content",
            {{"item_id", std::to_string(selectedVerb->id)}, {"item_name", selectedVerb->french}});
    }
}

void VerbDetailTableViewController::showVerb()
{
    if (!selectedVerb || selectedVerb->loaded) {
        return;
    }
    record_.countView();
    sharedQueue().inDatabase([this](platform::Database& database) {
        if (!data::loadConjugations(database, *selectedVerb) ||
            !record_.recordHistory(database, selectedVerb->id)) {
            logReadingError(database);
        }
        marks_.read(database, selectedVerb->id);
    });
    data::post(services_.notifications, data::VerbViewed{selectedVerb});
}

platform::DatabaseQueue& VerbDetailTableViewController::sharedQueue() const
{
    if (queue == nullptr) {
        std::fputs("lumora: a verb without the database that it comes from\n", stderr);
        std::abort();
    }
    return *queue;
}

void VerbDetailTableViewController::logReadingError(const platform::Database& database)
{
    services_.crashReporter.logWithFormat(
        "An error occurred when reading verb conjugation: %@ (%d)",
        {database.lastErrorMessage(), database.lastErrorCode()});
}

void VerbDetailTableViewController::toggleFavourite()
{
    if (!selectedVerb) {
        return;
    }
    selectedVerb->isFavourite = !selectedVerb->isFavourite;
    updateFavouriteIcon();
    sharedQueue().inDatabase([this](platform::Database& database) {
        data::updateFavourite(database, *selectedVerb, services_.console);
    });
    data::post(services_.notifications, data::VerbFavouriteToggled{this, selectedVerb, {}});
}

void VerbDetailTableViewController::exportOptions()
{
    platform::Result<std::optional<exporting::VerbRenderings>> renderings;
    if (selectedVerb) {
        renderings = exporting::VerbExport{}.exportVerb(*selectedVerb, services_.bundle,
                                                        services_.settings, services_.device,
                                                        services_.scripts, services_.console);
    }
    if (!renderings) {
        services_.crashReporter.logWithFormat("Unable to export. An error occurred. %@", {});
        return;
    }
    if (!*renderings) {
        services_.console << "Unable to export verb. Most likely an issue with the template (or no "
                             "verb, somehow)"
                          << std::endl;
        return;
    }
    auto& [html, text] = **renderings;
    services_.shareSheet.present(*this, {selectedVerb->french, std::move(text), std::move(html)},
                                 exportBarButton.identifier);
}

void VerbDetailTableViewController::verbFavouriteToggled(const data::VerbFavouriteToggled& news)
{
    if (!selectedVerb ||
        dynamic_cast<const VerbDetailTableViewController*>(news.sender) != nullptr) {
        return;
    }
    if (std::find(news.added.begin(), news.added.end(), selectedVerb->id) != news.added.end()) {
        selectedVerb->isFavourite = true;
        updateFavouriteIcon();
    }
    if (news.verb && news.verb->id == selectedVerb->id) {
        selectedVerb->isFavourite = news.verb->isFavourite;
        updateFavouriteIcon();
    }
}

void VerbDetailTableViewController::refreshConjugations() const
{
    tableView->reloadData();
    collectionView->reloadData();
}

void VerbDetailTableViewController::selectVerbTypes(int segment)
{
    verbTypeSegmentedControl.selected = segment;
    settings::reportIfNotSaved(settings::ViewMemory{services_.viewMemory}.setMood(segment),
                               "the mood", services_.console);
    refreshConjugations();
    services_.analytics.logEvent("conjugation_tab",
                                 {{"name", std::string{data::analyticsNameOfSegment(segment)}}});
    outletsChanged();
}

ShownMood VerbDetailTableViewController::shown() const
{
    return {selectedVerb.get(), verbTypeSegmentedControl.selected, marks_.shown()};
}

std::optional<platform::IndexPath> VerbDetailTableViewController::openedPath() const
{
    return openedForm ? ConjugationGrid::pathOf(shown(), *openedForm) : std::nullopt;
}

void VerbDetailTableViewController::updateEmptyState(double toolbarHeight)
{
    const bool hasVerb = selectedVerb != nullptr;
    const double height = hasVerb ? toolbarHeight : 0;
    if (selectVerbLabel.hidden == hasVerb && toolbar.hidden == !hasVerb &&
        toolbarHeightConstaint == height) {
        return;
    }
    selectVerbLabel.hidden = hasVerb;
    toolbar.hidden = !hasVerb;
    toolbarHeightConstaint = height;
    outletsChanged();
}

int VerbDetailTableViewController::numberOfSections()
{
    // A preview hides the toolbar of the table only; the collection always shows it.
    updateEmptyState(isPeeking ? 0 : defaultToolbarHeight.value_or(0));
    return ConjugationGrid::numberOfSections(shown());
}

int VerbDetailTableViewController::numberOfRowsInSection(int section)
{
    return ConjugationGrid::numberOfRowsInSection(shown(), section);
}

std::optional<std::string> VerbDetailTableViewController::titleForHeaderInSection(int section)
{
    return grid_.titleForHeaderInSection(shown(), section);
}

platform::TableCell VerbDetailTableViewController::cellForRow(platform::IndexPath path)
{
    return grid_.cellForRow(shown(), path);
}

void VerbDetailTableViewController::accessoryButtonTapped(platform::IndexPath path)
{
    if (const auto row = grid_.playableRow(shown(), path)) {
        play({*row});
    }
}

int VerbDetailTableViewController::numberOfItems()
{
    updateEmptyState(defaultToolbarHeight.value_or(0));
    return ConjugationGrid::numberOfItems(shown());
}

platform::CollectionCell VerbDetailTableViewController::cellForItem(int item)
{
    return grid_.cellForItem(shown(), item);
}

platform::CollectionHeader VerbDetailTableViewController::header()
{
    return grid_.header(shown()).content();
}

platform::CollectionLayout VerbDetailTableViewController::layout()
{
    return {300, 300, 20, 20};
}

void VerbDetailTableViewController::audioTapped(int item, int row)
{
    if (item < 0 || item >= ConjugationGrid::numberOfItems(shown())) {
        return;
    }
    constexpr int kSection = 0;
    services_.console << "Row " << item << ", section: " << kSection << std::endl;
    if (const auto line = grid_.playableLine(shown(), item, row)) {
        play({*line});
    }
}

void VerbDetailTableViewController::play(const std::vector<PlayableRow>& rows, float pace)
{
    if (rows.empty()) {
        return;
    }
    if (!selectedVerb) {
        services_.console << "It shouldn't be possible for the verb to be null when we reach here."
                          << std::endl;
        return;
    }
    volumeWarning_.showIfDue(*this);
    const RowSounds sounds{*selectedVerb, queue};
    std::deque<SpokenRow> spoken;
    for (const auto& row : rows) {
        auto utterance =
            AudioUtils::utteranceFor(*row.form, sounds, page().voice(), services_.settings);
        utterance.rate *= pace;
        spoken.push_back({std::move(utterance), row.indicator});
    }
    playback_.play(std::move(spoken), *this);
}

VerbPage VerbDetailTableViewController::page()
{
    return {*this,
            {services_.bundle, services_.settings, services_.device},
            services_.viewMemory,
            services_.storyboard,
            services_.crashReporter,
            services_.console};
}

void VerbDetailTableViewController::setSpeechListener(std::function<void()> listener)
{
    playback_.changed = std::move(listener);
}

void VerbDetailTableViewController::setMarksForms(bool marks)
{
    marks_.set(marks);
    refreshConjugations();
    outletsChanged();
}

void VerbDetailTableViewController::willSpeakRange(std::size_t location, std::size_t /*length*/,
                                                   const platform::Utterance& utterance)
{
    playback_.willSpeakRange(location, utterance);
}

void VerbDetailTableViewController::didFinish(const platform::Utterance& /*utterance*/)
{
    playback_.didFinish(*this);
}

void VerbDetailTableViewController::didCancel(const platform::Utterance& /*utterance*/)
{
    playback_.stop();
}

} // namespace lumora::detail
