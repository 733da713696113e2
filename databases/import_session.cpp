// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_session.h"

#include <algorithm>
#include <set>
#include <utility>

#include "core/database_summary.h"
#include "core/text.h"

namespace {

constexpr std::string_view clipboard = "clipboard";

/// "2015", or "1994 to 2015".
std::string YearsOf(const ImportEra& era) {
    const int from = static_cast<int>(era.from.year());
    const int to = static_cast<int>(era.to.year());
    if (from == to) return PlainDigits(to);
    return PlainDigits(from) + " to " + PlainDigits(to);
}

/// The bytes as a text of that encoding, which a mark in front of them tells.
ImportText DecodedAs(ImportEncoding encoding, const std::string& bytes) {
    switch (encoding) {
        case ImportEncoding::Utf8:
            return DecodeImport("\xEF\xBB\xBF" + bytes);
        case ImportEncoding::Utf16LittleEndian:
            return DecodeImport("\xFF\xFE" + bytes);
        case ImportEncoding::Utf16BigEndian:
            return DecodeImport("\xFE\xFF" + bytes);
        case ImportEncoding::Windows1252:
            break;
    }
    return {.text = bytes, .encoding = ImportEncoding::Windows1252, .refusal = {}};
}

}  // namespace

void ImportSession::Open(std::string source, std::string bytes, const ImportFormats& formats) {
    *this = ImportSession(std::move(dates_));
    source_ = std::move(source);
    bytes_ = std::move(bytes);
    const ImportText decoded = DecodeImport(bytes_);
    refusal_ = decoded.refusal;
    if (!refusal_.empty()) return;
    encoding_ = decoded.encoding;
    text_ = decoded.text;
    Understand({});
    if (!TakeRemembered(formats)) ReadAgain();
}

void ImportSession::Refuse(std::string source, std::string refusal) {
    *this = ImportSession(std::move(dates_));
    source_ = std::move(source);
    refusal_ = std::move(refusal);
}

// What the user has chosen of the columns belongs to the table of before.
void ImportSession::Understand(std::optional<ImportSeparator> separator) {
    proposal_ = ProposeImport(text_, dates_, separator);
    mapping_ = proposal_.mapping;
    table_.emplace(text_, mapping_.separator);
    unticked_.clear();
    remembered_ = false;
}

bool ImportSession::TakeRemembered(const ImportFormats& formats) {
    if (TakeFormatFor(formats)) return true;
    // The same source may be one that the user had to have cut otherwise.
    const ImportSeparator guessed = table_->Separator();
    for (const ImportFormat& other : formats.formats) {
        if (other.source != source_ || other.mapping.separator == guessed) continue;
        Understand(other.mapping.separator);
        if (TakeFormatFor(formats)) return true;
        Understand(guessed);
    }
    return false;
}

bool ImportSession::TakeFormatFor(const ImportFormats& formats) {
    const ImportFormat* format =
        FormatFor(formats, source_, table_->Separator(), table_->Columns(), proposal_.headings);
    return format != nullptr && TakeFormat(*format);
}

bool ImportSession::TakeFormat(const ImportFormat& format) {
    mapping_ = format.mapping;
    ReadAgain();
    remembered_ = HasDraws();
    if (remembered_) {
        rememberedSource_ = format.source;
        rememberedDatabase_ = format.database;
    } else {
        mapping_ = proposal_.mapping;
    }
    return remembered_;
}

void ImportSession::ChooseEncoding(ImportEncoding encoding) {
    const ImportText decoded = DecodedAs(encoding, bytes_);
    if (!decoded.refusal.empty()) return;
    encoding_ = encoding;
    text_ = decoded.text;
    Understand({});
    ReadAgain();
}

void ImportSession::ChooseSeparator(ImportSeparator separator) {
    Understand(separator);
    ReadAgain();
}

void ImportSession::ChooseMapping(const ImportMapping& mapping) {
    mapping_ = mapping;
    unticked_.clear();
    ReadAgain();
}

void ImportSession::ChooseRole(std::size_t column, ColumnRole role) {
    ImportMapping mapping = mapping_;
    if (mapping.columns.size() <= column) mapping.columns.resize(column + 1);
    if (role == ColumnRole::Extra) {
        std::replace(mapping.columns.begin(), mapping.columns.end(), ColumnRole::Extra,
                     ColumnRole::OtherExtra);
    }
    mapping.columns[column] = role;
    const std::size_t numbers = ColumnsOf(mapping, ColumnRole::Number).size();
    if (numbers >= 4 && numbers <= 7) mapping.picks = static_cast<int>(numbers);
    ChooseMapping(mapping);
}

void ImportSession::ChooseEras(EraChoice choice) {
    eraChoice_ = choice;
    erasChosen_ = true;
    TakeEras();
}

void ImportSession::Tick(const std::vector<std::size_t>& rows, bool on) {
    if (on) {
        for (const std::size_t row : rows) unticked_.erase(row);
    } else {
        const std::set<std::size_t> wanted(rows.begin(), rows.end());
        for (const ImportedDraw& draw : all_.draws) {
            if (wanted.contains(draw.row)) unticked_.emplace(draw.row, draw);
        }
    }
    ReadAgain();
}

void ImportSession::ReadAgain() {
    all_ = {};
    eras_.clear();
    missing_ = MissingInMapping(mapping_);
    if (missing_.empty()) {
        std::set<std::size_t> rows;
        for (const auto& [row, draw] : unticked_) rows.insert(row);
        all_ = ReadDraws(*table_, mapping_, dates_, rows);
        eras_ = FindEras(all_.draws, mapping_.extraFromSameDrum);
    }
    if (all_.draws.empty() && unticked_.empty() && missing_.empty()) {
        missing_ = "No row is a draw when it is read so; the page Left out says why.";
    }
    if (!missing_.empty() && !proposal_.refusal.empty() && mapping_ == proposal_.mapping) {
        missing_ = proposal_.refusal;
    }
    if (eras_.size() < 2 && eraChoice_ != EraChoice::All) eraChoice_ = EraChoice::All;
    TakeEras();
}

void ImportSession::TakeEras() {
    const bool newest = eraChoice_ == EraChoice::Newest && eras_.size() > 1;
    taken_ = newest ? OnlyEra(all_, eras_.front()) : all_;
    if (eraChoice_ != EraChoice::Each) KeepNewest(taken_);
}

ImportedDraws ImportSession::DrawsOf(const ImportEra& era) const {
    ImportedDraws draws = OnlyEra(all_, era);
    KeepNewest(draws);
    return draws;
}

const std::vector<std::string>& ImportSession::Headings() const {
    static const std::vector<std::string> none;
    return mapping_.hasHeading ? proposal_.headings : none;
}

std::vector<std::string> ImportSession::Products() const {
    std::vector<std::string> products;
    if (mapping_.productColumn < 0) return products;
    const auto column = static_cast<std::size_t>(mapping_.productColumn);
    // What stands there once only is a heading.
    std::map<std::string, int, std::less<>> rows;
    for (std::size_t row = 0; row < table_->Rows(); ++row) {
        std::string cell(table_->Cell(row, column));
        if (!cell.empty() && ++rows[cell] == 2) products.push_back(std::move(cell));
    }
    return products;
}

std::vector<TickedDraw> ImportSession::Offered() const {
    std::vector<TickedDraw> offered;
    offered.reserve(taken_.draws.size() + unticked_.size());
    for (const ImportedDraw& draw : taken_.draws) offered.push_back({.draw = draw});
    for (const auto& [row, draw] : unticked_) offered.push_back({.draw = draw, .ticked = false});
    std::stable_sort(offered.begin(), offered.end(), [](const TickedDraw& a, const TickedDraw& b) {
        return a.draw.date > b.draw.date;
    });
    return offered;
}

int ImportSession::TooMany() const {
    return static_cast<int>(
        std::ranges::count(taken_.leftOut, LeftOut::TooOld, &LeftOutRow::reason));
}

std::vector<PlannedLottery> ImportSession::NewLotteries(const std::string& name) const {
    if (eraChoice_ != EraChoice::Each) {
        return {{name, RulesOf(taken_.draws, mapping_.extraFromSameDrum), taken_.draws}};
    }
    std::vector<PlannedLottery> lotteries;
    for (const ImportEra& era : eras_) {
        const bool newest = lotteries.empty();
        lotteries.push_back({.name = newest ? name : name + " " + YearsOf(era),
                             .rules = era.rules,
                             .draws = DrawsOf(era).draws});
    }
    return lotteries;
}

MergedDatabase ImportSession::MergeInto(const ProgramFolder& folder,
                                        const std::string& file) const {
    const std::string content = folder.Read(file);
    bool onlyNewest = false;
    if (!erasChosen_ && eras_.size() > 1) {
        const std::vector<std::string_view> lines = DrawLines(content);
        const auto oldest =
            lines.empty() ? std::nullopt : DateOfLine(lines.back(), dates_.region, dates_.today);
        onlyNewest = oldest && *oldest >= eras_.front().from;
    }
    const ImportedDraws draws = onlyNewest ? DrawsOf(eras_.front()) : taken_;
    return MergeDraws(content, file, draws.draws, dates_);
}

std::string ImportSession::RememberedDatabase(const ProgramFolder& folder) const {
    const bool there = !rememberedDatabase_.empty() && folder.Exists(rememberedDatabase_);
    if (!remembered_ || !there) return {};
    const bool suits = Suits(folder, rememberedDatabase_, rememberedSource_ == source_);
    return suits ? rememberedDatabase_ : std::string();
}

bool ImportSession::Suits(const ProgramFolder& folder, const std::string& file, bool known) const {
    const MergedDatabase merged = MergeInto(folder, file);
    const std::size_t against = merged.conflicts.size() + merged.unfit.size();
    if (merged.there == 0) return known && against == 0;
    return against <= static_cast<std::size_t>(merged.there);
}

std::string ImportSession::ProposedName() const {
    if (!proposal_.title.empty()) return proposal_.title;
    return source_ == clipboard ? std::string() : NameFromSource(source_);
}

ImportFormat ImportSession::FormatInto(const std::string& database) const {
    return {.source = source_,
            .database = database,
            .headings = proposal_.headings,
            .mapping = mapping_};
}
