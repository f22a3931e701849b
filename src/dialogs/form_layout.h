// Where a dialog stands, and its parts on it: rows of labels and controls, room for a message, and a row of buttons.
#pragma once

#include <vector>

#include "widgets/geometry.h"

namespace calquo {

/// The rectangle of a dialog of `size` in the middle of `around`, moved into `usableArea`, a screen's, as far as it
/// fits there; where it does not, its upper left corner is in view.
Rectangle dialogRectangle(Size size, const Rectangle& around, const Rectangle& usableArea);

/// A control with its label at the left of it. Without a label, a size of 0, it stands at the left edge.
struct FormRow {
    Size label;
    Size control;
};

/// What a dialog shows, in pixels at `dotsPerInch`.
struct FormParts {
    std::vector<FormRow> rows;
    std::vector<Size> buttons;
    int dotsPerInch = designDotsPerInch;
};

struct FormLayout {
    Size client;  ///< All of it, with the margins.
    std::vector<Rectangle> labels;
    std::vector<Rectangle> controls;  ///< Those beside labels are all as wide as the widest of them, below each other.
    Rectangle message;
    std::vector<Rectangle> buttons;  ///< All as large as the largest, at the right edge.
};

/// The width between the margins.
int formWidth(const FormParts& parts);

/// The layout, with a message of a given height between the rows and the buttons.
FormLayout layOutForm(const FormParts& parts, int messageHeight);

}  // namespace calquo
