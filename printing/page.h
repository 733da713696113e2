// SPDX-License-Identifier: GPL-3.0-or-later
// What is printed: sheets with texts and filled rectangles on them. All places and sizes are in
// millimetres, across and down from the printer's own origin, the corner of what it can print on.
#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

/// How a text looks; the font is the one of all reports.
struct TextLook {
    int points = 10;
    bool bold = false;
    bool underlined = false;
    bool operator==(const TextLook&) const = default;
};

/// A text in Windows-1252; its place is the top left corner of its line.
struct PlacedText {
    double across = 0;
    double down = 0;
    std::string text;
    TextLook look;
};

/// A black rectangle by its top left corner.
struct FilledRectangle {
    double across = 0;
    double down = 0;
    double width = 0;
    double height = 0;
};

struct Sheet {
    std::vector<PlacedText> texts;
    std::vector<FilledRectangle> rectangles;
};

struct Document {
    std::vector<Sheet> sheets;
};

/// What a sheet has room for, and how large the letters on it are.
struct SheetRoom {
    double width = 0;  ///< Of the part that can be printed on.
    double height = 0;
    std::function<double(const TextLook&)> lineHeight;
    std::function<double(std::string_view, const TextLook&)> textWidth;
};

enum class PrintQuality { Draft, Low, Medium, High };
enum class Orientation { Portrait, Landscape };
enum class PaperSize { A4, A3, Letter, Legal };

/// How a document is to be printed. What is not set is as the printer has it, and what the printer
/// does not support is its own business.
struct PrintOptions {
    std::optional<PrintQuality> quality;
    std::optional<Orientation> orientation;
    std::optional<PaperSize> paper;
};

/// How far a printer is off: places are scaled, in per cent, and then moved, in millimetres. Marks
/// keep their size.
struct PageCorrection {
    double moveAcross = 0;
    double moveDown = 0;
    double scaleAcross = 100;
    double scaleDown = 100;
    bool operator==(const PageCorrection&) const = default;
};

/// The document with all its places corrected.
Document Corrected(Document document, const PageCorrection& correction);

/// One document for the printer. It is set when the sheet's room is known, anew for each printer.
struct PrintJob {
    std::string title;  ///< As the printer's queue shows it.
    PrintOptions options;
    std::function<Document(const SheetRoom&)> compose;
    bool corrected = false;  ///< Whether the correction of the printer applies.
};

/// Sets lines of text one below the other, as on a printer that is fed line by line: a line that
/// does not fit whole on the sheet begins the next sheet, at its top, in the same columns.
class Typesetter {
  public:
    explicit Typesetter(SheetRoom room);

    void SetLook(const TextLook& look) { look_ = look; }
    const TextLook& Look() const { return look_; }

    /// Goes to a place on the sheet.
    void MoveTo(double across, double down);

    /// Goes to a column of the line.
    void MoveAcross(double across) { across_ = across; }

    /// Sets a text at the place reached, and goes on behind it.
    void Print(std::string_view text);

    /// Goes down by the height of a line of the present look, to the sheet's left edge.
    void EndLine();

    /// The sheets set so far.
    Document Take() && { return std::move(document_); }

  private:
    SheetRoom room_;
    TextLook look_;
    double across_ = 0;
    double down_ = 0;
    Document document_;
};
