// The kinds of controls that hold others and let the user move between them.
#pragma once

#include "ui/color.h"
#include "ui/component.h"

/// One of a notebook's pages; its name is the page's number in decimal.
class TNotebookPage : public TControl {
  public:
    explicit TNotebookPage(std::wstring name) : TControl(TComponentKind::NotebookPage, std::move(name)) {
        SetVisible(false);
    }

    TNotifyEvent OnCreate;  ///< before the page gets its windows
};

/// A stack of pages of which one is visible; something else chooses which.
class TNotebook : public TControl {
  public:
    explicit TNotebook(std::wstring name) : TControl(TComponentKind::Notebook, std::move(name)) {}

    /// Shows the page of that name and hides the one shown before; an unknown name changes nothing.
    void ShowPage(const std::wstring& name);
    [[nodiscard]] TControl* ActivePage() const { return FActivePage; }

  private:
    TControl* FActivePage = nullptr;
};

/// A page under a tab.
class TTabSheet : public TControl {
  public:
    explicit TTabSheet(std::wstring name) : TControl(TComponentKind::TabSheet, std::move(name)) {}

    /// Whether the sheet's tab is offered at all.
    [[nodiscard]] bool TabVisible() const { return FTabVisible; }

  private:
    friend class TPageControl;
    bool FTabVisible = true;
};

/// A row of tabs, each with its sheet. Its children are tab sheets.
class TPageControl : public TControl {
  public:
    explicit TPageControl(std::wstring name) : TControl(TComponentKind::PageControl, std::move(name)) {}

    /// The chosen sheet; the first visible one as long as nothing else was chosen, null when there is none.
    [[nodiscard]] TTabSheet* ActiveSheet() const;
    void SetActiveSheet(TTabSheet& sheet);
    /// Chooses the sheet after (or before) the chosen one among those offered, round and round.
    void StepSheet(bool backwards);
    /// The sheets that have a tab, in order.
    [[nodiscard]] std::vector<TTabSheet*> OfferedSheets() const;
    void SetTabVisible(TTabSheet& sheet, bool visible);

  private:
    TTabSheet* FActiveSheet = nullptr;
};

class TCategoryBar : public TControl {
  public:
    explicit TCategoryBar(std::wstring name) : TControl(TComponentKind::CategoryBar, std::move(name)) {}
};

/// A headed group of category items, which are its children.
class TCategoryGroup : public TControl {
  public:
    explicit TCategoryGroup(std::wstring name) : TControl(TComponentKind::CategoryGroup, std::move(name)) {}
};

/// An item of the category bar: a picture and a caption that lead to a page.
class TCategoryItem : public TControl {
  public:
    TCategoryItem(std::wstring name, int tag, std::wstring picture)
        : TControl(TComponentKind::CategoryItem, std::move(name)), FTag(tag), FPicture(std::move(picture)) {}

    [[nodiscard]] int Tag() const { return FTag; }
    [[nodiscard]] const std::wstring& Picture() const { return FPicture; }

    /// The colour of the caption.
    [[nodiscard]] TColor Color() const { return FColor; }
    void SetColor(TColor color);
    /// Whether the item has the look of the chosen one.
    [[nodiscard]] bool Selected() const { return FSelected; }
    void SetSelected(bool selected);

    void Click() { Fire(OnClick); }

    TNotifyEvent OnClick;

  private:
    int FTag;
    std::wstring FPicture;
    TColor FColor = 0;
    bool FSelected = false;
};
