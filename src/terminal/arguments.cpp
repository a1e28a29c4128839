// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "terminal/arguments.h"

#include "terminal/output.h"
#include "text/text.h"

#include <algorithm>
#include <cerrno>
#include <charconv>
#include <string_view>
#include <utility>

namespace lumora::terminal {

namespace {

constexpr const char* kGeneralHelp =
    R"help(Usage: lumora-cli COMMAND [OPTIONS] [TEXT]

French verbs and all their forms.

Commands:
  conjugate VERB     print every mood and tense of a verb
  about VERB         print a verb's group, model and auxiliary
  lookup TEXT        print what verb and form a text may mean
  search TEXT        print the verbs that begin with TEXT
  export VERB        print a verb's conjugations as a document
  backup FILE        save favourites and history to a file
  restore FILE       add the favourites and the history of a file
  help [COMMAND]     print this, or the options of a command
  version            print the version

On a terminal the output is in columns, in a pipe it has tabs between fields.
)help";

constexpr const char* kConjugateHelp =
    R"help(Usage: lumora-cli conjugate [--stems] [--ipa] [--language CODE] VERB|-

Print every mood and tense of a verb.

VERB may be typed without its accents; a pronominal verb as "s'évanouir",
"évanouir" or "évanouir (s')". Verbs that share a name are all printed. For "-"
the verbs are read from standard input, one a line.

Options:
  --stems            put "|" before the ending of each simple form
  --ipa              add how each row is said, in IPA

In a pipe each line holds verb, mood, tense, pronoun and form, then the IPA.
)help";

constexpr const char* kAboutHelp =
    R"help(Usage: lumora-cli about VERB

Print what is known of a verb's grammar: its infinitive, present and past, its
group, its model and the verb that it is conjugated like, its auxiliaries, its
traits, the tenses that it is not used in or, where they are few, those that it
is used in, how common it is, from 1 (the 100 commonest verbs) to 5 (rare, old
or of a trade), its partners with or without se, and common verbs that are
conjugated alike.

In a pipe each line holds a name and a value.
)help";

constexpr const char* kLookupHelp =
    R"help(Usage: lumora-cli lookup [--language CODE] TEXT|-

Print which verbs and forms a text may mean, the likeliest first: a form with or
without its pronoun ("irions", "que j'aille", "va-t'en"), a translation ("to
go"), a word that is misspelt or written as it sounds, the verbs of a sentence.
For "-" the texts are read from standard input, one a line, and each is printed
before what it may mean.

In a pipe each line holds verb, form, mood, tense, pronoun and how the text was
understood: exact, folded (but for case and accents), phrase, meaning, slip,
sound or inside.
)help";

constexpr const char* kSearchHelp =
    R"help(Usage: lumora-cli search [OPTIONS] TEXT

Print the verbs that begin with TEXT, with their translation.

Options:
  --anywhere         TEXT may stand anywhere in the verb
  --conjugations     search the conjugated forms too
  --translations     search the translations too

"%" stands for any letters, "_" for one.
In a pipe each line holds verb and translation.
)help";

constexpr const char* kExportHelp =
    R"help(Usage: lumora-cli export --html|--text [--number N] [--language CODE] VERB

Print a verb's conjugations as a document. Of verbs that share the name it is
the commonest; standard error tells the others and their numbers.

Options:
  --html             a page to print or to show
  --text             plain text for an e-mail
  --number N         the N-th of the verbs that share the name
)help";

constexpr const char* kBackupHelp =
    R"help(Usage: lumora-cli backup FILE

Save the favourites and the history of lumora to a file. A file of that name
is replaced.
)help";

constexpr const char* kRestoreHelp =
    R"help(Usage: lumora-cli restore FILE

Add the favourites and the history of a file to those of lumora. Nothing is
lost and nothing comes twice; the history keeps its newest verbs. A lumora that
is running shows it the next time that it reads its lists.
)help";

constexpr const char* kCommonHelp = R"help(
Common options:
  --language CODE    translate into en, fr, de, es, pt, it or nl
  -h, --help         print this
)help";

constexpr std::pair<Command, const char*> kHelpTexts[] = {
    {Command::Conjugate, kConjugateHelp}, {Command::About, kAboutHelp},
    {Command::Lookup, kLookupHelp},       {Command::Search, kSearchHelp},
    {Command::Export, kExportHelp},       {Command::Backup, kBackupHelp},
    {Command::Restore, kRestoreHelp},
};

/// In the place of a verb: the verbs are read from standard input.
constexpr std::string_view kInput = "-";

constexpr std::string_view kLanguages[] = {"en", "fr", "de", "es", "pt", "it", "nl"};

constexpr std::pair<std::string_view, Command> kCommands[] = {
    {"conjugate", Command::Conjugate}, {"about", Command::About},
    {"lookup", Command::Lookup},       {"search", Command::Search},
    {"export", Command::Export},       {"backup", Command::Backup},
    {"restore", Command::Restore},     {"help", Command::Help},
    {"--help", Command::Help},         {"-h", Command::Help},
    {"version", Command::Version},     {"--version", Command::Version},
    {"-v", Command::Version},
};

constexpr std::pair<std::string_view, bool Arguments::*> kSearchOptions[] = {
    {"--anywhere", &Arguments::anywhere},
    {"--conjugations", &Arguments::conjugations},
    {"--translations", &Arguments::translations},
};

constexpr std::pair<std::string_view, bool Arguments::*> kConjugateOptions[] = {
    {"--stems", &Arguments::stems},
    {"--ipa", &Arguments::ipa},
};

constexpr std::pair<std::string_view, Format> kFormats[] = {
    {"--html", Format::Html},
    {"--text", Format::Text},
};

tl::unexpected<platform::Error> refusal(std::string message)
{
    return tl::unexpected(platform::Error{std::move(message), EINVAL});
}

template <typename Table>
auto lookUp(const Table& table, std::string_view word)
{
    return std::find_if(std::begin(table), std::end(table),
                        [&](const auto& entry) { return entry.first == word; });
}

bool takesFile(std::optional<Command> command)
{
    return command == Command::Backup || command == Command::Restore;
}

bool takesInput(Command command)
{
    return command == Command::Conjugate || command == Command::Lookup;
}

platform::Result<void> addText(Arguments& arguments, std::string_view word)
{
    if (takesFile(arguments.command)) {
        if (!arguments.text.empty()) {
            return refusal("one file at a time");
        }
        arguments.text = word;
        return {};
    }
    if (takesInput(arguments.command) && word == kInput) {
        arguments.verbsFromInput = true;
        return {};
    }
    // "se méfier" need not be quoted.
    arguments.text += arguments.text.empty() ? "" : " ";
    arguments.text += text::wellFormed(word);
    return {};
}

/// One option without a value; an error where the command has none such.
platform::Result<void> setOption(Arguments& arguments, std::string_view word)
{
    const auto* const option = lookUp(kSearchOptions, word);
    if (option != std::end(kSearchOptions) && arguments.command == Command::Search) {
        arguments.*option->second = true;
        return {};
    }
    const auto* const addition = lookUp(kConjugateOptions, word);
    if (addition != std::end(kConjugateOptions) && arguments.command == Command::Conjugate) {
        arguments.*addition->second = true;
        return {};
    }
    const auto* const format = lookUp(kFormats, word);
    if (format != std::end(kFormats) && arguments.command == Command::Export) {
        if (arguments.format && *arguments.format != format->second) {
            return refusal("--html and --text exclude each other");
        }
        arguments.format = format->second;
        return {};
    }
    return refusal("this command has no option " + inQuotes(word));
}

platform::Result<void> setLanguage(Arguments& arguments, std::string_view code)
{
    if (std::find(std::begin(kLanguages), std::end(kLanguages), code) == std::end(kLanguages)) {
        return refusal("there are no translations into " + inQuotes(code) +
                       ", only into en, fr, de, es, pt, it and nl");
    }
    arguments.language = code;
    return {};
}

platform::Result<void> setNumber(Arguments& arguments, std::string_view text)
{
    if (arguments.command != Command::Export) {
        return refusal("this command has no option \"--number\"");
    }
    std::size_t number = 0;
    const auto* const end = text.data() + text.size();
    if (std::from_chars(text.data(), end, number).ptr != end || number == 0) {
        return refusal("--number counts verbs from 1, not " + inQuotes(text));
    }
    arguments.number = number;
    return {};
}

struct ValuedOption {
    std::string_view name;
    std::string_view needs;
    platform::Result<void> (*set)(Arguments& arguments, std::string_view value);
};

constexpr ValuedOption kValuedOptions[] = {
    {"--language", " needs a code", setLanguage},
    {"--number", " needs a number", setNumber},
};

/// The option that the word names, with or without its value; null when it names
/// none.
const ValuedOption* valuedOption(std::string_view word)
{
    const auto name = word.substr(0, word.find('='));
    const auto* const found =
        std::find_if(std::begin(kValuedOptions), std::end(kValuedOptions),
                     [&](const ValuedOption& option) { return option.name == name; });
    return found == std::end(kValuedOptions) ? nullptr : found;
}

using Words = std::vector<std::string>;

/// Takes the value behind "=" or the next word, at which `word` stands then.
platform::Result<void> setValued(const ValuedOption& option, Arguments& arguments,
                                 Words::const_iterator& word, Words::const_iterator end)
{
    if (word->size() > option.name.size()) {
        return option.set(arguments, std::string_view{*word}.substr(option.name.size() + 1));
    }
    if (word + 1 == end) {
        return refusal(std::string{option.name} + std::string{option.needs});
    }
    return option.set(arguments, *++word);
}

platform::Result<void> checkComplete(const Arguments& arguments)
{
    if (arguments.verbsFromInput && !arguments.text.empty()) {
        return refusal(arguments.command == Command::Lookup
                           ? "either a text or \"-\" for those of standard input"
                           : "either a verb or \"-\" for those of standard input");
    }
    if (arguments.text.empty() && !arguments.verbsFromInput) {
        const bool text =
            arguments.command == Command::Search || arguments.command == Command::Lookup;
        return refusal(takesFile(arguments.command) ? "which file?"
                       : text                       ? "which text?"
                                                    : "which verb?");
    }
    if (arguments.command == Command::Export && !arguments.format) {
        return refusal("export needs --html or --text");
    }
    return {};
}

platform::Result<void> readWords(Arguments& arguments, const Words& words)
{
    bool optionsEnded = false;
    for (auto word = words.begin() + 1; word != words.end(); ++word) {
        platform::Result<void> read;
        const bool input = *word == kInput && takesInput(arguments.command);
        if (optionsEnded || input || !word->starts_with('-')) {
            read = addText(arguments, *word);
        } else if (*word == "--") {
            optionsEnded = true;
        } else if (*word == "--help" || *word == "-h") {
            arguments.topic = std::exchange(arguments.command, Command::Help);
            return {};
        } else if (takesFile(arguments.command)) {
            read = refusal("this command has no option " + inQuotes(*word));
        } else if (const auto* const option = valuedOption(*word)) {
            read = setValued(*option, arguments, word, words.end());
        } else {
            read = setOption(arguments, *word);
        }
        if (!read) {
            return read;
        }
    }
    return checkComplete(arguments);
}

platform::Result<void> checkCount(const std::vector<std::string>& words, std::size_t most)
{
    return words.size() > most ? refusal("one word too many: " + inQuotes(words[most]))
                               : platform::Result<void>{};
}

platform::Result<Command> commandNamed(std::string_view word)
{
    const auto* const command = lookUp(kCommands, word);
    if (command == std::end(kCommands)) {
        return refusal("no command " + inQuotes(word) + "; try --help");
    }
    return command->second;
}

} // namespace

std::string helpText(std::optional<Command> topic)
{
    const auto* const text = std::find_if(std::begin(kHelpTexts), std::end(kHelpTexts),
                                          [&](const auto& entry) { return entry.first == topic; });
    return text == std::end(kHelpTexts)
               ? std::string{kGeneralHelp}
               : std::string{text->second} + (takesFile(topic) ? "" : kCommonHelp);
}

platform::Result<Arguments> parseArguments(const std::vector<std::string>& words)
{
    if (words.empty()) {
        return refusal("no command; try --help");
    }
    const auto command = commandNamed(words.front());
    if (!command) {
        return tl::unexpected(command.error());
    }
    Arguments arguments;
    arguments.command = *command;
    if (arguments.command == Command::Version) {
        return checkCount(words, 1).map([&] { return arguments; });
    }
    if (arguments.command == Command::Help) {
        if (auto fits = checkCount(words, 2); !fits || words.size() == 1) {
            return fits.map([&] { return arguments; });
        }
        return commandNamed(words[1]).map([&](Command topic) {
            arguments.topic = topic;
            return std::move(arguments);
        });
    }
    return readWords(arguments, words).map([&] { return std::move(arguments); });
}

} // namespace lumora::terminal
