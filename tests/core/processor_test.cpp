#include <gtest/gtest.h>

#include <fstream>
#include <set>
#include <sstream>
#include <string>

#include "qorl/core.h"

namespace {

// The kernel lists a feature of the wide registers only when it saves them, so its list is the whole truth.
std::set<std::string> flags_of_the_system() {
    std::ifstream file("/proc/cpuinfo");
    std::set<std::string> flags;
    for (std::string line; flags.empty() && std::getline(file, line);) {
        if (!line.starts_with("flags")) continue;
        std::istringstream words(line.substr(line.find(':') + 1));
        for (std::string word; words >> word;) flags.insert(word);
    }
    return flags;
}

TEST(Processor, HasWhatTheSystemLists) {
    const std::set<std::string> flags = flags_of_the_system();
    if (flags.empty()) GTEST_SKIP() << "no processor flags in /proc/cpuinfo";
    EXPECT_EQ(qorl_serv_processor_has(QORL_PROCESSOR_AVX2_FMA), flags.contains("avx2") && flags.contains("fma"));
    EXPECT_EQ(qorl_serv_processor_has(QORL_PROCESSOR_AES), flags.contains("aes"));
    EXPECT_EQ(qorl_serv_processor_has(QORL_PROCESSOR_VAES), flags.contains("vaes"));
    EXPECT_EQ(qorl_serv_processor_has(QORL_PROCESSOR_RDRAND), flags.contains("rdrand"));
    EXPECT_EQ(qorl_serv_processor_has(QORL_PROCESSOR_CLMUL), flags.contains("pclmulqdq"));
}

TEST(Processor, HasNoUnknownFeature) {
    for (int32_t feature : {-1, QORL_PROCESSOR_CLMUL + 1, 31, 32}) EXPECT_EQ(qorl_serv_processor_has(feature), 0);
}

}  // namespace
