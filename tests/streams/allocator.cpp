#include "allocator.hpp"

#include <algorithm>
#include <atomic>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include "qorl/core.h"

namespace {

std::atomic<long> live{0}, until_failure{0};
std::atomic<bool> failed{false};

// Before each block stands its size, in room of one alignment; behind it a guard.
constexpr std::size_t room = 128;
constexpr unsigned char guard[] = {0xA5, 0x5A, 0xC3, 0x3C, 0xA5, 0x5A, 0xC3, 0x3C};

}  // namespace

namespace qorl::test {

long live_blocks() {
    return live;
}

void fail_allocation(long n) {
    failed = false;
    until_failure = n;
}

bool allocation_failed() {
    return failed;
}

}  // namespace qorl::test

void *qorl_serv_allocate(size_t size, size_t alignment) {
    if (alignment != room || size > size_t{PTRDIFF_MAX} - 3 * room) return nullptr;
    if (until_failure > 0 && --until_failure == 0) {
        failed = true;
        return nullptr;
    }
    const std::size_t whole = (room + size + sizeof guard + room - 1) / room * room;
    auto *const block = static_cast<unsigned char *>(std::aligned_alloc(room, whole));
    if (block == nullptr) return nullptr;
    std::memcpy(block, &size, sizeof size);
    std::memset(block + room, 0xEE, std::min(size, std::size_t{4096}));  // nothing may rely on zeros
    std::memcpy(block + room + size, guard, sizeof guard);
    ++live;
    return block + room;
}

void qorl_serv_deallocate(void *block) {
    if (block == nullptr) return;
    auto *const start = static_cast<unsigned char *>(block) - room;
    std::size_t size;
    std::memcpy(&size, start, sizeof size);
    if (std::memcmp(start + room + size, guard, sizeof guard) != 0) {
        std::fprintf(stderr, "a block of %zu bytes was written past its end\n", size);
        std::abort();
    }
    --live;
    std::free(start);
}
