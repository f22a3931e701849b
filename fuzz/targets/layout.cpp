// Windows, dialogs and buttons of any size on any screens: nothing has a negative size, parts do not overlap and stay
// within, and whatever is stored, a window is shown where somebody can reach it.
#include <algorithm>

#include "dialogs/attribute_controls.h"
#include "dialogs/form_layout.h"
#include "shell/window_layout.h"
#include "target.h"
#include "values/errors.h"
#include "widgets/button_face.h"
#include "widgets/button_press.h"
#include "widgets/scrolled_view.h"
#include "widgets/shape_coverage.h"

namespace calquo {
namespace {

int lengthFrom(InputReader& reader) { return static_cast<int>(reader.number(2) % 5000); }
Size sizeFrom(InputReader& reader) {
    const int width = lengthFrom(reader);
    return {width, lengthFrom(reader)};
}
/// Its edges have 16 bits, as those of the system's windows.
Rectangle rectangleFrom(InputReader& reader) {
    const auto left = static_cast<std::int16_t>(reader.number(2));
    const auto top = static_cast<std::int16_t>(reader.number(2));
    const Size size = sizeFrom(reader);
    return {left, top, size.width, size.height};
}

bool isWithin(const Rectangle& part, const Rectangle& whole) {
    return part.width >= 0 && part.height >= 0 && part.left >= whole.left && part.top >= whole.top &&
           part.left + part.width <= whole.left + whole.width && part.top + part.height <= whole.top + whole.height;
}

bool overlap(const Rectangle& one, const Rectangle& other) {
    return one.width > 0 && one.height > 0 && other.width > 0 && other.height > 0 &&
           one.left < other.left + other.width && other.left < one.left + one.width &&
           one.top < other.top + other.height && other.top < one.top + one.height;
}

void checkWindow(InputReader& reader) {
    WindowParts parts;
    const Size caption = sizeFrom(reader);
    parts.leftCaption = caption;
    parts.rightCaption = {lengthFrom(reader), caption.height};
    parts.panelsHidden = reader.byte() % 4 == 0;
    parts.smallestWorkArea = sizeFrom(reader);
    for (int count = reader.byte() % 8; count > 0; --count) {
        parts.panels.push_back(sizeFrom(reader));
    }
    const Size smallest = smallestClient(parts);
    const Size extra = sizeFrom(reader);
    const Size client{smallest.width + extra.width, smallest.height + extra.height};
    const WindowLayout layout = layOutWindow(client, parts);
    const Rectangle whole{0, 0, client.width, client.height};
    std::vector<Rectangle> all = layout.panels;
    for (Rectangle& panel : all) {
        panel.top += layout.column.top;
        require(isWithin(panel, layout.column) || panel.height == 0, "a panel leaves the column");
    }
    require(!overlap(layout.column, layout.workArea), "the column covers the work area");
    all.insert(all.end(), {layout.leftCaption, layout.rightCaption, layout.title, layout.workArea});
    for (std::size_t index = 0; index < all.size(); ++index) {
        require(isWithin(all[index], whole), "a part leaves the window");
        for (std::size_t other = 0; other < index; ++other) {
            require(!overlap(all[index], all[other]), "two parts overlap");
        }
    }
    require(layout.workArea.width >= parts.smallestWorkArea.width &&
                layout.workArea.height >= parts.smallestWorkArea.height,
            "the work area is too small to work in");
    const WindowLayout tiny = layOutWindow(extra, parts);
    require(tiny.workArea.width >= 0 && tiny.workArea.height >= 0 && tiny.title.width >= 0, "a negative size");
}

/// A column that is scrolled in any way, while its heights change.
void checkScrolling(InputReader& reader) {
    ScrolledView view;
    ScrolledHeights heights;
    while (!reader.isAtEnd()) {
        const Stretch before = view.thumb();
        switch (reader.byte() % 5) {
            case 0:
                heights = {lengthFrom(reader), static_cast<std::int16_t>(reader.number(2)), lengthFrom(reader) % 100};
                view.fit(heights);
                break;
            case 1: {
                const int top = lengthFrom(reader);
                const Stretch part{top, lengthFrom(reader)};
                view.bringIntoView(part);
                const bool exists = part.top + part.height <= heights.content && part.height > 0;
                require(!exists || part.height > heights.view ||
                            (part.top >= view.offset() &&
                             part.top + part.height <= view.offset() + std::max(0, heights.view)),
                        "a part is not brought into view");
                break;
            }
            case 2:
                view.turnWheel(static_cast<std::int16_t>(reader.number(2)), lengthFrom(reader));
                break;
            case 3:
                view.page(reader.byte() % 2 == 0, lengthFrom(reader));
                break;
            default:
                view.moveThumb(static_cast<std::int16_t>(reader.number(2)));
                view.moveThumb(before.top);
        }
        const int seen = std::max(0, heights.view);
        require(view.offset() >= 0 && view.offset() <= std::max(0, heights.content - seen),
                "the view leaves the content");
        const Stretch thumb = view.thumb();
        require(thumb.top >= 0 && thumb.height >= 0 && thumb.top + thumb.height <= seen, "the thumb leaves the bar");
    }
}

/// A window that nobody sizes goes back to where it was, however panels make it grow in between.
void checkGrowth(InputReader& reader) {
    constexpr Rectangle most{0, 0, 10000, 10000};
    WindowGrowth growth;
    const int left = lengthFrom(reader);
    const int top = lengthFrom(reader);
    const Size size = sizeFrom(reader);
    const Rectangle first{left, top, size.width, size.height};
    Rectangle present = first;
    while (!reader.isAtEnd()) {
        const Size least = sizeFrom(reader);
        present = growth.rectangleFor(present, least, most);
        require(present.width >= std::max(least.width, first.width) &&
                    present.height >= std::max(least.height, first.height),
                "a window is smaller than it was, or than its parts");
        require(!isWithin(first, most) || isWithin(present, most), "a window leaves the screen");
    }
    require(growth.rectangleFor(present, {}, most) == first, "a window that grew does not go back");
    const Rectangle byPerson{left, top, first.width + 1, first.height};
    require(growth.rectangleFor(byPerson, {}, most) == byPerson, "a window that a person has sized is sized");
}

void checkPlace(InputReader& reader) {
    const Rectangle wanted = rectangleFrom(reader);
    const Size size = sizeFrom(reader);
    // No larger than a screen, and large enough to show the caption that must be in view.
    const WindowReach reach{
        {-3, -3, 6, 6}, 20, {60, 10}, {std::clamp(size.width, 66, 640), std::clamp(size.height, 26, 480)}};
    std::vector<Rectangle> areas;
    for (int count = reader.byte() % 4; count > 0; --count) {
        areas.push_back(rectangleFrom(reader));
        areas.back().width += 640;
        areas.back().height += 480;
    }
    const Rectangle shown = reachableRectangle(wanted, reach, areas);
    require(areas.empty() || std::ranges::any_of(areas, [&](const Rectangle& area) { return overlap(shown, area); }) ||
                shown.width == 0 || shown.height == 0,
            "no screen shows the window");
    require(reachableRectangle(shown, reach, areas) == shown, "a window that is shown is moved");
    for (const Rectangle& area : areas) {
        const Rectangle frame{-3, -3, 6, 6};
        const Rectangle maximized = maximizedRectangle(area, frame);
        require(isWithin(area, maximized), "the maximized window leaves a gap");
        const Size dialog = sizeFrom(reader);
        const Rectangle placed = dialogRectangle(dialog, wanted, area);
        const bool fits = dialog.width <= area.width && dialog.height <= area.height;
        require(!fits || isWithin(placed, area), "a dialog that fits leaves the screen");
        const Rectangle resized = resizedRectangle(shown, dialog, maximized);
        require(resized.width == dialog.width && resized.height == dialog.height, "a window has another size");
        require(!fits || !isWithin(shown, maximized) || isWithin(resized, maximized),
                "a window grows out of the screen");
        require(placed.left >= area.left && placed.top >= area.top, "the corner of a dialog is out of view");
    }
}

void checkForm(InputReader& reader) {
    FormParts parts;
    parts.dotsPerInch = 48 + reader.byte() * 3;
    for (int count = reader.byte() % 16; count > 0; --count) {
        const bool hasLabel = reader.byte() % 2 == 0;
        parts.rows.push_back({hasLabel ? sizeFrom(reader) : Size{}, sizeFrom(reader)});
    }
    for (int count = 1 + reader.byte() % 4; count > 0; --count) {
        parts.buttons.push_back(sizeFrom(reader));
    }
    const FormLayout layout = layOutForm(parts, lengthFrom(reader));
    std::vector<Rectangle> all = layout.controls;
    all.insert(all.end(), layout.buttons.begin(), layout.buttons.end());
    all.push_back(layout.message);
    for (std::size_t index = 0; index < all.size(); ++index) {
        require(isWithin(all[index], {0, 0, layout.client.width, layout.client.height}), "a control leaves the dialog");
        for (std::size_t other = 0; other < index; ++other) {
            require(!overlap(all[index], all[other]), "two controls overlap");
        }
    }
}

void checkButton(InputReader& reader) {
    const int height = 12 + reader.byte() % 188;
    const Size size{height + reader.byte(), height};  // no button is less wide than high
    const Color color{reader.byte(), reader.byte(), reader.byte()};
    const std::uint32_t reference = colorReference(color);
    require(Color{static_cast<std::uint8_t>(reference), static_cast<std::uint8_t>(reference >> 8),
                  static_cast<std::uint8_t>(reference >> 16)} == color,
            "the system takes a color for another");
    for (const bool pressed : {false, true}) {
        const ButtonFace face = buttonFace(size, color, pressed, {});
        require(contrast(color, face.textColor) >= 4.5, "the text cannot be read on the button");
        for (const RoundedRectangle& layer : face.layers) {
            require(isWithin(layer.rectangle, {0, 0, size.width, size.height}), "a layer leaves the button");
        }
    }
    const auto symbol = static_cast<Symbol>(reader.byte() % (static_cast<int>(Symbol::Close) + 1));
    const Coverage coverage = coverageOf(shapeOf(symbol), 1 + reader.byte());
    require(coverage.alpha.size() ==
                static_cast<std::size_t>(coverage.size.width) * static_cast<std::size_t>(coverage.size.height),
            "a picture lacks pixels");
    require(repeatDelay(reader.byte() % 4) >= 250 && repeatInterval(reader.byte() % 32) >= 30, "a button races");
    ButtonPress press(reader.byte() % 2 == 0);
    for (int steps = reader.byte() % 16; steps > 0; --steps) {
        const std::uint8_t step = reader.byte();
        const bool wasPressed = press.isPressed();
        const ButtonNotice notice = step % 4 == 0   ? press.press()
                                    : step % 4 == 1 ? press.repeat()
                                    : step % 4 == 2 ? press.release((step & 4) != 0, (step & 8) != 0)
                                                    : (press.cancel(), ButtonNotice::None);
        require(notice != ButtonNotice::Clicked || (!press.repeats() && !press.isPressed()), "a held button clicks");
        require(notice != ButtonNotice::Pressed || press.repeats(), "a button repeats that may not");
        require(step % 4 != 1 || wasPressed == press.isPressed(), "the timer changes the button");
    }
}

/// A dialog's changes of a format's word, one by one: what is in range is kept, everything else is refused in words.
void checkAttributes(InputReader& reader) {
    const auto kind = static_cast<FormatKind>(reader.byte() % formatKinds.size());
    NumericFormat word = defaultFormats[static_cast<std::size_t>(kind)];
    for (const Attribute* const attribute : attributesOf(kind)) {
        const std::string typed = reader.byte() % 2 == 0 ? std::to_string(reader.byte() % 70) : reader.textUntil(';');
        const TypedNumber number = readNumber(*attribute, typed);
        require(number.value.has_value() == number.fault.empty(), "a refused number without words");
        if (!number.value) {
            require(number.fault.find(rangeInWords(*attribute)) != std::string::npos, "a refusal without the range");
            continue;
        }
        WorkingValues values(word);
        values.set(*attribute, *number.value);
        require(values.get(*attribute) == *number.value, "a value is not kept");
        const NumericFormat before = word;
        try {
            values.applyTo(word);
            require(widthFault(*attribute, *number.value).empty() && isWellFormed(word, kind), "a word of no format");
        } catch (const Except&) {
            require(!widthFault(*attribute, *number.value).empty(), "a value within its range is refused");
            word = before;
        }
    }
}

void check(FuzzInput input) {
    InputReader reader(input);
    switch (reader.byte() % 7) {
        case 0:
            return checkWindow(reader);
        case 1:
            return checkPlace(reader);
        case 2:
            return checkForm(reader);
        case 3:
            return checkButton(reader);
        case 4:
            return checkAttributes(reader);
        case 5:
            return checkScrolling(reader);
        default:
            return checkGrowth(reader);
    }
}

const Target target("layout", check);

}  // namespace
}  // namespace calquo
