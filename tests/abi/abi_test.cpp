// The binary interface: the exported names are exactly those of the lists, and tables, name rows and stubs are laid out
// as callers that find them by name rely on.
#include <dlfcn.h>
#include <gtest/gtest.h>

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <map>
#include <set>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "elf_symbols.hpp"
#include "frame/entries.hpp"
#include "qorl/zet.h"
#include "stream_names.hpp"

namespace {

using qorl::Entry;
using qorl::Form;
using qorl::Level;

static_assert(offsetof(QorlErrorRecord, code) == 0 && offsetof(QorlErrorRecord, index) == 4);
static_assert(offsetof(QorlErrorRecord, in1) == 8 && offsetof(QorlErrorRecord, in2) == 16);
static_assert(offsetof(QorlErrorRecord, out1) == 24 && offsetof(QorlErrorRecord, out2) == 32);
static_assert(offsetof(QorlErrorRecord, funcName) == 40 && offsetof(QorlErrorRecord, funcNameLen) == 104);
static_assert(offsetof(QorlErrorRecord, in1Im) == 112 && offsetof(QorlErrorRecord, in2Im) == 120);
static_assert(offsetof(QorlErrorRecord, out1Im) == 128 && offsetof(QorlErrorRecord, out2Im) == 136);

constexpr Level levels[] = {Level::LA, Level::HA, Level::EP};
constexpr std::size_t pitch = 48, ctab_offset = 24, ctab_size = 12;

// Each has a second name, _zet and the same ending.
constexpr std::string_view frame_functions[] = {"SetErrStatus",     "GetErrStatus",     "ClearErrStatus",
                                                "SetErrorCallBack", "GetErrorCallBack", "ClearErrorCallBack",
                                                "SetMode",          "GetMode",          "SetInterfInputVectorPointer"};
constexpr std::string_view queries[] = {"qorl_zet_kernel_GetTTableIndex", "qorl_zet_kernel_GetTTableIndexM",
                                        "dll_cpu_version"};

std::string table_name(const Entry &entry, std::string_view kind) {
    return "qorl_zet_kernel_" + std::string(1, entry.type) + std::string(entry.function) + std::string(kind);
}

std::string stub_name(const Entry &entry, std::string_view suffix) {
    return "_zet" + std::string(1, entry.type) + std::string(entry.function) + std::string(suffix);
}

bool stands(const Entry &entry) {
    for (const qorl::Function &function : qorl::functions) {
        const Entry *unit = qorl::find_entry(function.type, function.name);
        if (unit == &entry || qorl::strided_twin(*unit) == &entry) return true;
    }
    return false;
}

// The library under test: its symbols from the file, its memory as loaded into this process.
struct Library {
    std::map<std::string, Symbol> symbols = defined_symbols(QORL_LIBRARY);
    const std::byte *base = nullptr;

    Library() {
        void *handle = dlopen(QORL_LIBRARY, RTLD_NOW);
        if (handle == nullptr) throw std::runtime_error(dlerror());
        base = static_cast<const std::byte *>(dlsym(handle, "dll_cpu_version")) - symbols.at("dll_cpu_version").address;
    }

    const std::byte *memory(const std::string &name) const { return base + symbols.at(name).address; }
    const std::byte *table() const { return memory(table_name(qorl::entries[0], "_ttab")); }
};

const Library &library() {
    static const Library loaded;
    return loaded;
}

template <class T>
T read(const std::byte *from) {
    T value;
    std::memcpy(&value, from, sizeof value);
    return value;
}

// Groups of names that stand for one address; nothing else shares one.
std::vector<std::set<std::string>> expected_functions() {
    std::vector<std::set<std::string>> groups;
    for (const std::string_view name : frame_functions) {
        const std::string full = "qorl_zet_kernel_" + std::string(name), alias = "_zet" + std::string(name);
        if (name == "SetMode") {  // the alias is a stub of its own
            groups.push_back({full});
            groups.push_back({alias});
        } else {
            groups.push_back({full, alias});
        }
    }
    for (const std::string_view name : queries) groups.push_back({std::string(name)});
    for (const std::string_view name : qorl::stream_functions) groups.push_back({std::string(name)});
    for (const std::string &name : qorl::generator_functions()) groups.push_back({name});
    for (const Entry &entry : qorl::entries) {
        if (!stands(entry)) continue;
        for (const Level level : levels) {
            groups.push_back({stub_name(entry, qorl::name_suffix(entry.type, level))});
            if (level == Level::HA) groups.back().insert(stub_name(entry, "_HA"));
        }
    }
    return groups;
}

TEST(Abi, ExportsTheListedNamesAndNothingElse) {
    std::set<std::string> expected;
    for (const auto &group : expected_functions()) expected.insert(group.begin(), group.end());
    for (const Entry &entry : qorl::entries)
        for (const std::string_view kind : {"_ttab", "_ctab"}) expected.insert(table_name(entry, kind));
    for (const std::string_view name : qorl::stream_tables) expected.insert(std::string(name));

    for (const std::string &name : expected) EXPECT_EQ(library().symbols.count(name), 1u) << name << " is missing";
    for (const auto &[name, symbol] : library().symbols)
        EXPECT_EQ(expected.count(name), 1u) << name << " is exported and not listed";
}

TEST(Abi, OneAddressHasTheNamesOfOneFunctionOnly) {
    std::map<std::uintptr_t, std::set<std::string>> by_address;
    for (const auto &[name, symbol] : library().symbols)
        if (symbol.type == STT_FUNC) by_address[symbol.address].insert(name);
    std::set<std::set<std::string>> actual, expected;
    for (const auto &[address, names] : by_address) actual.insert(names);
    for (const auto &group : expected_functions()) expected.insert(group);
    for (const auto &group : expected) EXPECT_EQ(actual.count(group), 1u) << *group.begin() << " and its second name";
    EXPECT_EQ(actual.size(), expected.size());
}

TEST(Abi, TablesStandAtTheirPitchInTheOrderOfTheList) {
    const std::uintptr_t start = library().symbols.at(table_name(qorl::entries[0], "_ttab")).address;
    for (const Entry &entry : qorl::entries) {
        const Symbol ttab = library().symbols.at(table_name(entry, "_ttab"));
        const Symbol ctab = library().symbols.at(table_name(entry, "_ctab"));
        const std::size_t place = pitch * static_cast<std::size_t>(entry.index);
        EXPECT_EQ(ttab.address - start, place) << entry.type << entry.function;
        EXPECT_EQ(ctab.address - start, place + ctab_offset) << entry.type << entry.function;
        EXPECT_EQ(ttab.size, 3 * sizeof(void *)) << entry.type << entry.function;
        EXPECT_EQ(ctab.size, 3 * sizeof(float)) << entry.type << entry.function;
        EXPECT_EQ(ttab.type, STT_OBJECT);
        EXPECT_EQ(ctab.type, STT_OBJECT);
        if (&entry == std::end(qorl::entries) - 1) continue;
        const std::byte *behind = library().table() + place + ctab_offset + ctab_size;
        for (std::size_t i = 0; i < pitch - ctab_offset - ctab_size; ++i)
            EXPECT_EQ(behind[i], std::byte{0}) << entry.type << entry.function;
    }
}

TEST(Abi, NameRowsFollowTheLastTable) {
    std::string expected;
    int rows = 0;
    for (const qorl::NameRows &name : qorl::name_rows) {
        for (int row = 0; row < name.count(); ++row, ++rows) {
            expected += 'v';
            expected += name.type;
            expected += name.function;
            expected.append(4 - expected.size() % 4, '\0');
        }
    }
    EXPECT_EQ(rows, 277);
    const std::byte *start = library().table() + pitch * (std::size(qorl::entries) - 1) + ctab_offset + ctab_size;
    EXPECT_EQ(std::string(reinterpret_cast<const char *>(start), expected.size()), expected);
}

TEST(Abi, SlotsShareKernelsAsListedAndAreNullWhereNoneStands) {
    std::set<const void *> distinct;
    int kernels = 0;
    for (const Entry &entry : qorl::entries) {
        const std::byte *ttab = library().memory(table_name(entry, "_ttab"));
        const void *slots[3];
        std::memcpy(slots, ttab, sizeof slots);
        for (std::size_t i = 0; i < 3; ++i) {
            EXPECT_EQ(slots[i] != nullptr, stands(entry)) << entry.type << entry.function << " slot " << i;
            for (std::size_t j = 0; stands(entry) && j < i; ++j)
                EXPECT_EQ(slots[i] == slots[j], entry.slots[i] == entry.slots[j])
                    << entry.type << entry.function << " slots " << j << " and " << i;
        }
        if (!stands(entry)) continue;
        distinct.insert(std::begin(slots), std::end(slots));
        kernels += entry.kernels();
    }
    EXPECT_EQ(distinct.size(), static_cast<std::size_t>(kernels)) << "a kernel serves two entries";
}

TEST(Abi, StubsAreOneLoadFromTheirSlotAndOneJump) {
    constexpr unsigned char load[] = {0x48, 0x8B, 0x05}, jump[] = {0xFF, 0xE0};  // mov rax, [rip + d]; jmp rax
    for (const Entry &entry : qorl::entries) {
        if (!stands(entry)) continue;
        for (std::size_t slot = 0; slot < 3; ++slot) {
            const std::string name = stub_name(entry, qorl::name_suffix(entry.type, levels[slot]));
            const std::byte *code = library().memory(name);
            EXPECT_EQ(std::memcmp(code, load, sizeof load), 0) << name;
            EXPECT_EQ(code + 7 + read<std::int32_t>(code + 3), library().memory(table_name(entry, "_ttab")) + 8 * slot)
                << name << " loads from another slot";
            EXPECT_EQ(std::memcmp(code + 7, jump, sizeof jump), 0) << name;
        }
    }
}

TEST(Abi, CostFiguresAreMarkersWhereListedAndTheSameForStridedTwins) {
    const std::set<std::string_view> bessel = {"I0", "I1", "J0", "J1", "Y0", "Y1", "Jn", "Yn"};
    const auto figures = [](const Entry &entry) {
        std::array<float, 3> values;
        std::memcpy(values.data(), library().memory(table_name(entry, "_ctab")), sizeof values);
        return values;
    };
    for (const Entry &entry : qorl::entries) {
        if (entry.form != Form::unit) continue;
        const auto unit = figures(entry);
        for (const float figure : unit) {
            if (entry.shape == qorl::Shape::pack) {
                EXPECT_EQ(figure, 1111.0F) << entry.function;
            } else if (bessel.count(entry.function) != 0) {
                EXPECT_EQ(figure, 1.0F) << entry.function;
            } else if (stands(entry)) {
                EXPECT_GT(figure, 0.0F) << entry.type << entry.function << " is not measured";
            }
        }
        if (const Entry *twin = qorl::strided_twin(entry); twin != nullptr) {
            EXPECT_EQ(unit, figures(*twin)) << entry.type << entry.function;
        }
    }
}

TEST(Abi, NamesItsProcessorVariant) {
    EXPECT_EQ(dll_cpu_version(), 7);
}

}  // namespace
