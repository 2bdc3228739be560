// Change sets that were read or saved: what they would do, and doing it.
#pragma once

#include "engine/carry_out.h"
#include "settings/captions.h"
#include "ui/controls.h"

/// The changes of a file, or why nothing of it is taken over, in the user's language.
[[nodiscard]] std::variant<TChangeSet, std::wstring> ReadChangeFile(const TSystem& system,
                                                                    const std::wstring& path,
                                                                    const TCaptions& captions);

/// A change set as a list shows it: place, now, after. Of operations at one place the last one stands for all, and a key
/// that is deleted has everything in it and below it with it; what is not as a way back expects it says so. Nothing is
/// touched.
[[nodiscard]] std::vector<TListView::TRow> PreviewRows(TSystem& system, const TChangeSet& changeSet,
                                                       const TCaptions& captions);

/// Carries the operations out, with an entry in the history, and fills `done`. A fault of the history holds nothing back;
/// it is let out at the end.
void CarryOutRecorded(TSystem& system, const TChangeSet& operations, TCarriedOut& done);
