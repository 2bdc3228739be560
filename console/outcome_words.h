// What became of changes, for the commands that carry some out.
#pragma once

#include <functional>

#include "console/command.h"

/// A change as a record. `done` is nothing when it was not carried out.
[[nodiscard]] TValue RecordOf(const TTask& task, const TChange& change, std::optional<bool> done);

/// Names a target that is not as it should be, with the likely reason.
void FailAt(TTask& task, const TTarget& target);

/// Does one of the steps of an Apply, and names its fault; the others go on.
void Try(TTask& task, const std::function<void()>& step);
