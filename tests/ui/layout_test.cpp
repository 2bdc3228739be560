#include "ui/layout.h"

#include <map>

#include <gtest/gtest.h>

#include "tests/ui/fixed_metrics.h"
#include "ui/controls.h"
#include "ui/design.h"

namespace {

class TLaidOut {
  public:
    TLaidOut(TDesigns designs, const TRect& area, int dotsPerInch = 96) : FForm(L"Form", L"TForm") {
        for (const TControlDesign& design : designs) FForm.Build(FForm, design);
        const TFixedMetrics metrics(dotsPerInch);
        TLayout(FForm, metrics).Arrange(FForm, area, [this](TControl& control, const TRect& place) {
            EXPECT_TRUE(FPlaces.emplace(control.Name(), place).second) << "placed twice";
        });
    }

    const TRect& operator[](const std::wstring& name) const { return FPlaces.at(name); }
    bool Has(const std::wstring& name) const { return FPlaces.contains(name); }

    static int Right(const TRect& rect) { return rect.Left + rect.Width; }
    static int Bottom(const TRect& rect) { return rect.Top + rect.Height; }

    /// No control may touch another one, but for what contains others: a group box, and the edit of an up-down.
    void ExpectNoOverlap() const {
        for (const auto& [name, a] : FPlaces)
            for (const auto& [other, b] : FPlaces)
                EXPECT_TRUE(name >= other || Contains(name) || Contains(other) || Right(a) <= b.Left ||
                            Right(b) <= a.Left || Bottom(a) <= b.Top || Bottom(b) <= a.Top)
                    << testing::PrintToString(name) << " and " << testing::PrintToString(other);
    }

  private:
    bool Contains(const std::wstring& name) const {
        const auto* edit = FForm.Find<TEdit>(name);
        return FForm.Find(name)->Kind() == TComponentKind::GroupBox || (edit != nullptr && edit->HasUpDown());
    }

    TForm FForm;
    std::map<std::wstring, TRect> FPlaces;
};

const std::wstring kLongCaption(120, L'x');

TDesigns SettingsSheet() {
    return {
        Group(L"Group", L"A group", CheckBox(L"Short", L"Short"), CheckBox(L"Long", kLongCaption.c_str()),
              Indent(RadioButton(L"Inner", L"Depends on the box above")),
              Fields(
                  Row(Label(L"LabelA", L"A"), Edit(L"EditA").Width(5), UpDown(L"UpDownA", L"EditA", 0, 9, 0)),
                  Row(Label(L"LabelB", L"A longer label"), ComboBox(L"ComboB", {L"one", L"two"})),
                  Row(Label(L"LabelC", L"C"), ComboBox(L"ComboC", {L"a longer item"})))),
        CheckBox(L"Hidden", L"Hidden").Hidden(),
        Buttons(Button(L"Default", L"Default")),
    };
}

TEST(TLayoutTest, KeepsControlsApartAndInside) {
    for (const int dotsPerInch : {96, 120, 144, 192}) {
        for (const int width : {300, 520}) {
            const TRect area{11, 11, width * dotsPerInch / 96, 400 * dotsPerInch / 96};
            const TLaidOut laidOut(SettingsSheet(), area, dotsPerInch);
            laidOut.ExpectNoOverlap();
            const TRect& group = laidOut[L"Group"];
            EXPECT_EQ(group.Width, area.Width);
            for (const wchar_t* name : {L"Short", L"Long", L"Inner", L"LabelA", L"UpDownA", L"ComboB"})
                EXPECT_TRUE(laidOut[name].Left > group.Left &&
                            TLaidOut::Right(laidOut[name]) <= TLaidOut::Right(group) &&
                            TLaidOut::Bottom(laidOut[name]) <= TLaidOut::Bottom(group))
                    << testing::PrintToString(name);
            EXPECT_FALSE(laidOut.Has(L"Hidden"));
        }
    }
}

TEST(TLayoutTest, LinesUpWhatBelongsTogether) {
    const TLaidOut laidOut(SettingsSheet(), {0, 0, 400, 400});
    EXPECT_EQ(laidOut[L"EditA"].Left, laidOut[L"ComboB"].Left) << "fields begin in one column";
    EXPECT_EQ(laidOut[L"ComboB"].Width, laidOut[L"ComboC"].Width) << "lists are equally wide";
    EXPECT_EQ(TLaidOut::Right(laidOut[L"UpDownA"]) + kFieldFrame, TLaidOut::Right(laidOut[L"EditA"]))
        << "arrows stand within the frame of their edit";
    EXPECT_EQ(laidOut[L"UpDownA"].Top - kFieldFrame, laidOut[L"EditA"].Top);
    EXPECT_GT(laidOut[L"Inner"].Left, laidOut[L"Long"].Left) << "what depends on a box is set in";
    EXPECT_EQ(TLaidOut::Right(laidOut[L"Default"]), 400) << "buttons stand at the right";
    EXPECT_GT(laidOut[L"Long"].Height, laidOut[L"Short"].Height) << "long captions wrap";
}

TEST(TLayoutTest, CentresInBothDirections) {
    const TLaidOut laidOut({Center(Row(Label(L"A", L"AAAA"), Label(L"B", L"BB")))}, {0, 0, 300, 200});
    const int left = laidOut[L"A"].Left;
    const int right = 300 - TLaidOut::Right(laidOut[L"B"]);
    EXPECT_NEAR(left, right, 1);
    EXPECT_NEAR(laidOut[L"A"].Top, 200 - TLaidOut::Bottom(laidOut[L"A"]), 1);
}

TEST(TLayoutTest, GivesTheSpareRoomToTheNotebookAndCoversItWithThePanel) {
    const TRect area{8, 8, 700, 480};
    const TLaidOut laidOut(
        {Row(Column(
                 Edit(L"Find"),
                 CategoryBar(L"Bar", {CategoryGroup(L"G", L"Group", {CategoryItem(L"I", L"Item", 1, L"")})})),
             Column(Overlay(Notebook(L"Book", {}), Panel(L"Panel", Label(L"Wait", L"Wait"))),
                    Buttons(Button(L"Ok", L"OK"), Button(L"Cancel", L"Cancel"))))},
        area);
    const TRect& bar = laidOut[L"Bar"];
    const TRect& book = laidOut[L"Book"];
    EXPECT_EQ(laidOut[L"Find"].Top, area.Top);
    EXPECT_EQ(laidOut[L"Find"].Width, bar.Width);
    EXPECT_GT(bar.Top, TLaidOut::Bottom(laidOut[L"Find"]));
    EXPECT_EQ(TLaidOut::Bottom(bar), TLaidOut::Bottom(area));
    EXPECT_GT(book.Left, TLaidOut::Right(bar));
    EXPECT_EQ(TLaidOut::Right(book), TLaidOut::Right(area));
    EXPECT_EQ(book.Top, area.Top);
    EXPECT_LT(TLaidOut::Bottom(book), laidOut[L"Ok"].Top);
    EXPECT_EQ(TLaidOut::Bottom(laidOut[L"Cancel"]), TLaidOut::Bottom(area));
    EXPECT_EQ(laidOut[L"Panel"], book);
}

TEST(TLayoutTest, TablesShareTheHeightAndNeitherFallsShort) {
    for (const int height : {100, 250, 400, 1000}) {
        const TLaidOut laidOut({Column(Label(L"Label", L"Above"), Table(L"Two", {L"A"})).Sharing(2),
                                Table(L"Three", {L"A"}).Sharing(3), Buttons(Button(L"Close", L"Close"))},
                               {0, 0, 500, height});
        laidOut.ExpectNoOverlap();
        const double ratio = double(laidOut[L"Two"].Height) / laidOut[L"Three"].Height;
        EXPECT_NEAR(ratio, height < 250 ? 1 : 2.0 / 3, 0.1) << height;
        if (height >= 250) EXPECT_EQ(TLaidOut::Bottom(laidOut[L"Close"]), height);
    }
}

TEST(TLayoutTest, ButtonsAtBothEndsLeaveTheRightOnesWhereTheyAreAlone) {
    const auto right = [] { return Buttons(Button(L"Ok", L"OK"), Button(L"Apply", L"&Apply")); };
    for (const wchar_t* caption : {L"3 changes", L"A caption that needs much more room"}) {
        for (const int width : {250, 600}) {
            const TRect area{9, 9, width, 100};
            const TLaidOut alone({right()}, area);
            const TLaidOut both({Ends(Row(Button(L"Changes", caption), Button(L"History", L"Hi")), right())},
                                area);
            both.ExpectNoOverlap();
            EXPECT_EQ(both[L"Changes"].Left, area.Left);
            EXPECT_EQ(both[L"Apply"].Left, alone[L"Apply"].Left);
            EXPECT_EQ(both[L"Ok"].Left, alone[L"Ok"].Left);
            EXPECT_EQ(both[L"Ok"].Top == alone[L"Ok"].Top, width == 600);
        }
    }
}

TEST(TLayoutTest, ButtonsWithoutRoomBesideOneAnotherStandBelowOneAnother) {
    const wchar_t* caption = L"A caption that needs room";
    for (const int width : {250, 600}) {
        const TLaidOut laidOut({Buttons(Button(L"A", caption), Button(L"B", caption))}, {9, 9, width, 100});
        laidOut.ExpectNoOverlap();
        EXPECT_EQ(laidOut[L"A"].Top == laidOut[L"B"].Top, width == 600);
        EXPECT_EQ(TLaidOut::Right(laidOut[L"B"]), 9 + width);
    }
}

TEST(TLayoutTest, SharesAreFairAndUseTheTotalUp) {
    using TWidths = std::vector<int>;
    for (const auto& [wanted, total, shares] : {std::tuple(TWidths{50, 20, 30}, 200, TWidths{50, 20, 130}),
                                                {{500, 20, 300}, 220, {100, 20, 100}},
                                                {{500, 20, 90}, 220, {110, 20, 90}},
                                                {{7, 7}, 0, {0, 0}},
                                                {{}, 9, {}}})
        EXPECT_EQ(FairShares(wanted, total), shares);
}

}  // namespace
