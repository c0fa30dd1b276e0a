// The per-thread record of the vector math: mode word, last status, error callback; and the fields of the mode word.
#ifndef QORL_FRAME_STATUS_HPP
#define QORL_FRAME_STATUS_HPP

#include <cstdint>

#include "qorl/zet.h"

namespace qorl {

namespace mode {
inline constexpr std::uint32_t accuracy_mask = 0xF, error_mask = 0xFF00, reserved_mask = 0x30000,
                               denormals_mask = 0x3C0000, traps_mask = 0xF000000;
inline constexpr std::uint32_t error_ignore = 0x100, error_errno = 0x200, error_print = 0x400, error_except = 0x800,
                               error_callback = 0x1000, error_none = 0x2000;
inline constexpr std::uint32_t error_any_default =  // the actions for which the default handling is entered
    error_ignore | error_errno | error_print | error_except | error_none;
inline constexpr std::uint32_t error_default = error_errno | error_except | error_callback;
inline constexpr std::uint32_t initial = 0x2 | error_default;  // level HA
inline constexpr std::uint32_t flush_denormals = 0x280000, keep_denormals = 0x140000;
inline constexpr std::uint32_t trap_invalid = 0x1000000, trap_zero_divide = 0x2000000, trap_overflow = 0x4000000,
                               trap_underflow = 0x8000000;
}  // namespace mode

struct KernelStatus {
    std::uint32_t mode;  // 0 until the thread first needs it
    std::int32_t status;
    QorlErrorCallBack callback;
    std::uint64_t reserved;
    void *interfInputVector;
};

// The calling thread's record or null. A kernel call reads it on entry; in static thread-local storage that takes one
// load, where pthread_getspecific takes 9 clocks.
extern constinit thread_local KernelStatus *current_record [[gnu::tls_model("initial-exec")]];

// Creates the calling thread's record. Ends the process with message 773 if that fails, since no operation can go on
// without one.
KernelStatus &create_thread_record();

// The calling thread's record, created on first use.
inline KernelStatus &thread_record() {
    if (KernelStatus *const record = current_record) [[likely]]
        return *record;
    return create_thread_record();
}

// Sets the mode word of a fresh record from the environment and returns it.
std::uint32_t initialise_mode(KernelStatus &record);

// The mode word of a record and of the calling thread.
inline std::uint32_t mode_word(KernelStatus &record) {
    return record.mode != 0 ? record.mode : initialise_mode(record);
}
inline std::uint32_t mode_word() {
    return mode_word(thread_record());
}

// The value of QORL_ZET_MODE, or -1 where the variable is absent or malformed.
std::int64_t mode_from_environment();

}  // namespace qorl

#endif
