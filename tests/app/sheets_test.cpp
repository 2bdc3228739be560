// The grid that all sheets of the program stand on.
#include <map>
#include <set>

#include <gtest/gtest.h>

#include "app/folder_form.h"
#include "app/main_window.h"
#include "tests/fakes/fake_system.h"
#include "tests/ui/fixed_metrics.h"
#include "ui/layout.h"

namespace {

using TPlaces = std::map<const TControl*, TRect>;

int Right(const TRect& place) { return place.Left + place.Width; }
int Bottom(const TRect& place) { return place.Top + place.Height; }

bool IsField(const TControl& control) {
    using enum TComponentKind;
    return std::set{Edit, ComboBox, TrackBar, ColorSwatch}.contains(control.Kind());
}

/// Whether a text stands before the control, in its row.
bool HasTextBefore(const TControl& control, const TPlaces& places) {
    const TControl* before = nullptr;
    for (const TControl* sibling : control.Parent()->Children()) {
        if (sibling == &control) break;
        before = sibling;
    }
    if (before == nullptr || IsField(*before) || !places.contains(before)) return false;
    const TRect& text = places.at(before);
    return text.Top < Bottom(places.at(&control)) && places.at(&control).Top < Bottom(text);
}

class TSheets : public testing::Test {
  protected:
    TSheets() : Dialog(Window.Context(), None) {}

    static void Expect(const TForm& form, const TTabSheet& sheet, const TLayoutMetrics& metrics) {
        SCOPED_TRACE(testing::PrintToString(sheet.Name()));
        const TRect area{16, 12, metrics.Scale(516), metrics.Scale(900)};
        TPlaces places;
        TLayout(form, metrics).Arrange(sheet, area, [&](TControl& control, const TRect& place) {
            places[&control] = place;
        });
        std::set<int> columns;
        for (const auto& [control, place] : places) {
            SCOPED_TRACE(testing::PrintToString(control->Name()));
            EXPECT_LE(Right(place), Right(area));
            EXPECT_LE(Bottom(place), Bottom(area));
            const bool isInGroup = control->Parent() != &sheet;
            EXPECT_GE(place.Left, area.Left + (isInGroup ? metrics.Scale(14) : 0));
            if (control->Kind() == TComponentKind::GroupBox)
                EXPECT_EQ(std::pair(place.Left, place.Width), std::pair(area.Left, area.Width));
            if (IsField(*control) && HasTextBefore(*control, places)) columns.insert(place.Left);
            if (control->Kind() == TComponentKind::Button && control->Name().ends_with(L"Default"))
                EXPECT_EQ(std::tuple(place.Left, Bottom(place), isInGroup),
                          std::tuple(area.Left, Bottom(area), false));
        }
        EXPECT_LE(columns.size(), 1U) << "all fields begin in one column";
    }
    void ExpectAll(const TLayoutMetrics& metrics) {
        for (const TForm* form : {static_cast<TForm*>(&Window), static_cast<TForm*>(&Dialog)})
            for (const auto& component : form->Components())
                if (component->Kind() == TComponentKind::TabSheet)
                    Expect(*form, static_cast<const TTabSheet&>(*component), metrics);
    }

    TFakeSystem Fake;
    TQuilltune_FormMain Window{Fake.System};
    TLanguage None{Fake.System, L"Scanner"};
    TQuilltune_FormFolder Dialog;
};

TEST_F(TSheets, StandOnOneGridHoweverLongTheirTextsAre) {
    for (const int dotsPerInch : {96, 144})
        for (const int percent : {100, 170}) ExpectAll(TFixedMetrics(dotsPerInch, percent));
}

}  // namespace
