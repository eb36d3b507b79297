// The commands that talk to the search service: start, next page, release.
//
// Relies on the request channel for sending and on the result flow for what a search goes on from. It owns
// the search handle, the two characters under which the server keeps a result.
#pragma once

#include <functional>
#include <string>

#include "screen/host/services.h"
#include "screen/results/result_flow.h"
#include "screen/transactions/request_channel.h"
#include "screen/transactions/result_columns.h"
#include "screen/transactions/search_request.h"

namespace jogeon {

class SearchCommands {
public:
    // What the screen shows at the moment of a search, all but `prior`, which the flow knows.
    using Gather = std::function<SearchInputs()>;

    // All of these outlive this object. What is wrong with the expression is asked by `expressionQuestions`.
    SearchCommands(RequestChannel& channel, ResultFlow& results, ColumnTables& columns,
                   host::Questions& questions, host::Questions& expressionQuestions, Gather gather);

    // Starts a search; nothing while a request is out. An unset target is told the user.
    void Start();

    // Asks for the next page of the result on the selected tab, if it is that of the last search.
    void NextPage();

    // Lets the server forget the result. No answer comes.
    void Release();

private:
    RequestChannel& channel_;
    ResultFlow& results_;
    ColumnTables& columns_;
    host::Questions& questions_;
    host::Questions& expressionQuestions_;
    const Gather gather_;
    std::string searchHandle_;
};

}  // namespace jogeon
