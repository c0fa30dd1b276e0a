// The table of shared read-only data: blocks by key, with reference counts, under one lock.
#include <sched.h>

#include <array>

#include "streams/streams.hpp"

namespace qorl {
namespace {

using Key = const std::uint64_t *;

constexpr std::int32_t capacity = 128;
constexpr std::int32_t size_unknown = -1;

struct SharedTable {
    std::array<GlobRODataTableEntry, capacity> entries;
    std::array<std::int32_t, capacity> sizes;  // of the data; size_unknown for an entry that came without
    std::int32_t entry_count;
};

constinit SharedTable table{};
constinit std::int32_t lock = 0;

class Guard {
  public:
    Guard() { qorl_serv_lock(&lock); }
    ~Guard() { qorl_serv_unlock(&lock); }
    Guard(const Guard &) = delete;
    Guard &operator=(const Guard &) = delete;
};

bool names_data(Key key) {
    return key != nullptr && (key[0] != 0 || key[1] != 0);
}

bool matches(const GlobRODataTableEntry &entry, Key key) {
    return entry.key[0] == key[0] && entry.key[1] == key[1];
}

// The following are called with the lock held.

// The index of the first entry with that key, or -1.
std::int32_t find(Key key) {
    for (std::int32_t index = 0; index < table.entry_count; ++index)
        if (matches(table.entries[index], key)) return index;
    return -1;
}

GlobRODataTableEntry &append(Key key, void *data, std::int32_t size) {
    const std::int32_t index = table.entry_count++;
    table.entries[index] = {{key[0], key[1]}, 1, data};
    table.sizes[index] = size;
    return table.entries[index];
}

// The last entry takes the place.
void remove(std::int32_t index) {
    const std::int32_t last = --table.entry_count;
    table.entries[index] = table.entries[last];
    table.sizes[index] = table.sizes[last];
}

}  // namespace

void *share(std::uint64_t (&key)[2], void *data, std::int32_t size) {
    if (!names_data(key)) return data;
    const Guard guard;
    const std::int32_t index = find(key);
    if (index >= 0) {
        // Data of another size under a known key, from a damaged file say, must not lend the chunk their bytes.
        const std::int32_t known = table.sizes[index];
        if (known == size_unknown || known == size) {
            ++table.entries[index].references;
            return table.entries[index].data;
        }
    } else if (table.entry_count < capacity - 1) {  // the last entry is left to those who ask for it by name
        append(key, data, size);
        return data;
    }
    key[0] = key[1] = 0;
    return data;
}

bool is_shared(const std::uint64_t (&key)[2]) {
    if (!names_data(key)) return false;
    const Guard guard;
    return find(key) >= 0;
}

}  // namespace qorl

using namespace qorl;

int32_t __huxFindGlobRODataTableEntry(GlobRODataTableEntry **entry, const uint64_t *key) {
    if (!names_data(key)) return HuxStatusSharedDataNotFound;
    const Guard guard;
    const std::int32_t index = find(key);
    if (index < 0) return HuxStatusSharedDataNotFound;
    *entry = &table.entries[index];
    return HuxStatusOk;
}

int32_t __huxCreateGlobRODataTableEntry(GlobRODataTableEntry **entry, const uint64_t *key, void *data) {
    const Guard guard;
    if (table.entry_count == capacity) return HuxStatusSharedDataTableFull;
    *entry = &append(key, data, size_unknown);
    return HuxStatusOk;
}

int32_t __huxRegisterGlobRODataReference(StreamChunk *chunk, const uint64_t *key) {
    if (!names_data(key)) return HuxStatusSharedDataNotFound;
    const Guard guard;
    const std::int32_t index = find(key);
    if (index < 0) return HuxStatusSharedDataNotFound;
    ++table.entries[index].references;
    chunk->data = table.entries[index].data;
    return HuxStatusOk;
}

int32_t __huxUnregisterGlobRODataReference(const uint64_t *key) {
    if (!names_data(key)) return HuxStatusSharedDataNotFound;
    const Guard guard;
    // A key may stand in the table more than once, by __huxCreateGlobRODataTableEntry(). Each of its entries gives up a
    // reference, save one that moves into the place of one removed.
    bool found = false;
    for (std::int32_t index = 0; index < table.entry_count; ++index) {
        GlobRODataTableEntry &entry = table.entries[index];
        if (!matches(entry, key)) continue;
        found = true;
        if (--entry.references != 0) continue;
        qorl_serv_deallocate(entry.data);
        remove(index);
    }
    return found ? HuxStatusOk : HuxStatusSharedDataNotFound;
}

int32_t __huxGenerateNewGlobalRODataTableEntryId(uint64_t *key, uint64_t second_word) {
    key[1] = second_word;
    GlobRODataTableEntry *entry = nullptr;
    while (__huxFindGlobRODataTableEntry(&entry, key) == HuxStatusOk) sched_yield();
    return HuxStatusOk;
}
