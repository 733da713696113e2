// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_headings.h"

#include <algorithm>
#include <map>
#include <set>
#include <unordered_map>

#include "core/text.h"
#include "databases/import_characters.h"
#include "databases/import_numbers.h"

namespace {

// Words stand in lower case, without accents, blanks around each.
constexpr std::string_view otherWords =
    " winners winner ganadores ganador ganhadores acertantes gagnants gewinner gewinne "
    "vincitori vincite prize prizes premio premios prijs preis preise amount amounts pool jackpot "
    "bote sales sold multiplier megaplier plier play pp raffle raffles code codes machine mach "
    "machines set sets ballset money payout payouts dividend dividends div division divisions rank "
    "rang rapport quote quoten quota einsatz spieleinsatz total totals sum sums acumulado "
    "rateio arrecadacao accumulated rollover rollovers rolled rolls estimated estimate id url link "
    "time zeit hour uhrzeit heure hora status currency devise tickets ticket shares share city "
    "cidade uf observacao millionaire week woche kw semaine semana spiel77 super6 next claim "
    "forclusion expiry expires closing close deadline updated update limit wins value fund annuity "
    "average mean range odd even high low double match matches count ";
constexpr std::string_view dateWords =
    " date dates datum fecha data dato drawdate drawndate ziehungsdatum ziehungstag pvm dated ";
constexpr std::string_view ownDrumWords =
    " powerball pb power mega megaball mb star stars lucky thunderball tb superzahl sz chance "
    "reintegro reint estrella estrellas estrela estrelas etoile etoiles superstar euronumber "
    "euronumbers eurozahl eurozahlen euro dream clave sonho reve life cash starball luckystar ls "
    "stella stelle numerone grand luckyball cashball lb cb trevo trevos hotball tc ";
constexpr std::string_view sameDrumWords =
    " bonus bonusball bn bb extra supplementary supplementaries supp supps suppl sup zusatzzahl zz "
    "zusatzzahlen zusatz complementario complementaria complement complementaire comp compl jolly "
    "additional addl special particular reserve tillegg tilleggstall tillaggstal lisanumero "
    "lisanumerot kiegeszito comodin ";
constexpr std::string_view manyWords =
    " numbers balls zahlen gewinnzahlen lottozahlen numeros bolas dezenas combinacion boules "
    "combination combinations combinaciones combinaison getallen tall results result winning "
    "winningnumbers numeri estrazione "
    "siffror numerot szamok numere cijfers drawnnumbers ";
constexpr std::string_view oneWords =
    " ball number num nr n b wb white winning main zahl kugel bola bolla boule numero dezena "
    "estratto regular drawn getal tal kule k z d p pos position lottozahl gewinnzahl no nbr winnum "
    "first second third fourth fifth sixth seventh ";
constexpr std::string_view drawWords =
    " draw drawnumber drawno drawid sorteo concurso tirage ziehung extraction contest event issue "
    "edition trekking trekning kierros hetszam concorso draws drawnr drawing ";
constexpr std::string_view productWords =
    " game games product lottery lotteries spiel juego jeu loteria gioco gamename lotteryname "
    "drawname type drawtype name gametype produkt ";
constexpr std::string_view dayWords =
    " day weekday tag wochentag jour dia giorno dag dow dd ddd dayofweek weekdag ";
constexpr std::string_view monthWords = " month mm mmm monat mois mes mese maand maned manad mon ";
constexpr std::string_view numberWords = " number numbers num nr no nbr # numero id nummer n ";
constexpr std::string_view yearWords = " year yy yyyy jahr annee ano anno jaar ar aar yr ";

// What a word can mean, as bits.
enum Meaning : unsigned {
    other = 1,
    date = 2,
    ownDrum = 4,
    sameDrum = 8,
    many = 16,
    one = 32,
    drawn = 64,
    product = 128,
    day = 256,
    month = 512,
    year = 1024,
    number = 2048,
};

using Meanings = std::unordered_map<std::string_view, unsigned>;

void Add(Meanings& meanings, std::string_view words, unsigned meaning) {
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(' '), words.size());
        if (end > 0) meanings[words.substr(0, end)] |= meaning;
        words.remove_prefix(std::min(end + 1, words.size()));
    }
}

unsigned MeaningOf(const std::string& word) {
    static const Meanings meanings = [] {
        Meanings all;
        Add(all, otherWords, other);
        Add(all, dateWords, date);
        Add(all, ownDrumWords, ownDrum);
        Add(all, sameDrumWords, sameDrum);
        Add(all, manyWords, many);
        Add(all, oneWords, one);
        Add(all, drawWords, drawn);
        Add(all, productWords, product);
        Add(all, dayWords, day);
        Add(all, monthWords, month);
        Add(all, yearWords, year);
        Add(all, numberWords, number);
        return all;
    }();
    const auto found = meanings.find(word);
    return found == meanings.end() ? 0 : found->second;
}

// The words of a heading, lower case, without accents; "DrawDate" and "WB1" fall apart.
std::vector<std::string> WordsOf(std::string_view text) {
    std::vector<std::string> words;
    char before = ' ';
    for (const char byte : text.substr(0, 60)) {
        const bool letter = IsLetterByte(byte);
        const bool digit = IsDigitByte(byte);
        const bool upper = letter && byte >= 'A' && byte <= 'Z';
        const bool afterLower = before >= 'a' && before <= 'z';
        const bool continues = (letter && IsLetterByte(before) && !(upper && afterLower)) ||
                               (digit && IsDigitByte(before));
        if (byte == '#') {
            words.emplace_back("#");
        } else if (letter || digit) {
            if (!continues) words.emplace_back();
            words.back() += PlainLetters(std::string_view(&byte, 1));
        }
        before = byte;
    }
    return words;
}

int IndexOf(const std::vector<std::string>& words) {
    constexpr std::string_view ordinals[] = {"first", "second", "third",  "fourth",
                                             "fifth", "sixth",  "seventh"};
    for (const std::string& word : words) {
        if (IsDigitByte(word.front()) && word.size() <= 2) return LeadingWhole(word);
        const auto* ordinal = std::find(std::begin(ordinals), std::end(ordinals), word);
        if (ordinal != std::end(ordinals))
            return static_cast<int>(ordinal - std::begin(ordinals)) + 1;
    }
    return 0;
}

// "1st", "2nd": the letters behind the number.
bool IsEndingOfOrdinal(std::string_view word) {
    return word == "st" || word == "nd" || word == "rd" || word == "th";
}

// A number in front of signs that cannot be read ("?"), in Japanese and Korean headings of prizes.
bool IsRankOfPrizes(std::string_view text, const std::vector<std::string>& words) {
    const bool digits = std::all_of(words.begin(), words.end(), [](const std::string& word) {
        return IsDigitByte(word.front());
    });
    const std::size_t behind = text.find_first_not_of("0123456789 ");
    return digits && IsDigitByte(text.front()) && behind != std::string_view::npos &&
           text[behind] == '?';
}

// What the words of a heading can mean: any of them, all but numbers, and how many there are.
struct Words {
    unsigned any = 0;
    unsigned all = ~0U;
    bool alone = false;
};

HeadingKind KindOf(const Words& words, int index) {
    if ((words.any & other) != 0) return HeadingKind::Other;
    if ((words.any & date) != 0) return HeadingKind::Dated;
    if ((words.any & (ownDrum | sameDrum)) != 0) return HeadingKind::Extra;
    const bool manyNumbers = (words.any & many) != 0;
    if ((words.any & drawn) != 0 && index == 0 && !manyNumbers) return HeadingKind::DrawNumber;
    if (manyNumbers && index == 0) return HeadingKind::Mains;
    if (index > 0 && index <= 12 && (words.all & one) != 0) return HeadingKind::Main;
    if ((words.any & product) != 0) return HeadingKind::Product;
    if (words.alone && (words.any & day) != 0) return HeadingKind::Day;
    if (words.alone && (words.any & month) != 0) return HeadingKind::Month;
    if (words.alone && (words.any & year) != 0) return HeadingKind::Year;
    const bool numbered = index == 0 && (words.all & number) != 0;
    return numbered ? HeadingKind::DrawNumber : HeadingKind::Unknown;
}

}  // namespace

ColumnHeading ReadHeading(std::string_view text) {
    ColumnHeading heading;
    const std::vector<std::string> words = WordsOf(text);
    if (words.empty()) return heading;
    if (IsRankOfPrizes(text, words)) return heading;
    heading.index = IndexOf(words);
    Words meanings{.any = 0, .all = ~0U, .alone = words.size() == 1};
    for (const std::string& word : words) {
        if (IsDigitByte(word.front()) || IsEndingOfOrdinal(word)) continue;
        const unsigned meaning = MeaningOf(word);
        meanings.any |= meaning;
        meanings.all &= meaning;
        heading.prefix += word + " ";
    }
    heading.kind = KindOf(meanings, heading.index);
    if ((meanings.any & (ownDrum | sameDrum)) != 0) {
        heading.drum = (meanings.any & ownDrum) != 0 ? Drum::Own : Drum::Same;
    }
    return heading;
}

std::vector<ColumnHeading> ReadHeadings(const std::vector<std::string>& texts) {
    std::vector<ColumnHeading> headings;
    std::map<std::string, std::set<int>> counts;
    for (const std::string& text : texts) {
        ColumnHeading heading = ReadHeading(text);
        // "Winning Number 1", "2", "3": a bare number goes on with the words before it.
        const bool goesOn = !headings.empty() && heading.prefix.empty() && heading.index > 1 &&
                            headings.back().index == heading.index - 1;
        if (goesOn) {
            heading.prefix = headings.back().prefix;
            heading.kind = headings.back().kind;
        }
        if (heading.index > 0 && heading.kind != HeadingKind::Other) {
            counts[heading.prefix].insert(heading.index);
        }
        headings.push_back(std::move(heading));
    }
    const auto counted = [&counts](const ColumnHeading& heading) {
        const auto group = counts.find(heading.prefix);
        if (heading.index == 0 || group == counts.end()) return false;
        int last = 0;
        while (group->second.contains(last + 1)) ++last;
        return last >= 4 && heading.index <= last;
    };
    const std::string* first = nullptr;
    for (ColumnHeading& heading : headings) {
        if (heading.kind == HeadingKind::Other || !counted(heading)) continue;
        // A second set of balls is that of another draw, or of several extra balls.
        if (first == nullptr) first = &heading.prefix;
        if (heading.prefix == *first) {
            heading.kind = HeadingKind::Main;
        } else if (heading.kind != HeadingKind::Extra) {
            heading.kind = HeadingKind::Other;
        }
    }
    return headings;
}

int KnownHeadings(const ImportTable& table, std::size_t row) {
    int words = 0;
    int numbers = 0;
    bool dated = false;
    for (std::size_t column = 0; column < table.Cells(row); ++column) {
        const std::string_view cell = table.Cell(row, column);
        if (cell.empty() || cell.size() > 60 || PlainNumber(cell) > 12) continue;
        const HeadingKind kind = ReadHeading(cell).kind;
        if (kind == HeadingKind::Unknown) continue;
        ++(PlainNumber(cell) >= 0 ? numbers : words);
        dated = dated || kind == HeadingKind::Dated;
    }
    // Bare numbers are headings only beside words that are.
    return words >= 2 || dated ? words + numbers : words;
}

std::vector<std::string> HeadingTexts(const ImportTable& table, std::size_t row,
                                      std::size_t columns) {
    std::vector<std::string> texts;
    const bool blanks = table.Separator() == ImportSeparator::Blanks ||
                        table.Separator() == ImportSeparator::WideBlanks;
    const bool even = table.Cells(row) == columns;
    for (std::size_t column = 0; column < table.Cells(row); ++column) {
        std::string_view cell = table.Cell(row, column);
        if (!blanks || even) {
            texts.emplace_back(cell);
            continue;
        }
        while (!cell.empty()) {
            const std::size_t end = std::min(cell.find(' '), cell.size());
            texts.emplace_back(cell.substr(0, end));
            cell.remove_prefix(std::min(end + 1, cell.size()));
        }
    }
    // "Draw Date", "Ball 1", "Draw #": words that belong together, from the left.
    for (std::size_t i = 0; blanks && i + 1 < texts.size() && texts.size() > columns; ++i) {
        const HeadingKind first = ReadHeading(texts[i]).kind;
        const HeadingKind both = ReadHeading(texts[i] + " " + texts[i + 1]).kind;
        const bool lone = first == HeadingKind::DrawNumber || first == HeadingKind::Unknown ||
                          first == HeadingKind::Mains;
        if (!lone || both == HeadingKind::Unknown) continue;
        texts[i] += " " + texts[i + 1];
        texts.erase(texts.begin() + static_cast<std::ptrdiff_t>(i) + 1);
    }
    if (blanks && texts.size() != columns) return {};
    // One heading over several numbers, without the empty ones behind it: nothing stands in line.
    const bool overMany = std::any_of(texts.begin(), texts.end(), [](const std::string& text) {
        return ReadHeading(text).kind == HeadingKind::Mains;
    });
    if (overMany && texts.size() + 3 <= columns) return {};
    return texts;
}
