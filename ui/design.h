// Forms as data: controls nested the way the user sees them. Positions are computed, so a design has none.
//
//   Sheet(L"TabSheet_Drives_Common", L"General", {
//       Group(L"GroupBox_Drives_Common_NTFS", L"NTFS file system", {
//           CheckBox(L"Checkbox_Drives_Common_NTFS_SaveLastVisitData", L"Record the time of the last access"),
//       }),
//       Buttons({Button(L"Button_Drives_Common_Default", L"&Default")}),
//   })
#pragma once

#include "ui/component.h"
#include "ui/layout_box.h"

#include <optional>

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
    int Position = 0;         ///< position, item index, interval, tag or number of frames, as the kind has it
    int WidthInCharacters = 0;  ///< of an edit; 0 = what the row leaves
    std::vector<std::wstring> Items;
    std::wstring Associate;  ///< of an up-down: the edit it belongs to
    std::wstring Picture;

    TControlDesign Hidden() && { IsVisible = false; return std::move(*this); }
    TControlDesign Disabled() && { IsEnabled = false; return std::move(*this); }
    TControlDesign Checked() && { IsChecked = true; return std::move(*this); }
    TControlDesign DigitsOnly() && { IsDigitsOnly = true; return std::move(*this); }
    TControlDesign Password() && { IsPassword = true; return std::move(*this); }
    TControlDesign Width(int characters) && { WidthInCharacters = characters; return std::move(*this); }
};

// Arrangements.
TControlDesign Column(TDesigns controls);
TControlDesign Row(TDesigns controls);
TControlDesign Buttons(TDesigns buttons);
TControlDesign Fields(TDesigns rows);
TControlDesign Indent(TDesigns controls);
TControlDesign Center(TDesigns controls);
TControlDesign Overlay(TDesigns controls);

// Containers.
TControlDesign NotebookPage(int tag, TDesigns content);
/// The tabs of a notebook page.
TControlDesign PageControl(std::wstring name, TDesigns sheets);
TControlDesign Sheet(std::wstring name, std::wstring caption, TDesigns content);
TControlDesign Group(std::wstring name, std::wstring caption, TDesigns content);
TControlDesign Panel(std::wstring name, TDesigns content);

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
TControlDesign ListView(std::wstring name, std::vector<std::wstring> columns);
TControlDesign Timer(std::wstring name, int milliseconds);

// The main window's navigation.
TControlDesign CategoryBar(std::wstring name, TDesigns groups);
TControlDesign CategoryGroup(std::wstring name, std::wstring caption, TDesigns items);
TControlDesign CategoryItem(std::wstring name, std::wstring caption, int tag, std::wstring picture);
TControlDesign Notebook(std::wstring name, TDesigns pages);
