// BLAS and LAPACK under the names of the core library.
//
// The routines follow the Fortran convention: after the arguments comes the length of each character argument, by
// value. A caller that leaves the lengths out lets the routine write over a part of the stack that is not its own when
// it reuses its argument area for a tail call, so they are passed here.

#include <omp.h>

#include <cstddef>
#include <type_traits>
#include <utility>

#include "qorl/core.h"

namespace {

template <typename... Arguments>
void call(void (*routine)(), Arguments... arguments) {
    constexpr std::size_t characters = (std::size_t{std::is_same_v<Arguments, const char *>} + ...);
    [&]<std::size_t... Index>(std::index_sequence<Index...>) {
        reinterpret_cast<void (*)(Arguments..., decltype(Index)...)>(routine)(arguments..., (Index * 0 + 1)...);
    }
    (std::make_index_sequence<characters>{});
}

// Holds the calling thread to teams of one. OpenMP keeps the wish for a team size per thread, so no other thread sees
// this, and the BLAS library asks for it at each call.
class OneThread {
  public:
    OneThread() { omp_set_num_threads(1); }
    ~OneThread() { omp_set_num_threads(wish_); }
    OneThread(const OneThread &) = delete;
    OneThread &operator=(const OneThread &) = delete;

  private:
    int wish_ = omp_get_max_threads();
};

}  // namespace

#define QORL_PASS(exported, routine, parameters, arguments) \
    extern "C" void routine();                              \
    void exported parameters {                              \
        call(routine, QORL_UNWRAP arguments);               \
    }
#define QORL_PASS_BOTH(exported, unthreaded, routine, parameters, arguments) \
    QORL_PASS(exported, routine, parameters, arguments)                      \
    void unthreaded parameters {                                             \
        const OneThread alone;                                               \
        call(routine, QORL_UNWRAP arguments);                                \
    }
#define QORL_UNWRAP(...) __VA_ARGS__

#define QORL_REAL double
#define QORL_CORE(name) qorl_core_d##name
#define QORL_UNTHREADED(name) qorl_core_xd##name
#define QORL_ROUTINE(name) d##name##_
#define QORL_TRIANGULAR qorl_blas4zet_dtrmm
#define QORL_TRIANGULAR_UNTHREADED qorl_blas_xdtrmm_4zet
#include "core/blas.inc"
#undef QORL_REAL
#undef QORL_CORE
#undef QORL_UNTHREADED
#undef QORL_ROUTINE
#undef QORL_TRIANGULAR
#undef QORL_TRIANGULAR_UNTHREADED

#define QORL_REAL float
#define QORL_CORE(name) qorl_core_s##name
#define QORL_UNTHREADED(name) qorl_core_xs##name
#define QORL_ROUTINE(name) s##name##_
#define QORL_TRIANGULAR qorl_blas4zet_strmm
#define QORL_TRIANGULAR_UNTHREADED qorl_blas_xstrmm_4zet
#include "core/blas.inc"
