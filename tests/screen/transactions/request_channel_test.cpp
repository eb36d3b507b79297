#include "screen/transactions/request_channel.h"

#include <gtest/gtest.h>

#include "screen/text/cp949.h"
#include "screen/transactions/reply_record.h"
#include "screen/transactions/request_record.h"
#include "tests/screen/support/recorders.h"

namespace jogeon {
namespace {

using std::chrono::milliseconds;

class RequestChannelTest : public testing::Test {
protected:
    RequestChannelTest() {
        channel.Attach(0x20, 3);
        for (const char letter : std::string("ACDENTV")) {
            channel.SetHandler(letter, [this](std::string_view data) { received.emplace_back(data); });
        }
    }

    CommRequestRecord LastSent() const {
        return ParseRequestRecord(communication.sent.back().records.at(0)).value();
    }

    test::RecordingCommunication communication;
    test::ManualClock clock;
    test::ScriptedQuestions questions;
    int cursorRefreshes = 0;
    std::vector<std::string> received;
    RequestChannel channel{communication, clock, questions, [this] { ++cursorRefreshes; }};
};

TEST_F(RequestChannelTest, EachKindGoesByItsTransactionUnderItsGuard) {
    const std::tuple<const char*, const char*, int, int, bool> cases[] = {
        {"T", "pisoscop", 257, 15000, true}, {"N", "pisoscop", 257, 15000, true},
        {"Z", "pisoscop", 0, 0, false},      {"V", "pisodbop", 258, 20000, false},
        {"A", "pisodbop", 257, 15000, true}, {"E", "pisodbop", 257, 15000, true},
        {"D", "pisodbop", 257, 15000, true}, {"C", "pisodbop", 257, 15000, false},
    };
    for (const auto& [payload, transaction, timer, limit, busy] : cases) {
        cursorRefreshes = 0;
        questions.boxes.clear();
        ASSERT_TRUE(channel.Send(payload, 0xA2)) << payload;
        EXPECT_EQ(LastSent().transaction, transaction) << payload;
        EXPECT_EQ(LastSent().requestKey, 0xA2) << payload;
        EXPECT_EQ(LastSent().payload, payload);
        EXPECT_EQ(channel.Busy(), busy) << payload;
        EXPECT_EQ(cursorRefreshes, busy ? 1 : 0) << payload;
        EXPECT_EQ(clock.Running(), timer ? 1u : 0u) << payload;
        if (!timer) continue;
        EXPECT_TRUE(clock.Runs(timer)) << payload;
        clock.Advance(milliseconds(limit - 1));
        EXPECT_TRUE(questions.boxes.empty()) << payload;
        clock.Advance(milliseconds(1));
        EXPECT_EQ(questions.boxes.size(), 1u) << payload;
        EXPECT_FALSE(channel.Busy()) << payload;
        EXPECT_EQ(clock.Running(), 0u) << payload;
    }
}

TEST_F(RequestChannelTest, BusyAndGuardStandBeforeTheRecordGoesOut) {
    bool guarded = false;
    communication.onSend = [&] { guarded = channel.Busy() && clock.Runs(257) && cursorRefreshes == 1; };
    channel.Send("T1", 1);
    EXPECT_TRUE(guarded);
    const auto& sent = communication.sent.back();
    EXPECT_EQ(sent.window, 0x20u);
    EXPECT_EQ(sent.numbers, (std::vector<int>{0, 0, -1}));
    EXPECT_EQ(sent.wantReply, 1);
    EXPECT_EQ(LastSent().window, 0x20u);
    EXPECT_EQ(LastSent().majorId, 3);
    EXPECT_FALSE(channel.Send("X", 1));
    EXPECT_FALSE(channel.Send("", 1));
    EXPECT_EQ(communication.sent.size(), 1u);
}

TEST_F(RequestChannelTest, TimeoutTextsTellTheGuardsApart) {
    const std::string hours =
        "매일 00:00 ~ 00:30, 05:50 ~ 06:10, 07:20 ~ 07:40 은 정기점검 시간이므로 사용하실 수 없습니다."_cp949;
    channel.Send("E", 0xA4, milliseconds(20000));  // a rename takes longer, and keeps the command's text
    clock.Advance(milliseconds(19999));
    EXPECT_TRUE(questions.boxes.empty());
    clock.Advance(milliseconds(1));
    ASSERT_EQ(questions.boxes.size(), 1u);
    EXPECT_EQ(questions.boxes[0].text,
              "서버의 응답이 없어서 요청하신 작업을 완료할 수 없습니다.\n\n"_cp949 + hours);
    EXPECT_EQ(questions.boxes[0].caption, "조건검색"_cp949);
    EXPECT_EQ(questions.boxes[0].icon, host::Icon::Information);

    channel.Send("V", 0xA1);
    clock.Advance(milliseconds(20000));
    ASSERT_EQ(questions.boxes.size(), 2u);
    EXPECT_EQ(questions.boxes[1].text, "서버에서 저장조건을 불러올 수 없습니다. \n\n"_cp949 + hours +
                                           "\n\n잠시후 화면을 다시 열어주시기 바랍니다."_cp949);
}

TEST_F(RequestChannelTest, ALaterRequestTakesTheSlotAndTheOlderTicksInVain) {
    channel.Send("V", 0xA1);
    clock.Advance(milliseconds(10000));
    channel.Send("T", 1);
    clock.Advance(milliseconds(10000));  // 258 is due
    EXPECT_TRUE(questions.boxes.empty());
    EXPECT_TRUE(channel.Busy());
    clock.Advance(milliseconds(5000));  // 257 is due
    EXPECT_EQ(questions.boxes.size(), 1u);
    EXPECT_FALSE(channel.Busy());
}

TEST_F(RequestChannelTest, AReplyEndsTheWaitAndGoesToItsLetter) {
    channel.Send("T", 1);
    channel.OnReply(true, BuildReplyRecord("T1abc"));
    EXPECT_EQ(received, std::vector<std::string>{"T1abc"});
    EXPECT_FALSE(channel.Busy());
    EXPECT_EQ(cursorRefreshes, 2);
    EXPECT_EQ(clock.Running(), 0u);
    EXPECT_EQ(communication.removed, std::vector<host::WindowHandle>{0x20});

    channel.OnReply(true, BuildReplyRecord("N1late"));  // nobody waits for it any more
    EXPECT_EQ(received.back(), "N1late");
}

TEST_F(RequestChannelTest, RepliesThatNobodyHandlesStillEndTheWait) {
    std::string cut = BuildReplyRecord("T1");
    cut.pop_back();
    for (const std::string& block : {BuildReplyRecord("B1"), BuildReplyRecord("Z1"), BuildReplyRecord("\xC1"),
                                     BuildReplyRecord(""), cut, std::string("junk")}) {
        channel.Send("T", 1);
        channel.OnReply(true, block);
        EXPECT_FALSE(channel.Busy());
        EXPECT_EQ(clock.Running(), 0u);
    }
    EXPECT_TRUE(received.empty());
}

TEST_F(RequestChannelTest, MessagesWithoutAReplyLeaveTheGuardRunning) {
    channel.Send("T", 1);
    channel.OnReply(false, BuildReplyRecord("T1abc"));
    channel.OnReply(true, {});
    EXPECT_TRUE(received.empty());
    EXPECT_TRUE(channel.Busy());
    EXPECT_EQ(communication.removed.size(), 2u);
    clock.Advance(milliseconds(15000));
    EXPECT_EQ(questions.boxes.size(), 1u);
}

TEST_F(RequestChannelTest, DataOutlivesTheHostsBlockWhileAHandlerRuns) {
    std::string block = BuildReplyRecord("T1abc");
    channel.SetHandler('T', [&](std::string_view data) {
        block.assign(block.size(), 'x');  // what a host may do while a modal box stands open
        received.emplace_back(data);
    });
    channel.OnReply(true, block);
    EXPECT_EQ(received, std::vector<std::string>{"T1abc"});
}

TEST_F(RequestChannelTest, ClosingAwaitsNoReply) {
    channel.SendClosing();
    EXPECT_EQ(communication.sent.back().wantReply, 0);
    EXPECT_EQ(LastSent().transaction, "PIBOFIDJ");
    EXPECT_EQ(LastSent().majorId, 3);
}

}  // namespace
}  // namespace jogeon
