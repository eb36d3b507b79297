#include "screen/condition/catalogue.h"

#include <sstream>

#include <gtest/gtest.h>

#include "tests/screen/support/condition_files.h"

namespace jogeon {
namespace {

using test::WriteCatalogue;

// The tree with two blanks for each level; a node that can be picked has its key and image behind it.
std::string Outline(const std::vector<CatalogueNode*>& nodes, int level = 0) {
    std::string text;
    for (const CatalogueNode* node : nodes) {
        text += std::string(static_cast<std::size_t>(level) * 2, ' ') + ToUtf8(node->text);
        if (node->data) text += " " + node->data->m_strKey + " " + std::to_string(node->image);
        text += "\n" + Outline(node->children, level + 1);
    }
    return text;
}

class CatalogueTest : public testing::Test {
protected:
    void Load(std::string_view tree, std::string_view fields, const std::vector<std::string>& sectors = {}) {
        WriteCatalogue(folder_.Path(), tree, fields);
        catalogue_.Load(folder_.Path(), sectors);
    }

    test::TempFolder folder_;
    Catalogue catalogue_;
};

TEST_F(CatalogueTest, BuildsTheTree) {
    Load(test::kTreeText, test::kFieldText);
    EXPECT_EQ(Outline(catalogue_.Roots()),
              "기술적지표\n"
              "  이동평균\n"
              "    주가이평돌파 0101010008 10\n"
              "  거래량 0401020008 10\n"
              "  적삼병 0601010008 12\n"
              "시세\n"
              "  순위 0801010008 10\n");
    EXPECT_EQ(catalogue_.Indexes().size(), 5u);
    const CIndexInfo* index = catalogue_.FindIndexByKey("0101010008");
    ASSERT_TRUE(index);
    EXPECT_EQ(index->m_nIndexNo, 11);
    EXPECT_EQ(index->m_nKind, 9);
    EXPECT_EQ(index->m_bLeaf, 1);
    EXPECT_EQ(static_cast<CatalogueNode*>(index->m_hTreeItem)->data, index);
    const CIndexInfo* group = catalogue_.FindIndexByKey("0100000000");
    ASSERT_TRUE(group);
    EXPECT_EQ(group->m_nKind, -1);
    EXPECT_EQ(group->m_bLeaf, 0);
    EXPECT_EQ(catalogue_.FindIndexByKey("0101"), nullptr);
}

TEST_F(CatalogueTest, FollowsPositionCodes) {
    Load(
        "[r]\na000000000=a;0;C\nb000000000=b;0;C\nc000000000=c;0;C\nd000000000=d;0;P2\ne000000000=e;0;P\n"
        "f000000000=f;0;P9\ng000000000=g;0;S\n0101010008=h;7;\n",
        "");
    EXPECT_EQ(Outline(catalogue_.Roots()), "r\n  a\n    b\n      c\n  d\n  e\nf\ng 0101010008 10\n");
}

TEST_F(CatalogueTest, ReadsFields) {
    Load("",
         "[0101010008]\n"
         "7=;;;[%s] %s;1^2;x\n"
         "1=40;1;40;1;10;30;5;60;0;3;4;단순|지수;1|2;ignored;\n"
         "2=\n"
         "3=31;2;60;1.5;10;30;5;60;1;0.5;240;ignored;\n"
         "4=60;0;10;0;0;0;0;0;0;;;A|B;0|1;2^3|4;\n"
         "5=42;1;41;0;0;0;0;0;0;;;전체|;ALL|;x;\n"
         "6=70;1;20;;0;0;0;0;0;;;a.bmp;x;\n",
         {"001 종합"_cp949, "002 대형주"_cp949, "0"});
    const FieldArray* fields = catalogue_.FindFieldsByKey("0101010008");
    ASSERT_TRUE(fields);
    std::vector<std::string> told;
    for (const auto& field : *fields) {
        std::ostringstream text;
        text << field->m_nId << ' ' << field->m_bStored << ' ' << field->m_nRole << " at "
             << field->m_rcInit.left << ',' << field->m_rcInit.top << ',' << field->m_rcInit.right << ','
             << field->m_rcInit.bottom << " from " << field->m_dMin << " to " << field->m_dMax << ": "
             << ToUtf8(field->m_strItems) << '/' << field->m_strCodes << '/' << field->m_strVariantFields;
        told.push_back(text.str());
        EXPECT_EQ(field->m_rcCur, field->m_rcInit);
    }
    EXPECT_EQ(
        told,
        (std::vector<std::string>{
            "0 0 0 at 0,0,0,0 from 0 to 0: [%s] %s/1^2/", "1 1 40 at 5,10,60,30 from 0 to 0: 단순|지수/1|2/",
            "3 0 60 at 5,10,60,30 from 0.5 to 240: //", "4 0 10 at 0,0,0,0 from 0 to 0: A|B/0|1/2^3|4",
            "5 1 41 at 0,0,0,0 from 0 to 0: 전체|종합|대형주||/ALL|001|002|0|/",
            "6 1 20 at 0,0,0,0 from 0 to 0: a.bmp//"}));
}

TEST_F(CatalogueTest, MakesIndependentConditions) {
    Load(test::kTreeText, test::kFieldText);
    const auto first = catalogue_.MakeCondition("0101010008");
    const auto second = catalogue_.MakeCondition("0101010008");
    ASSERT_TRUE(first && second);
    first->SetValueText("40^2|60^5|30^1");
    first->BuildDescription();
    EXPECT_EQ(ToUtf8(first->m_strDescription), "[지수] 5일 이평 1");
    second->SetValueText("40^1|60^20|30^0");
    EXPECT_EQ(second->GetValueText(), "40^1|60^20|30^0");
    EXPECT_EQ(first->GetValueText(), "40^2|60^5|30^1");
    EXPECT_EQ((*catalogue_.FindFieldsByKey("0101010008"))[2]->m_strValue, "20");
    EXPECT_EQ(catalogue_.FindIndexByKey("0101010008")->m_pFields, nullptr);

    EXPECT_EQ(catalogue_.MakeCondition("0401020008")->m_bHasSelector, 1);
    EXPECT_EQ(catalogue_.MakeCondition("9999990008"), nullptr);
    const auto bare = catalogue_.MakeCondition("0801010008");  // in the tree, but without fields
    ASSERT_TRUE(bare);
    EXPECT_EQ(bare->m_pFields, nullptr);
}

TEST_F(CatalogueTest, SurvivesMalformedFiles) {
    catalogue_.Load(folder_.Path() / "nowhere", {});
    EXPECT_TRUE(catalogue_.Roots().empty());

    Load("[r]\nshort=;x;P99\n=;;\n0101010008\n0101010008=\n[r\nlost=a;1;C\n[r]\n[s]\n0101010008=s;1;C\n",
         "[0101010008]\n[0401020008]\nh=\n1=99999999999;;-99999999999;;999999999;-999999999;;1e9;1;nan;inf\n"
         "-5=60\nx=;;;;;;;;;;;;;;;;;;;;;;;;\n");
    ASSERT_EQ(catalogue_.FindFieldsByKey("0101010008")->size(), 1u);
    const FieldArray& fields = *catalogue_.FindFieldsByKey("0401020008");
    ASSERT_EQ(fields.size(), 4u);
    EXPECT_EQ(fields[1]->m_rcInit, (PanelRect{0, 32767, 1, -32767}));
    EXPECT_EQ(fields[1]->m_dMin, 0);
    EXPECT_EQ(fields[1]->m_dMax, 0);
    EXPECT_EQ(fields[2]->m_nId, 0);

    for (std::size_t length = 0; length < 60; ++length) {
        Load(test::kTreeText.substr(0, length), test::kFieldText.substr(0, length * 5));
        for (const auto& index : catalogue_.Indexes()) {
            catalogue_.MakeCondition(index->m_strKey)->BuildDescription();
        }
    }
}

TEST_F(CatalogueTest, TakesATree5000NodesDeep) {
    std::string tree = "[r]\n";
    for (int i = 0; i < 5000; ++i) tree += "0101" + std::to_string(100000 + i) + "=n;1;C\n";
    Load(tree, "");
    std::size_t depth = 0;
    for (const auto* nodes = &catalogue_.Roots(); !nodes->empty(); nodes = &nodes->front()->children) ++depth;
    EXPECT_EQ(depth, 5001u);
    Load("", "");
    EXPECT_TRUE(catalogue_.Roots().empty());
}

}  // namespace
}  // namespace jogeon
