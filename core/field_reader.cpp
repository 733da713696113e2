// SPDX-License-Identifier: GPL-3.0-or-later
#include "core/field_reader.h"

#include <algorithm>
#include <array>
#include <utility>

#include "core/text.h"

namespace {

bool IsLineEnd(char character) { return character == '\r' || character == '\n'; }

bool IsDigit(char character) { return character >= '0' && character <= '9'; }

std::size_t BehindBlanks(std::string_view text, std::size_t start) {
    while (start < text.size() && text[start] == ' ') ++start;
    return start;
}

}  // namespace

FieldReader::FieldReader(std::string_view content, std::string fileName, Quotes quotes)
    : content_(content), fileName_(std::move(fileName)), quotes_(quotes) {}

bool FieldReader::AtEnd() const { return position_ == content_.size() && !fieldPending_; }

std::string_view FieldReader::ReadField(std::string_view expected) {
    RequireMore(expected);
    line_ = nextLine_;
    const std::size_t start = BehindBlanks(content_, position_);
    const std::size_t quote = ClosingQuote(start);
    const bool quoted = quote != std::string_view::npos;
    position_ = FieldEnd(quoted ? quote : start);
    std::size_t first = quoted ? start + 1 : start;
    std::size_t last = quoted ? quote : position_;
    while (!quoted && last > first && content_[last - 1] == ' ') --last;
    PassFieldEnd();
    return content_.substr(first, last - first);
}

std::optional<std::int16_t> FieldReader::ReadShortNumber() {
    constexpr std::size_t mostDigits = 4;
    const std::size_t longest = std::min(content_.size(), position_ + mostDigits + 1);
    std::size_t end = position_;
    int number = 0;
    while (end < longest && IsDigit(content_[end])) {
        number = 10 * number + (content_[end++] - '0');
    }
    if (end == position_ || end == longest) return std::nullopt;
    if (content_[end] != ',' && !IsLineEnd(content_[end])) return std::nullopt;
    line_ = nextLine_;
    position_ = end;
    PassFieldEnd();
    return static_cast<std::int16_t>(number);
}

bool FieldReader::ReadPlainRecord(std::span<std::int16_t> numbers) {
    constexpr std::ptrdiff_t mostDigits = 4;
    std::array<std::int16_t, 8> read{};
    if (quotes_ == Quotes::Removed || numbers.size() > read.size()) return false;
    const char* const end = content_.data() + content_.size();
    const char* next = content_.data() + position_;
    while (next != end && *next != ',' && !IsLineEnd(*next)) ++next;
    for (std::size_t i = 0; i < numbers.size(); ++i) {
        if (next == end || *next++ != ',') return false;
        const char* const start = next;
        int number = 0;
        while (next != end && IsDigit(*next)) {
            if (next - start == mostDigits) return false;
            number = 10 * number + (*next++ - '0');
        }
        read[i] = static_cast<std::int16_t>(number);
    }
    if (next != end && *next == '\r') ++next;
    if (next == end || *next++ != '\n') return false;
    std::copy_n(read.begin(), numbers.size(), numbers.begin());
    position_ = static_cast<std::size_t>(next - content_.data());
    line_ = nextLine_++;
    return true;
}

std::string_view FieldReader::ReadLine(std::string_view expected) {
    RequireMore(expected);
    line_ = nextLine_;
    fieldPending_ = false;
    const std::size_t start = position_;
    while (position_ < content_.size() && !IsLineEnd(content_[position_])) ++position_;
    const std::string_view line = content_.substr(start, position_ - start);
    PassLineEnd();
    return line;
}

void FieldReader::PassRestOfLine() {
    if (nextLine_ != line_) return;
    fieldPending_ = false;
    while (position_ < content_.size() && !IsLineEnd(content_[position_])) ++position_;
    PassLineEnd();
}

void FieldReader::PassStrayLineFeeds() {
    while (position_ >= 2 && content_.substr(position_ - 2, 3) == "\r\n\n") {
        PassLineEnd();
        if (!content_.substr(position_).starts_with("\r\n")) return;
        PassLineEnd();
    }
}

std::string_view FieldReader::Rest() {
    line_ = nextLine_;
    fieldPending_ = false;
    return content_.substr(std::exchange(position_, content_.size()));
}

Failure FieldReader::Unexpected(std::string_view expected, std::string_view found) const {
    return FailureInFile(
        fileName_, line_,
        "expected " + std::string(expected) + ", but " + Quoted(found) + " stands there.");
}

void FieldReader::RequireMore(std::string_view expected) const {
    if (!AtEnd()) return;
    throw FailureInFile(fileName_, nextLine_,
                        "expected " + std::string(expected) + ", but the file ends there.");
}

bool FieldReader::EndsField(std::size_t position) const {
    return position == content_.size() || content_[position] == ',' ||
           IsLineEnd(content_[position]);
}

std::size_t FieldReader::FieldEnd(std::size_t start) const {
    std::size_t end = start;
    while (!EndsField(end)) ++end;
    return end;
}

// Where the field at `start` stands in quotes, the place of the closing one: the first behind which
// the field ends. A line without one is searched for its first field only.
std::size_t FieldReader::ClosingQuote(std::size_t start) {
    constexpr std::size_t none = std::string_view::npos;
    if (quotes_ == Quotes::Kept || start == content_.size() || content_[start] != '"') return none;
    if (start < noneCloses_) return none;
    std::size_t i = start + 1;
    for (; i < content_.size() && !IsLineEnd(content_[i]); ++i) {
        if (content_[i] == '"' && EndsField(BehindBlanks(content_, i + 1))) return i;
    }
    noneCloses_ = i;
    return none;
}

void FieldReader::PassFieldEnd() {
    const bool comma = position_ < content_.size() && content_[position_] == ',';
    if (comma) {
        ++position_;
    } else {
        PassLineEnd();
    }
    fieldPending_ = comma && position_ == content_.size();
}

void FieldReader::PassLineEnd() {
    if (position_ == content_.size()) return;
    const bool returned = content_[position_++] == '\r';
    if (returned && position_ < content_.size() && content_[position_] == '\n') ++position_;
    ++nextLine_;
}
