// What settings are called when they are spoken of outside of their pages.
#pragma once

#include "engine/change_set.h"
#include "settings/catalogue.h"

/// The page and the sheet that the setting stands on.
[[nodiscard]] std::wstring SheetWords(const TSetting& setting);

class TSettingNames {
  public:
    /// `language` and `system` outlive the object.
    TSettingNames(TSystem& system, const TLanguage& language, TRelease release);

    [[nodiscard]] TCatalogue& Catalogue() { return FCatalogue; }
    [[nodiscard]] const TCatalogue& Catalogue() const { return FCatalogue; }

    /// The caption with page and sheet; of what is no setting the name itself.
    [[nodiscard]] std::wstring operator[](const std::wstring& setting) const;

    /// All that the operations name, each once and in their order.
    [[nodiscard]] std::wstring Of(const TChangeSet& operations) const;

    /// Names the settings of operations that name none, by their places, and with them whether Windows must restart.
    void Attribute(TChangeSet& operations) const;

  private:
    TCatalogue FCatalogue;
};
