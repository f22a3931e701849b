// What the rows of the table are built with: common ranges, references made of formulas, and the rows of each part.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "functions.h"
#include "values/extended.h"

namespace calquo {

using Complex = std::complex<Real>;
using Reckoning = std::function<Exact(Arguments)>;

inline constexpr Range zero{};
inline constexpr Range extreme{-16382, 16384};
inline constexpr Range wide{-8000, 8000};
inline constexpr Range everyday{-4, 7};
inline constexpr Range everydayPositive{-4, 7, Signs::Positive};
inline constexpr Range wholes{0, 62, Signs::Either, true};

/// A real and a complex region.
inline const std::vector<Region> some = {everyday, {everyday, everyday}};

/// The rows of the table, in the order of the page.
class Rows {
public:
    void add(MeasuredFunction row) { rows_.push_back(std::move(row)); }

    /// A function of one argument, with a row for each region.
    void add(const std::string& name, const std::vector<Region>& regions, const Reckoning& exact) {
        for (const Region& region : regions) {
            add({name, name + "(#)", {region}, exact});
        }
    }

    /// A function of two arguments, with a region each.
    void addPair(const std::string& name, const std::vector<Region>& regions, const Reckoning& exact) {
        add({name, name + "(#; #)", regions, exact});
    }

    /// An operator between two operands.
    void addOperator(const std::string& name, const std::vector<Region>& regions, const Reckoning& exact) {
        add({name, "# " + name + " #", regions, exact});
    }

    /// A function of a list, with a row for each region of its items.
    void addList(const std::string& name, const std::vector<Region>& regions, const Reckoning& exact,
                 Reference reference = Reference::Exact) {
        for (const Region& region : regions) {
            add({name, name + "(#...)", {region}, exact, reference});
        }
    }

    [[nodiscard]] const std::vector<MeasuredFunction>& all() const { return rows_; }

private:
    std::vector<MeasuredFunction> rows_;
};

/// Arithmetic, the parts of complex numbers, conversion and elementary functions.
void addNumberFunctions(Rows& rows);
/// Rounding, integer division, factorials, primes, divisors and bits.
void addWholeNumberFunctions(Rows& rows);
/// Statistics and finance.
void addListFunctions(Rows& rows);

}  // namespace calquo
