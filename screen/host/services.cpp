#include "screen/host/services.h"

namespace jogeon::host {
namespace {

Services installed;

}  // namespace

void Install(const Services& services) {
    installed = services;
}

const Services& Installed() {
    return installed;
}

}  // namespace jogeon::host
