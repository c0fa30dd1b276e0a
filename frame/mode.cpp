// The mode word and the record's accessors.
#include <initializer_list>

#include "frame/status.hpp"

namespace qorl {
namespace {

template <class T>
T exchange(T &place, T value) {
    const T old = place;
    place = value;
    return old;
}

}  // namespace

[[gnu::cold]] std::uint32_t initialise_mode(KernelStatus &record) {
    const std::int64_t wanted = mode_from_environment();
    std::uint32_t word = wanted < 0 ? mode::initial : static_cast<std::uint32_t>(wanted);
    if ((word & mode::accuracy_mask) == 0) word |= mode::initial & mode::accuracy_mask;
    if ((word & mode::error_mask) == 0) word |= mode::error_default;
    return record.mode = word;
}

}  // namespace qorl

using namespace qorl;

extern "C" {

// Each of five fields is merged on its own: a field that is zero in `word` stays as it is, and so no field can be
// cleared here. Bits outside the five fields come from the environment only.
uint32_t qorl_mode_set(uint32_t word) {
    KernelStatus &record = thread_record();
    const std::uint32_t old = mode_word(record);
    std::uint32_t merged = old;
    for (const std::uint32_t field :
         {mode::accuracy_mask, mode::error_mask, mode::denormals_mask, mode::traps_mask, mode::reserved_mask}) {
        if ((word & field) != 0) merged = (merged & ~field) | (word & field);
    }
    record.mode = merged;
    return old;
}

#define QORL_EXPORT __attribute__((visibility("default")))
#define QORL_ALIAS(name) __attribute__((visibility("default"), alias(name)))

QORL_EXPORT uint32_t qorl_zet_kernel_SetMode(uint32_t word) {
    return qorl_mode_set(word);
}

QORL_EXPORT uint32_t qorl_zet_kernel_GetMode(void) {
    return mode_word();
}

QORL_EXPORT int32_t qorl_zet_kernel_SetErrStatus(int32_t status) {
    return exchange(thread_record().status, status);
}

QORL_EXPORT int32_t qorl_zet_kernel_GetErrStatus(void) {
    return thread_record().status;
}

QORL_EXPORT int32_t qorl_zet_kernel_ClearErrStatus(void) {
    return qorl_zet_kernel_SetErrStatus(0);
}

QORL_EXPORT QorlErrorCallBack qorl_zet_kernel_SetErrorCallBack(QorlErrorCallBack callback) {
    KernelStatus &record = thread_record();
    std::uint32_t word = mode_word(record) & ~mode::error_callback;
    if (callback != nullptr) word |= mode::error_callback;
    const QorlErrorCallBack old = exchange(record.callback, callback);
    qorl_mode_set(word);
    return old;
}

QORL_EXPORT QorlErrorCallBack qorl_zet_kernel_GetErrorCallBack(void) {
    return thread_record().callback;
}

QORL_EXPORT QorlErrorCallBack qorl_zet_kernel_ClearErrorCallBack(void) {
    return qorl_zet_kernel_SetErrorCallBack(nullptr);
}

QORL_EXPORT void *qorl_zet_kernel_SetInterfInputVectorPointer(void *vector) {
    return thread_record().interfInputVector = vector;
}

QORL_EXPORT int32_t qorl_zet_kernel_GetTTableIndex(void) {
    return static_cast<int32_t>(mode_word() & mode::accuracy_mask) - 1;
}

QORL_EXPORT int32_t qorl_zet_kernel_GetTTableIndexM(int32_t, uint32_t word) {
    return static_cast<int32_t>(word & mode::accuracy_mask) - 1;
}

QORL_EXPORT int32_t dll_cpu_version(void) {
    return 7;
}

QORL_ALIAS("qorl_zet_kernel_GetMode") uint32_t _zetGetMode(void);
QORL_ALIAS("qorl_zet_kernel_SetErrStatus") int32_t _zetSetErrStatus(int32_t status);
QORL_ALIAS("qorl_zet_kernel_GetErrStatus") int32_t _zetGetErrStatus(void);
QORL_ALIAS("qorl_zet_kernel_ClearErrStatus") int32_t _zetClearErrStatus(void);
QORL_ALIAS("qorl_zet_kernel_SetErrorCallBack")
QorlErrorCallBack _zetSetErrorCallBack(QorlErrorCallBack callback);
QORL_ALIAS("qorl_zet_kernel_GetErrorCallBack") QorlErrorCallBack _zetGetErrorCallBack(void);
QORL_ALIAS("qorl_zet_kernel_ClearErrorCallBack") QorlErrorCallBack _zetClearErrorCallBack(void);
QORL_ALIAS("qorl_zet_kernel_SetInterfInputVectorPointer")
void *_zetSetInterfInputVectorPointer(void *vector);

}  // extern "C"
