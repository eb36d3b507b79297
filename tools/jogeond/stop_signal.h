// The signals by which a user or the system asks a program to end.
#pragma once

namespace jogeon {

class StopSignal {
public:
    // From now on the signals wait to be asked for. Threads that start after this leave them alone, too.
    StopSignal();

    // Returns when one has come.
    void Wait() const;
};

}  // namespace jogeon
