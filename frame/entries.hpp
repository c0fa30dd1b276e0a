// The lists of entries, functions, name rows and costs as constant arrays, for everything in C++ that walks them.
#ifndef QORL_FRAME_ENTRIES_HPP
#define QORL_FRAME_ENTRIES_HPP

#include <array>
#include <cstddef>
#include <iterator>
#include <string_view>

namespace qorl {

enum class Level : int { LA, HA, EP };  // also the slot of a kernel table

enum class Shape {
    unary,            // (n, a, y), real
    unary_param,      // (n, a, b, y), b by value
    complex_unary,    // (n, a, y), complex
    real_to_complex,  // (n, a, y), a real
    complex_to_real,  // (n, a, y), y real
    binary,           // (n, a, b, y), real
    complex_binary,   // (n, a, b, y), complex
    array_scalar,     // (n, a, b, y), b by value
    two_results,      // (n, a, y, z), real
    linear_frac,      // (n, a, b, scalea, shifta, scaleb, shiftb, y)
    pack              // gather and scatter of arrays
};

enum class Form { unit, strided };

struct Entry {
    int index;
    char type;  // s, d, c, z
    std::string_view function;
    Shape shape;
    Form form;
    std::array<Level, 3> slots;  // the level that names the kernel in the slots LA, HA, EP

    constexpr int kernels() const {  // distinct kernels behind the three slots
        return 1 + (slots[1] != slots[0]) + (slots[2] != slots[0] && slots[2] != slots[1]);
    }
};

inline constexpr Entry entries[] = {
#define QORL_ENTRY(index, type, Function, shape, form, la, ha, ep) \
    Entry{index, #type[0], #Function, Shape::shape, Form::form, {Level::la, Level::ha, Level::ep}},
#include "frame/entries.inc"
#undef QORL_ENTRY
};

struct NameRows {
    char type;
    std::string_view function;
    std::string_view levels;  // such as EP_HA_LA, in the order of the rows

    constexpr int count() const { return static_cast<int>(levels.size() + 1) / 3; }
};

inline constexpr NameRows name_rows[] = {
#define QORL_NAME(type, Function, rows) NameRows{#type[0], #Function, #rows},
#include "frame/names.inc"
#undef QORL_NAME
};

struct Function {  // a function whose kernels stand, with the error bounds of its levels
    char type;
    std::string_view name;
    double la_ulp, ha_ulp;  // units in the last place of the correctly rounded result
    double ep_bits;         // relative error at most 2^-ep_bits
};

inline constexpr Function functions[] = {
#define QORL_FUNCTION(type, Function_, la, ha, ep) Function{#type[0], #Function_, la, ha, ep},
#include "frame/functions.inc"
#undef QORL_FUNCTION
};

struct Cost {
    char type;
    std::string_view function;
    std::array<float, 3> figures;  // LA, HA, EP
};

inline constexpr Cost costs[] = {
#define QORL_COST(type, Function, la, ha, ep) \
    Cost{#type[0], #Function, {static_cast<float>(la), static_cast<float>(ha), static_cast<float>(ep)}},
#include "frame/costs.inc"
#undef QORL_COST
};

// Told by itself, not by find_entry: under the undefined-behaviour sanitizer g++ 12 does not take the comparison of an
// element's address with null for a constant.
constexpr bool has_entry(char type, std::string_view function) {
    for (const Entry &entry : entries)
        if (entry.type == type && entry.function == function) return true;
    return false;
}

// The entry of a type and function name ("Exp" unit-stride, "ExpI" strided), or null.
constexpr const Entry *find_entry(char type, std::string_view function) {
    for (const Entry &entry : entries)
        if (entry.type == type && entry.function == function) return &entry;
    return nullptr;
}

// The strided twin of a unit-stride entry; null for the pack entries, which have none.
constexpr const Entry *strided_twin(const Entry &unit) {
    for (const Entry &entry : entries)
        if (entry.form == Form::strided && entry.type == unit.type &&
            entry.function.substr(0, entry.function.size() - 1) == unit.function)
            return &entry;
    return nullptr;
}

// The suffix of an entry point's name: LA 21 or 50, HA none (and _HA as a second name), EP 11 or 26.
constexpr std::string_view name_suffix(char type, Level level) {
    const bool single = type == 's' || type == 'c';
    if (level == Level::HA) return "";
    if (level == Level::LA) return single ? "_21" : "_50";
    return single ? "_11" : "_26";
}

static_assert(std::size(entries) == 480);
static_assert(
    [] {
        for (std::size_t i = 0; i < std::size(entries); ++i)
            if (entries[i].index != static_cast<int>(i)) return false;
        return true;
    }(),
    "the indices are dense and in order");
static_assert([] {
    int kernels = 0;
    for (const Entry &entry : entries) kernels += entry.kernels();
    return kernels;
}() == 948);
static_assert([] {
    int rows = 0;
    for (const NameRows &name : name_rows) rows += name.count();
    return rows;
}() == 277);
static_assert(
    [] {
        for (const Function &function : functions) {
            const bool single = function.type == 's' || function.type == 'c';
            if (function.la_ulp >= 4 || function.ha_ulp >= 1 || function.ep_bits < (single ? 11 : 26)) return false;
        }
        return true;
    }(),
    "no function promises less than its levels do");
static_assert(
    [] {
        for (const Function &function : functions)
            if (!has_entry(function.type, function.name)) return false;
        for (const NameRows &name : name_rows)
            if (!has_entry(name.type, name.function)) return false;
        for (const Cost &cost : costs)
            if (!has_entry(cost.type, cost.function)) return false;
        return true;
    }(),
    "every function, name row and cost belongs to an entry");

}  // namespace qorl

#endif
