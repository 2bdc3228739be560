// Forms as data: controls nested the way the user sees them. Positions are computed, so a design has none.
//
//   Sheet(L"TabSheet_Drives_Common", L"General",
//         Group(L"GroupBox_Drives_Common_NTFS", L"NTFS file system",
//               CheckBox(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData", L"Record the last access")),
//         Buttons(Button(L"Button_Drives_Common_Default", L"&Default")))
#pragma once

#include <optional>

#include "ui/component.h"
#include "ui/layout_box.h"

struct TControlDesign;
using TDesigns = std::vector<TControlDesign>;

/// One control of a form, or (when `Kind` is absent) an arrangement of controls that is no control itself.
struct TControlDesign {
    std::optional<TComponentKind> Kind;
    TLayoutKind Layout = TLayoutKind::Control;
    std::wstring Name;
    std::wstring Caption;  ///< in English; for an edit its text
    TDesigns Children;

    bool IsVisible = true;
    bool IsEnabled = true;
    bool IsChecked = false;
    bool IsDigitsOnly = false;
    bool IsPassword = false;
    int Min = 0;
    int Max = 100;
    int Position = 0;  ///< position, item index, interval, tag or number of frames, as the kind has it
    int WidthInCharacters = 0;  ///< of an edit; 0 = what the row leaves
    std::vector<std::wstring> Items;
    std::wstring Associate;  ///< of an up-down: the edit it belongs to
    std::wstring Picture;
    int PictureWidth = 32;  ///< at 96 dots per inch
    int PictureHeight = 32;

    TControlDesign Hidden() && {
        IsVisible = false;
        return std::move(*this);
    }
    TControlDesign Disabled() && {
        IsEnabled = false;
        return std::move(*this);
    }
    TControlDesign Checked() && {
        IsChecked = true;
        return std::move(*this);
    }
    TControlDesign DigitsOnly() && {
        IsDigitsOnly = true;
        return std::move(*this);
    }
    TControlDesign Password() && {
        IsPassword = true;
        return std::move(*this);
    }
    TControlDesign Width(int characters) && {
        WidthInCharacters = characters;
        return std::move(*this);
    }
};

/// What the functions below are made of: a container or arrangement with its content.
TControlDesign Arrangement(TLayoutKind layout, TDesigns content);
TControlDesign Container(TComponentKind kind, std::wstring name, std::wstring caption, TDesigns content);

template <typename... TContent>
TDesigns Designs(TContent... content) {
    TDesigns designs;
    designs.reserve(sizeof...(content));
    (designs.push_back(std::move(content)), ...);
    return designs;
}

// Arrangements.
template <typename... TContent>
TControlDesign Column(TContent... content) {
    return Arrangement(TLayoutKind::Column, Designs(std::move(content)...));
}
template <typename... TContent>
TControlDesign Row(TContent... content) {
    return Arrangement(TLayoutKind::Row, Designs(std::move(content)...));
}
template <typename... TContent>
TControlDesign Buttons(TContent... content) {
    return Arrangement(TLayoutKind::Buttons, Designs(std::move(content)...));
}
template <typename... TContent>
TControlDesign Fields(TContent... rows) {
    return Arrangement(TLayoutKind::Fields, Designs(std::move(rows)...));
}
template <typename... TContent>
TControlDesign Indent(TContent... content) {
    return Arrangement(TLayoutKind::Indent, Designs(std::move(content)...));
}
template <typename... TContent>
TControlDesign Center(TContent... content) {
    return Arrangement(TLayoutKind::Center, Designs(std::move(content)...));
}
template <typename... TContent>
TControlDesign Overlay(TContent... content) {
    return Arrangement(TLayoutKind::Overlay, Designs(std::move(content)...));
}

// Containers.
template <typename... TContent>
TControlDesign NotebookPage(int tag, TContent... content) {
    return Container(TComponentKind::NotebookPage, std::to_wstring(tag), {}, Designs(std::move(content)...));
}
/// The tabs of a notebook page.
template <typename... TSheets>
TControlDesign PageControl(std::wstring name, TSheets... sheets) {
    return Container(TComponentKind::PageControl, std::move(name), {}, Designs(std::move(sheets)...));
}
template <typename... TContent>
TControlDesign Sheet(std::wstring name, std::wstring caption, TContent... content) {
    return Container(TComponentKind::TabSheet, std::move(name), std::move(caption),
                     Designs(std::move(content)...));
}
template <typename... TContent>
TControlDesign Group(std::wstring name, std::wstring caption, TContent... content) {
    return Container(TComponentKind::GroupBox, std::move(name), std::move(caption),
                     Designs(std::move(content)...));
}
template <typename... TContent>
TControlDesign Panel(std::wstring name, TContent... content) {
    return Container(TComponentKind::Panel, std::move(name), {}, Designs(std::move(content)...));
}

// Controls.
TControlDesign Label(std::wstring name, std::wstring caption);
TControlDesign CheckBox(std::wstring name, std::wstring caption);
TControlDesign RadioButton(std::wstring name, std::wstring caption);
TControlDesign Button(std::wstring name, std::wstring caption);
TControlDesign Edit(std::wstring name, std::wstring text = {});
/// Stands right after its edit.
TControlDesign UpDown(std::wstring name, std::wstring edit, int min, int max, int position);
TControlDesign TrackBar(std::wstring name, int min, int max, int position);
TControlDesign ComboBox(std::wstring name, std::vector<std::wstring> items);
TControlDesign ColorSwatch(std::wstring name);
TControlDesign Image(std::wstring name, std::wstring picture, int frames = 1);
/// An image that is no icon, of that many dots at 96 per inch.
TControlDesign Image(std::wstring name, std::wstring picture, int width, int height);
TControlDesign ListView(std::wstring name, std::vector<std::wstring> columns);
TControlDesign Timer(std::wstring name, int milliseconds);

// The main window's navigation.
TControlDesign CategoryBar(std::wstring name, TDesigns groups);
TControlDesign CategoryGroup(std::wstring name, std::wstring caption, TDesigns items);
TControlDesign CategoryItem(std::wstring name, std::wstring caption, int tag, std::wstring picture);
TControlDesign Notebook(std::wstring name, TDesigns pages);
