// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/news.h"
#include "data/tense_table.h"
#include "data/verb.h"
#include "detail/conjugation_grid.h"
#include "detail/form_marks.h"
#include "detail/playback.h"
#include "detail/verb_detail_outlets.h"
#include "detail/verb_sequence.h"
#include "detail/view_record.h"
#include "detail/volume_warning.h"
#include "platform/base/notification_center.h"
#include "platform/machine/speech_synthesizer.h"
#include "platform/screens/collection_view.h"
#include "platform/screens/services.h"
#include "platform/screens/table_view.h"
#include "platform/screens/view_controller.h"

#include <cstddef>
#include <cstdint>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace lumora::platform {
class Database;
class DatabaseQueue;
} // namespace lumora::platform

namespace lumora::detail {

class VerbPage;

/// One verb: its conjugations by mood, as a table and as a collection of the
/// same data, spoken one at a time, the favourite toggle, the export, and the
/// record of having been seen.
///
/// The verb is handed over before the screen is built; a screen shows one verb
/// for its life. GUI thread only.
class VerbDetailTableViewController final : public platform::ViewController,
                                            public platform::TableDataSource,
                                            public platform::CollectionDataSource,
                                            public platform::SpeechSynthesizerDelegate {
    // Before the fields that refer to it.
    Playback playback_;

public:
    explicit VerbDetailTableViewController(const platform::Services& services);
    ~VerbDetailTableViewController() override;

    // The outlets: what the views show. Views read them, and the outlet listener
    // tells them when one has changed.
    double cellSpacingCollectionView = 20.0;
    int numberOfColumnsCollectionView = 2;
    VerbTypeSegmentedControl verbTypeSegmentedControl;
    std::unique_ptr<platform::TableView> tableView;
    std::unique_ptr<platform::CollectionView> collectionView;
    platform::BarButton exportBarButton;
    platform::BarButton favouriteBarButton;
    Toolbar toolbar;
    /// Points.
    double toolbarHeightConstaint = 44;
    std::optional<double> defaultToolbarHeight;
    SelectVerbLabel selectVerbLabel;

    /// The shared queue. Not owned. Null only without a verb: a verb comes from
    /// the database, so to show or star one without a queue stops the program.
    platform::DatabaseQueue* queue = nullptr;
    data::VerbPtr selectedVerb;
    /// The list that the verb was opened from, as it stood then.
    VerbSequence sequence;
    /// References to the members of the playback.
    std::function<void()>& audioTimer = playback_.audioTimer;
    std::shared_ptr<CERoundProgressView>& currentAudioProgress = playback_.currentAudioProgress;
    /// The form that was asked for: the screen opens at it and marks it.
    std::optional<data::FormPlace> openedForm;
    /// The mood to begin with; the one chosen last where nothing is handed over.
    std::optional<int> firstMood;
    /// Whether the screen is shown as a preview.
    bool isPeeking = false;

    void setOutletListener(std::function<void()> listener);
    /// Tells that listener.
    void outletsChanged();
    /// Called when the texts of `page().guide()` have changed; one listener.
    void setWordsListener(std::function<void()> listener);

    /// Puts the split view's button on the left, beside the way back.
    void offerDisplayModeButton(platform::SplitViewController* splitView);

    void viewWillAppear() override;
    void viewDidAppear() override;

    /// Where the chosen mood shows the form that was asked for.
    std::optional<platform::IndexPath> openedPath() const;

    void toggleFavourite();
    /// Renders the verb and opens the share sheet with it.
    void exportOptions();
    /// The mood control's value changed to `segment`.
    void selectVerbTypes(int segment);

    /// What the page offers around the tables; the screen must outlive it.
    VerbPage page();
    ConjugationGrid& grid() { return grid_; }
    /// What the tables show.
    ShownMood shown() const;
    /// Speaks rows of the verb one after another; `pace` is a factor on the chosen
    /// rate. Warns of a low volume first. Does nothing without rows.
    void play(const std::vector<PlayableRow>& rows, float pace = 1);
    void stopSpeaking() { playback_.stop(); }
    const std::string& spokenText() const { return playback_.spokenText(); }
    /// Called when another row is spoken, or none any more.
    void setSpeechListener(std::function<void()> listener);

    /// Whether stems and endings are marked; one choice for every verb's screen.
    bool marksForms() const { return marks_.on(); }
    void setMarksForms(bool marks);

    int numberOfSections() override;
    int numberOfRowsInSection(int section) override;
    std::optional<std::string> titleForHeaderInSection(int section) override;
    platform::TableCell cellForRow(platform::IndexPath path) override;
    void accessoryButtonTapped(platform::IndexPath path) override;

    int numberOfItems() override;
    platform::CollectionCell cellForItem(int item) override;
    platform::CollectionHeader header() override;
    platform::CollectionLayout layout() override;
    void audioTapped(int item, int row) override;

    void willSpeakRange(std::size_t location, std::size_t length,
                        const platform::Utterance& utterance) override;
    void didFinish(const platform::Utterance& utterance) override;
    void didCancel(const platform::Utterance& utterance) override;

protected:
    void viewDidLoad() override;

private:
    void showVerb();
    void refreshConjugations() const;
    void verbFavouriteToggled(const data::VerbFavouriteToggled& news);
    void updateFavouriteIcon();
    void updateNavigationItem();
    void updateEmptyState(double toolbarHeight);
    platform::DatabaseQueue& sharedQueue() const;
    void logReadingError(const platform::Database& database);

    const platform::Services& services_;
    ConjugationGrid grid_;
    ViewRecord record_;
    VolumeWarning volumeWarning_;
    std::function<void()> outletListener_;
    FormMarks marks_;
    std::function<void()> wordsListener_;
    bool buttonsEnabled_ = false;
    platform::NotificationCenter::Subscription refresh_;
    platform::NotificationCenter::Subscription favouriteToggled_;
};

} // namespace lumora::detail
