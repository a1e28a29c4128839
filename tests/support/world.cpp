// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "support/world.h"

#include "data/verb_reader.h"
#include "detail/verb_detail_table_view_controller.h"
#include "platform/screens/navigation_controller.h"

#include <algorithm>

namespace lumora::support {

namespace {

constexpr const char* kStatements[] = {
    "CREATE TABLE verb(_id INTEGER PRIMARY KEY, french TEXT, english TEXT, german TEXT, dutch "
    "TEXT, spanish TEXT, italian TEXT, portuguese TEXT, simplified_french TEXT, "
    "simplified_german TEXT, simplified_dutch TEXT, simplified_spanish TEXT, simplified_italian "
    "TEXT, simplified_portuguese TEXT)",
    "CREATE TABLE conjugation(_id INTEGER PRIMARY KEY, verbid INTEGER, pronoun TEXT, verb TEXT, "
    "type TEXT, conj_order INTEGER, display INTEGER)",
    "CREATE TABLE verb_facts(verbid INTEGER PRIMARY KEY, verb_group INTEGER, model TEXT, "
    "like_verbid INTEGER, auxiliary TEXT, traits TEXT, participle TEXT, use_class INTEGER, "
    "divisionsid INTEGER)",
    "CREATE TABLE form_divisions(_id INTEGER PRIMARY KEY, divisions BLOB)",
    "CREATE TABLE favourite(_id INTEGER PRIMARY KEY, verbid INTEGER)",
    "CREATE TABLE history(_id INTEGER PRIMARY KEY, verbid INTEGER, timestamp REAL)",
    "INSERT INTO verb(_id, french, simplified_french, english, german, simplified_german, "
    "portuguese, simplified_portuguese) VALUES"
    "(1, 'avoir', 'avoir', 'have', 'ärgern', 'argern', 'ter', 'ter'),"
    "(2, 'être', 'etre', 'be', 'sein', 'sein', 'ser', 'ser'),"
    "(3, 'aller', 'aller', 'go', 'gehen', 'gehen', 'ir', 'ir'),"
    "(4, 'pouvoir', 'pouvoir', 'Éclat', 'fähig sein', 'fahig sein', 'épico', 'epico'),"
    "(5, 'falloir', 'falloir', 'few', 'sollen', 'sollen', NULL, NULL),"
    "(6, 'évanouir (s'')', 'evanouir', 'so', 'fallen', 'fallen', 'faltar', 'faltar')",
    "INSERT INTO conjugation(verbid, pronoun, verb, type, conj_order, display) VALUES"
    "(3, 'tu', 'vas', 'indicatifPresent', 2, 1),"
    "(3, 'je', 'vais', 'indicatifPresent', 1, 1),"
    "(3, '', 'va', 'imperatif', 3, 1),"
    "(2, 'je', 'suis', 'indicatifPresent', 1, 1)",
};

} // namespace

std::vector<std::string> infinitives(const std::vector<data::VerbPtr>& verbs)
{
    std::vector<std::string> texts(verbs.size());
    std::ranges::transform(verbs, texts.begin(), [](const auto& verb) { return verb->french; });
    return texts;
}

void writeSmallDatabase(const std::filesystem::path& file)
{
    const auto queue = platform::DatabaseQueue::open(platform::fileUrl(file));
    for (const char* statement : kStatements) {
        executeOn(*queue, statement);
    }
}

World::World()
{
    writeSmallDatabase(folder / "small.db");
    queue = platform::DatabaseQueue::open(platform::fileUrl(folder / "small.db"));
    setScriptEngine(scripts);
    storyboard.setServices(services());
    for (const char* name : {"VerbFavouriteToggled", "VerbViewed", "TabOpenEvent"}) {
        subscriptions_.push_back(notifications.addObserver(
            name, [this](const platform::Notification& news) { ++posted[news.name]; }));
    }
}

World::~World() = default;

void World::setScriptEngine(platform::JavaScriptContextFactory& engine)
{
    services_.emplace(platform::Services{
        notifications, settings,       bundle,    device,     clock,       crashReporter, analytics,
        console,       views,          presenter, storyboard, speech,      audioSession,  engine,
        shareSheet,    reviewPrompter, mail,      urlOpener,  fileChooser, viewMemory});
}

void World::execute(const std::string& sql) const
{
    executeOn(*queue, sql);
}

int World::count(const std::string& tableAndCondition) const
{
    return std::stoi(rowsOf(*queue, "SELECT count(*) FROM " + tableAndCondition).at(0));
}

data::VerbPtr World::verb(std::int64_t id) const
{
    data::VerbPtr verb;
    queue->inDatabase([&](platform::Database& database) {
        auto rows = database.executeQuery("SELECT * FROM verb WHERE _id = ?", {id});
        if (rows && rows->next()) {
            verb = data::VerbReader{*rows, data::VerbReader::Spellings::Plain}.readVerb(*rows);
        }
    });
    return verb;
}

FakeTableView& World::table(platform::TableViewController& controller)
{
    return dynamic_cast<FakeTableView&>(controller.tableView());
}

std::shared_ptr<detail::VerbDetailTableViewController> World::shownDetail() const
{
    if (presenter.segues.empty()) {
        return nullptr;
    }
    const auto stack = std::dynamic_pointer_cast<platform::NavigationController>(
        presenter.segues.back().destination);
    return stack ? std::dynamic_pointer_cast<detail::VerbDetailTableViewController>(
                       stack->viewControllers().back())
                 : nullptr;
}

} // namespace lumora::support
