// Headers of exact integers: arrays printed as C++ with their count and sum.
#ifndef QORL_TOOLS_TABLES_INTEGERS_HPP
#define QORL_TOOLS_TABLES_INTEGERS_HPP

#include <cctype>
#include <cinttypes>
#include <cstdint>
#include <cstdio>
#include <string>
#include <vector>

namespace qorl::tables_tool {

// The header FOLDER/tables/NAME.hpp, which tools/tables/FOLDER/NAME.cpp prints. `comment` is whole lines.
inline void open_integer_header(const std::string &folder, const std::string &name, const char *comment) {
    std::string guard = "QORL_" + folder + "_TABLES_" + name + "_HPP";
    for (char &c : guard) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
    std::printf("%s//\n// Written by tools/tables/%s/%s.cpp. Do not edit.\n", comment, folder.c_str(), name.c_str());
    std::printf("#ifndef %s\n#define %s\n\n#include <cstdint>\n\nnamespace qorl::tables {\n", guard.c_str(),
                guard.c_str());
}

inline void close_integer_header() {
    std::printf("\n}  // namespace qorl::tables\n\n#endif\n");
}

// An array of `type`; `dimensions` as C++ has them behind the name, `row` numbers on a line.
template <class T>
void integer_table(const char *type, const char *name, const char *dimensions, const std::vector<T> &values,
                   std::size_t row, const char *rule) {
    std::uint64_t sum = 0;
    for (const T value : values) sum += value;
    std::printf("\n// %s\n// %zu numbers, their sum %" PRIu64 ".\n", rule, values.size(), sum);
    std::printf("alignas(64) inline constexpr %s %s%s = {", type, name, dimensions);
    for (std::size_t i = 0; i < values.size(); ++i)
        std::printf("%s%" PRIu64 ",", i % row == 0 ? "\n    " : " ", static_cast<std::uint64_t>(values[i]));
    std::printf("\n};\n");
}

}  // namespace qorl::tables_tool

#endif
