#include "screen/saved/saved_condition_file.h"

#include <gtest/gtest.h>

#include "screen/files/atomic_file.h"
#include "screen/files/ini_mem_file.h"
#include "tests/screen/support/condition_files.h"

namespace jogeon {
namespace {

constexpr std::string_view kUserFile =
    "[Version]\nver=012.345\n\n"
    "[03]\nName=골든크로스\nTypePosition=0\nUpjong=0\nPortfolio=3\nRecommend=0\nAcc=12345678901\n"
    "Group=0AL|7|\nExcept1=1\nExcept8=1\nExcept10=1\nMonth=12\nExp=A&(B|!D)\nCount=2\n"
    "00=0101010008;A;1;0;40^2|60^5|30^1;\n"
    "01=0401020008;D ;0;1;10^1|61^3|30^0;\n"
    "02=0101010008;E;1;1;;\n\n"
    "[04]\nName=빈조건\n";

class SavedConditionFileTest : public testing::Test {
protected:
    SavedConditionFileTest() : file_(SavedConditionPath(folder_.Path(), "user_1")) {
        test::WriteCatalogue(folder_.Path() / "System");
        catalogue_.Load(folder_.Path() / "System", {});
    }

    SavedConditionFile Load(std::string_view text) {
        test::WriteText(file_, text);
        return LoadSavedConditions(file_, catalogue_);
    }

    // A set of one condition, as the screen would save it.
    CSavedIndexInfo NewSet(const std::string& number) const {
        CSavedIndexInfo info;
        info.m_strKey = number;
        info.Name = "신규"_cp949;
        info.TypePosition = 0;
        info.Upjong = 1;
        info.Group = {"ALL", "1"};
        info.Except4 = 1;
        info.Month = 3;
        info.Exp = "B";
        info.Count = 1;
        info.m_Conditions.push_back(catalogue_.MakeCondition("0101010008"));
        info.m_Conditions[0]->SetValueText("40^1|60^20|30^0");
        info.m_Conditions[0]->m_chLetter = 'B';
        info.m_Conditions[0]->m_bChecked = 1;
        return info;
    }

    std::string OnDisk() const { return test::ReadBytes(file_); }

    test::TempFolder folder_;
    Catalogue catalogue_;
    std::filesystem::path file_;
};

// The section of NewSet as it stands in a file.
std::string NewSetBytes(const std::string& number) {
    return "[" + number + "]\r\n" +
           "Name=신규\r\nTypePosition=0\r\nUpjong=1\r\nPortfolio=0\r\nRecommend=0\r\nAcc=\r\n"
           "Group=ALL|  1|\r\nExcept1=0\r\nExcept2=0\r\nExcept3=0\r\nExcept4=1\r\nExcept5=0\r\nExcept6=0\r\n"
           "Except7=0\r\nExcept10=0\r\nMonth=3\r\nExp=B\r\nCount=1\r\n"
           "00=0101010008;B;1;0;40^1|60^20|30^0;\r\n\r\n"_cp949;
}

TEST_F(SavedConditionFileTest, ReadsSetsAndWritesThemBack) {
    const SavedConditionFile loaded = Load(kUserFile);
    EXPECT_EQ(loaded.version, "012.345");
    ASSERT_EQ(loaded.sets.size(), 2u);
    EXPECT_EQ(loaded.sets[0]->m_bVendorSet, 0);
    EXPECT_EQ(loaded.sets[0]->m_Conditions.at(1)->m_RoleValues.at(61), "3");
    for (const auto& set : loaded.sets) ASSERT_TRUE(WriteCondition(*set, false, file_, loaded.version));
    EXPECT_EQ(OnDisk(),
              "[Version]\r\nver=012.345\r\n\r\n"
              "[03]\r\nName=골든크로스\r\nTypePosition=0\r\nUpjong=0\r\nPortfolio=3\r\nRecommend=0\r\n"
              "Acc=12345678901\r\nGroup=0AL|  7|\r\nExcept1=1\r\nExcept2=0\r\nExcept3=0\r\nExcept4=0\r\n"
              "Except5=0\r\nExcept6=0\r\nExcept7=0\r\nExcept10=1\r\nMonth=12\r\nExp=A&(B|!D)\r\nCount=2\r\n"
              "00=0101010008;A;1;0;40^2|60^5|30^1;\r\n01=0401020008;D;0;1;10^1|61^3|30^0;\r\n\r\n"
              "[04]\r\nName=빈조건\r\nTypePosition=1\r\nUpjong=0\r\nPortfolio=0\r\nRecommend=0\r\nAcc=\r\n"
              "Group=\r\nExcept1=0\r\nExcept2=0\r\nExcept3=0\r\nExcept4=0\r\nExcept5=0\r\nExcept6=0\r\n"
              "Except7=0\r\nExcept10=0\r\nMonth=0\r\nExp=\r\nCount=0\r\n\r\n"_cp949);
}

TEST_F(SavedConditionFileTest, DropsConditionsOnUnknownIndicators) {
    const auto sets = Load(
                          "[Version]\nver=1\n"
                          "[00]\nExp=A&!(B)|C\nCount=3\n00=0101010008;A;1;0;;\n01=9999990008;B ;1;0;;\n"
                          "02=0101010008;C;1;0;;\n"
                          "[01]\nExp=!A|Z\nCount=1\n00=9999990008;A;1;0;;\n"
                          "[02]\nExp=A&B\nCount=2147483647\n00=0101010008;A;1;0;;\n"
                          "[03]\nExp=A\nCount=-4\n00=0101010008;A;1;0;;\n"
                          "[04]\nExp=()A\nCount=2\n00=9999990008;);1;0;;\n01=0101010008;A;1;0;;\n")
                          .sets;
    ASSERT_EQ(sets.size(), 5u);
    EXPECT_EQ(sets[0]->Exp, "A|C");
    EXPECT_EQ(sets[0]->Count, 2);
    EXPECT_EQ(sets[0]->m_Conditions.at(1)->m_chLetter, 'C');
    EXPECT_EQ(sets[1]->Exp, "");
    EXPECT_EQ(sets[1]->Count, 0);
    EXPECT_EQ(sets[2]->Exp, "A&B");
    EXPECT_EQ(sets[2]->Count, 1);
    EXPECT_EQ(sets[3]->Count, 0);
    EXPECT_EQ(sets[4]->Exp, "()A") << "a bracket is no letter";
}

TEST_F(SavedConditionFileTest, FindsTheVersionInEitherForm) {
    const std::tuple<const char*, const char*, std::size_t> cases[] = {
        {"", "000.000", 0},
        {"[Version]\nver=001.002\n", "001.002", 0},
        {"[ver]\nVersion=001.003\n[01]\nName=a\n", "001.003", 1},
        {"[other]\nver=1\n[01]\nName=a\n[01]\nName=b\n[Version]\nver=001.004\n", "001.004", 1},
    };
    for (const auto& [text, version, sets] : cases) {
        const SavedConditionFile loaded = Load(text);
        EXPECT_EQ(loaded.version, version) << text;
        EXPECT_EQ(ReadVersion(file_), version) << text;
        EXPECT_EQ(loaded.sets.size(), sets) << text;
    }
    EXPECT_EQ(LoadSavedConditions(folder_.Path() / "none", catalogue_).version, "000.000");
}

TEST_F(SavedConditionFileTest, ReopensOneSet) {
    Load(kUserFile);
    const auto info = OpenSavedCondition(file_, "03", catalogue_);
    ASSERT_TRUE(info);
    EXPECT_EQ(info->m_Conditions.size(), 2u);
    EXPECT_EQ(OpenSavedCondition(file_, "99", catalogue_), nullptr);
    EXPECT_EQ(OpenSavedCondition(file_, "Version", catalogue_), nullptr);
}

TEST_F(SavedConditionFileTest, WritesTheSetBehindTheVersionInOrder) {
    test::WriteText(file_, "[ver]\nVersion=001.003\n\n[07]\nName=일곱\nzz=1\n");
    ASSERT_TRUE(WriteCondition(NewSet("05"), true, file_, "001.004"));
    EXPECT_EQ(OnDisk(), "[Version]\r\nver=001.004\r\n\r\n" + NewSetBytes("05") +
                            "[07]\r\nName=일곱\r\nzz=1\r\n\r\n"_cp949);

    test::WriteBytes(file_, OnDisk() + "[07]\r\nName=twice\r\n");
    ASSERT_TRUE(DeleteConditionFromFile("07", file_, "001.005"));
    EXPECT_EQ(OnDisk(), "[Version]\r\nver=001.005\r\n\r\n" + NewSetBytes("05"));
}

TEST_F(SavedConditionFileTest, KeepsOrClearsTheSectionOrMakesIt) {
    std::filesystem::remove_all(file_.parent_path());
    ASSERT_TRUE(WriteCondition(NewSet("05"), false, file_, "1"));
    EXPECT_EQ(OnDisk(), "[Version]\r\nver=1\r\n\r\n" + NewSetBytes("05"));

    const std::string old = "[Version]\r\nver=1\r\n\r\n[05]\r\nzz=1\r\nExp=OLD\r\n\r\n";
    test::WriteBytes(file_, old);
    ASSERT_TRUE(WriteCondition(NewSet("05"), true, file_, "1"));
    EXPECT_NE(OnDisk().find("[05]\r\nzz=1\r\nExp=B\r\nName="), std::string::npos);

    test::WriteBytes(file_, old);
    ASSERT_TRUE(WriteCondition(NewSet("05"), false, file_, "1"));
    EXPECT_EQ(OnDisk(), "[Version]\r\nver=1\r\n\r\n" + NewSetBytes("05"));
}

TEST_F(SavedConditionFileTest, AFailedSaveLeavesTheOldFile) {
    test::WriteText(file_, kUserFile);
    const std::string before = OnDisk();
    {
        const FileFault fault(FileStep::Write, 20);
        EXPECT_FALSE(WriteCondition(NewSet("05"), false, file_, "9"));
        EXPECT_FALSE(DeleteConditionFromFile("03", file_, "9"));
    }
    EXPECT_EQ(OnDisk(), before);
}

TEST_F(SavedConditionFileTest, AnEvilNameAddsNoLines) {
    CSavedIndexInfo info = NewSet("05");
    info.Name = "x\r\n[06]\nName=y";
    ASSERT_TRUE(WriteCondition(info, false, file_, "1"));
    const auto sets = LoadSavedConditions(file_, catalogue_).sets;
    ASSERT_EQ(sets.size(), 1u);
    EXPECT_EQ(sets[0]->Name, "x  [06] Name=y");
}

TEST_F(SavedConditionFileTest, ReadsTheFirmsSets) {
    const auto file = VendorConditionPath(folder_.Path());
    test::WriteText(file,
                    "[01]\nName=노빅\nUpjong=1\nExp=A&B\nCount=2\n00=0401020008;A;1;0;10^0|60^500|30^0;\n"
                    "01=9999990008;B;1;0;;\n[02]\nName=둘\n");
    const SavedSets sets = LoadVendorConditions(file, catalogue_);
    ASSERT_EQ(sets.size(), 2u);
    EXPECT_EQ(sets[0]->m_bVendorSet, 1);
    EXPECT_EQ(ToUtf8(sets[0]->Name), "노빅");
    EXPECT_EQ(sets[0]->Upjong, 0);
    EXPECT_EQ(sets[0]->Exp, "A");
    ASSERT_EQ(sets[0]->m_Conditions.size(), 1u);
    EXPECT_EQ(sets[0]->m_Conditions[0]->GetValueText(), "10^0|60^500|30^0");
}

}  // namespace
}  // namespace jogeon
