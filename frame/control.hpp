// The floating-point control state: what a kernel sets on entry and gives back on exit, and how an exception is raised.
#ifndef QORL_FRAME_CONTROL_HPP
#define QORL_FRAME_CONTROL_HPP

#include <cstdint>

#include "frame/status.hpp"

namespace qorl {

// Flags of the x87 status word, mask bits of the control word.
inline constexpr std::uint16_t x87_invalid = 0x01, x87_zero_divide = 0x04, x87_overflow = 0x08, x87_underflow = 0x10,
                               x87_all = 0x3F;

// For the lifetime of a kernel call: all exceptions masked in both units, rounding to nearest, denormals kept or
// flushed as the mode word says. The caller's state comes back at the end, with the sticky flags that the kernel set.
//
// The arithmetic itself stands in a function that is not inlined beside this, so that no compiler moves any of it
// across a change of MXCSR. Reading the registers costs some 20 clocks, loading them 20 more, so they are loaded only
// when they differ.
class ControlScope {
  public:
    [[gnu::always_inline]] ControlScope() {
        asm volatile("fnstcw %0" : "=m"(x87_control_));
        if ((x87_control_ & x87_all) != x87_all) [[unlikely]] {
            const std::uint16_t masked = x87_control_ | x87_all;
            asm volatile("fnclex\n\tfldcw %0" ::"m"(masked));
        }
        mode_ = mode_word();
        const std::uint32_t target = (mode_ & mode::denormals_mask) == mode::flush_denormals ? flushing : keeping;
        asm volatile("vstmxcsr %0" : "=m"(mxcsr_));
        changed_ = ((mxcsr_ ^ target) & control_bits) != 0;
        if (changed_) [[unlikely]] {
            const std::uint32_t wanted = (mxcsr_ & ~control_bits) | target;
            asm volatile("vldmxcsr %0" ::"m"(wanted) : "memory");
        }
    }

    [[gnu::always_inline]] ~ControlScope() {
        if ((x87_control_ & x87_all) != x87_all) [[unlikely]] {
            asm volatile("fldcw %0" ::"m"(x87_control_));
        }
        if (changed_) [[unlikely]] {
            std::uint32_t now;
            asm volatile("vstmxcsr %0" : "=m"(now)::"memory");
            const std::uint32_t restored = mxcsr_ | (now & sticky_flags);
            asm volatile("vldmxcsr %0" ::"m"(restored));
        }
    }

    ControlScope(const ControlScope &) = delete;
    ControlScope &operator=(const ControlScope &) = delete;

    std::uint32_t error_mode() const { return mode_ & mode::error_mask; }

  private:
    static constexpr std::uint32_t sticky_flags = 0x3F, control_bits = 0xFFC0;  // of MXCSR
    static constexpr std::uint32_t keeping = 0x1F80, flushing = 0x9FC0;

    std::uint32_t mode_, mxcsr_;
    std::uint16_t x87_control_;
    bool changed_;
};

// Sets `flag` in the x87 status word with the exceptions of `unmasked` enabled: a hardware exception if the flag is one
// of them. Afterwards all exceptions are masked again and the flag stays behind as a sticky one.
inline void raise_x87_exception(std::uint16_t flag, std::uint16_t unmasked) {
    struct Environment {  // as FNSTENV stores it
        std::uint16_t control, unused1, status, unused2;
        std::uint32_t rest[5];
    } saved, trapping;
    static_assert(sizeof(Environment) == 28);
    asm volatile("fnstenv %0" : "=m"(saved));
    trapping = saved;
    trapping.control = static_cast<std::uint16_t>(trapping.control & ~unmasked);
    trapping.status = static_cast<std::uint16_t>((trapping.status & ~x87_all) | flag);
    asm volatile("fldenv %0\n\tfwait" ::"m"(trapping));
    saved.control |= x87_all;
    saved.status |= flag;
    asm volatile("fldenv %0" ::"m"(saved));
}

}  // namespace qorl

#endif
