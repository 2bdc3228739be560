#include "platform/app_frame.h"

std::wstring ProgramFolder(const TSystem& system) {
    const std::wstring file = system.Windows.ProgramFile();
    return file.substr(0, file.rfind(L'\\') + 1);
}

TAppFrame::TAppFrame(const TSystem& system)
    : AppDataPath(system.Shell.FolderPath(TSpecialFolder::AppData)),
      CommonAppDataPath(system.Shell.FolderPath(TSpecialFolder::CommonAppData)),
      AppPath(ProgramFolder(system)) {}
