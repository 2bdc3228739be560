#include "ui/spoken_name.h"

namespace {

bool ShowsCaption(const TControl& control) {
    return control.Kind() == TComponentKind::CheckBox || control.Kind() == TComponentKind::RadioButton ||
           control.Kind() == TComponentKind::Button || control.Kind() == TComponentKind::Label;
}

/// A label with a number says how a field stands, not what it is for.
bool ShowsValue(const TControl& control) {
    const std::wstring& caption = control.Caption();
    return control.Kind() == TComponentKind::Label && !caption.empty() && caption[0] >= L'0' &&
           caption[0] <= L'9';
}

template <typename TAnyControl>
TAnyControl& Captioned(TAnyControl& control) {
    if (ShowsCaption(control)) return control;
    TControl* captioned = control.Parent();
    for (TControl* sibling : control.Parent()->Children()) {
        if (sibling == &control) break;
        if (ShowsCaption(*sibling) && !ShowsValue(*sibling)) captioned = sibling;
    }
    return *captioned;
}

}  // namespace

TControl& CaptionedBy(TControl& control) { return Captioned(control); }

const TControl& CaptionedBy(const TControl& control) { return Captioned(control); }

std::wstring PlainCaption(std::wstring caption) {
    std::erase(caption, L'&');
    if (!caption.empty() && caption.back() == L':') caption.pop_back();
    return caption;
}

std::wstring SpokenName(const TControl& control) {
    switch (control.Kind()) {
        case TComponentKind::Edit:
        case TComponentKind::UpDown:
        case TComponentKind::TrackBar:
        case TComponentKind::ComboBox:
        case TComponentKind::ColorSwatch:
        case TComponentKind::ListView:
            return PlainCaption(control.Caption().empty() ? CaptionedBy(control).Caption()
                                                          : control.Caption());
        default:
            return {};
    }
}
