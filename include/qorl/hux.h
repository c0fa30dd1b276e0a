/**
 * @file hux.h
 * @brief Random streams: records, life cycle, generator registry, saving, chunks, arithmetic of jumps, generators.
 *
 * A stream is one record, #StreamState, which holds the number of a basic generator, a list of attached blocks (chunks)
 * and the generator's state. Numbers are drawn through the four functions of the generator's row, #BrngProperties.
 *
 * Conventions that hold for every function here unless it says otherwise:
 * - A result of type int32_t is a status of #HuxStatus; negative means failure.
 * - Pointers are valid and point to as much as is described; nothing is tested for null where no status is named.
 * - Memory comes from qorl_serv_allocate() with an alignment of 128, and HuxStatusOutOfMemory tells that it did not.
 * - Thread safety: a stream belongs to one thread at a time. Functions on different streams may run at the same time,
 *   also on streams that share data. __huxRegisterBrng() must not overlap any other use of this header.
 * - A result depends on the stream's state and the arguments alone, never on alignment or on the thread.
 * - No function throws, prints, starts a thread or changes `errno`, apart from what the C library's file functions do
 * to `errno`.
 */
#ifndef QORL_HUX_H
#define QORL_HUX_H

#include <stddef.h>
#include <stdint.h>

/** Marks what the library exports. */
#define QORL_HUX_API __attribute__((visibility("default")))

#ifdef __cplusplus
extern "C" {
#endif

/* ---------------------------------------------------------------------------------------------------- statuses -- */

/** What streams, generators and distributions answer. */
enum HuxStatus {
    HuxStatusOk = 0,
    HuxStatusBadMethod = -2,                 /**< A generator's `init` was called with a method other than 0 to 3. */
    HuxStatusBadArguments = -3,              /**< Abstract creators: no size, buffer or callback, or `a >= b`. */
    HuxStatusOutOfMemory = -4,               /**< An allocation failed, or a chunk that a generator needs is missing. */
    HuxStatusNullPointer = -5,               /**< A null function to register; an abstract stream without a buffer. */
    HuxStatusBadBrngId = -1000,              /**< No such generator, or none that can be used in this way. */
    HuxStatusLeapfrogUnsupported = -1002,    /**< The generator has no leapfrog. */
    HuxStatusSkipAheadUnsupported = -1003,   /**< The generator has no skip-ahead. */
    HuxStatusSkipAheadExUnsupported = -1004, /**< The generator has no long skip-ahead. */
    HuxStatusBadStateSize = -1008,           /**< Registration: `state_size` is negative. */
    HuxStatusBadWordSize = -1009,            /**< Registration: `word_size` is not 4, 8 or 16. */
    HuxStatusBadSeedWords = -1010,           /**< Registration: `seed_words` is not positive. */
    HuxStatusBadBits = -1011,                /**< Registration: `bits` is not positive. */
    HuxStatusQuasiPeriodExhausted = -1012,   /**< A quasi-random sequence would pass its 2^32 points. */
    HuxStatusBadStreamCount = -1013,         /**< Leapfrog: `nstreams` is negative. */
    HuxStatusBitsUnsupported = -1014,        /**< The generator gives no uniform bits. */
    HuxStatusRegistryFull = -1015,           /**< Registration: all 512 rows are in use. */
    HuxStatusFileClose = -1100,              /**< Closing a stream file failed. */
    HuxStatusFileOpen = -1101,               /**< Opening a stream file failed. */
    HuxStatusFileWrite = -1102,              /**< Writing a stream file came up short. */
    HuxStatusFileRead = -1103,               /**< A stream file ended too soon, or its chunk layout is unknown. */
    HuxStatusBadFileFormat = -1110,          /**< Mark, generator or sizes in a stream file are wrong. */
    HuxStatusBadFileVersion = -1111,         /**< A stream file is of a newer layout. */
    HuxStatusAbstractCallbackFailed = -1120, /**< An abstract stream's callback returned a negative or too big count. */
    HuxStatusAbstractNoNumbers = -1121,      /**< An abstract stream's callback returned 0. */
    HuxStatusAbstractWrongType = -1122,      /**< An abstract stream was asked for a type that it does not hold. */
    HuxStatusNoRandomInstruction = -1130,    /**< The processor has no random number instruction. */
    HuxStatusRandomRetriesExhausted = -1131, /**< The random number instruction gave nothing within the retries. */
    HuxStatusNoAesInstruction = -1140,       /**< The processor has no AES instructions. */
    HuxStatusBadProbabilities = -1150,       /**< A vector of probabilities is none. */
    HuxStatusBadMemoryImage = -1200,         /**< Mark, version, generator or sizes in a memory image are wrong. */
    HuxStatusSharedDataNotFound = -3000,     /**< Shared data: no entry of that key, or a null or all-zero key. */
    HuxStatusSharedDataTableFull = -3001     /**< Shared data: no free entry. */
};

/* ----------------------------------------------------------------------------------------------------- records -- */

/** A block of data attached to a stream; a node of a singly linked list, allocated alone. */
typedef struct StreamChunk {
    int32_t id;   /**< What the data are; chosen by the user of the chunk and unique within a stream. */
    int32_t size; /**< Bytes of data. */
    void *data;   /**< The data: the chunk's own, or an entry's of the shared table. */
    struct StreamChunk *next;
    uint64_t key[2]; /**< The key of the shared entry; both 0 when the data are the chunk's own. */
} StreamChunk;

/**
 * The head of a stream's record. The generator's state follows, BrngProperties::state_size - 16 bytes, laid out by the
 * generator. The record is aligned to 128 bytes; apart from the chunk list, the state holds no pointers of the library.
 */
typedef struct StreamState {
    int32_t id;          /**< The generator's number as the stream's creator gave it. */
    int32_t header_flag; /**< 1; not saved. */
    StreamChunk *chunks; /**< Head of the chunk list, null when there is none. */
} StreamState;

/**
 * @brief The function that sets up a generator and moves its position.
 * @param method 0 initialise, 1 leapfrog, 2 skip-ahead, 3 long skip-ahead.
 * @param stream The stream; `id` and `chunks` are set.
 * @param n      Method 0: number of seed words, which may be 0 or negative. 1: the number of streams. 2: the number 2.
 *               3: number of 64-bit words.
 * @param params Method 0: the seed, 32-bit words. 1: address of the 32-bit index k. 2: address of the 64-bit count.
 *               3: the count as 64-bit words, least significant first.
 * @return HuxStatusOk, HuxStatusBadMethod for another method, the status of an operation that the generator has not, or
 *         one of its own.
 */
typedef int32_t (*BrngInitFunction)(int32_t method, StreamState *stream, int32_t n, const void *params);

/**
 * @brief Draws n uniform numbers on [a, b]. The section of the generators tells which ends can be met.
 * @param stream The stream, which continues where the last call stopped, whatever its n was.
 * @param n      Count; below 1 nothing is written.
 * @param r      Receives n numbers; any alignment that the type allows.
 * @param a      Lower end, not checked.
 * @param b      Upper end, not checked.
 * @return HuxStatusOk or a status of the generator's own.
 */
typedef int32_t (*BrngSingleFunction)(StreamState *stream, int32_t n, float *r, float a, float b);
/** As #BrngSingleFunction in double precision. */
typedef int32_t (*BrngDoubleFunction)(StreamState *stream, int32_t n, double *r, double a, double b);
/** Draws n integers of BrngProperties::word_size bytes each. */
typedef int32_t (*BrngIntegerFunction)(StreamState *stream, int32_t n, void *r);

/** A generator: a row of the registry. */
typedef struct BrngProperties {
    int32_t state_size;    /**< Bytes of the whole stream record, its head of 16 included. */
    int32_t seed_words;    /**< State words that make up a full seed. */
    int32_t includes_zero; /**< 1 when the integers can be 0. */
    int32_t word_size;     /**< Bytes that `i` writes for each element: 4, 8 or 16. */
    int32_t bits;          /**< Significant bits of an integer. */
    BrngInitFunction init; /**< Null, as the other three, in a row whose generator is not there. */
    BrngSingleFunction s;
    BrngDoubleFunction d;
    BrngIntegerFunction i;
} BrngProperties;

/** An entry of the table of shared read-only data. */
typedef struct GlobRODataTableEntry {
    uint64_t key[2];
    uint32_t references; /**< Chunks that use the data. */
    void *data;          /**< Freed with the last reference. */
} GlobRODataTableEntry;

/* ---------------------------------------------------------------------------------------------------- registry -- */

#define QORL_HUX_ROWS 512 /**< Rows of each table. */

/**
 * Generators by their flat numbers: 0 MCG31M1, 1 R250, 2 MRG32K3A, 3 MCG59, 4 to 276 WH, 277 Sobol, 278 Niederr. The
 * other rows are zero.
 */
extern QORL_HUX_API const BrngProperties __RegBrngs[QORL_HUX_ROWS];

/**
 * Generators by families. Member k of row R has the number (R + 1) * 1048576 + k. Rows 0 to 15: MCG31M1, R250,
 * MRG32K3A, MCG59, WH (273 members), Sobol, Niederr, MT19937, MT2203 (6024 members), iAbstract, dAbstract, sAbstract,
 * SFMT19937, TRNG, ARS5, PHILOX4X32X10; registered generators follow.
 */
extern QORL_HUX_API BrngProperties __RegBrngsNew[QORL_HUX_ROWS];

/**
 * @brief Resolves a generator's number.
 * @param id  Any number; it is not judged.
 * @param row Receives the row in the table returned.
 * @param sub Receives the member's index.
 * @return __RegBrngsNew for numbers from 1048576 on, else __RegBrngs. Flat numbers 4 to 276 are the members of row 4.
 */
QORL_HUX_API const BrngProperties *__huxGetBrngBaseOffset(int32_t id, int32_t *row, int32_t *sub);

/**
 * @brief Tells whether a resolved number is within its table.
 * @param table __RegBrngs or, any other pointer, __RegBrngsNew.
 * @param row   Row; has no lower bound.
 * @param sub   Member, which counts for __RegBrngsNew only; has no lower bound.
 * @return HuxStatusOk, or HuxStatusBadBrngId. Rows 279 and 280 of __RegBrngs are within the table, although no
 * generator stands there.
 */
QORL_HUX_API int32_t __huxIsBrngValid(const BrngProperties *table, int32_t row, int32_t sub);

/**
 * @brief Copies a generator's row.
 * @param id  The generator's number, in either numbering.
 * @param out Receives the row: zeros for the numbers 279 and 280, null functions where the generator is not there.
 * @return HuxStatusOk; HuxStatusBadBrngId for a number outside the tables, negative ones included, `out` then
 * untouched.
 */
QORL_HUX_API int32_t __huxGetBrngProperties(int32_t id, BrngProperties *out);

/**
 * @brief The number of rows of __RegBrngsNew that are in use: 16, and 1 more for each registration.
 */
QORL_HUX_API int32_t __huxGetNumRegBrngs(void);

/**
 * @brief Adds a generator to __RegBrngsNew, for the life of the process.
 * @param properties The row, which is copied. A `state_size` below 16 is taken as no state at all.
 * @return The generator's number, positive; otherwise, tested in this order, HuxStatusBadStateSize,
 *         HuxStatusBadWordSize, HuxStatusBadSeedWords, HuxStatusBadBits, HuxStatusNullPointer when one of the functions
 *         is null, HuxStatusRegistryFull when no row is left.
 *
 * Not thread safe: no other function of this header may run at the same time.
 */
QORL_HUX_API int32_t __huxRegisterBrng(const BrngProperties *properties);

/* ------------------------------------------------------------------------------------------------------ streams -- */

/**
 * @brief Creates a stream.
 * @param stream Receives the stream.
 * @param id     The generator's number, kept as given.
 * @param n      Seed words; 0 or negative for the generator's default.
 * @param params The seed.
 * @return HuxStatusOk. HuxStatusBadBrngId when there is no such generator, when it is not there yet, or when it is
 *         abstract, `*stream` then untouched. HuxStatusOutOfMemory with `*stream` null when there is no memory for the
 *         record. Otherwise what the generator's `init` answers, which may be HuxStatusOutOfMemory too: then
 *         `*stream` is set, also on failure, and is to be deleted by the caller.
 */
QORL_HUX_API int32_t __huxNewStreamEx(StreamState **stream, int32_t id, int32_t n, const uint32_t *params);

/**
 * @brief Allocates a stream's record and sets its head, not its state.
 * @param stream Receives the stream.
 * @param table  __RegBrngs or __RegBrngsNew.
 * @param id     The number to be kept in the stream.
 * @param row    The generator's row in the table.
 * @param sub    The member.
 * @return HuxStatusOk; HuxStatusBadBrngId as __huxNewStreamEx(); HuxStatusOutOfMemory with `*stream` null.
 */
QORL_HUX_API int32_t __huxAllocateStream(StreamState **stream, const BrngProperties *table, int32_t id, int32_t row,
                                         int32_t sub);

/**
 * @brief Fills an abstract stream's buffer.
 * @param stream      The stream, only to be read.
 * @param capacity    The buffer's size in numbers.
 * @param buffer      The buffer.
 * @param min_count   How many numbers are needed now.
 * @param max_count   How many places are free.
 * @param write_index Where to begin to write; past the buffer's end it goes on at index 0.
 * @return How many numbers were written, from 1 to `*max_count`; 0 or less tells a failure.
 */
typedef int32_t (*HuxIntegerCallback)(StreamState *stream, int32_t *capacity, uint32_t *buffer, int32_t *min_count,
                                      int32_t *max_count, int32_t *write_index);
/** As #HuxIntegerCallback. */
typedef int32_t (*HuxDoubleCallback)(StreamState *stream, int32_t *capacity, double *buffer, int32_t *min_count,
                                     int32_t *max_count, int32_t *write_index);
/** As #HuxIntegerCallback. */
typedef int32_t (*HuxSingleCallback)(StreamState *stream, int32_t *capacity, float *buffer, int32_t *min_count,
                                     int32_t *max_count, int32_t *write_index);

/**
 * @brief Creates a stream of integers that a callback provides.
 * @param stream   Receives the stream, as in __huxNewStreamEx(); its number is 10485760.
 * @param n        The buffer's size in numbers.
 * @param buffer   The buffer, the caller's until the stream is deleted.
 * @param callback Fills it.
 * @return HuxStatusOk, HuxStatusBadArguments when `n` is 0 or a pointer is null, HuxStatusBadBrngId while the abstract
 *         generators are not there, HuxStatusOutOfMemory.
 */
QORL_HUX_API int32_t __huxiNewAbstractStream(StreamState **stream, int32_t n, uint32_t *buffer,
                                             HuxIntegerCallback callback);

/**
 * @brief Creates a stream of doubles from the interval (a, b); its number is 11534336. Otherwise as
 *        __huxiNewAbstractStream(), with HuxStatusBadArguments also when `a >= b`; a NaN passes.
 */
QORL_HUX_API int32_t __huxdNewAbstractStream(StreamState **stream, int32_t n, double *buffer, double a, double b,
                                             HuxDoubleCallback callback);

/** @brief As __huxdNewAbstractStream() in single precision; its number is 12582912. */
QORL_HUX_API int32_t __huxsNewAbstractStream(StreamState **stream, int32_t n, float *buffer, float a, float b,
                                             HuxSingleCallback callback);

/**
 * @brief Makes a stream the k-th of `nstreams` interleaved ones.
 * @param stream   The stream.
 * @param k        Index from 0; not compared with `nstreams`.
 * @param nstreams Number of streams.
 * @return HuxStatusOk, HuxStatusBadStreamCount when `nstreams` is negative, HuxStatusLeapfrogUnsupported, or what the
 *         generator answers (HuxStatusOutOfMemory of a congruential generator whose lanes are missing).
 */
QORL_HUX_API int32_t __huxLeapfrogStream(StreamState *stream, int32_t k, int32_t nstreams);

/**
 * @brief Moves a stream ahead by `nskip` numbers as if they had been drawn.
 * @return HuxStatusOk, HuxStatusSkipAheadUnsupported, or what the generator answers.
 */
QORL_HUX_API int32_t __huxSkipAheadStream(StreamState *stream, uint64_t nskip);

/**
 * @brief Moves a stream ahead by a long count.
 * @param stream The stream.
 * @param n      Words of the count.
 * @param nskip  The count, least significant word first.
 * @return HuxStatusOk, HuxStatusSkipAheadExUnsupported, or what the generator answers.
 */
QORL_HUX_API int32_t __huxSkipAheadStreamEx(StreamState *stream, int32_t n, const uint64_t *nskip);

/**
 * @brief Deletes a stream, its chunks and, with their last reference, shared data.
 * @param stream Address of the stream; the stream becomes null.
 * @return HuxStatusOk.
 */
QORL_HUX_API int32_t __huxDeleteStream(StreamState **stream);

/**
 * @brief Copies a stream. Shared data get one more reference; other chunks are duplicated. The order of the chunks is
 *        reversed.
 * @param copy   Receives the copy.
 * @param source The stream, which is left as it is.
 * @return HuxStatusOk. HuxStatusOutOfMemory with `*copy` null, or, when only the chunks found no place, with a copy
 * that has none and is to be deleted by the caller.
 */
QORL_HUX_API int32_t __huxCopyStream(StreamState **copy, const StreamState *source);

/**
 * @brief Copies the seed words of a stream's state, and its chunks, over those of another stream.
 * @param target A stream of the same generator; the generators are not compared.
 * @param source The stream, which is left as it is; the same as `target` does nothing.
 * @return HuxStatusOk, or HuxStatusOutOfMemory with no chunk in `target`.
 *
 * Copied are `seed_words * word_size` bytes, at most the state: for many generators less than the whole state, whose
 * end then stays as it was.
 */
QORL_HUX_API int32_t __huxCopyStreamState(StreamState *target, const StreamState *source);

/** @brief The generator's number as it was given at creation; not a status. */
QORL_HUX_API int32_t __huxGetStreamStateBrng(const StreamState *stream);

/**
 * @brief The size of a stream's memory image.
 * @return Bytes: `state_size + 8`, and for each chunk 24 and its size. 2147483647 when it is that or more; such a
 * stream can be saved to a file only.
 */
QORL_HUX_API int32_t __huxGetStreamSize(const StreamState *stream);

/* ------------------------------------------------------------------------------------------------------- saving -- */

/**
 * @brief Saves a stream to a file.
 * @param stream      The stream.
 * @param name        The file's name, opened by the C library as "wb".
 * @param name_length Bytes of the name, which then needs no NUL; negative when it has one.
 * @return HuxStatusOk, HuxStatusOutOfMemory, HuxStatusFileOpen, HuxStatusFileWrite (also when the last chunk has no
 *         bytes), HuxStatusFileClose, which comes before the others. A failure may leave a part of the file.
 */
QORL_HUX_API int32_t __huxSaveStreamF(const StreamState *stream, const char *name, int32_t name_length);

/**
 * @brief Loads a stream from a file, which may be a pipe.
 * @param stream      Receives the stream; null on failure.
 * @param name        The file's name, opened by the C library as "rb".
 * @param name_length As for __huxSaveStreamF().
 * @return HuxStatusOk; HuxStatusOutOfMemory, also for a chunk that claims a negative size; HuxStatusFileOpen,
 *         HuxStatusFileRead, HuxStatusFileClose; HuxStatusBadFileFormat, also when the generator is not there or its
 *         chunk cannot be what it needs; HuxStatusBadFileVersion, HuxStatusNoRandomInstruction,
 *         HuxStatusNoAesInstruction.
 */
QORL_HUX_API int32_t __huxLoadStreamF(StreamState **stream, const char *name, int32_t name_length);

/**
 * @brief Saves a stream to memory.
 * @param stream The stream.
 * @param memory Receives __huxGetStreamSize() bytes.
 * @return HuxStatusOk.
 */
QORL_HUX_API int32_t __huxSaveStreamM(const StreamState *stream, uint8_t *memory);

/**
 * @brief Loads a stream from memory.
 * @param stream Receives the stream; null on failure.
 * @param memory The image, as long as its own head says; there is no bound.
 * @return As __huxLoadStreamF(), with HuxStatusBadMemoryImage for wrong format and version, and without the statuses of
 *         opening, reading short and closing; HuxStatusFileRead tells an unknown chunk layout.
 */
QORL_HUX_API int32_t __huxLoadStreamM(StreamState **stream, const uint8_t *memory);

/* ------------------------------------------------------------------------------------------------------- chunks -- */

/**
 * @brief Attaches data to a stream, at the head of its list.
 * @param stream The stream.
 * @param id     What the data are.
 * @param key    Two words by which the data are shared; null or zeros for private data.
 * @param data   The data, from qorl_serv_allocate(), or null.
 * @param size   Bytes of data.
 * @return HuxStatusOk; HuxStatusOutOfMemory, the data then staying the caller's.
 *
 * A new key enters the data into the shared table, unless 127 entries are in use: then, as without a key, the data
 * belong to the chunk. With a known key the chunk takes the entry's data and the caller's stay the caller's, to be
 * compared with __huxSearchChunk() and freed; only when the sizes are known to differ are the data kept as private
 * ones.
 */
QORL_HUX_API int32_t __huxAddChunk(StreamState *stream, int32_t id, const uint64_t *key, void *data, int32_t size);

/** @brief The data of the first chunk with that id; null when there is none. */
QORL_HUX_API void *__huxSearchChunk(const StreamState *stream, int32_t id);

/** @brief The number of chunks; not a status. */
QORL_HUX_API int32_t __huxGetNumChunks(const StreamState *stream);

/** @brief Releases all chunks with that id; the result is HuxStatusOk. */
QORL_HUX_API int32_t __huxDeleteChunksById(StreamState *stream, int32_t id);

/** @brief Releases all chunks; the result is HuxStatusOk. */
QORL_HUX_API int32_t __huxDeleteChunks(StreamState *stream);

/**
 * @brief Adds copies of a stream's chunks to another stream.
 * @return HuxStatusOk; HuxStatusOutOfMemory with all chunks of `target` released.
 */
QORL_HUX_API int32_t __huxCopyChunks(StreamState *target, const StreamState *source);

/**
 * @brief Finds shared data.
 * @param entry Receives the entry, which has a meaning only as long as no one removes entries.
 * @param key   Two words.
 * @return HuxStatusOk or HuxStatusSharedDataNotFound. Thread safe.
 */
QORL_HUX_API int32_t __huxFindGlobRODataTableEntry(GlobRODataTableEntry **entry, const uint64_t *key);

/**
 * @brief Enters shared data with one reference. The key is not compared with those in the table.
 * @return HuxStatusOk with the entry, or HuxStatusSharedDataTableFull when all 128 are in use. Thread safe.
 */
QORL_HUX_API int32_t __huxCreateGlobRODataTableEntry(GlobRODataTableEntry **entry, const uint64_t *key, void *data);

/**
 * @brief Gives a chunk the data of a shared entry and counts the reference.
 * @return HuxStatusOk, or HuxStatusSharedDataNotFound with nothing changed. Thread safe.
 */
QORL_HUX_API int32_t __huxRegisterGlobRODataReference(StreamChunk *chunk, const uint64_t *key);

/**
 * @brief Takes back a reference; the last one frees the data and removes the entry.
 * @return HuxStatusOk, or HuxStatusSharedDataNotFound with nothing changed. Thread safe.
 */
QORL_HUX_API int32_t __huxUnregisterGlobRODataReference(const uint64_t *key);

/**
 * @brief Completes a key, and returns when no entry has it.
 * @param key         The first word, chosen by the caller and not in use, is kept; a key in use is waited for.
 * @param second_word Becomes the second word.
 * @return HuxStatusOk. Thread safe.
 */
QORL_HUX_API int32_t __huxGenerateNewGlobalRODataTableEntryId(uint64_t *key, uint64_t second_word);

/* --------------------------------------------------------------------------------------------- arithmetic of jumps --
 */

/** @brief a^n mod m; 1 for n = 0, whatever `a` and `m` are. Pure, as all functions down to the matrix powers. */
QORL_HUX_API uint32_t __huxiPowMod(uint32_t a, uint64_t n, uint32_t m);

/** @brief a^n mod 2^31 - 1. */
QORL_HUX_API uint32_t __huxiPowMod2P31M1(uint32_t a, uint64_t n);

/** @brief a^n mod 2^59. */
QORL_HUX_API uint64_t __huxiPowMod2P59(uint64_t a, uint64_t n);

/**
 * @brief Replaces v by A^n v mod m for the companion matrix of a recurrence of third order.
 * @param v   Three words below m, the newest last.
 * @param row The coefficients below m, that of the newest word first: A has the rows (0, 1, 0), (0, 0, 1) and
 *            (row[2], row[1], row[0]).
 * @param m   The modulus, at least 2.
 * @param n   The power.
 */
QORL_HUX_API void __huxiVect3PowMod(uint32_t *v, const uint32_t *row, uint32_t m, uint64_t n);

/**
 * @brief As __huxiVect3PowMod() with a long power.
 * @param words Words of n.
 * @param n     The power, least significant word first.
 * @return HuxStatusOk, or HuxStatusOutOfMemory with v unchanged.
 */
QORL_HUX_API int32_t __huxiVect3PowArrayMod(uint32_t *v, const uint32_t *row, uint32_t m, int32_t words,
                                            const uint64_t *n);

/**
 * @brief As __huxiVect3PowArrayMod() modulo 4294967087, from a table of powers.
 * @param v     Three words below the modulus.
 * @param words Words of n, at most 3.
 * @param n     The power, least significant word first.
 * @param table Matrices of nine words by rows; the i-th is A^(2^i).
 */
QORL_HUX_API void __huxiVect3PowArrayMod_M1(uint32_t *v, int32_t words, const uint64_t *n, const uint32_t *table);

/** @brief As __huxiVect3PowArrayMod_M1() modulo 4294944443. */
QORL_HUX_API void __huxiVect3PowArrayMod_M2(uint32_t *v, int32_t words, const uint64_t *n, const uint32_t *table);

/**
 * @brief Computes x^n mod p over GF(2).
 * @param n         The power.
 * @param degree    The degree of p, at least 1.
 * @param terms     Terms of p.
 * @param exponents Their exponents; the greatest is `degree`. An exponent that stands twice cancels.
 * @param words     32-bit words of `out`, enough for bits 0 to degree - 1.
 * @param out       Receives the remainder; bit i is the coefficient of x^i.
 * @return HuxStatusOk or HuxStatusOutOfMemory.
 */
QORL_HUX_API int32_t __huxPolyRem(uint64_t n, int64_t degree, int32_t terms, const uint32_t *exponents, int32_t words,
                                  uint32_t *out);

/** Makes the recurrence's state in a record zero. */
typedef void (*HuxJumpClear)(StreamState *temp);
/** Adds (XOR) the state of `other` to that of `temp`, position by position. The last argument is 0. */
typedef void (*HuxJumpAdd)(StreamState *temp, const StreamState *other, int32_t zero);
/** Copies the state of `stream` to `temp`. The last argument is 0. */
typedef void (*HuxJumpCopy)(StreamState *temp, const StreamState *stream, int32_t zero);
/** Moves the state on by one step of the recurrence. */
typedef void (*HuxJumpNext)(StreamState *temp);
/** Puts the result of a jump into the stream; `extra` is what the preparation left there. */
typedef void (*HuxJumpFinish)(StreamState *stream, const StreamState *temp, int32_t extra);
/** Brings a stream to where a jump can begin and the count to steps of the recurrence; 0 when nothing is left to do. */
typedef int32_t (*HuxJumpPrepare)(StreamState *stream, uint64_t *nskip, int32_t *extra);

/**
 * @brief Moves a linear recurrence over GF(2) ahead by a jump polynomial, by Horner's rule: `degree` steps.
 * @param stream      The stream.
 * @param clear       The six functions of the generator.
 * @param nskip       Numbers to skip; 0 does nothing.
 * @param poly_words  32-bit words of the jump polynomial.
 * @param degree      Degree of the characteristic polynomial.
 * @param state_bytes Bytes of a record, its head included: the temporary records have as many.
 * @param terms       Terms of the characteristic polynomial.
 * @param exponents   Their exponents.
 * @return HuxStatusOk, or HuxStatusOutOfMemory with the stream where it was.
 */
QORL_HUX_API int32_t __hux_SkipAheadHorner(StreamState *stream, HuxJumpClear clear, HuxJumpAdd add, HuxJumpCopy copy,
                                           HuxJumpNext next, HuxJumpFinish finish, HuxJumpPrepare prepare,
                                           uint64_t nskip, int32_t poly_words, int64_t degree, int32_t state_bytes,
                                           int32_t terms, const uint32_t *exponents);

/** @brief As __hux_SkipAheadHorner() by a sliding window of eight bits: fewer additions, 128 records more. */
QORL_HUX_API int32_t __hux_SkipAheadSWin(StreamState *stream, HuxJumpClear clear, HuxJumpAdd add, HuxJumpCopy copy,
                                         HuxJumpNext next, HuxJumpFinish finish, HuxJumpPrepare prepare, uint64_t nskip,
                                         int32_t poly_words, int64_t degree, int32_t state_bytes, int32_t terms,
                                         const uint32_t *exponents);

/* --------------------------------------------------------------------------------------------------- generators -- */

/*
 * Each generator has an initialisation (#BrngInitFunction) and the three functions of drawing (#BrngSingleFunction,
 * #BrngDoubleFunction, #BrngIntegerFunction). Callers usually reach them through a stream's row.
 *
 * Ends of [0, 1]: in single precision, rounding can give 1. In double precision only MCG59 and MRG32K3A give it. 0 does
 * not come from MCG31M1, MCG59 and MRG32K3A. On other intervals, rounding can give either end.
 *
 * The three functions draw from one sequence. MCG31M1 and MCG59 are different: `d` and `s` keep a position of their own
 * (a chunk of the stream). After `i` they go on where they stopped themselves, and `i` then goes on behind them.
 * Skip-ahead and leapfrog move from the position of `i` and join the two.
 */

/** @name MCG31M1: x <- a x mod 2^31 - 1. Integers are x, 1 to 2^31 - 2. Leapfrog and skip-ahead. */
/** @{ */
QORL_HUX_API int32_t __huxBRngMCG31M1InitStream(int32_t method, StreamState *stream, int32_t n, const void *params);
QORL_HUX_API int32_t __huxsBRngMCG31M1(StreamState *stream, int32_t n, float *r, float a, float b);
QORL_HUX_API int32_t __huxdBRngMCG31M1(StreamState *stream, int32_t n, double *r, double a, double b);
QORL_HUX_API int32_t __huxiBRngMCG31M1(StreamState *stream, int32_t n, void *r);
/** @} */

/** @name MCG59: x <- a x mod 2^59. Integers are x in 64 bits. Leapfrog and skip-ahead. */
/** @{ */
QORL_HUX_API int32_t __huxBRngMCG59InitStream(int32_t method, StreamState *stream, int32_t n, const void *params);
QORL_HUX_API int32_t __huxsBRngMCG59(StreamState *stream, int32_t n, float *r, float a, float b);
QORL_HUX_API int32_t __huxdBRngMCG59(StreamState *stream, int32_t n, double *r, double a, double b);
QORL_HUX_API int32_t __huxiBRngMCG59(StreamState *stream, int32_t n, void *r);
/** @} */

/** @name WH: 273 generators of four congruential components. Integers are four 32-bit words each. Leapfrog, skip-ahead.
 */
/** @{ */
QORL_HUX_API int32_t __huxBRngWHInitStream(int32_t method, StreamState *stream, int32_t n, const void *params);
QORL_HUX_API int32_t __huxsBRngWH(StreamState *stream, int32_t n, float *r, float a, float b);
QORL_HUX_API int32_t __huxdBRngWH(StreamState *stream, int32_t n, double *r, double a, double b);
QORL_HUX_API int32_t __huxiBRngWH(StreamState *stream, int32_t n, void *r);
/** @} */

/** @name MRG32K3A: L'Ecuyer's combined multiple recursive generator. Skip-ahead and long skip-ahead. */
/** @{ */
QORL_HUX_API int32_t __huxBRngMRG32K3AInitStream(int32_t method, StreamState *stream, int32_t n, const void *params);
QORL_HUX_API int32_t __huxsBRngMRG32K3A(StreamState *stream, int32_t n, float *r, float a, float b);
QORL_HUX_API int32_t __huxdBRngMRG32K3A(StreamState *stream, int32_t n, double *r, double a, double b);
QORL_HUX_API int32_t __huxiBRngMRG32K3A(StreamState *stream, int32_t n, void *r);
/** @} */

/** @name R250: feedback shift register of 250 words. Neither leapfrog nor skip-ahead. */
/** @{ */
QORL_HUX_API int32_t __huxBRngR250InitStream(int32_t method, StreamState *stream, int32_t n, const void *params);
QORL_HUX_API int32_t __huxsBRngR250(StreamState *stream, int32_t n, float *r, float a, float b);
QORL_HUX_API int32_t __huxdBRngR250(StreamState *stream, int32_t n, double *r, double a, double b);
QORL_HUX_API int32_t __huxiBRngR250(StreamState *stream, int32_t n, void *r);
/** @} */

/** @name MT19937: the Mersenne Twister of period 2^19937 - 1, seeded by an array of words of any length. Skip-ahead. */
/** @{ */
QORL_HUX_API int32_t __huxBRngMT19937InitStream(int32_t method, StreamState *stream, int32_t n, const void *params);
QORL_HUX_API int32_t __huxsBRngMT19937(StreamState *stream, int32_t n, float *r, float a, float b);
QORL_HUX_API int32_t __huxdBRngMT19937(StreamState *stream, int32_t n, double *r, double a, double b);
QORL_HUX_API int32_t __huxiBRngMT19937(StreamState *stream, int32_t n, void *r);
/** @} */

/** @name SFMT19937: the Mersenne Twister on elements of 128 bits, seeded by an array of words. Skip-ahead. */
/** @{ */
QORL_HUX_API int32_t __huxBRngSFMT19937InitStream(int32_t method, StreamState *stream, int32_t n, const void *params);
QORL_HUX_API int32_t __huxsBRngSFMT19937(StreamState *stream, int32_t n, float *r, float a, float b);
QORL_HUX_API int32_t __huxdBRngSFMT19937(StreamState *stream, int32_t n, double *r, double a, double b);
QORL_HUX_API int32_t __huxiBRngSFMT19937(StreamState *stream, int32_t n, void *r);
/** @} */

/** @name ARS5: five AES rounds of a counter; HuxStatusNoAesInstruction where the processor has none. Skip-ahead, long
 * too. */
/** @{ */
QORL_HUX_API int32_t __huxBRngARS5InitStream(int32_t method, StreamState *stream, int32_t n, const void *params);
QORL_HUX_API int32_t __huxsBRngARS5(StreamState *stream, int32_t n, float *r, float a, float b);
QORL_HUX_API int32_t __huxdBRngARS5(StreamState *stream, int32_t n, double *r, double a, double b);
QORL_HUX_API int32_t __huxiBRngARS5(StreamState *stream, int32_t n, void *r);
/** @} */

/** @name PHILOX4X32X10: ten Philox rounds of a counter. Skip-ahead and long skip-ahead. */
/** @{ */
QORL_HUX_API int32_t __huxBRngPHILOX4X32X10InitStream(int32_t method, StreamState *stream, int32_t n,
                                                      const void *params);
QORL_HUX_API int32_t __huxsBRngPHILOX4X32X10(StreamState *stream, int32_t n, float *r, float a, float b);
QORL_HUX_API int32_t __huxdBRngPHILOX4X32X10(StreamState *stream, int32_t n, double *r, double a, double b);
QORL_HUX_API int32_t __huxiBRngPHILOX4X32X10(StreamState *stream, int32_t n, void *r);
/** @} */

/** @brief 1 when the processor has the AES instructions, otherwise 0. Thread safe. */
QORL_HUX_API int32_t __huxCPUisAES(void);

/** @brief 1 when the processor has the AES instructions on 256-bit registers, otherwise 0. Thread safe. */
QORL_HUX_API int32_t __huxCPUisVAES(void);

#ifdef __cplusplus
}
#endif

#endif
