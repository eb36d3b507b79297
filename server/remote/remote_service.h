// The service of another process, over a connection.
//
// Relies on gRPC. The connection is made at the first call, and made again whenever it broke: a call while
// there is no server fails at once, one after the server came back succeeds. No call is sent twice: a save
// whose answer was lost is for the user's next version check to find.
#pragma once

#include <chrono>
#include <functional>
#include <memory>
#include <stdexcept>

#include "server/remote/protocol.h"
#include "server/service/service.h"

namespace jogeon::remote {

// Why a call failed.
struct Trouble {
    enum class Kind {
        Unreachable,    // nobody listens there, or he went away before he answered
        Late,           // no answer within the time for it
        OtherProtocol,  // another program, or a jogeon of another version
        Failed,         // the server says that it can't
    };
    Kind kind = Kind::Failed;
    std::string line;  // for the user
};

// Thrown with the trouble's line where a call has no other way to fail.
class RemoteError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

struct RemoteSettings {
    // The screen waits for no answer longer than twenty seconds.
    std::chrono::milliseconds handleDeadline{20'000};
    // For the calls that a user interface makes on its own thread.
    std::chrono::milliseconds callDeadline{5'000};
    int protocol = kProtocol;
    // Hear of each call that the server didn't answer or didn't understand, thrown or not, and of the first
    // that succeeds after one that failed; on the thread that made it. May be empty.
    std::function<void()> lost;
    std::function<void()> recovered;
};

class RemoteService : public service::Service {
public:
    using TroubleLog = std::function<void(const Trouble&)>;

    // `address` as ReadLoopbackAddress has it, with a port. `log` may be empty; it hears of calls that
    // failed without throwing, on the threads that made them, before they return.
    explicit RemoteService(const std::string& address, TroubleLog log = {}, RemoteSettings settings = {});
    ~RemoteService() override;

    // Empty, too, when the call failed.
    std::string Handle(const service::Request& request) override;
    bool FillCodeLists(const std::string& user,
                       std::map<std::string, std::vector<std::string>>& lists) override;
    std::vector<std::string> Accounts(const std::string& user) override;

    // Empty, too, when the call failed, and without a call for a moment after that: names are asked for by
    // the hundred, and a server that hangs would hold up each of them.
    std::string StockName(const std::string& code) override;
    service::MarketSummary Market() override;

    // Callable while calls are under way, which return soon. They fail without a word to the log.
    void GiveUpCalls() override;

    // Each of its calls throws RemoteError when it failed.
    service::Portfolios& GetPortfolios() override;
    service::Charts& GetCharts() override;
    service::Watches& GetWatches() override;

    struct Connection;

private:
    const std::unique_ptr<Connection> connection_;
    const std::unique_ptr<service::Portfolios> portfolios_;
    const std::unique_ptr<service::Charts> charts_;
    const std::unique_ptr<service::Watches> watches_;
};

}  // namespace jogeon::remote
