// A thread of its own for a test: its record is fresh, whatever tests before did to theirs.
#ifndef QORL_TESTS_FRAME_FRESH_THREAD_HPP
#define QORL_TESTS_FRAME_FRESH_THREAD_HPP

#include <optional>
#include <thread>
#include <type_traits>

namespace qorl::test {

// Calls f in a new thread and returns what it returns.
template <class F>
auto in_fresh_thread(F f) {
    if constexpr (std::is_void_v<decltype(f())>) {
        std::thread(f).join();
    } else {
        std::optional<decltype(f())> result;
        std::thread([&] { result = f(); }).join();
        return *result;
    }
}

}  // namespace qorl::test

#endif
