#include "settings/captioned.h"

TControl& CaptionedBy(TControl& control) {
    const auto hasOwn = [](const TControl& c) {
        return c.Kind() == TComponentKind::CheckBox || c.Kind() == TComponentKind::RadioButton ||
               c.Kind() == TComponentKind::Button || c.Kind() == TComponentKind::Label;
    };
    if (hasOwn(control)) return control;
    TControl* captioned = control.Parent();
    for (TControl* sibling : control.Parent()->Children()) {
        if (sibling == &control) break;
        if (hasOwn(*sibling)) captioned = sibling;
    }
    return *captioned;
}

std::wstring PlainCaption(std::wstring caption) {
    std::erase(caption, L'&');
    if (!caption.empty() && caption.back() == L':') caption.pop_back();
    return caption;
}
