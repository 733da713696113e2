// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_headings.h"

#include <algorithm>
#include <map>
#include <set>

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
    "additional addl special particular reserve tillegg tilleggstall lisanumero kiegeszito ";
constexpr std::string_view manyWords =
    " numbers balls zahlen gewinnzahlen lottozahlen numeros bolas dezenas combinacion boules "
    "combination combinaison getallen tall results result winning winningnumbers numeri estrazione "
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
constexpr std::string_view yearWords = " year yy yyyy jahr annee ano anno jaar ar aar yr ";

bool Has(std::string_view words, const std::string& word) {
    return words.find(" " + word + " ") != std::string_view::npos;
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

bool AnyIn(std::string_view list, const std::vector<std::string>& words) {
    return std::any_of(words.begin(), words.end(),
                       [list](const std::string& word) { return Has(list, word); });
}

bool AllIn(std::string_view list, const std::vector<std::string>& words) {
    return std::all_of(words.begin(), words.end(),
                       [list](const std::string& word) { return Has(list, word); });
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

bool IsNumberWord(const std::string& word) {
    constexpr std::string_view words = " number numbers num nr no nbr # numero id nummer n ";
    return Has(words, word);
}

HeadingKind KindOf(const std::vector<std::string>& words, int index) {
    if (AnyIn(otherWords, words)) return HeadingKind::Other;
    if (AnyIn(dateWords, words)) return HeadingKind::Dated;
    if (AnyIn(ownDrumWords, words) || AnyIn(sameDrumWords, words)) return HeadingKind::Extra;
    const bool draw = AnyIn(drawWords, words);
    if (draw && index == 0 && !AnyIn(manyWords, words)) return HeadingKind::DrawNumber;
    if (AnyIn(manyWords, words) && index == 0) return HeadingKind::Mains;
    std::vector<std::string> plain = words;
    std::erase_if(plain, [](const std::string& word) { return IsDigitByte(word.front()); });
    if (index > 0 && index <= 12 && AllIn(oneWords, plain)) return HeadingKind::Main;
    if (AnyIn(productWords, words)) return HeadingKind::Product;
    if (words.size() == 1 && Has(dayWords, words.front())) return HeadingKind::Day;
    if (words.size() == 1 && Has(monthWords, words.front())) return HeadingKind::Month;
    if (words.size() == 1 && Has(yearWords, words.front())) return HeadingKind::Year;
    return HeadingKind::Unknown;
}

}  // namespace

ColumnHeading ReadHeading(std::string_view text) {
    ColumnHeading heading;
    const std::vector<std::string> words = WordsOf(text);
    if (words.empty()) return heading;
    heading.index = IndexOf(words);
    for (const std::string& word : words) {
        if (!IsDigitByte(word.front())) heading.prefix += word + " ";
    }
    heading.kind = KindOf(words, heading.index);
    if (AnyIn(ownDrumWords, words)) {
        heading.drum = Drum::Own;
    } else if (AnyIn(sameDrumWords, words)) {
        heading.drum = Drum::Same;
    }
    const bool number = std::all_of(words.begin(), words.end(), IsNumberWord);
    if (number && heading.index == 0 && heading.kind == HeadingKind::Unknown) {
        heading.kind = HeadingKind::DrawNumber;
    }
    return heading;
}

std::vector<ColumnHeading> ReadHeadings(const std::vector<std::string>& texts) {
    std::vector<ColumnHeading> headings;
    std::map<std::string, std::set<int>> counts;
    for (const std::string& text : texts) {
        headings.push_back(ReadHeading(text));
        const ColumnHeading& heading = headings.back();
        if (heading.index > 0 && heading.kind != HeadingKind::Other) {
            counts[heading.prefix].insert(heading.index);
        }
    }
    for (ColumnHeading& heading : headings) {
        const auto group = counts.find(heading.prefix);
        if (heading.index == 0 || heading.kind == HeadingKind::Other || group == counts.end())
            continue;
        int last = 0;
        while (group->second.contains(last + 1)) ++last;
        if (last >= 4 && heading.index <= last) heading.kind = HeadingKind::Main;
    }
    return headings;
}

int KnownHeadings(const ImportTable& table, std::size_t row) {
    int known = 0;
    for (std::size_t column = 0; column < table.Cells(row); ++column) {
        const std::string_view cell = table.Cell(row, column);
        if (cell.empty() || cell.size() > 60 || PlainNumber(cell) > 12) continue;
        if (ReadHeading(cell).kind != HeadingKind::Unknown) ++known;
    }
    return known;
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
    return texts;
}
