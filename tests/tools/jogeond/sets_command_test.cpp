// Drives jogeond sets: the text form of condition sets, its way there and back, and what it refuses.

#include <gtest/gtest.h>

#include "screen/text/bytes.h"
#include "screen/text/cp949.h"
#include "server/service/condition_set.h"
#include "server/store/condition_store.h"
#include "tests/screen/support/random_conditions.h"
#include "tests/server/market/scratch_folder.h"
#include "tests/server/service/requests.h"
#include "tests/tools/jogeond/run_jogeond.h"

namespace jogeon {
namespace {

using store::ConditionStore;
using store::StoredSet;
using test::Outcome;

class SetsCommandTest : public testing::Test {
protected:
    std::string Path(const std::string& name) const { return (folder_ / name).string(); }

    // `words` without user and store, which are kim's in `store`.
    Outcome Run(const std::string& words, const std::string& store = "sets.sqlite") const {
        return test::RunJogeond("sets " + words + " --user kim --store " + Path(store));
    }

    Outcome Import(const std::string& text, const std::string& options = "") const {
        folder_.Write("in.txt", text);
        return Run("import " + options + " " + Path("in.txt"));
    }

    std::vector<StoredSet> Stored(const std::string& store = "sets.sqlite") const {
        return ConditionStore(Path(store)).ListAll("kim").sets;
    }

    market::ScratchFolder folder_;
};

const std::string kHead =
    "# Condition sets of jogeon, as \"jogeond sets export\" writes and \"jogeond sets import\" reads them;\n"
    "# \"jogeond sets --help\" tells the form.\n"
    "form = 1\n";

const std::string kSet =
    "\n"
    "[03]\n"
    "name = \" 가격 \\\"낮은\\\" \\\\것\"\n"
    "position = buy\n"
    "universe = interest groups, holdings\n"
    "account = \"12345678901\"\n"
    "groups = 501 0AL\n"
    "exclude = 관리종목, 증거금 100%, 선택종목\n"
    "month = 11\n"
    "expression = A and (!B or A)\n"
    "B off value = 주가 범위: 봉전=0, 하한(원)=1000, 상한(원)=5000\n"
    "A = RSI [기준값 범위]: 주기=주, 봉전=12, 기간=14, 기준값=30.5, 상한값=\"70 \\\"x,\"\n";

// The same as the screen would have sent it, without owner and number.
std::string RecordOfSet() {
    std::string header = test::Header("A&(!B|A)", "02");
    test::Put(header, 0, std::string(90, ' '));
    test::Put(header, 10, " 가격 \"낮은\" \\것"_cp949);
    test::Put(header, 90, "2    03123456789010");
    test::Put(header, 109, "00025010AL");
    test::Put(header, 713, "1000010001511");
    std::string price = test::PriceBlock('B', "1000", "5000", true);
    test::Put(price, 2, "0");
    std::string rsi(71, ' ');
    test::Put(rsi, 0, "T01A010201112W12 14");
    test::Put(rsi, 44, "     30.5   70 \"x,");
    return header + price + rsi;
}

TEST_F(SetsCommandTest, TextAndRecordSayTheSame) {
    std::string strange = kHead + kSet;
    strange.replace(strange.find("기간=14"), std::string("기간=14").size(), "기간=0");
    strange.replace(strange.find("or A)"), 5, "or C)");
    EXPECT_EQ(Import(strange).err, "jogeond sets: warning: " + Path("in.txt") +
                                       ":15: 기간=0 is not within 1 to 999\n"
                                       "jogeond sets: warning: " +
                                       Path("in.txt") +
                                       ":5: the expression names C, which is no condition\n");
    EXPECT_EQ(Import(kHead + kSet, "--replace").err, "");
    const std::vector<StoredSet> sets = Stored();
    ASSERT_EQ(sets.size(), 1u);
    EXPECT_EQ(sets[0].number, 3);
    EXPECT_EQ(sets[0].record, RecordOfSet());
    EXPECT_EQ(Run("export").out, kHead + kSet);
    EXPECT_EQ(Run("list").out, "kim: 1 sets, version 000.002\n03   가격 \"낮은\" \\것  (2)\n");
}

// Sets of random conditions, composed as the screen composes them.
class RandomSets {
public:
    // So many sets that every variant comes often.
    std::vector<StoredSet> Make() {
        std::vector<StoredSet> sets;
        for (int number = 0; number < 99; number += 1 + conditions.Below(2))
            sets.push_back({number, Record()});
        return sets;
    }

    test::RandomConditions conditions{2026};

private:
    int Below(int end) { return conditions.Below(end); }

    std::string Text(const std::vector<std::string>& pieces) {
        std::string text = "가"_cp949;
        for (int i = Below(8); i > 0; --i)
            text += pieces[static_cast<std::size_t>(Below(static_cast<int>(pieces.size())))];
        return text + "x";
    }

    TargetFields Target() {
        TargetFields target;
        target.Upjong = Below(2);
        target.Portfolio = Below(4);
        target.Recommend = Below(4);
        for (int TargetFields::*except :
             {&TargetFields::Except1, &TargetFields::Except2, &TargetFields::Except3, &TargetFields::Except4,
              &TargetFields::Except5, &TargetFields::Except6, &TargetFields::Except7,
              &TargetFields::Except10})
            target.*except = Below(2);
        target.Month = Below(13);
        for (int i = Below(5); i > 0; --i) target.Group.push_back(ZeroPadded(Below(1000), 3));
        if (target.Portfolio >= 2) target.Acc = "1234567890" + Decimal(Below(10));
        return target;
    }

    std::string Record() {
        ConditionHeader header;
        header.number.clear();
        header.name = Text({"\"", "\\", " ", "=", "#", "조건"_cp949, "A", ",", "[", "]"});
        header.buy = Below(2);
        header.target = Target();
        header.count = 1 + Below(20);
        std::string blocks;
        for (char letter = 'A'; letter < 'A' + header.count; ++letter) {
            blocks += BuildConditionBlock(*conditions.Make(letter));
            if (letter != 'A') header.exp += Below(2) ? '&' : '|';
            header.exp += Below(2) ? std::string(1, letter) : std::string("!(") + letter + ")";
        }
        return EncodeConditionHeader(header) + blocks;
    }
};

TEST_F(SetsCommandTest, EverySetComesBackByteForByte) {
    RandomSets random;
    for (int round = 0; round < 3; ++round) {
        const std::vector<StoredSet> sets = random.Make();
        for (const StoredSet& set : sets)
            ASSERT_NO_THROW(service::ReadConditionSet(set.record)) << set.number;
        {
            ConditionStore store(Path("from.sqlite"));
            ASSERT_EQ(store.ReplaceAll("kim", store.Version("kim"), sets).outcome, store::Outcome::Done);
        }
        ASSERT_EQ(Run("export " + Path("a.txt"), "from.sqlite").code, 0);
        const Outcome imported = Run("import --replace " + Path("a.txt"), "to.sqlite");
        ASSERT_EQ(imported.code, 0) << imported.err;
        ASSERT_EQ(Stored("to.sqlite"), sets);
        Run("export " + Path("b.txt"), "to.sqlite");
        EXPECT_EQ(folder_.Read("a.txt"), folder_.Read("b.txt"));
    }
    EXPECT_GT(random.conditions.Made(), 4 * random.conditions.Variants())
        << "every variant came several times";
}

TEST_F(SetsCommandTest, FaultsAreToldWithFileLineAndReason) {
    ASSERT_EQ(Import(kHead + kSet).code, 0);
    const std::vector<StoredSet> before = Stored();
    const std::tuple<std::string, std::string, std::string> cases[] = {
        {"form = 1", "form = 2", ":3: form 2 is unknown"},
        {"form = 1\n", "", ":4: \"form = 1\" must stand before"},
        {"[03]", "[99]", ":5: \"99\" is no number from 0 to 98"},
        {"[03]", "[3]", ":5: a set begins with its number"},
        {"[03]\n", "", ":5: a number in brackets must stand"},
        {"", "\n[03]\n", ":17: there is a set of this number"},
        {"name", "nam", ":6: a set has no line \"nam\""},
        {"것\"", "것", ":6: a quotation mark is missing"},
        {"것\"", "것\" x", ":6: there is more behind"},
        {"가격", "😀", ":6: \" 😀 \"낮은\" \\것\" has a character that CP949"},
        {"가격", std::string(78, 'x'), "bytes of CP949 long; 80 is the most"},
        {"\" 가격 \\\"낮은\\\" \\\\것\"", "\"\"", ":5: the set's name is none"},
        {"position = buy\n", "", ":5: the set has no position"},
        {"buy", "hold", ":7: a position is buy or sell"},
        {"holdings", "stocks", ":8: there is no \"stocks\" to choose"},
        {", holdings", "", ":5: an account belongs to holdings only"},
        {"501 ", "50 ", ":10: \"50\" is no group code"},
        {"501 ", "5;1 ", ":5: \"5;1\" is no group code"},
        {"month = 11", "month = 13", ":12: \"13\" is no number from 1 to 12"},
        {"month = 11", "month = 11\nmonth = 11", ":13: month stands twice"},
        {"or A)", "or A", ":13: the expression is wrong: A and  ☞ (!B or A"},
        {"B off", "b off", ":14: a set has no line \"b off value\""},
        {"B off", "A off", ":15: condition A stands twice"},
        {"off value", "value off", ":14: behind a letter stand"},
        {"주가 범위", "주가범위", ":14: there is no indicator \"주가범위\""},
        {"주가 범위:", "주가 범위 [x]:", ":14: 주가 범위 has no variants"},
        {"RSI [기준값 범위]", "RSI", ":15: RSI needs [one of 기준값 이상, "},
        {"하한(원)=1000, ", "", ":14: 하한(원) is missing"},
        {"하한(원)=1000", "하한(원)=1000, 하한(원)=1", ":14: 하한(원) is given twice"},
        {"하한(원)=1000", "하한=1000", ":14: there is no parameter \"하한\"; there are 봉전, "},
        {"하한(원)=1000", "하한(원)", ":14: 하한(원) has no value"},
        {"하한(원)=1000", "하한(원)=1000000000", ":14: \"1000000000\" has no room"},
        {"하한(원)=1000", "하한(원)=\"1;\"", ":5: condition 1 has a character"},
        {"주기=주", "주기=년", ":15: 주기 is one of 일, 주, 월"},
        {"", "C 주가 범위\n", ":16: this line has no ="},
    };
    for (const auto& [from, to, told] : cases) {
        std::string text = kHead + kSet;
        if (from.empty())
            text += to;
        else
            text.replace(text.find(from), from.size(), to);
        const Outcome outcome = Import(text, "--replace");
        EXPECT_EQ(outcome.code, 2) << told;
        const std::string place = told[0] == ':' ? Path("in.txt") + told : told;
        EXPECT_NE(outcome.err.find(place), std::string::npos) << "wanted " << told << " got " << outcome.err;
    }
    EXPECT_EQ(Stored(), before);
    EXPECT_EQ(Import("").err, "jogeond sets: " + Path("in.txt") +
                                  ":1: there is no \"form = 1\": this is no text of condition sets\n");
}

std::string SimpleSet(const std::string& number, const std::string& name) {
    return "[" + number + "]\nname = \"" + name + "\"\nposition = buy\nexpression = A\n" +
           "A = 주가 범위: 봉전=0, 하한(원)=1, 상한(원)=2\n";
}

TEST_F(SetsCommandTest, ImportsAddUpdateOrReplaceAsAWhole) {
    const auto list = [&] { return Run("list").out; };
    EXPECT_EQ(Import("form = 1\n" + SimpleSet("07", "가") + SimpleSet("02", "나")).out,
              "kim: 2 added, 0 replaced, 0 removed, version 000.001\n");
    EXPECT_EQ(list(), "kim: 2 sets, version 000.001\n00  가  (1)\n01  나  (1)\n");
    const std::string more =
        "\xEF\xBB\xBF"
        "form = 1\r\n" +
        SimpleSet("00", "다") + SimpleSet("01", "나");
    const Outcome refused = Import(more);
    EXPECT_EQ(refused.code, 2);
    EXPECT_EQ(refused.err, "jogeond sets: " + Path("in.txt") +
                               ":7: a set \"나\" is there already, number 01; --update replaces it\n");
    EXPECT_EQ(list(), "kim: 2 sets, version 000.001\n00  가  (1)\n01  나  (1)\n");
    EXPECT_EQ(Import(more, "--update").out, "kim: 1 added, 1 replaced, 0 removed, version 000.002\n");
    EXPECT_EQ(list(), "kim: 3 sets, version 000.002\n00  가  (1)\n01  나  (1)\n02  다  (1)\n");
    EXPECT_EQ(Import(more, "--replace").out, "kim: 0 added, 2 replaced, 1 removed, version 000.003\n");
    EXPECT_EQ(list(), "kim: 2 sets, version 000.003\n00  다  (1)\n01  나  (1)\n");
    EXPECT_EQ(Import(more, "--replace").out, "kim: 0 added, 2 replaced, 0 removed, version 000.003\n")
        << "nothing to change";

    std::string crowd = "form = 1\n";
    for (int i = 0; i < 98; ++i) crowd += SimpleSet(ZeroPadded(i, 2), "s" + std::to_string(i));
    EXPECT_NE(Import(crowd).err.find("the user would have 100 sets; 99 is the most"), std::string::npos);
    EXPECT_EQ(Import("form = 1\n" + SimpleSet("00", "x") + SimpleSet("01", "x")).code, 2);
}

TEST_F(SetsCommandTest, WrongUseAndMissingFilesAreToldAndMakeNothing) {
    for (const char* words : {"", "show", "list x", "import --add", "export --update",
                              "import --update --replace", "export a b"}) {
        const Outcome outcome = Run(words);
        EXPECT_EQ(outcome.code, 2) << words;
        EXPECT_EQ(std::count(outcome.err.begin(), outcome.err.end(), '\n'), 1) << outcome.err;
    }
    EXPECT_NE(Run("list").err.find("sets.sqlite: no such store"), std::string::npos);
    EXPECT_NE(Run("import " + Path("nothing")).err.find("nothing: can't be read"), std::string::npos);
    EXPECT_FALSE(std::filesystem::exists(Path("sets.sqlite")));
    EXPECT_EQ(test::RunJogeond("sets list --user too_long_1").code, 2);
    EXPECT_EQ(test::RunJogeond("sets list").err, "jogeond sets: --user ID is missing: it says whose sets\n");
    EXPECT_EQ(test::RunJogeond("sets --help").code, 0);
}

}  // namespace
}  // namespace jogeon
