// The folders of the user, of all users and of the program.
#pragma once

#include "platform/system.h"

/// The folder of the running program file, with trailing delimiter.
[[nodiscard]] std::wstring ProgramFolder(const TSystem& system);

struct TAppFrame {
    explicit TAppFrame(const TSystem& system);

    std::wstring AppDataPath;        ///< the user's application data, without trailing delimiter
    std::wstring CommonAppDataPath;  ///< application data of all users, without trailing delimiter
    std::wstring AppPath;            ///< the program's folder, with trailing delimiter
};
