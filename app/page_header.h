// The header above the notebook: which page is shown, and what it is for.
#pragma once

#include "settings/category_table.h"
#include "settings/page_context.h"
#include "ui/containers.h"
#include "ui/form.h"

class TPageHeader {
  public:
    /// The context outlives the header.
    explicit TPageHeader(const TPageContext& context) : FContext(context) {}

    [[nodiscard]] static TControlDesign Design();

    /// Tells of the page that the category item leads to and that is loaded: what it is for, or what on it cannot be
    /// changed for want of rights.
    void Show(const TCategoryItem& item);

    /// Gives way when the window is low.
    void HeightChanged(int height) const;

  private:
    const TPageContext& FContext;
};
