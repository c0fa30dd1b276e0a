// Random123, a library of headers, used block by block as its users do.
#include <Random123/ars.h>
#include <Random123/philox.h>

#include <cstring>
#include <Random123/uniform.hpp>

#include "bench/stream_peers.hpp"
#include "qorl/core.h"

namespace qorl::bench {
namespace {

template <class Cipher>
struct Sequence {
    typename Cipher::ctr_type counter = {};
    typename Cipher::ukey_type key = {};
};

// Whole blocks; n is a multiple of four. Counter and key are locals, which the compiler keeps in registers.
template <class Cipher, class T>
void fill(Sequence<Cipher> &sequence, T *r, int n) {
    Cipher cipher;
    auto [counter, key] = sequence;
    for (; n > 0; n -= 4, r += 4) {
        const auto block = cipher(counter, key);
        counter.incr();
        if constexpr (sizeof(T) == sizeof(std::uint32_t))
            std::memcpy(r, &block, sizeof block);
        else
            for (std::size_t word = 0; word < 4; ++word) r[word] = r123::u01<double>(block[word]);
    }
    sequence.counter = counter;
}

template <class Cipher>
void add(std::vector<StreamPeer> &peers, const char *name, const char *like) {
    static Sequence<Cipher> sequence;
    peers.push_back(
        {name, "i", like, run_fill<std::uint32_t, fill<Cipher, std::uint32_t>, Sequence<Cipher>>, &sequence});
    peers.push_back({name, "d", like, run_fill<double, fill<Cipher, double>, Sequence<Cipher>>, &sequence});
}

}  // namespace

std::vector<StreamPeer> random123_peers() {
    std::vector<StreamPeer> peers;
    add<r123::Philox4x32_R<10>>(peers, "random123_philox4x32x10", "PHILOX4X32X10");
    if (qorl_serv_processor_has(QORL_PROCESSOR_AES) != 0) add<r123::ARS4x32_R<5>>(peers, "random123_ars4x32x5", "ARS5");
    return peers;
}

}  // namespace qorl::bench
