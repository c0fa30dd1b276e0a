// The dynamic symbols that a shared object defines, read from its file.
#ifndef QORL_TESTS_ABI_ELF_SYMBOLS_HPP
#define QORL_TESTS_ABI_ELF_SYMBOLS_HPP

#include <elf.h>

#include <cstdint>
#include <cstring>
#include <fstream>
#include <iterator>
#include <map>
#include <stdexcept>
#include <string>
#include <vector>

struct Symbol {
    std::uintptr_t address;  // relative to the place where the object is loaded
    std::uint64_t size;
    int type;  // STT_FUNC, STT_OBJECT
};

inline std::map<std::string, Symbol> defined_symbols(const std::string &path) {
    std::ifstream file(path, std::ios::binary);
    const std::vector<char> bytes{std::istreambuf_iterator<char>(file), {}};
    const auto read = [&]<class T>(std::uint64_t offset, T &value) {
        if (offset + sizeof(T) > bytes.size()) throw std::runtime_error("cut off: " + path);
        std::memcpy(&value, bytes.data() + offset, sizeof(T));
    };
    Elf64_Ehdr header;
    read(0, header);
    if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) != 0) throw std::runtime_error("no ELF file: " + path);

    const auto section = [&](std::uint64_t index) {
        Elf64_Shdr value;
        read(header.e_shoff + index * header.e_shentsize, value);
        return value;
    };
    std::map<std::string, Symbol> symbols;
    for (std::uint64_t s = 0; s < header.e_shnum; ++s) {
        const Elf64_Shdr table = section(s);
        if (table.sh_type != SHT_DYNSYM) continue;
        const Elf64_Shdr names = section(table.sh_link);
        for (std::uint64_t at = 0; at < table.sh_size; at += sizeof(Elf64_Sym)) {
            Elf64_Sym symbol;
            read(table.sh_offset + at, symbol);
            if (symbol.st_shndx == SHN_UNDEF || symbol.st_name == 0) continue;
            symbols[&bytes.at(names.sh_offset + symbol.st_name)] = {symbol.st_value, symbol.st_size,
                                                                    ELF64_ST_TYPE(symbol.st_info)};
        }
    }
    return symbols;
}

#endif
