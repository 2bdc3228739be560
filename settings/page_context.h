// What a settings page works with: the form's controls, the pending changes, the world outside, and the window's
// marks that outlive a single click.
#pragma once

#include "engine/restart.h"
#include "engine/sys_control.h"
#include "settings/captions.h"
#include "settings/levels.h"
#include "settings/net/firefox_prefs.h"
#include "ui/form.h"

struct TPageContext {
    TSystem& System;
    TForm& Form;
    TSysControl& Changes;
    TFirefoxPrefs& Firefox;
    TCaptions Captions{};
    TRelease Release{};  ///< the running Windows

    bool Loading = false;       ///< a loader fills controls; their events record nothing
    bool ShowsPending = false;  ///< the loading page shows changes that are not written yet
    bool FirefoxChanged = false;

    // While a row records, its changes are marked with these; see TRegRecor.
    std::wstring Setting;
    TRestart RestartNeeded = TRestart::None;
};

/// Sets the loading mark for a scope, so that no path out of a loader leaves it set. Scopes nest: while a
/// loader handles messages, another page may be loaded.
class TLoadingScope {
  public:
    explicit TLoadingScope(TPageContext& context, bool showsPending = false)
        : FContext(context), FWasLoading(context.Loading), FShowedPending(context.ShowsPending) {
        FContext.Loading = true;
        FContext.ShowsPending = showsPending;
    }
    ~TLoadingScope() {
        FContext.Loading = FWasLoading;
        FContext.ShowsPending = FShowedPending;
    }
    TLoadingScope(const TLoadingScope&) = delete;
    TLoadingScope& operator=(const TLoadingScope&) = delete;

  private:
    TPageContext& FContext;
    bool FWasLoading;
    bool FShowedPending;
};
