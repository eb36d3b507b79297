// The three layouts on the real controls: every rectangle, what is hidden, and the ways between them.
#include <QAbstractButton>
#include <QTreeWidget>
#include <fstream>
#include <sstream>

#include <gtest/gtest.h>

#include "screen/files/profile_text.h"
#include "tests/screen/support/test_host.h"

namespace jogeon::test {
namespace {

struct Row {
    int id;
    QRect normal;
    QRect resultsOnly;  // none: hidden
    QRect large;
};

// The result grid's width is that of the view it follows.
constexpr QRect kHidden;
constexpr Row kRows[] = {
    {21041, {6, 3, 20, 20}, kHidden, {6, 3, 20, 20}},
    {21019, {30, 3, 417, 20}, kHidden, {30, 3, 417, 20}},
    {22017, {451, 3, 62, 20}, kHidden, {451, 3, 62, 20}},
    {22018, {515, 3, 58, 20}, kHidden, {515, 3, 58, 20}},
    {21021, {6, 26, 58, 20}, kHidden, {6, 26, 58, 20}},
    {21024, {66, 26, 62, 20}, kHidden, {66, 26, 62, 20}},
    {21025, {130, 26, 82, 20}, kHidden, {130, 26, 82, 20}},
    {21023, {214, 26, 76, 20}, kHidden, {214, 26, 76, 20}},
    {21022, {292, 26, 62, 20}, kHidden, {292, 26, 62, 20}},
    {21028, {468, 26, 52, 20}, kHidden, {468, 26, 52, 20}},
    {21029, {522, 26, 52, 20}, kHidden, {522, 26, 52, 20}},
    {21002, {8, 51, 563, 96}, kHidden, {8, 51, 563, 96}},
    {17042, {6, 152, 58, 20}, kHidden, {6, 152, 58, 20}},
    {21030, {66, 152, 62, 20}, kHidden, {66, 152, 62, 20}},
    {21036, {130, 152, 22, 20}, kHidden, {130, 152, 22, 20}},
    {21043, {154, 152, 22, 20}, kHidden, {154, 152, 22, 20}},
    {21027, {182, 152, 323, 20}, kHidden, {182, 152, 323, 20}},
    {21026, {509, 152, 64, 20}, kHidden, {509, 152, 64, 20}},
    {21058, {6, 175, 567, 90}, kHidden, {6, 175, 567, 188}},
    {21031, {6, 268, 48, 22}, kHidden, {6, 366, 48, 22}},
    {21089, {56, 268, 345, 22}, kHidden, {56, 366, 345, 22}},
    {21033, {403, 268, 20, 22}, kHidden, {403, 366, 20, 22}},
    {21100, {425, 268, 20, 22}, kHidden, {425, 366, 20, 22}},
    {21034, {447, 268, 26, 22}, kHidden, {447, 366, 26, 22}},
    {21040, {475, 268, 30, 22}, kHidden, {475, 366, 30, 22}},
    {21035, {507, 268, 20, 22}, kHidden, {507, 366, 20, 22}},
    {21037, {529, 268, 20, 22}, kHidden, {529, 366, 20, 22}},
    {21038, {551, 268, 22, 22}, kHidden, {551, 366, 22, 22}},
    {21098, {6, 298, 94, 26}, {6, 3, 94, 26}, {6, 396, 94, 26}},
    {21039, {102, 298, 62, 26}, {102, 3, 62, 26}, {102, 396, 62, 26}},
    {21046, {166, 298, 46, 26}, {166, 3, 46, 26}, {166, 396, 46, 26}},
    {21047, {214, 298, 52, 26}, {214, 3, 52, 26}, {214, 396, 52, 26}},
    {21048, {268, 298, 82, 26}, {268, 3, 82, 26}, {268, 396, 82, 26}},
    {21049, {352, 298, 28, 26}, {352, 3, 28, 26}, {352, 396, 28, 26}},
    {21050, {382, 298, 64, 26}, {382, 3, 64, 26}, {382, 396, 64, 26}},
    {21164, {448, 298, 78, 26}, {448, 3, 78, 26}, {448, 396, 78, 26}},
    {21051, {528, 298, 22, 26}, {528, 3, 22, 26}, {528, 396, 22, 26}},
    {21133, {552, 298, 21, 26}, {552, 3, 21, 26}, {552, 396, 21, 26}},
    {21104, {6, 332, 567, 174}, {6, 37, 567, 469}, {6, 430, 567, 76}},
    {21105, {6, 506, 567, 20}, {6, 506, 567, 20}, {6, 506, 567, 20}},
    {21042, {6, 528, 54, 18}, {6, 528, 54, 18}, {6, 528, 54, 18}},
    {21044, {62, 529, 226, 16}, {62, 529, 226, 16}, {62, 529, 226, 16}},
    {21055, {300, 528, 82, 18}, {300, 528, 82, 18}, {300, 528, 82, 18}},
    {21054, {384, 528, 50, 18}, {384, 528, 50, 18}, {384, 528, 50, 18}},
    {21053, {452, 528, 58, 18}, {452, 528, 58, 18}, {452, 528, 58, 18}},
    {21052, {512, 528, 61, 18}, {512, 528, 61, 18}, {512, 528, 61, 18}},
};

class ScreenLayoutTest : public testing::Test {
protected:
    void OpenIn(const std::string& mode) {
        WriteProfileText(host.SettingsFile(), "SaveIndex", "Expand", mode);
        host.Open();
        QApplication::processEvents();
    }

    void OpenSet() {
        auto& tree = host.Control<QTreeWidget>(21001);
        const QTreeWidgetItem* firm = tree.topLevelItem(tree.topLevelItemCount() - 1);
        emit tree.itemDoubleClicked(firm->child(0), 0);
    }

    void Press(int button) { host.Control<QAbstractButton>(button).click(); }
    bool Visible(int id) { return host.Control<QWidget>(id).isVisible(); }

    // Every control as the table has it, the panel shown or not; and nothing over anything else.
    void Expect(int mode, bool panelShown = false) {
        SCOPED_TRACE("mode " + std::to_string(mode));
        for (const Row& row : kRows) {
            SCOPED_TRACE(row.id);
            const QRect& rect = mode == 2 ? row.resultsOnly : mode == 0 ? row.large : row.normal;
            const QWidget& control = host.Control<QWidget>(row.id);
            EXPECT_EQ(rect.isValid() && (row.id != 21002 || panelShown), control.isVisible());
            if (!rect.isValid()) continue;
            EXPECT_EQ(rect, control.geometry());
        }
        EXPECT_EQ(mode == 2 ? "▼" : "▲", host.Control<QAbstractButton>(21133).text());
        ExpectNothingOverlaps();
    }

    void ExpectNothingOverlaps() {
        std::vector<const QWidget*> shown;
        for (const Row& row : kRows) {
            if (Visible(row.id)) shown.push_back(&host.Control<QWidget>(row.id));
        }
        for (std::size_t i = 0; i < shown.size(); ++i) {
            const QString name = shown[i]->objectName();
            EXPECT_TRUE(QRect(0, 0, 579, 548).contains(shown[i]->geometry())) << name.toStdString();
            for (std::size_t j = i + 1; j < shown.size(); ++j) {
                EXPECT_FALSE(shown[i]->geometry().intersects(shown[j]->geometry()))
                    << (name + " and " + shown[j]->objectName()).toStdString();
            }
        }
    }

    std::string Expand(const char* user = "trader") {
        return ReadProfileText(host.folder.Path() / "User" / (std::string(user) + "_SaveIndex0.dat"),
                               "SaveIndex", "Expand", "none");
    }

    TestHost host;
};

TEST_F(ScreenLayoutTest, TheButtonGoesRoundTheThreeLayouts) {
    host.Open();
    QApplication::processEvents();
    Expect(1);
    for (const int mode : {2, 0, 1, 2, 0, 1}) {
        Press(21133);
        Expect(mode);
        EXPECT_EQ(std::to_string(mode), Expand());
    }
}

TEST_F(ScreenLayoutTest, AStartGoesStraightToTheLayoutThatWasLeftAndWritesNothing) {
    struct Start {
        const char* text;
        int mode;
        int next;
    };
    for (const Start& start : {Start{"2", 2, 0}, {"0", 0, 1}, {"1", 1, 2}, {"7", 1, 2}, {"x", 0, 1}}) {
        SCOPED_TRACE(start.text);
        OpenIn(start.text);
        Expect(start.mode);
        EXPECT_EQ(start.text, Expand());
        Press(21133);
        Expect(start.next);
        host.Close();
        EXPECT_EQ(std::to_string(start.next), Expand());
    }
}

TEST_F(ScreenLayoutTest, TheLayoutIsKeptForWhoeverIsLoggedOnAtTheChange) {
    OpenIn("1");
    host.links.tags[{"SharedMainKey", "USER_ID"}] = "other";
    Press(21133);
    EXPECT_EQ("1", Expand());
    EXPECT_EQ("2", Expand("other"));
}

TEST_F(ScreenLayoutTest, ThePanelComesBackOnlyWithACondition) {
    OpenIn("1");
    OpenSet();
    Expect(1, true);
    Press(21133);
    Expect(2);
    Press(21133);
    Expect(0, true);
    EXPECT_TRUE(Visible(31050));
    EXPECT_TRUE(Visible(31051));

    // In the layout without conditions nothing brings the panel up, neither a set nor an indicator.
    Press(21133);
    Press(21021);
    Press(21133);
    OpenSet();
    EXPECT_FALSE(Visible(21002));
    auto& tree = host.Control<QTreeWidget>(21001);
    const auto found = tree.findItems("적삼병", Qt::MatchExactly | Qt::MatchRecursive);
    ASSERT_EQ(1, found.size());
    emit tree.itemClicked(found[0], 0);
    host::SendMessage(host::HandleOf(&host.Screen()), host::kPanelAdd, 0, 0);
    Expect(2);
    Press(21133);
    Expect(0, true);
}

TEST_F(ScreenLayoutTest, TheEnlargedExpressionBoxTakesThePlaceOfTheButtonRow) {
    for (const char* mode : {"1", "0"}) {
        SCOPED_TRACE(mode);
        OpenIn(mode);
        auto& box = host.Control<QWidget>(21089);
        const QRect before = box.geometry();
        Press(21033);
        EXPECT_EQ(before.adjusted(0, 0, 0, 40), box.geometry());
        EXPECT_EQ("▲", host.Control<QAbstractButton>(21033).text());
        for (const int id : {21098, 21039, 21046, 21047, 21048, 21049, 21050, 21051, 21133, 21164}) {
            EXPECT_FALSE(Visible(id)) << id;
        }
        ExpectNothingOverlaps();
        Press(21033);
        Expect(*mode - '0');
        EXPECT_EQ("▼", host.Control<QAbstractButton>(21033).text());
        host.Close();
    }
}

TEST_F(ScreenLayoutTest, NoOrderOfChangesLeavesAControlBehind) {
    OpenIn("1");
    Press(21033);
    Press(21133);  // out of sight, and pressed by no mouse
    Expect(2);
    host.Screen().resize(400, 548);
    EXPECT_EQ(QRect(6, 37, 394, 469), host.Control<QWidget>(21104).geometry());
    Press(21133);
    EXPECT_EQ(QRect(6, 430, 394, 76), host.Control<QWidget>(21104).geometry());
    Press(21133);
    Press(21133);  // the rectangles are taken from a narrow grid
    host.Screen().resize(1000, 700);
    Expect(2);
    Press(21133);
    Expect(0);
    Press(21133);
    Expect(1);
}

}  // namespace
}  // namespace jogeon::test
