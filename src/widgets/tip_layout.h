// Where the parts of a tip stand: cells in columns, broken into lines where they are too wide, and the tip beside the
// line that it is about.
#pragma once

#include <cstddef>
#include <functional>
#include <string>
#include <vector>

#include "widgets/geometry.h"

namespace calquo {

/// A part of a text, from one index to another.
struct TextSpan {
    std::size_t begin = 0;
    std::size_t end = 0;

    friend bool operator==(const TextSpan&, const TextSpan&) = default;
};

/// One text of a tip. A part of it may be bold.
struct TipCell {
    std::wstring text;
    TextSpan bold = {};
    bool faint = false;
};

/// The cells of a row from left to right, each in the column of its number.
using TipRow = std::vector<TipCell>;

/// What a tip shows.
struct TipContent {
    std::vector<TipRow> rows = {};
    std::wstring footer = {};  ///< A faint line below them; none when empty.
    std::wstring spoken = {};  ///< What screen readers say, before the selected row.
    bool isList = false;       ///< A row of it is selected, and it scrolls instead of showing many.
    bool canBeChosen = false;  ///< Rows take clicks.
};

/// Lengths in pixels.
struct TipMetrics {
    int mostWidth = 0;  ///< Of all columns with the gaps between them.
    int lineHeight = 0;
    int gap = 0;  ///< Between columns.
};

/// The width of a part of a cell, in pixels.
using CellMeasure = std::function<int(const TipCell& cell, TextSpan part)>;

/// A cell's place in the tip, as high as its lines.
struct PlacedCell {
    Point place;
    std::vector<TextSpan> lines;
};

struct PlacedRow {
    int top = 0;
    int height = 0;
    std::vector<PlacedCell> cells;
};

struct TipLayout {
    std::vector<PlacedRow> rows;
    int width = 0;
};

/// Breaks a cell into lines of at most `width`: after blanks, or inside a word that is wider. At least one character
/// goes into a line, and the blanks at its end are not shown.
std::vector<TextSpan> brokenLines(const TipCell& cell, int width, const CellMeasure& measure);

/// Puts rows one below the other. A column is as wide as its widest cell, but none before the last takes more than
/// 35 % of the width, and the last one gets what is left.
TipLayout layOutTip(const std::vector<TipRow>& rows, const TipMetrics& metrics, const CellMeasure& measure);

/// The room for a tip in an area: below a line or above it, whichever is higher; below where the tip fits there.
int roomBeside(const Rectangle& line, int height, const Rectangle& area);

/// The place of a tip in an area: below a line, or above it where it does not fit below but there. Its left edge is the
/// line's, or further left, so that it does not leave the area.
Rectangle placeBeside(const Rectangle& line, Size tip, const Rectangle& area);

}  // namespace calquo
