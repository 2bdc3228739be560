// The Driver page: disk transfer mode, NTFS options, the low disk space warning, AutoPlay.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& DrivesPage();
