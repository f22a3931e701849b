// The arithmetic of a dialog's layout.
#include "dialogs/form_layout.h"

#include <algorithm>

namespace calquo {
namespace {

// Distances at 96 dots per inch.
constexpr int margin = 14;
constexpr int betweenRows = 7;
constexpr int betweenBlocks = 11;  // of rows with labels, and of rows without
constexpr int betweenColumns = 16;
constexpr int aroundMessage = 8;
constexpr int betweenButtons = 8;

bool hasLabel(const FormRow& row) { return row.label != Size{}; }

int heightOf(const FormRow& row) { return std::max(row.label.height, row.control.height); }

Size largest(const std::vector<Size>& sizes) {
    Size most;
    for (const Size& size : sizes) {
        most = {std::max(most.width, size.width), std::max(most.height, size.height)};
    }
    return most;
}

/// What the rows with labels need: the widest label and the widest control.
struct Columns {
    int labels = 0;
    int controls = 0;
};

Columns columnsOf(const FormParts& parts) {
    Columns columns;
    for (const FormRow& row : parts.rows) {
        if (hasLabel(row)) {
            columns.labels = std::max(columns.labels, row.label.width);
            columns.controls = std::max(columns.controls, row.control.width);
        }
    }
    return columns;
}

/// The buttons in a row that ends at `right`.
std::vector<Rectangle> layOutButtons(const FormParts& parts, int right, int top) {
    const Size button = largest(parts.buttons);
    const int step = button.width + scaledToScreen(betweenButtons, parts.dotsPerInch);
    const int count = static_cast<int>(parts.buttons.size());
    std::vector<Rectangle> row;
    for (int toTheRight = count - 1; toTheRight >= 0; --toTheRight) {
        row.push_back({right - button.width - toTheRight * step, top, button.width, button.height});
    }
    return row;
}

}  // namespace

Rectangle dialogRectangle(Size size, const Rectangle& around, const Rectangle& usableArea) {
    const auto placed = [](int length, int begin, int room, int screenBegin, int screenRoom) {
        const int latest = std::max(screenBegin, screenBegin + screenRoom - length);
        return std::clamp(begin + (room - length) / 2, screenBegin, latest);
    };
    return {placed(size.width, around.left, around.width, usableArea.left, usableArea.width),
            placed(size.height, around.top, around.height, usableArea.top, usableArea.height), size.width, size.height};
}

int formWidth(const FormParts& parts) {
    const auto scaled = [&](int pixels) { return scaledToScreen(pixels, parts.dotsPerInch); };
    const Columns columns = columnsOf(parts);
    const int count = static_cast<int>(parts.buttons.size());
    int width = std::max(columns.labels + scaled(betweenColumns) + columns.controls,
                         count * largest(parts.buttons).width + (count - 1) * scaled(betweenButtons));
    for (const FormRow& row : parts.rows) {
        if (!hasLabel(row)) {
            width = std::max(width, row.control.width);
        }
    }
    return width;
}

FormLayout layOutForm(const FormParts& parts, int messageHeight) {
    const auto scaled = [&](int pixels) { return scaledToScreen(pixels, parts.dotsPerInch); };
    const int left = scaled(margin);
    const int width = formWidth(parts);
    const Columns columns = columnsOf(parts);
    FormLayout layout;
    int top = scaled(margin);
    const FormRow* previous = nullptr;
    for (const FormRow& row : parts.rows) {
        if (previous != nullptr) {
            top += scaled(hasLabel(row) == hasLabel(*previous) ? betweenRows : betweenBlocks);
        }
        previous = &row;
        const int height = heightOf(row);
        const int controlTop = top + (height - row.control.height) / 2;
        if (hasLabel(row)) {
            // Into the gap beside it: some systems write a text a little longer than they measure it.
            layout.labels.push_back({left, top + (height - row.label.height) / 2,
                                     columns.labels + scaled(betweenColumns) / 2, row.label.height});
            layout.controls.push_back(
                {left + width - columns.controls, controlTop, columns.controls, row.control.height});
        } else {
            layout.labels.push_back({});
            layout.controls.push_back({left, controlTop, row.control.width, row.control.height});
        }
        top += height;
    }
    top += scaled(aroundMessage);
    layout.message = {left, top, width, messageHeight};
    top += messageHeight + scaled(aroundMessage);

    layout.buttons = layOutButtons(parts, left + width, top);
    layout.client = {width + 2 * left, top + largest(parts.buttons).height + left};
    return layout;
}

}  // namespace calquo
