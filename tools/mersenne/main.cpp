// mt2203 FILE: searches the parameters of the MT2203 family and appends them to FILE, one row a line; it goes on where
// a former run stopped. mt2203 --verify FILE tests every row of a complete file by other means.
//
// Row k takes the number 1375 + k in the low half of its matrix word, so all words, and with them the characteristic
// polynomials, are distinct. Its upper half is the first of a fixed sequence that makes the polynomial irreducible
// (2^2203 - 1 is a prime, so it is then primitive, and the period is 2^2203 - 1); the tempering words follow from it.
// The first and the last row are given; the search must reproduce their tempering words before it goes on.
#include <fmt/core.h>
#include <NTL/GF2XFactoring.h>

#include <unistd.h>

#include <array>
#include <atomic>
#include <cerrno>
#include <CLI/CLI.hpp>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <optional>
#include <stdexcept>
#include <string>
#include <thread>
#include <vector>

#include "qorl/core.h"
#include "tools/mersenne/characteristic.hpp"
#include "tools/mersenne/tempering.hpp"

namespace {

using namespace qorl::mersenne;

struct Row {
    std::uint32_t matrix;
    Tempering tempering;
    bool operator==(const Row &) const = default;
};
constexpr int rows = 6024;
constexpr Row first{0xAF81055F, {0xDD7EEF80, 0xEFD78000}}, last{0xE8761D4B, {0x72967680, 0xEFEB0000}};

constexpr std::uint32_t number_of(int row) {
    return (row == rows - 1 ? last.matrix : first.matrix + static_cast<std::uint32_t>(row)) & 0xFFFF;
}

std::string line_of(const Row &row) {
    return fmt::format("{{0x{:08X}, 0x{:08X}, 0x{:08X}}},\n", row.matrix, row.tempering.b, row.tempering.c);
}

// The rows of a file. A last line without its end is one that a former run did not finish, and does not count.
std::vector<Row> read_rows(const std::string &file, long &end) {
    std::vector<Row> list;
    end = 0;
    std::ifstream in(file);
    for (std::string line; std::getline(in, line) && !in.eof();) {
        Row row;
        int length = 0;
        if (std::sscanf(line.c_str(), "{0x%8X, 0x%8X, 0x%8X},%n", &row.matrix, &row.tempering.b, &row.tempering.c,
                        &length) != 3 ||
            length != static_cast<int>(line.size()))
            throw std::runtime_error(fmt::format("{}:{}: expected {{0x........, 0x........, 0x........}}, found \"{}\"",
                                                 file, list.size() + 1, line));
        if ((row.matrix & 0xFFFF) != number_of(static_cast<int>(list.size())))
            throw std::runtime_error(fmt::format("{}:{}: the matrix word 0x{:08X} does not have the row's number {}",
                                                 file, list.size() + 1, row.matrix,
                                                 number_of(static_cast<int>(list.size()))));
        list.push_back(row);
        end += length + 1;
    }
    return list;
}

// G. Steele, D. Lea, C. Flood, Fast splittable pseudorandom number generators, OOPSLA 2014.
class SplitMix {
  public:
    explicit SplitMix(std::uint64_t seed) : state_(seed) {}
    std::uint64_t operator()() {
        std::uint64_t z = state_ += 0x9E3779B97F4A7C15;
        z = (z ^ z >> 30) * 0xBF58476D1CE4E5B9;
        z = (z ^ z >> 27) * 0x94D049BB133111EB;
        return z ^ z >> 31;
    }

  private:
    std::uint64_t state_;
};

Row search(int row, TrialDivision &trial) {
    if (row == 0 || row == rows - 1) {
        const Row given = row == 0 ? first : last;
        if (!is_irreducible(characteristic(given.matrix)) || find_tempering(given.matrix) != given.tempering)
            throw std::logic_error("the search does not reproduce a given row");
        return given;
    }
    const std::uint32_t fixed = 0x80000000u | number_of(row);
    trial.fix(fixed);
    SplitMix random(fixed);
    for (;;) {
        const std::uint32_t candidate = (static_cast<std::uint32_t>(random()) & 0x7FFF0000u) | fixed;
        if (!trial.has_small_factor(candidate) && is_irreducible(characteristic(candidate)))
            return {candidate, find_tempering(candidate)};
    }
}

void extend(const std::string &file, int threads) {
    if (!qorl_serv_processor_has(QORL_PROCESSOR_CLMUL))
        throw std::runtime_error("the search needs a processor with carry-less multiplication (PCLMULQDQ)");
    long end;
    int done = static_cast<int>(read_rows(file, end).size());
    std::FILE *const out = std::fopen(file.c_str(), "a");
    if (out == nullptr || ::truncate(file.c_str(), end) != 0)
        throw std::runtime_error(fmt::format("{}: {}", file, std::strerror(errno)));
    constexpr int block = 32;
    while (done < rows) {
        const int size = std::min(block, rows - done);
        std::array<Row, block> found;
        std::atomic<int> next = 0;
        {
            std::vector<std::jthread> workers;
            for (int t = 0; t < threads; ++t) {
                workers.emplace_back([&] {
                    TrialDivision trial;
                    for (int i; (i = next++) < size;) found[static_cast<std::size_t>(i)] = search(done + i, trial);
                });
            }
        }
        for (int i = 0; i < size; ++i) std::fputs(line_of(found[static_cast<std::size_t>(i)]).c_str(), out);
        if (std::fflush(out) != 0) throw std::runtime_error(fmt::format("{}: {}", file, std::strerror(errno)));
        done += size;
        fmt::print(stderr, "\r{} of {} rows", done, rows);
    }
    fmt::print(stderr, "\n");
    std::fclose(out);
}

// Irreducibility by NTL, the tempering words by a search of their own.
bool verify(const std::string &file, int threads) {
    long end;
    const std::vector<Row> list = read_rows(file, end);
    if (list.size() != rows) throw std::runtime_error(fmt::format("{}: {} rows of {}", file, list.size(), rows));
    std::atomic<int> next = 0, wrong = 0;
    {
        std::vector<std::jthread> workers;
        for (int t = 0; t < threads; ++t) {
            workers.emplace_back([&] {
                for (int i; (i = next++) < rows;) {
                    const Row &row = list[static_cast<std::size_t>(i)];
                    const Polynomial p = characteristic(row.matrix);
                    NTL::GF2X f;
                    for (int k = 0; k <= degree; ++k)
                        if (p[static_cast<std::size_t>(k)]) NTL::SetCoeff(f, k);
                    const bool irreducible = NTL::deg(f) == degree && NTL::IterIrredTest(f);
                    const bool tempered = find_tempering(row.matrix) == row.tempering;
                    if (irreducible && tempered && (row.matrix >> 31) == 1) continue;
                    fmt::print(stderr, "{}:{}: {}\n", file, i + 1,
                               irreducible ? "other tempering words" : "the polynomial is not irreducible");
                    ++wrong;
                }
            });
        }
    }
    const bool ends = list.front() == first && list.back() == last;
    fmt::print(
        "{} rows: matrix words distinct, {} polynomials irreducible with the tempering words of the search; the "
        "given rows {}\n",
        rows, rows - wrong, ends ? "stand" : "DO NOT STAND");
    return wrong == 0 && ends;
}

}  // namespace

int main(int argc, char **argv) {
    CLI::App app("Searches or verifies the parameters of the MT2203 family.");
    std::string file;
    int threads = static_cast<int>(std::thread::hardware_concurrency());
    bool only_verify = false;
    app.add_option("FILE", file, "the table of parameters, generators/tables/mt2203_params.inc")->required();
    app.add_option("--threads", threads, "threads to search with")->check(CLI::Range(1, 1024));
    app.add_flag("--verify", only_verify, "test all rows of a complete table");
    CLI11_PARSE(app, argc, argv);
    try {
        if (only_verify) return verify(file, threads) ? 0 : 1;
        extend(file, threads);
        return 0;
    } catch (const std::exception &error) {
        fmt::print(stderr, "mt2203: {}\n", error.what());
        return 2;
    }
}
