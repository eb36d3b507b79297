// What every test program needs around it, so that it also runs by hand.
#pragma once

namespace jogeon::test {

// Sets the variables that are not set: the built data files, and Qt without a display and its remarks.
void PrepareEnvironment();

}  // namespace jogeon::test
