#include "ui/design.h"

namespace {

TControlDesign Control(TComponentKind kind, const wchar_t* name, const wchar_t* caption = L"") {
    TControlDesign design;
    design.Kind = kind;
    design.Name = name;
    design.Caption = caption;
    return design;
}

TControlDesign Ranged(TControlDesign design, int min, int max, int position) {
    design.Min = min;
    design.Max = max;
    design.Position = position;
    return design;
}

}  // namespace

TControlDesign::TControlDesign() = default;
TControlDesign::TControlDesign(const TControlDesign& other) = default;
TControlDesign::TControlDesign(TControlDesign&& other) noexcept = default;
TControlDesign& TControlDesign::operator=(const TControlDesign& other) = default;
TControlDesign& TControlDesign::operator=(TControlDesign&& other) noexcept = default;
TControlDesign::~TControlDesign() = default;

TControlDesign&& TControlDesign::Hidden() && {
    IsVisible = false;
    return std::move(*this);
}

TControlDesign&& TControlDesign::Disabled() && {
    IsEnabled = false;
    return std::move(*this);
}

TControlDesign&& TControlDesign::Late() && {
    IsLate = true;
    return std::move(*this);
}

TControlDesign&& TControlDesign::Checked() && {
    IsChecked = true;
    return std::move(*this);
}

TControlDesign&& TControlDesign::FilteringKeys() && {
    FiltersKeys = true;
    return std::move(*this);
}

TControlDesign&& TControlDesign::Positive() && {
    IsPositive = true;
    return std::move(*this);
}

TControlDesign&& TControlDesign::Sender() && {
    IsSender = true;
    return std::move(*this);
}

TControlDesign&& TControlDesign::Width(int characters) && {
    WidthInCharacters = characters;
    return std::move(*this);
}

TControlDesign&& TControlDesign::Sharing(int share) && {
    Share = share;
    return std::move(*this);
}

TDesigns Collect(TControlDesign* const* designs, std::size_t count) {
    TDesigns collected;
    collected.reserve(count);
    for (std::size_t i = 0; i < count; ++i) collected.push_back(std::move(*designs[i]));
    return collected;
}

TControlDesign Arrangement(TLayoutKind layout, TDesigns content) {
    TControlDesign design;
    design.Layout = layout;
    design.Children = std::move(content);
    return design;
}

TControlDesign Container(TComponentKind kind, const wchar_t* name, const wchar_t* caption, TDesigns content) {
    TControlDesign design = Control(kind, name, caption);
    design.Children = std::move(content);
    return design;
}

TControlDesign SheetOf(const wchar_t* name, const wchar_t* caption, TDesigns content) {
    if (!content.empty() && content.back().Layout == TLayoutKind::Buttons)
        content.back().Layout = TLayoutKind::Foot;
    return Container(TComponentKind::TabSheet, name, caption, std::move(content));
}

TControlDesign GroupOf(const wchar_t* name, const wchar_t* caption, TDesigns content) {
    if (!content.empty() && content.back().Layout == TLayoutKind::Buttons)
        content.back().Layout = TLayoutKind::Row;
    return Container(TComponentKind::GroupBox, name, caption, std::move(content));
}

TControlDesign Label(const wchar_t* name, const wchar_t* caption) {
    return Control(TComponentKind::Label, name, caption);
}

TControlDesign CardLabel(const wchar_t* name, const wchar_t* caption, int lines, TTextLook look) {
    TControlDesign design = Label(name, caption);
    design.Lines = lines;
    design.Look = look;
    return design;
}

TControlDesign CheckBox(const wchar_t* name, const wchar_t* caption) {
    return Control(TComponentKind::CheckBox, name, caption);
}

TControlDesign RadioButton(const wchar_t* name, const wchar_t* caption) {
    return Control(TComponentKind::RadioButton, name, caption);
}

TControlDesign Button(const wchar_t* name, const wchar_t* caption) {
    return Control(TComponentKind::Button, name, caption);
}

TControlDesign Edit(const wchar_t* name, const wchar_t* text) {
    return Control(TComponentKind::Edit, name, text);
}

TControlDesign UpDown(const wchar_t* name, const wchar_t* edit, int min, int max, int position) {
    TControlDesign design = Ranged(Control(TComponentKind::UpDown, name), min, max, position);
    design.Associate = edit;
    return design;
}

TControlDesign TrackBar(const wchar_t* name, int min, int max, int position) {
    return Ranged(Control(TComponentKind::TrackBar, name), min, max, position);
}

TControlDesign ComboBox(const wchar_t* name, std::initializer_list<const wchar_t*> items) {
    return ComboBox(name, TItems(items.begin(), items.size()));
}

TControlDesign ComboBox(const wchar_t* name, TItems items) {
    TControlDesign design = Control(TComponentKind::ComboBox, name);
    design.Items.assign(items.begin(), items.end());
    return design;
}

TControlDesign ColorSwatch(const wchar_t* name, TColor color) {
    TControlDesign design = Control(TComponentKind::ColorSwatch, name);
    design.Position = static_cast<int>(color);
    return design;
}

TControlDesign Image(const wchar_t* name, const wchar_t* picture, int frames) {
    TControlDesign design = Control(TComponentKind::Image, name);
    design.Picture = picture;
    design.Position = frames;
    return design;
}

TControlDesign Image(const wchar_t* name, const wchar_t* picture, int width, int height) {
    TControlDesign design = Image(name, picture);
    design.PictureWidth = width;
    design.PictureHeight = height;
    return design;
}

TControlDesign ListView(const wchar_t* name, std::initializer_list<const wchar_t*> columns) {
    TControlDesign design = Control(TComponentKind::ListView, name);
    design.Items.assign(columns.begin(), columns.end());
    return design;
}

TControlDesign Table(const wchar_t* name, std::initializer_list<const wchar_t*> columns) {
    TControlDesign design = ListView(name, columns);
    design.IsTable = true;
    return design;
}

TControlDesign Timer(const wchar_t* name, int milliseconds) {
    TControlDesign design = Control(TComponentKind::Timer, name);
    design.Position = milliseconds;
    return design;
}

TControlDesign CategoryBar(const wchar_t* name, TDesigns groups) {
    return Container(TComponentKind::CategoryBar, name, L"", std::move(groups));
}

TControlDesign CategoryGroup(const wchar_t* name, const wchar_t* caption, TDesigns items) {
    return Container(TComponentKind::CategoryGroup, name, caption, std::move(items));
}

TControlDesign CategoryItem(const wchar_t* name, const wchar_t* caption, int tag, const wchar_t* picture) {
    TControlDesign design = Control(TComponentKind::CategoryItem, name, caption);
    design.Position = tag;
    design.Picture = picture;
    return design;
}

TControlDesign Notebook(const wchar_t* name, TDesigns pages) {
    return Container(TComponentKind::Notebook, name, L"", std::move(pages));
}
