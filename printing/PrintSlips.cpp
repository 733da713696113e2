// SPDX-License-Identifier: GPL-3.0-or-later
#include "printing/PrintSlips.h"

#include <QCoreApplication>
#include <optional>

#include "core/text.h"
#include "platform/system/MessageBoxes.h"
#include "platform/system/Printers.h"
#include "platform/system/TextConversion.h"
#include "platform/widgets/Grid.h"
#include "printing/PrintTickets.h"

namespace {

struct SlipsWanted {
    double lines;
    std::string templateFile;
    PrintQuality quality;
};

QString Said(const char* text) { return QCoreApplication::translate("PrintSlips", text); }

// What the user wants printed; nothing where he wants nothing or nothing can be.
std::optional<SlipsWanted> AskForSlips(Program& program, QWidget* form, int count) {
    PrintTickets tickets(program, form);
    tickets.Load();
    tickets.SetLines(count);
    const auto refuse = [&](const QString& text) {
        program.services.messages.Show(
            form, {.title = Said("Error!"), .text = text, .sign = Sign::Exclamation});
        return std::nullopt;
    };
    if (!tickets.HasTemplates()) {
        return refuse(Said("No lottery templates found.    ") % ToQString(program.state.Crlf) %
                      Said("Please make one..."));
    }
    const std::string file = SlipTemplateFor(program.folder, View(program.state).LotteryName);
    if (file.empty()) return refuse(Said("Couldn't find a template for this lottery.    "));
    tickets.ChooseTemplate(file);
    tickets.exec();
    if (!tickets.IsOk()) return std::nullopt;
    return SlipsWanted{tickets.Lines(), tickets.TemplateFile(), tickets.Quality()};
}

}  // namespace

std::vector<SlipLine> LinesInGrid(const Grid& grid, double limit) {
    std::vector<SlipLine> lines;
    int row = 1;
    do {
        SlipLine& line = lines.emplace_back();
        for (std::size_t i = 0; i < line.size(); ++i) {
            line[i] = LeadingWhole(FromQString(grid.Cell(row, static_cast<int>(i) + 1)));
        }
        ++row;
    } while (row <= limit && !grid.Cell(row, 1).isEmpty());
    return lines;
}

void PrintSlips(Program& program, QWidget* form, const Grid& grid, int count) {
    const std::optional<SlipsWanted> wanted = AskForSlips(program, form, count);
    if (!wanted) return;
    QCoreApplication::processEvents();
    const Document slips = SlipsOf(ReadSlipLayout(program.folder, wanted->templateFile),
                                   LinesInGrid(grid, wanted->lines));
    program.services.printers->Print(
        form, {.title = "Lottery slips",
               .options = {.quality = wanted->quality, .orientation = {}, .paper = {}},
               .compose = [slips](const SheetRoom&) { return slips; },
               .corrected = true});
}
