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
 * @return The block, its contents undefined; null when the memory is not there, however large the request, or when the
 *         alignment is no power of two. `errno` is left as it was.
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

/* --------------------------------------------------------------------------------------------- BLAS and LAPACK -- */

/*
 * Linear algebra, under the names that the system calls: what the BLAS and LAPACK library that this one is linked with
 * has under the same name without the prefix.
 *
 * Everything goes by pointer. Integers are 32 bits wide: who has more than 2^31 - 1 rows works in blocks. Matrices are
 * stored by columns, with the leading dimension lda (ldb, ...) between columns, at least the number of rows and at
 * least 1; a matrix stored by rows is thus the transpose, and its lower triangle is the upper one here. Of a character
 * argument the first letter counts, in either case: side "L" or "R", triangle (uplo) "U" or "L". Arrays that are
 * written overlap no other argument.
 *
 * Where the result has an `info`, a bad argument is told there; else the BLAS library's own handler is called, which
 * prints. All are thread safe. They may use threads of their own, as OMP_NUM_THREADS asks, but inside a body of a loop
 * that runs on several threads they run on that thread alone, as does an unthreaded form (with an x before the type
 * letter) wherever it is called. Both hold for OpenBLAS in its OpenMP build and for any BLAS that has no threads;
 * another one has its own rules. Results may differ in the last bits between thread counts and processors.
 */

/**
 * @brief Matrix product: C := alpha op(A) op(B) + beta C.
 * @param transa,transb "N" for op(X) = X, "T" for its transpose.
 * @param m,n,k         op(A) is m by k, op(B) is k by n, C is m by n.
 * @param alpha,beta    Scalars; with beta 0 the contents of C are not read.
 * @param a,lda,b,ldb   The factors.
 * @param c,ldc         The result.
 */
QORL_CORE_API void qorl_core_dgemm(const char *transa, const char *transb, const int32_t *m, const int32_t *n,
                                   const int32_t *k, const double *alpha, const double *a, const int32_t *lda,
                                   const double *b, const int32_t *ldb, const double *beta, double *c,
                                   const int32_t *ldc);

/** Single precision form of qorl_core_dgemm(). */
QORL_CORE_API void qorl_core_sgemm(const char *transa, const char *transb, const int32_t *m, const int32_t *n,
                                   const int32_t *k, const float *alpha, const float *a, const int32_t *lda,
                                   const float *b, const int32_t *ldb, const float *beta, float *c, const int32_t *ldc);

/** Unthreaded form of qorl_core_dgemm(). */
QORL_CORE_API void qorl_core_xdgemm(const char *transa, const char *transb, const int32_t *m, const int32_t *n,
                                    const int32_t *k, const double *alpha, const double *a, const int32_t *lda,
                                    const double *b, const int32_t *ldb, const double *beta, double *c,
                                    const int32_t *ldc);

/** Unthreaded form of qorl_core_sgemm(). */
QORL_CORE_API void qorl_core_xsgemm(const char *transa, const char *transb, const int32_t *m, const int32_t *n,
                                    const int32_t *k, const float *alpha, const float *a, const int32_t *lda,
                                    const float *b, const int32_t *ldb, const float *beta, float *c,
                                    const int32_t *ldc);

/**
 * @brief Matrix times vector: y := alpha op(A) x + beta y.
 * @param trans      "N" for op(A) = A, "T" for its transpose.
 * @param m,n        A is m by n.
 * @param alpha,beta Scalars; with beta 0 the contents of y are not read.
 * @param a,lda      The matrix.
 * @param x,incx     The vector and the step between its elements, not 0.
 * @param y,incy     The result and the step between its elements, not 0.
 */
QORL_CORE_API void qorl_core_dgemv(const char *trans, const int32_t *m, const int32_t *n, const double *alpha,
                                   const double *a, const int32_t *lda, const double *x, const int32_t *incx,
                                   const double *beta, double *y, const int32_t *incy);

/** Single precision form of qorl_core_dgemv(). */
QORL_CORE_API void qorl_core_sgemv(const char *trans, const int32_t *m, const int32_t *n, const float *alpha,
                                   const float *a, const int32_t *lda, const float *x, const int32_t *incx,
                                   const float *beta, float *y, const int32_t *incy);

/**
 * @brief Product with a symmetric matrix: C := alpha A B + beta C (side "L") or alpha B A + beta C (side "R").
 * @param side       Where the symmetric matrix stands.
 * @param uplo       The triangle of A that is read.
 * @param m,n        B and C are m by n; A is of order m (side "L") or n (side "R").
 * @param alpha,beta Scalars; with beta 0 the contents of C are not read.
 * @param a,lda      The symmetric matrix.
 * @param b,ldb      The other factor.
 * @param c,ldc      The result.
 */
QORL_CORE_API void qorl_core_dsymm(const char *side, const char *uplo, const int32_t *m, const int32_t *n,
                                   const double *alpha, const double *a, const int32_t *lda, const double *b,
                                   const int32_t *ldb, const double *beta, double *c, const int32_t *ldc);

/** Single precision form of qorl_core_dsymm(). */
QORL_CORE_API void qorl_core_ssymm(const char *side, const char *uplo, const int32_t *m, const int32_t *n,
                                   const float *alpha, const float *a, const int32_t *lda, const float *b,
                                   const int32_t *ldb, const float *beta, float *c, const int32_t *ldc);

/** Unthreaded form of qorl_core_dsymm(). */
QORL_CORE_API void qorl_core_xdsymm(const char *side, const char *uplo, const int32_t *m, const int32_t *n,
                                    const double *alpha, const double *a, const int32_t *lda, const double *b,
                                    const int32_t *ldb, const double *beta, double *c, const int32_t *ldc);

/** Unthreaded form of qorl_core_ssymm(). */
QORL_CORE_API void qorl_core_xssymm(const char *side, const char *uplo, const int32_t *m, const int32_t *n,
                                    const float *alpha, const float *a, const int32_t *lda, const float *b,
                                    const int32_t *ldb, const float *beta, float *c, const int32_t *ldc);

/**
 * @brief Symmetric update of rank one: A := alpha x x' + A.
 * @param uplo   The triangle of A that is updated.
 * @param n      The order of A.
 * @param alpha  Scalar.
 * @param x,incx The vector and the step between its elements, not 0.
 * @param a,lda  The matrix.
 */
QORL_CORE_API void qorl_core_dsyr(const char *uplo, const int32_t *n, const double *alpha, const double *x,
                                  const int32_t *incx, double *a, const int32_t *lda);

/** Single precision form of qorl_core_dsyr(). */
QORL_CORE_API void qorl_core_ssyr(const char *uplo, const int32_t *n, const float *alpha, const float *x,
                                  const int32_t *incx, float *a, const int32_t *lda);

/** Unthreaded form of qorl_core_dsyr(). */
QORL_CORE_API void qorl_core_xdsyr(const char *uplo, const int32_t *n, const double *alpha, const double *x,
                                   const int32_t *incx, double *a, const int32_t *lda);

/** Unthreaded form of qorl_core_ssyr(). */
QORL_CORE_API void qorl_core_xssyr(const char *uplo, const int32_t *n, const float *alpha, const float *x,
                                   const int32_t *incx, float *a, const int32_t *lda);

/**
 * @brief Symmetric update of rank k: C := alpha A A' + beta C (trans "N") or alpha A' A + beta C (trans "T").
 * @param uplo       The triangle of C that is updated.
 * @param trans      The form.
 * @param n,k        C is of order n; A is n by k (trans "N") or k by n (trans "T").
 * @param alpha,beta Scalars; with beta 0 the contents of C are not read.
 * @param a,lda      The factor.
 * @param c,ldc      The result.
 */
QORL_CORE_API void qorl_core_dsyrk(const char *uplo, const char *trans, const int32_t *n, const int32_t *k,
                                   const double *alpha, const double *a, const int32_t *lda, const double *beta,
                                   double *c, const int32_t *ldc);

/** Single precision form of qorl_core_dsyrk(). */
QORL_CORE_API void qorl_core_ssyrk(const char *uplo, const char *trans, const int32_t *n, const int32_t *k,
                                   const float *alpha, const float *a, const int32_t *lda, const float *beta, float *c,
                                   const int32_t *ldc);

/** Unthreaded form of qorl_core_dsyrk(). */
QORL_CORE_API void qorl_core_xdsyrk(const char *uplo, const char *trans, const int32_t *n, const int32_t *k,
                                    const double *alpha, const double *a, const int32_t *lda, const double *beta,
                                    double *c, const int32_t *ldc);

/** Unthreaded form of qorl_core_ssyrk(). */
QORL_CORE_API void qorl_core_xssyrk(const char *uplo, const char *trans, const int32_t *n, const int32_t *k,
                                    const float *alpha, const float *a, const int32_t *lda, const float *beta, float *c,
                                    const int32_t *ldc);

/**
 * @brief Triangular product in place: B := alpha op(A) B (side "L") or alpha B op(A) (side "R").
 * @param side   Where the triangular matrix stands.
 * @param uplo   The triangle of A that is read; the other counts as zero.
 * @param transa "N" for op(A) = A, "T" for its transpose.
 * @param diag   "N" when the diagonal is read, "U" when it counts as ones.
 * @param m,n    B is m by n; A is of order m (side "L") or n (side "R").
 * @param alpha  Scalar.
 * @param a,lda  The triangular matrix.
 * @param b,ldb  The other factor, then the result.
 */
QORL_CORE_API void qorl_blas4zet_dtrmm(const char *side, const char *uplo, const char *transa, const char *diag,
                                       const int32_t *m, const int32_t *n, const double *alpha, const double *a,
                                       const int32_t *lda, double *b, const int32_t *ldb);

/** Single precision form of qorl_blas4zet_dtrmm(). */
QORL_CORE_API void qorl_blas4zet_strmm(const char *side, const char *uplo, const char *transa, const char *diag,
                                       const int32_t *m, const int32_t *n, const float *alpha, const float *a,
                                       const int32_t *lda, float *b, const int32_t *ldb);

/** Unthreaded form of qorl_blas4zet_dtrmm(). */
QORL_CORE_API void qorl_blas_xdtrmm_4zet(const char *side, const char *uplo, const char *transa, const char *diag,
                                         const int32_t *m, const int32_t *n, const double *alpha, const double *a,
                                         const int32_t *lda, double *b, const int32_t *ldb);

/** Unthreaded form of qorl_blas4zet_strmm(). */
QORL_CORE_API void qorl_blas_xstrmm_4zet(const char *side, const char *uplo, const char *transa, const char *diag,
                                         const int32_t *m, const int32_t *n, const float *alpha, const float *a,
                                         const int32_t *lda, float *b, const int32_t *ldb);

/**
 * @brief Triangular product in place with a packed matrix: as qorl_blas4zet_dtrmm(), A being packed.
 * @param side,uplo,transa,diag As there.
 * @param m,n    B is m by n; A is of order m (side "L") or n (side "R").
 * @param alpha  Scalar.
 * @param ap     The triangle, column after column: n(n+1)/2 elements for the order n.
 * @param b,ldb  The other factor, then the result.
 *
 * Takes no memory but the stack, so it cannot fail.
 */
QORL_CORE_API void qorl_blas4zet_dptrmm(const char *side, const char *uplo, const char *transa, const char *diag,
                                        const int32_t *m, const int32_t *n, const double *alpha, const double *ap,
                                        double *b, const int32_t *ldb);

/** Single precision form of qorl_blas4zet_dptrmm(). */
QORL_CORE_API void qorl_blas4zet_sptrmm(const char *side, const char *uplo, const char *transa, const char *diag,
                                        const int32_t *m, const int32_t *n, const float *alpha, const float *ap,
                                        float *b, const int32_t *ldb);

/**
 * @brief Cholesky factor: A = U' U (uplo "U") or L L' (uplo "L").
 * @param uplo  The triangle that is read and written; the other is not touched.
 * @param n     The order.
 * @param a,lda The matrix, then the result.
 * @param info  0, or k > 0 when the leading minor of order k is not positive, or -k for a bad k-th argument.
 */
QORL_CORE_API void qorl_core_dpotrf(const char *uplo, const int32_t *n, double *a, const int32_t *lda, int32_t *info);

/** Single precision form of qorl_core_dpotrf(). */
QORL_CORE_API void qorl_core_spotrf(const char *uplo, const int32_t *n, float *a, const int32_t *lda, int32_t *info);

/**
 * @brief Inverse of a positive definite matrix from its Cholesky factor.
 * @param uplo  The triangle that is read and written; the other is not touched.
 * @param n     The order.
 * @param a,lda The matrix, then the result.
 * @param info  0, or k > 0 when the k-th diagonal element of the factor is 0, or -k for a bad k-th argument.
 */
QORL_CORE_API void qorl_core_dpotri(const char *uplo, const int32_t *n, double *a, const int32_t *lda, int32_t *info);

/** Single precision form of qorl_core_dpotri(). */
QORL_CORE_API void qorl_core_spotri(const char *uplo, const int32_t *n, float *a, const int32_t *lda, int32_t *info);

/**
 * @brief Inverse of a triangular matrix, in place.
 * @param uplo  The triangle that is read and written; the other is not touched.
 * @param diag  "N" when the diagonal is read, "U" when it counts as ones.
 * @param n     The order.
 * @param a,lda The matrix, then its inverse.
 * @param info  0, or k > 0 when the k-th diagonal element is 0, or -k for a bad k-th argument.
 */
QORL_CORE_API void qorl_core_dtrtri(const char *uplo, const char *diag, const int32_t *n, double *a, const int32_t *lda,
                                    int32_t *info);

/** Single precision form of qorl_core_dtrtri(). */
QORL_CORE_API void qorl_core_strtri(const char *uplo, const char *diag, const int32_t *n, float *a, const int32_t *lda,
                                    int32_t *info);

/**
 * @brief Eigenvalues, and eigenvectors if wanted, of a symmetric matrix.
 * @param jobz       "N" for the values alone, "V" for the vectors as well.
 * @param uplo       The triangle that is read.
 * @param n          The order.
 * @param a,lda      The matrix; then the vectors as columns, or for "N" undefined in the triangle read.
 * @param w          n eigenvalues, ascending.
 * @param work,lwork Scratch and its size, at least 3n - 1 and 1; with lwork -1 only the best size is stored in work[0].
 * @param info       0, or k > 0 when the iteration did not converge, or -k for a bad k-th argument.
 */
QORL_CORE_API void qorl_core_dsyev(const char *jobz, const char *uplo, const int32_t *n, double *a, const int32_t *lda,
                                   double *w, double *work, const int32_t *lwork, int32_t *info);

/** Single precision form of qorl_core_dsyev(). */
QORL_CORE_API void qorl_core_ssyev(const char *jobz, const char *uplo, const int32_t *n, float *a, const int32_t *lda,
                                   float *w, float *work, const int32_t *lwork, int32_t *info);

/**
 * @brief Eigenvalues, and eigenvectors if wanted, of a packed symmetric matrix, by divide and conquer.
 * @param jobz         "N" for the values alone, "V" for the vectors as well.
 * @param uplo         The triangle that is packed.
 * @param n            The order.
 * @param ap           The triangle, column after column, n(n+1)/2 elements; overwritten.
 * @param w            n eigenvalues, ascending.
 * @param z,ldz        The vectors as columns; for "N" not touched.
 * @param work,lwork   Scratch and its size: with "V" at least 1 + 6n + n^2, with "N" at least 2n, for n = 1 at least 1.
 * @param iwork,liwork Scratch and its size: with "V" at least 3 + 5n, with "N" or n = 1 at least 1. With lwork or
 * liwork -1 only the sizes are stored, in work[0] and iwork[0].
 * @param info         0, or k > 0 when the iteration did not converge, or -k for a bad k-th argument.
 */
QORL_CORE_API void qorl_core_dspevd(const char *jobz, const char *uplo, const int32_t *n, double *ap, double *w,
                                    double *z, const int32_t *ldz, double *work, const int32_t *lwork, int32_t *iwork,
                                    const int32_t *liwork, int32_t *info);

/** Single precision form of qorl_core_dspevd(). */
QORL_CORE_API void qorl_core_sspevd(const char *jobz, const char *uplo, const int32_t *n, float *ap, float *w, float *z,
                                    const int32_t *ldz, float *work, const int32_t *lwork, int32_t *iwork,
                                    const int32_t *liwork, int32_t *info);

#ifdef __cplusplus
}
#endif

#endif
