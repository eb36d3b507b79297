#include "screen/saved/saved_conditions.h"

#include <gtest/gtest.h>

#include "tests/screen/support/condition_list_view.h"
#include "tests/screen/support/recorders.h"

namespace jogeon::test {
namespace {

struct PlainSavedView : SavedConditionView {
    void ShowName(const std::string& shown) override { name = shown; }
    void SelectBuy(bool) override {}
    void ShowTarget(const SearchTarget& target) override { label = target.m_strTargetLabel; }
    void EnableSavedCommands(bool enabled) override { commandsEnabled = enabled; }
    void ClearTreeSelection() override {}
    void ClearResults() override { ++cleared; }

    std::string name;
    std::string label;
    bool commandsEnabled = false;
    int cleared = 0;
};

class SavedConditionsTest : public testing::Test {
protected:
    static std::shared_ptr<CSavedIndexInfo> SetWith(const std::string& name, const std::string& letters) {
        auto set = std::make_shared<CSavedIndexInfo>();
        set->Name = name;
        set->m_strKey = "07";
        set->Exp = "A&C";
        for (const char letter : letters) {
            set->m_Conditions.push_back(std::make_unique<CIndexInfo>());
            set->m_Conditions.back()->m_chLetter = letter;
        }
        return set;
    }

    ConditionListView conditions_;
    PlainSavedView view_;
    ScriptedQuestions questions_;
    RecordingLinkStore links_;
    ScreenSettings settings_;
    ConditionEditor editor_{conditions_, questions_, settings_};
    SavedConditions saved_{view_, editor_, questions_, links_, settings_};
};

TEST_F(SavedConditionsTest, NextLetterFollowsTheHighestOfALoadedSet) {
    EXPECT_EQ('A', editor_.NextLetter());
    saved_.LoadCondition(SetWith("x", "CA"));
    EXPECT_EQ('D', editor_.NextLetter());
    EXPECT_EQ("A and C", conditions_.expression);
    saved_.LoadCondition(SetWith("none", ""));
    EXPECT_EQ('B', editor_.NextLetter()) << "also without a condition";
    saved_.LoadCondition(SetWith("full", "Z"));
    EXPECT_EQ('Z' + 1, editor_.NextLetter());
    saved_.NewCondition();
    EXPECT_EQ('A', editor_.NextLetter());
}

TEST_F(SavedConditionsTest, AFirmsSetIsNeverTheCurrentOneAndSettingsSayWhatALoadDoes) {
    saved_.LoadCondition(SetWith("own", "A"));
    EXPECT_EQ("own", saved_.CurrentSaved()->Name);
    EXPECT_TRUE(view_.commandsEnabled);
    EXPECT_TRUE(conditions_.panelShown);
    EXPECT_EQ(1, view_.cleared);

    settings_.initResult = 0;
    settings_.expandMode = 2;
    auto firm = SetWith("firm", "A");
    firm->m_bVendorSet = 1;
    saved_.LoadCondition(firm);
    EXPECT_EQ(nullptr, saved_.CurrentSaved());
    EXPECT_FALSE(view_.commandsEnabled);
    EXPECT_FALSE(conditions_.panelShown);
    EXPECT_EQ(1, view_.cleared);
}

TEST_F(SavedConditionsTest, YesSavesAndGoesOnCancelStops) {
    int saves = 0;
    saved_.SetSave([&] {
        ++saves;
        return false;
    });
    saved_.LoadCondition(SetWith("own", "A"));
    editor_.SetDirty(true);
    questions_.answers = {host::Answer::Cancel, host::Answer::Yes};
    saved_.LoadCondition(SetWith("next", "A"));
    EXPECT_EQ("own", view_.name);
    saved_.LoadCondition(SetWith("next", "A"));
    EXPECT_EQ("next", view_.name);
    EXPECT_EQ(1, saves);
    EXPECT_FALSE(editor_.Dirty());

    settings_.confirm = 0;
    editor_.SetDirty(true);
    saved_.NewCondition();
    EXPECT_EQ(2u, questions_.boxes.size()) << "the user doesn't want to be asked";
    EXPECT_EQ(1, saves);
}

TEST_F(SavedConditionsTest, AChosenTargetIsShownAndCountsAsAChange) {
    saved_.ChangeTarget([](const SearchTarget&) { return std::nullopt; });
    EXPECT_FALSE(editor_.Dirty());
    EXPECT_EQ("", view_.label);

    saved_.ChangeTarget([](const SearchTarget& target) {
        SearchTarget chosen = target;
        chosen.Group = {"101"};
        chosen.m_strTargetLabel = "<101>";
        return std::optional(chosen);
    });
    EXPECT_TRUE(editor_.Dirty());
    EXPECT_EQ("<101>", view_.label);
    EXPECT_EQ(std::vector<std::string>{"101"}, saved_.Target().Group);
    EXPECT_EQ(1, saved_.Target().Upjong) << "the dialog was given the target that stood";
}

}  // namespace
}  // namespace jogeon::test
