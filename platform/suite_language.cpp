#include "platform/suite_language.h"

#include "platform/app_frame.h"

std::wstring SuiteFolder(const TSystem& system) {
    return TAppFrame(system).AppDataPath + L"\\Vandrel\\Orbicare V4";
}

std::wstring GetSuiteLanguage(const TSystem& system) {
    return system.Files.ProfileString(SuiteFolder(system) + L"\\Main.ini", L"Main", L"Language", L"English");
}
