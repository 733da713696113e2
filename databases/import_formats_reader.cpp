// SPDX-License-Identifier: GPL-3.0-or-later
#include <optional>
#include <utility>

#include "core/text.h"
#include "databases/import_formats.h"
#include "databases/import_numbers.h"
#include "databases/import_words.h"

namespace {

using namespace import_words;

template <typename Value, std::size_t size>
std::string AllNames(const std::array<Named<Value>, size>& names) {
    std::string all;
    for (const auto& named : names) all += (all.empty() ? "" : ", ") + std::string(named.name);
    return all;
}

std::vector<std::string> Parts(std::string_view text, char between) {
    std::vector<std::string> parts;
    for (;;) {
        const std::size_t end = text.find(between);
        parts.push_back(OneLine(text.substr(0, end)));
        if (end == std::string_view::npos) return parts;
        text.remove_prefix(end + 1);
    }
}

/// Reads one block; the first mistake ends it.
class Block {
  public:
    explicit Block(std::string source) { format_.source = std::move(source); }

    // What was expected instead of the line, or nothing.
    std::optional<std::string> Take(std::string_view line) {
        const std::size_t equals = line.find('=');
        if (equals == std::string_view::npos) return "a name, \"=\" and a value";
        const std::string name = LowerCase(Trim(line.substr(0, equals)));
        const std::string value = Trim(line.substr(equals + 1));
        ImportMapping& mapping = format_.mapping;
        if (name == "lottery") return Text(format_.database, value);
        if (name == "separator") return Choice(mapping.separator, separators, value);
        if (name == "dates") return Choice(mapping.dateOrder, orders, value);
        if (name == "headings") return Headings(value);
        if (name == "columns") return Columns(value);
        if (name == "main numbers") return Whole(mapping.picks, value, 4, 7);
        if (name == "kept extra") return Whole(mapping.keptExtra, value, 1, 9);
        if (name == "extra ball") return Choice(mapping.extraFromSameDrum, drums, value);
        if (name == "draws of one date") return Choice(mapping.sameDate, sameDates, value);
        if (name == "column of draw numbers") return Column(mapping.drawNumberColumn, value);
        if (name == "column of games") return Column(mapping.productColumn, value);
        if (name == "game") return Text(mapping.product, value);
        return "lottery, separator, dates, headings, columns, main numbers, extra ball, kept "
               "extra, "
               "draws of one date, column of draw numbers, column of games or game";
    }

    // What the whole block lacks, or nothing.
    std::string Missing() const { return MissingInMapping(format_.mapping); }

    ImportFormat& Format() { return format_; }

  private:
    using Expected = std::optional<std::string>;

    static Expected Text(std::string& text, const std::string& value) {
        text = OneLine(value);
        return std::nullopt;
    }

    template <typename Value, std::size_t size>
    static Expected Choice(Value& chosen, const std::array<Named<Value>, size>& names,
                           const std::string& value) {
        const std::string wanted = LowerCase(value);
        for (const auto& named : names) {
            if (named.name != wanted) continue;
            chosen = named.value;
            return std::nullopt;
        }
        return "one of " + AllNames(names);
    }

    static Expected Whole(int& number, const std::string& value, int lowest, int highest) {
        const int read = PlainNumber(value);
        if (read < lowest || read > highest) {
            return "a number from " + PlainDigits(lowest) + " to " + PlainDigits(highest);
        }
        number = read;
        return std::nullopt;
    }

    // Columns count from 1 for the user.
    static Expected Column(int& column, const std::string& value) {
        if (auto expected = Whole(column, value, 1, static_cast<int>(ImportTable::mostColumns))) {
            return expected;
        }
        --column;
        return std::nullopt;
    }

    Expected Headings(const std::string& value) {
        format_.headings = Parts(value, '|');
        format_.mapping.hasHeading = true;
        return std::nullopt;
    }

    Expected Columns(const std::string& value) {
        std::vector<ColumnRole> columns;
        for (const std::string& part : Parts(value, ',')) {
            ColumnRole role = ColumnRole::Nothing;
            if (!part.empty() && Choice(role, roles, part)) return "some of " + AllNames(roles);
            columns.push_back(role);
        }
        format_.mapping.columns = std::move(columns);
        return std::nullopt;
    }

    ImportFormat format_;
};

/// Reads the file, line by line.
class Reader {
  public:
    ImportFormats Read(std::string_view content) {
        while (!content.empty()) {
            const std::size_t end = std::min(content.find_first_of("\r\n"), content.size());
            TakeLine(content.substr(0, end));
            const bool both = content.substr(end, 2) == "\r\n";
            content.remove_prefix(std::min(end + (both ? 2 : 1), content.size()));
        }
        EndBlock();
        return std::move(formats_);
    }

  private:
    void TakeLine(std::string_view text) {
        ++line_;
        const std::string line = Trim(text);
        if (line.starts_with('[') && line.ends_with(']')) {
            EndBlock();
            block_.emplace(OneLine(std::string_view(line).substr(1, line.size() - 2)));
            firstLine_ = line_;
        }
        if (block_ || !line.starts_with('#')) blockText_ += std::string(text) + "\r\n";
        if (line.empty() || line.starts_with('#') || line.starts_with('[')) return;
        if (!block_) {
            Problem(line_, "a source in square brackets", line);
            return;
        }
        if (const auto expected = block_->Take(line)) Problem(line_, *expected, line);
    }

    void Problem(int line, const std::string& expected, std::string_view found) {
        wrong_ = true;
        formats_.problems.push_back(std::string(importFormatsFile) + ", line " + PlainDigits(line) +
                                    ": expected " + expected + ", but " + Quoted(found) +
                                    " stands there.");
    }

    void EndBlock() {
        if (block_ && !wrong_ && block_->Format().source == strayLines) {
            Problem(firstLine_, "a source in square brackets", "[" + std::string(strayLines) + "]");
        }
        if (block_ && !wrong_) {
            const std::string missing = block_->Missing();
            if (missing.empty()) {
                formats_.formats.push_back(std::move(block_->Format()));
            } else {
                formats_.problems.push_back(std::string(importFormatsFile) + ", line " +
                                            PlainDigits(firstLine_) +
                                            ": the block below tells no draws. " + missing);
                wrong_ = true;
            }
        }
        if (wrong_)
            formats_.unread +=
                (block_ ? std::string() : "[" + std::string(strayLines) + "]\r\n") + blockText_;
        block_.reset();
        blockText_.clear();
        wrong_ = false;
    }

    ImportFormats formats_;
    std::optional<Block> block_;
    std::string blockText_;
    bool wrong_ = false;
    int line_ = 0;
    int firstLine_ = 0;
};

}  // namespace

ImportFormats ReadImportFormats(std::string_view content) { return Reader().Read(content); }
