// The kernel table, the entry stubs and the name rows, expanded from the lists.
//
// Layout, fixed by the interface: entry i has its ttab (three kernel pointers, LA HA EP) at 48 * i and its ctab (three
// floats, LA HA EP) at 48 * i + 24, then 12 zero bytes; the last ctab is followed by the name rows instead. A stub is
// one load from its slot and one jump, so arguments and return address pass through untouched.

        .intel_syntax noprefix

// Which functions stand, and what their kernels cost.
#define QORL_FUNCTION(t, Function, la, ha, ep) \
        .set landed_##t##Function, 1 ; .set landed_##t##Function##I, 1
#include "frame/functions.inc"

#define QORL_COST(t, Function, la, ha, ep)                                          \
        .set costed_##t##Function, 1 ; .set costed_##t##Function##I, 1 ;         \
        .macro cost_##t##Function ; .float la, ha, ep ; .endm ;                     \
        .macro cost_##t##Function##I ; .float la, ha, ep ; .endm
#include "frame/costs.inc"

// ---------------------------------------------------------------------------------------------------------------------
        .section .data.rel.ro.qorl, "aw", @progbits
        .balign 64
        .globl qorl_kernel_table
        .hidden qorl_kernel_table
qorl_kernel_table:

#define QORL_ENTRY(index, t, Function, shape, form, la, ha, ep)                     \
        .org qorl_kernel_table + 48 * index ;                                          \
        .globl qorl_zet_kernel_##t##Function##_ttab ;                               \
        .type qorl_zet_kernel_##t##Function##_ttab, @object ;                       \
        .size qorl_zet_kernel_##t##Function##_ttab, 24 ;                            \
        .globl qorl_zet_kernel_##t##Function##_ctab ;                               \
        .type qorl_zet_kernel_##t##Function##_ctab, @object ;                       \
        .size qorl_zet_kernel_##t##Function##_ctab, 12 ;                            \
        .globl qorl_ttab_##t##Function ;                                            \
        .hidden qorl_ttab_##t##Function ;                                           \
    qorl_zet_kernel_##t##Function##_ttab: ;                                         \
    qorl_ttab_##t##Function: ;                                                      \
        .ifdef landed_##t##Function ;                                               \
        .quad qorl_kernel_##t##Function##_##la ;                                    \
        .quad qorl_kernel_##t##Function##_##ha ;                                    \
        .quad qorl_kernel_##t##Function##_##ep ;                                    \
        .else ;                                                                        \
        .quad 0, 0, 0 ;                                                                \
        .endif ;                                                                       \
    qorl_zet_kernel_##t##Function##_ctab: ;                                         \
        .ifdef costed_##t##Function ;                                               \
        cost_##t##Function ;                                                        \
        .else ;                                                                        \
        .float 0.0, 0.0, 0.0 ;                                                         \
        .endif
#include "frame/entries.inc"
#undef QORL_ENTRY

// The name rows: "v", type, function, padded to a multiple of four bytes.
        .globl qorl_name_table
        .hidden qorl_name_table
qorl_name_table:

#define QORL_ROW(t, Function, level)                                                \
        .globl qorl_name_##t##Function##_##level ;                                  \
        .hidden qorl_name_##t##Function##_##level ;                                 \
    qorl_name_##t##Function##_##level: ;                                            \
        .asciz "v" #t #Function ;                                                   \
        .balign 4, 0
#define QORL_ROWS_LA(t, Function) QORL_ROW(t, Function, LA)
#define QORL_ROWS_HA(t, Function) QORL_ROW(t, Function, HA)
#define QORL_ROWS_EP_LA(t, Function) QORL_ROW(t, Function, EP) ; QORL_ROW(t, Function, LA)
#define QORL_ROWS_HA_LA(t, Function) QORL_ROW(t, Function, HA) ; QORL_ROW(t, Function, LA)
#define QORL_ROWS_EP_HA_LA(t, Function)                                             \
        QORL_ROW(t, Function, EP) ; QORL_ROW(t, Function, HA) ; QORL_ROW(t, Function, LA)
#define QORL_NAME(t, Function, rows) QORL_ROWS_##rows(t, Function)
#include "frame/names.inc"

        .globl qorl_name_table_end
        .hidden qorl_name_table_end
qorl_name_table_end:

// A function that never raises has no row; its kernels, written like all others, name this empty one and never read it.
        .section .rodata.qorl_no_name, "a", @progbits
qorl_no_name:
        .asciz ""

#define QORL_NO_ROW(t, Function, level)                                             \
        .ifndef qorl_name_##t##Function##_##level ;                                 \
        .globl qorl_name_##t##Function##_##level ;                                  \
        .hidden qorl_name_##t##Function##_##level ;                                 \
        .set qorl_name_##t##Function##_##level, qorl_no_name ;                      \
        .endif
#define QORL_FUNCTION_ROWS(t, Function)                                             \
        QORL_NO_ROW(t, Function, LA) ; QORL_NO_ROW(t, Function, HA) ; QORL_NO_ROW(t, Function, EP)
#undef QORL_FUNCTION
#define QORL_FUNCTION(t, Function, la, ha, ep) QORL_FUNCTION_ROWS(t, Function)
#include "frame/functions.inc"

// ---------------------------------------------------------------------------------------------------------------------
        .section .text.qorl_stubs, "ax", @progbits

// The suffix of a name tells the level by the type's width; HA has a second name without one.
#define QORL_SUFFIX_LA_s _21
#define QORL_SUFFIX_LA_c _21
#define QORL_SUFFIX_LA_d _50
#define QORL_SUFFIX_LA_z _50
#define QORL_SUFFIX_EP_s _11
#define QORL_SUFFIX_EP_c _11
#define QORL_SUFFIX_EP_d _26
#define QORL_SUFFIX_EP_z _26
#define QORL_JOIN(a, b) QORL_JOIN_EXPANDED(a, b)
#define QORL_JOIN_EXPANDED(a, b) a##b

#define QORL_LABEL(name)                                                               \
        .globl name ; .type name, @function ; .size name, 9 ; name:
#define QORL_JUMP(index, slot)                                                         \
        mov rax, qword ptr [rip + qorl_kernel_table + 48 * index + 8 * slot] ;         \
        jmp rax ;                                                                      \
        .balign 16, 0xCC

#define QORL_ENTRY(index, t, Function, shape, form, la, ha, ep)                     \
        .ifdef landed_##t##Function ;                                               \
        QORL_LABEL(QORL_JOIN(_zet##t##Function, QORL_SUFFIX_LA_##t)) ;           \
        QORL_JUMP(index, 0) ;                                                          \
        QORL_LABEL(_zet##t##Function) ;                                             \
        QORL_LABEL(_zet##t##Function##_HA) ;                                        \
        QORL_JUMP(index, 1) ;                                                          \
        QORL_LABEL(QORL_JOIN(_zet##t##Function, QORL_SUFFIX_EP_##t)) ;           \
        QORL_JUMP(index, 2) ;                                                          \
        .endif
        .balign 16, 0xCC
#include "frame/entries.inc"

        QORL_LABEL(_zetSetMode)
        jmp qorl_mode_set

        .section .note.GNU-stack, "", @progbits
