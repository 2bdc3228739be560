#include "platform/suite_language.h"

#include "platform/app_frame.h"

std::wstring GetSuiteLanguage(const TSystem& system) {
    const std::wstring file = TAppFrame(system).AppDataPath + L"\\Vandrel\\Orbicare V4\\Main.ini";
    return system.Files.ProfileString(file, L"Main", L"Language", L"English");
}
