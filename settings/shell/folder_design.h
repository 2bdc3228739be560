// The form of the Folder Types page.
#pragma once

#include "ui/design.h"

[[nodiscard]] TControlDesign FolderDesign();
