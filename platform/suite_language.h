// The language that the user chose for the whole suite.
#pragma once

#include "platform/system.h"

/// The identifier of the language in the suite's configuration file; "English" when it names none.
[[nodiscard]] std::wstring GetSuiteLanguage(const TSystem& system);
