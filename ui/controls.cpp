#include "ui/controls.h"

#include <algorithm>
#include <optional>

#include "base/decimal.h"

namespace {

/// The text as a decimal number, blanks around it allowed; nothing when it is anything else.
std::optional<int> ToNumber(const std::wstring& text) {
    constexpr std::size_t kLongestNumber = 9;
    if (text.empty() || text.size() > kLongestNumber) return std::nullopt;
    int number = 0;
    for (const wchar_t c : text) {
        if (c < L'0' || c > L'9') return std::nullopt;
        number = number * 10 + static_cast<int>(c - L'0');
    }
    return number;
}

}  // namespace

void TCheckBox::SetChecked(bool checked) {
    if (checked == FChecked) return;
    FChecked = checked;
    UpdatePeer(TControlAspect::State);
    Fire(OnClick);
}

void TRadioButton::SetChecked(bool checked) {
    if (checked == FChecked) return;
    FChecked = checked;
    if (checked) ClearSiblings();
    UpdatePeer(TControlAspect::State);
    Fire(OnClick);
}

void TRadioButton::ClearSiblings() {
    if (Parent() == nullptr) return;
    for (TControl* control : Parent()->Children()) {
        if (control == this || control->Kind() != TComponentKind::RadioButton) continue;
        auto& sibling = static_cast<TRadioButton&>(*control);
        if (!sibling.FChecked) continue;
        sibling.FChecked = false;
        sibling.UpdatePeer(TControlAspect::State);
    }
}

void TEdit::SetText(const std::wstring& text) {
    if (text == FText) return;
    FText = text;
    if (FUpDown != nullptr) FUpDown->FollowText(text);
    UpdatePeer(TControlAspect::State);
    Fire(OnChange);
}

void TEdit::SetFocused(bool focused) {
    if (focused == FFocused) return;
    FFocused = focused;
    if (!focused) Fire(OnExit);
}

void TEdit::Commit() {
    if (!FFocused) return;
    FFocused = false;
    try {
        Fire(OnExit);
    } catch (...) {
        FFocused = true;
        throw;
    }
    FFocused = true;
}

TRangeControl::TRangeControl(TComponentKind kind, std::wstring name, int min, int max, int position)
    : TControl(kind, std::move(name)), FPosition(std::clamp(position, min, max)), FMin(min), FMax(max) {}

void TRangeControl::SetPosition(int position) {
    position = std::clamp(position, FMin, FMax);
    const bool isNew = position != FPosition;
    FPosition = position;
    PositionSet();
    if (!isNew) return;
    UpdatePeer(TControlAspect::State);
    Fire(OnChange);
}

void TUpDown::SetAssociate(TEdit& edit) {
    FAssociate = &edit;
    edit.FUpDown = this;
    PositionSet();
}

void TUpDown::PositionSet() {
    if (FAssociate != nullptr) FAssociate->SetText(DecimalText(FPosition));
}

void TUpDown::FollowText(const std::wstring& text) {
    const std::optional<int> number = ToNumber(text);
    if (!number || *number < Min() || *number > Max() || *number == FPosition) return;
    FPosition = *number;
    UpdatePeer(TControlAspect::State);
}

void TComboBox::SetItem(std::size_t index, const std::wstring& text) {
    if (index >= FItems.size() || FItems[index] == text) return;
    FItems[index] = text;
    UpdatePeer(TControlAspect::Items);
}

void TComboBox::SetItemIndex(int index) {
    if (index < 0 || index >= static_cast<int>(FItems.size())) index = -1;
    if (index == FItemIndex) return;
    FItemIndex = index;
    UpdatePeer(TControlAspect::State);
    Fire(OnChange);
}

void TComboBox::Reinitialise() {
    FItemIndex = FItems.empty() ? -1 : 0;
    UpdatePeer(TControlAspect::State);
}

void TColorSwatch::SetColor(TColor color) {
    if (color == FColor) return;
    FColor = color;
    UpdatePeer(TControlAspect::State);
}

void TImage::SetPicture(const std::wstring& picture) {
    if (picture == FPicture) return;
    FPicture = picture;
    UpdatePeer(TControlAspect::State);
}

void TImage::SetFrame(int frame) {
    if (frame == FFrame || frame < 0 || frame >= FFrames) return;
    FFrame = frame;
    UpdatePeer(TControlAspect::State);
}

void TListView::SetColumn(std::size_t index, const std::wstring& caption) {
    if (index >= FColumns.size() || FColumns[index] == caption) return;
    FColumns[index] = caption;
    UpdatePeer(TControlAspect::Caption);
}

void TListView::SetRows(std::vector<TRow> rows) {
    FRows = std::move(rows);
    const bool wereSelected = !FSelected.empty();
    FSelected.clear();
    FFocusedRow = -1;
    UpdatePeer(TControlAspect::Items);
    if (wereSelected) Fire(OnSelect);
}

void TListView::SetRowChecked(std::size_t index, bool checked) {
    if (index >= FRows.size() || FRows[index].Checked == checked) return;
    FRows[index].Checked = checked;
    UpdatePeer(TControlAspect::State);
    Fire(OnChange);
}

void TListView::SetSelected(const std::vector<std::size_t>& rows) {
    SetSelected(rows, rows.empty() ? FFocusedRow : static_cast<int>(rows.front()));
}

void TListView::SetSelected(const std::vector<std::size_t>& rows, int focusedRow) {
    FFocusedRow = focusedRow < static_cast<int>(FRows.size()) ? focusedRow : -1;
    std::set<std::size_t> selected(rows.begin(), rows.end());
    selected.erase(selected.lower_bound(FRows.size()), selected.end());
    if (selected == FSelected) return;
    FSelected = std::move(selected);
    UpdatePeer(TControlAspect::State);
    Fire(OnSelect);
}

void TListView::Open(std::size_t row) {
    if (row >= FRows.size()) return;
    FFocusedRow = static_cast<int>(row);
    Fire(OnOpen);
}
