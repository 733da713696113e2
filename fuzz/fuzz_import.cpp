// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <cstdint>
#include <cstdlib>

#include "databases/import_eras.h"
#include "databases/import_guess.h"
#include "databases/import_merge.h"

namespace {

void Require(bool holds) {
    if (!holds) std::abort();
}

void RequireDraw(const ImportedDraw& draw) {
    Require(draw.date.ok() && draw.Count() >= 4 && draw.extra >= 0 && draw.extra <= 99);
    auto numbers = draw.numbers;
    std::sort(numbers.begin(), numbers.begin() + draw.Count());
    Require(numbers.front() >= 1 && numbers.at(static_cast<std::size_t>(draw.Count()) - 1) <= 99);
    Require(std::adjacent_find(numbers.begin(), numbers.begin() + draw.Count()) ==
            numbers.begin() + draw.Count());
}

// A lottery made of the draws holds them all, so that the same import again adds nothing.
void RequireSameAgain(const std::vector<ImportedDraw>& draws, bool sameDrum,
                      const DateRules& dates) {
    const std::string bytes =
        NewImportDatabase("name", "address", RulesOf(draws, sameDrum), draws, dates.today);
    const MergedDatabase again = MergeDraws(bytes, "dbase1.txt", draws, dates);
    Require(again.bytes == bytes && again.added == 0 && again.conflicts.empty());
}

}  // namespace

// Any bytes are refused with a word, or understood: then each row is a draw or left out with a
// reason, draws keep to what a draw is, and eras divide them.
extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const ImportText decoded = DecodeImport({reinterpret_cast<const char*>(data), size});
    Require(decoded.refusal.empty() != decoded.text.empty());
    if (!decoded.refusal.empty()) return 0;
    const DateRules dates{.region = {}, .today = std::chrono::year(2025) / 6 / 1};
    const ImportProposal proposal = ProposeImport(decoded.text, dates);
    if (!proposal.refusal.empty()) return 0;
    Require(MissingInMapping(proposal.mapping).empty());
    const ImportTable table(decoded.text, proposal.mapping.separator);
    ImportedDraws imported = ReadDraws(table, proposal.mapping, dates);
    Require(imported.draws.size() + imported.leftOut.size() == table.Rows());
    for (const LeftOutRow& row : imported.leftOut) Require(!row.why.empty());
    for (const ImportedDraw& draw : imported.draws) RequireDraw(draw);
    KeepNewest(imported);
    std::size_t count = 0;
    for (const ImportEra& era : FindEras(imported.draws, proposal.mapping.extraFromSameDrum)) {
        Require(era.first == count && era.count > 0 && era.from <= era.to);
        count += era.count;
    }
    Require(count == imported.draws.size());
    RequireSameAgain(imported.draws, proposal.mapping.extraFromSameDrum, dates);
    return 0;
}
