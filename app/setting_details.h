// What there is to say of a setting: what it does, where it is, what is stored and what is going to be.
#pragma once

#include "engine/change_set.h"
#include "settings/catalogue.h"
#include "settings/page_context.h"

struct TDetails {
    std::wstring Title;
    std::wstring Text;
    std::wstring Places;  ///< each in two lines: where it is, and what is there
    std::wstring Notice;  ///< of what stands at the ends of these lines, what matters most

    [[nodiscard]] std::wstring Whole() const;

    bool operator==(const TDetails&) const = default;
};

/// The setting that a user sees in the control, which may be a label or a part of it; null when there is none.
[[nodiscard]] const TSetting* SettingIn(const TControl& control, const TCatalogue& catalogue);

/// `pending` are the changes of the form whose setting it is.
[[nodiscard]] TDetails DetailsOf(const TSetting& setting, const TPageContext& context,
                                 const std::vector<TChange>& pending);
