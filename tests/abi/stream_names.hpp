// The exported names of the random streams. The functions of the generators follow from streams/generators.inc.
#ifndef QORL_TESTS_ABI_STREAM_NAMES_HPP
#define QORL_TESTS_ABI_STREAM_NAMES_HPP

#include <string>
#include <string_view>
#include <vector>

namespace qorl {

inline constexpr std::string_view stream_tables[] = {"__RegBrngs", "__RegBrngsNew"};

inline constexpr std::string_view stream_functions[] = {
    // registry
    "__huxGetBrngBaseOffset",
    "__huxIsBrngValid",
    "__huxGetBrngProperties",
    "__huxGetNumRegBrngs",
    "__huxRegisterBrng",
    // streams
    "__huxNewStreamEx",
    "__huxAllocateStream",
    "__huxiNewAbstractStream",
    "__huxdNewAbstractStream",
    "__huxsNewAbstractStream",
    "__huxLeapfrogStream",
    "__huxSkipAheadStream",
    "__huxSkipAheadStreamEx",
    "__huxDeleteStream",
    "__huxCopyStream",
    "__huxCopyStreamState",
    "__huxGetStreamStateBrng",
    "__huxGetStreamSize",
    // saving
    "__huxSaveStreamF",
    "__huxLoadStreamF",
    "__huxSaveStreamM",
    "__huxLoadStreamM",
    // chunks and shared data
    "__huxAddChunk",
    "__huxSearchChunk",
    "__huxGetNumChunks",
    "__huxDeleteChunksById",
    "__huxDeleteChunks",
    "__huxCopyChunks",
    "__huxFindGlobRODataTableEntry",
    "__huxCreateGlobRODataTableEntry",
    "__huxRegisterGlobRODataReference",
    "__huxUnregisterGlobRODataReference",
    "__huxGenerateNewGlobalRODataTableEntryId",
    // arithmetic of jumps
    "__huxiPowMod",
    "__huxiPowMod2P31M1",
    "__huxiPowMod2P59",
    "__huxiVect3PowMod",
    "__huxiVect3PowArrayMod",
    "__huxiVect3PowArrayMod_M1",
    "__huxiVect3PowArrayMod_M2",
    "__huxPolyRem",
    "__hux_SkipAheadHorner",
    "__hux_SkipAheadSWin",
    // processor
    "__huxCPUisAES",
    "__huxCPUisVAES",
};

inline std::vector<std::string> generator_functions() {
    std::vector<std::string> names;
    const auto add = [&names](const std::string &name) {
        names.push_back("__huxBRng" + name + "InitStream");
        for (const char *type : {"s", "d", "i"}) names.push_back(std::string("__hux") + type + "BRng" + name);
    };
#define QORL_GENERATOR(row, name, members, state, seed, zero, word, bits, landed) \
    if (landed != 0) add(#name);
#include "streams/generators.inc"
    return names;
}

}  // namespace qorl

#endif
