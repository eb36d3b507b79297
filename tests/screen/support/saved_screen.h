// A screen of recorders around SavedConditions: what it shows, what it asks, what it sends, and its user
// file.
#pragma once

#include <algorithm>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "screen/expression/expression_check.h"
#include "screen/saved/saved_conditions.h"
#include "screen/transactions/reply_record.h"
#include "screen/transactions/request_record.h"
#include "tests/screen/support/condition_files.h"
#include "tests/screen/support/condition_list_view.h"
#include "tests/screen/support/recorders.h"

namespace jogeon::test {

struct PlainSavedView : SavedConditionView {
    explicit PlainSavedView(ConditionListView& shown) : conditions(shown) {}

    void ShowName(const std::string& shown) override { name = shown; }
    bool BuySelected() const override { return buy; }
    void SelectBuy(bool selected) override { buy = selected; }
    void ShowTarget(const SearchTarget& target) override { label = target.m_strTargetLabel; }
    std::string ExpressionText() const override { return conditions.expression; }
    bool CheckExpression(const std::string& text) override { return CheckExpressionText(text).valid; }
    void EnableSavedCommands(bool enabled) override { commandsEnabled = enabled; }
    void ClearResults() override { ++cleared; }

    ConditionListView& conditions;
    std::string name;
    std::string label;  // of the target
    bool buy = true;
    bool commandsEnabled = false;
    int cleared = 0;
};

struct RecordingTree final : SavedTree {
    RecordingTree(const std::filesystem::path& userFile, const Catalogue& known)
        : file(userFile), catalogue(known) {}

    const Catalogue& Indicators() const override { return catalogue; }
    SavedSets UserSets() const override { return sets; }
    void ShowSavedConditions() override { sets = LoadSavedConditions(file, catalogue).sets; }
    void AddSaved(std::shared_ptr<CSavedIndexInfo> set) override { sets.push_back(std::move(set)); }
    void ReplaceSaved(std::shared_ptr<CSavedIndexInfo> set) override {
        for (auto& shown : sets) {
            if (shown->m_strKey == set->m_strKey) shown = set;
        }
    }
    void DeleteSaved(std::string_view key) override {
        std::erase_if(sets, [&](const auto& shown) { return shown->m_strKey == key; });
    }
    void ClearSelection() override { ++cleared; }

    // The sets as "00 name, 01 name", by number.
    std::string Shown() const {
        std::vector<std::string> rows;
        for (const auto& set : sets) rows.push_back(set->m_strKey + " " + ToUtf8(set->Name));
        std::sort(rows.begin(), rows.end());
        return Join(rows, ", ");
    }

    const std::filesystem::path file;
    const Catalogue& catalogue;
    SavedSets sets;
    int cleared = 0;
};

// Gives the scripted answers; cancels where there are none.
struct ScriptedSavedQuestions final : SavedQuestions {
    std::optional<std::string> AskName(const std::vector<std::string>& used,
                                       const std::string& start) override {
        usedNames = used;
        startName = start;
        if (onAsk) onAsk();
        return name;
    }
    std::optional<ImportChoice> AskImport(const std::filesystem::path&, const std::string&) override {
        return import;
    }
    std::optional<std::vector<std::size_t>> AskOrder(const std::vector<SavedSetName>& sets) override {
        listed = sets;
        if (onAsk) onAsk();
        return order ? order(sets.size()) : std::nullopt;
    }

    std::optional<std::string> name;
    std::optional<ImportChoice> import;
    std::function<std::optional<std::vector<std::size_t>>(std::size_t sets)> order;
    std::function<void()> onAsk;  // what happens while a dialog stands open
    std::vector<std::string> usedNames;
    std::string startName;
    std::vector<SavedSetName> listed;
};

// One condition on indicator 0101010008 of the small catalogue, as a line of a user file.
inline std::string SavedSection(const std::string& number, const std::string& name,
                                const std::string& exp = "A") {
    return "[" + number + "]\r\nName=" + name +
           "\r\nTypePosition=1\r\nUpjong=1\r\nPortfolio=0\r\nRecommend=0\r\nAcc=\r\nGroup=ALL|\r\nExp=" +
           exp + "\r\nCount=1\r\n00=0101010008;A;1;0;40^2|60^5|30^1;\r\n\r\n";
}

// The block of that condition.
inline std::string SavedBlock() {
    return "T01A010101011  1  2" + std::string(25, ' ') + "        5" + std::string(18, ' ');
}

// A stored record of a set with that one condition.
inline std::string StoredRecord(const std::string& number, const std::string& name,
                                const std::string& block = SavedBlock()) {
    const std::string cp949 = ToCp949(name);
    return "trader  " + number + cp949 + std::string(80 - cp949.size(), ' ') + "2    10" +
           std::string(11, ' ') + "00001ALL" + std::string(597, ' ') + "0000000" + "00" + "0" + "0  A" +
           std::string(99, ' ') + "01" + block;
}

class SavedScreen {
public:
    explicit SavedScreen(const std::string& userFile = "[Version]\r\nver=000.001\r\n\r\n") {
        WriteCatalogue(folder.Path() / "System");
        catalogue.Load(folder.Path() / "System", {});
        WriteText(file, userFile);
        communication.onSend = [this] { payloads.push_back(LastSent().payload); };
        channel.Attach(0x20, 3);
        saved.LinkTree(tree);
        saved.WireReplies();
        saved.Open(file, "trader");
        tree.ShowSavedConditions();
    }

    CommRequestRecord LastSent() const {
        return *ParseRequestRecord(communication.sent.back().records.at(0));
    }
    std::string LastPayload() const { return payloads.empty() ? std::string() : payloads.back(); }
    std::string OnDisk() const { return ReadBytes(file); }

    // What the server would send, in answer to a request with this key.
    void Reply(const std::string& data, std::uint8_t key = 1) {
        channel.OnReply(key, BuildReplyRecord(data));
    }

    // Answers "A", "E" or "D" in the layout that they share.
    void Answer(char letter, bool success, const std::string& number, const std::string& version) {
        Reply(std::string(1, letter) + (success ? "1" : "0") + std::string(9, ' ') + number + version);
    }

    // Shows a set that is no saved one, with one condition and the letters of `text`.
    void ShowNew(const std::string& text = "A") {
        auto set = std::make_shared<CSavedIndexInfo>();
        set->m_bVendorSet = 1;
        set->Exp = text;
        set->Count = 1;
        set->m_Conditions.push_back(catalogue.MakeCondition("0101010008"));
        set->m_Conditions[0]->SetValueText("40^2|60^5|30^1");
        set->m_Conditions[0]->m_bChecked = 1;
        saved.LoadCondition(set);
    }

    // What a user's edit of the expression does.
    void Edit(const std::string& text) {
        conditions.expression = text;
        editor.SetDirty(true);
    }

    std::string LastBox() const {
        return questions.boxes.empty() ? std::string() : ToUtf8(questions.boxes.back().text);
    }

    TempFolder folder;
    const std::filesystem::path file = SavedConditionPath(folder.Path(), "trader");
    Catalogue catalogue;
    RecordingCommunication communication;
    std::vector<std::string> payloads;
    RecordingLinkStore links;
    ScriptedQuestions questions;
    ManualClock clock;
    ScreenSettings settings;
    RequestChannel channel{communication, clock, questions, [] {}};
    ConditionListView conditions;
    PlainSavedView view{conditions};
    ConditionEditor editor{conditions, questions, settings};
    ScriptedSavedQuestions dialogs;
    RecordingTree tree{file, catalogue};
    SavedConditions saved{{view, dialogs, editor, channel, questions, questions, links, settings}};
};

}  // namespace jogeon::test
