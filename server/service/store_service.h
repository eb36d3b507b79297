// The store's half of the service: version check, list, save, delete and order of a user's condition sets.
//
// A request of the screen in, the bytes of its reply out; the sets themselves are a ConditionStore's. What a
// payload holds can do no more than fail its request, and never reaches another user's sets. Callable from
// several threads.
#pragma once

#include <filesystem>
#include <string>

#include "server/service/request.h"
#include "server/store/condition_store.h"

namespace jogeon::service {

class StoreService {
public:
    // Opens the store's file or makes it. Throws store::StoreError.
    explicit StoreService(const std::filesystem::path& file, FailureLog log = {});

    // The payload of the reply. A request of another transaction or an unknown letter has none; nor has a "V"
    // that can't be answered, since it has no way to say so but silence.
    std::string Handle(const Request& request);

    // Where the sets are.
    const std::filesystem::path& File() const { return file_; }

private:
    std::string AnswerList(const Request& request);
    std::string AnswerCommand(const Request& request);
    store::Change Carry(const Request& request, const std::string& version);
    std::string VersionFor(const Request& request, const std::string& asked);
    void Log(const Request& request, std::string_view why) const;

    const std::filesystem::path file_;
    store::ConditionStore store_;
    const FailureLog log_;
};

}  // namespace jogeon::service
