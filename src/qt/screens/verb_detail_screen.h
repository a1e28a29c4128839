// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "detail/verb_detail_table_view_controller.h"
#include "detail/verb_page.h"
#include "qt/models/qt_collection_view.h"
#include "qt/screens/table_screen.h"
#include "qt/screens/verb_guide_values.h"

#include <QColor>

#include <algorithm>
#include <cstdint>
#include <optional>

namespace lumora::qt {

/// The verb detail screen: one verb as a table or as a collection.
class VerbDetailScreen final : public lumora::qt::TableScreen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the registry")
    Q_PROPERTY(lumora::qt::CollectionItemModel* collection READ collection CONSTANT)
    Q_PROPERTY(QStringList moods READ moods NOTIFY outletsChanged)
    Q_PROPERTY(int selectedMood READ selectedMood NOTIFY outletsChanged)
    Q_PROPERTY(bool moodsHidden READ moodsHidden NOTIFY outletsChanged)
    Q_PROPERTY(bool toolbarHidden READ toolbarHidden NOTIFY outletsChanged)
    Q_PROPERTY(double toolbarHeight READ toolbarHeight NOTIFY outletsChanged)
    Q_PROPERTY(QString selectText READ selectText NOTIFY outletsChanged)
    Q_PROPERTY(bool selectTextHidden READ selectTextHidden NOTIFY outletsChanged)
    Q_PROPERTY(QColor selectBackground READ selectBackground CONSTANT)
    Q_PROPERTY(QColor selectBorder READ selectBorder CONSTANT)
    Q_PROPERTY(double selectRadius READ selectRadius CONSTANT)
    Q_PROPERTY(double selectBorderWidth READ selectBorderWidth CONSTANT)
    // The woman's 0, the man's 1.
    Q_PROPERTY(int voice READ voice NOTIFY outletsChanged)
    Q_PROPERTY(bool marksForms READ marksForms WRITE setMarksForms NOTIFY outletsChanged)
    // Whether a tense without any is one that is not in use.
    Q_PROPERTY(bool hasForms READ hasForms NOTIFY outletsChanged)
    // What is being spoken; empty for nothing.
    Q_PROPERTY(QString spokenText READ spokenText NOTIFY speechChanged)
    // The verb at a glance; empty where little is known of it.
    Q_PROPERTY(QString summary READ summary NOTIFY wordsChanged)
    // Of VerbCardLineValue.
    Q_PROPERTY(QVariantList card READ card NOTIFY wordsChanged)
    // Before and after it in the list; empty for none.
    Q_PROPERTY(QString previousVerb READ previousVerb CONSTANT)
    Q_PROPERTY(QString nextVerb READ nextVerb CONSTANT)
    // Where the person has scrolled to, from one page to the next.
    Q_PROPERTY(int topTense READ topTense WRITE setTopTense NOTIFY topTenseChanged)
    // The form that was searched for, by its tense in the chosen mood and its row;
    // -1 where it is not shown.
    Q_PROPERTY(int openedTense READ openedTense NOTIFY outletsChanged)
    Q_PROPERTY(int openedLine READ openedLine NOTIFY outletsChanged)

public:
    explicit VerbDetailScreen(std::shared_ptr<detail::VerbDetailTableViewController> controller);
    ~VerbDetailScreen() override;

    CollectionItemModel* collection() const;
    QStringList moods() const;
    int selectedMood() const { return detail_->verbTypeSegmentedControl.selected; }
    bool moodsHidden() const { return detail_->verbTypeSegmentedControl.hidden; }
    bool toolbarHidden() const { return detail_->toolbar.hidden; }
    double toolbarHeight() const { return detail_->toolbarHeightConstaint; }
    QString selectText() const;
    bool selectTextHidden() const { return detail_->selectVerbLabel.hidden; }
    QColor selectBackground() const;
    QColor selectBorder() const;
    double selectRadius() const { return detail_->selectVerbLabel.cornerRadius; }
    double selectBorderWidth() const { return detail_->selectVerbLabel.borderWidth; }

    /// As in the database; 0 without a verb.
    std::int64_t verbId() const { return detail_->selectedVerb ? detail_->selectedVerb->id : 0; }
    QString summary() const;
    QVariantList card() const;
    QString previousVerb() const { return nameAway(-1); }
    QString nextVerb() const { return nameAway(1); }

    int voice() const { return static_cast<int>(detail_->page().voice()); }

    int openedTense() const;
    int openedLine() const;
    int topTense() const { return topTense_.value_or(std::max(0, openedTense())); }
    void setTopTense(int tense);

    Q_INVOKABLE void chooseVoice(int voice)
    {
        detail_->page().chooseVoice(static_cast<platform::Voice>(voice));
    }
    bool marksForms() const { return detail_->marksForms(); }
    void setMarksForms(bool marks) { detail_->setMarksForms(marks); }
    bool hasForms() const { return detail_->page().hasForms(); }
    QString spokenText() const;
    /// Pronouns, hints and captions of a tense of the chosen mood; its forms.
    Q_INVOKABLE QStringList leadingTextsOf(int tense) const;
    Q_INVOKABLE QStringList formsOf(int tense) const;
    Q_INVOKABLE void playTense(int tense) { detail_->page().playTense(tense); }
    Q_INVOKABLE void stopSpeaking() { detail_->stopSpeaking(); }
    /// Of a form of the mood on show.
    Q_INVOKABLE lumora::qt::FormSheetValue formSheet(int tense, int line) const;
    Q_INVOKABLE lumora::qt::TenseNoteValue tenseNote(int tense) const;
    Q_INVOKABLE void saySlowly(int tense, int line, bool fromCollection);
    Q_INVOKABLE void copy(const QString& text) const;
    Q_INVOKABLE void showNeighbour(int places) { detail_->page().showNeighbour(places); }
    Q_INVOKABLE void showRelated(qint64 id) { detail_->page().showRelated(id); }
    /// As the person left the last one, if ever.
    Q_INVOKABLE bool isCardOpen(bool fallback) const
    {
        return detail_->page().isCardOpen(fallback);
    }
    Q_INVOKABLE void keepCardOpen(bool open) { detail_->page().keepCardOpen(open); }
    Q_INVOKABLE void selectMood(int segment) { detail_->selectVerbTypes(segment); }
    /// The page is about to draw the collection.
    Q_INVOKABLE void prepareCollection() const { collection()->loadIfNeeded(); }

signals:
    void outletsChanged();
    void wordsChanged();
    void topTenseChanged();
    void speechChanged();

private:
    QString nameAway(int places) const;
    QVariantList readCard() const;

    std::shared_ptr<detail::VerbDetailTableViewController> detail_;
    std::optional<int> topTense_;
    /// Read once, by many questions to the database: QML asks for it again and again.
    mutable std::optional<QVariantList> card_;
};

} // namespace lumora::qt
