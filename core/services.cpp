// Memory, locks, environment, checked copy, end of the process.

#include <immintrin.h>
#include <sched.h>

#include <atomic>
#include <bit>
#include <cerrno>
#include <cstdint>
#include <cstdlib>
#include <cstring>
#include <limits>

#include "qorl/core.h"

void *qorl_serv_allocate(size_t size, size_t alignment) {
    if (!std::has_single_bit(alignment)) return nullptr;
    // posix_memalign asks for a pointer's alignment at least, and reports by its result, but malloc below it sets
    // errno. The C library's own refuses sizes that overflow; one put in its place by the host need not.
    const size_t least = alignment < sizeof(void *) ? sizeof(void *) : alignment;
    if (least > size_t{PTRDIFF_MAX} || size > size_t{PTRDIFF_MAX} - least) return nullptr;
    const int saved_errno = errno;
    void *block = nullptr;
    // A standard library may give null for no bytes, which here would read as a failure.
    if (posix_memalign(&block, least, size == 0 ? 1 : size) != 0) block = nullptr;
    errno = saved_errno;
    return block;
}

void qorl_serv_deallocate(void *block) {
    std::free(block);
}

void qorl_serv_lock(int32_t *lock) {
    // Past this many pauses the holder has probably lost its processor, so it is given ours.
    constexpr int pauses_before_yield = 64;
    const std::atomic_ref<int32_t> word(*lock);
    for (int pauses = 0; word.exchange(1, std::memory_order_acquire) != 0;) {
        // Waiting reads only: the cache line stays shared until the lock is seen free.
        while (word.load(std::memory_order_relaxed) != 0) {
            if (pauses < pauses_before_yield) {
                ++pauses;
                _mm_pause();
            } else {
                sched_yield();
            }
        }
    }
}

void qorl_serv_unlock(int32_t *lock) {
    std::atomic_ref<int32_t>(*lock).store(0, std::memory_order_release);
}

int32_t qorl_serv_getenv(const char *name, char *buffer, int32_t size) {
    if (name == nullptr || buffer == nullptr || size < 1) return 0;
    const char *value = std::getenv(name);
    const size_t length = value == nullptr ? 0 : std::strlen(value);
    const size_t room = static_cast<size_t>(size) - 1;
    const size_t copied = length < room ? length : room;
    if (copied != 0) std::memcpy(buffer, value, copied);
    buffer[copied] = '\0';
    const int32_t result = static_cast<int32_t>(length < INT32_MAX ? length : INT32_MAX);
    return copied == length ? result : -result;
}

void qorl_serv_exit(int32_t code) {
    std::exit(code);
}

int32_t qorl_serv_memcpy_s(void *to, size_t to_size, const void *from, size_t count) {
    if (to == nullptr || from == nullptr) return EINVAL;
    if (count > to_size) return ERANGE;
    std::memmove(to, from, count);
    return 0;
}
