#include "screen/fbgrid/fb_index.h"

#include <cassert>

namespace jogeon {
namespace {

bool ignored = false;

}  // namespace

void ReportWrongIndex() {
    assert(ignored && "an index that the grid doesn't have");
}

ReleaseIndexRule::ReleaseIndexRule() {
    ignored = true;
}
ReleaseIndexRule::~ReleaseIndexRule() {
    ignored = false;
}

}  // namespace jogeon
