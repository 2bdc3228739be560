#include "platform/suite_language.h"

#include <gtest/gtest.h>

#include "platform/app_frame.h"
#include "tests/fakes/fake_system.h"

namespace {

TEST(TAppFrame, KnowsTheFolders) {
    TFakeSystem fake;
    fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Users\\a\\AppData");
    fake.Shell.PutFolder(TSpecialFolder::CommonAppData, L"C:\\ProgramData");
    fake.Windows.SetProgramFile(L"D:\\Quilltune.exe");
    const TAppFrame frame(fake.System);
    EXPECT_EQ(frame.AppDataPath, L"C:\\Users\\a\\AppData");
    EXPECT_EQ(frame.CommonAppDataPath, L"C:\\ProgramData");
    EXPECT_EQ(frame.AppPath, L"D:\\");
}

TEST(TSuiteLanguage, ComesFromTheSuitesConfiguration) {
    TFakeSystem fake;
    fake.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Data");
    const std::wstring file = L"C:\\Data\\Vandrel\\Orbicare V4\\Main.ini";
    EXPECT_EQ(GetSuiteLanguage(fake.System), L"English");
    fake.Files.PutText(file, "[Main]\r\nLanguage=Deutsch\r\n");
    EXPECT_EQ(GetSuiteLanguage(fake.System), L"Deutsch");
    fake.Files.PutText(file, "[Other]\r\nLanguage=Deutsch\r\n");
    EXPECT_EQ(GetSuiteLanguage(fake.System), L"English");
}

}  // namespace
