// The items of the store with their names, types and defaults, and the decoding of what was stored.
#include "shell/settings.h"

#include <algorithm>
#include <bit>
#include <utility>

#include "engine/characters.h"
#include "format/attributes.h"
#include "panels/catalogue.h"
#include "values/errors.h"
#include "widgets/toolkit.h"

namespace calquo {
namespace {

/// The flags hold items with numbers and have none of their own.
constexpr std::uint32_t flagsNumber = 0;

constexpr std::size_t bytesInWord = 4;
constexpr std::size_t edgeCount = 4;  // of a rectangle

/// The words one after the other, each with its lowest byte first.
SettingBlock blockOf(std::span<const std::uint32_t> words) {
    SettingBlock block;
    for (const std::uint32_t word : words) {
        for (std::size_t byte = 0; byte < bytesInWord; ++byte) {
            block.push_back(static_cast<std::uint8_t>(word >> 8 * byte));
        }
    }
    return block;
}

/// The whole words of a block; what remains after them is left out.
std::vector<std::uint32_t> wordsOf(const SettingBlock& block) {
    std::vector<std::uint32_t> words(block.size() / bytesInWord);
    for (std::size_t i = 0; i < words.size() * bytesInWord; ++i) {
        words[i / bytesInWord] |= std::uint32_t{block[i]} << 8 * (i % bytesInWord);
    }
    return words;
}

/// One stored value. Its type is that of its default.
struct Item {
    std::uint32_t number;
    const wchar_t* name;
    SettingValue defaultValue;
    std::size_t blockSize = 0;  ///< What a block must have; 0 for any.
};

/// The items in the order in which they are saved.
const auto& items() {
    static const auto rows = std::to_array<Item>({
        {flagsNumber, L"Flags", 0u},
        {13, L"Button Size", 0u},
        {14, L"Selected format", 0u},
        {21, L"Window Rect", SettingBlock{}, edgeCount * bytesInWord},
        {22, L"Selected Panels", SettingBlock{}},
        {23, L"Numeric formats", blockOf(defaultFormats), defaultFormats.size() * bytesInWord},
        {16, L"Default File", L".\\WorkArea.rtf"},
        {18, L"Group Mark", std::wstring(1, defaultGroupMark)},
        {17, L"Decimal Mark", std::wstring(1, defaultDecimalMark)},
    });
    return rows;
}

std::size_t rowOf(std::uint32_t number) {
    const auto& rows = items();
    const auto row = std::find_if(rows.begin(), rows.end(), [&](const Item& item) { return item.number == number; });
    return static_cast<std::size_t>(row - rows.begin());
}

bool fits(const Item& item, const SettingValue& value) {
    if (value.index() != item.defaultValue.index()) {
        return false;
    }
    if (const auto* const block = std::get_if<SettingBlock>(&value)) {
        return item.blockSize == 0 || block->size() == item.blockSize;
    }
    const auto* const text = std::get_if<std::wstring>(&value);
    return text == nullptr || !text->empty();
}

constexpr std::uint32_t flagOf(BooleanSetting setting) { return 1u << (static_cast<std::uint32_t>(setting) - 1); }

template <typename Setting>
constexpr std::uint32_t numberOf(Setting setting) {
    return static_cast<std::uint32_t>(setting);
}

/// The first character of a text where it can be a mark, else `otherwise`.
char markOf(const std::wstring& text, char otherwise) {
    const wchar_t first = text.empty() ? L'\0' : text.front();
    const bool isPrintable = first > L' ' && first <= L'~';
    return isPrintable && characterTable.isFreeForMarks(static_cast<char>(first)) ? static_cast<char>(first)
                                                                                  : otherwise;
}

}  // namespace

Settings::Settings(SettingsStorage& storage) : storage_(storage) {
    for (const Item& item : items()) {
        values_.push_back(item.defaultValue);
    }
}

template <typename Type>
const Type& Settings::held(std::uint32_t number) const {
    return std::get<Type>(values_[rowOf(number)]);
}

void Settings::hold(std::uint32_t number, SettingValue value) {
    const std::size_t row = rowOf(number);
    if (values_[row] != value) {
        values_[row] = std::move(value);
        storage_.write(items()[row].name, values_[row]);
    }
}

void Settings::loadAll() {
    for (std::size_t row = 0; row < values_.size(); ++row) {
        const Item& item = items()[row];
        std::optional<SettingValue> stored = storage_.read(item.name);
        if (!stored || !fits(item, *stored)) {
            stored = item.defaultValue;
        }
        values_[row] = std::move(*stored);
    }
}

void Settings::saveAll() {
    for (std::size_t row = 0; row < values_.size(); ++row) {
        const bool isAbsent =
            items()[row].number == numberOf(BlockSetting::WindowRect) && block(BlockSetting::WindowRect).empty();
        if (!isAbsent) {
            storage_.write(items()[row].name, values_[row]);
        }
    }
}

bool Settings::boolean(BooleanSetting setting) const {
    return (held<std::uint32_t>(flagsNumber) & flagOf(setting)) != 0;
}

void Settings::setBoolean(BooleanSetting setting, bool on) {
    const std::uint32_t others = held<std::uint32_t>(flagsNumber) & ~flagOf(setting);
    hold(flagsNumber, on ? others | flagOf(setting) : others);
}

std::uint32_t Settings::number(NumberSetting setting) const { return held<std::uint32_t>(numberOf(setting)); }

void Settings::setNumber(NumberSetting setting, std::uint32_t value) { hold(numberOf(setting), value); }

const std::wstring& Settings::text(TextSetting setting) const { return held<std::wstring>(numberOf(setting)); }

void Settings::setText(TextSetting setting, std::wstring text) { hold(numberOf(setting), std::move(text)); }

const SettingBlock& Settings::block(BlockSetting setting) const { return held<SettingBlock>(numberOf(setting)); }

void Settings::setBlock(BlockSetting setting, std::span<const std::uint8_t> data) {
    SettingValue value = SettingBlock(data.begin(), data.end());
    if (!fits(items()[rowOf(numberOf(setting))], value)) {
        raise(ErrorCode::InternalFault);
    }
    hold(numberOf(setting), std::move(value));
}

AngleOption Settings::angleOption() const {
    for (const AngleRow& row : angleRows) {
        if (boolean(static_cast<BooleanSetting>(row.setting))) {
            return row.option;
        }
    }
    return AngleOption::None;
}

void Settings::chooseAngle(AngleOption option) {
    for (const AngleRow& row : angleRows) {
        setBoolean(static_cast<BooleanSetting>(row.setting), row.option == option);
    }
}

std::optional<int> Settings::buttonSize() const {
    constexpr std::uint32_t largest = 200;
    const std::uint32_t stored = number(NumberSetting::ButtonSize);
    const int usable = std::max(static_cast<int>(std::min(stored, largest)), smallestButtonSize);
    return stored == 0 ? std::nullopt : std::optional(usable);
}

std::optional<ScreenRectangle> Settings::windowRect() const {
    const std::vector<std::uint32_t> stored = wordsOf(block(BlockSetting::WindowRect));
    if (stored.empty()) {
        return std::nullopt;
    }
    std::array<std::uint32_t, edgeCount> words{};
    std::ranges::copy(stored, words.begin());
    const auto rectangle = std::bit_cast<ScreenRectangle>(words);
    const auto edges = std::bit_cast<std::array<std::int32_t, edgeCount>>(words);
    const bool isWithinSystem = std::ranges::all_of(edges, std::in_range<std::int16_t, std::int32_t>);
    const bool hasArea = rectangle.left < rectangle.right && rectangle.top < rectangle.bottom;
    return isWithinSystem && hasArea ? std::optional(rectangle) : std::nullopt;
}

void Settings::setWindowRect(const ScreenRectangle& rectangle) {
    setBlock(BlockSetting::WindowRect, blockOf(std::bit_cast<std::array<std::uint32_t, edgeCount>>(rectangle)));
}

std::vector<std::uint16_t> Settings::selectedPanels() const {
    std::vector<std::uint16_t> panels;
    for (const std::uint32_t word : wordsOf(block(BlockSetting::SelectedPanels))) {
        const auto identifier = static_cast<std::uint16_t>(word);
        const bool isPanel = identifier == word && findPanel(identifier) != nullptr;
        if (isPanel && std::ranges::find(panels, identifier) == panels.end()) {
            panels.push_back(identifier);
        }
    }
    return panels;
}

void Settings::setSelectedPanels(std::span<const std::uint16_t> identifiers) {
    const std::vector<std::uint32_t> words(identifiers.begin(), identifiers.end());
    setBlock(BlockSetting::SelectedPanels, blockOf(words));
}

FormatKind Settings::selectedFormat() const {
    const std::uint32_t index = number(NumberSetting::SelectedFormat);
    return index < formatKinds.size() ? static_cast<FormatKind>(index) : FormatKind::Automatic;
}

void Settings::selectFormat(FormatKind kind) { setNumber(NumberSetting::SelectedFormat, numberOf(kind)); }

NumericFormat Settings::format(FormatKind kind) const {
    const NumericFormat stored = wordsOf(block(BlockSetting::NumericFormats))[numberOf(kind)];
    return isWellFormed(stored, kind) ? stored : defaultFormats[numberOf(kind)];
}

void Settings::setFormat(FormatKind kind, NumericFormat word) {
    std::vector<std::uint32_t> words = wordsOf(block(BlockSetting::NumericFormats));
    words[numberOf(kind)] = word;
    setBlock(BlockSetting::NumericFormats, blockOf(words));
}

void Settings::resetFormats() { setBlock(BlockSetting::NumericFormats, blockOf(defaultFormats)); }

Marks Settings::marks() const {
    Marks marks;
    marks.decimal = markOf(text(TextSetting::DecimalMark), marks.decimal);
    marks.group = markOf(text(TextSetting::GroupMark), marks.group);
    if (marks.group == marks.decimal) {
        marks.group = marks.decimal == defaultGroupMark ? defaultDecimalMark : defaultGroupMark;
    }
    return marks;
}

void applyToEngine(const Settings& settings) {
    const Marks marks = settings.marks();
    setMarks(marks.decimal, marks.group);
    const std::uint32_t length = getField(settings.format(settings.selectedFormat()), field::groupSize);
    setGroupLengths(length, length);
}

}  // namespace calquo
