// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "detail/verb_detail_table_view_controller.h"

#include "data/favourite_statements.h"
#include "data/history_record.h"
#include "data/verb_reader.h"
#include "detail/audio_utils.h"
#include "detail/row_sounds.h"
#include "export/verb_export.h"
#include "platform/machine/analytics.h"
#include "platform/machine/audio_session.h"
#include "platform/machine/bundle.h"
#include "platform/machine/clock.h"
#include "platform/machine/crash_reporter.h"
#include "platform/machine/device.h"
#include "platform/machine/review_prompter.h"
#include "platform/screens/presenter.h"
#include "platform/screens/share_sheet.h"
#include "platform/screens/split_view_controller.h"
#include "platform/screens/view_factory.h"
#include "platform/storage/database_queue.h"
#include "platform/storage/settings_store.h"
#include "settings/setting_keys.h"
#include "settings/view_memory.h"

#include <algorithm>
#include <any>
#include <cstdint>
#include <limits>
#include <ostream>
#include <utility>
#include <vector>

namespace lumora::detail {

namespace {

constexpr std::string_view kConjugationsOfVerb =
    "SELECT _id, pronoun, verb, type, conj_order as pid FROM conjugation WHERE verbid = ? AND "
    "display=1 ORDER BY conj_order";

// The "other" table keeps a third, empty section.
constexpr std::array<int, data::kMoodCount> kTableSections{9, 5, 4, 4};
constexpr std::array<int, data::kMoodCount> kCollectionItems{8, 4, 3, 2};

/// The view from which on a review may be asked for.
constexpr std::int64_t kViewsBeforeReview = 21;
constexpr platform::Color kPlayTint{1.0 / 255, 85.0 / 255, 179.0 / 255, 1};
constexpr double kAudioPadding = 8;
constexpr double kAudioWidth = 30;

template <typename Counts>
int countForSegment(const Counts& counts, int segment)
{
    return segment >= 0 && segment < data::kMoodCount ? counts[static_cast<std::size_t>(segment)]
                                                      : 0;
}

/// The mood whose rings belong to `segment`.
std::size_t moodOf(int segment)
{
    return static_cast<std::size_t>(std::clamp(segment, 0, data::kMoodCount - 1));
}

std::shared_ptr<CERoundProgressView> makePlayIndicator()
{
    auto indicator = std::make_shared<CERoundProgressView>();
    indicator->setTintColor(kPlayTint);
    return indicator;
}

} // namespace

VerbDetailTableViewController::VerbDetailTableViewController(const platform::Services& services)
    : tableView{services.views.makeTableView(*this)},
      collectionView{services.views.makeCollectionView(*this)},
      services_{services}
{}

VerbDetailTableViewController::~VerbDetailTableViewController() = default;

void VerbDetailTableViewController::setOutletListener(std::function<void()> listener)
{
    outletListener_ = std::move(listener);
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
    selectVerbLabel.text = localizedString(services_.bundle, "select");
    defaultToolbarHeight = toolbarHeightConstaint;

    showVerb();

    refresh_ = services_.notifications.addObserver(
        "RefreshConjugations", [this](const platform::Notification&) { refreshConjugations(); });
    favouriteToggled_ = services_.notifications.addObserver(
        "VerbFavouriteToggled",
        [this](const platform::Notification& notification) { verbFavouriteToggled(notification); });
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
    countView();
    if (queue != nullptr) {
        queue->inDatabase([this](platform::Database& database) {
            if (loadConjugations(database)) {
                recordHistory(database);
            }
        });
    }
    services_.notifications.post({"VerbViewed", {}, {{"verb", selectedVerb}}});
}

void VerbDetailTableViewController::countView()
{
    const auto arguments = services_.device.launchArguments();
    if (std::find(arguments.begin(), arguments.end(), "ui_test") != arguments.end()) {
        return;
    }
    // A damaged count must not overflow.
    const auto before = services_.settings.integerForKey(settings::kNumberOfVerbsViewed);
    const auto count = before < std::numeric_limits<std::int64_t>::max() ? before + 1 : before;
    if (count >= kViewsBeforeReview && !services_.settings.boolForKey(settings::kAskedForReview)) {
        if (services_.device.hasActiveScene()) {
            services_.reviewPrompter.requestReview();
        }
        services_.settings.setValue(true, settings::kAskedForReview);
    }
    services_.settings.setValue(count, settings::kNumberOfVerbsViewed);
}

bool VerbDetailTableViewController::loadConjugations(platform::Database& database)
{
    auto rows = database.executeQuery(kConjugationsOfVerb, {selectedVerb->id});
    if (!rows) {
        logReadingError(database);
        return false;
    }
    data::ConjugationList forms;
    const data::ConjugationReader reader{*rows};
    while (rows->next()) {
        forms.push_back(reader.readConjugation(*rows));
    }
    const bool failed = rows->failed();
    for (const auto& tense : data::kTenses) {
        auto& list = (*selectedVerb).*tense.forms;
        list.clear();
        std::copy_if(forms.begin(), forms.end(), std::back_inserter(list),
                     [&](const auto& form) { return form->type == tense.identifier; });
    }
    if (failed) {
        logReadingError(database);
    }
    return !failed;
}

void VerbDetailTableViewController::recordHistory(platform::Database& database)
{
    if (!platform::boolObjectForKey(services_.settings, settings::kUseHistory).value_or(true)) {
        return;
    }
    const double now = services_.clock.secondsSince1970() - platform::kReferenceDate;
    if (!data::recordInHistory(database, selectedVerb->id, now)) {
        logReadingError(database);
    }
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
    if (queue != nullptr) {
        queue->inDatabase([this](platform::Database& database) {
            data::updateFavourite(database, *selectedVerb, services_.console);
        });
    }
    services_.notifications.post({"VerbFavouriteToggled", this, {{"verb", selectedVerb}}});
}

void VerbDetailTableViewController::exportOptions()
{
    platform::Result<std::optional<exporting::VerbRenderings>> renderings;
    if (selectedVerb) {
        renderings = exporting::VerbExport{}.exportVerb(*selectedVerb, services_);
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

void VerbDetailTableViewController::verbFavouriteToggled(const platform::Notification& notification)
{
    if (const auto* sender = std::get_if<const platform::ViewController*>(&notification.object);
        sender != nullptr &&
        dynamic_cast<const VerbDetailTableViewController*>(*sender) != nullptr) {
        return;
    }
    if (!selectedVerb) {
        return;
    }
    const auto many = notification.userInfo.find("added");
    if (many != notification.userInfo.end()) {
        const auto* added = std::any_cast<std::vector<std::int64_t>>(&many->second);
        if (added != nullptr && std::ranges::find(*added, selectedVerb->id) != added->end()) {
            selectedVerb->isFavourite = true;
            updateFavouriteIcon();
        }
    }
    const auto found = notification.userInfo.find("verb");
    if (found == notification.userInfo.end()) {
        return;
    }
    const auto* verb = std::any_cast<data::VerbPtr>(&found->second);
    if (verb != nullptr && *verb && (*verb)->id == selectedVerb->id) {
        selectedVerb->isFavourite = (*verb)->isFavourite;
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
    refreshConjugations();
    services_.analytics.logEvent("conjugation_tab",
                                 {{"name", std::string{data::analyticsNameOfSegment(segment)}}});
    outletsChanged();
}

VerbDetailTableViewController::Block VerbDetailTableViewController::blockAt(int segment,
                                                                            int position) const
{
    const auto blocks = data::blocksOfSegment(segment);
    if (!selectedVerb || position < 0 || static_cast<std::size_t>(position) >= blocks.size()) {
        return {};
    }
    const auto& block = blocks[static_cast<std::size_t>(position)];
    return {&((*selectedVerb).*block.tense.forms),
            data::tenseTitle(block.titleKey, services_.bundle, services_.settings)};
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
    // Only the table knows of previews; the collection always shows the toolbar.
    updateEmptyState(isPeeking ? 0 : defaultToolbarHeight.value_or(0));
    if (!selectedVerb) {
        return 0;
    }
    return countForSegment(kTableSections, verbTypeSegmentedControl.selected);
}

int VerbDetailTableViewController::numberOfRowsInSection(int section)
{
    if (section == 0) {
        return 1;
    }
    const auto block = blockAt(verbTypeSegmentedControl.selected, section - 1);
    return block.forms == nullptr ? 0 : static_cast<int>(block.forms->size());
}

std::optional<std::string> VerbDetailTableViewController::titleForHeaderInSection(int section)
{
    if (section == 0) {
        return std::nullopt;
    }
    return blockAt(verbTypeSegmentedControl.selected, section - 1).title;
}

platform::TableCell VerbDetailTableViewController::cellForRow(platform::IndexPath path)
{
    platform::TableCell cell;
    cell.selectable = false;
    if (path.section == 0) {
        cell.reuseIdentifier = "CellVerb";
        cell.text = selectedVerb ? selectedVerb->translation(services_.settings, services_.device)
                                 : std::string{};
        return cell;
    }
    cell.reuseIdentifier = "CellConjugation";
    const auto block = blockAt(verbTypeSegmentedControl.selected, path.section - 1);
    if (block.forms == nullptr || path.row < 0 ||
        static_cast<std::size_t>(path.row) >= block.forms->size()) {
        services_.crashReporter.logWithFormat(
            "Unable to find conjugation for table row %@",
            {"[" + std::to_string(path.section) + ", " + std::to_string(path.row) + "]"});
        return cell;
    }
    const auto& form = *(*block.forms)[static_cast<std::size_t>(path.row)];
    cell.text = form.pronoun;
    cell.detailText = form.verb;
    cell.control = platform::PlayControl{indicatorFor(path)};
    return cell;
}

void VerbDetailTableViewController::accessoryButtonTapped(platform::IndexPath path)
{
    const auto block = blockAt(verbTypeSegmentedControl.selected, path.section - 1);
    if (block.forms != nullptr && path.row >= 0 &&
        static_cast<std::size_t>(path.row) < block.forms->size()) {
        const auto form = (*block.forms)[static_cast<std::size_t>(path.row)];
        play(*form, indicatorFor(path));
    }
}

std::shared_ptr<CERoundProgressView>
VerbDetailTableViewController::indicatorFor(platform::IndexPath path)
{
    // Kept for the row, so that a redrawn row shows the ring it had.
    const auto section = static_cast<std::size_t>(path.section);
    const auto row = static_cast<std::size_t>(path.row);
    auto& sections = rowIndicators_[moodOf(verbTypeSegmentedControl.selected)];
    if (sections.size() <= section) {
        sections.resize(section + 1);
    }
    auto& indicators = sections[section];
    while (indicators.size() <= row) {
        indicators.push_back(makePlayIndicator());
    }
    return indicators[row];
}

int VerbDetailTableViewController::numberOfItems()
{
    updateEmptyState(defaultToolbarHeight.value_or(0));
    if (!selectedVerb) {
        return 0;
    }
    return countForSegment(kCollectionItems, verbTypeSegmentedControl.selected);
}

VerbCollectionViewCell& VerbDetailTableViewController::collectionCell(int item)
{
    auto& cells = cells_[moodOf(verbTypeSegmentedControl.selected)];
    const auto index = static_cast<std::size_t>(std::max(item, 0));
    if (cells.size() <= index) {
        cells.resize(index + 1);
    }
    auto& cell = cells[index];
    for (auto& indicator : cell.progressView) {
        if (!indicator) {
            indicator = makePlayIndicator();
        }
    }
    return cell;
}

platform::CollectionCell VerbDetailTableViewController::cellForItem(int item)
{
    auto& cell = collectionCell(item);
    const auto block = blockAt(verbTypeSegmentedControl.selected, item);

    cell.audioWidthConstraint.fill(0);
    cell.audioPaddingConstraint.fill(0);
    cell.titleLabel = block.title.value_or(std::string{});
    const std::size_t count = block.forms == nullptr ? 0 : block.forms->size();
    for (std::size_t line = 0; line < VerbCollectionViewCell::kLines; ++line) {
        const bool filled = line < count;
        cell.pronounLabel[line] = filled ? (*block.forms)[line]->pronoun : " ";
        cell.verbLabel[line] = filled ? (*block.forms)[line]->verb : " ";
        cell.progressViewPlaceholderHidden[line] = !filled;
        if (filled) {
            cell.audioPaddingConstraint[line] = kAudioPadding;
            cell.audioWidthConstraint[line] = kAudioWidth;
        }
    }
    return cell.content();
}

std::string VerbDetailTableViewController::headerText()
{
    if (!selectedVerb) {
        return {};
    }
    return selectedVerb->french + " (" +
           selectedVerb->translation(services_.settings, services_.device) + ")";
}

platform::CollectionLayout VerbDetailTableViewController::layout()
{
    return {300, 300, 20, 20};
}

void VerbDetailTableViewController::audioTapped(int item, int row)
{
    const int segment = verbTypeSegmentedControl.selected;
    if (!selectedVerb || item < 0 || item >= countForSegment(kCollectionItems, segment)) {
        return;
    }
    constexpr int kSection = 0;
    services_.console << "Row " << item << ", section: " << kSection << std::endl;
    const auto block = blockAt(segment, item);
    const auto line = static_cast<std::size_t>(std::max(row, 0));
    if (row >= 0 && line < VerbCollectionViewCell::kLines && block.forms != nullptr &&
        line < block.forms->size()) {
        const auto form = (*block.forms)[line];
        play(*form, collectionCell(item).progressView[line]);
    }
}

void VerbDetailTableViewController::play(const data::Conjugation& form,
                                         std::shared_ptr<CERoundProgressView> indicator)
{
    if (!selectedVerb) {
        services_.console << "It shouldn't be possible for the verb to be null when we reach here."
                          << std::endl;
        return;
    }
    warnOfLowVolume();
    if (speechSynthesizer().isSpeaking()) {
        stopPlayback();
    }
    currentAudioProgress = std::move(indicator);
    prepareAudioSession();
    speechSynthesizer().setDelegate(this);
    speechSynthesizer().speak(AudioUtils::utteranceFor(form, RowSounds{*selectedVerb, queue},
                                                       voice(), services_.settings));
}

platform::Voice VerbDetailTableViewController::voice() const
{
    return settings::ViewMemory{services_.viewMemory}.voice();
}

void VerbDetailTableViewController::chooseVoice(platform::Voice voice)
{
    if (const auto kept = settings::ViewMemory{services_.viewMemory}.setVoice(voice); !kept) {
        services_.console << "Unable to keep the voice: " << kept.error().message << std::endl;
    }
    outletsChanged();
}

platform::SpeechSynthesizer& VerbDetailTableViewController::speechSynthesizer()
{
    if (!speechSynthesizer_) {
        speechSynthesizer_ = services_.speech.makeSpeechSynthesizer();
    }
    return *speechSynthesizer_;
}

void VerbDetailTableViewController::warnOfLowVolume()
{
    const double now = services_.clock.secondsSince1970();
    if (!AudioUtils::isVolumeWarningDue(services_.audioSession.outputVolume(), now,
                                        services_.settings)) {
        return;
    }
    services_.presenter.presentAlert(
        *this,
        platform::notice(std::nullopt, localizedString(services_.bundle, "volume.low.warning"),
                         localizedString(services_.bundle, "common.ok")));
    services_.settings.setValue(now, settings::kTimeAudioWarning);
    if (const auto written = services_.settings.synchronize(); !written) {
        services_.console << "Unable to write the settings: " << written.error().message
                          << std::endl;
    }
}

void VerbDetailTableViewController::prepareAudioSession()
{
    auto& session = services_.audioSession;
    const auto ready = session.setCategoryPlayback().and_then([&] { return session.activate(); });
    if (!ready) {
        services_.console << "Error: Could not set audio category: " << ready.error().message
                          << ", {code = " << ready.error().code << '}' << std::endl;
    }
}

void VerbDetailTableViewController::stopPlayback()
{
    speechSynthesizer().stopSpeaking();
    if (currentAudioProgress) {
        currentAudioProgress->setProgress(0);
    }
    if (const auto invalidate = std::exchange(audioTimer, nullptr)) {
        invalidate();
    }
}

void VerbDetailTableViewController::willSpeakRange(std::size_t location, std::size_t /*length*/,
                                                   const platform::Utterance& utterance)
{
    if (currentAudioProgress) {
        currentAudioProgress->setProgress(AudioUtils::progressAt(location, utterance), false);
    }
}

void VerbDetailTableViewController::didFinish(const platform::Utterance& /*utterance*/)
{
    if (currentAudioProgress) {
        currentAudioProgress->setProgress(1);
    }
    stopPlayback();
}

void VerbDetailTableViewController::didCancel(const platform::Utterance& /*utterance*/)
{
    stopPlayback();
}

} // namespace lumora::detail
