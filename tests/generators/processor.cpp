// An answer about the processor in place of the core library's, which can deny the AES instructions.
#include <dlfcn.h>

#include "generator.hpp"
#include "qorl/core.h"

namespace {

bool aes_denied = false;

}  // namespace

namespace qorl::test {

NoAes::NoAes() {
    aes_denied = true;
}

NoAes::~NoAes() {
    aes_denied = false;
}

}  // namespace qorl::test

int32_t qorl_serv_processor_has(int32_t feature) {
    static auto *const real =
        reinterpret_cast<decltype(&qorl_serv_processor_has)>(dlsym(RTLD_NEXT, "qorl_serv_processor_has"));
    return aes_denied && (feature == QORL_PROCESSOR_AES || feature == QORL_PROCESSOR_VAES) ? 0 : real(feature);
}
