// The field that finds settings, and the list of what it has found, which lies over the notebook while text is in the field.
#pragma once

#include <set>

#include "settings/captions.h"
#include "settings/catalogue.h"
#include "ui/controls.h"
#include "ui/design.h"
#include "ui/form.h"

/// What the field asks of the window that it stands in.
struct TFindHost {
    std::function<TCatalogue&()> Catalogue;  ///< may take a while when it is first asked for
    /// Opens page and sheet of the setting and gives its control the focus.
    std::function<void(const std::wstring& setting)> GoTo;
};

class TFindBox {
  public:
    // Its parts of the window's design: the field, the list, which shares the notebook's place, and timers.
    [[nodiscard]] static TControlDesign FieldDesign();
    [[nodiscard]] static TControlDesign ListDesign();
    [[nodiscard]] static TControlDesign TimersDesign();

    /// The form, which is built, outlives the object.
    TFindBox(TForm& form, TFindHost host);

    void SetTexts(const TCaptions& captions);
    /// From now on it can be used. What can be found is prepared step by step, so that no key waits for it.
    void Start();
    /// Shows the page again.
    void Clear() { FField.SetText({}); }

  private:
    /// Asks the settings of one page more whether they are offered; false when all were asked.
    bool PrepareNext();
    [[nodiscard]] std::vector<const TSetting*> Found(const std::wstring& text);
    void ShowFound();
    /// Back to the page and to what had the focus before the field.
    void Leave();
    bool FieldKey(TKey key);
    void Open(std::size_t row);
    void Flash(TControl& control);
    void FlashTimer();

    TForm& FForm;
    TFindHost FHost;
    TEdit& FField;
    TListView& FList;
    TControl& FNotebook;
    TTimer& FPrepareTimer;
    TTimer& FFlashTimer;
    std::set<const TSetting*> FOffered;
    std::size_t FAsked = 0;               ///< so many of the settings were asked
    std::vector<const TSetting*> FFound;  ///< as the list shows them
    TControl* FFrom = nullptr;            ///< had the focus before the field
    TControl* FFlashing = nullptr;
    int FTurns = 0;  ///< how often the frame has still to appear or disappear
};
