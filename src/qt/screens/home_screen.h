// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#pragma once

#include "lists/verb_filter.h"
#include "navigation/home_view_controller.h"
#include "qt/screens/screen.h"
#include "qt/screens/table_screen.h"

#include <array>

namespace lumora::qt {

class ScreenRegistry;

/// One of the tabs below the lists.
struct HomeTab {
    Q_GADGET
    QML_VALUE_TYPE(homeTab)
    Q_PROPERTY(int tag MEMBER tag FINAL)
    Q_PROPERTY(QString title MEMBER title FINAL)
    Q_PROPERTY(QString image MEMBER image FINAL)

public:
    int tag = 0;
    QString title;
    QString image;
};

/// A verb that the text of the search may mean, as its card shows it.
struct SearchReading {
    Q_GADGET
    QML_VALUE_TYPE(searchReading)
    Q_PROPERTY(QString headword MEMBER headword FINAL)
    Q_PROPERTY(QString detail MEMBER detail FINAL)
    Q_PROPERTY(QString kind MEMBER kind FINAL)

public:
    QString headword;
    QString detail;
    QString kind;
    bool operator==(const SearchReading&) const = default;
};

/// The home screen: its tabs, the lists behind them and the search over them.
class HomeScreen final : public lumora::qt::Screen {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made by the registry")
    Q_PROPERTY(QVariantList tabs READ tabs NOTIFY outletsChanged)
    Q_PROPERTY(int selectedTab READ selectedTab NOTIFY outletsChanged)
    Q_PROPERTY(QList<QObject*> lists READ lists NOTIFY listsChanged)
    Q_PROPERTY(lumora::qt::TableScreen* currentList READ currentList NOTIFY outletsChanged)
    Q_PROPERTY(lumora::qt::TableScreen* searchResults READ searchResults NOTIFY outletsChanged)
    Q_PROPERTY(QString searchPlaceholder READ searchPlaceholder NOTIFY outletsChanged)
    Q_PROPERTY(QString searchText READ searchText NOTIFY outletsChanged)
    Q_PROPERTY(QString searchIdentifier READ searchIdentifier NOTIFY outletsChanged)
    // The verb that is open beside the lists; 0 for none.
    Q_PROPERTY(int openVerb READ openVerb NOTIFY openVerbChanged)
    // What the list of all verbs is narrowed to.
    Q_PROPERTY(bool commonOnly READ commonOnly WRITE setCommonOnly NOTIFY chipsChanged)
    Q_PROPERTY(bool irregularOnly READ irregularOnly WRITE setIrregularOnly NOTIFY chipsChanged)
    Q_PROPERTY(QVariantList readings READ readings NOTIFY readingsChanged)
    Q_PROPERTY(bool nothingFound READ nothingFound NOTIFY outletsChanged)
    Q_PROPERTY(bool formsOffered READ formsOffered NOTIFY outletsChanged)
    Q_PROPERTY(bool searchFocus READ searchFocus NOTIFY outletsChanged)

public:
    /// The registry must outlive the screen.
    HomeScreen(std::shared_ptr<navigation::HomeViewController> controller,
               ScreenRegistry& registry);
    ~HomeScreen() override;

    /// Of HomeTab.
    QVariantList tabs() const;
    int selectedTab() const { return static_cast<int>(home_->tabBar.selectedItem); }
    /// By the tags of their tabs; null before a list is first shown. Behind the
    /// others a list keeps its place.
    QList<QObject*> lists() const;
    TableScreen* currentList() const;
    /// Null before the screen is built.
    TableScreen* searchResults() const;
    QString searchPlaceholder() const;
    QString searchText() const;
    QString searchIdentifier() const;
    bool searchFocus() const { return home_->searchBar.isFirstResponder; }

    int openVerb() const { return openVerb_; }
    void setOpenVerb(int id);

    /// Empty where there is no such tab.
    Q_INVOKABLE QString titleOfTab(int tag) const;

    bool commonOnly() const { return isChosen(lists::VerbChip::Common); }
    bool irregularOnly() const { return isChosen(lists::VerbChip::Irregular); }
    void setCommonOnly(bool chosen) { choose(lists::VerbChip::Common, chosen); }
    void setIrregularOnly(bool chosen) { choose(lists::VerbChip::Irregular, chosen); }

    /// Of SearchReading.
    QVariantList readings() const;
    /// The readings stand in place of the results.
    bool nothingFound() const { return home_->readings().replaceResults(); }
    bool formsOffered() const { return home_->readings().offersForms(); }

    Q_INVOKABLE void openReading(int card)
    {
        home_->didSelectReading(static_cast<std::size_t>(card));
    }
    /// The first reading, else the first result.
    Q_INVOKABLE void openFirst() { home_->searchBarSearchButtonClicked(); }
    Q_INVOKABLE void showFormsOption() { home_->showFormsOption(); }
    Q_INVOKABLE void selectTab(int tag);
    Q_INVOKABLE void showOptions() { home_->showOptions(); }
    Q_INVOKABLE void focusSearch() { home_->focusSearchBar(); }
    Q_INVOKABLE void changeSearchText(const QString& text);
    /// The search field has got the keyboard or lost it.
    Q_INVOKABLE void searchFocusChanged(bool focused);

    std::vector<std::shared_ptr<platform::ViewController>> visibleChildren() const override;
    std::vector<std::shared_ptr<platform::ViewController>> keptChildren() const override;

signals:
    void outletsChanged();
    void listsChanged();
    void openVerbChanged();
    void readingsChanged();
    void chipsChanged();
    /// Another text is searched for.
    void searchChanged();

private:
    void update();
    bool isSearching() const;
    bool isChosen(lists::VerbChip chip) const;
    void choose(lists::VerbChip chip, bool chosen);

    std::shared_ptr<navigation::HomeViewController> home_;
    ScreenRegistry& registry_;
    std::array<std::shared_ptr<platform::ViewController>, 3> lists_;
    std::vector<std::shared_ptr<platform::ViewController>> shown_;
    int openVerb_ = 0;
    QString searched_;
    std::vector<SearchReading> readings_;
};

} // namespace lumora::qt
