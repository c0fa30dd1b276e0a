// Per-thread records: created on first use, freed at thread end by the key's destructor, all freed at unload.
//
// A thread reaches its record through a thread-local pointer; a pthread key with a destructor tells when the thread
// ends. Every record is also a member of a list, so that the unload of the library can free those of threads that still
// run; at process exit nothing is freed, since other threads may be inside kernels.
#include <pthread.h>

#include <cstddef>
#include <new>

#include "frame/status.hpp"
#include "qorl/core.h"

extern "C" {
int __cxa_atexit(void (*function)(void *), void *argument, void *owner);
void __cxa_finalize(void *owner);
}

namespace qorl {
namespace {

struct Record {
    KernelStatus status;
    Record *previous, *next;
};

constexpr std::int32_t error_stream = 1, out_of_storage = 773;
constexpr std::size_t record_alignment = 128;  // a record shares no cache line pair with another thread's

constinit std::int32_t lock = 0;  // guards the key's creation and the list
constinit bool key_exists = false;
constinit pthread_key_t key{};
constinit Record *records = nullptr;
constinit bool process_exits = false;
constinit char exit_mark = 0;  // owner of the exit handler: an address that only this library can finalize

class Guard {
  public:
    Guard() { qorl_serv_lock(&lock); }
    ~Guard() { qorl_serv_unlock(&lock); }
    Guard(const Guard &) = delete;
    Guard &operator=(const Guard &) = delete;
};

void free_record(void *block) {
    Record *const record = static_cast<Record *>(block);
    current_record = nullptr;  // a destructor that runs later may use the library again
    {
        const Guard guard;
        (record->previous != nullptr ? record->previous->next : records) = record->next;
        if (record->next != nullptr) record->next->previous = record->previous;
    }
    qorl_serv_deallocate(record);
}

bool create_key() {
    const Guard guard;
    if (!key_exists) key_exists = pthread_key_create(&key, free_record) == 0;
    return key_exists;
}

KernelStatus *create_record() {
    void *const block = qorl_serv_allocate(sizeof(Record), record_alignment);
    if (block == nullptr) {
        qorl_serv_print(error_stream, out_of_storage, 0);
        return nullptr;
    }
    Record *const record = new (block) Record{};
    if (pthread_setspecific(key, record) != 0) {
        qorl_serv_deallocate(record);
        qorl_serv_print(error_stream, out_of_storage, 0);
        return nullptr;
    }
    const Guard guard;
    record->next = records;
    if (records != nullptr) records->previous = record;
    records = record;
    return current_record = &record->status;
}

// The storage key and the loading thread's record exist from the start, so that a shortage shows here first. A load
// cannot be refused on this platform: what failed is tried again on first use.
[[gnu::constructor]] void attach() {
    __cxa_atexit([](void *) { process_exits = true; }, nullptr, &exit_mark);
    if (!create_key()) {
        qorl_serv_print(error_stream, out_of_storage, 0);
        return;
    }
    create_record();
}

[[gnu::destructor]] void detach() {
    if (process_exits) return;
    __cxa_finalize(&exit_mark);
    if (!key_exists) return;
    pthread_key_delete(key);
    key_exists = false;
    while (records != nullptr) {
        Record *const record = records;
        records = record->next;
        qorl_serv_deallocate(record);
    }
}

}  // namespace

constinit thread_local KernelStatus *current_record [[gnu::tls_model("initial-exec")]] = nullptr;

[[gnu::cold]] KernelStatus &create_thread_record() {
    if (!create_key())
        qorl_serv_print(error_stream, out_of_storage, 0);
    else if (KernelStatus *const status = create_record())
        return *status;
    qorl_serv_exit(3);
    __builtin_unreachable();
}

}  // namespace qorl
