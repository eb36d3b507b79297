#include "tools/jogeond/search_session.h"

#include <optional>
#include <utility>
#include <vector>

#include "screen/expression/expression_text.h"
#include "screen/results/grid_layout.h"
#include "screen/target/search_target.h"
#include "screen/text/cp949.h"
#include "screen/transactions/search_request.h"
#include "server/service/local_service.h"

namespace jogeon {
namespace {

constexpr host::WindowHandle kWindow = 1;  // a screen of our own: there is no other in this process
constexpr char kTransaction[] = "pisoscop";
constexpr char kStart = 'T';
constexpr char kNextPage = 'N';
constexpr char kWholeMode = '0';

// What the screen would show in a box ends the search here.
class FailingQuestions : public host::Questions {
public:
    host::Answer Ask(const host::Box& box) override { throw SearchFailed(ToUtf8(box.text)); }
    bool Run(const std::string&, void*) override { return false; }
    std::optional<std::filesystem::path> AskSavePath(const host::FileQuestion&) override { return {}; }
};

ColumnTables LoadColumns(const std::filesystem::path& home, const std::string& user) {
    ColumnTables tables = LoadColumnTable(home / "System" / "XcsFid.dat");
    GridLayout layout = ReadGridLayout(home / "User" / (user + "_0150TempGrid01.dlg"));
    if (layout.empty()) layout = ReadGridLayout(home / "Screen" / "Dlg" / "0150TempGrid.dlg");
    std::vector<GridColumnLayout> grid;
    for (const GridColumn& column : layout) grid.push_back({column.number, column.fid, column.hidden});
    if (!grid.empty()) ApplyGridLayout(tables, grid);
    return tables;
}

bool CheckExpression(const std::string& text) {
    const ExpressionCheck check = CheckExpressionText(text);
    if (!check.valid)
        throw SearchFailed("the expression is wrong: " +
                           ToUtf8(ExpressionErrorText(text, check.errorPosition)));
    return true;
}

HeaderSource HeaderOf(const CSavedIndexInfo& set, const std::string& user) {
    HeaderSource header;
    header.userId = user;
    header.nameLabel = set.Name;
    header.buy = set.TypePosition == 1;
    if (HasUniverse(set))
        static_cast<TargetFields&>(header.target) = set;
    else
        header.target = SearchTarget::ForNewScreen();
    return header;
}

}  // namespace

SearchSession::SearchSession(std::shared_ptr<const market::Market> market, std::string user,
                             const std::filesystem::path& home)
    : user_(std::move(user)),
      service_(std::make_unique<service::LocalService>(std::move(market), nullptr,
                                                       [this](const std::string& why) { failure_ = why; })),
      columns_(LoadColumns(home, user_)) {
    if (columns_.columns.empty())
        throw SearchFailed("no columns in " + (home / "System" / "XcsFid.dat").string());
}

std::string SearchSession::Compose(const CSavedIndexInfo& set) {
    SearchInputs inputs;
    inputs.window = kWindow;
    inputs.header = HeaderOf(set, user_);
    for (const auto& condition : set.m_Conditions) inputs.conditions.push_back(condition.get());
    inputs.expressionText = ToDisplayForm(set.Exp);
    inputs.checkExpression = CheckExpression;
    FailingQuestions questions;
    std::optional<std::string> payload = ComposeSearch(inputs, columns_, questions);
    if (!payload) throw SearchFailed("none of the set's conditions is checked");
    return *std::move(payload);
}

std::string SearchSession::Send(std::string payload) {
    failure_.clear();
    return service_->Handle({user_, kWindow, kTransaction, 1, std::move(payload)});
}

SearchReply SearchSession::Read(const std::string& reply) const {
    const std::optional<SearchReply> read = ParseSearchReply(reply);
    if (!read) throw SearchFailed("the service's reply can't be read");
    if (read->outcome == ReplyOutcome::Failure)
        throw SearchFailed("the search can't be evaluated: " + failure_);
    return *read;
}

ResultSet SearchSession::Search(const CSavedIndexInfo& set) {
    std::string bytes = Send(Compose(set));
    SearchReply reply = Read(bytes);
    ResultSet result;
    result.TakeColumns(reply, columns_);
    result.TakePage(reply, kStart, kWholeMode);
    while (result.received < result.total) {
        const int before = result.received;
        bytes = Send(ComposeNextPage(kWindow, user_, result.resultHandle, result.received));
        reply = Read(bytes);
        result.TakePage(reply, kNextPage, kWholeMode);
        if (result.received <= before) throw SearchFailed("the service's pages don't go on");
    }
    Send(ComposeRelease(kWindow, user_, SearchHandleOf(nullptr)));
    return result;
}

}  // namespace jogeon
