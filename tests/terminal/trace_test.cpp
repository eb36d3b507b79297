#include "terminal/trace.h"

#include <gtest/gtest.h>

#include "screen/text/cp949.h"

namespace jogeon::terminal {
namespace {

TEST(TraceTest, APacketReadsInHexAndText) {
    EXPECT_EQ(
        "-> pisodbop key a1 length 6\n"
        "       0  56 30 b0 a1 0a 41\n"
        "  text [V0가.A]\n",
        Describe({false, "pisodbop", 0xa1, "V0" + ToCp949("가") + "\nA"}));
}

TEST(TraceTest, ALongPacketIsCutAndSaysSo) {
    const std::string text = Describe({true, "pisoscop", 1, std::string(100, 'x')}, 40);
    EXPECT_EQ(0u, text.find("<- pisoscop key 01 length 100\n"));
    EXPECT_NE(std::string::npos, text.find("      32  78 78 78 78 78 78 78 78\n"));
    EXPECT_NE(std::string::npos, text.find("... 60 more bytes"));
}

}  // namespace
}  // namespace jogeon::terminal
