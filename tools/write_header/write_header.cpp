// Writes the public headers of the element-wise functions, zet.h and zet_tables.h, from the list of entries and the
// list of descriptions beside this file. The headers are committed, so that users and editors see declarations; a test
// writes them again and compares.
#include <fmt/core.h>
#include <fmt/ranges.h>

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <stdexcept>
#include <string>
#include <string_view>
#include <vector>

#include "frame/entries.hpp"

namespace {

using qorl::Entry;
using qorl::Form;
using qorl::Level;
using qorl::Shape;

constexpr std::size_t column_limit = 120;

enum class Domain { real, complex, any };

struct Description {
    Domain domain;
    std::string_view function, formula, cases;
};

constexpr Description descriptions[] = {
#define QORL_DESCRIPTION(domain, Function, formula, cases) {Domain::domain, #Function, formula, cases},
#include "descriptions.inc"
#undef QORL_DESCRIPTION
};

constexpr std::string_view banner =
    "/* Written by tools/write_header from the list of entries; change the list or the tool, not this file. */\n";

constexpr std::string_view zet_head = R"(#ifndef QORL_ZET_H
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

)";

constexpr std::string_view tables_head = R"(#ifndef QORL_ZET_TABLES_H
#define QORL_ZET_TABLES_H

/**
 * @file
 * The kernel tables of the element-wise functions, for callers that choose the level at run time.
 *
 * `qorl_zet_kernel_<t><Function>_ttab` holds the kernels of a function for the levels LA, HA and EP, in this order,
 * with the arguments of the functions in qorl/zet.h; levels that share their code hold the same pointer. Index it with
 * qorl_zet_kernel_GetTTableIndex, or with 0, 1, 2. A function that this release does not hold has three null pointers.
 *
 * `qorl_zet_kernel_<t><Function>_ctab` holds the relative cost of one element for the same levels, to weigh whether to
 * split work. Figures 1.0 (Bessel functions) and 1111.0 (gather and scatter) are markers and no measurement; 0.0 stands
 * where the release does not hold the function.
 *
 * Both are constant from load to unload and may be read from any thread. An executable that names one of these objects
 * may be given a copy of it by the linker, so their distances in memory mean something to a look-up by name only.
 */

#ifdef __cplusplus
extern "C" {
#endif

)";

constexpr std::string_view closing = R"(#ifdef __cplusplus
}
#endif

#endif
)";

bool is_complex(char type) {
    return type == 'c' || type == 'z';
}

std::string_view real_of(char type) {
    return type == 's' || type == 'c' ? "float" : "double";
}

std::string_view element_of(char type) {
    if (!is_complex(type)) return real_of(type);
    return type == 'c' ? "QorlComplex8" : "QorlComplex16";
}

Domain domain_of(const Entry &entry) {
    if (entry.shape == Shape::pack) return Domain::any;
    return is_complex(entry.type) ? Domain::complex : Domain::real;
}

const Description &describe(const Entry &entry) {
    const auto *found = std::find_if(std::begin(descriptions), std::end(descriptions), [&](const Description &d) {
        return d.function == entry.function && d.domain == domain_of(entry);
    });
    if (found == std::end(descriptions))
        throw std::runtime_error(fmt::format("descriptions.inc has no line for {}{}", entry.type, entry.function));
    // A function without a name row cannot raise, and its line has to say so.
    const bool has_row =
        std::any_of(std::begin(qorl::name_rows), std::end(qorl::name_rows), [&](const qorl::NameRows &row) {
            return row.function == entry.function && is_complex(row.type) == is_complex(entry.type);
        });
    if (!has_row && entry.shape != Shape::pack && !found->cases.ends_with("Raises nothing."))
        throw std::runtime_error(fmt::format("{} has no name row and so raises nothing", entry.function));
    return *found;
}

std::vector<std::string> pack_arguments(const Entry &entry) {
    const std::string_view element = element_of(entry.type);
    const char form = entry.function.back();
    const bool gather = entry.function.starts_with("Pack");
    const std::string a = fmt::format("const {} *a", element), y = fmt::format("{} *y", element);
    const std::string_view side = gather ? "a" : "y";
    const std::string place = form == 'I' ? fmt::format("int64_t inc{}", side)
                                          : fmt::format("const void *{}{}", form == 'V' ? "i" : "m", side);
    if (gather) return {"int64_t n", a, place, y, "int32_t flag"};
    return {"int64_t n", a, y, place, "int32_t flag"};
}

std::vector<std::string> arguments(const Entry &entry) {
    if (entry.shape == Shape::pack) return pack_arguments(entry);
    const std::string element(element_of(entry.type)), real(real_of(entry.type));
    std::vector<std::string> list{"int32_t n"};
    const auto array = [&](const std::string &type, std::string_view name) {
        list.push_back(fmt::format("{} *{}", type, name));
        if (entry.form == Form::strided) list.push_back(fmt::format("int32_t inc{}", name));
    };
    const auto scalar = [&](std::string_view name) { list.push_back(fmt::format("{} {}", element, name)); };
    array("const " + (entry.shape == Shape::real_to_complex ? real : element), "a");
    switch (entry.shape) {
        case Shape::binary:
        case Shape::complex_binary:
            array("const " + element, "b");
            break;
        case Shape::unary_param:
        case Shape::array_scalar:
            scalar("b");
            break;
        case Shape::linear_frac:
            array("const " + element, "b");
            for (const auto *name : {"scalea", "shifta", "scaleb", "shiftb"}) scalar(name);
            break;
        default:
            break;
    }
    array(entry.shape == Shape::complex_to_real ? real : element, "y");
    if (entry.shape == Shape::two_results) array(element, "z");
    return list;
}

// One declaration, broken behind commas and aligned with its parenthesis where it is too long.
std::string declaration(std::string_view name, const std::vector<std::string> &list) {
    std::string line = fmt::format("void {}(", name), text;
    const std::string indent(line.size(), ' ');
    for (std::size_t i = 0; i < list.size(); ++i) {
        const std::string argument = list[i] + (i + 1 < list.size() ? "," : ");");
        const bool first = line.size() == indent.size();
        if (line.size() + argument.size() + (first ? 0 : 1) > column_limit) {
            text += line + "\n";
            line = indent + argument;
        } else {
            line += (first ? "" : " ") + argument;
        }
    }
    return text + line + "\n";
}

std::string declarations(const Entry &entry) {
    const std::vector<std::string> list = arguments(entry);
    const std::string name = fmt::format("_zet{}{}", entry.type, entry.function);
    std::string text;
    for (const Level level : {Level::LA, Level::HA, Level::EP}) {
        text += declaration(name + std::string(qorl::name_suffix(entry.type, level)), list);
        if (level == Level::HA) text += declaration(name + "_HA", list);
    }
    return text;
}

// Words filled into lines of a comment.
std::string comment_lines(std::string_view words) {
    constexpr std::string_view indent = " *";
    std::string text, line(indent);
    while (!words.empty()) {
        const std::size_t end = std::min(words.find(' '), words.size());
        if (line.size() + 1 + end > column_limit) {
            text += line + "\n";
            line = indent;
        }
        line += ' ';
        line += words.substr(0, end);
        words.remove_prefix(std::min(end + 1, words.size()));
    }
    return text + line + "\n";
}

struct Section {
    Shape shape;
    std::string_view title;
};

constexpr Section sections[] = {
    {Shape::unary, "One real array in, one real array out: (n, a, y)."},
    {Shape::unary_param, "One real array and one scalar in, one real array out: (n, a, b, y)."},
    {Shape::complex_unary, "One complex array in, one complex array out: (n, a, y)."},
    {Shape::real_to_complex, "One real array in, one complex array out: (n, a, y)."},
    {Shape::complex_to_real, "One complex array in, one real array out: (n, a, y)."},
    {Shape::binary, "Two real arrays in, one real array out: (n, a, b, y)."},
    {Shape::complex_binary, "Two complex arrays in, one complex array out: (n, a, b, y)."},
    {Shape::array_scalar, "One array and one scalar in, one array out: (n, a, b, y)."},
    {Shape::two_results, "One real array in, two real arrays out: (n, a, y, z)."},
    {Shape::linear_frac, "The linear fraction of two arrays."},
    {Shape::pack,
     "Gather and scatter. With flag 1 the elements of an index or mask array are int32_t, and n and the stride are "
     "taken "
     "from the low 32 bits of their arguments; with any other flag all are int64_t. Elements are copied as bit "
     "patterns. "
     "n below 1 does nothing. There are no strided forms, the levels are the same, and nothing is raised."},
};

std::string zet_header() {
    std::string text = std::string(banner) + std::string(zet_head);
    for (const Section &section : sections) {
        text += "/* " + std::string(117, '-') + "\n" + comment_lines(section.title) + " */\n\n";
        std::vector<const Description *> done;
        for (const Entry &first : qorl::entries) {
            if (first.shape != section.shape || first.form != Form::unit) continue;
            const Description &about = describe(first);
            if (std::find(done.begin(), done.end(), &about) != done.end()) continue;
            done.push_back(&about);
            text += fmt::format("/** @name {}\n{}{} * @{{ */\n", about.function,
                                comment_lines(std::string(about.formula) + "."), comment_lines(about.cases));
            for (const Entry &entry : qorl::entries) {
                if (entry.shape != section.shape || entry.form != Form::unit || &describe(entry) != &about) continue;
                text += declarations(entry);
                if (const Entry *strided = qorl::strided_twin(entry)) text += declarations(*strided);
            }
            text += "/** @} */\n\n";
        }
    }
    return text + std::string(closing);
}

std::string tables_header() {
    std::string text = std::string(banner) + std::string(tables_head);
    for (const Entry &entry : qorl::entries)
        text += fmt::format(
            "extern void *const qorl_zet_kernel_{0}{1}_ttab[3];\nextern const float qorl_zet_kernel_{0}{1}_ctab[3];\n",
            entry.type, entry.function);
    return text + "\n" + std::string(closing);
}

void write(const std::filesystem::path &path, const std::string &text) {
    std::ofstream file(path, std::ios::binary);
    file << text;
    file.close();
    if (!file) throw std::runtime_error("cannot write " + path.string());
}

}  // namespace

int main(int argc, char **argv) {
    if (argc != 2) {
        fmt::print(stderr, "usage: write_header DIRECTORY\nWrites zet.h and zet_tables.h into DIRECTORY.\n");
        return 2;
    }
    try {
        const std::filesystem::path directory(argv[1]);
        write(directory / "zet.h", zet_header());
        write(directory / "zet_tables.h", tables_header());
    } catch (const std::exception &error) {
        fmt::print(stderr, "write_header: {}\n", error.what());
        return 1;
    }
    return 0;
}
