// The units of the language, each stated once: its dimension, its names, its size in base units, its description.
#pragma once

#include <array>
#include <cstddef>
#include <string_view>

#include "values/durations.h"
#include "values/extended.h"
#include "values/value.h"

namespace calquo {

/// What units measure, as the help names it. Nothing checks dimensions; they only sort the units.
namespace dimension {
inline constexpr std::string_view acceleration = "Acceleration";
inline constexpr std::string_view angle = "Angle";
inline constexpr std::string_view area = "Area";
inline constexpr std::string_view energy = "Energy";
inline constexpr std::string_view force = "Force";
inline constexpr std::string_view length = "Length";
inline constexpr std::string_view luminousIntensity = "Luminous intensity";
inline constexpr std::string_view mass = "Mass";
inline constexpr std::string_view power = "Power";
inline constexpr std::string_view pressure = "Pressure";
inline constexpr std::string_view speed = "Speed";
inline constexpr std::string_view temperature = "Temperature";
inline constexpr std::string_view time = "Time";
inline constexpr std::string_view volume = "Volume";
}  // namespace dimension

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
    std::string_view dimension;  ///< one of those above
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
    Unit{dimension::acceleration, "mmS2", {}, decimal(0.001), "Millimetre per second square"},
    Unit{dimension::acceleration, "cmS2", {}, decimal(0.01), "Centimetre per second square"},
    Unit{dimension::acceleration, "mS2", {}, 1, "Metre per second square (base unit)"},
    Unit{dimension::acceleration, "kmS2", {}, 1000, "Kilometre per second square"},
    // Deliberate, as are barn, dyn, mil, ang, amu, grain, hp, btuS and gallonLiq below: results depend on these values.
    Unit{dimension::acceleration, "gal", {}, decimal(0.1), "Galileo (gal-acceleration)"},
    Unit{dimension::acceleration, "inchS2", {}, decimal(0.0254), "Inch per second square"},
    Unit{dimension::acceleration, "footS2", {}, decimal(0.3048), "Foot per second square"},
    Unit{dimension::acceleration, "g", {}, decimal(9.80665), "Gravitational constant of acceleration"},
    Unit{dimension::acceleration, "yardS2", {}, decimal(0.9144), "Yard per second square"},
    Unit{dimension::acceleration, "mileS2", {}, decimal(1609.344), "Mile per second square"},

    Unit{dimension::angle, "rad", {"radian"}, 1, "Radian (base unit, circle = 2 pi radians)"},
    Unit{dimension::angle, "deg", {"degree"}, pi / 180, "Degree (circle = 360 degrees)"},
    Unit{dimension::angle, "grad", {"gradient"}, pi / 200, "Gradient (circle = 400 gradients)"},
    Unit{dimension::angle, "arcMinute", {}, pi / 10800, "Arc-minute (1/60 degree)"},
    Unit{dimension::angle, "arcSecond", {}, pi / 648000, "Arc-second (1/60 arc-minute)"},

    Unit{dimension::area, "m2", {}, 1, "Metre square (base unit)"},
    Unit{dimension::area, "mm2", {}, decimal(1e-06), "Millimetre square"},
    Unit{dimension::area, "cm2", {}, decimal(0.0001), "Centimetre square"},
    Unit{dimension::area, "barn", {}, decimal(1e-27), "Barn (100 femtometre square)"},
    Unit{dimension::area, "are", {}, 100, "Are (100 metre square)"},
    Unit{dimension::area, "hectare", {}, 10000, "Hectare (10000 metre square, hectoare)"},
    Unit{dimension::area, "km2", {}, 1000000, "Kilometre square"},
    Unit{dimension::area, "inch2", {}, decimal(0.00064516), "Inch square"},
    Unit{dimension::area, "foot2", {}, decimal(0.09290304), "Foot square"},
    Unit{dimension::area, "yard2", {}, decimal(0.83612736), "Yard square"},
    Unit{dimension::area, "acre", {}, decimal(4046.8564224), "Acre (4840 square yards)"},
    Unit{dimension::area, "mile2", {}, decimal(2589988.110336), "Mile square"},

    Unit{dimension::energy, "wattHour", {}, 3600, "Watt-hour"},
    Unit{dimension::energy, "ftLb", {}, decimal(1.3558179483), "Foot-pound"},
    Unit{dimension::energy, "joule", {"j"}, 1, "Joule (basic unit)"},
    Unit{dimension::energy, "therm", {}, 105480400, "United States therm unit"},
    Unit{dimension::energy, "erg", {}, decimal(1e-07), "Erg"},
    Unit{dimension::energy, "cal", {}, decimal(4.1868), "Calorie"},
    Unit{dimension::energy, "thermUK", {}, decimal(105505585.26), "United Kingdom therm"},
    Unit{dimension::energy, "calNut", {}, decimal(4186.8), "Nutritional Calorie (1000 cal)"},
    Unit{dimension::energy, "thermEU", {}, 105506000, "European Union therm"},
    Unit{dimension::energy, "calTh", {}, decimal(4.184), "Thermochemical calorie"},
    Unit{dimension::energy, "btu", {}, decimal(1055.056), "British Thermal Unit"},
    Unit{dimension::energy, "hartree", {}, decimal(4.35974417e-18), "Hartree (double Rydberg, atomic energy unit)"},
    Unit{dimension::energy, "cal15", {}, decimal(4.1858), "Calorie (at 15 celsius)"},
    Unit{dimension::energy, "btuTh", {}, decimal(1054.35), "Thermochemical BTU"},
    Unit{dimension::energy, "eVolt", {}, decimal(1.60217653e-19), "Electron-volt"},
    Unit{dimension::energy, "cal20", {}, decimal(4.1819), "Calorie (at 20 celsius)"},
    Unit{dimension::energy, "btuMean", {}, decimal(1055.87), "Mean BTU (0 to 100 C)"},
    Unit{dimension::energy, "calMean", {}, decimal(4.19002), "Calorie"},

    Unit{dimension::force, "newton", {}, 1, "Newton (basic unit)"},
    Unit{dimension::force, "dyn", {}, decimal(0.0001), "Dyne (10 micronewtons)"},
    Unit{dimension::force, "lbf", {}, decimal(4.448221615), "Pound force"},
    Unit{dimension::force, "gf", {}, decimal(0.00980665), "Gram force (pond)"},

    Unit{dimension::length, "mm", {}, decimal(0.001), "Millimetre"},
    Unit{dimension::length, "cm", {}, decimal(0.01), "Centimetre"},
    Unit{dimension::length, "m", {"meter", "metre"}, 1, "Metre (meter, basic unit)"},
    Unit{dimension::length, "km", {}, 1000, "Kilometre"},
    Unit{dimension::length, "inch", {}, decimal(0.0254), "Inch"},
    Unit{dimension::length, "foot", {}, decimal(0.3048), "Foot"},
    Unit{dimension::length, "yard", {}, decimal(0.9144), "Yard"},
    Unit{dimension::length, "mile", {}, decimal(1609.344), "Mile"},
    Unit{dimension::length, "link", {}, decimal(0.201168), "Link"},
    Unit{dimension::length, "rod", {}, decimal(5.0292), "Rod (perch, 16.5 feet)"},
    Unit{dimension::length,
         "mil",
         {Alias("thou", "Thou (mil, 1/1000 inch)")},
         decimal(2.54e-07),
         "Mil (thou, 1/1000 inch)"},
    Unit{dimension::length, "furlong", {}, decimal(201.168), "Furlong"},
    Unit{dimension::length, "nautMile", {}, 1852, "Nautical mile"},
    Unit{dimension::length, "chain", {}, decimal(20.1168), "Chain (100 links)"},
    Unit{dimension::length, "micron", {}, decimal(1e-06), "Micron"},
    Unit{dimension::length, "plkl", {}, decimal(1.61624e-35), "Plank length"},
    Unit{dimension::length, "lightSecond", {}, 299792458, "Light second"},
    Unit{dimension::length, "au", {}, 149597800000, "Astronomical unit"},
    Unit{dimension::length, "ang", {}, decimal(1e-09), "Angstrom (100 picometres)"},
    Unit{dimension::length, "lightYear", {}, decimal(9.460528405e+15), "Light year"},
    Unit{dimension::length, "parsec", {}, decimal(3.085678e+16), "Parsec"},

    Unit{dimension::luminousIntensity, "candela", {"candle"}, 1, "Candela (candle, basic unit)"},
    Unit{dimension::luminousIntensity, "candleInt", {}, decimal(1.01937), "International candle"},
    Unit{dimension::luminousIntensity, "bougie", {}, decimal(1.0085), "Decimal bougie (1/20 violle)"},
    Unit{dimension::luminousIntensity, "violle", {}, decimal(20.17), "Violle (platinum-based unit)"},
    Unit{dimension::luminousIntensity, "carcel", {}, decimal(9.74), "Carcel (lamp-based unit)"},
    Unit{dimension::luminousIntensity, "hefner", {}, decimal(0.903), "Hefner (lamp-based unit)"},

    Unit{dimension::mass, "kg", {}, 1, "Kilogram (basic unit)"},
    Unit{dimension::mass, "gram", {}, decimal(0.001), "Gram"},
    Unit{dimension::mass, "mg", {}, decimal(1e-06), "Milligram"},
    Unit{dimension::mass, "amu", {}, decimal(1.66e-33), "Atomic mass unit"},
    Unit{dimension::mass, "pennyweight", {}, decimal(0.001555175), "Pennyweight"},
    Unit{dimension::mass, "oz", {"ounce"}, decimal(0.028349523125), "Ounce"},
    Unit{dimension::mass, "troyDram", {}, decimal(0.0038879375), "Troy dram"},
    Unit{dimension::mass, "dram", {}, decimal(0.0017718451953), "Dram"},
    Unit{dimension::mass, "lb", {"pound"}, decimal(0.45359237), "Pound"},
    Unit{dimension::mass, "troyOunce", {}, decimal(0.0311034768), "Troy ounce"},
    Unit{dimension::mass, "troyPound", {}, decimal(0.3732417216), "Troy pound"},
    Unit{dimension::mass, "tonne", {}, 1000, "Metric tonne (1000 kg)"},
    Unit{dimension::mass, "tonUK", {"longTon"}, decimal(1016.047), "United Kingdom ton (long ton)"},
    Unit{dimension::mass, "tonUS", {"shortTon"}, decimal(907.185), "United States ton (short ton)"},
    Unit{dimension::mass, "grain", {}, decimal(6.479891e-07), "Grain"},
    Unit{dimension::mass, "carat", {}, decimal(0.0002), "Carat"},
    Unit{dimension::mass, "stone", {}, decimal(6.35029), "Stone"},

    Unit{dimension::power, "watt", {}, 1, "Watt (basic unit)"},
    Unit{dimension::power, "hp", {}, 746, "Horsepower"},
    Unit{dimension::power, "btuS", {}, decimal(0.2928104), "British Thermal Units per second"},

    Unit{dimension::pressure,
         "mmHg",
         {Alias("torr", "Torr (mmHg)")},
         decimal(133.3223684211),
         "Millimetres of mercury (torr)"},
    Unit{dimension::pressure, "pascal", {}, 1, "Pascal (basic unit)"},
    Unit{dimension::pressure, "cmHg", {}, decimal(1333.22), "Centimetres of mercury"},
    Unit{dimension::pressure, "inchHg", {}, decimal(3386.3788), "Inches of mercury"},
    Unit{dimension::pressure, "psi", {}, decimal(6894.75744), "Pound per square inch"},
    Unit{dimension::pressure, "psf", {}, decimal(47.88026), "Pound per square foot"},
    Unit{dimension::pressure, "bar", {}, 100000, "Bar"},
    Unit{dimension::pressure, "atm", {}, 101325, "Atmosphere of pressure"},

    Unit{dimension::speed, "mach", {}, decimal(331.6), "Speed of sound"},
    Unit{dimension::speed, "kmH", {}, 1000.0L / 3600, "Kilometre per hour"},
    Unit{dimension::speed, "mS", {}, 1, "Metre per second (basic unit)"},
    Unit{dimension::speed, "mph", {}, decimal(0.44704), "Mile per hour"},
    Unit{dimension::speed, "knot", {}, 1852.0L / 3600, "Knot (nautical mile per hour)"},
    Unit{dimension::speed, "lightSpeed", {}, 299792458, "Speed of light"},

    Unit{dimension::temperature, "K", {"kelvin"}, 1, "Kelvin scale, (1; 0) (basic unit)"},
    Unit{dimension::temperature, "C", {"celsius", "centigrade"}, 1, "Celsius scale, (1; -273.15)", decimal(-273.15)},
    Unit{dimension::temperature, "F", {"fahrenheit"}, 5.0L / 9, "Fahrenheit scale, (5/9; -459.67)", decimal(-459.67)},
    Unit{dimension::temperature, "R", {"rankine"}, 5.0L / 9, "Rankine scale, (5/9; 0)"},
    Unit{dimension::temperature, "reaumur", {}, decimal(1.25), "Reaumur scale: (1.25; -218.52))", decimal(-218.52)},

    Unit{dimension::time, "dy", {"day"}, secondsOfDay, "Day"},
    Unit{dimension::time, "wk", {"week"}, 604800, "Week"},
    Unit{dimension::time, "mo", {"month"}, secondsOfMonth, "Average Gregorian month (yr/12)"},
    Unit{dimension::time, "yr", {"year"}, secondsOfYear, "Gregorian year (365.2425 days)"},
    Unit{dimension::time, "s", {"sc", "second"}, 1, "Second (basic unit)"},
    Unit{dimension::time, "mn", {"minute"}, 60, "Minute"},
    Unit{dimension::time, "hr", {"hour"}, 3600, "Hour"},
    Unit{dimension::time, "yrTrop", {}, decimal(31556925.97474), "Tropical (astronomical) year"},
    Unit{dimension::time, "decade", {}, 10 * secondsOfYear, "Decade"},
    Unit{dimension::time, "century", {}, 100 * secondsOfYear, "Century"},
    Unit{dimension::time, "millenium", {}, 1000 * secondsOfYear, "Millenium"},
    Unit{dimension::time, "plkt", {}, decimal(5.39121e-44), "Plank time"},

    Unit{dimension::volume, "m3", {}, 1, "Cubic metre (basic unit)"},
    Unit{dimension::volume, "litre", {"liter"}, decimal(0.001), "Litre (also L and liter)"},
    Unit{dimension::volume, "mm3", {}, decimal(1e-09), "Cubic millimetre"},
    Unit{dimension::volume, "cm3", {"cc"}, decimal(1e-06), "Cubic centimetre (also cc)"},
    Unit{dimension::volume, "km3", {}, 1000000000, "Cubic kilometre"},
    Unit{dimension::volume, "inch3", {}, decimal(1.6387064e-05), "Cubic inch"},
    Unit{dimension::volume, "foot3", {}, decimal(0.0283168466), "Cubic foot"},
    Unit{dimension::volume, "yard3", {}, decimal(0.764554858), "Cubic yard"},
    Unit{dimension::volume, "gallon", {}, decimal(0.00454609), "Imperial gallon"},
    Unit{dimension::volume, "quart", {}, decimal(0.0011365225), "Imperial quart"},
    Unit{dimension::volume, "pint", {}, decimal(0.000568261), "Imperial pint"},
    Unit{dimension::volume, "gallonDry", {}, decimal(0.0037854115), "United States dry gallon"},
    Unit{dimension::volume, "gallonLiq", {}, decimal(0.0044048699), "United States liquid gallon"},
    Unit{dimension::volume, "quartDry", {}, decimal(0.001101221), "United States dry quart"},
    Unit{dimension::volume, "quartLiq", {}, decimal(0.0009463529), "United States liquid quart"},
    Unit{dimension::volume, "pintDry", {}, decimal(0.000550611), "United States dry pint"},
    Unit{dimension::volume, "pintLiq", {}, decimal(0.000473176), "United States liquid pint"},
};

}  // namespace calquo
