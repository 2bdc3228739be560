#include "ui/design.h"

namespace {

TControlDesign Control(TComponentKind kind, std::wstring name, std::wstring caption = {}) {
    TControlDesign design;
    design.Kind = kind;
    design.Name = std::move(name);
    design.Caption = std::move(caption);
    return design;
}

TControlDesign Ranged(TControlDesign design, int min, int max, int position) {
    design.Min = min;
    design.Max = max;
    design.Position = position;
    return design;
}

}  // namespace

TControlDesign Arrangement(TLayoutKind layout, TDesigns content) {
    TControlDesign design;
    design.Layout = layout;
    design.Children = std::move(content);
    return design;
}

TControlDesign Container(TComponentKind kind, std::wstring name, std::wstring caption, TDesigns content) {
    TControlDesign design = Control(kind, std::move(name), std::move(caption));
    design.Children = std::move(content);
    return design;
}

TControlDesign Label(std::wstring name, std::wstring caption) {
    return Control(TComponentKind::Label, std::move(name), std::move(caption));
}

TControlDesign CheckBox(std::wstring name, std::wstring caption) {
    return Control(TComponentKind::CheckBox, std::move(name), std::move(caption));
}

TControlDesign RadioButton(std::wstring name, std::wstring caption) {
    return Control(TComponentKind::RadioButton, std::move(name), std::move(caption));
}

TControlDesign Button(std::wstring name, std::wstring caption) {
    return Control(TComponentKind::Button, std::move(name), std::move(caption));
}

TControlDesign Edit(std::wstring name, std::wstring text) {
    return Control(TComponentKind::Edit, std::move(name), std::move(text));
}

TControlDesign UpDown(std::wstring name, std::wstring edit, int min, int max, int position) {
    TControlDesign design = Ranged(Control(TComponentKind::UpDown, std::move(name)), min, max, position);
    design.Associate = std::move(edit);
    return design;
}

TControlDesign TrackBar(std::wstring name, int min, int max, int position) {
    return Ranged(Control(TComponentKind::TrackBar, std::move(name)), min, max, position);
}

TControlDesign ComboBox(std::wstring name, std::vector<std::wstring> items) {
    TControlDesign design = Control(TComponentKind::ComboBox, std::move(name));
    design.Items = std::move(items);
    return design;
}

TControlDesign ColorSwatch(std::wstring name) {
    return Control(TComponentKind::ColorSwatch, std::move(name));
}

TControlDesign Image(std::wstring name, std::wstring picture, int frames) {
    TControlDesign design = Control(TComponentKind::Image, std::move(name));
    design.Picture = std::move(picture);
    design.Position = frames;
    return design;
}

TControlDesign Image(std::wstring name, std::wstring picture, int width, int height) {
    TControlDesign design = Image(std::move(name), std::move(picture));
    design.PictureWidth = width;
    design.PictureHeight = height;
    return design;
}

TControlDesign ListView(std::wstring name, std::vector<std::wstring> columns) {
    TControlDesign design = Control(TComponentKind::ListView, std::move(name));
    design.Items = std::move(columns);
    return design;
}

TControlDesign Timer(std::wstring name, int milliseconds) {
    TControlDesign design = Control(TComponentKind::Timer, std::move(name));
    design.Position = milliseconds;
    return design;
}

TControlDesign CategoryBar(std::wstring name, TDesigns groups) {
    return Container(TComponentKind::CategoryBar, std::move(name), {}, std::move(groups));
}

TControlDesign CategoryGroup(std::wstring name, std::wstring caption, TDesigns items) {
    return Container(TComponentKind::CategoryGroup, std::move(name), std::move(caption), std::move(items));
}

TControlDesign CategoryItem(std::wstring name, std::wstring caption, int tag, std::wstring picture) {
    TControlDesign design = Control(TComponentKind::CategoryItem, std::move(name), std::move(caption));
    design.Position = tag;
    design.Picture = std::move(picture);
    return design;
}

TControlDesign Notebook(std::wstring name, TDesigns pages) {
    return Container(TComponentKind::Notebook, std::move(name), {}, std::move(pages));
}
