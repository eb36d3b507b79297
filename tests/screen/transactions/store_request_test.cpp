#include "screen/transactions/store_request.h"

#include <gtest/gtest.h>

#include "screen/condition/saved_index_info.h"
#include "screen/text/cp949.h"
#include "screen/transactions/store_reply.h"
#include "tests/screen/support/bytes.h"
#include "tests/screen/support/conditions.h"

namespace jogeon {
namespace {

using test::Blanks;
using test::Fields;
using test::Hex;

// The blocks of a checked and an unchecked condition, as the layout of family P has them.
std::string TwoBlocks() {
    return "P01A060501012" + Blanks(58) + "P00B060502013" + Blanks(58);
}

std::vector<CIndexInfo> TwoConditions() {
    std::vector<CIndexInfo> conditions;
    conditions.push_back(test::MakeCondition('A', "0605010008", 12, {}));
    conditions.push_back(test::MakeCondition('B', "0605020008", 13, {}));
    conditions[1].m_bChecked = 0;
    return conditions;
}

// A header of the user "trader" for all sectors, with number and name.
std::string Header(const std::string& number, const std::string& name) {
    return Fields("trader  |") + number + name + Blanks(80 - name.size()) + Fields("2|    |1|0|") +
           Blanks(11) + Fields("0|0001|ALL") + Blanks(597) + Fields("0000000|00|0|0|  |A&B") + Blanks(97) +
           "02";
}

SaveInputs Inputs(const std::vector<CIndexInfo>& conditions) {
    SaveInputs inputs;
    inputs.header.userId = "trader";
    inputs.header.nameLabel = "label";
    inputs.header.buy = true;
    inputs.header.target.Upjong = 1;
    inputs.header.target.Group = {"ALL"};
    for (const CIndexInfo& condition : conditions) inputs.conditions.push_back(&condition);
    inputs.expression = "A&B";
    inputs.version = "000.12";
    return inputs;
}

TEST(StoreRequest, SavesCarryTheNameGivenAndAllConditions) {
    const auto conditions = TwoConditions();
    SaveInputs inputs = Inputs(conditions);
    const std::string name = Hex("B0 AD BC BC");
    EXPECT_EQ(BuildSaveRequest(inputs, "강세"_cp949, ""), "A000.12 " + Header("99", name) + TwoBlocks());
    EXPECT_EQ(BuildSaveRequest(inputs, "강세"_cp949, "07"), "E000.12 " + Header("07", name) + TwoBlocks());

    CSavedIndexInfo current;  // save as: the number is the current set's
    current.m_strKey = "31";
    current.Name = "old";
    inputs.header.currentSaved = &current;
    EXPECT_EQ(BuildSaveRequest(inputs, "강세"_cp949, ""), "A000.12 " + Header("31", name) + TwoBlocks());
    current.m_strKey.clear();  // its own save is unanswered
    EXPECT_EQ(BuildSaveRequest(inputs, "강세"_cp949, ""), "A000.12 " + Header("99", name) + TwoBlocks());
}

TEST(StoreRequest, NothingIsCut) {
    const auto conditions = TwoConditions();
    const SaveInputs whole = Inputs(conditions);
    EXPECT_TRUE(BuildSaveRequest(whole, std::string(80, 'n'), "07"));
    EXPECT_FALSE(BuildSaveRequest(whole, std::string(81, 'n'), "07"));
    SaveInputs inputs = whole;
    inputs.expression = std::string(101, '(');
    EXPECT_FALSE(BuildSaveRequest(inputs, "n", "07"));
    inputs = whole;
    inputs.conditions.assign(21, &conditions[0]);
    EXPECT_FALSE(BuildSaveRequest(inputs, "n", "07"));
    inputs.conditions.clear();
    EXPECT_FALSE(BuildSaveRequest(inputs, "n", "07"));
}

TEST(StoreRequest, DeletesAlwaysHoldTwentyPlaces) {
    CSavedIndexInfo saved;
    saved.m_strKey = "07";
    saved.Name = "n";
    saved.Upjong = 1;
    saved.Group = {"ALL"};
    saved.Exp = "A&B";
    saved.Count = 2;
    for (const CIndexInfo& condition : TwoConditions()) {
        saved.m_Conditions.push_back(std::make_unique<CIndexInfo>(condition));
    }
    const std::string expected = "D000.001" + Header("07", "n") + TwoBlocks();
    EXPECT_EQ(BuildDeleteRequest(saved, "trader", "000.001"), expected + Blanks(18 * 71));

    while (saved.m_Conditions.size() < 20) {
        saved.m_Conditions.push_back(std::make_unique<CIndexInfo>(TwoConditions()[0]));
    }
    EXPECT_EQ(BuildDeleteRequest(saved, "trader", "000.001").size(), 8u + 828 + 20 * 71);
}

TEST(StoreRequest, ReordersListTheNumbers) {
    EXPECT_EQ(BuildReorderRequest("trader", "000.001", {"02", "00", "01"}),
              Fields("C|000.001|trader  |0003|02|00|01"));
    EXPECT_EQ(BuildReorderRequest("trader", "000.001", {}), Fields("C|000.001|trader  |0000"));
}

TEST(StoreReply, ReadsBothLayoutsAndTrustsNoCutOne) {
    const std::tuple<const char*, bool, const char*, const char*> cases[] = {
        {"A1         07000.002", true, "07", "000.002"},
        {"E          07000.002", true, "07", "000.002"},
        {"A0         07000.002", false, "", "000.002"},
        {"A1         07000.00", false, "", ""},
        {"A1         x7000.002", false, "x7", "000.002"},
        {"D1           000.003", true, "", "000.003"},
        {"D1           000.00", false, "", ""},
        {"D", false, "", ""},
        {"C1        000.004", true, "", "000.004"},
        {"C2        000.004", false, "", "000.004"},
        {"C1        000.00", false, "", ""},
        {"A1         071", false, "", ""},
    };
    for (const auto& [data, success, number, version] : cases) {
        const StoreReply reply = data[0] == 'C' ? ReadReorderReply(data) : ReadStoreReply(data);
        EXPECT_EQ(reply.success, success) << data;
        EXPECT_EQ(reply.number, number) << data;
        EXPECT_EQ(reply.version.value_or(""), version) << data;
    }
}

}  // namespace
}  // namespace jogeon
