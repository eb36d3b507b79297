// One search of the command line: composed as the screen composes it, answered by a service in this process,
// and read as the screen reads it, page by page.
#pragma once

#include <filesystem>
#include <memory>
#include <stdexcept>
#include <string>

#include "screen/condition/saved_index_info.h"
#include "screen/results/result_set.h"
#include "screen/transactions/result_columns.h"
#include "server/market/market.h"
#include "server/service/service.h"

namespace jogeon {

// Why a search failed, in one line of UTF-8.
class SearchFailed : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

class SearchSession {
public:
    // The home gives the columns: those that the user's grid shows, or the ones it starts with.
    SearchSession(std::shared_ptr<const market::Market> market, std::string user,
                  const std::filesystem::path& home);

    service::Service& Service() { return *service_; }

    // All rows of the set's search; a set without a universe is searched in all sectors. Throws SearchFailed.
    // The result borrows columns of this session.
    ResultSet Search(const CSavedIndexInfo& set);

private:
    std::string Compose(const CSavedIndexInfo& set);
    std::string Send(std::string payload);
    SearchReply Read(const std::string& reply) const;

    std::string user_;
    std::string failure_;  // why the service refused, from its log
    std::unique_ptr<service::Service> service_;
    ColumnTables columns_;
};

}  // namespace jogeon
