// What generators ask of the processor.
#include "qorl/core.h"
#include "qorl/hux.h"

int32_t __huxCPUisAES(void) {
    return qorl_serv_processor_has(QORL_PROCESSOR_AES);
}

int32_t __huxCPUisVAES(void) {
    return qorl_serv_processor_has(QORL_PROCESSOR_VAES);
}
