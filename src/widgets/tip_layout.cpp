// The layout of a tip, from what its texts measure.
#include "widgets/tip_layout.h"

#include <algorithm>
#include <numeric>

namespace calquo {
namespace {

std::size_t pastBlanks(const std::wstring& text, std::size_t index) {
    while (index < text.size() && text[index] == L' ') {
        ++index;
    }
    return index;
}

/// The end of the word that begins at an index.
std::size_t endOfWord(const std::wstring& text, std::size_t index) {
    const std::size_t begin = pastBlanks(text, index);
    return std::min(text.find(L' ', begin), text.size());
}

/// The end of the characters of a word that fit into a line, at least one.
std::size_t endOfPiece(const TipCell& cell, TextSpan word, int width, const CellMeasure& measure) {
    std::size_t end = word.begin + 1;
    while (end < word.end && measure(cell, {word.begin, end + 1}) <= width) {
        ++end;
    }
    return end;
}

std::vector<int> columnWidths(const std::vector<TipRow>& rows, const TipMetrics& metrics, const CellMeasure& measure) {
    constexpr int percentOfWidth = 35;
    std::vector<int> widths;
    for (const TipRow& row : rows) {
        widths.resize(std::max(widths.size(), row.size()));
        for (std::size_t column = 0; column < row.size(); ++column) {
            const int width = measure(row[column], {0, row[column].text.size()});
            widths[column] = std::max(widths[column], width);
        }
    }
    int rest = metrics.mostWidth;
    for (std::size_t column = 0; column < widths.size(); ++column) {
        const bool isLast = column + 1 == widths.size();
        const int most = isLast ? rest : metrics.mostWidth * percentOfWidth / 100;
        widths[column] = std::min(widths[column], std::max(most, 1));
        rest -= widths[column] + metrics.gap;
    }
    return widths;
}

}  // namespace

std::vector<TextSpan> brokenLines(const TipCell& cell, int width, const CellMeasure& measure) {
    const std::wstring& text = cell.text;
    if (measure(cell, {0, text.size()}) <= width) {
        return {{0, text.size()}};
    }
    std::vector<TextSpan> lines;
    for (std::size_t begin = 0; begin < text.size();) {
        std::size_t end = endOfWord(text, begin);
        if (measure(cell, {begin, end}) > width) {
            end = endOfPiece(cell, {begin, end}, width, measure);
        }
        for (std::size_t next = endOfWord(text, end);
             next != end && text[end] == L' ' && measure(cell, {begin, next}) <= width; next = endOfWord(text, end)) {
            end = next;
        }
        lines.push_back({begin, end});
        begin = pastBlanks(text, end);
    }
    return lines;
}

TipLayout layOutTip(const std::vector<TipRow>& rows, const TipMetrics& metrics, const CellMeasure& measure) {
    const std::vector<int> widths = columnWidths(rows, metrics, measure);
    TipLayout layout;
    int top = 0;
    for (const TipRow& row : rows) {
        PlacedRow placed{top, metrics.lineHeight, {}};
        int left = 0;
        for (std::size_t column = 0; column < row.size(); ++column) {
            placed.cells.push_back({{left, top}, brokenLines(row[column], widths[column], measure)});
            const auto lines = static_cast<int>(placed.cells.back().lines.size());
            placed.height = std::max(placed.height, lines * metrics.lineHeight);
            left += widths[column] + metrics.gap;
        }
        top += placed.height;
        layout.rows.push_back(std::move(placed));
    }
    const int gaps = metrics.gap * std::max(static_cast<int>(widths.size()) - 1, 0);
    layout.width = std::accumulate(widths.begin(), widths.end(), gaps);
    return layout;
}

int roomBeside(const Rectangle& line, int height, const Rectangle& area) {
    const int below = area.top + area.height - (line.top + line.height);
    const int above = line.top - area.top;
    return height <= below ? below : std::max(below, above);
}

Rectangle placeBeside(const Rectangle& line, Size tip, const Rectangle& area) {
    const int bottom = line.top + line.height;
    const bool fitsBelow = tip.height <= area.top + area.height - bottom;
    const bool goesAbove = !fitsBelow && tip.height <= line.top - area.top;
    const int left = std::max(area.left, std::min(line.left, area.left + area.width - tip.width));
    const int top = std::min(goesAbove ? line.top - tip.height : bottom, area.top + area.height - tip.height);
    return {left, std::max(area.top, top), tip.width, tip.height};
}

}  // namespace calquo
