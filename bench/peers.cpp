#include "bench/peers.hpp"

#include <dlfcn.h>
#include <gnu/libc-version.h>
#include <link.h>

#include <filesystem>

namespace qorl::bench {
namespace {

// A library that is looked up by name when the program runs, so that the build needs nothing of it.
void *open_library(const char *name) {
    return dlopen(name, RTLD_NOW | RTLD_LOCAL);
}

void *libm() {
    static void *const handle = open_library("libm.so.6");
    return handle;
}

void *libmvec() {
    static void *const handle = open_library("libmvec.so.1");
    return handle;
}

void *sleef() {
    static void *const handle = open_library("libsleef.so.3");
    return handle;
}

void *symbol(void *library, const std::string &name) {
    return library == nullptr ? nullptr : dlsym(library, name.c_str());
}

// Loops around the scalar functions of the C library.
template <class T>
struct Scalar {
    static void unary(void *target, const Work &w, int repeats) {
        const auto call = reinterpret_cast<T (*)(T)>(target);
        const T *a = static_cast<const T *>(w.a);
        T *y = static_cast<T *>(w.y);
        for (; repeats > 0; --repeats)
            for (int i = 0; i < w.n; ++i) y[i] = call(a[i]);
    }
    static void binary(void *target, const Work &w, int repeats) {
        const auto call = reinterpret_cast<T (*)(T, T)>(target);
        const T *a = static_cast<const T *>(w.a), *b = static_cast<const T *>(w.b);
        T *y = static_cast<T *>(w.y);
        for (; repeats > 0; --repeats)
            for (int i = 0; i < w.n; ++i) y[i] = call(a[i], b[i]);
    }
    static void array_scalar(void *target, const Work &w, int repeats) {
        const auto call = reinterpret_cast<T (*)(T, T)>(target);
        const T *a = static_cast<const T *>(w.a);
        T *y = static_cast<T *>(w.y);
        for (; repeats > 0; --repeats)
            for (int i = 0; i < w.n; ++i) y[i] = call(a[i], static_cast<T>(w.scalar));
    }
    static void order(void *target, const Work &w, int repeats) {  // jn, yn
        const auto call = reinterpret_cast<T (*)(int, T)>(target);
        const T *a = static_cast<const T *>(w.a);
        T *y = static_cast<T *>(w.y);
        for (; repeats > 0; --repeats)
            for (int i = 0; i < w.n; ++i) y[i] = call(static_cast<int>(w.scalar), a[i]);
    }
    static void two_results(void *target, const Work &w, int repeats) {  // sincos
        const auto call = reinterpret_cast<void (*)(T, T *, T *)>(target);
        const T *a = static_cast<const T *>(w.a);
        T *y = static_cast<T *>(w.y), *z = static_cast<T *>(w.z);
        for (; repeats > 0; --repeats)
            for (int i = 0; i < w.n; ++i) call(a[i], y + i, z + i);
    }
    static void parts(void *target, const Work &w, int repeats) {  // modf
        const auto call = reinterpret_cast<T (*)(T, T *)>(target);
        const T *a = static_cast<const T *>(w.a);
        T *y = static_cast<T *>(w.y), *z = static_cast<T *>(w.z);
        for (; repeats > 0; --repeats)
            for (int i = 0; i < w.n; ++i) z[i] = call(a[i], y + i);
    }

    static Run of(Shape shape, std::string_view c_name) {
        switch (shape) {
            case Shape::unary:
                return unary;
            case Shape::binary:
                return binary;
            case Shape::array_scalar:
                return array_scalar;
            case Shape::unary_param:
                return order;
            case Shape::two_results:
                return c_name == "modf" ? parts : two_results;
            default:
                return nullptr;
        }
    }
};

}  // namespace

std::vector<Peer> find_peers(char type, Shape shape, const Subject &subject) {
    std::vector<Peer> peers;
    const auto add = [&peers](std::string name, Run run, void *target) {
        if (run != nullptr && target != nullptr) peers.push_back({std::move(name), run, target});
    };
    static char nothing;  // the target of loops that call no function through a pointer
    add("hardware", hardware_loop(type, subject.function), &nothing);
    if (subject.c_name.empty()) return peers;

    const bool single = type == 's';
    const std::string name(subject.c_name);
    const std::string c_symbol = single ? name + "f" : name;
    const bool two_results = shape == Shape::two_results;

    const std::string arguments = two_results ? "vvv" : shape == Shape::unary ? "v" : "vv";
    add("libmvec", two_results ? libmvec_two_results_run(type) : vector_run(type, shape),
        symbol(libmvec(), (single ? "_ZGVdN8" : "_ZGVdN4") + arguments + "_" + c_symbol));

    const Run sleef_run = two_results ? sleef_two_results_run(type, name == "modf") : vector_run(type, shape);
    const std::string sleef_symbol = "Sleef_" + name + (single ? "f8_" : "d4_");
    for (const char *bound : {"u05", "u10", "u15", "u35"})
        add(std::string("sleef_") + bound, sleef_run, symbol(sleef(), sleef_symbol + bound + "avx2"));
    add("sleef", sleef_run, symbol(sleef(), sleef_symbol + "avx2"));
    if (single) add("sleef_fast", sleef_run, symbol(sleef(), "Sleef_fast" + name + "f8_u3500avx2"));

#ifdef QORL_BENCH_HIGHWAY
    if (shape == Shape::unary) add("highway", highway_loop(type, subject.c_name), &nothing);
#endif
    add("libm", single ? Scalar<float>::of(shape, name) : Scalar<double>::of(shape, name), symbol(libm(), c_symbol));
    return peers;
}

std::vector<std::string> missing_peers() {
    std::vector<std::string> missing;
    if (libmvec() == nullptr) missing.push_back("libmvec (libmvec.so.1 of glibc)");
    if (sleef() == nullptr) missing.push_back("SLEEF (libsleef.so.3, Debian libsleef-dev)");
#ifndef QORL_BENCH_HIGHWAY
    missing.push_back("Highway (not there when this program was built, Debian libhwy-dev)");
#endif
    return missing;
}

std::vector<std::pair<std::string, std::string>> peer_versions() {
    std::vector<std::pair<std::string, std::string>> versions;
    versions.emplace_back("libm, libmvec", std::string("glibc ") + gnu_get_libc_version());
    link_map *map = nullptr;  // SLEEF tells its version in the name of its file alone
    if (sleef() != nullptr && dlinfo(sleef(), RTLD_DI_LINKMAP, &map) == 0)
        versions.emplace_back("sleef", std::filesystem::weakly_canonical(map->l_name).filename().string());
#ifdef QORL_BENCH_HIGHWAY
    versions.emplace_back("highway", highway_version());
#endif
    return versions;
}

}  // namespace qorl::bench
