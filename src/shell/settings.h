// The settings store: every persistent option in memory, loaded at the start, saved when it changes and at the end,
// with typed views of contents that anybody may have edited.
#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <variant>
#include <vector>

#include "engine/characters.h"
#include "format/numeric_format.h"
#include "panels/angle_options.h"

namespace calquo {

/// The numbers of the items. The boolean of number n is bit n - 1 of the stored "Flags"; those of the angle options
/// stand with these.
enum class BooleanSetting : std::uint32_t { ReadDefaultAtStartup = 5, SaveDefaultAtExit = 6, HideButtons = 8 };
enum class NumberSetting : std::uint32_t { ButtonSize = 13, SelectedFormat = 14 };
enum class TextSetting : std::uint32_t { DefaultFile = 16, DecimalMark = 17, GroupMark = 18 };
enum class BlockSetting : std::uint32_t { WindowRect = 21, SelectedPanels = 22, NumericFormats = 23 };

using SettingBlock = std::vector<std::uint8_t>;

/// What a stored value holds, by its type.
using SettingValue = std::variant<std::uint32_t, SettingBlock, std::wstring>;

/// Where values are kept between two runs. Nothing is raised: what cannot be read is absent, what cannot be written is
/// dropped.
class SettingsStorage {
public:
    virtual ~SettingsStorage() = default;

    /// The value of a name; none when it is missing or of a type that SettingValue does not have.
    virtual std::optional<SettingValue> read(const wchar_t* name) = 0;
    virtual void write(const wchar_t* name, const SettingValue& value) = 0;

protected:
    SettingsStorage() = default;
    SettingsStorage(const SettingsStorage&) = default;
    SettingsStorage& operator=(const SettingsStorage&) = default;
};

/// A rectangle on the screen, in pixels; right and bottom are the first that no longer belong to it.
struct ScreenRectangle {
    std::int32_t left = 0;
    std::int32_t top = 0;
    std::int32_t right = 0;
    std::int32_t bottom = 0;

    bool operator==(const ScreenRectangle&) const = default;
};

/// The two characters of the language that the user chooses.
struct Marks {
    char decimal = defaultDecimalMark;
    char group = defaultGroupMark;

    bool operator==(const Marks&) const = default;
};

/// Held values are kept as they were stored, also where a typed view cannot use them and answers with a default. A
/// change is written to the storage at once, so that it outlives a program that is killed.
class Settings {
public:
    /// Every item at its default; `storage` must outlive the store.
    explicit Settings(SettingsStorage& storage);

    /// Reads every item. One that is missing, of another type, of another size than it must have, or an empty text,
    /// becomes its default.
    void loadAll();
    /// Writes every item; a window rectangle that was never set stays absent.
    void saveAll();

    bool boolean(BooleanSetting setting) const;
    void setBoolean(BooleanSetting setting, bool on);
    std::uint32_t number(NumberSetting setting) const;
    void setNumber(NumberSetting setting, std::uint32_t value);
    const std::wstring& text(TextSetting setting) const;
    void setText(TextSetting setting, std::wstring text);
    const SettingBlock& block(BlockSetting setting) const;
    /// Raises 5 ("internal fault"), changing nothing, for a size that the item does not have.
    void setBlock(BlockSetting setting, std::span<const std::uint8_t> data);

    /// The first of the angle options that is on.
    AngleOption angleOption() const;
    /// Turns the angle options off, then the given one on.
    void chooseAngle(AngleOption option);

    /// The side of a button in pixels, within 12 to 200; none when the toolkit's own size holds.
    std::optional<int> buttonSize() const;

    /// The window's last rectangle; none when it is absent or cannot be a window's: empty, inverted, or with an edge
    /// beyond the 16 bits that the system has for one.
    std::optional<ScreenRectangle> windowRect() const;
    void setWindowRect(const ScreenRectangle& rectangle);

    /// The panels to open, in their order, each once; identifiers that the catalogue does not have are left out.
    std::vector<std::uint16_t> selectedPanels() const;
    void setSelectedPanels(std::span<const std::uint16_t> identifiers);

    /// Automatic when the stored index is none.
    FormatKind selectedFormat() const;
    void selectFormat(FormatKind kind);
    /// The attributes of a format; its default word in place of one that is not well formed.
    NumericFormat format(FormatKind kind) const;
    void setFormat(FormatKind kind, NumericFormat word);
    void resetFormats();

    /// The first characters of the two texts. A character that the language needs for something else, or that is not
    /// printable ASCII, gives way to the default. When both are the same, the group mark becomes "," or, where that is
    /// the decimal mark, ".".
    Marks marks() const;

private:
    template <typename Type>
    const Type& held(std::uint32_t number) const;
    /// Holds a value, and writes it when it is another than before.
    void hold(std::uint32_t number, SettingValue value);

    SettingsStorage& storage_;
    std::vector<SettingValue> values_;  // one for each item
};

/// Puts the marks, and the length of the groups that the selected format writes, into the character table of the
/// language. To be called again whenever one of them has changed.
void applyToEngine(const Settings& settings);

}  // namespace calquo
