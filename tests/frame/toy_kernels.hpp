// Small kernels of the five argument shapes, two registers a block, with results that are told by hand.
#ifndef QORL_TESTS_FRAME_TOY_KERNELS_HPP
#define QORL_TESTS_FRAME_TOY_KERNELS_HPP

#include "frame/entries.hpp"

namespace qorl::test {

struct Toy {
    const char *name;  // as reported behind "v" and the type
    Shape shape;
    double scalar[4];
    // Inputs and results of a lane that is not special and of one that raises. Where there is one, it stands twice.
    double regular[2], regular_out[2];
    double special[2], special_out[2];
    int status;
    void *kernels[2][2];  // by form and type

    template <class T>
    void *kernel(Form form) const {
        return kernels[static_cast<int>(form)][sizeof(T) / sizeof(float) - 1];
    }
};

extern const Toy toys[5];
inline constexpr int toy_packs = 2;
inline constexpr int toy_binary = 1, toy_array_scalar = 2;  // their places

}  // namespace qorl::test

#endif
