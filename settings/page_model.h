// A page on a form without a native side: loaded, asked and changed as a user would, any number of times.
#pragma once

#include "settings/page.h"
#include "settings/scratch_system.h"
#include "settings/setting_states.h"

class TButton;

class TPageModel {
  public:
    /// Builds the page's controls into `container`. Everything outlives the model; the system of `context` is that of
    /// `scratch`. `changed` is told like that of a TPage.
    TPageModel(const TPageDefinition& definition, TPageContext& context, TScratchSystem& scratch,
               TControl& container, TNotifyEvent changed);

    [[nodiscard]] const TPageDefinition& Definition() const { return FDefinition; }
    [[nodiscard]] TPageContext& Context() const { return FContext; }
    /// The control that holds all others of the page.
    [[nodiscard]] TControl& Root() const { return FRoot; }

    /// Shows what is stored, from the state that the page is built in; does nothing when it shows that already. A fault of
    /// a loader leaves what was loaded until then.
    void Load();
    [[nodiscard]] bool IsLoaded() const { return FIsLoaded; }
    /// The next Load loads anew.
    void Forget() { FIsLoaded = false; }

    // Of a control of the page that records, or of a preset button. The page must be loaded.

    [[nodiscard]] TStates StatesOf(TControl& control);
    /// Of a button that picks a colour: that colour.
    [[nodiscard]] TControlState StateOfSetting(TControl& control);
    /// The user sees it.
    [[nodiscard]] static bool IsShown(const TControl& control);
    /// Does what a user does who brings the control into the state, though it be in it already. Afterwards the page shows
    /// what he would see, until it is loaded anew.
    void Change(TControl& control, const TControlState& state);

  private:
    /// What a press asks when nobody answers.
    const TScratchDialogs& Probe(TButton& button);
    void LeaveState(TControl& control, const TControlState& state);

    const TPageDefinition& FDefinition;
    TPageContext& FContext;
    TScratchSystem& FScratch;
    TPage FPage;
    TControl& FRoot;
    bool FIsLoaded = false;
};
