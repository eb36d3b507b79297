#include "server/remote/protocol.h"

#include <grpc/support/log.h>

namespace jogeon::remote {

void SilenceLibrary() {
    gpr_set_log_function([](gpr_log_func_args*) {});
}

}  // namespace jogeon::remote
