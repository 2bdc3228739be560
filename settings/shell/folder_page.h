// The Folder Types page: folder windows, their views, tips and sorting in file lists, thumbnails, selection.
#pragma once

#include "settings/page.h"

[[nodiscard]] const TPageDefinition& FolderPage();
