#include "qorl/core.h"

/* The types hold what the header says, in C too. */
static void body(int64_t index, int64_t thread, int64_t threads, void *context) {
    int64_t *sum = (int64_t *)context;
    *sum += index + thread + threads;
}

int64_t qorl_test_core_header_in_c(void) {
    int64_t sum = 0;
    const QorlThreadTable *table = qorl_core_serial_table();
    table->parallel_for(table->thread_limit(), 3, &sum, body);
    return sum + qorl_serv_processor_has(QORL_PROCESSOR_AES);
}
