// Runs tests that need no widgets.
#include <gtest/gtest.h>

#include "tests/environment.h"

int main(int argc, char** argv) {
    jogeon::test::PrepareEnvironment();
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
