#include "tools/jogeond/verify_command.h"

#include <cstdio>
#include <exception>

#include "server/market/market_file.h"

namespace jogeon {
namespace {

constexpr int kWhole = 0;
constexpr int kFailed = 2;

}  // namespace

int RunVerify(const std::vector<std::string>& args) {
    if (args.size() != 1 || args.front().starts_with("-")) {
        std::fputs("Usage: jogeond verify FILE\n", stderr);
        return kFailed;
    }
    try {
        market::VerifyMarket(args.front());
    } catch (const std::exception& error) {
        std::fprintf(stderr, "jogeond verify: %s\n", error.what());
        return kFailed;
    }
    std::printf("%s: whole\n", args.front().c_str());
    return kWhole;
}

}  // namespace jogeon
