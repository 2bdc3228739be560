// The header above the notebook: which page is shown, and what it is for.
#pragma once

#include "settings/category_table.h"
#include "ui/containers.h"
#include "ui/form.h"

class TPageHeader {
  public:
    /// Both outlive the header.
    TPageHeader(const TForm& form, const TCaptions& captions) : FForm(form), FCaptions(captions) {}

    [[nodiscard]] static TControlDesign Design();

    /// Tells of the page that the category item leads to.
    void Show(const TCategoryItem& item);

    /// Gives way when the window is low.
    void HeightChanged(int height);

  private:
    const TForm& FForm;
    const TCaptions& FCaptions;
};
