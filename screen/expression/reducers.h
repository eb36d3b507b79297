// One reducer a kind of token: each hangs what its token stands for into the innermost stretch of the build.
//
// All take the token's index and give 0, or -1 after an error is noted. A stretch reads on behind its token,
// unless the reducer moves it further.
#pragma once

#include <cstddef>

namespace jogeon {

class S4PTBUILD;

int PTNODER_INDEX(std::size_t index, S4PTBUILD& build);
int PTNODER_COPEN(std::size_t index, S4PTBUILD& build);
int PTNODER_CCLOSE(std::size_t index, S4PTBUILD& build);
int PTNODER_UNARY(std::size_t index, S4PTBUILD& build);
int PTNODER_BINARY(std::size_t index, S4PTBUILD& build);
int PTNODER_QUESTION(std::size_t index, S4PTBUILD& build);
int PTNODER_COLON(std::size_t index, S4PTBUILD& build);

}  // namespace jogeon
