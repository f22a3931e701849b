// The units of the language, each stated once: its dimension, its names, its size in base units, its description.
// Nothing checks dimensions; they only sort the units.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "values/durations.h"
#include "values/extended.h"
#include "values/value.h"

namespace calquo {

/// What a unit measures.
enum class Dimension {
    Acceleration,
    Angle,
    Area,
    Energy,
    Force,
    Length,
    LuminousIntensity,
    Mass,
    Power,
    Pressure,
    Speed,
    Temperature,
    Time,
    Volume,
};

/// Another name of a unit; an empty description stands for the unit's own.
struct Alias {
    constexpr Alias() = default;
    // Implicit on purpose: most aliases are a name and nothing else.
    constexpr Alias(const char* otherName, std::string_view ownDescription = {})
        : name(otherName), description(ownDescription) {}

    std::string_view name;
    std::string_view description;
};

/// The other names of a unit: none, one or two.
class Aliases {
public:
    constexpr Aliases() = default;
    constexpr Aliases(const Alias& only) : aliases_{only, {}}, size_(1) {}
    constexpr Aliases(const Alias& first, const Alias& second) : aliases_{first, second}, size_(2) {}

    [[nodiscard]] constexpr const Alias* begin() const { return aliases_.data(); }
    [[nodiscard]] constexpr const Alias* end() const { return aliases_.data() + size_; }
    [[nodiscard]] constexpr std::size_t size() const { return size_; }

private:
    std::array<Alias, 2> aliases_;
    std::size_t size_ = 0;
};

struct Unit {
    Dimension dimension;
    std::string_view name;
    Aliases aliases;
    Real factor;  ///< the size of one unit in base units
    std::string_view description;
    Real offset = 0;  ///< of a temperature scale: what it shows at absolute zero

    /// What the name evaluates to: the factor, and a scale's offset as imaginary part.
    [[nodiscard]] constexpr Value value() const { return {factor, offset}; }
};

/// A decimal constant as the table means it: rounded to a double and widened. Going through a parameter takes away the
/// excess precision that a compiler may keep in a literal.
constexpr Real decimal(double literal) { return literal; }

/// The units in the order of their dimensions.
inline constexpr std::array unitTable = {
    Unit{Dimension::Acceleration, "mmS2", {}, decimal(0.001), "Millimetre per second square"},
    Unit{Dimension::Acceleration, "cmS2", {}, decimal(0.01), "Centimetre per second square"},
    Unit{Dimension::Acceleration, "mS2", {}, 1, "Metre per second square (base unit)"},
    Unit{Dimension::Acceleration, "kmS2", {}, 1000, "Kilometre per second square"},
    // Deliberate, as are barn, dyn, mil, ang, amu, grain, hp, btuS and gallonLiq below: results depend on these values.
    Unit{Dimension::Acceleration, "gal", {}, decimal(0.1), "Galileo (gal-acceleration)"},
    Unit{Dimension::Acceleration, "inchS2", {}, decimal(0.0254), "Inch per second square"},
    Unit{Dimension::Acceleration, "footS2", {}, decimal(0.3048), "Foot per second square"},
    Unit{Dimension::Acceleration, "g", {}, decimal(9.80665), "Gravitational constant of acceleration"},
    Unit{Dimension::Acceleration, "yardS2", {}, decimal(0.9144), "Yard per second square"},
    Unit{Dimension::Acceleration, "mileS2", {}, decimal(1609.344), "Mile per second square"},

    Unit{Dimension::Angle, "rad", {"radian"}, 1, "Radian (base unit, circle = 2 pi radians)"},
    Unit{Dimension::Angle, "deg", {"degree"}, pi / 180, "Degree (circle = 360 degrees)"},
    Unit{Dimension::Angle, "grad", {"gradient"}, pi / 200, "Gradient (circle = 400 gradients)"},
    Unit{Dimension::Angle, "arcMinute", {}, pi / 10800, "Arc-minute (1/60 degree)"},
    Unit{Dimension::Angle, "arcSecond", {}, pi / 648000, "Arc-second (1/60 arc-minute)"},

    Unit{Dimension::Area, "m2", {}, 1, "Metre square (base unit)"},
    Unit{Dimension::Area, "mm2", {}, decimal(1e-06), "Millimetre square"},
    Unit{Dimension::Area, "cm2", {}, decimal(0.0001), "Centimetre square"},
    Unit{Dimension::Area, "barn", {}, decimal(1e-27), "Barn (100 femtometre square)"},
    Unit{Dimension::Area, "are", {}, 100, "Are (100 metre square)"},
    Unit{Dimension::Area, "hectare", {}, 10000, "Hectare (10000 metre square, hectoare)"},
    Unit{Dimension::Area, "km2", {}, 1000000, "Kilometre square"},
    Unit{Dimension::Area, "inch2", {}, decimal(0.00064516), "Inch square"},
    Unit{Dimension::Area, "foot2", {}, decimal(0.09290304), "Foot square"},
    Unit{Dimension::Area, "yard2", {}, decimal(0.83612736), "Yard square"},
    Unit{Dimension::Area, "acre", {}, decimal(4046.8564224), "Acre (4840 square yards)"},
    Unit{Dimension::Area, "mile2", {}, decimal(2589988.110336), "Mile square"},

    Unit{Dimension::Energy, "wattHour", {}, 3600, "Watt-hour"},
    Unit{Dimension::Energy, "ftLb", {}, decimal(1.3558179483), "Foot-pound"},
    Unit{Dimension::Energy, "joule", {"j"}, 1, "Joule (basic unit)"},
    Unit{Dimension::Energy, "therm", {}, 105480400, "United States therm unit"},
    Unit{Dimension::Energy, "erg", {}, decimal(1e-07), "Erg"},
    Unit{Dimension::Energy, "cal", {}, decimal(4.1868), "Calorie"},
    Unit{Dimension::Energy, "thermUK", {}, decimal(105505585.26), "United Kingdom therm"},
    Unit{Dimension::Energy, "calNut", {}, decimal(4186.8), "Nutritional Calorie (1000 cal)"},
    Unit{Dimension::Energy, "thermEU", {}, 105506000, "European Union therm"},
    Unit{Dimension::Energy, "calTh", {}, decimal(4.184), "Thermochemical calorie"},
    Unit{Dimension::Energy, "btu", {}, decimal(1055.056), "British Thermal Unit"},
    Unit{Dimension::Energy, "hartree", {}, decimal(4.35974417e-18), "Hartree (double Rydberg, atomic energy unit)"},
    Unit{Dimension::Energy, "cal15", {}, decimal(4.1858), "Calorie (at 15 celsius)"},
    Unit{Dimension::Energy, "btuTh", {}, decimal(1054.35), "Thermochemical BTU"},
    Unit{Dimension::Energy, "eVolt", {}, decimal(1.60217653e-19), "Electron-volt"},
    Unit{Dimension::Energy, "cal20", {}, decimal(4.1819), "Calorie (at 20 celsius)"},
    Unit{Dimension::Energy, "btuMean", {}, decimal(1055.87), "Mean BTU (0 to 100 C)"},
    Unit{Dimension::Energy, "calMean", {}, decimal(4.19002), "Calorie"},

    Unit{Dimension::Force, "newton", {}, 1, "Newton (basic unit)"},
    Unit{Dimension::Force, "dyn", {}, decimal(0.0001), "Dyne (10 micronewtons)"},
    Unit{Dimension::Force, "lbf", {}, decimal(4.448221615), "Pound force"},
    Unit{Dimension::Force, "gf", {}, decimal(0.00980665), "Gram force (pond)"},

    Unit{Dimension::Length, "mm", {}, decimal(0.001), "Millimetre"},
    Unit{Dimension::Length, "cm", {}, decimal(0.01), "Centimetre"},
    Unit{Dimension::Length, "m", {"meter", "metre"}, 1, "Metre (meter, basic unit)"},
    Unit{Dimension::Length, "km", {}, 1000, "Kilometre"},
    Unit{Dimension::Length, "inch", {}, decimal(0.0254), "Inch"},
    Unit{Dimension::Length, "foot", {}, decimal(0.3048), "Foot"},
    Unit{Dimension::Length, "yard", {}, decimal(0.9144), "Yard"},
    Unit{Dimension::Length, "mile", {}, decimal(1609.344), "Mile"},
    Unit{Dimension::Length, "link", {}, decimal(0.201168), "Link"},
    Unit{Dimension::Length, "rod", {}, decimal(5.0292), "Rod (perch, 16.5 feet)"},
    Unit{Dimension::Length,
         "mil",
         {Alias("thou", "Thou (mil, 1/1000 inch)")},
         decimal(2.54e-07),
         "Mil (thou, 1/1000 inch)"},
    Unit{Dimension::Length, "furlong", {}, decimal(201.168), "Furlong"},
    Unit{Dimension::Length, "nautMile", {}, 1852, "Nautical mile"},
    Unit{Dimension::Length, "chain", {}, decimal(20.1168), "Chain (100 links)"},
    Unit{Dimension::Length, "micron", {}, decimal(1e-06), "Micron"},
    Unit{Dimension::Length, "plkl", {}, decimal(1.61624e-35), "Plank length"},
    Unit{Dimension::Length, "lightSecond", {}, 299792458, "Light second"},
    Unit{Dimension::Length, "au", {}, 149597800000, "Astronomical unit"},
    Unit{Dimension::Length, "ang", {}, decimal(1e-09), "Angstrom (100 picometres)"},
    Unit{Dimension::Length, "lightYear", {}, decimal(9.460528405e+15), "Light year"},
    Unit{Dimension::Length, "parsec", {}, decimal(3.085678e+16), "Parsec"},

    Unit{Dimension::LuminousIntensity, "candela", {"candle"}, 1, "Candela (candle, basic unit)"},
    Unit{Dimension::LuminousIntensity, "candleInt", {}, decimal(1.01937), "International candle"},
    Unit{Dimension::LuminousIntensity, "bougie", {}, decimal(1.0085), "Decimal bougie (1/20 violle)"},
    Unit{Dimension::LuminousIntensity, "violle", {}, decimal(20.17), "Violle (platinum-based unit)"},
    Unit{Dimension::LuminousIntensity, "carcel", {}, decimal(9.74), "Carcel (lamp-based unit)"},
    Unit{Dimension::LuminousIntensity, "hefner", {}, decimal(0.903), "Hefner (lamp-based unit)"},

    Unit{Dimension::Mass, "kg", {}, 1, "Kilogram (basic unit)"},
    Unit{Dimension::Mass, "gram", {}, decimal(0.001), "Gram"},
    Unit{Dimension::Mass, "mg", {}, decimal(1e-06), "Milligram"},
    Unit{Dimension::Mass, "amu", {}, decimal(1.66e-33), "Atomic mass unit"},
    Unit{Dimension::Mass, "pennyweight", {}, decimal(0.001555175), "Pennyweight"},
    Unit{Dimension::Mass, "oz", {"ounce"}, decimal(0.028349523125), "Ounce"},
    Unit{Dimension::Mass, "troyDram", {}, decimal(0.0038879375), "Troy dram"},
    Unit{Dimension::Mass, "dram", {}, decimal(0.0017718451953), "Dram"},
    Unit{Dimension::Mass, "lb", {"pound"}, decimal(0.45359237), "Pound"},
    Unit{Dimension::Mass, "troyOunce", {}, decimal(0.0311034768), "Troy ounce"},
    Unit{Dimension::Mass, "troyPound", {}, decimal(0.3732417216), "Troy pound"},
    Unit{Dimension::Mass, "tonne", {}, 1000, "Metric tonne (1000 kg)"},
    Unit{Dimension::Mass, "tonUK", {"longTon"}, decimal(1016.047), "United Kingdom ton (long ton)"},
    Unit{Dimension::Mass, "tonUS", {"shortTon"}, decimal(907.185), "United States ton (short ton)"},
    Unit{Dimension::Mass, "grain", {}, decimal(6.479891e-07), "Grain"},
    Unit{Dimension::Mass, "carat", {}, decimal(0.0002), "Carat"},
    Unit{Dimension::Mass, "stone", {}, decimal(6.35029), "Stone"},

    Unit{Dimension::Power, "watt", {}, 1, "Watt (basic unit)"},
    Unit{Dimension::Power, "hp", {}, 746, "Horsepower"},
    Unit{Dimension::Power, "btuS", {}, decimal(0.2928104), "British Thermal Units per second"},

    Unit{Dimension::Pressure,
         "mmHg",
         {Alias("torr", "Torr (mmHg)")},
         decimal(133.3223684211),
         "Millimetres of mercury (torr)"},
    Unit{Dimension::Pressure, "pascal", {}, 1, "Pascal (basic unit)"},
    Unit{Dimension::Pressure, "cmHg", {}, decimal(1333.22), "Centimetres of mercury"},
    Unit{Dimension::Pressure, "inchHg", {}, decimal(3386.3788), "Inches of mercury"},
    Unit{Dimension::Pressure, "psi", {}, decimal(6894.75744), "Pound per square inch"},
    Unit{Dimension::Pressure, "psf", {}, decimal(47.88026), "Pound per square foot"},
    Unit{Dimension::Pressure, "bar", {}, 100000, "Bar"},
    Unit{Dimension::Pressure, "atm", {}, 101325, "Atmosphere of pressure"},

    Unit{Dimension::Speed, "mach", {}, decimal(331.6), "Speed of sound"},
    Unit{Dimension::Speed, "kmH", {}, 1000.0L / 3600, "Kilometre per hour"},
    Unit{Dimension::Speed, "mS", {}, 1, "Metre per second (basic unit)"},
    Unit{Dimension::Speed, "mph", {}, decimal(0.44704), "Mile per hour"},
    Unit{Dimension::Speed, "knot", {}, 1852.0L / 3600, "Knot (nautical mile per hour)"},
    Unit{Dimension::Speed, "lightSpeed", {}, 299792458, "Speed of light"},

    Unit{Dimension::Temperature, "K", {"kelvin"}, 1, "Kelvin scale, (1; 0) (basic unit)"},
    Unit{Dimension::Temperature, "C", {"celsius", "centigrade"}, 1, "Celsius scale, (1; -273.15)", decimal(-273.15)},
    Unit{Dimension::Temperature, "F", {"fahrenheit"}, 5.0L / 9, "Fahrenheit scale, (5/9; -459.67)", decimal(-459.67)},
    Unit{Dimension::Temperature, "R", {"rankine"}, 5.0L / 9, "Rankine scale, (5/9; 0)"},
    Unit{Dimension::Temperature, "reaumur", {}, decimal(1.25), "Reaumur scale: (1.25; -218.52))", decimal(-218.52)},

    Unit{Dimension::Time, "dy", {"day"}, secondsOfDay, "Day"},
    Unit{Dimension::Time, "wk", {"week"}, 604800, "Week"},
    Unit{Dimension::Time, "mo", {"month"}, secondsOfMonth, "Average Gregorian month (yr/12)"},
    Unit{Dimension::Time, "yr", {"year"}, secondsOfYear, "Gregorian year (365.2425 days)"},
    Unit{Dimension::Time, "s", {"sc", "second"}, 1, "Second (basic unit)"},
    Unit{Dimension::Time, "mn", {"minute"}, 60, "Minute"},
    Unit{Dimension::Time, "hr", {"hour"}, 3600, "Hour"},
    Unit{Dimension::Time, "yrTrop", {}, decimal(31556925.97474), "Tropical (astronomical) year"},
    Unit{Dimension::Time, "decade", {}, 10 * secondsOfYear, "Decade"},
    Unit{Dimension::Time, "century", {}, 100 * secondsOfYear, "Century"},
    Unit{Dimension::Time, "millenium", {}, 1000 * secondsOfYear, "Millenium"},
    Unit{Dimension::Time, "plkt", {}, decimal(5.39121e-44), "Plank time"},

    Unit{Dimension::Volume, "m3", {}, 1, "Cubic metre (basic unit)"},
    Unit{Dimension::Volume, "litre", {"liter"}, decimal(0.001), "Litre (also L and liter)"},
    Unit{Dimension::Volume, "mm3", {}, decimal(1e-09), "Cubic millimetre"},
    Unit{Dimension::Volume, "cm3", {"cc"}, decimal(1e-06), "Cubic centimetre (also cc)"},
    Unit{Dimension::Volume, "km3", {}, 1000000000, "Cubic kilometre"},
    Unit{Dimension::Volume, "inch3", {}, decimal(1.6387064e-05), "Cubic inch"},
    Unit{Dimension::Volume, "foot3", {}, decimal(0.0283168466), "Cubic foot"},
    Unit{Dimension::Volume, "yard3", {}, decimal(0.764554858), "Cubic yard"},
    Unit{Dimension::Volume, "gallon", {}, decimal(0.00454609), "Imperial gallon"},
    Unit{Dimension::Volume, "quart", {}, decimal(0.0011365225), "Imperial quart"},
    Unit{Dimension::Volume, "pint", {}, decimal(0.000568261), "Imperial pint"},
    Unit{Dimension::Volume, "gallonDry", {}, decimal(0.0037854115), "United States dry gallon"},
    Unit{Dimension::Volume, "gallonLiq", {}, decimal(0.0044048699), "United States liquid gallon"},
    Unit{Dimension::Volume, "quartDry", {}, decimal(0.001101221), "United States dry quart"},
    Unit{Dimension::Volume, "quartLiq", {}, decimal(0.0009463529), "United States liquid quart"},
    Unit{Dimension::Volume, "pintDry", {}, decimal(0.000550611), "United States dry pint"},
    Unit{Dimension::Volume, "pintLiq", {}, decimal(0.000473176), "United States liquid pint"},
};

}  // namespace calquo
