// The two thread tables, and the threading functions found by name.

#include <omp.h>

#include <algorithm>
#include <cstring>

#include "qorl/core.h"

namespace {

int64_t omp_limit() {
    // Inside a body another team would have one thread only, whatever was asked for.
    if (omp_get_active_level() >= omp_get_max_active_levels()) return 1;
    return std::max(1, std::min(omp_get_max_threads(), omp_get_thread_limit()));
}

int64_t serial_limit() {
    return 1;
}

// The one place that starts a team. A share keeps its number even when the system gives fewer threads than there are
// shares: a thread then runs several, one after the other.
template <typename Share>
void run_shares(int64_t shares, Share share) {
    if (shares <= 1) {
        share(int64_t{0});
        return;
    }
    const int team = static_cast<int>(shares);
#pragma omp parallel for schedule(static, 1) num_threads(team)
    for (int64_t s = 0; s < shares; ++s) share(s);
}

template <int64_t (*Limit)()>
void parallel_for(int64_t threads, int64_t count, void *context, QorlLoopBody body) {
    if (count < 1) return;
    const int64_t shares = std::clamp<int64_t>(threads, 1, std::min(count, Limit()));
    const int64_t each = count / shares;
    const int64_t longer = count % shares;  // the first shares take one index more
    run_shares(shares, [=](int64_t s) {
        const int64_t first = s * each + std::min(s, longer);
        const int64_t last = first + each + (s < longer ? 1 : 0);
        for (int64_t i = first; i < last; ++i) body(i, s, shares, context);
    });
}

template <int64_t (*Limit)()>
void parallel_region(int64_t threads, int64_t /*unused*/, void *context, QorlLoopBody body) {
    const int64_t shares = std::clamp<int64_t>(threads, 1, Limit());
    run_shares(shares, [=](int64_t s) { body(s, s, shares, context); });
}

template <int64_t (*Limit)()>
constexpr QorlThreadTable table = {parallel_for<Limit>, nullptr, parallel_region<Limit>, nullptr, Limit};

}  // namespace

const QorlThreadTable *qorl_core_thread_table(void) {
    return &table<omp_limit>;
}

const QorlThreadTable *qorl_core_serial_table(void) {
    return &table<serial_limit>;
}

void *qorl_serv_load_thread_fun(const char *name) {
    const QorlThreadTable &threads = table<omp_limit>;
    if (name == nullptr) return nullptr;
    if (std::strcmp(name, "qorl_hux_serv_threader_for") == 0) return reinterpret_cast<void *>(threads.parallel_for);
    if (std::strcmp(name, "qorl_hux_serv_threader_get_num_threads_limit") == 0) {
        return reinterpret_cast<void *>(threads.thread_limit);
    }
    return nullptr;
}
