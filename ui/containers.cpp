#include "ui/containers.h"

#include <algorithm>

void TNotebook::ShowPage(const std::wstring& name) {
    for (TControl* page : Children()) {
        if (page->Name() != name) continue;
        if (page == FActivePage) return;
        TControl* previous = FActivePage;
        FActivePage = page;
        UpdatePeer(TControlAspect::State);  // before the page is seen: its peer may have to be created
        page->SetVisible(true);
        if (previous != nullptr) previous->SetVisible(false);
        return;
    }
}

std::vector<TTabSheet*> TPageControl::OfferedSheets() const {
    std::vector<TTabSheet*> sheets;
    for (TControl* child : Children()) {
        auto* sheet = static_cast<TTabSheet*>(child);
        if (sheet->TabVisible()) sheets.push_back(sheet);
    }
    return sheets;
}

TTabSheet* TPageControl::ActiveSheet() const {
    if (FActiveSheet != nullptr && FActiveSheet->TabVisible()) return FActiveSheet;
    const std::vector<TTabSheet*> sheets = OfferedSheets();
    return sheets.empty() ? nullptr : sheets.front();
}

void TPageControl::StepSheet(bool backwards) {
    const std::vector<TTabSheet*> sheets = OfferedSheets();
    if (sheets.empty()) return;
    const auto active = std::find(sheets.begin(), sheets.end(), ActiveSheet());
    const auto index = static_cast<std::size_t>(active - sheets.begin());
    SetActiveSheet(*sheets[(index + (backwards ? sheets.size() - 1 : 1)) % sheets.size()]);
}

void TPageControl::SetActiveSheet(TTabSheet& sheet) {
    if (&sheet == FActiveSheet) return;
    FActiveSheet = &sheet;
    UpdatePeer(TControlAspect::State);
}

void TPageControl::SetTabVisible(TTabSheet& sheet, bool visible) {
    if (visible == sheet.FTabVisible) return;
    sheet.FTabVisible = visible;
    UpdatePeer(TControlAspect::Items);
}

void TCategoryItem::SetColor(TColor color) {
    if (color == FColor) return;
    FColor = color;
    UpdatePeer(TControlAspect::State);
}

void TCategoryItem::SetSelected(bool selected) {
    if (selected == FSelected) return;
    FSelected = selected;
    UpdatePeer(TControlAspect::State);
}
