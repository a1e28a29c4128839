// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "data/tense_table.h"
#include "data/verb.h"
#include "detail/verb_collection_view_cell.h"
#include "platform/base/notification_center.h"
#include "platform/machine/speech_synthesizer.h"
#include "platform/screens/collection_view.h"
#include "platform/screens/services.h"
#include "platform/screens/table_view.h"
#include "platform/screens/view_controller.h"

#include <array>
#include <cstddef>
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

/// The centred text of a detail screen without a verb.
struct SelectVerbLabel {
    std::string text;
    bool hidden = false;
    platform::Color backgroundColor{0.99, 0.99, 0.99, 1};
    platform::Color borderColor{0.8, 0.8, 0.8, 1};
    double cornerRadius = 5;
    double borderWidth = 1;
};

struct VerbTypeSegmentedControl {
    std::vector<std::string> titles;
    int selected = 0;
    bool hidden = false;
};

struct Toolbar {
    bool hidden = false;
};

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
public:
    explicit VerbDetailTableViewController(const platform::Services& services);
    ~VerbDetailTableViewController() override;

    // The members of the screen's interface description. Views read them and
    // are told by the outlet listener when one changed.
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

    /// The shared queue. Not owned.
    platform::DatabaseQueue* queue = nullptr;
    data::VerbPtr selectedVerb;
    /// Invalidates a timer. Nothing is ever scheduled: the speech alone moves
    /// the ring.
    std::function<void()> audioTimer;
    /// The ring of the row spoken last.
    std::shared_ptr<CERoundProgressView> currentAudioProgress;
    /// Whether the screen is shown as a preview.
    bool isPeeking = false;

    void setOutletListener(std::function<void()> listener);

    /// Puts the split view's button on the left, beside the way back.
    void offerDisplayModeButton(platform::SplitViewController* splitView);

    void viewWillAppear() override;
    void viewDidAppear() override;

    void toggleFavourite();
    /// Renders the verb and offers the ways out for it.
    void exportOptions();
    /// The mood control's value changed to `segment`.
    void selectVerbTypes(int segment);

    /// The one that speaks from the next row on, on every verb's screen.
    platform::Voice voice() const;
    void chooseVoice(platform::Voice voice);

    int numberOfSections() override;
    int numberOfRowsInSection(int section) override;
    std::optional<std::string> titleForHeaderInSection(int section) override;
    platform::TableCell cellForRow(platform::IndexPath path) override;
    void accessoryButtonTapped(platform::IndexPath path) override;

    int numberOfItems() override;
    platform::CollectionCell cellForItem(int item) override;
    std::string headerText() override;
    platform::CollectionLayout layout() override;
    void audioTapped(int item, int row) override;

    void willSpeakRange(std::size_t location, std::size_t length,
                        const platform::Utterance& utterance) override;
    void didFinish(const platform::Utterance& utterance) override;
    void didCancel(const platform::Utterance& utterance) override;

protected:
    void viewDidLoad() override;

private:
    /// A tense's forms and title, as a mood shows them at a position.
    struct Block {
        const data::ConjugationList* forms = nullptr;
        std::optional<std::string> title;
    };

    Block blockAt(int segment, int position) const;
    void showVerb();
    void countView();
    /// False when the reading failed; what was read is kept.
    bool loadConjugations(platform::Database& database);
    void recordHistory(platform::Database& database);
    void refreshConjugations() const;
    void verbFavouriteToggled(const platform::Notification& notification);
    void updateFavouriteIcon();
    void updateNavigationItem();
    void updateEmptyState(double toolbarHeight);
    void outletsChanged();
    void logReadingError(const platform::Database& database);
    std::shared_ptr<CERoundProgressView> indicatorFor(platform::IndexPath path);
    VerbCollectionViewCell& collectionCell(int item);
    void play(const data::Conjugation& form, std::shared_ptr<CERoundProgressView> indicator);
    void stopPlayback();
    void warnOfLowVolume();
    void prepareAudioSession();
    platform::SpeechSynthesizer& speechSynthesizer();

    platform::Services services_;
    // By mood, so that a ring stays with its form when the mood changes.
    std::array<std::vector<VerbCollectionViewCell>, data::kMoodCount> cells_;
    std::array<std::vector<std::vector<std::shared_ptr<CERoundProgressView>>>, data::kMoodCount>
        rowIndicators_;
    std::function<void()> outletListener_;
    bool buttonsEnabled_ = false;
    platform::NotificationCenter::Subscription refresh_;
    platform::NotificationCenter::Subscription favouriteToggled_;
    /// Made on first use.
    std::unique_ptr<platform::SpeechSynthesizer> speechSynthesizer_;
};

} // namespace lumora::detail
