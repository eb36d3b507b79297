// Runs widget tests inside one application object.
#include <QApplication>

#include <gtest/gtest.h>

#include "tests/environment.h"

int main(int argc, char** argv) {
    jogeon::test::PrepareEnvironment();
    QApplication application(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
