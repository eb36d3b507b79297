#include "screen/results/search_commands.h"

#include <gtest/gtest.h>

#include "screen/condition/saved_index_info.h"
#include "screen/text/cp949.h"
#include "screen/transactions/reply_record.h"
#include "screen/transactions/request_record.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/columns.h"
#include "tests/screen/support/conditions.h"
#include "tests/screen/support/recorders.h"
#include "tests/screen/support/recording_result_view.h"

namespace jogeon {
namespace {

using Texts = std::vector<std::string>;

class SearchCommandsTest : public testing::Test {
protected:
    SearchCommandsTest() {
        channel.Attach(0x20, 3);
        channel.SetHandler('T', [this](std::string_view reply) { flow.OnSearchReply(reply, false); });
        view.columns = {{"9001"}, {"3001"}};
        flow.ApplyLayout();
        inputs.window = 0x20;
        inputs.header.userId = "nv3787";
        inputs.header.target.Upjong = 1;
        inputs.header.target.Group = {"ALL"};
        inputs.conditions = {&condition};
        inputs.expressionText = "A";
        inputs.checkExpression = [this](const std::string&) { return expressionIsValid; };
    }

    // What was sent since the last look: the request key and the first bytes of each payload.
    Texts Sent() {
        Texts texts;
        for (const auto& sent : communication.sent) {
            const CommRequestRecord record = ParseRequestRecord(sent.records.at(0)).value();
            const std::size_t shown = record.payload.front() == 'T' ? 10 : record.payload.size();
            texts.push_back(std::to_string(record.requestKey) + " " + record.payload.substr(0, shown));
        }
        communication.sent.clear();
        return texts;
    }

    // An answer to the search: one of two stocks, under the number 4.
    void AnswerSearch() {
        channel.OnReply(true, BuildReplyRecord(test::Fields("T1        04|0002|0001|0001|0001|3001"
                                                            "A005930     |  71000")));
    }

    CIndexInfo condition = test::MakeCondition('A', "0401030008", 1, {{20, "1"}});
    SearchInputs inputs;
    bool expressionIsValid = true;
    ColumnTables tables = test::SmallTables();
    test::RecordingCommunication communication;
    test::ManualClock clock;
    test::ScriptedQuestions questions;
    test::RecordingLinkStore links;
    test::RecordingResultView view;
    RequestChannel channel{communication, clock, questions, [] {}};
    ResultFlow flow{view, tables, links, questions};
    SearchCommands commands{channel, flow, tables, questions, questions, [this] { return inputs; }};
};

TEST_F(SearchCommandsTest, ASearchReleasesTheLastOneUnderItsHandle) {
    CSavedIndexInfo saved;
    saved.m_strKey = "07";
    inputs.header.currentSaved = &saved;
    commands.Start();
    EXPECT_EQ(Sent(), (Texts{"17 Z00000020nv3787    ", "1 T000000200"}));
    EXPECT_TRUE(channel.Busy());
    commands.Start();
    EXPECT_EQ(Sent(), Texts()) << "a request is out";

    AnswerSearch();
    inputs.header.currentSaved = nullptr;
    expressionIsValid = false;
    commands.Start();
    EXPECT_EQ(Sent(), Texts{"17 Z00000020nv3787  07"}) << "released, although nothing is searched";
    EXPECT_FALSE(channel.Busy());
    expressionIsValid = true;
    commands.Start();
    EXPECT_EQ(Sent(), (Texts{"17 Z00000020nv3787  07", "1 T000000200"})) << "no search was made in between";
    AnswerSearch();
    commands.Release();
    EXPECT_EQ(Sent(), Texts{"17 Z00000020nv3787  99"});
}

TEST_F(SearchCommandsTest, AResultKeepsWhatItWasSearchedWith) {
    condition.m_strDescription = "five days";
    inputs.targetLabel = "<all>";
    inputs.scope = SearchScope::Sequential;
    inputs.nextSequenceStep = [] { return 1; };
    commands.Start();
    const std::string payload = ParseRequestRecord(communication.sent.back().records.at(0))->payload;
    AnswerSearch();
    const SearchedSet& searched = flow.ActiveResult()->searched;
    EXPECT_EQ(searched.conditionSet, payload.substr(10, 828 + 71));
    EXPECT_EQ(searched.conditionTexts, Texts{"A  five days"});
    EXPECT_EQ(searched.targetLabel, "<all>");

    inputs.nextSequenceStep = [] { return 0; };
    inputs.conditions.clear();
    commands.Start();
    EXPECT_FALSE(channel.Busy()) << "refused: nothing was sent";
    EXPECT_EQ((links.tags[{"CS_RESULT", "CONDSET"}]), searched.conditionSet);
}

TEST_F(SearchCommandsTest, AnUnsetTargetIsToldAndNothingIsSent) {
    inputs.header.target.Upjong = 0;
    commands.Start();
    EXPECT_EQ(Sent(), Texts());
    ASSERT_EQ(questions.boxes.size(), 1u);
    EXPECT_EQ(questions.boxes[0].text, "검색 대상을 먼저 지정해야 합니다."_cp949);
    EXPECT_EQ(questions.boxes[0].caption, "조건 검색"_cp949);
    EXPECT_EQ(questions.boxes[0].icon, host::Icon::Information);
}

TEST_F(SearchCommandsTest, NextAsksForWhatFollowsTheRowsOfTheLastSearch) {
    commands.NextPage();
    EXPECT_EQ(Sent(), Texts()) << "no result";
    commands.Start();
    AnswerSearch();
    Sent();
    commands.NextPage();
    EXPECT_EQ(Sent(), Texts{"1 N00000020nv3787  040001"});
    commands.NextPage();
    EXPECT_EQ(Sent(), Texts()) << "a request is out";

    channel.OnReply(true, BuildReplyRecord("T0"));
    commands.NextPage();
    EXPECT_EQ(Sent(), Texts()) << "the last search has failed";
}

}  // namespace
}  // namespace jogeon
