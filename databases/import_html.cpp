// SPDX-License-Identifier: GPL-3.0-or-later
#include "databases/import_html.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cstddef>
#include <optional>

#include "core/text.h"
#include "databases/import_characters.h"

namespace {

struct Tag {
    std::string name;  // lower case, "/td" for an end
    std::string_view text;
};

struct Entity {
    std::string_view name;
    char32_t character;
};

constexpr auto entities = std::to_array<Entity>({
    {"nbsp", 0xA0},   {"amp", '&'},     {"lt", '<'},      {"gt", '>'},      {"quot", '"'},
    {"apos", '\''},   {"ndash", '-'},   {"mdash", '-'},   {"minus", '-'},   {"pound", 0xA3},
    {"euro", 0x20AC}, {"agrave", 0xE0}, {"aacute", 0xE1}, {"atilde", 0xE3}, {"auml", 0xE4},
    {"ccedil", 0xE7}, {"egrave", 0xE8}, {"eacute", 0xE9}, {"ecirc", 0xEA},  {"iacute", 0xED},
    {"ntilde", 0xF1}, {"oacute", 0xF3}, {"ouml", 0xF6},   {"uacute", 0xFA}, {"ucirc", 0xFB},
    {"uuml", 0xFC},   {"szlig", 0xDF},
});

std::optional<char32_t> CharacterNamed(std::string_view name) {
    if (name.starts_with('#')) {
        const bool hex = name.size() > 1 && (name[1] == 'x' || name[1] == 'X');
        const std::string_view digits = name.substr(hex ? 2 : 1);
        unsigned code = 0;
        const auto read =
            std::from_chars(digits.data(), digits.data() + digits.size(), code, hex ? 16 : 10);
        const bool whole = read.ec == std::errc() && read.ptr == digits.data() + digits.size();
        if (!whole || code < 32) return std::nullopt;
        // Numbers from 128 to 159 are meant as in Windows-1252.
        return code == 0x96 || code == 0x97 ? U'-' : static_cast<char32_t>(code);
    }
    for (const Entity& entity : entities) {
        if (entity.name == name) return entity.character;
    }
    return std::nullopt;
}

// A walk over a page: texts and tags, without comments, scripts and styles.
class Walk {
  public:
    explicit Walk(std::string_view page) : page_(page) {}

    bool AtEnd() const { return position_ >= page_.size(); }

    // The next tag, or nothing where text stands.
    std::optional<Tag> NextTag() {
        if (page_[position_] != '<' || position_ + 1 >= page_.size()) return std::nullopt;
        const char next = page_[position_ + 1];
        if (next == '!' || next == '?') return Comment();
        if (next != '/' && !IsLetterByte(next)) return std::nullopt;
        const std::string_view text = UpTo(">");
        const std::string_view inner = text.substr(1);
        const std::size_t end = std::min(inner.find_first_of(" \t\r\n/>", 1), inner.size());
        Tag tag{.name = LowerCase(inner.substr(0, end)), .text = text};
        if (tag.name == "script") Pass(tag, "</script");
        if (tag.name == "style") Pass(tag, "</style");
        return tag;
    }

    // The next character of the text, entities read.
    void NextCharacter(std::string& text) {
        const char character = page_[position_];
        if (character == '&') {
            const std::string_view ahead = page_.substr(position_ + 1, 10);
            const std::size_t end = ahead.find(';');
            if (end != std::string_view::npos) {
                if (const auto named = CharacterNamed(ahead.substr(0, end))) {
                    AppendPlain(text, *named);
                    position_ += end + 2;
                    return;
                }
            }
        }
        text += character;
        ++position_;
    }

  private:
    Tag Comment() {
        const bool comment = page_.substr(position_).starts_with("<!--");
        return {.name = "!", .text = UpTo(comment ? "-->" : ">")};
    }

    // What stands up to the end mark, the mark included; to the end of the page where there is
    // none.
    std::string_view UpTo(std::string_view mark) {
        const std::size_t found = page_.find(mark, position_);
        const std::size_t end =
            found == std::string_view::npos ? page_.size() : found + mark.size();
        const std::string_view text = page_.substr(position_, end - position_);
        position_ = end;
        return text;
    }

    void Pass(Tag& tag, std::string_view end) {
        const std::size_t start = position_ - tag.text.size();
        while (!AtEnd()) {
            const std::string_view rest = page_.substr(position_, end.size());
            if (LowerCase(rest) == end) break;
            const std::size_t next = page_.find('<', position_ + 1);
            position_ = next == std::string_view::npos ? page_.size() : next;
        }
        if (!AtEnd()) UpTo(">");
        tag.text = page_.substr(start, position_ - start);
    }

    std::string_view page_;
    std::size_t position_ = 0;
};

bool EndsRow(std::string_view name) {
    constexpr auto names = std::to_array<std::string_view>(
        {"p",  "div", "tr",      "table",   "ul",     "ol",     "li",   "h1",
         "h2", "h3",  "h4",      "h5",      "h6",     "br",     "hr",   "dl",
         "dt", "dd",  "section", "article", "header", "footer", "title"});
    if (name.starts_with('/')) name.remove_prefix(1);
    return std::find(names.begin(), names.end(), name) != names.end();
}

std::size_t LineEndsIn(std::string_view text) {
    return static_cast<std::size_t>(std::count(text.begin(), text.end(), '\n'));
}

// How many columns a cell spans, at most 20.
std::size_t ColumnsOfCell(std::string_view tag) {
    const std::string lower = LowerCase(tag);
    std::size_t at = lower.find("colspan=");
    if (at == std::string::npos) return 1;
    at = lower.find_first_of("0123456789", at);
    if (at == std::string::npos) return 1;
    return static_cast<std::size_t>(std::clamp(LeadingWhole(lower.substr(at, 2)), 1, 20));
}

// The rows of tables while the page is walked.
class TableRows {
  public:
    void Take(const Tag& tag) {
        if (tag.name == "tr" || tag.name == "/tr" || tag.name == "/table") {
            EndRow();
        } else if (tag.name == "td" || tag.name == "th") {
            if (inRow_) rows_.append(spans_, cellBreak);
            spans_ = ColumnsOfCell(tag.text);
            inRow_ = inCell_ = true;
        } else if (tag.name == "/td" || tag.name == "/th") {
            inCell_ = false;
        } else if (inCell_) {
            rows_ += ' ';
        }
    }

    bool InCell() const { return inCell_; }

    void Add(std::string_view text) {
        for (const char character : text) {
            rows_ += character == '\r' || character == '\n' || character == '\t' ? ' ' : character;
        }
    }

    std::string Finished() {
        EndRow();
        return std::move(rows_);
    }

  private:
    void EndRow() {
        if (inRow_) rows_ += '\n';
        inRow_ = inCell_ = false;
    }

    std::string rows_;
    bool inRow_ = false;
    bool inCell_ = false;
    std::size_t spans_ = 1;
};

}  // namespace

std::string LinesOfHtml(std::string_view page) {
    std::string text;
    Walk walk(page);
    bool asItStands = false;
    while (!walk.AtEnd()) {
        if (const auto tag = walk.NextTag()) {
            if (tag->name == "pre") asItStands = true;
            if (tag->name == "/pre") asItStands = false;
            text += EndsRow(tag->name) ? softBreak : asItStands ? '\0' : ' ';
            if (text.back() == '\0') text.pop_back();
            text.append(LineEndsIn(tag->text), softLine);
            continue;
        }
        const std::size_t before = text.size();
        walk.NextCharacter(text);
        const bool lineEnd = text.size() == before + 1 && text.back() == '\n';
        if (!asItStands && lineEnd) text.back() = softLine;
    }
    return text;
}

std::string CellsOfHtml(std::string_view page) {
    TableRows rows;
    Walk walk(page);
    std::string character;
    while (!walk.AtEnd()) {
        if (const auto tag = walk.NextTag()) {
            rows.Take(*tag);
            continue;
        }
        character.clear();
        walk.NextCharacter(character);
        if (rows.InCell()) rows.Add(character);
    }
    return rows.Finished();
}

std::string TitleOfHtml(std::string_view page) {
    Walk walk(page.substr(0, 64 * 1024));
    std::string title;
    bool inTitle = false;
    while (!walk.AtEnd()) {
        if (const auto tag = walk.NextTag()) {
            if (tag->name == "/title") break;
            inTitle = inTitle || tag->name == "title";
            continue;
        }
        std::string character;
        walk.NextCharacter(character);
        if (inTitle) title += character == "\n" || character == "\r" ? " " : character;
    }
    return inTitle ? Trim(title) : std::string();
}
