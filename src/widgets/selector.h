// A choice among lines of text: a list that drops down, or one that is always open.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "widgets/component.h"

namespace calquo {

class Selector : public Component {
public:
    enum class Look : std::uint8_t { ComboBox, ListBox };

    /// Offers `choices`; none is selected.
    Selector(WindowHandle parent, std::uint16_t command, Look look, std::span<const std::string_view> choices);

    void fitToScale() override;

    /// The index of the selected choice, -1 for none.
    int selected() const;
    void select(int index);

private:
    struct LookRow;

    static const LookRow& rowOf(Look look);

    const LookRow& row_;
    const Look look_;
    std::vector<std::wstring> choices_;
};

}  // namespace calquo
