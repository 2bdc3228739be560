// The language that the user chose for the whole suite.
#pragma once

#include <memory>

#include "platform/app_frame.h"
#include "platform/language.h"

/// The folder with the suite's settings of the user.
[[nodiscard]] std::wstring SuiteFolder(const TSystem& system);

/// The identifier of the language in the suite's configuration file; "English" when it names none.
[[nodiscard]] std::wstring GetSuiteLanguage(const TSystem& system);

/// The languages beside the program, none of them chosen. `system` outlives them.
[[nodiscard]] inline std::unique_ptr<TLanguage> OpenLanguages(const TSystem& system, const TAppFrame& frame) {
    return std::make_unique<TLanguage>(system, L"Scanner", frame.AppPath + L"Toolbox_Language");
}
