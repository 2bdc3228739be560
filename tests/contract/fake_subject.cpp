#include "tests/contract/subject.h"
#include "tests/fakes/fake_system.h"

struct TContractTest::TSubject {
    TFakeSystem Fakes;
};

TContractTest::TContractTest() : FSubject(std::make_unique<TSubject>()) {
    using enum TFakeParameters::TCarrier;
    TFakeSystem& fakes = FSubject->Fakes;
    fakes.Files.PutFolder(Folder());
    fakes.Files.Put(fakes.Windows.ProgramFile(), {});
    fakes.Shell.PutFolder(TSpecialFolder::AppData, L"C:\\Users\\tester\\AppData\\Roaming");
    fakes.Shell.PutFolder(TSpecialFolder::CommonAppData, L"C:\\ProgramData");
    fakes.Services.Put(InstalledService(), {.State = TServiceState::Running});
    TFakeVersionResource resource;
    resource.Texts[L"\\StringFileInfo\\040904B0\\FileVersion"] = L"1.2.3.4";
    resource.Blocks[L"\\"] = {0xBD, 0x04, 0xEF, 0xFE};
    resource.Blocks[L"\\"].resize(52);
    resource.Blocks[L"\\VarFileInfo\\Translation"] = {0x09, 0x04, 0xB0, 0x04};
    fakes.Windows.PutVersionResource(VersionedFile(), resource);
    fakes.Parameters.RefuseAction(0x7FFF);                           // no action of Windows
    fakes.Parameters.PutNumber(1, 1);                                // SPI_GETBEEP
    fakes.Parameters.Pair(2, 1, Param);                              // SPI_SETBEEP
    fakes.Parameters.Put(3, {6, 0, 0, 0, 10, 0, 0, 0, 1, 0, 0, 0});  // SPI_GETMOUSE
    fakes.Parameters.Pair(4, 3, Data);                               // SPI_SETMOUSE
    fakes.Parameters.PutNumber(0x200A, 1);                           // SPI_GETFONTSMOOTHINGTYPE
    fakes.Parameters.Pair(0x200B, 0x200A, Data);                     // SPI_SETFONTSMOOTHINGTYPE
}

TContractTest::~TContractTest() { EXPECT_EQ(FSubject->Fakes.Services.OpenHandles(), 0U); }

TSystem& TContractTest::System() { return FSubject->Fakes.System; }
std::wstring TContractTest::Folder() { return L"C:\\Temp\\contract"; }
void TContractTest::MakeFolder(const std::wstring& path) { FSubject->Fakes.Files.PutFolder(path); }
void TContractTest::MakeReadOnly(const std::wstring& path) { FSubject->Fakes.Files.MakeReadOnly(path); }
std::wstring TContractTest::VersionedFile() { return L"C:\\Windows\\System32\\versioned.dll"; }
std::wstring TContractTest::InstalledService() { return L"PlugPlay"; }
