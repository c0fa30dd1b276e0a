/* The public headers are plain C11; compiled with -pedantic, this file needs no more than to include them. */
#include <qorl/core.h>
#include <qorl/hux.h>
#include <qorl/zet.h>
#include <qorl/zet_tables.h>

extern void *const *const first_table;
void *const *const first_table = qorl_zet_kernel_sCeil_ttab;
