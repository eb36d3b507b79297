// Watches of the service of another process.
#pragma once

#include "server/remote/remote_service.h"

namespace jogeon::remote {

// Every call waits as long as for a search, and throws RemoteError when it failed.
class RemoteWatches : public service::Watches {
public:
    explicit RemoteWatches(RemoteService::Connection& connection)
        : connection_(connection) {}  // which outlives this

    service::WatchStart Open(const std::string& user, const std::string& conditionSet) override;
    service::WatchNews Advance(const std::string& user, int id, int milliseconds) override;
    void Close(const std::string& user, int id) override;

private:
    RemoteService::Connection& connection_;
};

}  // namespace jogeon::remote
