// A field to type a number of a few digits into. It takes whatever is typed; what is wrong with it others have to say.
#pragma once

#include <string>
#include <string_view>

#include "widgets/component.h"

namespace calquo {

class NumberField : public Component {
public:
    /// The notification that what stands in the field has changed.
    static constexpr std::uint16_t changeNotice = 0x0300;

    /// A field with `number` in it, and `description` for its tooltip.
    NumberField(WindowHandle parent, std::uint16_t command, std::uint32_t number, std::string_view description);

    void fitToScale() override;

    /// What stands in the field; a character outside ASCII as "?".
    std::string typed() const;
    void selectAll();

private:
    static const WidgetClass& widgetClass();
};

}  // namespace calquo
