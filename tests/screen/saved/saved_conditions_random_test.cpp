// Random commands, answers and timeouts over the whole of the saved conditions: whatever comes in whatever
// order, file, tree, current set and screen agree, and an answer changes only what its request was about.
#include <algorithm>
#include <array>
#include <random>

#include <gtest/gtest.h>

#include "screen/expression/expression_text.h"
#include "screen/transactions/stored_condition.h"
#include "tests/screen/support/saved_screen.h"

namespace jogeon::test {
namespace {

using namespace std::chrono_literals;

constexpr char kLetters[] = {'A', 'E', 'D', 'C', 'V'};
constexpr const char* kTexts[] = {"A", "A and A", "A or A", "(A)", "!A", "A and", ""};

class RandomScreen {
public:
    explicit RandomScreen(unsigned seed) : random_(seed), screen_(FirstFile()) {
        WriteText(other_, "[Version]\r\nver=1\r\n\r\n" + SavedSection("01", "theirs") +
                              SavedSection("40", "forty") + SavedSection("xyz", "odd"));
        screen_.dialogs.order = [this](std::size_t count) { return Order(count); };
        screen_.dialogs.onAsk = [this] { AnswerMeanwhile(); };
        screen_.questions.onAsk = [this] {
            screen_.questions.answers = {
                std::array{host::Answer::Yes, host::Answer::No, host::Answer::Cancel}[Pick(3)]};
            AnswerMeanwhile();
        };
        screen_.saved.RequestList();
    }

    void Step() {
        const std::string before = screen_.tree.Shown();
        const std::size_t sent = screen_.payloads.size();
        meanwhile_ = false;
        Act();
        NoteRequests(sent);
        CheckAgreement();
        if (answered_ && !meanwhile_) CheckChange(before);
        answered_ = '\0';
    }

    std::map<char, int> changes;  // how often an answer of each kind changed the tree

private:
    static std::string FirstFile() {
        return "[Version]\r\nver=000.001\r\n\r\n" + SavedSection("00", "a") + SavedSection("01", "b", "A&A") +
               SavedSection("05", "c", "A|A");
    }

    std::size_t Pick(std::size_t count) {
        return std::uniform_int_distribution<std::size_t>(0, count - 1)(random_);
    }

    std::optional<std::vector<std::size_t>> Order(std::size_t count) {
        std::vector<std::size_t> order(count);
        for (std::size_t i = 0; i < count; ++i) order[i] = i;
        std::shuffle(order.begin(), order.end(), random_);
        return order;
    }

    void Act() {
        SavedConditions& saved = screen_.saved;
        screen_.dialogs.name = Pick(6) ? std::optional("n" + std::to_string(++names_)) : std::nullopt;
        screen_.dialogs.import = ImportChoice{other_, std::array{"01", "40", "xyz", ""}[Pick(4)]};
        switch (Pick(14)) {
            case 0:
            case 1:
                if (!screen_.tree.sets.empty()) {
                    saved.LoadCondition(screen_.tree.sets[Pick(screen_.tree.sets.size())]);
                }
                break;
            case 2:
                Pick(2) ? screen_.ShowNew() : saved.NewCondition();
                break;
            case 3:
                saved.SaveCommand();
                break;
            case 4:
                saved.SaveAsCommand();
                break;
            case 5:
                saved.RenameCommand();
                break;
            case 6:
                saved.DeleteCommand();
                break;
            case 7:
                saved.ImportCommand();
                break;
            case 8:
                saved.ReorderCommand();
                break;
            case 9:
                if (!screen_.conditions.rows.empty()) screen_.Edit(kTexts[Pick(std::size(kTexts))]);
                break;
            case 10:
                screen_.clock.Advance(Pick(2) ? 20000ms : 3000ms);
                break;
            default:
                answered_ = Answer();
        }
    }

    // An answer while a box or a dialog stands open; not one inside another without end.
    void AnswerMeanwhile() {
        if (depth_ > 1 || Pick(5)) return;
        ++depth_;
        meanwhile_ = true;
        Answer();
        --depth_;
    }

    // Some answer: mostly to what was asked last, with its number; else of any kind, cut, or twice.
    char Answer() {
        const bool latest = Pick(3) && !screen_.payloads.empty();
        const char letter = latest ? screen_.payloads.back()[0] : kLetters[Pick(5)];
        const std::string asked = last_[letter];
        const std::string version = LeftIn("v" + std::to_string(++versions_), 7);
        std::string number = asked.size() > 18 ? asked.substr(16, 2) : "07";
        if (letter == 'A' || Pick(8) == 0) number = ZeroPadded(static_cast<int>(Pick(30)), 2);
        std::string data = letter + std::string(Pick(4) ? "1" : "0") + std::string(9, ' ') + number + version;
        if (letter == 'C') data = std::string("C1        ").replace(1, 1, 1, Pick(4) ? '1' : '0') + version;
        if (letter == 'V') data = ListAnswer(version);
        if (Pick(10) == 0) data.resize(Pick(data.size() + 1));
        for (std::size_t times = Pick(8) ? 1 : 2; times > 0; --times) screen_.Reply(data, key_[letter]);
        return letter;
    }

    std::string ListAnswer(const std::string& version) {
        if (Pick(2)) return "VE";
        std::string records;
        const std::size_t count = 1 + Pick(4);
        for (std::size_t i = 0; i < count; ++i) {
            records += StoredRecord(ZeroPadded(static_cast<int>(i * 3 + Pick(3)), 2),
                                    "s" + std::to_string(++names_));
        }
        const bool more = Pick(3) == 0;
        return std::string("VD") + (more ? "1" : "0") + "        05" + version +
               ZeroPadded(static_cast<int>(count), 4) + records;
    }

    void NoteRequests(std::size_t from) {
        for (std::size_t i = from; i < screen_.payloads.size(); ++i) {
            const std::string& payload = screen_.payloads[i];
            last_[payload[0]] = payload;
            key_[payload[0]] = ParseRequestRecord(screen_.communication.sent[i].records[0])->requestKey;
        }
    }

    void CheckAgreement() {
        RecordingTree onDisk(screen_.file, screen_.catalogue);
        onDisk.ShowSavedConditions();
        ASSERT_EQ(onDisk.Shown(), screen_.tree.Shown());
        for (const auto& set : screen_.tree.sets) ASSERT_TRUE(IsSetNumber(set->m_strKey));

        const CSavedIndexInfo* current = screen_.saved.CurrentSaved();
        const bool stored = current && IsSetNumber(current->m_strKey);
        ASSERT_EQ(screen_.view.commandsEnabled, stored);
        if (!current) return;
        ASSERT_EQ(screen_.view.name, current->Name);
        const auto& sets = screen_.tree.sets;
        const bool shown =
            std::any_of(sets.begin(), sets.end(), [&](const auto& set) { return set.get() == current; });
        const bool clean = !screen_.editor.Dirty();
        ASSERT_TRUE(!shown || !clean || ToCompactForm(screen_.conditions.expression) == current->Exp);
        // One that isn't in the tree is on its way to the server, unanswered.
        ASSERT_TRUE(!stored || shown || last_['E'].substr(16, 2) == current->m_strKey);
    }

    // What an answer of one kind may do to the tree.
    void CheckChange(const std::string& before) {
        const std::string after = screen_.tree.Shown();
        if (after == before) return;
        ++changes[answered_];
        const std::string& request = last_[answered_];
        const auto count = [](const std::string& shown) {
            return std::count(shown.begin(), shown.end(), ' ');
        };
        ASSERT_TRUE(answered_ != 'C' || count(after) == count(before));
        if (answered_ == 'C' || answered_ == 'V') return;
        const std::string name(TrimRight(Field(request, 18, 80)));
        ASSERT_EQ(answered_ == 'D', after.find(" " + name) == std::string::npos) << name << ": " << after;
        ASSERT_LE(std::abs(count(after) - count(before)), 2) << before << " -> " << after;
    }

    std::mt19937 random_;
    SavedScreen screen_;
    const std::filesystem::path other_ = SavedConditionPath(screen_.folder.Path(), "other");
    std::map<char, std::string> last_;  // the last payload of each kind
    std::map<char, std::uint8_t> key_{{'A', 1}, {'E', 1}, {'D', 1}, {'C', 1}, {'V', 0xa1}};
    char answered_ = '\0';
    bool meanwhile_ = false;
    int depth_ = 0;
    int names_ = 0;
    int versions_ = 100;
};

TEST(SavedConditionsRandomTest, WhateverComesFileTreeAndScreenAgree) {
    std::map<char, int> changes;
    for (unsigned seed = 1; seed <= 10; ++seed) {
        RandomScreen screen(seed);
        for (int step = 0; step < 500; ++step) {
            screen.Step();
            ASSERT_FALSE(testing::Test::HasFatalFailure()) << "seed " << seed << ", step " << step;
        }
        for (const auto& [letter, count] : screen.changes) changes[letter] += count;
    }
    for (const char letter : kLetters) EXPECT_GT(changes[letter], 10) << letter << " is hardly tried";
}

}  // namespace
}  // namespace jogeon::test
