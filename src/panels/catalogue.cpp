// The table of panels, spread out while compiling into what the menu and the windows read.
#include "panels/catalogue.h"

#include <algorithm>
#include <initializer_list>
#include <iterator>
#include <optional>
#include <tuple>

#include "engine/keyword_table.h"
#include "widgets/button_face.h"

namespace calquo {
namespace {

/// Elements in their order; more than `capacity` of them do not compile.
template <typename Element, std::size_t capacity>
class FixedList {
public:
    constexpr FixedList() = default;
    constexpr FixedList(std::initializer_list<Element> elements) {
        for (const Element& element : elements) {
            append(element);
        }
    }

    constexpr void append(const Element& element) { elements_.at(size_++) = element; }

    [[nodiscard]] constexpr const Element* begin() const { return elements_.data(); }
    [[nodiscard]] constexpr const Element* end() const { return elements_.data() + size_; }
    [[nodiscard]] constexpr std::size_t size() const { return size_; }

private:
    std::array<Element, capacity> elements_;
    std::size_t size_ = 0;
};

/// What the language says of a name. A label that is no name does not compile.
consteval std::string_view descriptionOfName(std::string_view name) {
    for (const Keyword& keyword : keywordTable) {
        if (keyword.name.size() == name.size() && compareNames(keyword.name, name) == 0) {
            return keyword.description;
        }
    }
    throw "no name of the language";
}

/// A button as a panel states it.
struct ButtonSource {
    constexpr ButtonSource() = default;
    /// A name of the language, described as there.
    consteval ButtonSource(const char* name, int width) : ButtonSource(name, width, descriptionOfName(name)) {}
    /// Any other label.
    constexpr ButtonSource(const char* label, int width, std::string_view description)
        : button{.label = label, .description = description, .insertion = label, .extraHalfWidths = width} {}
    constexpr ButtonSource(const PanelButton& stated, std::optional<Color> face) : button(stated), ownFace(face) {}

    PanelButton button;
    std::optional<Color> ownFace;  ///< In place of the panel's.
};

using RowSource = FixedList<ButtonSource, 6>;

struct PanelSource {
    std::uint16_t identifier;
    PanelGroup group;
    std::string_view menuLabel;
    Color face;
    FixedList<RowSource, 7> rows;
};

// Faces that no panel chooses.
constexpr Color keyFace = defaultFaceColor;
constexpr Color editingFace{127, 0, 0};
constexpr Color conversionFace{0, 127, 0};

consteval ButtonSource editing(Symbol symbol, std::string_view description, bool repeats = false) {
    return {{.description = description, .symbol = symbol, .repeats = repeats}, editingFace};
}

constexpr ButtonSource eraseBack = editing(Symbol::EraseBack, "Erase previous character", true);
constexpr ButtonSource eraseNext = editing(Symbol::EraseNext, "Erase next character", true);
constexpr ButtonSource clear = editing(Symbol::Clear, "Clear the work area");
constexpr ButtonSource undo = editing(Symbol::Undo, "Undo last edit");
constexpr ButtonSource redo = editing(Symbol::Redo, "Redo last undone");
constexpr ButtonSource enter = editing(Symbol::Enter, "Enter (evaluate)");

/// A key that is no digit, as the rows of keys name it.
struct OperatorKey {
    char key = '\0';
    ButtonSource source;
};

constexpr OperatorKey operatorKeys[] = {
    {' ', {{.description = "Space", .insertion = " ", .symbol = Symbol::Space}, std::nullopt}},
    {'!', {"!", 0, "Factorial operator"}},
    {'%', {"%", 0, "Percent operator"}},
    {'\'', {"'", 0, "Numeric base mark"}},
    {'(', {"(", 0, "Begin list"}},
    {')', {")", 0, "End list"}},
    {'*', {"*", 0, "Multiplication operator"}},
    {'+', {"+", 0, "Addition operator"}},
    {',', {",", 0, "Group mark"}},
    {'-', {"-", 0, "Subtraction operator"}},
    {'.', {".", 0, "Decimal mark"}},
    {'/', {"/", 0, "Division operator"}},
    {';', {";", 0, "List item separator"}},
    {'@', {"@", 0, "Alternate exponential mark (for base > 14)"}},
    {'^', {"^", 0, "Power operator"}},
    {'c', {{.label = "->", .description = "Unit conversion operator", .insertion = "->"}, conversionFace}},
    {'e', {"e", 0, "Exponential mark"}},
    {'p', {"**", 0, "Alternate power operator"}},
};

/// The button of one character in a row of keys: an operator, or a digit (capital letters are digits, too), which is
/// its own label. Any other does not compile.
consteval ButtonSource buttonOfKey(std::string_view key) {
    for (const OperatorKey& row : operatorKeys) {
        if (row.key == key.front()) {
            return row.source;
        }
    }
    const bool capital = key.front() >= 'A' && key.front() <= 'Z';
    if (!capital && !isDecimalDigit(key.front())) {
        throw "no button for this character";
    }
    return {{.label = key, .insertion = key}, std::nullopt};
}

consteval RowSource keys(std::string_view characters) {
    RowSource row;
    for (std::size_t index = 0; index < characters.size(); ++index) {
        row.append(buttonOfKey(characters.substr(index, 1)));
    }
    return row;
}

consteval RowSource keys(std::string_view characters, const ButtonSource& last) {
    RowSource row = keys(characters);
    row.append(last);
    return row;
}

constexpr RowSource bitBasics = {{"bAnd", 2}, {"bOr", 2}, {"bNot", 2}};

/// The language spells it otherwise than the face.
constexpr ButtonSource inchesOfMercury = {
    {.label = "inHg", .description = descriptionOfName("inchHg"), .insertion = "inchHg", .extraHalfWidths = 2},
    std::nullopt};

// clang-format off
// Each row of buttons stands on a line, as on the panel.
constexpr PanelSource panels[] = {
    {0xA181, PanelGroup::BitLevel, "&Basic", {255, 0, 0},
     {bitBasics}},
    {0xA182, PanelGroup::BitLevel, "&Complete", {255, 0, 0},
     {bitBasics,
      {{"bNor", 2}, {"bNand", 2}, {"bEq", 2}},
      {{"bXor", 2}, {"bImp", 2}, {"bInh", 2}},
      {{"bShift", 4}, {"bKeep", 4}}}},
    {0xA110, PanelGroup::Keypads, "&Basic", keyFace,
     {keys("789();"),
      keys("456+-,"),
      keys("123*/!"),
      keys("0.e^%", enter)}},
    {0xA111, PanelGroup::Keypads, "&Editing buttons", keyFace,
     {{eraseBack, eraseNext, clear, undo, redo, enter}}},
    {0xA112, PanelGroup::Keypads, "&Hexadecimal", keyFace,
     {keys("CDEF+-"),
      keys("89AB*/"),
      keys("4567@,"),
      keys("0123.", enter)}},
    {numericBasePanel, PanelGroup::Keypads, "&Numeric base", {127, 127, 0},
     {{{"2'", 1, "Base 2 prefix"},
       {"8'", 1, "Base 8 prefix"},
       {"16'", 1, "Base 16 prefix"},
       {"'", 1, "Numeric base mark"}},
      {{"'2", 1, "Output in base 2"},
       {"'8", 1, "Output in base 8"},
       {"'16", 1, "Output in base 16"},
       {"10", 1, "Reset output to default base 10"}}}},
    {0xA114, PanelGroup::Keypads, "&Operators", keyFace,
     {keys("+-*/^p"),
      keys("%!'.,;"),
      keys("()e@c ")}},
    {0xA115, PanelGroup::Keypads, "All &36 digits", keyFace,
     {keys("012345"),
      keys("6789AB"),
      keys("CDEFGH"),
      keys("IJKLMN"),
      keys("OPQRST"),
      keys("UVWXYZ")}},
    {0xA211, PanelGroup::Financial, "&Annuities", {0, 63, 0},
     {{{"fv", 2}, {"pv", 2}, {"pmt", 2}},
      {{"dur", 4}, {"rate", 4}}}},
    {0xA311, PanelGroup::Mathematics, "&Arithmetic functions", {255, 127, 0},
     {{{"add", 1}, {"sub", 1}, {"mul", 1}, {"div", 1}},
      {{"pct", 1}, {"inv", 1}, {"mod", 1}, {"rem", 1}},
      {{"abs", 2}, {"neg", 2}, {"sign", 2}}}},
    {0xA321, PanelGroup::Mathematics, "&Complex numbers", {0, 255, 0},
     {{{"real", 1}, {"imag", 1}, {"arg", 1}, {"conj", 1}},
      {{"polar", 2}, {"norm", 2}, {"norm2", 2}}}},
    {0xA331, PanelGroup::Mathematics, "&Exponential functions", {127, 255, 0},
     {{{"exp", 1}, {"pow", 1}, {"root", 1}, {"fact", 1}},
      {{"lg", 1}, {"ln", 1}, {"log", 1}, {"logB", 1}},
      {{"sqr", 1}, {"sqrt", 1}, {"cube", 1}, {"cbrt", 1}}}},
    {0xA341, PanelGroup::Mathematics, "&Fraction and whole", {255, 255, 0},
     {{{"fraction", 4}, {"whole", 4}},
      {{"ceil", 4}, {"floor", 4}},
      {{"round", 4}, {"sRound", 4}}}},
    {0xA351, PanelGroup::Mathematics, "&Prime numbers", {0, 0, 127},
     {{{"prime", 2}, {"prNext", 2}, {"prPrev", 2}}}},
    {0xA361, PanelGroup::Mathematics, "&Random numbers", {127, 0, 127},
     {{{"rnd", 1}, {"rndR", 1}, {"rndC", 1}, {"rndG", 1}},
      {{"rndSeed", 4}, {"rndCG", 4}}}},
    {0xA411, PanelGroup::Statistics, "&Attributes", {255, 0, 127},
     {{{"count", 2}, {"min", 2}, {"max", 2}},
      {{"sum", 2}, {"sum2", 2}, {"prod", 2}},
      {{"gcd", 4}, {"lcm", 4}}}},
    {0xA421, PanelGroup::Statistics, "&Distribution", {255, 0, 127},
     {{{"avg", 1}, {"avgG", 2}, {"median", 3}},
      {{"sd", 1}, {"sdP", 1}, {"var", 1}, {"varP", 1}}}},
    {0xA010, PanelGroup::Trigonometric, "&Trigonometric functions", {0, 0, 255},
     {{{"sin", 2}, {"cos", 2}, {"tan", 2}},
      {{"sec", 2}, {"csc", 2}, {"cot", 2}}}},
    {0xA011, PanelGroup::Trigonometric, "&Inverse trigonometric", {0, 0, 255},
     {{{"asin", 2}, {"acos", 2}, {"atan", 2}},
      {{"asec", 2}, {"acsc", 2}, {"acot", 2}}}},
    {0xA020, PanelGroup::Trigonometric, "&Hyperbolic functions", {127, 0, 255},
     {{{"sinh", 2}, {"cosh", 2}, {"tanh", 2}},
      {{"sech", 2}, {"csch", 2}, {"coth", 2}}}},
    {0xA021, PanelGroup::Trigonometric, "I&nverse hyperbolic", {127, 0, 255},
     {{{"asinh", 2}, {"acosh", 2}, {"atanh", 2}},
      {{"asech", 2}, {"acsch", 2}, {"acoth", 2}}}},
    {0xA500, PanelGroup::Units, "&Acceleration", {0, 127, 127},
     {{{"mmS2", 3}, {"cmS2", 3}},
      {{"mS2", 2}, {"kmS2", 3}, {"gal", 1}},
      {{"inchS2", 3}, {"footS2", 3}, {"g", 0}},
      {{"yardS2", 4}, {"mileS2", 4}}}},
    {0xA510, PanelGroup::Units, "An&gle", {255, 127, 127},
     {{{"rad", 1}, {"deg", 1}, {"grad", 2}},
      {{"arcMinute", 4}, {"arcSecond", 4}}}},
    {0xA520, PanelGroup::Units, "A&rea", {0, 255, 127},
     {{{"m2", 1}, {"mm2", 2}, {"cm2", 1}},
      {{"barn", 2}, {"are", 1}, {"hectare", 3}},
      {{"km2", 2}, {"inch2", 2}, {"foot2", 2}},
      {{"yard2", 2}, {"acre", 2}, {"mile2", 2}}}},
    {0xA530, PanelGroup::Units, "&Energy", {127, 127, 127},
     {{{"wattHour", 4}, {"ftLb", 2}, {"J", 0}},
      {{"therm", 3}, {"erg", 1}, {"cal", 2}},
      {{"thermUK", 5}, {"calNut", 3}},
      {{"thermEU", 4}, {"calTh", 2}},
      {{"btu", 1}, {"hartree", 3}, {"cal15", 2}},
      {{"btuTh", 2}, {"eVolt", 2}, {"cal20", 2}},
      {{"btuMean", 4}, {"calMean", 4}}}},
    {0xA540, PanelGroup::Units, "&Force", {255, 255, 127},
     {{{"newton", 8}},
      {{"dyn", 2}, {"lbf", 2}, {"gf", 2}}}},
    {0xA550, PanelGroup::Units, "&Length", {255, 0, 255},
     {{{"mm", 1}, {"cm", 1}, {"m", 1}, {"km", 1}},
      {{"inch", 1}, {"foot", 1}, {"yard", 1}, {"mile", 1}},
      {{"link", 1}, {"rod", 1}, {"mil", 1}, {"thou", 1}},
      {{"furlong", 3}, {"nautMile", 3}},
      {{"chain", 2}, {"micron", 3}, {"plkl", 1}},
      {{"lightSecond", 5}, {"au", 0}, {"ang", 1}},
      {{"lightYear", 5}, {"parsec", 3}}}},
    {0xA560, PanelGroup::Units, "Lumin&ous Intensity", {127, 127, 255},
     {{{"candela", 4}, {"candleInt", 4}},
      {{"bougie", 3}, {"violle", 3}},
      {{"carcel", 4}, {"hefner", 4}}}},
    {0xA570, PanelGroup::Units, "&Mass", {255, 127, 255},
     {{{"kg", 1}, {"gram", 2}, {"mg", 1}},
      {{"amu", 1}, {"pennyweight", 5}, {"oz", 0}},
      {{"troyDram", 4}, {"dram", 2}, {"lb", 0}},
      {{"troyOunce", 4}, {"troyPound", 4}},
      {{"tonne", 2}, {"tonUK", 2}, {"tonUS", 2}},
      {{"grain", 2}, {"carat", 2}, {"stone", 2}}}},
    {0xA580, PanelGroup::Units, "Numeric &Constants", {0, 255, 255},
     {{{"e", 2}, {"i", 2}, {"pi", 2}}}},
    {0xA590, PanelGroup::Units, "&Numeric Factors", {127, 255, 255},
     {{{"yocto", 2}, {"zepto", 2}, {"atto", 2}},
      {{"femto", 2}, {"pico", 2}, {"nano", 2}},
      {{"micro", 2}, {"milli", 2}, {"centi", 2}},
      {{"deci", 2}, {"deca", 2}},
      {{"hecto", 2}, {"kilo", 2}, {"mega", 2}},
      {{"giga", 2}, {"tera", 2}, {"peta", 2}},
      {{"exa", 2}, {"zetta", 2}, {"yotta", 2}}}},
    {0xA5A0, PanelGroup::Units, "&Power", {63, 0, 63},
     {{{"watt", 1}, {"hp", 1}, {"btuS", 2}}}},
    {0xA5B0, PanelGroup::Units, "Press&ure", {63, 63, 0},
     {{{"mmHg", 3}, {"pascal", 3}},
      {{"cmHg", 3}, inchesOfMercury, {"torr", 1}},
      {{"psi", 1}, {"psf", 1}, {"bar", 1}, {"atm", 1}}}},
    {0xA5C0, PanelGroup::Units, "&Speed", {0, 63, 63},
     {{{"mach", 2}, {"kmh", 1}, {"ms", 1}},
      {{"mph", 1}, {"knot", 1}, {"lightSpeed", 4}}}},
    {0xA5D0, PanelGroup::Units, "&Temperature", {0, 127, 63},
     {{{"K", 2}, {"C", 2}, {"F", 2}},
      {{"R", 2}, {"reaumur", 4}}}},
    {0xA5E0, PanelGroup::Units, "T&ime", {63, 0, 127},
     {{{"dy", 1}, {"wk", 1}, {"mo", 1}, {"yr", 1}},
      {{"s", 0}, {"mn", 1}, {"hr", 1}, {"yrTrop", 2}},
      {{"decade", 4}, {"century", 4}},
      {{"millenium", 4}, {"plkt", 2}}}},
    {0xA5F0, PanelGroup::Units, "&Volume", {127, 63, 0},
     {{{"m3", 3}, {"litre", 3}},
      {{"mm3", 2}, {"cm3", 2}, {"km3", 2}},
      {{"inch3", 2}, {"foot3", 2}, {"yard3", 2}},
      {{"gallon", 2}, {"quart", 2}, {"pint", 2}},
      {{"gallonDry", 4}, {"gallonLiq", 4}},
      {{"quartDry", 4}, {"quartLiq", 4}},
      {{"pintDry", 4}, {"pintLiq", 4}}}},
};
// clang-format on

constexpr std::size_t rowCount = [] {
    std::size_t count = 0;
    for (const PanelSource& panel : panels) {
        count += panel.rows.size();
    }
    return count;
}();

constexpr std::size_t buttonCount = [] {
    std::size_t count = 0;
    for (const PanelSource& panel : panels) {
        for (const RowSource& row : panel.rows) {
            count += row.size();
        }
    }
    return count;
}();

constexpr std::array<PanelButton, buttonCount> buttons = [] {
    std::array<PanelButton, buttonCount> result;
    auto* next = result.begin();
    for (const PanelSource& panel : panels) {
        for (const RowSource& row : panel.rows) {
            for (const ButtonSource& source : row) {
                *next = source.button;
                next->face = source.ownFace.value_or(panel.face);
                ++next;
            }
        }
    }
    return result;
}();

constexpr std::array<PanelRow, rowCount> rows = [] {
    std::array<PanelRow, rowCount> result;
    std::size_t first = 0;
    auto* next = result.begin();
    for (const PanelSource& panel : panels) {
        for (const RowSource& row : panel.rows) {
            *next++ = PanelRow(buttons).subspan(first, row.size());
            first += row.size();
        }
    }
    return result;
}();

constexpr std::array<PanelEntry, std::size(panels)> catalogue = [] {
    std::array<PanelEntry, std::size(panels)> result;
    std::size_t first = 0;
    auto* next = result.begin();
    for (const PanelSource& panel : panels) {
        *next++ = {panel.identifier, panel.group, panel.menuLabel, panel.face,
                   std::span<const PanelRow>(rows).subspan(first, panel.rows.size())};
        first += panel.rows.size();
    }
    return result;
}();

static_assert(std::adjacent_find(catalogue.begin(), catalogue.end(),
                                 [](const PanelEntry& a, const PanelEntry& b) {
                                     return std::tie(a.group, a.identifier) >= std::tie(b.group, b.identifier);
                                 }) == catalogue.end(),
              "the panels stand in the order of the menu");

}  // namespace

std::span<const PanelEntry> panelCatalogue() { return catalogue; }

const PanelEntry* findPanel(std::uint16_t identifier) {
    const auto* const found = std::find_if(catalogue.begin(), catalogue.end(),
                                           [&](const PanelEntry& panel) { return panel.identifier == identifier; });
    return found == catalogue.end() ? nullptr : found;
}

}  // namespace calquo
