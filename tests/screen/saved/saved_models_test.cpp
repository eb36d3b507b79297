// What the dialogs over saved sets rest on, without their display.
#include <gtest/gtest.h>

#include "screen/saved/import_ids.h"
#include "screen/saved/name_check.h"
#include "screen/saved/reorder_list.h"
#include "tests/screen/support/condition_files.h"

namespace jogeon {
namespace {

TEST(SavedName, IsRefusedWithItsReason) {
    const std::vector<std::string> used = {"골든크로스"_cp949, "b"};
    const std::string eighty = std::string(80, 'n');
    std::string korean;
    for (int i = 0; i < 40; ++i) korean += "가";
    const std::tuple<std::string, std::string, const char*> cases[] = {
        {"  새 이름 \t", "새 이름", ""},
        {"", "", "새 조건명을 입력하세요."},
        {"   ", "", "새 조건명을 입력하세요."},
        {" 골든크로스 ", "", "이미 존재하는 이름입니다. 다른 이름을 지정해 주세요. "},
        {"B", "B", ""},
        {eighty, eighty, ""},
        {eighty + "n", "", "조건명이 너무 깁니다."},
        {korean, korean, ""},
        {korean + "a", "", "조건명이 너무 깁니다."},
        {"별☃", "", "조건명에 쓸 수 없는 문자가 있습니다."},
        {"똠방각하 뷁", "똠방각하 뷁", ""},
    };
    for (const auto& [typed, name, refusal] : cases) {
        const NameVerdict verdict = CheckSavedName(typed, used);
        EXPECT_EQ(ToUtf8(verdict.name.value_or("")), name) << typed;
        EXPECT_EQ(ToUtf8(verdict.refusal).substr(0, std::string_view(refusal).size()), refusal) << typed;
    }
}

TEST(ReorderListTest, MovesKeepEveryRow) {
    using Move = std::size_t (ReorderList::*)(std::size_t);
    const std::tuple<Move, std::size_t, std::vector<std::size_t>, std::size_t, bool> cases[] = {
        {&ReorderList::MoveUp, 2, {0, 2, 1, 3}, 1, true},
        {&ReorderList::MoveUp, 0, {0, 1, 2, 3}, 0, false},
        {&ReorderList::MoveDown, 1, {0, 2, 1, 3}, 2, true},
        {&ReorderList::MoveDown, 3, {0, 1, 2, 3}, 3, false},
        {&ReorderList::MoveToTop, 2, {2, 0, 1, 3}, 0, true},
        {&ReorderList::MoveToBottom, 1, {0, 2, 3, 1}, 3, true},
    };
    for (const auto& [move, row, order, at, changed] : cases) {
        ReorderList list(4);
        EXPECT_EQ((list.*move)(row), at);
        EXPECT_EQ(list.Order(), order);
        EXPECT_EQ(list.Changed(), changed);
    }
    const std::tuple<std::size_t, std::size_t, std::vector<std::size_t>> drops[] = {
        {0, 3, {1, 2, 0, 3}}, {3, 0, {3, 0, 1, 2}}, {1, 1, {0, 1, 2, 3}}, {1, 2, {0, 1, 2, 3}}};
    for (const auto& [row, before, order] : drops) {
        ReorderList list(4);
        list.MoveBefore(row, before);
        EXPECT_EQ(list.Order(), order) << row << " before " << before;
        EXPECT_EQ(list.Changed(), order != std::vector<std::size_t>({0, 1, 2, 3}));
    }
}

TEST(ImportIds, AreTheOtherUsersFiles) {
    test::TempFolder folder;
    for (const char* name : {"me_SaveIndex.dat", "kim_SaveIndex.dat", "a_b_SaveIndex.dat",
                             "kim_SaveIndex0.dat", "_SaveIndex.dat", "kim_SaveIndex.dat.123.new"}) {
        test::WriteText(folder.Path() / name, "");
    }
    std::filesystem::create_directories(folder.Path() / "dir_SaveIndex.dat");
    const auto ids = ListImportIds(folder.Path(), "me");
    ASSERT_EQ(ids.size(), 2u);
    EXPECT_EQ(ids[0].id, "a_b");
    EXPECT_EQ(ids[1].id, "kim");
    EXPECT_EQ(ids[1].file, folder.Path() / "kim_SaveIndex.dat");
    EXPECT_TRUE(ListImportIds(folder.Path() / "nowhere", "me").empty());

    using std::chrono::hours;
    const auto now = std::chrono::floor<std::chrono::seconds>(std::filesystem::file_time_type::clock::now());
    std::filesystem::last_write_time(ids[1].file, now - hours(30 * 24));
    const std::time_t expected = std::time(nullptr) - 30 * 24 * 3600;
    int year = 0, month = 0, day = 0;
    ASSERT_EQ(std::sscanf(LastSaved(ids[1].file).c_str(), "%d-%d-%d ", &year, &month, &day), 3);
    const std::tm local = *std::localtime(&expected);
    EXPECT_EQ(year, local.tm_year + 1900);
    EXPECT_EQ(month, local.tm_mon + 1);
    EXPECT_EQ(day, local.tm_mday);
}

}  // namespace
}  // namespace jogeon
