// The library exports what its header declares, and nothing else.
#include <gtest/gtest.h>

#include <cstdio>
#include <fstream>
#include <iterator>
#include <memory>
#include <set>
#include <sstream>
#include <string>

namespace {

// The name is the word before the first parenthesis that follows the mark of an exported declaration.
std::set<std::string> declared() {
    std::ifstream file(QORL_CORE_HEADER);
    const std::string text((std::istreambuf_iterator<char>(file)), std::istreambuf_iterator<char>());
    const std::string mark = "\nQORL_CORE_API ";
    std::set<std::string> names;
    for (size_t place = text.find(mark); place != std::string::npos; place = text.find(mark, place + 1)) {
        const size_t end = text.find('(', place);
        const size_t before = text.find_last_of(" *", end);
        names.insert(text.substr(before + 1, end - before - 1));
    }
    return names;
}

std::set<std::string> exported() {
    const std::unique_ptr<FILE, int (*)(FILE *)> pipe(popen(QORL_NM " -D --defined-only " QORL_CORE_LIBRARY, "r"),
                                                      pclose);
    std::set<std::string> names;
    char line[512];
    while (pipe && std::fgets(line, sizeof line, pipe.get()) != nullptr) {
        std::istringstream words(line);
        std::string address, type, name;
        if (words >> address >> type >> name) names.insert(name);
    }
    return names;
}

TEST(CoreExports, AreTheDeclarationsOfTheHeader) {
    const std::set<std::string> names = declared();
    EXPECT_TRUE(names.contains("qorl_serv_allocate"));
    EXPECT_TRUE(names.contains("qorl_blas4zet_sptrmm"));
    EXPECT_EQ(exported(), names);
}

}  // namespace
