// The strip below the pages that explains a setting: what it does, where it is, what is stored and what Apply will write.
#pragma once

#include "app/pending_review.h"
#include "app/setting_details.h"
#include "app/setting_names.h"
#include "ui/design.h"

class TDetailsStrip {
  public:
    /// Everything outlives the strip. `names` answers null while the settings cannot be told yet.
    TDetailsStrip(TPageContext& context, const TPendingReview& review,
                  std::function<const TSettingNames*()> names);

    [[nodiscard]] static TControlDesign Design();

    // The strip speaks of the setting with the focus, or that had it before the focus left the page that is shown; while the
    // pointer rests on another one, of that. Null = on no control.

    void FocusCame(TControl* control);
    void PointerRests(TControl* control);
    /// Says what is now stored and pending.
    void Refresh();

    /// What can be said of the control, or when it stands for no setting, of what the strip speaks of; empty without either.
    [[nodiscard]] std::wstring WholeOf(const TControl* control) const;

    /// Gives way when the window is low.
    void HeightChanged(int height);
    void SetShown(bool shown);

  private:
    [[nodiscard]] const TSetting* SettingOf(const TControl* control) const;
    [[nodiscard]] TDetails DetailsOf(const TSetting& setting) const;
    void Show(const TDetails& details);
    void ShowParts();

    TPageContext& FContext;
    const TPendingReview& FReview;
    std::function<const TSettingNames*()> FNames;
    TControl* FFocused = nullptr;
    TControl* FPointed = nullptr;
    std::optional<TDetails> FIdle;  ///< what the strip says of no setting
    int FHeight;                    ///< of the window
    bool FShown = true;
};
