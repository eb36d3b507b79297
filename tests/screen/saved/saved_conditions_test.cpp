#include "screen/saved/saved_conditions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "screen/files/atomic_file.h"
#include "tests/screen/support/saved_screen.h"

namespace jogeon::test {
namespace {

using namespace std::chrono_literals;
using host::Answer;

std::string FileWith(int sets) {
    std::string text = "[Version]\r\nver=000.001\r\n\r\n";
    for (int i = 0; i < sets; ++i) text += SavedSection(ZeroPadded(i, 2), "set" + std::to_string(i));
    return text;
}

class SavedConditionsTest : public testing::Test {
protected:
    SavedConditionsTest() : screen_(FileWith(3)) {}

    void Load(std::size_t set) { saved_.LoadCondition(screen_.tree.sets.at(set)); }
    std::string Number() const { return saved_.CurrentSaved() ? saved_.CurrentSaved()->m_strKey : "none"; }
    std::string SentName() const { return std::string(TrimRight(Field(screen_.LastPayload(), 8 + 10, 80))); }
    std::string SentNumber() const { return std::string(Field(screen_.LastPayload(), 8 + 8, 2)); }

    SavedScreen screen_;
    SavedConditions& saved_ = screen_.saved;
};

TEST_F(SavedConditionsTest, AFirmsSetIsNeverTheCurrentOneAndSettingsSayWhatALoadDoes) {
    Load(1);
    EXPECT_EQ("01", Number());
    EXPECT_TRUE(screen_.view.commandsEnabled);
    EXPECT_TRUE(screen_.conditions.panelShown);
    EXPECT_EQ(1, screen_.view.cleared);

    screen_.settings.initResult = 0;
    screen_.settings.expandMode = 2;
    screen_.ShowNew();
    EXPECT_EQ("none", Number());
    EXPECT_FALSE(screen_.view.commandsEnabled);
    EXPECT_FALSE(screen_.conditions.panelShown);
    EXPECT_EQ(1, screen_.view.cleared);
}

// What Yes, No and Cancel do to a command that would lose changes, and to a save that was refused.
TEST_F(SavedConditionsTest, ChangesAreOnlyLostWhenTheUserSaysSoOrTheirSaveIsOnItsWay) {
    struct Case {
        Answer answer;
        const char* expression;  // a wrong one is refused
        bool sent;
        bool goesOn;
    };
    for (const Case& c : {Case{Answer::Yes, "A or A", true, true},
                          {Answer::Yes, "A and", false, false},
                          {Answer::No, "A and", false, true},
                          {Answer::Cancel, "A or A", false, false}}) {
        Load(0);
        screen_.Edit(c.expression);
        screen_.questions.answers = {c.answer};
        const std::size_t before = screen_.payloads.size();
        Load(1);
        EXPECT_EQ(ToUtf8(screen_.questions.boxes.back().text),
                  "변경된 조건(set0)이 아직 저장되지 않았습니다. \n저장하시겠습니까?");
        EXPECT_EQ(screen_.payloads.size() > before, c.sent);
        EXPECT_EQ(Number(), c.goesOn ? "01" : "00");
        EXPECT_EQ(screen_.editor.Dirty(), !c.goesOn);
        screen_.editor.SetDirty(false);
        screen_.clock.Advance(15000ms);
    }
    screen_.ShowNew();
    screen_.editor.SetDirty(true);
    screen_.questions.answers = {Answer::Yes};  // and then no name is given
    saved_.NewCondition();
    EXPECT_EQ(screen_.conditions.rows.size(), 1u);
    screen_.settings.confirm = 0;
    const std::size_t boxes = screen_.questions.boxes.size();
    saved_.NewCondition();
    EXPECT_EQ(screen_.conditions.rows.size(), 0u);
    EXPECT_EQ(screen_.questions.boxes.size(), boxes) << "the user doesn't want to be asked";
}

// The checks of each command in their order, each told under its own caption.
TEST_F(SavedConditionsTest, CommandsTellWhatIsMissing) {
    constexpr const char* kNoCondition = "개별조건을 한개 이상 추가해 주십시요.";
    constexpr const char* kNoTarget = "검색 대상을 먼저 지정해야 합니다.";
    struct Case {
        std::function<void()> command;
        const char* empty;
        const char* unchecked;
        const char* noTarget;
    };
    const Case cases[] = {
        {[&] { saved_.SaveCommand(); }, "조건 저장", "조건 저장", "조건 저장"},
        {[&] { saved_.SaveAsCommand(); }, "다른이름으로 저장", "다른이름으로 저장", "다른이름으로 저장"},
        {[&] { saved_.RenameCommand(); }, "조건 저장", "조건명 변경", "조건 검색"},
    };
    for (const Case& c : cases) {
        const auto told = [&](const auto& change) {
            auto set = OpenSavedCondition(screen_.file, "01", screen_.catalogue);
            change(*set);
            saved_.LoadCondition(set);
            screen_.questions.boxes.clear();
            c.command();
            return screen_.questions.boxes.empty()
                       ? std::string()
                       : ToUtf8(screen_.questions.boxes[0].caption + "|" + screen_.questions.boxes[0].text);
        };
        EXPECT_EQ(told([](auto& set) { set.m_Conditions.clear(); }),
                  c.empty + ("|" + std::string(kNoCondition)));
        EXPECT_EQ(told([](auto& set) { set.m_Conditions[0]->m_bChecked = 0; }),
                  c.unchecked + ("|" + std::string(kNoCondition)));
        EXPECT_EQ(told([](auto& set) { set.Upjong = 0; }), c.noTarget + ("|" + std::string(kNoTarget)));
    }
    EXPECT_TRUE(screen_.payloads.empty());
}

TEST_F(SavedConditionsTest, NinetyNineSetsAreTheLimitForNewOnesOnly) {
    SavedScreen full(FileWith(99));
    full.dialogs.name = "new";
    full.dialogs.import = ImportChoice{full.file, "00"};
    full.ShowNew();
    full.saved.SaveCommand();
    EXPECT_EQ(full.LastBox(),
              "조건식을 저장할 수 없습니다.\n\n사용자정의 조건식의 저장은 99개까지만 가능합니다.");
    full.saved.ImportCommand();
    EXPECT_EQ(full.LastBox(),
              "조건식을 불러올 수 없습니다.\n\n사용자정의 조건식의 저장은 99개까지만 가능합니다.");
    full.saved.LoadCondition(full.tree.sets.at(5));
    full.saved.SaveAsCommand();
    EXPECT_EQ(ToUtf8(full.questions.boxes.back().caption), "다른이름으로 저장");
    EXPECT_TRUE(full.payloads.empty());
    full.saved.SaveCommand();
    EXPECT_EQ(full.LastPayload()[0], 'E');
}

TEST_F(SavedConditionsTest, EachSaveSendsItsLetterKeyAndGuard) {
    struct Case {
        const char* what;
        std::function<void()> command;
        const char* head;  // letter, version, user, number
        std::uint8_t key;
        int guard;  // milliseconds
    };
    screen_.dialogs.name = "새이름"_cp949;
    screen_.questions.answers = {};
    const auto yes = [&] { screen_.questions.answers = {Answer::Yes}; };
    const Case cases[] = {
        {"new", [&] { screen_.ShowNew(), saved_.SaveCommand(); }, "A000.001trader  99", 0xa2, 15000},
        {"over", [&] { Load(1), saved_.SaveCommand(); }, "E000.001trader  01", 0xa2, 15000},
        {"as", [&] { Load(1), saved_.SaveAsCommand(); }, "A000.001trader  01", 0xa3, 15000},
        {"rename", [&] { Load(1), yes(), saved_.RenameCommand(); }, "E000.001trader  01", 0xa4, 20000},
        {"delete", [&] { Load(1), yes(), saved_.DeleteCommand(); }, "D000.001trader  01", 0xa5, 15000},
    };
    for (const Case& c : cases) {
        c.command();
        EXPECT_EQ(screen_.LastPayload().substr(0, 18), c.head) << c.what;
        EXPECT_EQ(screen_.LastSent().requestKey, c.key) << c.what;
        EXPECT_TRUE(screen_.channel.Busy()) << c.what;
        const std::size_t sent = screen_.payloads.size();
        for (const auto& other : cases) other.command();
        EXPECT_EQ(screen_.payloads.size(), sent) << c.what << ": refused while busy";
        screen_.clock.Advance(std::chrono::milliseconds(c.guard - 1));
        EXPECT_TRUE(screen_.channel.Busy()) << c.what;
        screen_.clock.Advance(1ms);
        EXPECT_FALSE(screen_.channel.Busy()) << c.what;
    }
}

TEST_F(SavedConditionsTest, ANewSetGetsItsNumberFromTheServer) {
    screen_.ShowNew("A or A");
    screen_.editor.SetDirty(true);
    screen_.dialogs.name = "새조건"_cp949;
    saved_.SaveCommand();
    EXPECT_EQ(screen_.dialogs.usedNames, (std::vector<std::string>{"set0", "set1", "set2"}));
    EXPECT_EQ(ToUtf8(SentName()), "새조건");
    EXPECT_EQ(ToUtf8(screen_.view.name), "새조건");
    EXPECT_FALSE(screen_.view.commandsEnabled) << "it isn't saved yet";
    screen_.Answer('A', true, "12", "000.002");
    EXPECT_EQ(screen_.LastBox(), "사용자정의 조건이 조건번호 [12]에 저장되었습니다");
    EXPECT_EQ(screen_.tree.Shown(), "00 set0, 01 set1, 02 set2, 12 새조건");
    EXPECT_EQ(LoadSavedConditions(screen_.file, screen_.catalogue).sets.at(3)->Exp, "A|A");
    EXPECT_EQ(ReadVersion(screen_.file), "000.002");
    EXPECT_EQ(saved_.CurrentSaved(), screen_.tree.sets.at(3).get());
    EXPECT_TRUE(screen_.view.commandsEnabled);
    EXPECT_FALSE(screen_.editor.Dirty());

    screen_.Edit("A");
    saved_.SaveCommand();
    EXPECT_EQ(SentNumber(), "12");
    screen_.Edit("A and A");  // while the answer is awaited
    screen_.Answer('E', true, "12", "000.003");
    EXPECT_EQ(screen_.questions.boxes.size(), 1u) << "a save over says nothing";
    EXPECT_EQ(LoadSavedConditions(screen_.file, screen_.catalogue).sets.at(3)->Exp, "A");
    EXPECT_TRUE(screen_.editor.Dirty()) << "the last edit isn't saved";
}

TEST_F(SavedConditionsTest, AFailedSaveLeavesNoCurrentSetAndOffersADownloadWhenVersionsDiffer) {
    const std::tuple<bool, const char*, const char*, const char*, char> cases[] = {
        {true, "000.001", "조건 저장에 실패하였습니다.", "", 'A'},
        {false, "000.001", "조건 저장에 실패하였습니다.", "set1", 'E'},
        {true, "000.044",
         "버전 오류로 인해 조건 저장에 실패하였습니다. \n\n서버와 데이터를 일치시키기 위해 [사용자정의 "
         "조건식]을 \n"
         "다시 다운로드 받으시겠습니까?\n",
         "", 'V'},
    };
    const std::string before = screen_.OnDisk();
    for (const auto& [asNew, version, box, name, sent] : cases) {
        screen_.dialogs.name = "n";
        asNew ? screen_.ShowNew() : Load(1);
        screen_.Edit("A or A");
        saved_.SaveCommand();
        screen_.questions.answers = {Answer::Yes};
        screen_.Answer(asNew ? 'A' : 'E', false, "  ", version);
        EXPECT_EQ(screen_.LastBox(), box);
        EXPECT_EQ("none", Number());
        EXPECT_FALSE(screen_.view.commandsEnabled);
        EXPECT_EQ(screen_.view.name, name);
        EXPECT_TRUE(screen_.editor.Dirty());
        EXPECT_EQ(screen_.LastPayload()[0], sent);
        screen_.editor.SetDirty(false);
    }
    EXPECT_EQ(screen_.LastPayload(), "V0trader  00000.001") << "the old version makes the server send all";
    EXPECT_EQ(screen_.OnDisk(), before);
}

TEST_F(SavedConditionsTest, RenameAsksAndPassesTheOldName) {
    Load(1);
    screen_.questions.answers = {Answer::No, Answer::Yes, Answer::Yes};
    saved_.RenameCommand();
    saved_.RenameCommand();  // and the dialog is cancelled
    EXPECT_TRUE(screen_.payloads.empty());
    EXPECT_EQ(screen_.dialogs.startName, "set1");
    screen_.dialogs.name = "renamed";
    saved_.RenameCommand();
    screen_.Answer('E', true, "01", "000.002");
    EXPECT_EQ(screen_.tree.Shown(), "00 set0, 01 renamed, 02 set2");
    EXPECT_EQ(screen_.view.name, "renamed");
}

TEST_F(SavedConditionsTest, DeletingEmptiesTheScreenOfThatSetOnly) {
    Load(1);
    screen_.questions.answers = {Answer::No};
    saved_.DeleteCommand();
    EXPECT_TRUE(screen_.payloads.empty());
    screen_.questions.answers = {Answer::Yes, Answer::Ok, Answer::Yes, Answer::Yes};
    saved_.DeleteCommand();
    screen_.Answer('D', false, "  ", "000.001");
    EXPECT_EQ(screen_.LastBox(), "조건삭제가 실패하였습니다.");
    EXPECT_EQ("01", Number());
    saved_.DeleteCommand();
    screen_.Answer('D', true, "  ", "000.002");
    EXPECT_EQ(screen_.tree.Shown(), "00 set0, 02 set2");
    EXPECT_EQ(LoadSavedConditions(screen_.file, screen_.catalogue).sets.size(), 2u);
    EXPECT_EQ(screen_.conditions.rows.size(), 0u);
    EXPECT_EQ(screen_.view.name, "");

    Load(0);
    saved_.DeleteCommand();
    screen_.clock.Advance(15000ms);
    Load(1);  // the user goes on with another set before the answer comes
    screen_.Answer('D', true, "  ", "000.003");
    EXPECT_EQ(screen_.tree.Shown(), "02 set2");
    EXPECT_EQ("02", Number());
    EXPECT_EQ(screen_.conditions.rows.size(), 1u);

    screen_.questions.answers = {Answer::Yes};
    saved_.DeleteCommand();
    screen_.Edit("A or A");
    screen_.Answer('D', true, "  ", "000.004");
    EXPECT_EQ(screen_.conditions.expression, "A or A") << "what was changed since is the user's";
    EXPECT_EQ("none", Number());
    EXPECT_TRUE(screen_.editor.Dirty());
}

TEST_F(SavedConditionsTest, AnswersThatCannotBeToldApartBringTheSetsAnew) {
    const std::string before = screen_.OnDisk();
    screen_.dialogs.name = "first";
    screen_.ShowNew();
    saved_.SaveCommand();
    screen_.clock.Advance(15000ms);
    EXPECT_THAT(screen_.LastBox(), testing::StartsWith("서버의 응답이 없어서"));
    saved_.SaveCommand();  // its number isn't known, so that it goes out as a new one again
    EXPECT_EQ(screen_.LastPayload()[0], 'A');
    EXPECT_EQ(SentName(), "first");
    screen_.Answer('A', true, "12", "000.002");
    EXPECT_EQ(screen_.LastPayload(), "V0trader  00000.001");
    EXPECT_EQ(screen_.OnDisk(), before);
    const std::size_t sent = screen_.payloads.size();
    screen_.Answer('A', true, "13", "000.003");  // answers nothing any more
    screen_.Answer('E', true, "00", "000.003");
    EXPECT_EQ(screen_.payloads.size(), sent);
    EXPECT_EQ(screen_.OnDisk(), before);

    Load(1);
    saved_.SaveCommand();
    screen_.Answer('E', true, "02", "000.002");  // the answer names another set
    EXPECT_EQ(screen_.LastPayload()[0], 'V');
    EXPECT_EQ(screen_.OnDisk(), before);
}

TEST_F(SavedConditionsTest, ReorderingRenumbersTheFileAndTheCurrentSet) {
    Load(2);
    screen_.dialogs.order = [](std::size_t) { return std::vector<std::size_t>{2, 0, 1}; };
    saved_.ReorderCommand();
    EXPECT_EQ(screen_.dialogs.listed.at(2).name, "set2");
    EXPECT_EQ(screen_.LastPayload(), "C000.001trader  0003020001");
    EXPECT_EQ(screen_.LastSent().requestKey, 0xa0);
    EXPECT_FALSE(screen_.channel.Busy());
    screen_.Reply("C1        000.002");
    EXPECT_EQ(screen_.tree.Shown(), "00 set2, 01 set0, 02 set1");
    EXPECT_THAT(screen_.OnDisk(), testing::StartsWith("[Version]\r\nver=000.002\r\n\r\n[00]\r\nName=set2"));
    EXPECT_EQ("00", Number()) << "it is still the set that is on the screen";
    EXPECT_FALSE(screen_.editor.Dirty());

    const std::string before = screen_.OnDisk();
    saved_.ReorderCommand();
    screen_.Reply("C0        000.002");
    EXPECT_EQ(screen_.LastBox(), "조건 순서 변경에 실패하였습니다.");
    saved_.ReorderCommand();
    screen_.questions.answers = {Answer::No};
    screen_.Reply("C0        000.007");
    EXPECT_THAT(screen_.LastBox(), testing::StartsWith("버전 오류로 인해 조건 순서 변경에"));
    screen_.dialogs.onAsk = [&] { screen_.Reply("VZ           000.008"); };
    const std::size_t sent = screen_.payloads.size();
    saved_.ReorderCommand();
    EXPECT_EQ(screen_.payloads.size(), sent) << "the sets changed under the dialog";
    EXPECT_EQ(screen_.OnDisk(), before);
}

TEST_F(SavedConditionsTest, AnImportAsksBeforeItOverwritesAndAddsItsNodeWhereThereIsNone) {
    const auto other = SavedConditionPath(screen_.folder.Path(), "other");
    WriteText(other,
              "[Version]\r\nver=1\r\n\r\n" + SavedSection("01", "theirs") + SavedSection("40", "forty"));
    screen_.dialogs.import = ImportChoice{other, "01"};
    screen_.questions.answers = {Answer::No};
    saved_.ImportCommand();
    EXPECT_NE(screen_.LastBox().find("[set1]"), std::string::npos);
    EXPECT_EQ(screen_.conditions.rows.size(), 0u);
    screen_.questions.answers = {Answer::Yes};
    saved_.ImportCommand();
    EXPECT_EQ(screen_.LastPayload().substr(0, 18), "E000.001trader  01");
    screen_.dialogs.import->section = "40";
    saved_.ImportCommand();  // shown, but the other one is still under way
    EXPECT_EQ("none", Number());
    EXPECT_TRUE(screen_.editor.Dirty());
    screen_.Answer('E', true, "01", "000.002");
    EXPECT_EQ(screen_.tree.Shown(), "00 set0, 01 theirs, 02 set2");
    EXPECT_EQ("none", Number());
    screen_.editor.SetDirty(false);
    saved_.ImportCommand();
    screen_.Answer('E', true, "40", "000.003");
    EXPECT_EQ(screen_.tree.Shown(), "00 set0, 01 theirs, 02 set2, 40 forty");
    EXPECT_EQ("40", Number());
}

TEST_F(SavedConditionsTest, AFileThatFellBehindIsDownloadedAnewAndNotRenumbered) {
    Load(1);
    saved_.SaveCommand();
    {
        const FileFault fault(FileStep::Rename);
        screen_.Answer('E', true, "01", "000.002");
    }
    const std::string before = screen_.OnDisk();
    screen_.dialogs.order = [](std::size_t) { return std::vector<std::size_t>{1, 0, 2}; };
    saved_.ReorderCommand();
    screen_.Reply("C1        000.003");
    EXPECT_EQ(screen_.LastPayload()[0], 'V');
    EXPECT_EQ(screen_.OnDisk(), before);
}

// A failed write at any step leaves the old file whole, loses nothing on the screen, and never makes the file
// claim a version whose sets it doesn't hold.
TEST_F(SavedConditionsTest, FilesThatCannotBeWrittenStayWholeAndBehind) {
    const auto start = [&](char letter) {
        screen_.dialogs.name = "n";
        screen_.questions.answers = {Answer::Yes};
        screen_.dialogs.order = [](std::size_t) { return std::vector<std::size_t>{1, 0, 2}; };
        Load(1);
        screen_.editor.SetDirty(false);
        if (letter == 'A') saved_.SaveAsCommand();
        if (letter == 'E') saved_.SaveCommand();
        if (letter == 'D') saved_.DeleteCommand();
        if (letter == 'C') saved_.ReorderCommand();
        screen_.questions.answers.clear();
    };
    const std::string before = screen_.OnDisk();
    for (const char letter : {'A', 'E', 'D', 'C'}) {
        for (const auto& [step, bytes] : {std::pair(FileStep::Open, 0),
                                          {FileStep::Write, 0},
                                          {FileStep::Write, 60},
                                          {FileStep::Flush, 0},
                                          {FileStep::Rename, 0}}) {
            WriteBytes(screen_.file, before);
            saved_.Open(screen_.file, "trader");
            screen_.tree.ShowSavedConditions();
            start(letter);
            {
                const FileFault fault(step, static_cast<std::size_t>(bytes));
                letter == 'C' ? screen_.Reply("C1        000.002")
                              : screen_.Answer(letter, true, letter == 'A' ? "12" : "01", "000.002");
            }
            EXPECT_EQ(screen_.OnDisk(), before) << letter;
            EXPECT_NE(screen_.LastBox().find("파일에는 쓸 수 없었습니다."), std::string::npos) << letter;
            if (letter == 'C') continue;
            EXPECT_EQ(screen_.tree.sets.size(), letter == 'A' ? 4u : letter == 'D' ? 2u : 3u);
            Load(0);
            saved_.SaveCommand();
            EXPECT_EQ(screen_.LastPayload().substr(1, 7), "000.002");
            screen_.Answer('E', true, screen_.tree.sets.at(0)->m_strKey, "000.003");
            EXPECT_EQ(ReadVersion(screen_.file), "000.001") << letter;
        }
    }
}

TEST_F(SavedConditionsTest, AChosenTargetIsShownAndCountsAsAChange) {
    saved_.ChangeTarget([](const SearchTarget&) { return std::nullopt; });
    EXPECT_FALSE(screen_.editor.Dirty());
    EXPECT_EQ("", screen_.view.label);

    saved_.ChangeTarget([](const SearchTarget& target) {
        SearchTarget chosen = target;
        chosen.Group = {"101"};
        chosen.m_strTargetLabel = "<101>";
        return std::optional(chosen);
    });
    EXPECT_TRUE(screen_.editor.Dirty());
    EXPECT_EQ("<101>", screen_.view.label);
    EXPECT_EQ(std::vector<std::string>{"101"}, saved_.Target().Group);
    EXPECT_EQ(1, saved_.Target().Upjong) << "the dialog was given the target that stood";
}

}  // namespace
}  // namespace jogeon::test
