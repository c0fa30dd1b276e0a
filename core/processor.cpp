// What the processor and the operating system offer.

#include <cpuid.h>

#include <atomic>

#include "qorl/core.h"

namespace {

// Feature numbers of the header as bits; one bit more tells that the processor has been asked.
constexpr uint32_t bit_of(QorlProcessorFeature feature) {
    return 1u << feature;
}
constexpr uint32_t asked = 1u << 31;

constexpr bool has(uint32_t word, int bit) {
    return (word >> bit & 1u) != 0;
}

// Bits 1 and 2 of extended control register 0: the system saves the 128-bit and 256-bit registers.
bool system_keeps_ymm() {
    uint32_t low = 0;
    uint32_t high = 0;
    __asm__("xgetbv" : "=a"(low), "=d"(high) : "c"(0));
    return (low & 6u) == 6u;
}

uint32_t ask_processor() {
    uint32_t found = asked;
    uint32_t a = 0;
    uint32_t b = 0;
    uint32_t c = 0;
    uint32_t d = 0;
    if (__get_cpuid(1, &a, &b, &c, &d) == 0) return found;
    const bool aes = has(c, 25);
    const bool fma = has(c, 12);
    const bool ymm = has(c, 27) && has(c, 28) && system_keeps_ymm();  // XGETBV may be used, AVX is there
    if (aes) found |= bit_of(QORL_PROCESSOR_AES);
    if (has(c, 30)) found |= bit_of(QORL_PROCESSOR_RDRAND);
    if (has(c, 1)) found |= bit_of(QORL_PROCESSOR_CLMUL);
    if (ymm && __get_cpuid_count(7, 0, &a, &b, &c, &d) != 0) {
        if (fma && has(b, 5)) found |= bit_of(QORL_PROCESSOR_AVX2_FMA);
        if (aes && has(c, 9)) found |= bit_of(QORL_PROCESSOR_VAES);
    }
    return found;
}

// CPUID can take microseconds in a virtual machine, so its answer is kept. Two threads that ask at once get the same.
std::atomic<uint32_t> features{0};

}  // namespace

int32_t qorl_serv_processor_has(int32_t feature) {
    if (feature < QORL_PROCESSOR_AVX2_FMA || feature > QORL_PROCESSOR_CLMUL) return 0;
    uint32_t found = features.load(std::memory_order_relaxed);
    if (found == 0) {
        found = ask_processor();
        features.store(found, std::memory_order_relaxed);
    }
    return static_cast<int32_t>(found >> feature & 1u);
}
