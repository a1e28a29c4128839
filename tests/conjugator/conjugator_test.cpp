// SPDX-FileCopyrightText: The Lumora authors
// SPDX-License-Identifier: GPL-3.0-or-later

#include "conjugator/conjugator.h"

#include "conjugator/text_table.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <string>
#include <vector>

namespace lumora::conjugator {
namespace {

const Conjugator& conjugator()
{
    static const Conjugator shared(ModelTable(TextTable::read(
        std::filesystem::path(LUMORA_CONTENT_DIR) / "models.tsv", ModelTable::header())));
    return shared;
}

VerbEntry verb(std::string infinitive, std::string model)
{
    VerbEntry entry;
    entry.infinitive = std::move(infinitive);
    entry.model = std::move(model);
    return entry;
}

/// The shown rows of one tense, "pronoun verb" or "verb", divided by " | ".
std::string block(const VerbEntry& entry, Tense tense)
{
    std::string text;
    for (const auto& row : conjugator().rows(entry)) {
        if (row.shown && row.tense == tense) {
            text += (text.empty() ? "" : " | ") + row.pronoun +
                    (row.pronoun.empty() || row.pronoun.ends_with('\'') ? "" : " ") + row.verb;
        }
    }
    return text;
}

std::vector<std::string> searched(const VerbEntry& entry)
{
    std::vector<std::string> verbs;
    for (const auto& row : conjugator().rows(entry)) {
        if (!row.shown) {
            verbs.push_back(row.verb);
        }
    }
    return verbs;
}

bool contains(const std::vector<std::string>& texts, const std::string& text)
{
    return std::find(texts.begin(), texts.end(), text) != texts.end();
}

constexpr auto kPresent = Tense::IndicatifPresent;
constexpr auto kImperfect = Tense::IndicatifImparfait;
constexpr auto kPast = Tense::IndicatifPasseSimple;
constexpr auto kFuture = Tense::IndicatifFuturSimple;
constexpr auto kConditional = Tense::ConditionnelPresent;
constexpr auto kSubjunctive = Tense::SubjonctifPresent;
constexpr auto kPastSubjunctive = Tense::SubjonctifImparfait;
constexpr auto kImperative = Tense::Imperatif;
constexpr auto kParticiple = Tense::Participe;

TEST(Conjugator, FormsWhatTheGrammarsGive)
{
    struct Case {
        const char* infinitive;
        const char* model;
        Tense tense;
        const char* pronoun;
        const char* expected;
    };
    constexpr Case cases[] = {
        // auxiliaries
        {"avoir", "avoir", kPresent, "ils/elles", "ont"},
        {"avoir", "avoir", kSubjunctive, "qu'il/elle/on", "ait"},
        {"avoir", "avoir", kPast, "nous", "eûmes"},
        {"être", "être", kImperfect, "j'", "étais"},
        {"être", "être", kPresent, "vous", "êtes"},
        {"être", "être", kPastSubjunctive, "qu'il/elle/on", "fût"},
        {"être", "être", kSubjunctive, "que nous", "soyons"},
        // first group: c and g
        {"placer", "placer", kPresent, "nous", "plaçons"},
        {"placer", "placer", kImperfect, "nous", "placions"},
        {"placer", "placer", kPast, "ils/elles", "placèrent"},
        {"manger", "manger", kImperfect, "je", "mangeais"},
        {"manger", "manger", kImperfect, "vous", "mangiez"},
        {"manger", "manger", kPast, "nous", "mangeâmes"},
        {"manger", "manger", kPast, "ils/elles", "mangèrent"},
        {"manger", "manger", kPastSubjunctive, "qu'il/elle/on", "mangeât"},
        {"conjuguer", "aimer", kPresent, "nous", "conjuguons"},
        // é, e, double consonants
        {"céder", "céder", kPresent, "je", "cède"},
        {"céder", "céder", kFuture, "je", "céderai, cèderai"},
        {"céder", "céder", kConditional, "nous", "céderions, cèderions"},
        {"révéler", "céder", kPresent, "tu", "révèles"},
        {"célébrer", "céder", kPresent, "il/elle/on", "célèbre"},
        {"alléguer", "céder", kPresent, "ils/elles", "allèguent"},
        {"hypothéquer", "céder", kSubjunctive, "que j'", "hypothèque"},
        {"protéger", "protéger", kPresent, "nous", "protégeons"},
        {"protéger", "protéger", kPresent, "ils/elles", "protègent"},
        {"protéger", "protéger", kImperfect, "nous", "protégions"},
        {"rapiécer", "rapiécer", kPresent, "nous", "rapiéçons"},
        {"rapiécer", "rapiécer", kPast, "ils/elles", "rapiécèrent"},
        {"créer", "aimer", kPresent, "je", "crée"},
        {"peser", "peser", kFuture, "je", "pèserai"},
        {"sevrer", "peser", kPresent, "il/elle/on", "sèvre"},
        {"dépecer", "dépecer", kPresent, "nous", "dépeçons"},
        {"dépecer", "dépecer", kFuture, "je", "dépècerai"},
        {"acheter", "acheter", kPresent, "ils/elles", "achètent"},
        {"geler", "geler", kConditional, "il/elle/on", "gèlerait"},
        {"appeler", "appeler", kPresent, "j'", "appelle"},
        {"appeler", "appeler", kImperfect, "nous", "appelions"},
        {"jeter", "jeter", kFuture, "je", "jetterai"},
        {"jeter", "jeter", kPast, "ils/elles", "jetèrent"},
        {"amonceler", "amonceler", kPresent, "il/elle/on", "amoncelle, amoncèle"},
        {"étiqueter", "étiqueter", kFuture, "j'", "étiquetterai, étiquèterai"},
        // y
        {"payer", "payer", kPresent, "je", "paie, paye"},
        {"payer", "payer", kImperfect, "nous", "payions"},
        {"nettoyer", "nettoyer", kPresent, "ils/elles", "nettoient"},
        {"nettoyer", "nettoyer", kSubjunctive, "que vous", "nettoyiez"},
        {"essuyer", "essuyer", kFuture, "j'", "essuierai"},
        {"grasseyer", "aimer", kPresent, "je", "grasseye"},
        {"renvoyer", "envoyer", kFuture, "je", "renverrai"},
        {"arguer", "arguer", kPresent, "j'", "argue, argüe"},
        {"étudier", "aimer", kImperfect, "nous", "étudiions"},
        {"aller", "aller", kPresent, "je", "vais"},
        {"aller", "aller", kFuture, "j'", "irai"},
        {"aller", "aller", kSubjunctive, "que nous", "allions"},
        // second group
        {"finir", "finir", kPresent, "nous", "finissons"},
        {"finir", "finir", kPastSubjunctive, "que je", "finisse"},
        {"haïr", "haïr", kPresent, "j'", "hais"}, // the entry below is not aspirated
        {"haïr", "haïr", kPast, "nous", "haïmes"},
        {"maudire", "maudire", kPresent, "nous", "maudissons"},
        {"fleurir", "fleurir", kImperfect, "il/elle/on", "fleurissait, florissait"},
        // -ir
        {"redevenir", "tenir", kPresent, "je", "redeviens"},
        {"tenir", "tenir", kPast, "nous", "tînmes"},
        {"tenir", "tenir", kPastSubjunctive, "que je", "tinsse"},
        {"tenir", "tenir", kFuture, "je", "tiendrai"},
        {"conquérir", "acquérir", kPresent, "ils/elles", "conquièrent"},
        {"acquérir", "acquérir", kFuture, "j'", "acquerrai"},
        {"consentir", "sentir", kPresent, "je", "consens"},
        {"dormir", "dormir", kPresent, "il/elle/on", "dort"},
        {"servir", "servir", kPresent, "tu", "sers"},
        {"vêtir", "vêtir", kPresent, "il/elle/on", "vêt"},
        {"souffrir", "couvrir", kPresent, "je", "souffre"},
        {"accueillir", "cueillir", kFuture, "j'", "accueillerai"},
        {"assaillir", "assaillir", kFuture, "j'", "assaillirai"},
        {"saillir", "saillir", kFuture, "il/elle/on", "saillera"},
        {"bouillir", "bouillir", kPresent, "je", "bous"},
        {"bouillir", "bouillir", kPresent, "ils/elles", "bouillent"},
        {"mourir", "mourir", kPresent, "ils/elles", "meurent"},
        {"mourir", "mourir", kConditional, "je", "mourrais"},
        {"parcourir", "courir", kFuture, "je", "parcourrai"},
        {"courir", "courir", kPast, "vous", "courûtes"},
        {"fuir", "fuir", kPresent, "nous", "fuyons"},
        {"fuir", "fuir", kPresent, "ils/elles", "fuient"},
        {"gésir", "gésir", kPresent, "il/elle/on", "gît, git"},
        {"gésir", "gésir", kImperfect, "ils/elles", "gisaient"},
        // -oir
        {"apercevoir", "recevoir", kPresent, "j'", "aperçois"},
        {"recevoir", "recevoir", kSubjunctive, "que nous", "recevions"},
        {"voir", "voir", kFuture, "je", "verrai"},
        {"voir", "voir", kImperfect, "nous", "voyions"},
        {"prévoir", "prévoir", kFuture, "je", "prévoirai"},
        {"pourvoir", "pourvoir", kPast, "je", "pourvus"},
        {"savoir", "savoir", kSubjunctive, "que je", "sache"},
        {"devoir", "devoir", kPresent, "ils/elles", "doivent"},
        {"pouvoir", "pouvoir", kPresent, "je", "peux, puis"},
        {"pouvoir", "pouvoir", kSubjunctive, "que nous", "puissions"},
        {"émouvoir", "émouvoir", kPresent, "ils/elles", "émeuvent"},
        {"falloir", "falloir", kPastSubjunctive, "qu'il/elle/on", "fallût"},
        {"pleuvoir", "pleuvoir", kPast, "il/elle/on", "plut"},
        {"valoir", "valoir", kSubjunctive, "que je", "vaille"},
        {"prévaloir", "prévaloir", kSubjunctive, "que je", "prévale"},
        {"vouloir", "vouloir", kSubjunctive, "que nous", "voulions"},
        {"asseoir", "asseoir", kPresent, "j'", "assieds, assois"},
        {"asseoir", "asseoir", kImperfect, "nous", "asseyions, assoyions"},
        {"asseoir", "asseoir", kFuture, "j'", "assiérai, assoirai"},
        {"asseoir", "asseoir", kSubjunctive, "qu'ils/elles", "asseyent, assoient"},
        {"seoir", "seoir", kPresent, "ils/elles", "siéent"},
        {"échoir", "échoir", kFuture, "il/elle/on", "échoira, écherra"},
        // -re
        {"répondre", "rendre", kPresent, "il/elle/on", "répond"},
        {"interrompre", "rompre", kPresent, "il/elle/on", "interrompt"},
        {"apprendre", "prendre", kPresent, "ils/elles", "apprennent"},
        {"combattre", "battre", kPresent, "il/elle/on", "combat"},
        {"promettre", "mettre", kPast, "je", "promis"},
        {"peindre", "peindre", kImperfect, "nous", "peignions"},
        {"craindre", "craindre", kPast, "je", "craignis"},
        {"joindre", "joindre", kPresent, "je", "joins"},
        {"convaincre", "vaincre", kPresent, "il/elle/on", "convainc"},
        {"convaincre", "vaincre", kSubjunctive, "que je", "convainque"},
        {"distraire", "traire", kPresent, "nous", "distrayons"},
        {"satisfaire", "faire", kPresent, "vous", "satisfaites"},
        {"faire", "faire", kImperfect, "vous", "faisiez"},
        {"faire", "faire", kFuture, "je", "ferai"},
        {"plaire", "plaire", kPresent, "il/elle/on", "plaît, plait"},
        {"taire", "taire", kPresent, "il/elle/on", "tait"},
        {"reconnaître", "connaître", kPresent, "il/elle/on", "reconnaît, reconnait"},
        {"connaître", "connaître", kFuture, "je", "connaîtrai, connaitrai"},
        {"naître", "naître", kPast, "il/elle/on", "naquit"},
        {"croître", "croître", kPresent, "je", "croîs"},
        {"croître", "croître", kPast, "ils/elles", "crûrent"},
        {"accroître", "accroître", kPresent, "j'", "accrois"},
        {"croire", "croire", kImperfect, "nous", "croyions"},
        {"boire", "boire", kSubjunctive, "que nous", "buvions"},
        {"clore", "clore", kPresent, "il/elle/on", "clôt"},
        {"clore", "clore", kSubjunctive, "que nous", "closions"},
        {"conclure", "conclure", kSubjunctive, "que nous", "concluions"},
        {"dissoudre", "absoudre", kPresent, "nous", "dissolvons"},
        {"résoudre", "résoudre", kPast, "je", "résolus"},
        {"découdre", "coudre", kPresent, "nous", "décousons"},
        {"moudre", "moudre", kPresent, "il/elle/on", "moud"},
        {"moudre", "moudre", kPresent, "ils/elles", "moulent"},
        {"survivre", "vivre", kPast, "il/elle/on", "survécut"},
        {"poursuivre", "suivre", kPresent, "je", "poursuis"},
        {"élire", "lire", kPast, "j'", "élus"},
        {"redire", "dire", kPresent, "vous", "redites"},
        {"contredire", "contredire", kPresent, "vous", "contredisez"},
        {"sourire", "rire", kSubjunctive, "que nous", "souriions"},
        {"décrire", "écrire", kPast, "je", "décrivis"},
        {"traduire", "cuire", kPast, "je", "traduisis"},
        {"suffire", "suffire", kPast, "il/elle/on", "suffit"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(std::string(c.infinitive) + ", " + c.pronoun + " " + c.expected);
        std::string found;
        for (const auto& row : conjugator().rows(verb(c.infinitive, c.model))) {
            if (row.shown && row.tense == c.tense && row.pronoun == c.pronoun) {
                found += row.verb;
            }
        }
        EXPECT_EQ(found, c.expected);
    }
}

TEST(Conjugator, FormsImperativesAndParticiples)
{
    struct Case {
        const char* infinitive;
        const char* model;
        Tense tense;
        const char* expected;
    };
    constexpr Case cases[] = {
        {"parler", "aimer", kImperative,
         "parle | parlons | parlez | aie parlé | ayons parlé | ayez parlé"},
        {"ouvrir", "couvrir", kImperative,
         "ouvre | ouvrons | ouvrez | aie ouvert | ayons ouvert | ayez ouvert"},
        {"vouloir", "vouloir", kImperative,
         "veuille, veux | veuillons, voulons | veuillez, voulez"
         " | aie voulu | ayons voulu | ayez voulu"},
        {"savoir", "savoir", kImperative, "sache | sachons | sachez | aie su | ayons su | ayez su"},
        {"pouvoir", "pouvoir", kImperative, ""},
        {"frire", "frire", kImperative, "fris | aie frit | ayons frit | ayez frit"},
        {"parler", "aimer", kParticiple,
         "parlant | parlé | parlée | parlés | parlées | ayant parlé"},
        {"manger", "manger", kParticiple,
         "mangeant | mangé | mangée | mangés | mangées | ayant mangé"},
        {"mettre", "mettre", kParticiple, "mettant | mis | mise | mis | mises | ayant mis"},
        {"devoir", "devoir", kParticiple, "devant | dû | due | dus | dues | ayant dû"},
        {"absoudre", "absoudre", kParticiple,
         "absolvant | absous, absout | absoute | absous, absouts | absoutes"
         " | ayant absous, ayant absout"},
        {"acquérir", "acquérir", kParticiple,
         "acquérant | acquis | acquise | acquis | acquises | ayant acquis"},
        {"bénir", "bénir", kParticiple,
         "bénissant | béni, bénit | bénie, bénite | bénis, bénits | bénies, bénites | ayant béni"},
        {"mourir", "mourir", kParticiple, "mourant | mort | morte | morts | mortes | ayant mort"},
        {"vivre", "vivre", kParticiple, "vivant | vécu | vécue | vécus | vécues | ayant vécu"},
        {"gésir", "gésir", kParticiple, "gisant"},
        {"éclore", "éclore", kParticiple,
         "éclosant | éclos | éclose | éclos | écloses | ayant éclos"},
        {"connaître", "connaître", Tense::Infinitif, "connaître, connaitre | avoir connu"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.infinitive);
        EXPECT_EQ(block(verb(c.infinitive, c.model), c.tense), c.expected);
    }
}

TEST(Conjugator, LeavesOutWhatAVerbLacks)
{
    struct Case {
        const char* infinitive;
        Tense tense;
        std::size_t rows;
    };
    constexpr Case cases[] = {
        {"clore", kPresent, 4},
        {"clore", kImperfect, 0},
        {"clore", kPast, 0},
        {"clore", kPastSubjunctive, 0},
        {"clore", kFuture, 6},
        {"clore", Tense::IndicatifPasseCompose, 6},
        {"frire", kPresent, 3},
        {"frire", kSubjunctive, 0},
        {"gésir", kFuture, 0},
        {"gésir", Tense::IndicatifPasseCompose, 0},
        {"gésir", kImperative, 0},
        {"pleuvoir", kPresent, 2},
        {"déchoir", kImperfect, 0},
        {"déchoir", kSubjunctive, 6},
        {"traire", kPast, 0},
        {"quérir", kPresent, 0},
        {"quérir", Tense::Infinitif, 1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.infinitive);
        const auto rows = conjugator().rows(verb(c.infinitive, c.infinitive));
        EXPECT_EQ(static_cast<std::size_t>(std::count_if(
                      rows.begin(), rows.end(),
                      [&](const Row& row) { return row.tense == c.tense && row.shown; })),
                  c.rows)
            << name(c.tense);
    }
}

TEST(Conjugator, ElidesBeforeVowelsAndMuteH)
{
    struct Case {
        const char* infinitive;
        const char* model;
        bool aspirated;
        const char* first;
    };
    constexpr Case cases[] = {
        {"habiter", "aimer", false, "j'habite"},   {"haïr", "haïr", true, "je hais"},
        {"œuvrer", "aimer", false, "j'œuvre"},     {"yoyoter", "aimer", false, "je yoyote"},
        {"ypériter", "aimer", false, "j'ypérite"}, {"ouïr", "ouïr", false, "j'ois"},
        {"îloter", "aimer", false, "j'îlote"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.infinitive);
        auto entry = verb(c.infinitive, c.model);
        entry.aspirated = c.aspirated;
        const auto present = block(entry, kPresent);
        EXPECT_EQ(present.substr(0, present.find(" | ")), c.first);
        EXPECT_TRUE(block(entry, Tense::IndicatifPasseCompose).starts_with("j'ai "));
    }
}

TEST(Conjugator, AgreesWithTheSubjectAfterEtre)
{
    auto aller = verb("aller", "aller");
    aller.auxiliary = Auxiliary::Etre;

    EXPECT_EQ(block(aller, Tense::IndicatifPasseCompose),
              "je suis allé(e) | tu es allé(e) | il/elle/on est allé(e) | nous sommes allé(e)s"
              " | vous êtes allé(e)(s) | ils/elles sont allé(e)s");
    EXPECT_TRUE(block(aller, Tense::ConditionnelPasse2eForme).starts_with("je fusse allé(e) | "));
    EXPECT_EQ(block(aller, kImperative),
              "va | allons | allez | sois allé(e) | soyons allé(e)s | soyez allé(e)(s)");
    EXPECT_EQ(block(aller, Tense::Infinitif), "aller | être allé(e)(s)");
    const auto words = searched(aller);
    for (const auto* word :
         {"suis allé", "suis allée", "sommes allés", "sommes allées", "êtes allé", "êtes allée",
          "êtes allés", "êtes allées", "soyons allées", "être allées", "étant allés"}) {
        EXPECT_TRUE(contains(words, word)) << word;
    }
    EXPECT_FALSE(contains(words, "suis allés"));
    EXPECT_FALSE(contains(words, "sommes allé"));
}

TEST(Conjugator, GivesPronominalVerbsTheirPronouns)
{
    auto evanouir = verb("évanouir", "finir");
    auto mefier = verb("méfier", "aimer");
    auto meprendre = verb("méprendre", "prendre");
    for (auto* entry : {&evanouir, &mefier, &meprendre}) {
        entry->auxiliary = Auxiliary::Etre;
        entry->pronominal = true;
    }

    EXPECT_EQ(conjugator().headword(evanouir), "évanouir (s')");
    EXPECT_EQ(conjugator().headword(mefier), "méfier (se)");
    EXPECT_EQ(block(evanouir, kPresent),
              "je m'évanouis | tu t'évanouis | il/elle/on s'évanouit | nous nous évanouissons"
              " | vous vous évanouissez | ils/elles s'évanouissent");
    EXPECT_EQ(block(mefier, kSubjunctive),
              "que je me méfie | que tu te méfies | qu'il/elle/on se méfie | que nous nous méfiions"
              " | que vous vous méfiiez | qu'ils/elles se méfient");
    EXPECT_TRUE(block(evanouir, Tense::IndicatifPlusQueParfait)
                    .starts_with("je m'étais évanoui(e) | tu t'étais évanoui(e) | "));
    EXPECT_EQ(block(mefier, kImperative), "méfie-toi | méfions-nous | méfiez-vous");
    EXPECT_EQ(block(mefier, kParticiple),
              "se méfiant | méfié | méfiée | méfiés | méfiées | s'étant méfié(e)(s)");
    EXPECT_EQ(block(evanouir, Tense::Infinitif), "s'évanouir | s'être évanoui(e)(s)");
    EXPECT_TRUE(block(meprendre, Tense::SubjonctifPasse)
                    .ends_with("qu'il/elle/on se soit mépris(e) | que nous nous soyons mépris(es)"
                               " | que vous vous soyez mépris(e)(s)"
                               " | qu'ils/elles se soient mépris(es)"));
    EXPECT_TRUE(contains(searched(meprendre), "soyons mépris"));
    EXPECT_TRUE(contains(searched(meprendre), "soyons méprises"));
    EXPECT_TRUE(contains(searched(evanouir), "s'évanouir"));
}

TEST(Conjugator, KeepsImpersonalVerbsToTheirOnePerson)
{
    auto neiger = verb("neiger", "manger");
    neiger.impersonal = true;
    neiger.invariableParticiple = true;

    EXPECT_EQ(block(neiger, kPresent), "il neige");
    EXPECT_EQ(block(neiger, kSubjunctive), "qu'il neige");
    EXPECT_EQ(block(neiger, Tense::IndicatifPasseCompose), "il a neigé");
    EXPECT_EQ(block(neiger, kImperative), "");
    EXPECT_EQ(block(neiger, kParticiple), "neigeant | neigé | ayant neigé");
}

TEST(Conjugator, KeepsTheOtherAuxiliaryAndSingleVariantsForTheSearch)
{
    auto monter = verb("monter", "aimer");
    monter.auxiliary = Auxiliary::EtreThenAvoir;

    EXPECT_EQ(block(monter, Tense::Infinitif), "monter | être monté(e)(s)");
    for (const auto* word :
         {"ai monté", "aurions monté", "ayant monté", "avoir monté", "suis montée"}) {
        EXPECT_TRUE(contains(searched(monter), word)) << word;
    }
    EXPECT_EQ(searched(verb("parler", "aimer")), std::vector<std::string>{});
    EXPECT_TRUE(contains(searched(verb("absoudre", "absoudre")), "ai absout"));
    for (const auto* word : {"paie", "paye", "paierai", "payerai"}) {
        EXPECT_TRUE(contains(searched(verb("payer", "payer")), word)) << word;
    }
}

TEST(Conjugator, FindsTheSpellingOf1990OfAWholeVerb)
{
    const struct {
        const char* infinitive;
        const char* model;
        const char* form;
        bool found;
    } cases[] = {
        {"entraîner", "aimer", "entraine", true},
        {"entraîner", "aimer", "avoir entrainé", true},
        {"brûler", "aimer", "brulâmes", true},
        {"mûrir", "finir", "murîmes", true},
        {"mûrir", "finir", "murimes", false},
        {"jeûner", "aimer", "jeune", false},
        {"connaître", "connaître", "connaitrons", true},
        {"croître", "croître", "croit", false},
        {"aimer", "aimer", "aime", false},
    };
    for (const auto& c : cases) {
        EXPECT_EQ(contains(searched(verb(c.infinitive, c.model)), c.form), c.found) << c.form;
    }
    EXPECT_TRUE(block(verb("entraîner", "aimer"), kPresent).starts_with("j'entraîne | "));
}

TEST(Conjugator, FilesShownRowsByTenseBeforeTheOthers)
{
    auto monter = verb("monter", "aimer");
    monter.auxiliary = Auxiliary::EtreThenAvoir;
    const auto rows = conjugator().rows(monter);

    EXPECT_TRUE(
        std::is_partitioned(rows.begin(), rows.end(), [](const Row& row) { return row.shown; }));
    const auto end =
        std::partition_point(rows.begin(), rows.end(), [](const Row& row) { return row.shown; });
    EXPECT_TRUE(std::is_sorted(rows.begin(), end,
                               [](const Row& a, const Row& b) { return a.tense < b.tense; }));
    EXPECT_TRUE(std::is_sorted(kTenseNames.begin(), kTenseNames.end()));
}

} // namespace
} // namespace lumora::conjugator
