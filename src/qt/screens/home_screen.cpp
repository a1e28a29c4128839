// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "qt/screens/home_screen.h"

#include "lists/search_results_table_view_controller.h"
#include "lists/verb_list_table_view_controller.h"
#include "qt/base/text_conversion.h"
#include "qt/screens/screen_registry.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace lumora::qt {

namespace {

std::vector<SearchReading> readingsOf(const navigation::HomeViewController& home)
{
    std::vector<SearchReading> readings;
    for (const auto& card : home.readings().cards()) {
        readings.push_back(
            {toQString(card.headword), toQString(card.detail), toQString(card.kind)});
    }
    return readings;
}

} // namespace

HomeScreen::HomeScreen(std::shared_ptr<navigation::HomeViewController> controller,
                       ScreenRegistry& registry)
    : Screen{controller, QStringLiteral("HomePage")},
      home_{std::move(controller)},
      registry_{registry}
{
    home_->setOutletListener([this] { update(); });
    update();
}

HomeScreen::~HomeScreen()
{
    home_->setOutletListener({});
}

void HomeScreen::update()
{
    const auto& current = home_->currentChild();
    auto& list = lists_.at(static_cast<std::size_t>(selectedTab()));
    if (current != list) {
        list = current;
        emit listsChanged();
    }
    emit outletsChanged();
    // Only then are the cards drawn anew.
    if (auto readings = readingsOf(*home_); readings != readings_) {
        readings_ = std::move(readings);
        emit readingsChanged();
    }
    if (auto visible = visibleChildren(); visible != shown_) {
        shown_ = std::move(visible);
        emit childrenChanged();
    }
    if (const auto text = searchText(); std::exchange(searched_, text) != text) {
        emit searchChanged();
    }
}

bool HomeScreen::isSearching() const
{
    return home_->searchResultsController() && !home_->searchBar.text.empty();
}

QVariantList HomeScreen::tabs() const
{
    QVariantList tabs;
    for (const auto& item : home_->tabBar.items) {
        tabs.append(QVariant::fromValue(
            HomeTab{static_cast<int>(item.tag), toQString(item.title), toQString(item.image)}));
    }
    return tabs;
}

QString HomeScreen::titleOfTab(int tag) const
{
    const auto& items = home_->tabBar.items;
    const auto found = std::find_if(items.begin(), items.end(), [tag](const auto& item) {
        return static_cast<int>(item.tag) == tag;
    });
    return found == items.end() ? QString{} : toQString(found->title);
}

QList<QObject*> HomeScreen::lists() const
{
    QList<QObject*> screens;
    for (const auto& list : lists_) {
        screens.append(list ? registry_.screenFor(list) : nullptr);
    }
    return screens;
}

TableScreen* HomeScreen::currentList() const
{
    const auto& current = home_->currentChild();
    return current ? qobject_cast<TableScreen*>(registry_.screenFor(current)) : nullptr;
}

TableScreen* HomeScreen::searchResults() const
{
    const auto& results = home_->searchResultsController();
    return results ? qobject_cast<TableScreen*>(registry_.screenFor(results)) : nullptr;
}

bool HomeScreen::isChosen(lists::VerbChip chip) const
{
    return home_->verbList().filter().isChosen(chip);
}

void HomeScreen::choose(lists::VerbChip chip, bool chosen)
{
    home_->verbList().choose(chip, chosen);
    emit chipsChanged();
}

QVariantList HomeScreen::readings() const
{
    QVariantList cards;
    for (const auto& reading : readings_) {
        cards.append(QVariant::fromValue(reading));
    }
    return cards;
}

QString HomeScreen::searchPlaceholder() const
{
    return toQString(home_->searchBar.placeholder);
}

QString HomeScreen::searchText() const
{
    return toQString(home_->searchBar.text);
}

QString HomeScreen::searchIdentifier() const
{
    return toQString(home_->searchBar.accessibilityIdentifier);
}

void HomeScreen::setOpenVerb(int id)
{
    if (std::exchange(openVerb_, id) != id) {
        emit openVerbChanged();
    }
}

void HomeScreen::selectTab(int tag)
{
    home_->didSelectItem(static_cast<navigation::Tab>(tag));
}

void HomeScreen::changeSearchText(const QString& text)
{
    if (text != searchText()) {
        home_->searchTextChanged(toUtf8(text));
    }
}

void HomeScreen::searchFocusChanged(bool focused)
{
    home_->searchBar.isFirstResponder = focused;
}

std::vector<std::shared_ptr<platform::ViewController>> HomeScreen::visibleChildren() const
{
    // The results lie over the list, which does not go away for them.
    std::vector<std::shared_ptr<platform::ViewController>> visible;
    if (home_->currentChild()) {
        visible.push_back(home_->currentChild());
    }
    if (isSearching()) {
        visible.push_back(home_->searchResultsController());
    }
    return visible;
}

std::vector<std::shared_ptr<platform::ViewController>> HomeScreen::keptChildren() const
{
    std::vector<std::shared_ptr<platform::ViewController>> children;
    std::copy_if(lists_.begin(), lists_.end(), std::back_inserter(children),
                 [](const auto& list) { return list != nullptr; });
    if (home_->searchResultsController()) {
        children.push_back(home_->searchResultsController());
    }
    return children;
}

} // namespace lumora::qt
