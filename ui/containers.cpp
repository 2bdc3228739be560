#include "ui/containers.h"

void TNotebook::ShowPage(const std::wstring& name) {
    for (TControl* page : Children()) {
        if (page->Name() != name) continue;
        if (page == FActivePage) return;
        TControl* previous = FActivePage;
        FActivePage = page;
        page->SetVisible(true);
        if (previous != nullptr) previous->SetVisible(false);
        return;
    }
}

TTabSheet* TPageControl::ActiveSheet() const {
    if (FActiveSheet != nullptr && FActiveSheet->TabVisible()) return FActiveSheet;
    for (TControl* child : Children()) {
        auto* sheet = static_cast<TTabSheet*>(child);
        if (sheet->TabVisible()) return sheet;
    }
    return nullptr;
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
