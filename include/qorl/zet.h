/* Written by tools/write_header from the list of entries; change the list or the tool, not this file. */
#ifndef QORL_ZET_H
#define QORL_ZET_H

/**
 * @file
 * Element-wise mathematics over arrays at three accuracy levels, for x86-64 processors with AVX2 and FMA.
 *
 * **Names.** A function is named by its element type and its level: `_zet<t><Function><suffix>`.
 *
 * | Type `<t>` | Element                    | LA    | HA                 | EP    |
 * |------------|----------------------------|-------|--------------------|-------|
 * | `s`        | `float`                    | `_21` | none, also `_HA`   | `_11` |
 * | `d`        | `double`                   | `_50` | none, also `_HA`   | `_26` |
 * | `c`        | QorlComplex8               | `_21` | none, also `_HA`   | `_11` |
 * | `z`        | QorlComplex16              | `_50` | none, also `_HA`   | `_26` |
 *
 * HA, high accuracy: error below 1 ulp (unit in the last place of the correctly rounded result). LA, lower accuracy:
 * below 4 ulp. EP, for speed, about half the bits: relative error up to 2^-11 in single and 2^-26 in double precision.
 * The number in a suffix labels the level by the type's width. The measured errors stand in docs/accuracy.md. A
 * function that is exact, or whose levels share their code, gives the same bits at those levels.
 *
 * A trailing `I` behind the function name marks the strided form: each array is followed at once by its stride.
 *
 * Every name of the interface is declared here. A release of the library holds the functions that its change log
 * lists; use of another one fails when the program is linked, never with a wrong result.
 *
 * **Arguments.** `n` is the count of elements, at least 0; with 0 no element is read or written. Arrays need no
 * alignment beyond that of their element. An output array may be an input array itself (same start, same stride); any
 * other overlap of an output with another array gives undefined contents. Nothing outside the n elements is read or
 * written. Strides are signed counts of elements; a negative stride walks backward from the pointer given, a zero
 * stride uses one element n times, and of several results for one element the last stays. Scalars are passed by value
 * and hold for all elements. Arguments are not checked.
 *
 * **Results.** Inside a function the rounding mode is to nearest, all floating-point exceptions are masked and
 * denormals are kept (unless the mode word asks for flushing); the caller's settings are back on return, with the
 * sticky flags of the computation added. A result depends on its arguments, the level and the denormal setting only:
 * not on n, the place in the array, alignment, strides (1 or others), thread or earlier calls.
 *
 * **Errors.** The functions return nothing. An element that has no finite result by its nature gets the stated
 * infinity, NaN or zero, and raises a status: see QorlZetStatus. The status is stored per thread, where
 * qorl_zet_kernel_GetErrStatus finds the last one; then, as the error mode of the thread's mode word says, the callback
 * is called, errno is set, a message is printed to standard error and a floating-point exception is raised. The default
 * is errno, exception flag and callback. NaN in gives NaN out and raises nothing, unless the function says otherwise.
 *
 * **Threads.** Every function may be called from any number of threads at once. Mode word, status and callback belong
 * to the calling thread; a new thread starts with the defaults, or with what the environment variable QORL_ZET_MODE
 * asks for.
 *
 * **Cost.** Per element, see docs/performance.md; per call some tens of clocks. An element that needs special care
 * costs a function call of its own, and an element that raises costs the whole error path.
 */

#include <stdint.h>

#ifdef __cplusplus
extern "C" {
#endif

/** A complex number of two floats, the element of type `c`. */
typedef struct QorlComplex8 {
    float re, im;
} QorlComplex8;

/** A complex number of two doubles, the element of type `z`. */
typedef struct QorlComplex16 {
    double re, im;
} QorlComplex16;

/** The statuses. The functions below raise 1 to 4; the others are stored and reported when a caller sets them. */
typedef enum QorlZetStatus {
    QORL_ZET_REFUSED = -2,          /**< errno EACCES */
    QORL_ZET_INVALID_ARGUMENT = -1, /**< errno EINVAL */
    QORL_ZET_OK = 0,                /**< nothing happened */
    QORL_ZET_DOMAIN = 1,            /**< domain error: errno EDOM, invalid flag */
    QORL_ZET_SINGULARITY = 2,       /**< singularity: errno ERANGE, divide-by-zero flag */
    QORL_ZET_OVERFLOW = 3,          /**< overflow: errno ERANGE, overflow flag */
    QORL_ZET_UNDERFLOW = 4          /**< underflow: errno ERANGE, underflow flag */
} QorlZetStatus;

/** The fields of the mode word and their values. A field that is 0 in the argument of SetMode stays as it is. */
typedef enum QorlZetMode {
    QORL_ZET_ACCURACY_MASK = 0xF, /**< the level that qorl_zet_kernel_GetTTableIndex reports */
    QORL_ZET_ACCURACY_LA = 0x1,
    QORL_ZET_ACCURACY_HA = 0x2,
    QORL_ZET_ACCURACY_EP = 0x3,

    QORL_ZET_CONSISTENCY_MASK = 0xF0, /**< carried from the environment variable only; SetMode leaves it alone */
    QORL_ZET_FLOAT_CONSISTENT = 0x10,
    QORL_ZET_DOUBLE_CONSISTENT = 0x20,
    QORL_ZET_RESTORE = 0x30,

    QORL_ZET_ERRMODE_MASK = 0xFF00,     /**< what a raise does, a bit for each action */
    QORL_ZET_ERRMODE_IGNORE = 0x100,    /**< alone: store the status and nothing else */
    QORL_ZET_ERRMODE_ERRNO = 0x200,     /**< set errno */
    QORL_ZET_ERRMODE_STDERR = 0x400,    /**< print a message to standard error */
    QORL_ZET_ERRMODE_EXCEPT = 0x800,    /**< raise the floating-point exception, see the traps */
    QORL_ZET_ERRMODE_CALLBACK = 0x1000, /**< call the thread's callback */
    QORL_ZET_ERRMODE_NOERR = 0x2000,    /**< alone: no error handling, not even the status */
    QORL_ZET_ERRMODE_DEFAULT = 0x1A00,  /**< errno, exception and callback */

    QORL_ZET_DENORMALS_MASK = 0x3C0000,
    QORL_ZET_DENORMALS_KEEP = 0x140000,
    QORL_ZET_DENORMALS_FLUSH = 0x280000, /**< flush denormal inputs and results to zero inside the functions */

    QORL_ZET_TRAPS_MASK = 0xF000000, /**< which exception is left unmasked while QORL_ZET_ERRMODE_EXCEPT acts */
    QORL_ZET_TRAP_INVALID = 0x1000000,
    QORL_ZET_TRAP_DIVBYZERO = 0x2000000,
    QORL_ZET_TRAP_OVERFLOW = 0x4000000,
    QORL_ZET_TRAP_UNDERFLOW = 0x8000000,

    QORL_ZET_MODE_DEFAULT = 0x1A02 /**< level HA, default error mode, denormals kept, no traps */
} QorlZetMode;

/**
 * What a callback is told about one raised element. Single-precision numbers are widened. A function with one input
 * array reports it as both inputs, one with one result array reports it as both results. When a function works in place
 * the inputs are the stored results, since a result is stored before it is reported.
 */
typedef struct QorlErrorRecord {
    int32_t code;          /**< the status */
    int32_t index;         /**< the element's index; in a strided function the count of steps */
    double in1, in2;       /**< inputs, real parts */
    double out1, out2;     /**< results, real parts; the callback may change them, and return 0 to have them stored */
    char funcName[64];     /**< such as "vdExp", NUL-terminated */
    int32_t funcNameLen;   /**< its length without the NUL */
    double in1Im, in2Im;   /**< inputs, imaginary parts; written for the complex types only */
    double out1Im, out2Im; /**< results, imaginary parts; written for the complex types only */
} QorlErrorRecord;

/**
 * An error callback. It runs on the thread that raised, inside the function, with rounding to nearest and exceptions
 * masked; it may call the functions of the next section. A non-zero return ends the handling of this element: errno,
 * message and exception are skipped and the element keeps the result as the function stored it.
 */
typedef int32_t (*QorlErrorCallBack)(QorlErrorRecord *record);

/* ---------------------------------------------------------------------------------------------------------------------
 * Mode, status and callback of the calling thread. Each has two names for one function. They take no lock; when the
 * thread's record cannot be created for lack of memory the process ends with a message.
 */

/** Stores a status as given. @return the old status */
int32_t qorl_zet_kernel_SetErrStatus(int32_t status);
/** @copydoc qorl_zet_kernel_SetErrStatus */
int32_t _zetSetErrStatus(int32_t status);

/** @return the status of the last raise, or what SetErrStatus stored since; 0 when nothing happened */
int32_t qorl_zet_kernel_GetErrStatus(void);
/** @copydoc qorl_zet_kernel_GetErrStatus */
int32_t _zetGetErrStatus(void);

/** Stores status 0. @return the old status */
int32_t qorl_zet_kernel_ClearErrStatus(void);
/** @copydoc qorl_zet_kernel_ClearErrStatus */
int32_t _zetClearErrStatus(void);

/** Sets the callback and the mode bit that has it called; null takes both away. @return the old callback or null */
QorlErrorCallBack qorl_zet_kernel_SetErrorCallBack(QorlErrorCallBack callback);
/** @copydoc qorl_zet_kernel_SetErrorCallBack */
QorlErrorCallBack _zetSetErrorCallBack(QorlErrorCallBack callback);

/** @return the callback or null */
QorlErrorCallBack qorl_zet_kernel_GetErrorCallBack(void);
/** @copydoc qorl_zet_kernel_GetErrorCallBack */
QorlErrorCallBack _zetGetErrorCallBack(void);

/** The same as SetErrorCallBack with null. @return the old callback or null */
QorlErrorCallBack qorl_zet_kernel_ClearErrorCallBack(void);
/** @copydoc qorl_zet_kernel_ClearErrorCallBack */
QorlErrorCallBack _zetClearErrorCallBack(void);

/**
 * Merges a word into the mode, field by field: a field of the argument that is not 0 replaces that of the mode, a field
 * of 0 leaves it, so no field can be cleared. Bits 16 and 17 are merged alike and not used; the consistency field is
 * not merged. @return the old mode
 */
uint32_t qorl_zet_kernel_SetMode(uint32_t mode);
/** @copydoc qorl_zet_kernel_SetMode */
uint32_t _zetSetMode(uint32_t mode);

/** @return the mode word */
uint32_t qorl_zet_kernel_GetMode(void);
/** @copydoc qorl_zet_kernel_GetMode */
uint32_t _zetGetMode(void);

/**
 * Sets the start of the array that error indices count from: the index of a record becomes the element's index plus the
 * distance of the function's first array from this pointer, in elements. For a caller that cuts one array into pieces.
 * Null, the state of a new thread, switches it off. @return the pointer
 */
void *qorl_zet_kernel_SetInterfInputVectorPointer(void *vector);
/** @copydoc qorl_zet_kernel_SetInterfInputVectorPointer */
void *_zetSetInterfInputVectorPointer(void *vector);

/* ---------------------------------------------------------------------------------------------------------------------
 * Queries. The kernel tables that they index are declared in qorl/zet_tables.h.
 */

/** @return the slot that the accuracy field of the thread's mode word names: 0 LA, 1 HA, 2 EP; not range-checked */
int32_t qorl_zet_kernel_GetTTableIndex(void);

/** @return the slot that the accuracy field of `mode` names; the first argument is ignored, the thread's mode not read
 */
int32_t qorl_zet_kernel_GetTTableIndexM(int32_t ignored, uint32_t mode);

/** @return 7, the number of this processor variant */
int32_t dll_cpu_version(void);

/* ---------------------------------------------------------------------------------------------------------------------
 * One real array in, one real array out: (n, a, y).
 */

/** @name Ceil
 * y = the smallest integer not below a.
 * Keeps zeros, infinities and the sign of zero. Raises nothing.
 * @{ */
void _zetsCeil_21(int32_t n, const float *a, float *y);
void _zetsCeil(int32_t n, const float *a, float *y);
void _zetsCeil_HA(int32_t n, const float *a, float *y);
void _zetsCeil_11(int32_t n, const float *a, float *y);
void _zetsCeilI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCeilI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCeilI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCeilI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdCeil_50(int32_t n, const double *a, double *y);
void _zetdCeil(int32_t n, const double *a, double *y);
void _zetdCeil_HA(int32_t n, const double *a, double *y);
void _zetdCeil_26(int32_t n, const double *a, double *y);
void _zetdCeilI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCeilI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCeilI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCeilI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Floor
 * y = the largest integer not above a.
 * Keeps zeros, infinities and the sign of zero. Raises nothing.
 * @{ */
void _zetsFloor_21(int32_t n, const float *a, float *y);
void _zetsFloor(int32_t n, const float *a, float *y);
void _zetsFloor_HA(int32_t n, const float *a, float *y);
void _zetsFloor_11(int32_t n, const float *a, float *y);
void _zetsFloorI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsFloorI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsFloorI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsFloorI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdFloor_50(int32_t n, const double *a, double *y);
void _zetdFloor(int32_t n, const double *a, double *y);
void _zetdFloor_HA(int32_t n, const double *a, double *y);
void _zetdFloor_26(int32_t n, const double *a, double *y);
void _zetdFloorI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdFloorI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdFloorI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdFloorI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Frac
 * y = a - Trunc(a), with the sign of a.
 * The fraction of an infinity is a zero with its sign. Raises nothing.
 * @{ */
void _zetsFrac_21(int32_t n, const float *a, float *y);
void _zetsFrac(int32_t n, const float *a, float *y);
void _zetsFrac_HA(int32_t n, const float *a, float *y);
void _zetsFrac_11(int32_t n, const float *a, float *y);
void _zetsFracI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsFracI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsFracI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsFracI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdFrac_50(int32_t n, const double *a, double *y);
void _zetdFrac(int32_t n, const double *a, double *y);
void _zetdFrac_HA(int32_t n, const double *a, double *y);
void _zetdFrac_26(int32_t n, const double *a, double *y);
void _zetdFracI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdFracI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdFracI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdFracI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name NearbyInt
 * y = a rounded to an integer, ties to even.
 * Leaves the inexact flag alone. Raises nothing.
 * @{ */
void _zetsNearbyInt_21(int32_t n, const float *a, float *y);
void _zetsNearbyInt(int32_t n, const float *a, float *y);
void _zetsNearbyInt_HA(int32_t n, const float *a, float *y);
void _zetsNearbyInt_11(int32_t n, const float *a, float *y);
void _zetsNearbyIntI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsNearbyIntI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsNearbyIntI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsNearbyIntI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdNearbyInt_50(int32_t n, const double *a, double *y);
void _zetdNearbyInt(int32_t n, const double *a, double *y);
void _zetdNearbyInt_HA(int32_t n, const double *a, double *y);
void _zetdNearbyInt_26(int32_t n, const double *a, double *y);
void _zetdNearbyIntI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdNearbyIntI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdNearbyIntI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdNearbyIntI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Rint
 * y = a rounded to an integer, ties to even.
 * Sets the inexact flag where the rounding changes the value. Raises nothing.
 * @{ */
void _zetsRint_21(int32_t n, const float *a, float *y);
void _zetsRint(int32_t n, const float *a, float *y);
void _zetsRint_HA(int32_t n, const float *a, float *y);
void _zetsRint_11(int32_t n, const float *a, float *y);
void _zetsRintI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsRintI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsRintI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsRintI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdRint_50(int32_t n, const double *a, double *y);
void _zetdRint(int32_t n, const double *a, double *y);
void _zetdRint_HA(int32_t n, const double *a, double *y);
void _zetdRint_26(int32_t n, const double *a, double *y);
void _zetdRintI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdRintI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdRintI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdRintI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Round
 * y = a rounded to an integer, ties away from zero.
 * The sign of a stays, so -0.3 gives -0. Raises nothing.
 * @{ */
void _zetsRound_21(int32_t n, const float *a, float *y);
void _zetsRound(int32_t n, const float *a, float *y);
void _zetsRound_HA(int32_t n, const float *a, float *y);
void _zetsRound_11(int32_t n, const float *a, float *y);
void _zetsRoundI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsRoundI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsRoundI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsRoundI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdRound_50(int32_t n, const double *a, double *y);
void _zetdRound(int32_t n, const double *a, double *y);
void _zetdRound_HA(int32_t n, const double *a, double *y);
void _zetdRound_26(int32_t n, const double *a, double *y);
void _zetdRoundI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdRoundI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdRoundI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdRoundI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Trunc
 * y = a rounded toward zero to an integer.
 * The sign of a stays, so -0.3 gives -0. Raises nothing.
 * @{ */
void _zetsTrunc_21(int32_t n, const float *a, float *y);
void _zetsTrunc(int32_t n, const float *a, float *y);
void _zetsTrunc_HA(int32_t n, const float *a, float *y);
void _zetsTrunc_11(int32_t n, const float *a, float *y);
void _zetsTruncI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTruncI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTruncI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTruncI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdTrunc_50(int32_t n, const double *a, double *y);
void _zetdTrunc(int32_t n, const double *a, double *y);
void _zetdTrunc_HA(int32_t n, const double *a, double *y);
void _zetdTrunc_26(int32_t n, const double *a, double *y);
void _zetdTruncI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTruncI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTruncI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTruncI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Abs
 * y = |a|.
 * Exact. Raises nothing.
 * @{ */
void _zetsAbs_21(int32_t n, const float *a, float *y);
void _zetsAbs(int32_t n, const float *a, float *y);
void _zetsAbs_HA(int32_t n, const float *a, float *y);
void _zetsAbs_11(int32_t n, const float *a, float *y);
void _zetsAbsI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAbsI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAbsI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAbsI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAbs_50(int32_t n, const double *a, double *y);
void _zetdAbs(int32_t n, const double *a, double *y);
void _zetdAbs_HA(int32_t n, const double *a, double *y);
void _zetdAbs_26(int32_t n, const double *a, double *y);
void _zetdAbsI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAbsI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAbsI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAbsI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Inv
 * y = 1 / a.
 * A zero gives an infinity of its sign and raises singularity; an infinity gives a zero of its sign.
 * @{ */
void _zetsInv_21(int32_t n, const float *a, float *y);
void _zetsInv(int32_t n, const float *a, float *y);
void _zetsInv_HA(int32_t n, const float *a, float *y);
void _zetsInv_11(int32_t n, const float *a, float *y);
void _zetsInvI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsInvI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsInvI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsInvI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdInv_50(int32_t n, const double *a, double *y);
void _zetdInv(int32_t n, const double *a, double *y);
void _zetdInv_HA(int32_t n, const double *a, double *y);
void _zetdInv_26(int32_t n, const double *a, double *y);
void _zetdInvI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdInvI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdInvI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdInvI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Sqrt
 * y = the square root of a.
 * Below zero: NaN and domain error. -0 gives -0.
 * @{ */
void _zetsSqrt_21(int32_t n, const float *a, float *y);
void _zetsSqrt(int32_t n, const float *a, float *y);
void _zetsSqrt_HA(int32_t n, const float *a, float *y);
void _zetsSqrt_11(int32_t n, const float *a, float *y);
void _zetsSqrtI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSqrtI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSqrtI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSqrtI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdSqrt_50(int32_t n, const double *a, double *y);
void _zetdSqrt(int32_t n, const double *a, double *y);
void _zetdSqrt_HA(int32_t n, const double *a, double *y);
void _zetdSqrt_26(int32_t n, const double *a, double *y);
void _zetdSqrtI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSqrtI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSqrtI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSqrtI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name InvSqrt
 * y = 1 / sqrt(a).
 * Below zero: NaN and domain error. A zero gives an infinity of its sign and raises singularity.
 * @{ */
void _zetsInvSqrt_21(int32_t n, const float *a, float *y);
void _zetsInvSqrt(int32_t n, const float *a, float *y);
void _zetsInvSqrt_HA(int32_t n, const float *a, float *y);
void _zetsInvSqrt_11(int32_t n, const float *a, float *y);
void _zetsInvSqrtI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsInvSqrtI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsInvSqrtI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsInvSqrtI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdInvSqrt_50(int32_t n, const double *a, double *y);
void _zetdInvSqrt(int32_t n, const double *a, double *y);
void _zetdInvSqrt_HA(int32_t n, const double *a, double *y);
void _zetdInvSqrt_26(int32_t n, const double *a, double *y);
void _zetdInvSqrtI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdInvSqrtI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdInvSqrtI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdInvSqrtI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Cbrt
 * y = the real cube root of a.
 * The whole line, odd. Raises nothing.
 * @{ */
void _zetsCbrt_21(int32_t n, const float *a, float *y);
void _zetsCbrt(int32_t n, const float *a, float *y);
void _zetsCbrt_HA(int32_t n, const float *a, float *y);
void _zetsCbrt_11(int32_t n, const float *a, float *y);
void _zetsCbrtI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCbrtI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCbrtI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCbrtI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdCbrt_50(int32_t n, const double *a, double *y);
void _zetdCbrt(int32_t n, const double *a, double *y);
void _zetdCbrt_HA(int32_t n, const double *a, double *y);
void _zetdCbrt_26(int32_t n, const double *a, double *y);
void _zetdCbrtI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCbrtI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCbrtI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCbrtI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name InvCbrt
 * y = 1 / cbrt(a).
 * Odd. A zero gives an infinity of its sign and raises singularity; an infinity gives a zero of its sign.
 * @{ */
void _zetsInvCbrt_21(int32_t n, const float *a, float *y);
void _zetsInvCbrt(int32_t n, const float *a, float *y);
void _zetsInvCbrt_HA(int32_t n, const float *a, float *y);
void _zetsInvCbrt_11(int32_t n, const float *a, float *y);
void _zetsInvCbrtI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsInvCbrtI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsInvCbrtI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsInvCbrtI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdInvCbrt_50(int32_t n, const double *a, double *y);
void _zetdInvCbrt(int32_t n, const double *a, double *y);
void _zetdInvCbrt_HA(int32_t n, const double *a, double *y);
void _zetdInvCbrt_26(int32_t n, const double *a, double *y);
void _zetdInvCbrtI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdInvCbrtI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdInvCbrtI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdInvCbrtI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Exp
 * y = e^a.
 * Overflow gives +infinity and raises overflow; a denormal or zero result of a finite a raises underflow.
 * @{ */
void _zetsExp_21(int32_t n, const float *a, float *y);
void _zetsExp(int32_t n, const float *a, float *y);
void _zetsExp_HA(int32_t n, const float *a, float *y);
void _zetsExp_11(int32_t n, const float *a, float *y);
void _zetsExpI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExpI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExpI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExpI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdExp_50(int32_t n, const double *a, double *y);
void _zetdExp(int32_t n, const double *a, double *y);
void _zetdExp_HA(int32_t n, const double *a, double *y);
void _zetdExp_26(int32_t n, const double *a, double *y);
void _zetdExpI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExpI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExpI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExpI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Ln
 * y = the natural logarithm of a.
 * A zero gives -infinity and raises singularity; below zero: NaN and domain error.
 * @{ */
void _zetsLn_21(int32_t n, const float *a, float *y);
void _zetsLn(int32_t n, const float *a, float *y);
void _zetsLn_HA(int32_t n, const float *a, float *y);
void _zetsLn_11(int32_t n, const float *a, float *y);
void _zetsLnI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLnI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLnI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLnI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdLn_50(int32_t n, const double *a, double *y);
void _zetdLn(int32_t n, const double *a, double *y);
void _zetdLn_HA(int32_t n, const double *a, double *y);
void _zetdLn_26(int32_t n, const double *a, double *y);
void _zetdLnI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLnI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLnI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLnI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Log10
 * y = the logarithm of a to the base 10.
 * A zero gives -infinity and raises singularity; below zero: NaN and domain error.
 * @{ */
void _zetsLog10_21(int32_t n, const float *a, float *y);
void _zetsLog10(int32_t n, const float *a, float *y);
void _zetsLog10_HA(int32_t n, const float *a, float *y);
void _zetsLog10_11(int32_t n, const float *a, float *y);
void _zetsLog10I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLog10I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLog10I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLog10I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdLog10_50(int32_t n, const double *a, double *y);
void _zetdLog10(int32_t n, const double *a, double *y);
void _zetdLog10_HA(int32_t n, const double *a, double *y);
void _zetdLog10_26(int32_t n, const double *a, double *y);
void _zetdLog10I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLog10I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLog10I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLog10I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Cos
 * y = cos(a), a in radians.
 * Any finite a is reduced exactly. An infinity gives NaN and raises domain error.
 * @{ */
void _zetsCos_21(int32_t n, const float *a, float *y);
void _zetsCos(int32_t n, const float *a, float *y);
void _zetsCos_HA(int32_t n, const float *a, float *y);
void _zetsCos_11(int32_t n, const float *a, float *y);
void _zetsCosI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCosI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCosI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCosI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdCos_50(int32_t n, const double *a, double *y);
void _zetdCos(int32_t n, const double *a, double *y);
void _zetdCos_HA(int32_t n, const double *a, double *y);
void _zetdCos_26(int32_t n, const double *a, double *y);
void _zetdCosI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCosI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCosI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCosI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Sin
 * y = sin(a), a in radians.
 * Any finite a is reduced exactly; odd. An infinity gives NaN and raises domain error.
 * @{ */
void _zetsSin_21(int32_t n, const float *a, float *y);
void _zetsSin(int32_t n, const float *a, float *y);
void _zetsSin_HA(int32_t n, const float *a, float *y);
void _zetsSin_11(int32_t n, const float *a, float *y);
void _zetsSinI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSinI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSinI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSinI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdSin_50(int32_t n, const double *a, double *y);
void _zetdSin(int32_t n, const double *a, double *y);
void _zetdSin_HA(int32_t n, const double *a, double *y);
void _zetdSin_26(int32_t n, const double *a, double *y);
void _zetdSinI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSinI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSinI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSinI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Tan
 * y = tan(a), a in radians.
 * Any finite a is reduced exactly; odd. An infinity gives NaN and raises domain error.
 * @{ */
void _zetsTan_21(int32_t n, const float *a, float *y);
void _zetsTan(int32_t n, const float *a, float *y);
void _zetsTan_HA(int32_t n, const float *a, float *y);
void _zetsTan_11(int32_t n, const float *a, float *y);
void _zetsTanI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTanI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTanI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTanI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdTan_50(int32_t n, const double *a, double *y);
void _zetdTan(int32_t n, const double *a, double *y);
void _zetdTan_HA(int32_t n, const double *a, double *y);
void _zetdTan_26(int32_t n, const double *a, double *y);
void _zetdTanI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTanI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTanI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTanI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Acos
 * y = the angle in [0, pi] whose cosine is a.
 * |a| above 1: NaN and domain error.
 * @{ */
void _zetsAcos_21(int32_t n, const float *a, float *y);
void _zetsAcos(int32_t n, const float *a, float *y);
void _zetsAcos_HA(int32_t n, const float *a, float *y);
void _zetsAcos_11(int32_t n, const float *a, float *y);
void _zetsAcosI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAcosI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAcosI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAcosI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAcos_50(int32_t n, const double *a, double *y);
void _zetdAcos(int32_t n, const double *a, double *y);
void _zetdAcos_HA(int32_t n, const double *a, double *y);
void _zetdAcos_26(int32_t n, const double *a, double *y);
void _zetdAcosI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAcosI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAcosI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAcosI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Acosh
 * y = the inverse hyperbolic cosine of a, at least 0.
 * a below 1: NaN and domain error.
 * @{ */
void _zetsAcosh_21(int32_t n, const float *a, float *y);
void _zetsAcosh(int32_t n, const float *a, float *y);
void _zetsAcosh_HA(int32_t n, const float *a, float *y);
void _zetsAcosh_11(int32_t n, const float *a, float *y);
void _zetsAcoshI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAcoshI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAcoshI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAcoshI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAcosh_50(int32_t n, const double *a, double *y);
void _zetdAcosh(int32_t n, const double *a, double *y);
void _zetdAcosh_HA(int32_t n, const double *a, double *y);
void _zetdAcosh_26(int32_t n, const double *a, double *y);
void _zetdAcoshI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAcoshI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAcoshI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAcoshI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Asin
 * y = the angle in [-pi/2, pi/2] whose sine is a.
 * Odd. |a| above 1: NaN and domain error.
 * @{ */
void _zetsAsin_21(int32_t n, const float *a, float *y);
void _zetsAsin(int32_t n, const float *a, float *y);
void _zetsAsin_HA(int32_t n, const float *a, float *y);
void _zetsAsin_11(int32_t n, const float *a, float *y);
void _zetsAsinI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAsinI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAsinI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAsinI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAsin_50(int32_t n, const double *a, double *y);
void _zetdAsin(int32_t n, const double *a, double *y);
void _zetdAsin_HA(int32_t n, const double *a, double *y);
void _zetdAsin_26(int32_t n, const double *a, double *y);
void _zetdAsinI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAsinI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAsinI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAsinI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Asinh
 * y = the inverse hyperbolic sine of a.
 * The whole line, odd. Raises nothing.
 * @{ */
void _zetsAsinh_21(int32_t n, const float *a, float *y);
void _zetsAsinh(int32_t n, const float *a, float *y);
void _zetsAsinh_HA(int32_t n, const float *a, float *y);
void _zetsAsinh_11(int32_t n, const float *a, float *y);
void _zetsAsinhI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAsinhI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAsinhI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAsinhI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAsinh_50(int32_t n, const double *a, double *y);
void _zetdAsinh(int32_t n, const double *a, double *y);
void _zetdAsinh_HA(int32_t n, const double *a, double *y);
void _zetdAsinh_26(int32_t n, const double *a, double *y);
void _zetdAsinhI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAsinhI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAsinhI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAsinhI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Atan
 * y = the angle in [-pi/2, pi/2] whose tangent is a.
 * The whole line, odd. Raises nothing.
 * @{ */
void _zetsAtan_21(int32_t n, const float *a, float *y);
void _zetsAtan(int32_t n, const float *a, float *y);
void _zetsAtan_HA(int32_t n, const float *a, float *y);
void _zetsAtan_11(int32_t n, const float *a, float *y);
void _zetsAtanI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAtanI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAtanI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAtanI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAtan_50(int32_t n, const double *a, double *y);
void _zetdAtan(int32_t n, const double *a, double *y);
void _zetdAtan_HA(int32_t n, const double *a, double *y);
void _zetdAtan_26(int32_t n, const double *a, double *y);
void _zetdAtanI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAtanI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAtanI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAtanI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Atanh
 * y = the inverse hyperbolic tangent of a.
 * Odd. |a| equal to 1: a signed infinity and singularity; above 1: NaN and domain error.
 * @{ */
void _zetsAtanh_21(int32_t n, const float *a, float *y);
void _zetsAtanh(int32_t n, const float *a, float *y);
void _zetsAtanh_HA(int32_t n, const float *a, float *y);
void _zetsAtanh_11(int32_t n, const float *a, float *y);
void _zetsAtanhI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAtanhI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAtanhI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAtanhI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAtanh_50(int32_t n, const double *a, double *y);
void _zetdAtanh(int32_t n, const double *a, double *y);
void _zetdAtanh_HA(int32_t n, const double *a, double *y);
void _zetdAtanh_26(int32_t n, const double *a, double *y);
void _zetdAtanhI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAtanhI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAtanhI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAtanhI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Cosh
 * y = (e^a + e^-a) / 2.
 * Even. Overflow gives +infinity and raises overflow.
 * @{ */
void _zetsCosh_21(int32_t n, const float *a, float *y);
void _zetsCosh(int32_t n, const float *a, float *y);
void _zetsCosh_HA(int32_t n, const float *a, float *y);
void _zetsCosh_11(int32_t n, const float *a, float *y);
void _zetsCoshI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCoshI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCoshI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCoshI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdCosh_50(int32_t n, const double *a, double *y);
void _zetdCosh(int32_t n, const double *a, double *y);
void _zetdCosh_HA(int32_t n, const double *a, double *y);
void _zetdCosh_26(int32_t n, const double *a, double *y);
void _zetdCoshI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCoshI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCoshI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCoshI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Sinh
 * y = (e^a - e^-a) / 2.
 * Odd. Overflow gives a signed infinity and raises overflow.
 * @{ */
void _zetsSinh_21(int32_t n, const float *a, float *y);
void _zetsSinh(int32_t n, const float *a, float *y);
void _zetsSinh_HA(int32_t n, const float *a, float *y);
void _zetsSinh_11(int32_t n, const float *a, float *y);
void _zetsSinhI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSinhI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSinhI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSinhI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdSinh_50(int32_t n, const double *a, double *y);
void _zetdSinh(int32_t n, const double *a, double *y);
void _zetdSinh_HA(int32_t n, const double *a, double *y);
void _zetdSinh_26(int32_t n, const double *a, double *y);
void _zetdSinhI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSinhI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSinhI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSinhI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Tanh
 * y = the hyperbolic tangent of a.
 * Odd, within [-1, 1]. Raises nothing.
 * @{ */
void _zetsTanh_21(int32_t n, const float *a, float *y);
void _zetsTanh(int32_t n, const float *a, float *y);
void _zetsTanh_HA(int32_t n, const float *a, float *y);
void _zetsTanh_11(int32_t n, const float *a, float *y);
void _zetsTanhI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTanhI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTanhI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTanhI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdTanh_50(int32_t n, const double *a, double *y);
void _zetdTanh(int32_t n, const double *a, double *y);
void _zetdTanh_HA(int32_t n, const double *a, double *y);
void _zetdTanh_26(int32_t n, const double *a, double *y);
void _zetdTanhI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTanhI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTanhI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTanhI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Erf
 * y = 2 / sqrt(pi) times the integral of e^(-t^2) from 0 to a.
 * Odd, within [-1, 1]. Raises nothing.
 * @{ */
void _zetsErf_21(int32_t n, const float *a, float *y);
void _zetsErf(int32_t n, const float *a, float *y);
void _zetsErf_HA(int32_t n, const float *a, float *y);
void _zetsErf_11(int32_t n, const float *a, float *y);
void _zetsErfI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdErf_50(int32_t n, const double *a, double *y);
void _zetdErf(int32_t n, const double *a, double *y);
void _zetdErf_HA(int32_t n, const double *a, double *y);
void _zetdErf_26(int32_t n, const double *a, double *y);
void _zetdErfI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Erfc
 * y = 1 - Erf(a), accurate in the right tail.
 * Far in the right tail, where the result is 0, raises underflow.
 * @{ */
void _zetsErfc_21(int32_t n, const float *a, float *y);
void _zetsErfc(int32_t n, const float *a, float *y);
void _zetsErfc_HA(int32_t n, const float *a, float *y);
void _zetsErfc_11(int32_t n, const float *a, float *y);
void _zetsErfcI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfcI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfcI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfcI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdErfc_50(int32_t n, const double *a, double *y);
void _zetdErfc(int32_t n, const double *a, double *y);
void _zetdErfc_HA(int32_t n, const double *a, double *y);
void _zetdErfc_26(int32_t n, const double *a, double *y);
void _zetdErfcI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfcI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfcI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfcI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name ErfInv
 * y = x such that Erf(x) = a.
 * Odd. -1 and 1 give signed infinities and raise singularity; |a| above 1: NaN and domain error.
 * @{ */
void _zetsErfInv_21(int32_t n, const float *a, float *y);
void _zetsErfInv(int32_t n, const float *a, float *y);
void _zetsErfInv_HA(int32_t n, const float *a, float *y);
void _zetsErfInv_11(int32_t n, const float *a, float *y);
void _zetsErfInvI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfInvI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfInvI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfInvI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdErfInv_50(int32_t n, const double *a, double *y);
void _zetdErfInv(int32_t n, const double *a, double *y);
void _zetdErfInv_HA(int32_t n, const double *a, double *y);
void _zetdErfInv_26(int32_t n, const double *a, double *y);
void _zetdErfInvI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfInvI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfInvI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfInvI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Sqr
 * y = a * a.
 * An overflow is an infinity. Raises nothing.
 * @{ */
void _zetsSqr_21(int32_t n, const float *a, float *y);
void _zetsSqr(int32_t n, const float *a, float *y);
void _zetsSqr_HA(int32_t n, const float *a, float *y);
void _zetsSqr_11(int32_t n, const float *a, float *y);
void _zetsSqrI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSqrI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSqrI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSqrI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdSqr_50(int32_t n, const double *a, double *y);
void _zetdSqr(int32_t n, const double *a, double *y);
void _zetdSqr_HA(int32_t n, const double *a, double *y);
void _zetdSqr_26(int32_t n, const double *a, double *y);
void _zetdSqrI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSqrI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSqrI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSqrI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Expm1
 * y = e^a - 1, accurate near 0.
 * -infinity gives -1. Overflow gives +infinity and raises overflow.
 * @{ */
void _zetsExpm1_21(int32_t n, const float *a, float *y);
void _zetsExpm1(int32_t n, const float *a, float *y);
void _zetsExpm1_HA(int32_t n, const float *a, float *y);
void _zetsExpm1_11(int32_t n, const float *a, float *y);
void _zetsExpm1I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExpm1I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExpm1I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExpm1I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdExpm1_50(int32_t n, const double *a, double *y);
void _zetdExpm1(int32_t n, const double *a, double *y);
void _zetdExpm1_HA(int32_t n, const double *a, double *y);
void _zetdExpm1_26(int32_t n, const double *a, double *y);
void _zetdExpm1I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExpm1I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExpm1I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExpm1I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Log1p
 * y = Ln(1 + a), accurate near 0.
 * -1 gives -infinity and raises singularity; below -1: NaN and domain error.
 * @{ */
void _zetsLog1p_21(int32_t n, const float *a, float *y);
void _zetsLog1p(int32_t n, const float *a, float *y);
void _zetsLog1p_HA(int32_t n, const float *a, float *y);
void _zetsLog1p_11(int32_t n, const float *a, float *y);
void _zetsLog1pI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLog1pI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLog1pI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLog1pI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdLog1p_50(int32_t n, const double *a, double *y);
void _zetdLog1p(int32_t n, const double *a, double *y);
void _zetdLog1p_HA(int32_t n, const double *a, double *y);
void _zetdLog1p_26(int32_t n, const double *a, double *y);
void _zetdLog1pI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLog1pI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLog1pI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLog1pI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Pow3o2
 * y = a^(3/2).
 * Below zero: NaN and domain error. Overflow and underflow are raised.
 * @{ */
void _zetsPow3o2_21(int32_t n, const float *a, float *y);
void _zetsPow3o2(int32_t n, const float *a, float *y);
void _zetsPow3o2_HA(int32_t n, const float *a, float *y);
void _zetsPow3o2_11(int32_t n, const float *a, float *y);
void _zetsPow3o2I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsPow3o2I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsPow3o2I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsPow3o2I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdPow3o2_50(int32_t n, const double *a, double *y);
void _zetdPow3o2(int32_t n, const double *a, double *y);
void _zetdPow3o2_HA(int32_t n, const double *a, double *y);
void _zetdPow3o2_26(int32_t n, const double *a, double *y);
void _zetdPow3o2I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdPow3o2I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdPow3o2I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdPow3o2I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Pow2o3
 * y = a^(2/3) = the cube root of a * a.
 * The whole line, even. Raises nothing.
 * @{ */
void _zetsPow2o3_21(int32_t n, const float *a, float *y);
void _zetsPow2o3(int32_t n, const float *a, float *y);
void _zetsPow2o3_HA(int32_t n, const float *a, float *y);
void _zetsPow2o3_11(int32_t n, const float *a, float *y);
void _zetsPow2o3I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsPow2o3I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsPow2o3I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsPow2o3I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdPow2o3_50(int32_t n, const double *a, double *y);
void _zetdPow2o3(int32_t n, const double *a, double *y);
void _zetdPow2o3_HA(int32_t n, const double *a, double *y);
void _zetdPow2o3_26(int32_t n, const double *a, double *y);
void _zetdPow2o3I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdPow2o3I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdPow2o3I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdPow2o3I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name ErfcInv
 * y = x such that Erfc(x) = a.
 * 0 and 2 give +infinity and -infinity and raise singularity; outside [0, 2]: NaN and domain error.
 * @{ */
void _zetsErfcInv_21(int32_t n, const float *a, float *y);
void _zetsErfcInv(int32_t n, const float *a, float *y);
void _zetsErfcInv_HA(int32_t n, const float *a, float *y);
void _zetsErfcInv_11(int32_t n, const float *a, float *y);
void _zetsErfcInvI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfcInvI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfcInvI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfcInvI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdErfcInv_50(int32_t n, const double *a, double *y);
void _zetdErfcInv(int32_t n, const double *a, double *y);
void _zetdErfcInv_HA(int32_t n, const double *a, double *y);
void _zetdErfcInv_26(int32_t n, const double *a, double *y);
void _zetdErfcInvI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfcInvI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfcInvI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfcInvI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name CdfNorm
 * y = the standard normal distribution function at a.
 * Far in the left tail, where the result is 0, raises underflow.
 * @{ */
void _zetsCdfNorm_21(int32_t n, const float *a, float *y);
void _zetsCdfNorm(int32_t n, const float *a, float *y);
void _zetsCdfNorm_HA(int32_t n, const float *a, float *y);
void _zetsCdfNorm_11(int32_t n, const float *a, float *y);
void _zetsCdfNormI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCdfNormI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCdfNormI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCdfNormI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdCdfNorm_50(int32_t n, const double *a, double *y);
void _zetdCdfNorm(int32_t n, const double *a, double *y);
void _zetdCdfNorm_HA(int32_t n, const double *a, double *y);
void _zetdCdfNorm_26(int32_t n, const double *a, double *y);
void _zetdCdfNormI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCdfNormI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCdfNormI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCdfNormI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name CdfNormInv
 * y = x such that CdfNorm(x) = a.
 * 0 and 1 give -infinity and +infinity and raise singularity; outside [0, 1]: NaN and domain error.
 * @{ */
void _zetsCdfNormInv_21(int32_t n, const float *a, float *y);
void _zetsCdfNormInv(int32_t n, const float *a, float *y);
void _zetsCdfNormInv_HA(int32_t n, const float *a, float *y);
void _zetsCdfNormInv_11(int32_t n, const float *a, float *y);
void _zetsCdfNormInvI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCdfNormInvI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCdfNormInvI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCdfNormInvI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdCdfNormInv_50(int32_t n, const double *a, double *y);
void _zetdCdfNormInv(int32_t n, const double *a, double *y);
void _zetdCdfNormInv_HA(int32_t n, const double *a, double *y);
void _zetdCdfNormInv_26(int32_t n, const double *a, double *y);
void _zetdCdfNormInvI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCdfNormInvI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCdfNormInvI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCdfNormInvI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name LGamma
 * y = ln |Gamma(a)|.
 * Poles at 0 and the negative integers give +infinity and raise singularity; overflow is raised.
 * @{ */
void _zetsLGamma_21(int32_t n, const float *a, float *y);
void _zetsLGamma(int32_t n, const float *a, float *y);
void _zetsLGamma_HA(int32_t n, const float *a, float *y);
void _zetsLGamma_11(int32_t n, const float *a, float *y);
void _zetsLGammaI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLGammaI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLGammaI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLGammaI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdLGamma_50(int32_t n, const double *a, double *y);
void _zetdLGamma(int32_t n, const double *a, double *y);
void _zetdLGamma_HA(int32_t n, const double *a, double *y);
void _zetdLGamma_26(int32_t n, const double *a, double *y);
void _zetdLGammaI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLGammaI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLGammaI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLGammaI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name TGamma
 * y = Gamma(a).
 * A zero and the negative integers, the poles, raise a status; so does overflow.
 * @{ */
void _zetsTGamma_21(int32_t n, const float *a, float *y);
void _zetsTGamma(int32_t n, const float *a, float *y);
void _zetsTGamma_HA(int32_t n, const float *a, float *y);
void _zetsTGamma_11(int32_t n, const float *a, float *y);
void _zetsTGammaI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTGammaI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTGammaI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTGammaI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdTGamma_50(int32_t n, const double *a, double *y);
void _zetdTGamma(int32_t n, const double *a, double *y);
void _zetdTGamma_HA(int32_t n, const double *a, double *y);
void _zetdTGamma_26(int32_t n, const double *a, double *y);
void _zetdTGammaI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTGammaI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTGammaI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTGammaI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name ExpInt1
 * y = the exponential integral E1(a), a above 0.
 * Zero is a singularity with +infinity; below zero: NaN and domain error.
 * @{ */
void _zetsExpInt1_21(int32_t n, const float *a, float *y);
void _zetsExpInt1(int32_t n, const float *a, float *y);
void _zetsExpInt1_HA(int32_t n, const float *a, float *y);
void _zetsExpInt1_11(int32_t n, const float *a, float *y);
void _zetsExpInt1I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExpInt1I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExpInt1I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExpInt1I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdExpInt1_50(int32_t n, const double *a, double *y);
void _zetdExpInt1(int32_t n, const double *a, double *y);
void _zetdExpInt1_HA(int32_t n, const double *a, double *y);
void _zetdExpInt1_26(int32_t n, const double *a, double *y);
void _zetdExpInt1I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExpInt1I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExpInt1I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExpInt1I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Sinpi
 * y = sin(pi * a).
 * Exact at multiples of one half; odd. An infinity gives NaN. Raises nothing.
 * @{ */
void _zetsSinpi_21(int32_t n, const float *a, float *y);
void _zetsSinpi(int32_t n, const float *a, float *y);
void _zetsSinpi_HA(int32_t n, const float *a, float *y);
void _zetsSinpi_11(int32_t n, const float *a, float *y);
void _zetsSinpiI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSinpiI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSinpiI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSinpiI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdSinpi_50(int32_t n, const double *a, double *y);
void _zetdSinpi(int32_t n, const double *a, double *y);
void _zetdSinpi_HA(int32_t n, const double *a, double *y);
void _zetdSinpi_26(int32_t n, const double *a, double *y);
void _zetdSinpiI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSinpiI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSinpiI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSinpiI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Cospi
 * y = cos(pi * a).
 * Exact at multiples of one half; even. An infinity gives NaN. Raises nothing.
 * @{ */
void _zetsCospi_21(int32_t n, const float *a, float *y);
void _zetsCospi(int32_t n, const float *a, float *y);
void _zetsCospi_HA(int32_t n, const float *a, float *y);
void _zetsCospi_11(int32_t n, const float *a, float *y);
void _zetsCospiI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCospiI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCospiI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCospiI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdCospi_50(int32_t n, const double *a, double *y);
void _zetdCospi(int32_t n, const double *a, double *y);
void _zetdCospi_HA(int32_t n, const double *a, double *y);
void _zetdCospi_26(int32_t n, const double *a, double *y);
void _zetdCospiI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCospiI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCospiI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCospiI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Tanpi
 * y = tan(pi * a).
 * Odd multiples of one half give an infinity and raise singularity; an infinity: NaN and domain error.
 * @{ */
void _zetsTanpi_21(int32_t n, const float *a, float *y);
void _zetsTanpi(int32_t n, const float *a, float *y);
void _zetsTanpi_HA(int32_t n, const float *a, float *y);
void _zetsTanpi_11(int32_t n, const float *a, float *y);
void _zetsTanpiI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTanpiI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTanpiI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTanpiI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdTanpi_50(int32_t n, const double *a, double *y);
void _zetdTanpi(int32_t n, const double *a, double *y);
void _zetdTanpi_HA(int32_t n, const double *a, double *y);
void _zetdTanpi_26(int32_t n, const double *a, double *y);
void _zetdTanpiI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTanpiI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTanpiI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTanpiI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Acospi
 * y = Acos(a) / pi.
 * |a| above 1: NaN and domain error.
 * @{ */
void _zetsAcospi_21(int32_t n, const float *a, float *y);
void _zetsAcospi(int32_t n, const float *a, float *y);
void _zetsAcospi_HA(int32_t n, const float *a, float *y);
void _zetsAcospi_11(int32_t n, const float *a, float *y);
void _zetsAcospiI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAcospiI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAcospiI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAcospiI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAcospi_50(int32_t n, const double *a, double *y);
void _zetdAcospi(int32_t n, const double *a, double *y);
void _zetdAcospi_HA(int32_t n, const double *a, double *y);
void _zetdAcospi_26(int32_t n, const double *a, double *y);
void _zetdAcospiI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAcospiI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAcospiI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAcospiI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Asinpi
 * y = Asin(a) / pi.
 * Odd. |a| above 1: NaN and domain error.
 * @{ */
void _zetsAsinpi_21(int32_t n, const float *a, float *y);
void _zetsAsinpi(int32_t n, const float *a, float *y);
void _zetsAsinpi_HA(int32_t n, const float *a, float *y);
void _zetsAsinpi_11(int32_t n, const float *a, float *y);
void _zetsAsinpiI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAsinpiI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAsinpiI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAsinpiI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAsinpi_50(int32_t n, const double *a, double *y);
void _zetdAsinpi(int32_t n, const double *a, double *y);
void _zetdAsinpi_HA(int32_t n, const double *a, double *y);
void _zetdAsinpi_26(int32_t n, const double *a, double *y);
void _zetdAsinpiI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAsinpiI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAsinpiI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAsinpiI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Atanpi
 * y = Atan(a) / pi.
 * The whole line, odd. Raises nothing.
 * @{ */
void _zetsAtanpi_21(int32_t n, const float *a, float *y);
void _zetsAtanpi(int32_t n, const float *a, float *y);
void _zetsAtanpi_HA(int32_t n, const float *a, float *y);
void _zetsAtanpi_11(int32_t n, const float *a, float *y);
void _zetsAtanpiI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAtanpiI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAtanpiI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsAtanpiI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdAtanpi_50(int32_t n, const double *a, double *y);
void _zetdAtanpi(int32_t n, const double *a, double *y);
void _zetdAtanpi_HA(int32_t n, const double *a, double *y);
void _zetdAtanpi_26(int32_t n, const double *a, double *y);
void _zetdAtanpiI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAtanpiI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAtanpiI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdAtanpiI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Exp2
 * y = 2^a.
 * Exact at integers. Overflow gives +infinity and raises overflow; a denormal or zero result raises underflow.
 * @{ */
void _zetsExp2_21(int32_t n, const float *a, float *y);
void _zetsExp2(int32_t n, const float *a, float *y);
void _zetsExp2_HA(int32_t n, const float *a, float *y);
void _zetsExp2_11(int32_t n, const float *a, float *y);
void _zetsExp2I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExp2I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExp2I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExp2I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdExp2_50(int32_t n, const double *a, double *y);
void _zetdExp2(int32_t n, const double *a, double *y);
void _zetdExp2_HA(int32_t n, const double *a, double *y);
void _zetdExp2_26(int32_t n, const double *a, double *y);
void _zetdExp2I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExp2I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExp2I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExp2I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Exp10
 * y = 10^a.
 * Overflow gives +infinity and raises overflow; a denormal or zero result of a finite a raises underflow.
 * @{ */
void _zetsExp10_21(int32_t n, const float *a, float *y);
void _zetsExp10(int32_t n, const float *a, float *y);
void _zetsExp10_HA(int32_t n, const float *a, float *y);
void _zetsExp10_11(int32_t n, const float *a, float *y);
void _zetsExp10I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExp10I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExp10I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsExp10I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdExp10_50(int32_t n, const double *a, double *y);
void _zetdExp10(int32_t n, const double *a, double *y);
void _zetdExp10_HA(int32_t n, const double *a, double *y);
void _zetdExp10_26(int32_t n, const double *a, double *y);
void _zetdExp10I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExp10I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExp10I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdExp10I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Log2
 * y = the logarithm of a to the base 2.
 * Exact at powers of two. A zero gives -infinity and raises singularity; below zero: NaN and domain error.
 * @{ */
void _zetsLog2_21(int32_t n, const float *a, float *y);
void _zetsLog2(int32_t n, const float *a, float *y);
void _zetsLog2_HA(int32_t n, const float *a, float *y);
void _zetsLog2_11(int32_t n, const float *a, float *y);
void _zetsLog2I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLog2I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLog2I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLog2I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdLog2_50(int32_t n, const double *a, double *y);
void _zetdLog2(int32_t n, const double *a, double *y);
void _zetdLog2_HA(int32_t n, const double *a, double *y);
void _zetdLog2_26(int32_t n, const double *a, double *y);
void _zetdLog2I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLog2I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLog2I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLog2I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Sind
 * y = sin(a), a in degrees.
 * Exact zeros at multiples of 180; odd. An infinity gives NaN and raises domain error.
 * @{ */
void _zetsSind_21(int32_t n, const float *a, float *y);
void _zetsSind(int32_t n, const float *a, float *y);
void _zetsSind_HA(int32_t n, const float *a, float *y);
void _zetsSind_11(int32_t n, const float *a, float *y);
void _zetsSindI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSindI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSindI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsSindI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdSind_50(int32_t n, const double *a, double *y);
void _zetdSind(int32_t n, const double *a, double *y);
void _zetdSind_HA(int32_t n, const double *a, double *y);
void _zetdSind_26(int32_t n, const double *a, double *y);
void _zetdSindI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSindI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSindI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdSindI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Cosd
 * y = cos(a), a in degrees.
 * Exact zeros at odd multiples of 90; even. An infinity gives NaN and raises domain error.
 * @{ */
void _zetsCosd_21(int32_t n, const float *a, float *y);
void _zetsCosd(int32_t n, const float *a, float *y);
void _zetsCosd_HA(int32_t n, const float *a, float *y);
void _zetsCosd_11(int32_t n, const float *a, float *y);
void _zetsCosdI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCosdI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCosdI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsCosdI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdCosd_50(int32_t n, const double *a, double *y);
void _zetdCosd(int32_t n, const double *a, double *y);
void _zetdCosd_HA(int32_t n, const double *a, double *y);
void _zetdCosd_26(int32_t n, const double *a, double *y);
void _zetdCosdI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCosdI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCosdI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdCosdI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Tand
 * y = tan(a), a in degrees.
 * Odd multiples of 90 give an infinity and raise singularity; an infinity: NaN and domain error.
 * @{ */
void _zetsTand_21(int32_t n, const float *a, float *y);
void _zetsTand(int32_t n, const float *a, float *y);
void _zetsTand_HA(int32_t n, const float *a, float *y);
void _zetsTand_11(int32_t n, const float *a, float *y);
void _zetsTandI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTandI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTandI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsTandI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdTand_50(int32_t n, const double *a, double *y);
void _zetdTand(int32_t n, const double *a, double *y);
void _zetdTand_HA(int32_t n, const double *a, double *y);
void _zetdTand_26(int32_t n, const double *a, double *y);
void _zetdTandI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTandI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTandI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdTandI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Logb
 * y = the unbiased exponent of a.
 * Exact, denormals too. A zero gives -infinity and raises domain error; an infinity gives +infinity.
 * @{ */
void _zetsLogb_21(int32_t n, const float *a, float *y);
void _zetsLogb(int32_t n, const float *a, float *y);
void _zetsLogb_HA(int32_t n, const float *a, float *y);
void _zetsLogb_11(int32_t n, const float *a, float *y);
void _zetsLogbI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLogbI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLogbI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsLogbI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdLogb_50(int32_t n, const double *a, double *y);
void _zetdLogb(int32_t n, const double *a, double *y);
void _zetdLogb_HA(int32_t n, const double *a, double *y);
void _zetdLogb_26(int32_t n, const double *a, double *y);
void _zetdLogbI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLogbI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLogbI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdLogbI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Erfcx
 * y = e^(a * a) * Erfc(a).
 * A very negative a gives +infinity. Raises nothing.
 * @{ */
void _zetsErfcx_21(int32_t n, const float *a, float *y);
void _zetsErfcx(int32_t n, const float *a, float *y);
void _zetsErfcx_HA(int32_t n, const float *a, float *y);
void _zetsErfcx_11(int32_t n, const float *a, float *y);
void _zetsErfcxI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfcxI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfcxI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsErfcxI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdErfcx_50(int32_t n, const double *a, double *y);
void _zetdErfcx(int32_t n, const double *a, double *y);
void _zetdErfcx_HA(int32_t n, const double *a, double *y);
void _zetdErfcx_26(int32_t n, const double *a, double *y);
void _zetdErfcxI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfcxI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfcxI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdErfcxI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name I0
 * y = the modified Bessel function of the first kind, order 0.
 * Even. Overflow is raised.
 * @{ */
void _zetsI0_21(int32_t n, const float *a, float *y);
void _zetsI0(int32_t n, const float *a, float *y);
void _zetsI0_HA(int32_t n, const float *a, float *y);
void _zetsI0_11(int32_t n, const float *a, float *y);
void _zetsI0I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsI0I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsI0I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsI0I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdI0_50(int32_t n, const double *a, double *y);
void _zetdI0(int32_t n, const double *a, double *y);
void _zetdI0_HA(int32_t n, const double *a, double *y);
void _zetdI0_26(int32_t n, const double *a, double *y);
void _zetdI0I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdI0I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdI0I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdI0I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name I1
 * y = the modified Bessel function of the first kind, order 1.
 * Odd. Overflow is raised.
 * @{ */
void _zetsI1_21(int32_t n, const float *a, float *y);
void _zetsI1(int32_t n, const float *a, float *y);
void _zetsI1_HA(int32_t n, const float *a, float *y);
void _zetsI1_11(int32_t n, const float *a, float *y);
void _zetsI1I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsI1I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsI1I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsI1I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdI1_50(int32_t n, const double *a, double *y);
void _zetdI1(int32_t n, const double *a, double *y);
void _zetdI1_HA(int32_t n, const double *a, double *y);
void _zetdI1_26(int32_t n, const double *a, double *y);
void _zetdI1I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdI1I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdI1I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdI1I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name J0
 * y = the Bessel function of the first kind, order 0.
 * Even. Raises nothing.
 * @{ */
void _zetsJ0_21(int32_t n, const float *a, float *y);
void _zetsJ0(int32_t n, const float *a, float *y);
void _zetsJ0_HA(int32_t n, const float *a, float *y);
void _zetsJ0_11(int32_t n, const float *a, float *y);
void _zetsJ0I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsJ0I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsJ0I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsJ0I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdJ0_50(int32_t n, const double *a, double *y);
void _zetdJ0(int32_t n, const double *a, double *y);
void _zetdJ0_HA(int32_t n, const double *a, double *y);
void _zetdJ0_26(int32_t n, const double *a, double *y);
void _zetdJ0I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdJ0I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdJ0I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdJ0I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name J1
 * y = the Bessel function of the first kind, order 1.
 * Odd. Raises nothing.
 * @{ */
void _zetsJ1_21(int32_t n, const float *a, float *y);
void _zetsJ1(int32_t n, const float *a, float *y);
void _zetsJ1_HA(int32_t n, const float *a, float *y);
void _zetsJ1_11(int32_t n, const float *a, float *y);
void _zetsJ1I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsJ1I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsJ1I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsJ1I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdJ1_50(int32_t n, const double *a, double *y);
void _zetdJ1(int32_t n, const double *a, double *y);
void _zetdJ1_HA(int32_t n, const double *a, double *y);
void _zetdJ1_26(int32_t n, const double *a, double *y);
void _zetdJ1I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdJ1I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdJ1I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdJ1I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Y0
 * y = the Bessel function of the second kind, order 0, a above 0.
 * Raises nothing.
 * @{ */
void _zetsY0_21(int32_t n, const float *a, float *y);
void _zetsY0(int32_t n, const float *a, float *y);
void _zetsY0_HA(int32_t n, const float *a, float *y);
void _zetsY0_11(int32_t n, const float *a, float *y);
void _zetsY0I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsY0I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsY0I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsY0I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdY0_50(int32_t n, const double *a, double *y);
void _zetdY0(int32_t n, const double *a, double *y);
void _zetdY0_HA(int32_t n, const double *a, double *y);
void _zetdY0_26(int32_t n, const double *a, double *y);
void _zetdY0I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdY0I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdY0I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdY0I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Y1
 * y = the Bessel function of the second kind, order 1, a above 0.
 * Raises nothing.
 * @{ */
void _zetsY1_21(int32_t n, const float *a, float *y);
void _zetsY1(int32_t n, const float *a, float *y);
void _zetsY1_HA(int32_t n, const float *a, float *y);
void _zetsY1_11(int32_t n, const float *a, float *y);
void _zetsY1I_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsY1I(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsY1I_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetsY1I_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy);
void _zetdY1_50(int32_t n, const double *a, double *y);
void _zetdY1(int32_t n, const double *a, double *y);
void _zetdY1_HA(int32_t n, const double *a, double *y);
void _zetdY1_26(int32_t n, const double *a, double *y);
void _zetdY1I_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdY1I(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdY1I_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
void _zetdY1I_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * One real array and one scalar in, one real array out: (n, a, b, y).
 */

/** @name Jn
 * y = the Bessel function of the first kind of order b at a.
 * Raises nothing.
 * @{ */
void _zetsJn_21(int32_t n, const float *a, float b, float *y);
void _zetsJn(int32_t n, const float *a, float b, float *y);
void _zetsJn_HA(int32_t n, const float *a, float b, float *y);
void _zetsJn_11(int32_t n, const float *a, float b, float *y);
void _zetsJnI_21(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetsJnI(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetsJnI_HA(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetsJnI_11(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetdJn_50(int32_t n, const double *a, double b, double *y);
void _zetdJn(int32_t n, const double *a, double b, double *y);
void _zetdJn_HA(int32_t n, const double *a, double b, double *y);
void _zetdJn_26(int32_t n, const double *a, double b, double *y);
void _zetdJnI_50(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
void _zetdJnI(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
void _zetdJnI_HA(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
void _zetdJnI_26(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
/** @} */

/** @name Yn
 * y = the Bessel function of the second kind of order b at a, a above 0.
 * Raises nothing.
 * @{ */
void _zetsYn_21(int32_t n, const float *a, float b, float *y);
void _zetsYn(int32_t n, const float *a, float b, float *y);
void _zetsYn_HA(int32_t n, const float *a, float b, float *y);
void _zetsYn_11(int32_t n, const float *a, float b, float *y);
void _zetsYnI_21(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetsYnI(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetsYnI_HA(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetsYnI_11(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetdYn_50(int32_t n, const double *a, double b, double *y);
void _zetdYn(int32_t n, const double *a, double b, double *y);
void _zetdYn_HA(int32_t n, const double *a, double b, double *y);
void _zetdYn_26(int32_t n, const double *a, double b, double *y);
void _zetdYnI_50(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
void _zetdYnI(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
void _zetdYnI_HA(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
void _zetdYnI_26(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * One complex array in, one complex array out: (n, a, y).
 */

/** @name Cos
 * y = cos(a).
 * A result that leaves the range raises a status.
 * @{ */
void _zetcCos_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcCos(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcCos_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcCos_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcCosI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcCosI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcCosI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcCosI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzCos_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzCos(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzCos_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzCos_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzCosI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzCosI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzCosI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzCosI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Sin
 * y = sin(a).
 * A result that leaves the range raises a status.
 * @{ */
void _zetcSin_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSin(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSin_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSin_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSinI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcSinI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcSinI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcSinI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzSin_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSin(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSin_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSin_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSinI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzSinI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzSinI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzSinI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Tan
 * y = tan(a).
 * Raises nothing.
 * @{ */
void _zetcTan_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcTan(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcTan_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcTan_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcTanI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcTanI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcTanI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcTanI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzTan_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzTan(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzTan_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzTan_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzTanI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzTanI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzTanI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzTanI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Cosh
 * y = cosh(a).
 * A result that leaves the range raises a status.
 * @{ */
void _zetcCosh_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcCosh(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcCosh_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcCosh_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcCoshI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcCoshI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcCoshI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcCoshI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzCosh_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzCosh(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzCosh_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzCosh_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzCoshI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzCoshI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzCoshI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzCoshI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Sinh
 * y = sinh(a).
 * A result that leaves the range raises a status.
 * @{ */
void _zetcSinh_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSinh(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSinh_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSinh_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSinhI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcSinhI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcSinhI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcSinhI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzSinh_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSinh(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSinh_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSinh_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSinhI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzSinhI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzSinhI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzSinhI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Tanh
 * y = tanh(a).
 * Raises nothing.
 * @{ */
void _zetcTanh_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcTanh(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcTanh_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcTanh_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcTanhI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcTanhI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcTanhI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcTanhI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzTanh_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzTanh(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzTanh_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzTanh_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzTanhI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzTanhI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzTanhI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzTanhI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Acos
 * y = the principal value of the arc cosine of a.
 * Cuts on the real axis outside [-1, 1]. Raises nothing.
 * @{ */
void _zetcAcos_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAcos(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAcos_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAcos_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAcosI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAcosI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAcosI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAcosI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzAcos_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAcos(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAcos_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAcos_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAcosI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAcosI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAcosI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAcosI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Asin
 * y = the principal value of the arc sine of a.
 * Cuts on the real axis outside [-1, 1]. Raises nothing.
 * @{ */
void _zetcAsin_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAsin(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAsin_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAsin_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAsinI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAsinI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAsinI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAsinI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzAsin_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAsin(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAsin_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAsin_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAsinI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAsinI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAsinI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAsinI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Atan
 * y = the principal value of the arc tangent of a.
 * Cuts on the imaginary axis outside [-i, i]. Raises nothing.
 * @{ */
void _zetcAtan_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAtan(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAtan_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAtan_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAtanI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAtanI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAtanI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAtanI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzAtan_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAtan(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAtan_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAtan_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAtanI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAtanI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAtanI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAtanI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Acosh
 * y = the principal value of the inverse hyperbolic cosine of a.
 * Cut on the real axis below 1. Raises nothing.
 * @{ */
void _zetcAcosh_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAcosh(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAcosh_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAcosh_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAcoshI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAcoshI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAcoshI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAcoshI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzAcosh_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAcosh(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAcosh_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAcosh_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAcoshI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAcoshI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAcoshI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAcoshI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Asinh
 * y = the principal value of the inverse hyperbolic sine of a.
 * Cuts on the imaginary axis outside [-i, i]. Raises nothing.
 * @{ */
void _zetcAsinh_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAsinh(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAsinh_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAsinh_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAsinhI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAsinhI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAsinhI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAsinhI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzAsinh_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAsinh(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAsinh_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAsinh_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAsinhI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAsinhI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAsinhI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAsinhI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Atanh
 * y = the principal value of the inverse hyperbolic tangent of a.
 * Cuts on the real axis outside [-1, 1]. Raises nothing.
 * @{ */
void _zetcAtanh_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAtanh(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAtanh_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAtanh_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcAtanhI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAtanhI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAtanhI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcAtanhI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzAtanh_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAtanh(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAtanh_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAtanh_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzAtanhI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAtanhI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAtanhI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzAtanhI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Exp
 * y = e^a.
 * A result that leaves the range raises a status.
 * @{ */
void _zetcExp_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcExp(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcExp_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcExp_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcExpI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcExpI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcExpI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcExpI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzExp_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzExp(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzExp_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzExp_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzExpI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzExpI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzExpI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzExpI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Ln
 * y = the principal value of the natural logarithm of a.
 * Cut on the negative real axis. Raises nothing.
 * @{ */
void _zetcLn_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcLn(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcLn_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcLn_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcLnI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcLnI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcLnI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcLnI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzLn_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzLn(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzLn_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzLn_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzLnI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzLnI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzLnI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzLnI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Log10
 * y = the principal value of the logarithm of a to the base 10.
 * Cut on the negative real axis. Raises nothing.
 * @{ */
void _zetcLog10_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcLog10(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcLog10_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcLog10_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcLog10I_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcLog10I(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcLog10I_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcLog10I_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzLog10_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzLog10(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzLog10_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzLog10_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzLog10I_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzLog10I(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzLog10I_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzLog10I_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Sqrt
 * y = the principal value of the square root of a.
 * Cut on the negative real axis. Raises nothing.
 * @{ */
void _zetcSqrt_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSqrt(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSqrt_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSqrt_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcSqrtI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcSqrtI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcSqrtI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcSqrtI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzSqrt_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSqrt(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSqrt_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSqrt_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzSqrtI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzSqrtI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzSqrtI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzSqrtI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Conj
 * y = the complex conjugate of a.
 * Exact. Raises nothing.
 * @{ */
void _zetcConj_21(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcConj(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcConj_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcConj_11(int32_t n, const QorlComplex8 *a, QorlComplex8 *y);
void _zetcConjI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcConjI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcConjI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcConjI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzConj_50(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzConj(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzConj_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzConj_26(int32_t n, const QorlComplex16 *a, QorlComplex16 *y);
void _zetzConjI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzConjI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzConjI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzConjI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * One real array in, one complex array out: (n, a, y).
 */

/** @name CIS
 * y = cos(a) + i sin(a), a real, in radians.
 * Any finite a is reduced exactly. Raises nothing.
 * @{ */
void _zetcCIS_21(int32_t n, const float *a, QorlComplex8 *y);
void _zetcCIS(int32_t n, const float *a, QorlComplex8 *y);
void _zetcCIS_HA(int32_t n, const float *a, QorlComplex8 *y);
void _zetcCIS_11(int32_t n, const float *a, QorlComplex8 *y);
void _zetcCISI_21(int32_t n, const float *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcCISI(int32_t n, const float *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcCISI_HA(int32_t n, const float *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetcCISI_11(int32_t n, const float *a, int32_t inca, QorlComplex8 *y, int32_t incy);
void _zetzCIS_50(int32_t n, const double *a, QorlComplex16 *y);
void _zetzCIS(int32_t n, const double *a, QorlComplex16 *y);
void _zetzCIS_HA(int32_t n, const double *a, QorlComplex16 *y);
void _zetzCIS_26(int32_t n, const double *a, QorlComplex16 *y);
void _zetzCISI_50(int32_t n, const double *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzCISI(int32_t n, const double *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzCISI_HA(int32_t n, const double *a, int32_t inca, QorlComplex16 *y, int32_t incy);
void _zetzCISI_26(int32_t n, const double *a, int32_t inca, QorlComplex16 *y, int32_t incy);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * One complex array in, one real array out: (n, a, y).
 */

/** @name Abs
 * y = |a|, real.
 * No intermediate overflow. Raises nothing.
 * @{ */
void _zetcAbs_21(int32_t n, const QorlComplex8 *a, float *y);
void _zetcAbs(int32_t n, const QorlComplex8 *a, float *y);
void _zetcAbs_HA(int32_t n, const QorlComplex8 *a, float *y);
void _zetcAbs_11(int32_t n, const QorlComplex8 *a, float *y);
void _zetcAbsI_21(int32_t n, const QorlComplex8 *a, int32_t inca, float *y, int32_t incy);
void _zetcAbsI(int32_t n, const QorlComplex8 *a, int32_t inca, float *y, int32_t incy);
void _zetcAbsI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, float *y, int32_t incy);
void _zetcAbsI_11(int32_t n, const QorlComplex8 *a, int32_t inca, float *y, int32_t incy);
void _zetzAbs_50(int32_t n, const QorlComplex16 *a, double *y);
void _zetzAbs(int32_t n, const QorlComplex16 *a, double *y);
void _zetzAbs_HA(int32_t n, const QorlComplex16 *a, double *y);
void _zetzAbs_26(int32_t n, const QorlComplex16 *a, double *y);
void _zetzAbsI_50(int32_t n, const QorlComplex16 *a, int32_t inca, double *y, int32_t incy);
void _zetzAbsI(int32_t n, const QorlComplex16 *a, int32_t inca, double *y, int32_t incy);
void _zetzAbsI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, double *y, int32_t incy);
void _zetzAbsI_26(int32_t n, const QorlComplex16 *a, int32_t inca, double *y, int32_t incy);
/** @} */

/** @name Arg
 * y = the angle of a in [-pi, pi], real.
 * Raises nothing.
 * @{ */
void _zetcArg_21(int32_t n, const QorlComplex8 *a, float *y);
void _zetcArg(int32_t n, const QorlComplex8 *a, float *y);
void _zetcArg_HA(int32_t n, const QorlComplex8 *a, float *y);
void _zetcArg_11(int32_t n, const QorlComplex8 *a, float *y);
void _zetcArgI_21(int32_t n, const QorlComplex8 *a, int32_t inca, float *y, int32_t incy);
void _zetcArgI(int32_t n, const QorlComplex8 *a, int32_t inca, float *y, int32_t incy);
void _zetcArgI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, float *y, int32_t incy);
void _zetcArgI_11(int32_t n, const QorlComplex8 *a, int32_t inca, float *y, int32_t incy);
void _zetzArg_50(int32_t n, const QorlComplex16 *a, double *y);
void _zetzArg(int32_t n, const QorlComplex16 *a, double *y);
void _zetzArg_HA(int32_t n, const QorlComplex16 *a, double *y);
void _zetzArg_26(int32_t n, const QorlComplex16 *a, double *y);
void _zetzArgI_50(int32_t n, const QorlComplex16 *a, int32_t inca, double *y, int32_t incy);
void _zetzArgI(int32_t n, const QorlComplex16 *a, int32_t inca, double *y, int32_t incy);
void _zetzArgI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, double *y, int32_t incy);
void _zetzArgI_26(int32_t n, const QorlComplex16 *a, int32_t inca, double *y, int32_t incy);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * Two real arrays in, one real array out: (n, a, b, y).
 */

/** @name Div
 * y = a / b.
 * Special operands may raise a status; the result is that of the division.
 * @{ */
void _zetsDiv_21(int32_t n, const float *a, const float *b, float *y);
void _zetsDiv(int32_t n, const float *a, const float *b, float *y);
void _zetsDiv_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsDiv_11(int32_t n, const float *a, const float *b, float *y);
void _zetsDivI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsDivI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsDivI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsDivI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdDiv_50(int32_t n, const double *a, const double *b, double *y);
void _zetdDiv(int32_t n, const double *a, const double *b, double *y);
void _zetdDiv_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdDiv_26(int32_t n, const double *a, const double *b, double *y);
void _zetdDivI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdDivI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdDivI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdDivI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Pow
 * y = a^b.
 * a < 0 with b no integer: NaN and domain error. A zero a with b < 0: infinity and domain error. Overflow is raised,
 * underflow is not; a = 1 or b = 0 gives 1.
 * @{ */
void _zetsPow_21(int32_t n, const float *a, const float *b, float *y);
void _zetsPow(int32_t n, const float *a, const float *b, float *y);
void _zetsPow_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsPow_11(int32_t n, const float *a, const float *b, float *y);
void _zetsPowI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsPowI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsPowI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsPowI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdPow_50(int32_t n, const double *a, const double *b, double *y);
void _zetdPow(int32_t n, const double *a, const double *b, double *y);
void _zetdPow_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdPow_26(int32_t n, const double *a, const double *b, double *y);
void _zetdPowI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdPowI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdPowI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdPowI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Atan2
 * y = the angle in [-pi, pi] of the point with abscissa b and ordinate a.
 * Zeros and infinities as in the C function. Raises nothing.
 * @{ */
void _zetsAtan2_21(int32_t n, const float *a, const float *b, float *y);
void _zetsAtan2(int32_t n, const float *a, const float *b, float *y);
void _zetsAtan2_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsAtan2_11(int32_t n, const float *a, const float *b, float *y);
void _zetsAtan2I_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsAtan2I(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsAtan2I_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsAtan2I_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdAtan2_50(int32_t n, const double *a, const double *b, double *y);
void _zetdAtan2(int32_t n, const double *a, const double *b, double *y);
void _zetdAtan2_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdAtan2_26(int32_t n, const double *a, const double *b, double *y);
void _zetdAtan2I_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdAtan2I(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdAtan2I_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdAtan2I_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Hypot
 * y = sqrt(a * a + b * b).
 * No intermediate overflow; an infinity with anything, a NaN too, gives +infinity. Raises nothing.
 * @{ */
void _zetsHypot_21(int32_t n, const float *a, const float *b, float *y);
void _zetsHypot(int32_t n, const float *a, const float *b, float *y);
void _zetsHypot_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsHypot_11(int32_t n, const float *a, const float *b, float *y);
void _zetsHypotI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsHypotI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsHypotI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsHypotI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdHypot_50(int32_t n, const double *a, const double *b, double *y);
void _zetdHypot(int32_t n, const double *a, const double *b, double *y);
void _zetdHypot_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdHypot_26(int32_t n, const double *a, const double *b, double *y);
void _zetdHypotI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdHypotI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdHypotI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdHypotI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Add
 * y = a + b.
 * The correctly rounded sum. Raises nothing.
 * @{ */
void _zetsAdd_21(int32_t n, const float *a, const float *b, float *y);
void _zetsAdd(int32_t n, const float *a, const float *b, float *y);
void _zetsAdd_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsAdd_11(int32_t n, const float *a, const float *b, float *y);
void _zetsAddI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsAddI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsAddI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsAddI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdAdd_50(int32_t n, const double *a, const double *b, double *y);
void _zetdAdd(int32_t n, const double *a, const double *b, double *y);
void _zetdAdd_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdAdd_26(int32_t n, const double *a, const double *b, double *y);
void _zetdAddI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdAddI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdAddI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdAddI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Sub
 * y = a - b.
 * The correctly rounded difference. Raises nothing.
 * @{ */
void _zetsSub_21(int32_t n, const float *a, const float *b, float *y);
void _zetsSub(int32_t n, const float *a, const float *b, float *y);
void _zetsSub_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsSub_11(int32_t n, const float *a, const float *b, float *y);
void _zetsSubI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsSubI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsSubI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsSubI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdSub_50(int32_t n, const double *a, const double *b, double *y);
void _zetdSub(int32_t n, const double *a, const double *b, double *y);
void _zetdSub_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdSub_26(int32_t n, const double *a, const double *b, double *y);
void _zetdSubI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdSubI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdSubI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdSubI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Mul
 * y = a * b.
 * The correctly rounded product. Raises nothing.
 * @{ */
void _zetsMul_21(int32_t n, const float *a, const float *b, float *y);
void _zetsMul(int32_t n, const float *a, const float *b, float *y);
void _zetsMul_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsMul_11(int32_t n, const float *a, const float *b, float *y);
void _zetsMulI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsMulI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsMulI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsMulI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdMul_50(int32_t n, const double *a, const double *b, double *y);
void _zetdMul(int32_t n, const double *a, const double *b, double *y);
void _zetdMul_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdMul_26(int32_t n, const double *a, const double *b, double *y);
void _zetdMulI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdMulI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdMulI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdMulI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Atan2pi
 * y = Atan2(a, b) / pi.
 * Zeros and infinities as in Atan2. Raises nothing.
 * @{ */
void _zetsAtan2pi_21(int32_t n, const float *a, const float *b, float *y);
void _zetsAtan2pi(int32_t n, const float *a, const float *b, float *y);
void _zetsAtan2pi_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsAtan2pi_11(int32_t n, const float *a, const float *b, float *y);
void _zetsAtan2piI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsAtan2piI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsAtan2piI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsAtan2piI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdAtan2pi_50(int32_t n, const double *a, const double *b, double *y);
void _zetdAtan2pi(int32_t n, const double *a, const double *b, double *y);
void _zetdAtan2pi_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdAtan2pi_26(int32_t n, const double *a, const double *b, double *y);
void _zetdAtan2piI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdAtan2piI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdAtan2piI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdAtan2piI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name CopySign
 * y = |a| with the sign of b.
 * Bits only, NaN included. Raises nothing.
 * @{ */
void _zetsCopySign_21(int32_t n, const float *a, const float *b, float *y);
void _zetsCopySign(int32_t n, const float *a, const float *b, float *y);
void _zetsCopySign_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsCopySign_11(int32_t n, const float *a, const float *b, float *y);
void _zetsCopySignI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsCopySignI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsCopySignI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsCopySignI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdCopySign_50(int32_t n, const double *a, const double *b, double *y);
void _zetdCopySign(int32_t n, const double *a, const double *b, double *y);
void _zetdCopySign_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdCopySign_26(int32_t n, const double *a, const double *b, double *y);
void _zetdCopySignI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y,
                       int32_t incy);
void _zetdCopySignI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdCopySignI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y,
                       int32_t incy);
void _zetdCopySignI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y,
                       int32_t incy);
/** @} */

/** @name NextAfter
 * y = the number next to a toward b; b where they are equal.
 * A denormal result raises underflow, an infinite one overflow.
 * @{ */
void _zetsNextAfter_21(int32_t n, const float *a, const float *b, float *y);
void _zetsNextAfter(int32_t n, const float *a, const float *b, float *y);
void _zetsNextAfter_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsNextAfter_11(int32_t n, const float *a, const float *b, float *y);
void _zetsNextAfterI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsNextAfterI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsNextAfterI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsNextAfterI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdNextAfter_50(int32_t n, const double *a, const double *b, double *y);
void _zetdNextAfter(int32_t n, const double *a, const double *b, double *y);
void _zetdNextAfter_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdNextAfter_26(int32_t n, const double *a, const double *b, double *y);
void _zetdNextAfterI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y,
                        int32_t incy);
void _zetdNextAfterI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdNextAfterI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y,
                        int32_t incy);
void _zetdNextAfterI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y,
                        int32_t incy);
/** @} */

/** @name Fdim
 * y = a - b where a > b, otherwise +0.
 * Raises nothing.
 * @{ */
void _zetsFdim_21(int32_t n, const float *a, const float *b, float *y);
void _zetsFdim(int32_t n, const float *a, const float *b, float *y);
void _zetsFdim_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsFdim_11(int32_t n, const float *a, const float *b, float *y);
void _zetsFdimI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFdimI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFdimI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFdimI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdFdim_50(int32_t n, const double *a, const double *b, double *y);
void _zetdFdim(int32_t n, const double *a, const double *b, double *y);
void _zetdFdim_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdFdim_26(int32_t n, const double *a, const double *b, double *y);
void _zetdFdimI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFdimI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFdimI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFdimI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Fmax
 * y = the larger of a and b.
 * A NaN counts as missing. Raises nothing.
 * @{ */
void _zetsFmax_21(int32_t n, const float *a, const float *b, float *y);
void _zetsFmax(int32_t n, const float *a, const float *b, float *y);
void _zetsFmax_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsFmax_11(int32_t n, const float *a, const float *b, float *y);
void _zetsFmaxI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFmaxI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFmaxI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFmaxI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdFmax_50(int32_t n, const double *a, const double *b, double *y);
void _zetdFmax(int32_t n, const double *a, const double *b, double *y);
void _zetdFmax_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdFmax_26(int32_t n, const double *a, const double *b, double *y);
void _zetdFmaxI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFmaxI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFmaxI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFmaxI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Fmin
 * y = the smaller of a and b.
 * A NaN counts as missing. Raises nothing.
 * @{ */
void _zetsFmin_21(int32_t n, const float *a, const float *b, float *y);
void _zetsFmin(int32_t n, const float *a, const float *b, float *y);
void _zetsFmin_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsFmin_11(int32_t n, const float *a, const float *b, float *y);
void _zetsFminI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFminI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFminI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFminI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdFmin_50(int32_t n, const double *a, const double *b, double *y);
void _zetdFmin(int32_t n, const double *a, const double *b, double *y);
void _zetdFmin_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdFmin_26(int32_t n, const double *a, const double *b, double *y);
void _zetdFminI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFminI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFminI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFminI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name MaxMag
 * y = the argument of the larger magnitude; Fmax(a, b) where they are equal.
 * A NaN counts as missing. Raises nothing.
 * @{ */
void _zetsMaxMag_21(int32_t n, const float *a, const float *b, float *y);
void _zetsMaxMag(int32_t n, const float *a, const float *b, float *y);
void _zetsMaxMag_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsMaxMag_11(int32_t n, const float *a, const float *b, float *y);
void _zetsMaxMagI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsMaxMagI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsMaxMagI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsMaxMagI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdMaxMag_50(int32_t n, const double *a, const double *b, double *y);
void _zetdMaxMag(int32_t n, const double *a, const double *b, double *y);
void _zetdMaxMag_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdMaxMag_26(int32_t n, const double *a, const double *b, double *y);
void _zetdMaxMagI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdMaxMagI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdMaxMagI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdMaxMagI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name MinMag
 * y = the argument of the smaller magnitude; Fmin(a, b) where they are equal.
 * A NaN counts as missing. Raises nothing.
 * @{ */
void _zetsMinMag_21(int32_t n, const float *a, const float *b, float *y);
void _zetsMinMag(int32_t n, const float *a, const float *b, float *y);
void _zetsMinMag_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsMinMag_11(int32_t n, const float *a, const float *b, float *y);
void _zetsMinMagI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsMinMagI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsMinMagI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsMinMagI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdMinMag_50(int32_t n, const double *a, const double *b, double *y);
void _zetdMinMag(int32_t n, const double *a, const double *b, double *y);
void _zetdMinMag_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdMinMag_26(int32_t n, const double *a, const double *b, double *y);
void _zetdMinMagI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdMinMagI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdMinMagI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdMinMagI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Powr
 * y = a^b = e^(b Ln(a)), a not negative.
 * a < 0: NaN and domain error. A zero a with b < 0: +infinity, no status. Zero to zero, 1 to an infinity and an
 * infinity to zero are NaN. Overflow is raised, and underflow for results below 2^-1032 in double and 2^-136 in single
 * precision.
 * @{ */
void _zetsPowr_21(int32_t n, const float *a, const float *b, float *y);
void _zetsPowr(int32_t n, const float *a, const float *b, float *y);
void _zetsPowr_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsPowr_11(int32_t n, const float *a, const float *b, float *y);
void _zetsPowrI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsPowrI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsPowrI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsPowrI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdPowr_50(int32_t n, const double *a, const double *b, double *y);
void _zetdPowr(int32_t n, const double *a, const double *b, double *y);
void _zetdPowr_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdPowr_26(int32_t n, const double *a, const double *b, double *y);
void _zetdPowrI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdPowrI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdPowrI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdPowrI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/** @name Remainder
 * y = a - b k, k the integer nearest to a / b, ties to even.
 * Exact. b = 0 or an infinite a: NaN and singularity.
 * @{ */
void _zetsRemainder_21(int32_t n, const float *a, const float *b, float *y);
void _zetsRemainder(int32_t n, const float *a, const float *b, float *y);
void _zetsRemainder_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsRemainder_11(int32_t n, const float *a, const float *b, float *y);
void _zetsRemainderI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsRemainderI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsRemainderI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsRemainderI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdRemainder_50(int32_t n, const double *a, const double *b, double *y);
void _zetdRemainder(int32_t n, const double *a, const double *b, double *y);
void _zetdRemainder_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdRemainder_26(int32_t n, const double *a, const double *b, double *y);
void _zetdRemainderI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y,
                        int32_t incy);
void _zetdRemainderI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdRemainderI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y,
                        int32_t incy);
void _zetdRemainderI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y,
                        int32_t incy);
/** @} */

/** @name Fmod
 * y = a - b Trunc(a / b), with the sign of a.
 * Exact. b = 0 or an infinite a: NaN and singularity.
 * @{ */
void _zetsFmod_21(int32_t n, const float *a, const float *b, float *y);
void _zetsFmod(int32_t n, const float *a, const float *b, float *y);
void _zetsFmod_HA(int32_t n, const float *a, const float *b, float *y);
void _zetsFmod_11(int32_t n, const float *a, const float *b, float *y);
void _zetsFmodI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFmodI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFmodI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetsFmodI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float *y, int32_t incy);
void _zetdFmod_50(int32_t n, const double *a, const double *b, double *y);
void _zetdFmod(int32_t n, const double *a, const double *b, double *y);
void _zetdFmod_HA(int32_t n, const double *a, const double *b, double *y);
void _zetdFmod_26(int32_t n, const double *a, const double *b, double *y);
void _zetdFmodI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFmodI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFmodI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
void _zetdFmodI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double *y, int32_t incy);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * Two complex arrays in, one complex array out: (n, a, b, y).
 */

/** @name Div
 * y = a / b.
 * A division by zero or a result that leaves the range may raise a status.
 * @{ */
void _zetcDiv_21(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcDiv(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcDiv_HA(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcDiv_11(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcDivI_21(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcDivI(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
               int32_t incy);
void _zetcDivI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcDivI_11(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetzDiv_50(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzDiv(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzDiv_HA(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzDiv_26(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzDivI_50(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzDivI(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb, QorlComplex16 *y,
               int32_t incy);
void _zetzDivI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzDivI_26(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Pow
 * y = the principal value of a^b = e^(b Ln(a)).
 * A result that is not defined or leaves the range may raise a status.
 * @{ */
void _zetcPow_21(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcPow(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcPow_HA(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcPow_11(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcPowI_21(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcPowI(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
               int32_t incy);
void _zetcPowI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcPowI_11(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetzPow_50(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzPow(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzPow_HA(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzPow_26(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzPowI_50(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzPowI(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb, QorlComplex16 *y,
               int32_t incy);
void _zetzPowI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzPowI_26(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Add
 * y = a + b.
 * A result that leaves the range may raise a status.
 * @{ */
void _zetcAdd_21(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcAdd(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcAdd_HA(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcAdd_11(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcAddI_21(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcAddI(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
               int32_t incy);
void _zetcAddI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcAddI_11(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetzAdd_50(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzAdd(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzAdd_HA(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzAdd_26(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzAddI_50(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzAddI(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb, QorlComplex16 *y,
               int32_t incy);
void _zetzAddI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzAddI_26(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Sub
 * y = a - b.
 * A result that leaves the range may raise a status.
 * @{ */
void _zetcSub_21(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcSub(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcSub_HA(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcSub_11(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcSubI_21(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcSubI(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
               int32_t incy);
void _zetcSubI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcSubI_11(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetzSub_50(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzSub(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzSub_HA(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzSub_26(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzSubI_50(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzSubI(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb, QorlComplex16 *y,
               int32_t incy);
void _zetzSubI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzSubI_26(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
/** @} */

/** @name Mul
 * y = a * b.
 * A result that leaves the range may raise a status.
 * @{ */
void _zetcMul_21(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcMul(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcMul_HA(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcMul_11(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcMulI_21(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcMulI(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
               int32_t incy);
void _zetcMulI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetcMulI_11(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb, QorlComplex8 *y,
                  int32_t incy);
void _zetzMul_50(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzMul(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzMul_HA(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzMul_26(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzMulI_50(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzMulI(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb, QorlComplex16 *y,
               int32_t incy);
void _zetzMulI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
void _zetzMulI_26(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                  QorlComplex16 *y, int32_t incy);
/** @} */

/** @name MulByConj
 * y = a times the complex conjugate of b.
 * A result that leaves the range may raise a status.
 * @{ */
void _zetcMulByConj_21(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcMulByConj(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcMulByConj_HA(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcMulByConj_11(int32_t n, const QorlComplex8 *a, const QorlComplex8 *b, QorlComplex8 *y);
void _zetcMulByConjI_21(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb,
                        QorlComplex8 *y, int32_t incy);
void _zetcMulByConjI(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb,
                     QorlComplex8 *y, int32_t incy);
void _zetcMulByConjI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb,
                        QorlComplex8 *y, int32_t incy);
void _zetcMulByConjI_11(int32_t n, const QorlComplex8 *a, int32_t inca, const QorlComplex8 *b, int32_t incb,
                        QorlComplex8 *y, int32_t incy);
void _zetzMulByConj_50(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzMulByConj(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzMulByConj_HA(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzMulByConj_26(int32_t n, const QorlComplex16 *a, const QorlComplex16 *b, QorlComplex16 *y);
void _zetzMulByConjI_50(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                        QorlComplex16 *y, int32_t incy);
void _zetzMulByConjI(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                     QorlComplex16 *y, int32_t incy);
void _zetzMulByConjI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                        QorlComplex16 *y, int32_t incy);
void _zetzMulByConjI_26(int32_t n, const QorlComplex16 *a, int32_t inca, const QorlComplex16 *b, int32_t incb,
                        QorlComplex16 *y, int32_t incy);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * One array and one scalar in, one array out: (n, a, b, y).
 */

/** @name Powx
 * y = a^b, b one number for all elements.
 * As Pow, element by element; the exponents -1, 0.5, -0.5 and 1.5 give the bits and statuses of Inv, Sqrt, InvSqrt and
 * Pow3o2, and at EP those next to 2/3, 1/3 and -1/3 those of Pow2o3, Cbrt and InvCbrt. The exponents 0, 1 and 2 raise
 * nothing.
 * @{ */
void _zetsPowx_21(int32_t n, const float *a, float b, float *y);
void _zetsPowx(int32_t n, const float *a, float b, float *y);
void _zetsPowx_HA(int32_t n, const float *a, float b, float *y);
void _zetsPowx_11(int32_t n, const float *a, float b, float *y);
void _zetsPowxI_21(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetsPowxI(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetsPowxI_HA(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetsPowxI_11(int32_t n, const float *a, int32_t inca, float b, float *y, int32_t incy);
void _zetdPowx_50(int32_t n, const double *a, double b, double *y);
void _zetdPowx(int32_t n, const double *a, double b, double *y);
void _zetdPowx_HA(int32_t n, const double *a, double b, double *y);
void _zetdPowx_26(int32_t n, const double *a, double b, double *y);
void _zetdPowxI_50(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
void _zetdPowxI(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
void _zetdPowxI_HA(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
void _zetdPowxI_26(int32_t n, const double *a, int32_t inca, double b, double *y, int32_t incy);
/** @} */

/** @name Powx
 * y = the principal value of a^b, b one number for all elements.
 * As Pow, element by element.
 * @{ */
void _zetcPowx_21(int32_t n, const QorlComplex8 *a, QorlComplex8 b, QorlComplex8 *y);
void _zetcPowx(int32_t n, const QorlComplex8 *a, QorlComplex8 b, QorlComplex8 *y);
void _zetcPowx_HA(int32_t n, const QorlComplex8 *a, QorlComplex8 b, QorlComplex8 *y);
void _zetcPowx_11(int32_t n, const QorlComplex8 *a, QorlComplex8 b, QorlComplex8 *y);
void _zetcPowxI_21(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 b, QorlComplex8 *y, int32_t incy);
void _zetcPowxI(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 b, QorlComplex8 *y, int32_t incy);
void _zetcPowxI_HA(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 b, QorlComplex8 *y, int32_t incy);
void _zetcPowxI_11(int32_t n, const QorlComplex8 *a, int32_t inca, QorlComplex8 b, QorlComplex8 *y, int32_t incy);
void _zetzPowx_50(int32_t n, const QorlComplex16 *a, QorlComplex16 b, QorlComplex16 *y);
void _zetzPowx(int32_t n, const QorlComplex16 *a, QorlComplex16 b, QorlComplex16 *y);
void _zetzPowx_HA(int32_t n, const QorlComplex16 *a, QorlComplex16 b, QorlComplex16 *y);
void _zetzPowx_26(int32_t n, const QorlComplex16 *a, QorlComplex16 b, QorlComplex16 *y);
void _zetzPowxI_50(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 b, QorlComplex16 *y, int32_t incy);
void _zetzPowxI(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 b, QorlComplex16 *y, int32_t incy);
void _zetzPowxI_HA(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 b, QorlComplex16 *y, int32_t incy);
void _zetzPowxI_26(int32_t n, const QorlComplex16 *a, int32_t inca, QorlComplex16 b, QorlComplex16 *y, int32_t incy);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * One real array in, two real arrays out: (n, a, y, z).
 */

/** @name SinCos
 * y = sin(a), z = cos(a), a in radians.
 * Any finite a is reduced exactly. An infinity gives NaN twice and raises domain error.
 * @{ */
void _zetsSinCos_21(int32_t n, const float *a, float *y, float *z);
void _zetsSinCos(int32_t n, const float *a, float *y, float *z);
void _zetsSinCos_HA(int32_t n, const float *a, float *y, float *z);
void _zetsSinCos_11(int32_t n, const float *a, float *y, float *z);
void _zetsSinCosI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetsSinCosI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetsSinCosI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetsSinCosI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetdSinCos_50(int32_t n, const double *a, double *y, double *z);
void _zetdSinCos(int32_t n, const double *a, double *y, double *z);
void _zetdSinCos_HA(int32_t n, const double *a, double *y, double *z);
void _zetdSinCos_26(int32_t n, const double *a, double *y, double *z);
void _zetdSinCosI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
void _zetdSinCosI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
void _zetdSinCosI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
void _zetdSinCosI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
/** @} */

/** @name Modf
 * y = Trunc(a), z = Frac(a).
 * An infinity gives itself and a zero of its sign. Raises nothing.
 * @{ */
void _zetsModf_21(int32_t n, const float *a, float *y, float *z);
void _zetsModf(int32_t n, const float *a, float *y, float *z);
void _zetsModf_HA(int32_t n, const float *a, float *y, float *z);
void _zetsModf_11(int32_t n, const float *a, float *y, float *z);
void _zetsModfI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetsModfI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetsModfI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetsModfI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetdModf_50(int32_t n, const double *a, double *y, double *z);
void _zetdModf(int32_t n, const double *a, double *y, double *z);
void _zetdModf_HA(int32_t n, const double *a, double *y, double *z);
void _zetdModf_26(int32_t n, const double *a, double *y, double *z);
void _zetdModfI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
void _zetdModfI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
void _zetdModfI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
void _zetdModfI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
/** @} */

/** @name SinCospi
 * y = sin(pi * a), z = cos(pi * a).
 * Exact at multiples of one half. An infinity gives NaN twice. Raises nothing.
 * @{ */
void _zetsSinCospi_21(int32_t n, const float *a, float *y, float *z);
void _zetsSinCospi(int32_t n, const float *a, float *y, float *z);
void _zetsSinCospi_HA(int32_t n, const float *a, float *y, float *z);
void _zetsSinCospi_11(int32_t n, const float *a, float *y, float *z);
void _zetsSinCospiI_21(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetsSinCospiI(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetsSinCospiI_HA(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetsSinCospiI_11(int32_t n, const float *a, int32_t inca, float *y, int32_t incy, float *z, int32_t incz);
void _zetdSinCospi_50(int32_t n, const double *a, double *y, double *z);
void _zetdSinCospi(int32_t n, const double *a, double *y, double *z);
void _zetdSinCospi_HA(int32_t n, const double *a, double *y, double *z);
void _zetdSinCospi_26(int32_t n, const double *a, double *y, double *z);
void _zetdSinCospiI_50(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
void _zetdSinCospiI(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
void _zetdSinCospiI_HA(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
void _zetdSinCospiI_26(int32_t n, const double *a, int32_t inca, double *y, int32_t incy, double *z, int32_t incz);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * The linear fraction of two arrays.
 */

/** @name LinearFrac
 * y = (scalea * a + shifta) / (scaleb * b + shiftb).
 * The four scalars hold for all elements. Raises nothing.
 * @{ */
void _zetsLinearFrac_21(int32_t n, const float *a, const float *b, float scalea, float shifta, float scaleb,
                        float shiftb, float *y);
void _zetsLinearFrac(int32_t n, const float *a, const float *b, float scalea, float shifta, float scaleb, float shiftb,
                     float *y);
void _zetsLinearFrac_HA(int32_t n, const float *a, const float *b, float scalea, float shifta, float scaleb,
                        float shiftb, float *y);
void _zetsLinearFrac_11(int32_t n, const float *a, const float *b, float scalea, float shifta, float scaleb,
                        float shiftb, float *y);
void _zetsLinearFracI_21(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float scalea,
                         float shifta, float scaleb, float shiftb, float *y, int32_t incy);
void _zetsLinearFracI(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float scalea, float shifta,
                      float scaleb, float shiftb, float *y, int32_t incy);
void _zetsLinearFracI_HA(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float scalea,
                         float shifta, float scaleb, float shiftb, float *y, int32_t incy);
void _zetsLinearFracI_11(int32_t n, const float *a, int32_t inca, const float *b, int32_t incb, float scalea,
                         float shifta, float scaleb, float shiftb, float *y, int32_t incy);
void _zetdLinearFrac_50(int32_t n, const double *a, const double *b, double scalea, double shifta, double scaleb,
                        double shiftb, double *y);
void _zetdLinearFrac(int32_t n, const double *a, const double *b, double scalea, double shifta, double scaleb,
                     double shiftb, double *y);
void _zetdLinearFrac_HA(int32_t n, const double *a, const double *b, double scalea, double shifta, double scaleb,
                        double shiftb, double *y);
void _zetdLinearFrac_26(int32_t n, const double *a, const double *b, double scalea, double shifta, double scaleb,
                        double shiftb, double *y);
void _zetdLinearFracI_50(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double scalea,
                         double shifta, double scaleb, double shiftb, double *y, int32_t incy);
void _zetdLinearFracI(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double scalea,
                      double shifta, double scaleb, double shiftb, double *y, int32_t incy);
void _zetdLinearFracI_HA(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double scalea,
                         double shifta, double scaleb, double shiftb, double *y, int32_t incy);
void _zetdLinearFracI_26(int32_t n, const double *a, int32_t inca, const double *b, int32_t incb, double scalea,
                         double shifta, double scaleb, double shiftb, double *y, int32_t incy);
/** @} */

/* ---------------------------------------------------------------------------------------------------------------------
 * Gather and scatter. With flag 1 the elements of an index or mask array are int32_t, and n and the stride are taken
 * from the low 32 bits of their arguments; with any other flag all are int64_t. Elements are copied as bit patterns. n
 * below 1 does nothing. There are no strided forms, the levels are the same, and nothing is raised.
 */

/** @name PackI
 * y[i] = a[i * inca] for i from 0 to n - 1.
 * A zero stride repeats a[0], a negative one walks backward.
 * @{ */
void _zetsPackI_21(int64_t n, const float *a, int64_t inca, float *y, int32_t flag);
void _zetsPackI(int64_t n, const float *a, int64_t inca, float *y, int32_t flag);
void _zetsPackI_HA(int64_t n, const float *a, int64_t inca, float *y, int32_t flag);
void _zetsPackI_11(int64_t n, const float *a, int64_t inca, float *y, int32_t flag);
void _zetdPackI_50(int64_t n, const double *a, int64_t inca, double *y, int32_t flag);
void _zetdPackI(int64_t n, const double *a, int64_t inca, double *y, int32_t flag);
void _zetdPackI_HA(int64_t n, const double *a, int64_t inca, double *y, int32_t flag);
void _zetdPackI_26(int64_t n, const double *a, int64_t inca, double *y, int32_t flag);
void _zetcPackI_21(int64_t n, const QorlComplex8 *a, int64_t inca, QorlComplex8 *y, int32_t flag);
void _zetcPackI(int64_t n, const QorlComplex8 *a, int64_t inca, QorlComplex8 *y, int32_t flag);
void _zetcPackI_HA(int64_t n, const QorlComplex8 *a, int64_t inca, QorlComplex8 *y, int32_t flag);
void _zetcPackI_11(int64_t n, const QorlComplex8 *a, int64_t inca, QorlComplex8 *y, int32_t flag);
void _zetzPackI_50(int64_t n, const QorlComplex16 *a, int64_t inca, QorlComplex16 *y, int32_t flag);
void _zetzPackI(int64_t n, const QorlComplex16 *a, int64_t inca, QorlComplex16 *y, int32_t flag);
void _zetzPackI_HA(int64_t n, const QorlComplex16 *a, int64_t inca, QorlComplex16 *y, int32_t flag);
void _zetzPackI_26(int64_t n, const QorlComplex16 *a, int64_t inca, QorlComplex16 *y, int32_t flag);
/** @} */

/** @name PackM
 * y[k++] = a[i] for each i from 0 to n - 1 with ma[i] not 0, k from 0.
 * The rest of y is untouched.
 * @{ */
void _zetsPackM_21(int64_t n, const float *a, const void *ma, float *y, int32_t flag);
void _zetsPackM(int64_t n, const float *a, const void *ma, float *y, int32_t flag);
void _zetsPackM_HA(int64_t n, const float *a, const void *ma, float *y, int32_t flag);
void _zetsPackM_11(int64_t n, const float *a, const void *ma, float *y, int32_t flag);
void _zetdPackM_50(int64_t n, const double *a, const void *ma, double *y, int32_t flag);
void _zetdPackM(int64_t n, const double *a, const void *ma, double *y, int32_t flag);
void _zetdPackM_HA(int64_t n, const double *a, const void *ma, double *y, int32_t flag);
void _zetdPackM_26(int64_t n, const double *a, const void *ma, double *y, int32_t flag);
void _zetcPackM_21(int64_t n, const QorlComplex8 *a, const void *ma, QorlComplex8 *y, int32_t flag);
void _zetcPackM(int64_t n, const QorlComplex8 *a, const void *ma, QorlComplex8 *y, int32_t flag);
void _zetcPackM_HA(int64_t n, const QorlComplex8 *a, const void *ma, QorlComplex8 *y, int32_t flag);
void _zetcPackM_11(int64_t n, const QorlComplex8 *a, const void *ma, QorlComplex8 *y, int32_t flag);
void _zetzPackM_50(int64_t n, const QorlComplex16 *a, const void *ma, QorlComplex16 *y, int32_t flag);
void _zetzPackM(int64_t n, const QorlComplex16 *a, const void *ma, QorlComplex16 *y, int32_t flag);
void _zetzPackM_HA(int64_t n, const QorlComplex16 *a, const void *ma, QorlComplex16 *y, int32_t flag);
void _zetzPackM_26(int64_t n, const QorlComplex16 *a, const void *ma, QorlComplex16 *y, int32_t flag);
/** @} */

/** @name PackV
 * y[i] = a[ia[i]] for i from 0 to n - 1.
 * The indices may repeat.
 * @{ */
void _zetsPackV_21(int64_t n, const float *a, const void *ia, float *y, int32_t flag);
void _zetsPackV(int64_t n, const float *a, const void *ia, float *y, int32_t flag);
void _zetsPackV_HA(int64_t n, const float *a, const void *ia, float *y, int32_t flag);
void _zetsPackV_11(int64_t n, const float *a, const void *ia, float *y, int32_t flag);
void _zetdPackV_50(int64_t n, const double *a, const void *ia, double *y, int32_t flag);
void _zetdPackV(int64_t n, const double *a, const void *ia, double *y, int32_t flag);
void _zetdPackV_HA(int64_t n, const double *a, const void *ia, double *y, int32_t flag);
void _zetdPackV_26(int64_t n, const double *a, const void *ia, double *y, int32_t flag);
void _zetcPackV_21(int64_t n, const QorlComplex8 *a, const void *ia, QorlComplex8 *y, int32_t flag);
void _zetcPackV(int64_t n, const QorlComplex8 *a, const void *ia, QorlComplex8 *y, int32_t flag);
void _zetcPackV_HA(int64_t n, const QorlComplex8 *a, const void *ia, QorlComplex8 *y, int32_t flag);
void _zetcPackV_11(int64_t n, const QorlComplex8 *a, const void *ia, QorlComplex8 *y, int32_t flag);
void _zetzPackV_50(int64_t n, const QorlComplex16 *a, const void *ia, QorlComplex16 *y, int32_t flag);
void _zetzPackV(int64_t n, const QorlComplex16 *a, const void *ia, QorlComplex16 *y, int32_t flag);
void _zetzPackV_HA(int64_t n, const QorlComplex16 *a, const void *ia, QorlComplex16 *y, int32_t flag);
void _zetzPackV_26(int64_t n, const QorlComplex16 *a, const void *ia, QorlComplex16 *y, int32_t flag);
/** @} */

/** @name UnpackI
 * y[i * incy] = a[i] for i from 0 to n - 1.
 * With a zero stride the last element stays.
 * @{ */
void _zetsUnpackI_21(int64_t n, const float *a, float *y, int64_t incy, int32_t flag);
void _zetsUnpackI(int64_t n, const float *a, float *y, int64_t incy, int32_t flag);
void _zetsUnpackI_HA(int64_t n, const float *a, float *y, int64_t incy, int32_t flag);
void _zetsUnpackI_11(int64_t n, const float *a, float *y, int64_t incy, int32_t flag);
void _zetdUnpackI_50(int64_t n, const double *a, double *y, int64_t incy, int32_t flag);
void _zetdUnpackI(int64_t n, const double *a, double *y, int64_t incy, int32_t flag);
void _zetdUnpackI_HA(int64_t n, const double *a, double *y, int64_t incy, int32_t flag);
void _zetdUnpackI_26(int64_t n, const double *a, double *y, int64_t incy, int32_t flag);
void _zetcUnpackI_21(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, int64_t incy, int32_t flag);
void _zetcUnpackI(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, int64_t incy, int32_t flag);
void _zetcUnpackI_HA(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, int64_t incy, int32_t flag);
void _zetcUnpackI_11(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, int64_t incy, int32_t flag);
void _zetzUnpackI_50(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, int64_t incy, int32_t flag);
void _zetzUnpackI(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, int64_t incy, int32_t flag);
void _zetzUnpackI_HA(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, int64_t incy, int32_t flag);
void _zetzUnpackI_26(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, int64_t incy, int32_t flag);
/** @} */

/** @name UnpackM
 * y[i] = a[k++] for each i from 0 to n - 1 with my[i] not 0, k from 0.
 * y[i] is untouched where my[i] is 0.
 * @{ */
void _zetsUnpackM_21(int64_t n, const float *a, float *y, const void *my, int32_t flag);
void _zetsUnpackM(int64_t n, const float *a, float *y, const void *my, int32_t flag);
void _zetsUnpackM_HA(int64_t n, const float *a, float *y, const void *my, int32_t flag);
void _zetsUnpackM_11(int64_t n, const float *a, float *y, const void *my, int32_t flag);
void _zetdUnpackM_50(int64_t n, const double *a, double *y, const void *my, int32_t flag);
void _zetdUnpackM(int64_t n, const double *a, double *y, const void *my, int32_t flag);
void _zetdUnpackM_HA(int64_t n, const double *a, double *y, const void *my, int32_t flag);
void _zetdUnpackM_26(int64_t n, const double *a, double *y, const void *my, int32_t flag);
void _zetcUnpackM_21(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, const void *my, int32_t flag);
void _zetcUnpackM(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, const void *my, int32_t flag);
void _zetcUnpackM_HA(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, const void *my, int32_t flag);
void _zetcUnpackM_11(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, const void *my, int32_t flag);
void _zetzUnpackM_50(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, const void *my, int32_t flag);
void _zetzUnpackM(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, const void *my, int32_t flag);
void _zetzUnpackM_HA(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, const void *my, int32_t flag);
void _zetzUnpackM_26(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, const void *my, int32_t flag);
/** @} */

/** @name UnpackV
 * y[iy[i]] = a[i] for i from 0 to n - 1.
 * Repeated indices resolve in ascending i: the last write stays.
 * @{ */
void _zetsUnpackV_21(int64_t n, const float *a, float *y, const void *iy, int32_t flag);
void _zetsUnpackV(int64_t n, const float *a, float *y, const void *iy, int32_t flag);
void _zetsUnpackV_HA(int64_t n, const float *a, float *y, const void *iy, int32_t flag);
void _zetsUnpackV_11(int64_t n, const float *a, float *y, const void *iy, int32_t flag);
void _zetdUnpackV_50(int64_t n, const double *a, double *y, const void *iy, int32_t flag);
void _zetdUnpackV(int64_t n, const double *a, double *y, const void *iy, int32_t flag);
void _zetdUnpackV_HA(int64_t n, const double *a, double *y, const void *iy, int32_t flag);
void _zetdUnpackV_26(int64_t n, const double *a, double *y, const void *iy, int32_t flag);
void _zetcUnpackV_21(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, const void *iy, int32_t flag);
void _zetcUnpackV(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, const void *iy, int32_t flag);
void _zetcUnpackV_HA(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, const void *iy, int32_t flag);
void _zetcUnpackV_11(int64_t n, const QorlComplex8 *a, QorlComplex8 *y, const void *iy, int32_t flag);
void _zetzUnpackV_50(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, const void *iy, int32_t flag);
void _zetzUnpackV(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, const void *iy, int32_t flag);
void _zetzUnpackV_HA(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, const void *iy, int32_t flag);
void _zetzUnpackV_26(int64_t n, const QorlComplex16 *a, QorlComplex16 *y, const void *iy, int32_t flag);
/** @} */

#ifdef __cplusplus
}
#endif

#endif
