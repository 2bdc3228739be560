// Looks at the windows of controls for texts that are cut, and for controls that are not where the user sees all of them.
#pragma once

#include <set>

#include <gtest/gtest.h>

#include "platform/unicode.h"
#include "ui/containers.h"
#include "ui/win32/category_look.h"
#include "ui/win32/form_window.h"

class TTextCheck {
  public:
    explicit TTextCheck(const TFormWindow& form) : Form(form) {}
    ~TTextCheck() { DeleteDC(Target); }
    TTextCheck(const TTextCheck&) = delete;
    TTextCheck& operator=(const TTextCheck&) = delete;

    /// Looks at what is shown in a container.
    void Check(const TControl& container) {
        std::vector<TPlaced> placed;
        for (const TControl* child : container.Children()) CheckControl(*child, placed);
        for (const TPlaced& one : placed)
            for (const TPlaced& other : placed)
                if (RECT both{}; one.Control < other.Control && !MayCover(*one.Control, *other.Control) &&
                                 IntersectRect(&both, &one.Place, &other.Place))
                    Complain(*one.Control, "covers " + ToUtf8(other.Control->Name()));
    }

    [[nodiscard]] int Scale(int distance) const { return Form.Screen().Scale(distance); }

    std::string Where;     ///< begins each complaint
    int Checked = 0;       ///< controls
    bool IsTight = false;  ///< the texts have so little room that those of tabs and lists may be cut

  private:
    struct TPlaced {
        const TControl* Control;
        RECT Place;
    };

    // What Windows itself needs of a control, beside its text.
    static constexpr int kMark = 13 + 4;    // of a check box, with the space before its text; at 96 dots
    static constexpr int kButtonFrame = 8;  // left and right of a button's text; at 96 dots
    static constexpr int kFieldMargins = 2;
    static constexpr int kUnlimited = 1 << 20;
    static constexpr int kSlack = 3;        // Wine may make a combo box that much higher than it is told
    static constexpr int kLeastArrow = 12;  // so wide that it can be seen and hit; at 96 dots

    void Complain(const TControl& control, const std::string& what) {
        if (Told.insert({control.Name(), what}).second)
            ADD_FAILURE() << Where << ToUtf8(control.Name()) << " \"" << ToUtf8(control.Caption())
                          << "\": " << what;
    }

    void CheckControl(const TControl& control, std::vector<TPlaced>& placed) {
        if (!control.Visible() || control.Kind() == TComponentKind::Timer) return;
        const TWindowPeer* peer = PeerOf(control);
        if (peer == nullptr) return Complain(control, "has no window");
        if ((GetWindowLongW(peer->Handle(), GWL_STYLE) & WS_VISIBLE) == 0) return Complain(control, "hidden");
        ++Checked;
        const std::size_t index = placed.size();
        placed.push_back({&control, CheckPlace(control, peer->Handle())});
        CheckText(control, peer->Handle());
        switch (control.Kind()) {
            case TComponentKind::GroupBox:  // its controls are its neighbours
                for (const TControl* child : control.Children()) CheckControl(*child, placed);
                return CheckGroup(placed, index);
            case TComponentKind::Notebook:
                if (const TControl* page = static_cast<const TNotebook&>(control).ActivePage()) Check(*page);
                return;
            case TComponentKind::PageControl:
                if (const TControl* sheet = static_cast<const TPageControl&>(control).ActiveSheet())
                    Check(*sheet);
                return;
            default:
                return Check(control);
        }
    }

    /// A group box that was placed, and its controls behind it.
    void CheckGroup(const std::vector<TPlaced>& placed, std::size_t index) {
        const TPlaced& group = placed[index];
        const int title = Form.Screen().TextSize(L"0", kUnlimited).Height;
        for (std::size_t i = index + 1; i < placed.size(); ++i) {
            const RECT& place = placed[i].Place;
            if (place.top < group.Place.top + title || place.bottom > group.Place.bottom + kSlack)
                Complain(*group.Control, "does not go round " + ToUtf8(placed[i].Control->Name()));
        }
    }

    /// Sideways always; downwards where nothing scrolls. The answer is the place.
    RECT CheckPlace(const TControl& control, HWND window) {
        const HWND parent = GetParent(window);
        RECT place{};
        RECT room{};
        GetWindowRect(window, &place);
        GetClientRect(parent, &room);
        MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&place), 2);
        const bool scrolls = (GetWindowLongW(parent, GWL_STYLE) & WS_VSCROLL) != 0;
        if (place.left < 0 || place.right > room.right ||
            (!scrolls && (place.top < 0 || place.bottom > room.bottom)))
            Complain(control, "beyond what it lies in: " + std::to_string(place.left) + ".." +
                                  std::to_string(place.right) + " in " + std::to_string(room.right) + ", " +
                                  std::to_string(place.top) + ".." + std::to_string(place.bottom) + " in " +
                                  std::to_string(room.bottom));
        return place;
    }

    /// A group box is a frame only, and the arrows of a number stand within the frame of its edit.
    static bool MayCover(const TControl& one, const TControl& other) {
        const auto is = [&](TComponentKind a, TComponentKind b) {
            return one.Kind() == a && other.Kind() == b;
        };
        return one.Kind() == TComponentKind::GroupBox || other.Kind() == TComponentKind::GroupBox ||
               is(TComponentKind::Edit, TComponentKind::UpDown) ||
               is(TComponentKind::UpDown, TComponentKind::Edit);
    }

    void CheckText(const TControl& control, HWND window) {
        const TScreen& screen = Form.Screen();
        const TCategoryMetrics category(screen);
        RECT room{};
        GetClientRect(window, &room);
        const auto fits = [&](const std::wstring& text, int beside, bool wraps = false,
                              HFONT font = nullptr) {
            const int width = static_cast<int>(room.right - room.left) - beside;
            RECT area{0, 0, wraps ? width : 0, 0};
            SelectObject(Target, font != nullptr ? font : screen.Font());
            DrawTextW(Target, text.c_str(), static_cast<int>(text.size()), &area,
                      DT_CALCRECT | (wraps ? DT_WORDBREAK : DT_SINGLELINE));
            const auto compare = [&](const char* complaint, int needed, int there) {
                if (needed > there)
                    Complain(control, complaint + std::to_string(needed) + " in " + std::to_string(there));
            };
            compare("too narrow: ", static_cast<int>(area.right), width);
            compare("too low: ", static_cast<int>(area.bottom), static_cast<int>(room.bottom - room.top));
        };
        switch (control.Kind()) {
            case TComponentKind::CheckBox:
            case TComponentKind::RadioButton:
                return fits(control.Caption(), Scale(kMark), true);
            case TComponentKind::Button:
                return fits(control.Caption(), Scale(kButtonFrame));
            case TComponentKind::GroupBox:
                return fits(control.Caption(), 0, false, screen.BoldFont());
            case TComponentKind::CategoryGroup:
                return fits(control.Caption(), category.HeaderIndent + category.TextRight, false,
                            screen.BoldFont());
            case TComponentKind::CategoryItem:  // as it is when it is selected
                if (IsTight) return;
                return fits(control.Caption(), category.TextLeft + category.TextRight, false,
                            screen.BoldFont());
            case TComponentKind::Label:
                // Those of fixed lines are cut in a way of their own.
                if (static_cast<const TLabel&>(control).Lines == 0) fits(control.Caption(), 0, true);
                return;
            case TComponentKind::Edit: {
                fits(control.Caption(), kFieldMargins);
                const int digits = static_cast<const TEdit&>(control).WidthInCharacters;
                return fits(std::wstring(static_cast<std::size_t>(digits), L'0'), kFieldMargins);
            }
            case TComponentKind::UpDown:
                if (room.right < Scale(kLeastArrow)) Complain(control, "too narrow for its arrows");
                return;
            case TComponentKind::ComboBox: {
                if (IsTight) return;
                COMBOBOXINFO info{};
                info.cbSize = sizeof info;
                GetComboBoxInfo(window, &info);
                room = info.rcItem;
                for (const std::wstring& item : static_cast<const TComboBox&>(control).Items())
                    fits(item, kFieldMargins);
                return;
            }
            case TComponentKind::PageControl: {
                if (IsTight) return;
                RECT tab{};
                SendMessageW(window, TCM_GETITEMRECT, SendMessageW(window, TCM_GETITEMCOUNT, 0, 0) - 1,
                             reinterpret_cast<LPARAM>(&tab));
                if (tab.right > room.right) Complain(control, "too narrow for its tabs");
                return;
            }
            default:
                return;
        }
    }

    const TFormWindow& Form;
    HDC Target = CreateCompatibleDC(nullptr);
    std::set<std::pair<std::wstring, std::string>> Told;
};
