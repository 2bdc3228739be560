// Creates the windows of notebook pages and of sheets, at once when they are shown, else while nothing else is to do; before
// that, what the form itself still lacks.
#pragma once

#include <vector>

class TControl;
class TFormWindow;

class TPageFiller {
  public:
    explicit TPageFiller(TFormWindow& form) : FForm(form) {}

    /// Notes what there is to create; called before the first window is.
    void Start();
    /// Creates what is to be seen of a notebook page, as far as it does not exist yet: its window, its content and that
    /// of its sheets.
    void CreatePage(TControl& page);
    /// Creates the content of the sheets in a container.
    static void FillSheets(const TControl& container);
    /// Creates or places some more controls; false when there is nothing left to do.
    bool CreateSome();
    /// Whether the notebook's first page, or what comes before it, is still being created.
    [[nodiscard]] bool CreatesFirstPage() const;

  private:
    bool CreateNext();

    TFormWindow& FForm;
    /// What comes late, then pages and sheets that may lack content; in the order of its creation.
    std::vector<TControl*> FUnfilled;
};
