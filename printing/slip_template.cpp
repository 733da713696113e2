// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/slip_template.h"

#include "core/failure.h"
#include "core/field_reader.h"
#include "core/old_files.h"
#include "core/saving.h"
#include "core/text.h"

namespace {

constexpr std::array<std::string_view, measureCount> measureWords = {
    "the width of a mark",
    "the height of a mark",
    "the number of boards across",
    "the number of boards down",
    "how many main numbers stand in a row",
    "how many extra balls stand in a row",
    "the horizontal position of number 1",
    "the vertical position of number 1",
    "the horizontal position of extra ball 1",
    "the vertical position of extra ball 1",
    "the horizontal separation of main numbers",
    "the vertical separation of main numbers",
    "the horizontal separation of extra balls",
    "the vertical separation of extra balls",
    "the horizontal separation of boards",
    "the vertical separation of boards",
    "the horizontal margin of the printer",
    "the vertical margin of the printer"};

constexpr std::array<std::string_view, positionColumns> positionWords = {"Num_X", "Num_Y",
                                                                         "Pball_X", "Pball_Y"};

// What lays out the main numbers, or the extra balls.
struct Rule {
    int perRow;
    double firstX, firstY, stepX, stepY;
};

int PerRow(const SlipTemplate& slip, Measure measure) {
    const int perRow = LeadingWhole(slip[measure]);
    if (perRow != 0) return perRow;
    throw Failure("Slip template " + Quoted(slip.name) + ": expected a number other than 0 as " +
                  std::string(MeasureInWords(measure)) + ", but " + Quoted(slip[measure]) +
                  " stands there.");
}

void PlaceNumber(SlipTemplate& slip, int number, const Rule& rule, PositionColumn x,
                 PositionColumn y) {
    const int quotient = (number - 1) / rule.perRow;
    const int remainder = (number - 1) % rule.perRow;
    const bool portrait = slip.orientation == Orientation::Portrait;
    const double right = portrait ? remainder : quotient;
    const double down = portrait ? quotient : -remainder;
    slip.positions(number, x) = FixedText(rule.firstX + right * rule.stepX, 2);
    slip.positions(number, y) = FixedText(rule.firstY + down * rule.stepY, 2);
}

Orientation ReadOrientation(FieldReader& reader) {
    constexpr std::string_view expected = "the orientation, 0 or 1";
    const std::string_view field = reader.ReadField(expected);
    const int orientation = LeadingWhole(field);
    if (orientation != 0 && orientation != 1) throw reader.Unexpected(expected, field);
    return orientation == 0 ? Orientation::Portrait : Orientation::Landscape;
}

std::string SlipTemplateText(const SlipTemplate& slip) {
    const bool landscape = slip.orientation == Orientation::Landscape;
    std::string bytes =
        slip.name + "\r\n" + slip.lottery + "\r\n" + (landscape ? " 1 " : " 0 ") + "\r\n";
    // Kept on purpose: a comma in a measurement is written too, and shifts what follows it.
    for (std::size_t i = 0; i < slip.measures.size(); i += 2) {
        bytes += slip.measures[i] + "," + slip.measures[i + 1] + "\r\n";
    }
    for (int number = 1; number <= highestOnSlip; ++number) {
        for (int column = 0; column < positionColumns; ++column) {
            bytes += slip.positions(number, column) + (column < extraY ? "," : "\r\n");
        }
    }
    return bytes;
}

}  // namespace

std::string_view MeasureInWords(Measure measure) {
    return measureWords.at(static_cast<std::size_t>(measure));
}

std::string PositionInWords(int number, int column) {
    return std::string(positionWords.at(static_cast<std::size_t>(column))) + " of number " +
           std::to_string(number);
}

bool ReadsWhole(std::string_view measure) {
    const std::string text = Trim(measure);
    const bool sign = text.starts_with('-') || text.starts_with('+');
    const std::string_view digits = std::string_view(text).substr(sign ? 1 : 0);
    return digits.find_first_of("0123456789") != std::string_view::npos &&
           digits.find_first_not_of("0123456789.") == std::string_view::npos &&
           digits.find('.') == digits.rfind('.');
}

void GeneratePositions(SlipTemplate& slip, int maxNum, int maxPball) {
    slip.positions.Fill({});
    const auto value = [&slip](Measure measure) { return LeadingNumber(slip[measure]); };
    const Rule mainRule{PerRow(slip, Measure::NumbersPerRow), value(Measure::FirstNumberX),
                        value(Measure::FirstNumberY), value(Measure::NumberStepX),
                        value(Measure::NumberStepY)};
    const Rule extraRule{PerRow(slip, Measure::ExtrasPerRow), value(Measure::FirstExtraX),
                         value(Measure::FirstExtraY), value(Measure::ExtraStepX),
                         value(Measure::ExtraStepY)};
    // Kept on purpose: in portrait a lottery also gets the positions that it never uses.
    const bool all = slip.orientation == Orientation::Portrait;
    for (int number = 1; number <= highestOnSlip; ++number) {
        if (all || number <= maxNum) PlaceNumber(slip, number, mainRule, numberX, numberY);
        if (all || number <= maxPball) PlaceNumber(slip, number, extraRule, extraX, extraY);
    }
}

std::vector<SlipTemplateFile> ListSlipTemplates(const ProgramFolder& folder) {
    std::vector<SlipTemplateFile> templates;
    for (const std::string& file : folder.Find("PTemplate.*")) {
        const std::string content = folder.Read(file);
        FieldReader reader(content, file);
        templates.push_back({file, std::string(reader.ReadLine("the name of the template"))});
    }
    return templates;
}

SlipTemplate ReadSlipTemplate(const ProgramFolder& folder, const std::string& file) {
    const std::string content = folder.Read(file);
    FieldReader reader(content, file);
    SlipTemplate slip;
    slip.name = reader.ReadLine("the name of the template");
    slip.lottery = reader.ReadLine("the name of the lottery");
    slip.orientation = ReadOrientation(reader);
    for (int i = 0; i < measureCount; ++i) {
        const auto measure = static_cast<Measure>(i);
        slip[measure] = reader.ReadField(MeasureInWords(measure));
    }
    for (int number = 1; number <= highestOnSlip; ++number) {
        for (int column = 0; column < positionColumns; ++column) {
            slip.positions(number, column) = reader.ReadField(PositionInWords(number, column));
        }
    }
    return slip;
}

void WriteSlipTemplate(ProgramFolder& folder, const std::string& file, const SlipTemplate& slip) {
    WriteKeepingOld(folder, file, SlipTemplateText(slip));
}

std::string CreateSlipTemplate(ProgramFolder& folder, const SlipTemplate& slip) {
    const auto name = [](int number) { return NumberedName("PTemplate", number); };
    return CreateNumbered(folder, 0, name, SlipTemplateText(slip));
}
