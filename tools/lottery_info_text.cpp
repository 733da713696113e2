// SPDX-License-Identifier: GPL-3.0-or-later
#include "tools/lottery_info_text.h"

#include <string_view>
#include <vector>

#include "core/text.h"
#include "tools/lottery_odds.h"

namespace {

struct Lottery {
    std::string_view caption;
    std::string_view summary;
    std::string_view rules;
    std::string_view days;
    std::string_view inThisProgram;
    DrawRules draw;
    std::string_view extraBall;  ///< What an entry matches beside numbers.
    std::vector<PrizeClass> classes;
};

const std::vector<PrizeClass> bestOfFive = {
    {.numbers = 5, .extras = 1}, {.numbers = 5},
    {.numbers = 4, .extras = 1}, {.numbers = 4},
    {.numbers = 3, .extras = 1}, {.numbers = 3},
    {.numbers = 2, .extras = 1}, {.numbers = 1, .extras = 1},
    {.numbers = 0, .extras = 1}};

const std::vector<Lottery>& Lotteries() {
    static const std::vector<Lottery> lotteries = {
        {.caption = "UK Lotto",
         .summary = "Six numbers from 1 to 59, and a bonus ball.",
         .rules = "Six balls are drawn from 59, then one more from those that are left: the bonus "
                  "ball. It counts only for entries that match five of the six. Until October 2015 "
                  "the numbers went from 1 to 49.",
         .days = "Wednesday and Saturday.",
         .inThisProgram = "create a lottery database from the template \"UK Lotto (59 numbers)\". "
                          "The template \"UK Lotto\" is the lottery of the years before.",
         .draw = {.picks = 6, .highest = 59},
         .extraBall = "the bonus ball",
         .classes = {{.numbers = 6},
                     {.numbers = 5, .extras = 1},
                     {.numbers = 5},
                     {.numbers = 4},
                     {.numbers = 3},
                     {.numbers = 2}}},
        {.caption = "Thunderball",
         .summary = "Five numbers from 1 to 39, and a Thunderball from 1 to 14.",
         .rules = "Five balls are drawn from one drum and the Thunderball from another, so the "
                  "Thunderball may be the same as one of the five. It wins even alone.",
         .days = "Tuesday, Wednesday, Friday and Saturday.",
         .inThisProgram =
             "create a lottery database from the template \"UK Thunderball (39 numbers)\".",
         .draw = {.picks = 5, .highest = 39, .extra = ExtraBalls::OwnDrum, .highestExtra = 14},
         .extraBall = "the Thunderball",
         .classes = bestOfFive},
        {.caption = "EuroMillions",
         .summary = "Five numbers from 1 to 50, and two Lucky Stars from 1 to 12.",
         .rules = "One draw for players in several countries of Europe. The five numbers come from "
                  "one drum, the two stars from another.",
         .days = "Tuesday and Friday.",
         .inThisProgram = "lotteries have one extra ball here, so EuroMillions can be kept only "
                          "without its stars.",
         .draw = {.picks = 5,
                  .highest = 50,
                  .extra = ExtraBalls::OwnDrum,
                  .extraPicks = 2,
                  .highestExtra = 12},
         .extraBall = "star",
         .classes = {{.numbers = 5, .extras = 2},
                     {.numbers = 5, .extras = 1},
                     {.numbers = 5},
                     {.numbers = 4, .extras = 2},
                     {.numbers = 4, .extras = 1},
                     {.numbers = 3, .extras = 2},
                     {.numbers = 4},
                     {.numbers = 2, .extras = 2},
                     {.numbers = 3, .extras = 1},
                     {.numbers = 3},
                     {.numbers = 1, .extras = 2},
                     {.numbers = 2, .extras = 1},
                     {.numbers = 2}}},
        {.caption = "Irish Lotto",
         .summary = "Six numbers from 1 to 47, and a bonus ball.",
         .rules = "Six balls are drawn from 47, then one more from those that are left: the bonus "
                  "ball. It makes a class of its own out of five, four, three and even two "
                  "matched numbers.",
         .days = "Wednesday and Saturday.",
         .inThisProgram = "create a lottery database from the template \"Ireland Lotto\".",
         .draw = {.picks = 6, .highest = 47},
         .extraBall = "the bonus ball",
         .classes = {{.numbers = 6},
                     {.numbers = 5, .extras = 1},
                     {.numbers = 5},
                     {.numbers = 4, .extras = 1},
                     {.numbers = 4},
                     {.numbers = 3, .extras = 1},
                     {.numbers = 3},
                     {.numbers = 2, .extras = 1}}},
        {.caption = "French Loto",
         .summary = "Five numbers from 1 to 49, and a Chance number from 1 to 10.",
         .rules = "Five balls are drawn from one drum and the Chance number from another. The last "
                  "class, the Chance number with one matched number or none, pays the stake back.",
         .days = "Monday, Wednesday and Saturday.",
         .inThisProgram = "create a lottery database from the template \"France Loto\".",
         .draw = {.picks = 5, .highest = 49, .extra = ExtraBalls::OwnDrum, .highestExtra = 10},
         .extraBall = "the Chance number",
         .classes = {{.numbers = 5, .extras = 1},
                     {.numbers = 5},
                     {.numbers = 4, .extras = 1},
                     {.numbers = 4},
                     {.numbers = 3, .extras = 1},
                     {.numbers = 3},
                     {.numbers = 2, .extras = 1},
                     {.numbers = 2},
                     {.numbers = 1, .orFewer = 1, .extras = 1}}},
        {.caption = "German Lotto",
         .summary = "Six numbers from 1 to 49, and a Superzahl from 0 to 9.",
         .rules = "Lotto 6 aus 49 draws six balls from 49. The Superzahl is drawn from ten digits; "
                  "nobody chooses it, as it is the last digit of the number that is printed on the "
                  "ticket.",
         .days = "Wednesday and Saturday.",
         .inThisProgram = "create a lottery database from the template \"Germany Lotto 6 aus 49\", "
                          "which leaves the Superzahl out, as no entry chooses it.",
         .draw = {.picks = 6, .highest = 49, .extra = ExtraBalls::OwnDrum, .highestExtra = 10},
         .extraBall = "the Superzahl",
         .classes = {{.numbers = 6, .extras = 1},
                     {.numbers = 6},
                     {.numbers = 5, .extras = 1},
                     {.numbers = 5},
                     {.numbers = 4, .extras = 1},
                     {.numbers = 4},
                     {.numbers = 3, .extras = 1},
                     {.numbers = 3},
                     {.numbers = 2, .extras = 1}}},
        {.caption = "Powerball",
         .summary = "Five numbers from 1 to 69, and a Powerball from 1 to 26.",
         .rules = "Five white balls are drawn from one drum and the red Powerball from another. "
                  "The Powerball wins even alone. The fields have changed several times; these are "
                  "of the draws since October 2015.",
         .days = "Monday, Wednesday and Saturday.",
         .inThisProgram = "numbers go up to 60 here, so Powerball can be kept only as "
                          "it was in earlier years: the template \"US Powerball\" has the fields "
                          "of 2002 to 2005.",
         .draw = {.picks = 5, .highest = 69, .extra = ExtraBalls::OwnDrum, .highestExtra = 26},
         .extraBall = "the Powerball",
         .classes = bestOfFive},
        {.caption = "Mega Millions",
         .summary = "Five numbers from 1 to 70, and a Mega Ball from 1 to 24.",
         .rules = "Five white balls are drawn from one drum and the Mega Ball from another. The "
                  "Mega Ball wins even alone. The fields have changed several times; these are of "
                  "the draws since April 2025.",
         .days = "Tuesday and Friday.",
         .inThisProgram = "numbers go up to 60 here, so Mega Millions can be kept only "
                          "as it was in earlier years: the template \"US Mega Millions\" has the "
                          "fields of 2002 to 2005.",
         .draw = {.picks = 5, .highest = 70, .extra = ExtraBalls::OwnDrum, .highestExtra = 24},
         .extraBall = "the Mega Ball",
         .classes = bestOfFive},
        {.caption = "Canada 6/49",
         .summary = "Six numbers from 1 to 49, and a bonus number.",
         .rules = "Lotto 6/49 draws six balls from 49, then one more from those that are left: the "
                  "bonus number. It counts for entries that match five or two of the six.",
         .days = "Wednesday and Saturday.",
         .inThisProgram = "create a lottery database from the template \"Canada Lotto 6/49\".",
         .draw = {.picks = 6, .highest = 49},
         .extraBall = "the bonus number",
         .classes = {{.numbers = 6},
                     {.numbers = 5, .extras = 1},
                     {.numbers = 5},
                     {.numbers = 4},
                     {.numbers = 3},
                     {.numbers = 2, .extras = 1},
                     {.numbers = 2}}},
    };
    return lotteries;
}

std::string NumbersInWords(const DrawRules& draw, const PrizeClass& prize) {
    if (prize.orFewer > 0) return "no number or 1";
    if (prize.numbers == draw.picks) return "all " + PlainDigits(prize.numbers) + " numbers";
    return PlainDigits(prize.numbers) + (prize.numbers == 1 ? " number" : " numbers");
}

std::string ExtrasInWords(const Lottery& lottery, int extras) {
    if (lottery.draw.extraPicks == 1) return std::string(lottery.extraBall);
    return PlainDigits(extras) + " " + std::string(lottery.extraBall) + (extras == 1 ? "" : "s");
}

std::string InWords(const Lottery& lottery, const PrizeClass& prize) {
    const std::string extras = ExtrasInWords(lottery, prize.extras);
    if (prize.numbers == 0) return extras + " alone";
    const std::string numbers = NumbersInWords(lottery.draw, prize);
    return prize.extras == 0 ? numbers : numbers + " and " + extras;
}

std::string SectionOf(const Lottery& lottery) {
    const std::vector<Chance> chances = ChancesOf(lottery.draw, lottery.classes);
    std::string text;
    const auto add = [&text](std::initializer_list<std::string_view> parts) {
        for (const std::string_view part : parts) text += part;
        text += "\r\n";
    };
    add({"#", lottery.caption});
    add({lottery.summary});
    add({});
    add({lottery.rules});
    add({});
    add({"Drawn on: ", lottery.days});
    add({});
    add({"What an entry matches, and how often that happens:"});
    for (std::size_t i = 0; i < lottery.classes.size(); ++i) {
        add({InWords(lottery, lottery.classes[i]), "\t", OddsText(chances[i])});
    }
    add({"any of these", "\t", OddsText(chances.back())});
    add({});
    add(
        {"The odds are the same for every entry, however its numbers were chosen, and no draw "
         "knows of those before it."});
    add({});
    add({"In this program: ", lottery.inThisProgram});
    return text;
}

}  // namespace

std::string LotteryInfoText() {
    std::string text;
    for (const Lottery& lottery : Lotteries()) text += SectionOf(lottery);
    // The form leaves the last line of the file out.
    return text + "\r\n";
}
