/**
 * @file core.h
 * @brief Services of libqorl_core: memory, locks, environment, messages, threads, processor queries, BLAS and LAPACK.
 *
 * The library is separate from the numeric kernels, so that a host can put its own allocator, threads or BLAS in its
 * place: any shared library that exports the names below under the same contracts will do. It is compiled for plain
 * x86-64 and may be loaded, and asked about the processor, on every machine.
 *
 * No function throws. "Thread safe" below means: callable from any number of threads at once on any arguments that no
 * other thread is writing.
 */
#ifndef QORL_CORE_H
#define QORL_CORE_H

#include <stddef.h>
#include <stdint.h>

/** Marks what libqorl_core exports. */
#define QORL_CORE_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* ---------------------------------------------------------------------------------------------------- services -- */

/**
 * @brief Allocates a block of memory.
 * @param size      Bytes, 0 included: a block of no usable bytes is still a block.
 * @param alignment A power of two; the block's address is a multiple of it. The project asks for 128 throughout.
 * @return The block, its contents undefined; null when the memory is not there, when the alignment is no power of two,
 *         or when size and alignment together pass PTRDIFF_MAX. `errno` is left as it was.
 *
 * Released by qorl_serv_deallocate() only. Thread safe.
 */
QORL_CORE_API void *qorl_serv_allocate(size_t size, size_t alignment);

/**
 * @brief Releases a block of qorl_serv_allocate().
 * @param block The block, or null, which does nothing.
 *
 * Thread safe; a block may be released by another thread than the one that allocated it.
 */
QORL_CORE_API void qorl_serv_deallocate(void *block);

/**
 * @brief Takes a lock: waits, spinning with a pause and then yielding the processor, until it is free.
 * @param lock The lock word. 0 is free, 1 is taken, no other value may stand there; a lock begins its life as 0.
 *
 * Not recursive, not fair, and meant for a few instructions: a thread that takes a lock twice waits for ever. What was
 * written before qorl_serv_unlock() is seen after the next qorl_serv_lock() of the same lock.
 */
QORL_CORE_API void qorl_serv_lock(int32_t *lock);

/**
 * @brief Releases a lock that the caller holds.
 * @param lock The lock word.
 */
QORL_CORE_API void qorl_serv_unlock(int32_t *lock);

/**
 * @brief Reads an environment variable, whole or not at all.
 * @param name   The variable's name, NUL-terminated.
 * @param buffer Receives the value and a NUL.
 * @param size   Bytes in the buffer, at least 1.
 * @return The value's length without the NUL, when it is at least 1 and the value fits (length below size).
 *         0 when the variable is absent or empty, the buffer then being the empty string.
 *         The negated length when the value does not fit: the buffer then holds the first size - 1 bytes and a NUL.
 *         0 with the buffer untouched when an argument is null or size is below 1.
 *
 * A result below 1 thus means "no usable value". That an overlong value counts as none is meant: the part that fits
 * could be a well-formed value of another meaning. Thread safe as long as no thread changes the environment.
 */
QORL_CORE_API int32_t qorl_serv_getenv(const char *name, char *buffer, int32_t size);

/**
 * @brief Prints a message of the catalogue: one line, written to the file descriptor by a single call.
 * @param destination 1, the standard error; there is no other.
 * @param code        The message, see below.
 * @param count       The number of arguments that follow.
 * @return 0 when the line was written. -1 when the destination is unknown (nothing is written), when code and count do
 *         not name a message (a line that says so is written and the arguments are not read), or when writing failed.
 *
 * | Code       | Arguments                       | The line tells                                                  |
 * |------------|---------------------------------|-----------------------------------------------------------------|
 * | 748        | const char *name, int32_t index | an invalid argument                                             |
 * | 749        | const char *name                | a refused call                                                  |
 * | 750 to 753 | const char *name                | domain error, singularity, overflow, underflow                  |
 * | 754        | const char *name                | an unknown error                                                |
 * | 755, 756   | int32_t index, double value     | the input, the result                                           |
 * | 757 to 759 | int32_t index, double value     | the input, the first result, the second result                  |
 * | 760 to 762 | int32_t index, double value     | the first input, the second input, the result                   |
 * | 763 to 766 | int32_t index, double value     | the first input, the second input, the first and second result  |
 * | 773        | none                            | per-thread storage cannot be set up                             |
 *
 * Values are printed with the fewest digits that read back as the same number, in every locale and rounding mode.
 * Names are cut after 200 bytes. `errno` is left as it was. Thread safe; lines of several threads do not mix.
 */
QORL_CORE_API int32_t qorl_serv_print(int32_t destination, int32_t code, int32_t count, ...);

/**
 * @brief Ends the process through the C library's exit(): handlers run, buffered files are written.
 * @param code The exit status; the system sees its low eight bits.
 */
QORL_CORE_API void qorl_serv_exit(int32_t code);

/**
 * @brief Copies bytes into a place of known size.
 * @param to      The destination.
 * @param to_size Bytes that the destination can hold.
 * @param from    The source; may overlap the destination.
 * @param count   Bytes to copy.
 * @return 0 when the bytes were copied; EINVAL when a pointer is null, ERANGE when count is above to_size, and then
 *         nothing is copied.
 */
QORL_CORE_API int32_t qorl_serv_memcpy_s(void *to, size_t to_size, const void *from, size_t count);

/**
 * @brief Finds a threading function by name.
 * @param name `qorl_hux_serv_threader_for`, which is a #QorlThreaderFor, or
 *             `qorl_hux_serv_threader_get_num_threads_limit`, which is a #QorlThreaderLimit.
 * @return The function, to be converted to its type; null for null and for any other name. Thread safe.
 */
QORL_CORE_API void *qorl_serv_load_thread_fun(const char *name);

/* --------------------------------------------------------------------------------------------------- processor -- */

/** What qorl_serv_processor_has() can be asked for. */
enum QorlProcessorFeature {
    QORL_PROCESSOR_AVX2_FMA = 0, /**< AVX2 and FMA, with the 256-bit registers kept by the operating system. */
    QORL_PROCESSOR_AES = 1,      /**< The AES instructions. */
    QORL_PROCESSOR_VAES = 2,     /**< The wider AES units: AES on 256-bit registers, kept by the operating system. */
    QORL_PROCESSOR_RDRAND = 3,   /**< The RDRAND instruction. */
    QORL_PROCESSOR_CLMUL = 4     /**< Carry-less multiplication, PCLMULQDQ. */
};

/**
 * @brief Tells whether this processor has a feature.
 * @param feature A value of #QorlProcessorFeature.
 * @return 1 when the feature can be used, 0 when not or when the number is unknown. Thread safe; the processor is asked
 *         once per process.
 */
QORL_CORE_API int32_t qorl_serv_processor_has(int32_t feature);

/* ----------------------------------------------------------------------------------------------------- threads -- */

/**
 * @brief Body of a loop or region.
 * @param index   The loop's index; in a region the thread number.
 * @param thread  The number of the share of work, 0 to threads - 1; no two calls with one number overlap in time.
 * @param threads The number of shares.
 * @param context The caller's pointer.
 *
 * A body must not throw and must not wait for another share: shares may run one after the other.
 */
typedef void (*QorlLoopBody)(int64_t index, int64_t thread, int64_t threads, void *context);

/**
 * @brief A table of threading functions, which the statistics and data-fitting entries take from their caller.
 *
 * Every function of a table is thread safe and returns when all its work is done. What the bodies wrote is then seen by
 * the caller. Bodies may use the tables again: a loop within a share of several runs on that share's thread alone.
 */
typedef struct QorlThreadTable {
    /**
     * Calls `body` exactly once for each index from 0 to count - 1; count below 1 calls nothing. The number of shares
     * is `threads`, but at least 1 and at most count and the thread limit. Each share is a contiguous range of indices,
     * taken in ascending order, so the share of an index follows from threads and count alone.
     */
    void (*parallel_for)(int64_t threads, int64_t count, void *context, QorlLoopBody body);
    void *spare1; /**< Null. */
    /**
     * Calls `body` exactly once per share, index and thread number being the same. The number of shares is `threads`,
     * but at least 1 and at most the thread limit. The second argument is not used.
     */
    void (*parallel_region)(int64_t threads, int64_t unused, void *context, QorlLoopBody body);
    void *spare3; /**< Null. */
    /** The number of threads that a loop started by the calling thread may use, at least 1; it is 1 within a share of
     * several. */
    int64_t (*thread_limit)(void);
} QorlThreadTable;

/** `qorl_hux_serv_threader_for`: works as the parallel_for of qorl_core_thread_table(). */
typedef void (*QorlThreaderFor)(int64_t threads, int64_t count, void *context, QorlLoopBody body);

/** `qorl_hux_serv_threader_get_num_threads_limit`: works as the thread_limit of qorl_core_thread_table(). */
typedef int64_t (*QorlThreaderLimit)(void);

/**
 * @brief The table over OpenMP. Its limit is what OMP_NUM_THREADS or omp_set_num_threads() asks for.
 * @return The table; it lives as long as the library. Thread safe.
 *
 * A child of fork() must not use this table if the parent did before: OpenMP threads do not survive a fork.
 */
QORL_CORE_API const QorlThreadTable *qorl_core_thread_table(void);

/**
 * @brief The table that runs everything on the caller's thread; its limit is 1.
 * @return The table; it lives as long as the library. Thread safe.
 */
QORL_CORE_API const QorlThreadTable *qorl_core_serial_table(void);

#ifdef __cplusplus
}
#endif

#endif
