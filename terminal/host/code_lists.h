// Code lists and stock names, which the service has.
#pragma once

#include <string>
#include <utility>

#include "screen/host/services.h"
#include "server/service/service.h"

namespace jogeon::terminal {

class ServiceCodeLists : public host::CodeLists {
public:
    ServiceCodeLists(service::Service& service, std::string user)
        : service_(service), user_(std::move(user)) {}

    bool Fill(std::map<std::string, std::vector<std::string>>& lists) override {
        return service_.FillCodeLists(user_, lists);
    }
    std::string StockName(const std::string& code) override { return service_.StockName(code); }

private:
    service::Service& service_;
    const std::string user_;
};

}  // namespace jogeon::terminal
